// Switching the mode.
#include "GameFixture.h"

namespace quendrel::test {
namespace {

class ModeSwitchTest : public GameFixture {
protected:
    ModeSwitchTest() { global.HighFolder = "/game\\High\\"; }

    void Switch(int mode) {
        game.modes.PressModeButton(mode, MouseButton::kLeft);
        game.modes.ReleaseModeButton();
        game.modes.ClickModeButton(mode);
    }
};

TEST_F(ModeSwitchTest, ShowsTheNewBoardLoadsItsHighscoresAndPreparesTheIdleBoard) {
    Switch(1);
    const std::string sweep =
        "sweep lines 122\nstand still 20\nsweep lines 122\nstand still 20\nsweep lines 122\n"
        "stand still 20\nsweep lines 122\nstand still 20\nsweep lines 122\nstand still 20\n";
    std::string colors;
    for (const char* i : {"0", "1", "2", "3", "4", "5", "6", "7"}) {
        colors += std::string("cmdColBtn(") + i + ") at 0,0 enabled\nlblColorBackup(" + i +
                  ") at 0,0 disabled\n";
    }
    EXPECT_EQ(log.Text(),
              "hold the pointer in cmdModeBtn(1)\n"
              "sound 6\n"
              "let the pointer go\n"
              "let go cmdModeBtn(0)\n"
              "hold cmdModeBtn(1)\n"
              "let go cmdModeBtn(2)\n" +
                  colors +
                  "cmdColBtn(8) hidden\n"
                  "lblColorBackup(8) hidden\n"
                  "cmdColBtn(9) hidden\n"
                  "lblColorBackup(9) hidden\n" +
                  sweep +
                  "load highscores /game\\High\\Medium.hsc\n"
                  "repaint the window\n"
                  "stand still 75\n" +
                  sweep);
    EXPECT_EQ(global.Settings.GameMode, 1);
    EXPECT_EQ(global.LastMode, 1);
    EXPECT_EQ(global.DemoDelay, 8);
}

TEST_F(ModeSwitchTest, TheDelayOfTheIdleAnimationFollowsTheMode) {
    Switch(2);
    EXPECT_EQ(global.DemoDelay, 5);
    Switch(0);
    EXPECT_EQ(global.DemoDelay, 11);
}

TEST_F(ModeSwitchTest, TheButtonOfTheModeInForceDoesNothing) {
    Switch(0);
    EXPECT_EQ(log.Text(), "hold the pointer in cmdModeBtn(0)\nlet the pointer go\n");
}

TEST_F(ModeSwitchTest, APressWithoutAClickDoesNotSwitch) {
    game.modes.PressModeButton(1, MouseButton::kRight);
    game.modes.ReleaseModeButton();
    EXPECT_EQ(log.Text(), "hold the pointer in cmdModeBtn(1)\nlet the pointer go\n");
    EXPECT_EQ(global.Settings.GameMode, 0);
}

TEST_F(ModeSwitchTest, AColorThatTheNewModeDoesNotPlayIsLetGo) {
    Switch(2);
    game.pegs.PressColorButton(9, MouseButton::kLeft);
    Switch(0);
    EXPECT_EQ(global.SelectedColor, 0);
    EXPECT_FALSE(window.Of({Controls::cmdColBtn, 8}).held);
}

TEST_F(ModeSwitchTest, AColorThatTheNewModePlaysStaysSelected) {
    game.pegs.PressColorButton(6, MouseButton::kLeft);
    Switch(2);
    EXPECT_EQ(global.SelectedColor, 6);
}

}  // namespace
}  // namespace quendrel::test
