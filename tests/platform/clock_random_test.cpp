// The random generator that the game plays with.
#include <array>
#include <chrono>
#include <set>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "Global.h"
#include "platform/desktop/ClockRandom.h"

namespace quendrel::test {
namespace {

/// A generator as at the start of the program. Each is made in another millisecond, as the seed is
/// the time.
ClockRandom FreshRandom() {
    using std::chrono::milliseconds;
    using std::chrono::system_clock;
    const auto millisecond = [] {
        return std::chrono::floor<milliseconds>(system_clock::now().time_since_epoch());
    };
    const auto before = millisecond();
    while (millisecond() == before) std::this_thread::sleep_for(std::chrono::microseconds(100));
    ClockRandom random;
    random.SeedFromClock();
    return random;
}

TEST(ClockRandomTest, ItsNumbersFillTheRangeFromZeroToOneEvenly) {
    ClockRandom random = FreshRandom();
    std::array<int, 10> tenths{};
    for (int i = 0; i < 100'000; ++i) {
        const double next = random.Next();
        ASSERT_GE(next, 0);
        ASSERT_LT(next, 1);
        ++tenths.at(static_cast<std::size_t>(next * 10));
    }
    for (const int count : tenths) EXPECT_NEAR(count, 10'000, 600);
}

TEST(ClockRandomTest, EveryColorIsAsLikelyAsAnyOtherInEveryColumnOfEveryMode) {
    ClockRandom random = FreshRandom();
    for (const Mode& mode : kModes) {
        constexpr int codes = 10'000;
        const int expected = codes / mode.colors;
        std::array<std::array<int, kColorCount + 1>, kMaxColumns> drawn{};
        for (int code = 0; code < codes; ++code) {
            for (std::size_t column = 0; column < mode.columns; ++column) {
                ++drawn.at(column).at(static_cast<std::size_t>(random.Draw(mode.colors)));
            }
        }
        for (std::size_t column = 0; column < mode.columns; ++column) {
            for (std::size_t color = 1; color <= mode.colors; ++color) {
                EXPECT_NEAR(drawn.at(column).at(color), expected, 230)
                    << "color " << color << " in column " << column + 1;
            }
        }
    }
}

TEST(ClockRandomTest, NoTwoStartsAreAlikeAndTheirFirstCodesHoldEveryColorInEveryColumn) {
    constexpr std::size_t starts = 200;
    std::set<std::vector<double>> different;
    std::array<std::set<int>, kMaxColumns> colors;
    for (std::size_t start = 0; start < starts; ++start) {
        ClockRandom random = FreshRandom();
        ClockRandom same = random;
        different.insert({random.Next(), random.Next(), random.Next()});
        for (std::set<int>& column : colors) column.insert(same.Draw(kColorCount));
    }
    EXPECT_EQ(different.size(), starts);
    for (const std::set<int>& column : colors) EXPECT_EQ(column.size(), 10U);
}

TEST(ClockRandomTest, SeedingAgainLaterBeginsAnotherSequence) {
    ClockRandom first = FreshRandom();
    ClockRandom again = first;
    FreshRandom();
    again.SeedFromClock();
    EXPECT_NE(first.Next(), again.Next());
}

}  // namespace
}  // namespace quendrel::test
