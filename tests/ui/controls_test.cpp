// The command buttons' states, the input bar and the controls that follow mode and row.
#include "GameFixture.h"
#include "ui/layout/Control.h"
#include "ui/main/HelpTexts.h"
#include "ui/main/ModeControls.h"

namespace quendrel::test {
namespace {

using ControlsTest = GameFixture;

TEST_F(ControlsTest, OneEnablesTwoDisablesAndAnythingElseLeavesAButtonAlone) {
    game.table.buttons.SetButtonStates({2, 0, 7, 2, 1, 0, 0, 1});
    EXPECT_EQ(log.Text(), "buttons: About Config Show Start Check\n");
}

TEST_F(ControlsTest, HighIsEnabledOnlyWhileTheClockIsOn) {
    game.table.buttons.SetButtonStates(kAllOff);
    game.table.buttons.SetButtonStates(kIdle);
    EXPECT_FALSE(window.Of(ButtonOf(CommandButton::kHigh)).enabled);
    global.Settings.GTimer = true;
    game.table.buttons.SetButtonStates(kIdle);
    EXPECT_TRUE(window.Of(ButtonOf(CommandButton::kHigh)).enabled);
}

TEST_F(ControlsTest, WithTheClockOffAOneLeavesHighAsItIs) {
    window.SetEnabled(ButtonOf(CommandButton::kHigh), true);
    game.table.buttons.SetButtonStates(kIdle);
    EXPECT_TRUE(window.Of(ButtonOf(CommandButton::kHigh)).enabled);
}

TEST_F(ControlsTest, StatesReadBackAsOnesAndTwos) {
    game.table.buttons.SetButtonStates({1, 2, 1, 2, 1, 2, 1, 2});
    EXPECT_EQ(game.table.buttons.States(), (ButtonStates{1, 2, 1, 2, 1, 2, 1, 2}));
}

TEST_F(ControlsTest, AnswersComeToTheirPlacesAndGoAwayToTheirs) {
    game.table.inputBar.Place(Answer::kYes);
    game.table.inputBar.Place(Answer::kNo);
    game.table.inputBar.Place(Answer::kOk, false);
    EXPECT_EQ(log.Text(),
              "cmdInput(0) at 75,65 enabled\n"
              "cmdInput(1) at 120,65 enabled\n"
              "cmdInput(2) at 100,65 disabled\n");
    game.table.inputBar.PutAway(Answer::kYes);
    game.table.inputBar.PutAway(Answer::kNo);
    game.table.inputBar.PutAway(Answer::kOk);
    const auto away = [this](int index, int left) {
        const RecordingWindow::State& state = window.Of({Controls::cmdInput, index});
        return !state.visible && !state.enabled && state.left == left && state.top == 10;
    };
    EXPECT_TRUE(away(0, 79));
    EXPECT_TRUE(away(1, 106));
    EXPECT_TRUE(away(2, 127));
}

TEST_F(ControlsTest, AnInterruptedAnswerComesBackAsItWas) {
    InputBar& bar = game.table.inputBar;
    for (const bool enabled : {true, false}) {
        bar.Place(Answer::kOk, !enabled);
        bar.Enable(Answer::kOk, enabled);
        const InputBar::Buttons interrupted = bar.Interrupt();
        EXPECT_FALSE(window.Of(ButtonOf(Answer::kOk)).visible);
        bar.GoOn(interrupted);
        EXPECT_TRUE(window.Of(ButtonOf(Answer::kOk)).visible);
        EXPECT_EQ(window.Of(ButtonOf(Answer::kOk)).enabled, enabled);
    }
}

TEST_F(ControlsTest, AClickOnAnAnswerThatIsNotAskedForDoesNotAnswer) {
    game.table.inputBar.Click(Answer::kOk);
    clock.In(100, [this] { game.table.inputBar.Click(Answer::kNo); });
    EXPECT_EQ(game.table.inputBar.WaitFor({Answer::kYes, Answer::kNo}), Answer::kNo);
}

TEST_F(ControlsTest, TheModesColorsAreShownAndEnabledAndTheOthersHidden) {
    for (int i = 0; i < 10; ++i) window.SetEnabled({Controls::cmdColBtn, i}, false);
    ShowModeColors(window, 1);
    for (int i = 0; i < 8; ++i) {
        EXPECT_TRUE(window.Of({Controls::cmdColBtn, i}).enabled);
        EXPECT_TRUE(window.Of({Controls::cmdColBtn, i}).visible);
        EXPECT_TRUE(window.Of({Controls::lblColorBackup, i}).visible);
    }
    for (int i = 8; i < 10; ++i) {
        EXPECT_FALSE(window.Of({Controls::cmdColBtn, i}).visible);
        EXPECT_FALSE(window.Of({Controls::lblColorBackup, i}).visible);
    }
    window.SetEnabled({Controls::cmdColBtn, 9}, true);
    ShowModeColors(window, 0);
    EXPECT_TRUE(window.Of({Controls::cmdColBtn, 9}).enabled);
}

TEST_F(ControlsTest, TheClickTargetsFollowTheRowAndTheCodeRow) {
    PlaceActiveRowLabels(global, window, 14);
    EXPECT_EQ(log.Text(), "hole tops: 107 102 97 97 102 107\n");
    global.CodeEntry = true;
    PlaceActiveRowLabels(global, window, 14);
    EXPECT_EQ(log.Text(), "hole tops: 51 46 41 41 46 51\n");
}

TEST(HelpTexts, AreTheBalloonsOfTheControls) {
    const auto command = [](int index) { return HelpText({Controls::cmdMnuBtn, index}); };
    EXPECT_EQ(command(0),
              "Pressing this button will terminate the game and return you to Windows!");
    EXPECT_EQ(command(1), "Press here to get information about the game and it's creators.");
    EXPECT_EQ(command(2),
              "Pressing this button will bring out the configuration window. It's here you alter "
              "the game to suit your state of mind.");
    EXPECT_EQ(command(3), "Press here to see the the Highscores for the current mode.");
    EXPECT_EQ(command(4),
              "Pressing this button will show you the correct row and then terminate the round you "
              "where playing.");
    EXPECT_EQ(
        command(5),
        "Pressing this button will let you clone any row. Just click on the row that you want "
        "to clone.");
    EXPECT_EQ(command(6),
              "Pressing this button will start the game in the mode you have selected in the top "
              "right corner.");
    EXPECT_EQ(command(7),
              "Press this button when you want to check your guess against the hidden color "
              "combination.");
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(HelpText({Controls::cmdColBtn, i}),
                  "Here you select the color to use. Right click will enable/disable it.");
    }
    EXPECT_EQ(HelpText({Controls::cmdModeBtn, 0}),
              "Pressing this button will select the 'Easy' version with 6 colors, 4 columns, 10 "
              "rows!");
    EXPECT_EQ(HelpText({Controls::cmdModeBtn, 1}),
              "Pressing this button will select the 'Medium' version with 8 colors, 5 columns, 12 "
              "rows!");
    EXPECT_EQ(HelpText({Controls::cmdModeBtn, 2}),
              "Pressing this button will select the 'Hard' version with 10 colors, 6 columns, 14 "
              "rows!");
    EXPECT_EQ(HelpText({Controls::cmdInput, 0}), "Click here to accept.");
    EXPECT_EQ(HelpText({Controls::cmdInput, 1}), "Click here to decline.");
    EXPECT_EQ(HelpText({Controls::cmdInput, 2}), "Click here when you are ready. ");
    EXPECT_EQ(HelpText({Controls::cmdDuelBtn}), "Press here to reset Mind Duel.");
    EXPECT_EQ(HelpText({Controls::cmdTmrBtn}), "Press here when you are ready to continue.");
    EXPECT_EQ(HelpText({Controls::cmdHideBtn}),
              "Press here to quickley hide the game from view. Double-click tray icon to resume "
              "game.");
}

TEST(NameOf, IsTheControlsNameWithItsIndex) {
    EXPECT_EQ(NameOf({Controls::cmdMnuBtn, 6}), "cmdMnuBtn(6)");
    EXPECT_EQ(NameOf({Controls::lblDispRow, 4}), "lblDispRow(4)");
    EXPECT_EQ(NameOf({Controls::cmdHideBtn}), "cmdHideBtn");
}

}  // namespace
}  // namespace quendrel::test
