// The shared wait.
#include "audio/Pause.h"

#include <gtest/gtest.h>

#include "VirtualClock.h"

namespace quendrel::test {
namespace {

class PauseTest : public ::testing::Test {
protected:
    Log log;
    VirtualClock clock{log};
};

TEST_F(PauseTest, LetsEventsRunUntilTheTimeIsOver) {
    clock.In(30, [this] { log.Add("event"); });
    Pause(clock, 100, true);
    EXPECT_EQ(log.Text(), "wait 30\nevent\nwait 70\n");
}

TEST_F(PauseTest, StandsStillWithoutEvents) {
    clock.In(30, [this] { log.Add("event"); });
    Pause(clock, 100, false);
    EXPECT_EQ(log.Text(), "stand still 100\n");
}

TEST(Pause, ZeroAndLessReturnAtOnce) {
    for (const int milliseconds : {0, -5, -32768}) {
        for (const bool pumpEvents : {true, false}) {
            Log log;
            VirtualClock clock(log);
            Pause(clock, static_cast<std::int16_t>(milliseconds), pumpEvents);
            EXPECT_EQ(log.Text(), "");
        }
    }
}

TEST(Pause, ATickCountThatPassesItsSignedBoundaryIsAnOverflowError) {
    Log log;
    VirtualClock clock(log, 2147483600);
    EXPECT_THROW(Pause(clock, 100, true), OverflowError);
}

TEST(Pause, AWaitMayEndWithTheLastTickBeforeTheBoundary) {
    Log log;
    VirtualClock clock(log, 2147483600);
    Pause(clock, 47, true);
    EXPECT_EQ(clock.TickCount(), 2147483647);
}

TEST(Pause, ATickCountThatPassesItsBoundaryBetweenTwoWaitsDisturbsNeither) {
    Log log;
    VirtualClock clock(log, 2147483600);
    Pause(clock, 40, true);
    clock.PumpEvents(20);
    EXPECT_EQ(clock.TickCount(), -2147483636);
    Pause(clock, 100, true);
    EXPECT_EQ(clock.Now(), 2147483760);
}

TEST(Pause, NegativeTickCountsCountLikeOthers) {
    Log log;
    VirtualClock clock(log, -50);
    Pause(clock, 100, true);
    EXPECT_EQ(clock.Now(), 50);
}

}  // namespace
}  // namespace quendrel::test
