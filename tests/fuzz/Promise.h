// What a reader promises of everything that it reads.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace quendrel::fuzz {

/// Ends the program with the promise's words where it is not kept. The fuzzer then keeps the input.
inline void Promise(bool kept, const char* words) {
    if (kept) return;
    std::fprintf(stderr, "Not kept: %s.\n", words);
    std::abort();
}

}  // namespace quendrel::fuzz
