// Nothing is gathered in a long run: after a day on the idle board, or a thousand games, the game
// holds what it held before.
#include <cstddef>
#include <filesystem>
#include <iterator>

#include <malloc.h>

#include "GameFixture.h"

namespace quendrel::test {
namespace {

constexpr int kMinute = 60'000;
constexpr int kMinutesOfADay = 24 * 60;

struct Held {
    std::size_t bytes;
    std::ptrdiff_t files;
    std::size_t timers;
};

class LongRunTest : public GameFixture {
protected:
    /// What the test itself has written down is forgotten first.
    Held Holds() {
        log.Clear();
        window.said.clear();
        using Entries = std::filesystem::directory_iterator;
        const auto files = std::distance(Entries("/proc/self/fd"), Entries());
        const struct mallinfo2 memory = mallinfo2();
        return {memory.uordblks + memory.hblkhd, files, clock.Pending()};
    }

    static void ExpectNoMore(const Held& after, const Held& before) {
        constexpr std::size_t kSlack = 16 << 10;
        EXPECT_LE(after.bytes, before.bytes + kSlack);
        EXPECT_EQ(after.files, before.files);
        EXPECT_EQ(after.timers, before.timers);
    }
};

TEST_F(LongRunTest, ADayOfTheIdleAnimationLeavesNothingBehind) {
    global.DemoDelay = 15;
    Held before{};
    int minute = 0;
    const std::function<void()> minutePasses = [&] {
        log.Clear();
        clock.In(kMinute, minutePasses);
        if (++minute == 60) before = Holds();
        if (minute == kMinutesOfADay) clock.RequestEnd();
    };
    clock.In(kMinute, minutePasses);
    game.idle.Start();
    EXPECT_THROW(game.idle.Run(), ProgramEnded);
    EXPECT_EQ(clock.Now(), std::int64_t{kMinutesOfADay} * kMinute);
    ExpectNoMore(Holds(), before);
}

TEST_F(LongRunTest, AThousandGamesLeaveNothingBehind) {
    global.Settings.GTimer = true;
    game.clock.ApplySetting();
    Held before{};
    for (int round = 1; round <= 1000; ++round) {
        StartWithCode(played.code);
        Miss(2);
        if (round % 2 == 0) {
            WinWith(played.code);
        } else {
            GiveUp();
        }
        ASSERT_FALSE(global.Settings.GameInProgress) << round;
        const Held now = Holds();
        if (round == 100) before = now;
    }
    ExpectNoMore(Holds(), before);
}

}  // namespace
}  // namespace quendrel::test
