// Where the fuzzer calls the one reader that its program is made for.
#include <cstddef>
#include <cstdint>

#include "MemoryFiles.h"
#include "Readers.h"

// Is named by the fuzzer.
// NOLINTNEXTLINE(readability-identifier-naming)
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    quendrel::fuzz::RemoveAllFiles();
    quendrel::fuzz::QUENDREL_READER({reinterpret_cast<const char*>(data), size});
    return 0;
}
