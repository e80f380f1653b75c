// Switching the mode.
#include "BoardLog.h"
#include "GameFixture.h"
#include "ui/controls/MouseButton.h"
#include "ui/layout/Control.h"

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

class SwitchToEveryMode : public ModeSwitchTest, public ::testing::WithParamInterface<PlayedMode> {
protected:
    /// Hard is in force before, and Easy before Hard.
    SwitchToEveryMode() {
        Play(mode.name == "Hard" ? PlayedModes().front() : PlayedModes().back());
    }

    const PlayedMode mode = GetParam();
};

INSTANTIATE_TEST_SUITE_P(Played, SwitchToEveryMode, ::testing::ValuesIn(PlayedModes()), NameOfMode);

TEST_P(SwitchToEveryMode, ShowsTheNewBoardLoadsItsHighscoresAndPreparesTheIdleBoard) {
    Switch(mode.number);
    const std::string number = std::to_string(mode.number);
    std::string held;
    for (int i = 0; i < 3; ++i) {
        held += (i == mode.number ? "hold " : "let go ") + std::string("cmdModeBtn(") +
                std::to_string(i) + ")\n";
    }
    std::string colors;
    for (int i = 0; i < 10; ++i) {
        const bool plays = i < mode.colors;
        const std::string index = "(" + std::to_string(i) + ")";
        colors += "cmdColBtn" + index + (plays ? " at 0,0 enabled\n" : " hidden\n") +
                  "lblColorBackup" + index + (plays ? " at 0,0 disabled\n" : " hidden\n");
    }
    EXPECT_EQ(log.Text(), "hold the pointer in cmdModeBtn(" + number +
                              ")\n"
                              "sound 6\n"
                              "let the pointer go\n" +
                              held + colors + kSweep +
                              "repaint the window\n"
                              "stand still 75\n" +
                              kSweep);
    EXPECT_EQ(global.Settings.GameMode, mode.number);
    EXPECT_EQ(global.LastMode, mode.number);
    EXPECT_EQ(global.DemoDelay, 11 - 3 * mode.number);
    EXPECT_EQ(global.HighscoreFile, "/game\\High\\" + mode.name + ".hsc");
    constexpr std::array<std::int16_t, 3> tenth{720, 900, 1080};
    EXPECT_EQ(global.HighscoreList[10].Time, tenth.at(global.Settings.GameMode));
}

TEST_P(SwitchToEveryMode, ItsHighscoresAreLoadedAfterTheSweepAndBeforeTheRepaint) {
    const std::int16_t old = global.HighscoreList[10].Time;
    bool repainted = false;
    window.onSweepLine = [&] { EXPECT_EQ(global.HighscoreList[10].Time != old, repainted); };
    window.onRepaint = [&] {
        EXPECT_NE(global.HighscoreList[10].Time, old);
        repainted = true;
    };
    Switch(mode.number);
    EXPECT_TRUE(repainted);
}

TEST_P(SwitchToEveryMode, ItsColorsAreShownOnceItsBoardIsBuilt) {
    const Picture old = window.Image();
    int shown = 0;
    window.onSetVisible = [this, &old, &shown] {
        EXPECT_NE(window.Image(), old);
        ++shown;
    };
    Switch(mode.number);
    EXPECT_EQ(shown, 20);
}

TEST_P(SwitchToEveryMode, ItsLastColorStaysSelected) {
    game.pegs.PressColorButton(mode.colors, MouseButton::kLeft);
    Switch(mode.number);
    EXPECT_EQ(global.SelectedColor, mode.colors);
    EXPECT_TRUE(window.Of({Controls::cmdColBtn, mode.colors - 1}).held);
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

TEST_F(ModeSwitchTest, TheFirstColorThatTheNewModeDoesNotPlayIsLetGo) {
    for (const PlayedMode& mode : {PlayedModes()[0], PlayedModes()[1]}) {
        Switch(2);
        game.pegs.PressColorButton(mode.colors + 1, MouseButton::kLeft);
        Switch(mode.number);
        EXPECT_EQ(global.SelectedColor, 0) << mode.name;
        EXPECT_FALSE(window.Of({Controls::cmdColBtn, mode.colors}).held) << mode.name;
    }
}

}  // namespace
}  // namespace quendrel::test
