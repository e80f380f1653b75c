// The memory that is asked for and given back to the system.
#include <cstddef>
#include <fstream>
#include <memory>
#include <vector>

#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/desktop/SpareMemory.h"

namespace quendrel::test {
namespace {

constexpr std::size_t kMegabyte = 1 << 20;

/// Megabytes of memory that the process has, by the system's count.
std::size_t ResidentMegabytes() {
    std::size_t all = 0;
    std::size_t resident = 0;
    std::ifstream("/proc/self/statm") >> all >> resident;
    return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE)) / kMegabyte;
}

TEST(SpareMemory, WhatLiesBetweenPiecesInUseIsGivenBack) {
    constexpr std::size_t kPiece = kMegabyte / 16;
    std::vector<std::unique_ptr<std::vector<char>>> pieces(1024);
    for (auto& piece : pieces) piece = std::make_unique<std::vector<char>>(kPiece, 'x');
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        if (i % 16 != 15) pieces[i].reset();
    }
    const std::size_t before = ResidentMegabytes();
    GiveBackSpareMemory();
    EXPECT_LT(ResidentMegabytes() + 40, before);
    EXPECT_EQ(pieces.back()->at(kPiece - 1), 'x');
}

TEST(SpareMemory, IsAskedForAndNotKept) {
    constexpr std::size_t kMoreThanThereAreAddresses = std::size_t{1} << 28;
    for (int i = 0; i < 1000; ++i) EXPECT_TRUE(MemoryIsLeft(256));
    EXPECT_FALSE(MemoryIsLeft(kMoreThanThereAreAddresses));
}

}  // namespace
}  // namespace quendrel::test
