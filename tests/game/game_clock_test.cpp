// The game clock and its display form.
#include "GameFixture.h"
#include "audio/Pause.h"
#include "ui/layout/Control.h"

namespace quendrel::test {
namespace {

TEST(FormatGameTime, ShowsMinutesAndSecondsWithTwoDigitsEach) {
    EXPECT_EQ(FormatGameTime(0), "00:00");
    EXPECT_EQ(FormatGameTime(9), "00:09");
    EXPECT_EQ(FormatGameTime(60), "01:00");
    EXPECT_EQ(FormatGameTime(75), "01:15");
    EXPECT_EQ(FormatGameTime(3599), "59:59");
}

/// A damaged list may hold them.
TEST(FormatGameTime, OfTimesBelowNoneTheMinutesStayBelowAnHourToo) {
    EXPECT_EQ(FormatGameTime(-75), "-1:-15");
    EXPECT_EQ(FormatGameTime(-3600), "00:00");
    EXPECT_EQ(FormatGameTime(-3661), "-1:-1");
}

TEST(FormatGameTime, ShowsDashesFromAnHourOn) {
    EXPECT_EQ(FormatGameTime(3600), "--:--");
    EXPECT_EQ(FormatGameTime(32767), "--:--");
}

class GameClockTest : public GameFixture {
protected:
    GameClockTest() { global.Settings.GTimer = true; }
};

TEST_F(GameClockTest, CountsWholeSecondsWhileAGameRuns) {
    StartWithCode({1, 1, 2, 3});
    Pause(clock, 2500, true);
    EXPECT_EQ(log.Text(),
              "wait 1000\n"
              "board at 196,542\n"
              "lblGTimer \"00:01\"\n"
              "wait 1000\n"
              "number 1 at 196,542\n"
              "lblGTimer \"00:02\"\n"
              "wait 500\n");
}

TEST_F(GameClockTest, StopsAtTheLossAndIsClearedWhenTheBoardIsIdle) {
    StartWithCode({1, 1, 2, 3});
    Miss(9);
    Pause(clock, 200, true);
    clock.In(8900, [this] { EXPECT_EQ(global.ElapsedSeconds, 5); });
    Lose();
    EXPECT_EQ(log.LinesFrom("lblGTimer"), "lblGTimer \"00:05\"\nlblGTimer \"00:00\"\n");
    EXPECT_EQ(global.ElapsedSeconds, 0);
    log.Clear();
    Pause(clock, 3000, true);
    EXPECT_EQ(log.Text(), "wait 3000\n");
}

TEST_F(GameClockTest, StoppedWhileTheGameIsHiddenItStandsWhenTheGameComesBack) {
    game.clock.Start();
    game.clock.Pause();
    game.clock.Stop();
    game.clock.Resume();
    Pause(clock, 2000, true);
    EXPECT_EQ(global.ElapsedSeconds, 0);
}

TEST_F(GameClockTest, BroughtBackASecondTimeItTicksOnAsBefore) {
    game.clock.Start();
    game.clock.Pause();
    game.clock.Resume();
    Pause(clock, 700, true);
    game.clock.Resume();
    Pause(clock, 400, true);
    EXPECT_EQ(global.ElapsedSeconds, 1);
}

TEST_F(GameClockTest, StopsOnceShowIsConfirmed) {
    StartWithCode({1, 1, 2, 3});
    AnswerIn(2500, Answer::kYes);
    AnswerIn(9000, Answer::kOk);
    clock.In(8900, [this] { EXPECT_EQ(global.ElapsedSeconds, 2); });
    Click(CommandButton::kShow);
    EXPECT_EQ(global.ElapsedSeconds, 0);
}

TEST_F(GameClockTest, GoesOnCountingPastTheHourAndStaysAtTheLargestNumber) {
    StartWithCode({1, 1, 2, 3});
    global.ElapsedSeconds = 32766;
    Pause(clock, 3000, true);
    EXPECT_EQ(global.ElapsedSeconds, 32767);
}

TEST_F(GameClockTest, WithTheSettingOffNoTimeIsTaken) {
    global.Settings.GTimer = false;
    StartWithCode({1, 1, 2, 3});
    Pause(clock, 5000, true);
    EXPECT_EQ(global.ElapsedSeconds, 0);
    EXPECT_EQ(log.Text().find("lblGTimer"), std::string::npos);
}

TEST_F(GameClockTest, SwitchedOffInTheMiddleOfAGameItShowsNoTimeAndStands) {
    StartWithCode({1, 1, 2, 3});
    Pause(clock, 2500, true);
    log.Clear();
    global.Settings.GTimer = false;
    game.clock.ApplySetting();
    Pause(clock, 3000, true);
    EXPECT_EQ(log.LinesFrom("lblGTimer \""), "lblGTimer \"00:00\"\n");
    EXPECT_EQ(global.ElapsedSeconds, 0);
}

TEST_F(GameClockTest, TheSettingShowsTheLabelAndMovesTheButton) {
    game.clock.ApplySetting();
    EXPECT_TRUE(window.Of({Controls::cmdTmrBtn}).enabled);
    EXPECT_EQ(window.Of({Controls::cmdTmrBtn}).left, 32);
    EXPECT_TRUE(window.Of({Controls::lblGTimer}).visible);
    global.Settings.GTimer = false;
    game.clock.ApplySetting();
    EXPECT_FALSE(window.Of({Controls::cmdTmrBtn}).enabled);
    EXPECT_EQ(window.Of({Controls::cmdTmrBtn}).left, 57);
    EXPECT_FALSE(window.Of({Controls::lblGTimer}).visible);
}

}  // namespace
}  // namespace quendrel::test
