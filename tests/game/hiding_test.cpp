// Hiding the game from view and coming back.
#include "GameFixture.h"
#include "audio/Pause.h"

namespace quendrel::test {
namespace {

class HidingTest : public GameFixture {
protected:
    HidingTest() {
        global.Settings.GTimer = true;
        global.PlayState = PlayStates::kPlaying;
    }
};

TEST_F(HidingTest, HidesStopsTheClockPausesTheMusicAndShowsTheIcon) {
    StartWithCode({1, 1, 2, 3});
    game.hiding.HideToTray();
    EXPECT_EQ(log.Text(), "hide\nseed\nmidi: pause\ntray icon \"Quendrel v1.0\"\n");
}

TEST_F(HidingTest, ADoubleClickOnTheIconBringsEverythingBack) {
    StartWithCode({1, 1, 2, 3});
    game.hiding.HideToTray();
    log.Clear();
    tray.doubleClick();
    EXPECT_EQ(log.Text(), "restore\nseed\nmidi: open\nmidi: play\nno tray icon\n");
    EXPECT_FALSE(game.hiding.IsHidden());
}

TEST_F(HidingTest, AMinuteHiddenIsNotCounted) {
    StartWithCode({1, 1, 2, 3});
    Pause(clock, 2500, true);
    game.hiding.HideToTray();
    Pause(clock, 30000, true);
    Pause(clock, 30000, true);
    EXPECT_EQ(global.ElapsedSeconds, 2);
    game.hiding.RestoreFromTray();
    Pause(clock, 1500, true);
    EXPECT_EQ(global.ElapsedSeconds, 3);
}

TEST_F(HidingTest, AStoppedClockStaysStopped) {
    game.hiding.HideToTray();
    game.hiding.RestoreFromTray();
    Pause(clock, 5000, true);
    EXPECT_EQ(global.ElapsedSeconds, 0);
}

TEST_F(HidingTest, AClockStartedAfterTheGameHasComeBackRuns) {
    game.hiding.HideToTray();
    game.hiding.RestoreFromTray();
    StartWithCode({1, 1, 2, 3});
    Pause(clock, 1500, true);
    EXPECT_EQ(global.ElapsedSeconds, 1);
}

TEST_F(HidingTest, AClockStartedWhileHiddenRunsWhenTheGameComesBack) {
    NextCode({1, 1, 2, 3});
    clock.In(300, [this] { game.hiding.HideToTray(); });
    Click(CommandButton::kStart);
    Pause(clock, 5000, true);
    EXPECT_EQ(global.ElapsedSeconds, 0);
    game.hiding.RestoreFromTray();
    Pause(clock, 1500, true);
    EXPECT_EQ(global.ElapsedSeconds, 1);
}

TEST_F(HidingTest, StoppedMusicStaysStopped) {
    global.PlayState = PlayStates::kStopped;
    game.hiding.HideToTray();
    game.hiding.RestoreFromTray();
    EXPECT_EQ(log.Text(), "hide\nseed\ntray icon \"Quendrel v1.0\"\nrestore\nseed\nno tray icon\n");
}

TEST_F(HidingTest, WithoutATrayTheWindowIsMinimised) {
    tray.available = false;
    StartWithCode({1, 1, 2, 3});
    game.hiding.HideToTray();
    EXPECT_EQ(log.Text(), "minimise\nseed\nmidi: pause\n");
    log.Clear();
    game.hiding.RestoreFromTray();
    EXPECT_EQ(log.Text(), "restore\nseed\nmidi: open\nmidi: play\nno tray icon\n");
}

TEST_F(HidingTest, ATrayThatVanishesBringsTheGameBack) {
    game.hiding.HideToTray();
    log.Clear();
    tray.vanish();
    EXPECT_EQ(log.Text(), "restore\nseed\nmidi: open\nmidi: play\nno tray icon\n");
}

TEST_F(HidingTest, RestoringAGameThatIsNotHiddenDoesNothing) {
    game.hiding.RestoreFromTray();
    EXPECT_EQ(log.Text(), "");
}

TEST_F(HidingTest, AGameThatCannotBeHiddenGoesOnAsIfNothingHadBeenPressed) {
    tray.available = false;
    window.minimises = false;
    StartWithCode({1, 1, 2, 3});
    game.hiding.HideToTray();
    EXPECT_EQ(log.Text(), "minimise\n");
    EXPECT_FALSE(game.hiding.IsHidden());
    EXPECT_EQ(global.PlayState, PlayStates::kPlaying);
    Pause(clock, 2500, true);
    EXPECT_EQ(global.ElapsedSeconds, 2);
}

TEST_F(HidingTest, HidingAgainWhatIsHiddenDoesNothing) {
    game.hiding.HideToTray();
    log.Clear();
    game.hiding.HideToTray();
    EXPECT_EQ(log.Text(), "");
    EXPECT_TRUE(game.hiding.IsHidden());
}

}  // namespace
}  // namespace quendrel::test
