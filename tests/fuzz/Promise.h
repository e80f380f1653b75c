// What a reader promises of everything that it reads.
#pragma once

#include <cstdlib>
#include <iostream>

namespace quendrel::fuzz {

/// Ends the program with the promise's words where it is not kept. The fuzzer then keeps the input.
inline void Promise(bool kept, const char* words) {
    if (kept) return;
    std::cerr << "Not kept: " << words << ".\n";
    std::abort();
}

}  // namespace quendrel::fuzz
