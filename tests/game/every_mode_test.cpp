// The flows of a game in each of the three modes: as wide and as high as the mode's board.
#include <algorithm>

#include "BoardLog.h"
#include "GameFixture.h"
#include "ui/controls/MouseButton.h"
#include "ui/layout/Control.h"

namespace quendrel::test {
namespace {

class EveryMode : public GameFixture, public ::testing::WithParamInterface<PlayedMode> {
protected:
    EveryMode() { Play(GetParam()); }

    void Start() { StartWithCode(played.code); }

    bool IsEnabled(Control control) { return window.Of(control).enabled; }
};

INSTANTIATE_TEST_SUITE_P(Played, EveryMode, ::testing::ValuesIn(PlayedModes()), NameOfMode);

TEST_P(EveryMode, StartCoversTheCodeAndEnablesTheFirstRow) {
    NextCode(played.code);
    Click(CommandButton::kStart);
    EXPECT_EQ(log.Text(), StartByComputer(played.columns));
    EXPECT_EQ(global.SecretCode, Row(played.code));
    EXPECT_TRUE(global.Settings.GameInProgress);
}

TEST_P(EveryMode, ThePlayerSetsEveryColumnOfTheCode) {
    global.Settings.SetColor = true;
    const Colors oneShort(played.code.begin(), played.code.end() - 1);
    clock.In(150, [this, oneShort] {
        Place(oneShort);
        EXPECT_FALSE(IsEnabled(ButtonOf(Answer::kOk)));
    });
    SetCodeByHand(played.code);
    Click(CommandButton::kStart);
    EXPECT_EQ(log.LinesFrom("color "),
              Frames(10, 1, "", played.code) + Frame(10, Empty(played.columns)));
    EXPECT_EQ(log.LinesFrom("holes: "),
              Holes(played.columns) + "holes: none\n" + Holes(played.columns));
    EXPECT_EQ(global.SecretCode, Row(played.code));
}

TEST_P(EveryMode, CheckIsEnabledByTheLastHoleOfTheRow) {
    Start();
    game.pegs.PressColorButton(played.colors, MouseButton::kLeft);
    for (int column = 1; column <= played.columns; ++column) {
        EXPECT_FALSE(IsEnabled(ButtonOf(CommandButton::kCheck))) << column;
        game.pegs.PressHole(column, MouseButton::kLeft);
    }
    EXPECT_TRUE(IsEnabled(ButtonOf(CommandButton::kCheck)));
}

TEST_P(EveryMode, ADoubleClickEmptiesEveryHoleOfTheRow) {
    Start();
    Place(played.miss);
    log.Clear();
    game.pegs.DoubleClickRow();
    EXPECT_EQ(log.LinesFrom("no peg "), Pegs(Empty(played.columns), kFirstRow));
    EXPECT_EQ(global.ActiveRowColors, RowOfPegs());
}

TEST_P(EveryMode, EveryColumnIsScored) {
    Start();
    Colors guess = played.code;
    std::iter_swap(guess.end() - 1, guess.end() - 2);
    Place(guess);
    log.Clear();
    Click(CommandButton::kCheck);
    Colors marks(guess.size() - 2, 1);
    marks.insert(marks.end(), {2, 2});
    EXPECT_EQ(global.GuessRows[1], Row(guess));
    EXPECT_EQ(global.ScoreMarks[1], Row(marks));
    std::string sounds;
    for (const int mark : marks) sounds += mark == 1 ? "sound 8\n" : "sound 9\n";
    EXPECT_EQ(log.LinesFrom("sound "), sounds);
}

TEST_P(EveryMode, TheLastRowWithoutSuccessLosesAndNoRowBeforeIt) {
    Start();
    Miss(played.rows - 1);
    EXPECT_EQ(global.ActiveRow, played.rows);
    EXPECT_TRUE(global.Settings.GameInProgress);
    clock.In(8900, [this] { EXPECT_EQ(global.ActiveRow, played.rows); });
    Lose();
    EXPECT_NE(log.Text().find("Sorry, no luck this time."), std::string::npos);
    EXPECT_EQ(log.LinesFrom("color "), OneByOne(played.code));
    EXPECT_FALSE(global.Settings.GameInProgress);
}

TEST_P(EveryMode, ARowEqualToTheCodeOnTheLastRowWins) {
    Start();
    Miss(played.rows - 1);
    WinWith(played.code);
    EXPECT_NE(log.Text().find("text: grey \"Congratulations! you made it.\""), std::string::npos);
    EXPECT_EQ(log.Text().find("Sorry"), std::string::npos);
    EXPECT_EQ(log.LinesFrom("color "), Frames(1, 10, "", played.code));
    EXPECT_FALSE(global.Settings.GameInProgress);
}

TEST_P(EveryMode, AfterAWinTheNextGameBeginsWithAnEmptyRow) {
    Start();
    WinWith(played.code);
    Start();
    const Colors allButOne(played.miss.begin(), played.miss.end() - 1);
    Place(allButOne);
    EXPECT_FALSE(IsEnabled(ButtonOf(CommandButton::kCheck)));
    EXPECT_EQ(global.ActiveRowColors, Row(allButOne));
}

TEST_P(EveryMode, AfterAWinTheNextCodeIsSetFromNothing) {
    global.Settings.SetColor = true;
    SetCodeByHand(played.code);
    Click(CommandButton::kStart);
    WinWith(played.code);
    clock.In(150, [this] {
        Place({played.miss.front()});
        EXPECT_EQ(global.SecretCode, Row({played.miss.front()}));
        EXPECT_FALSE(IsEnabled(ButtonOf(Answer::kOk)));
    });
    SetCodeByHand(played.miss);
    Click(CommandButton::kStart);
}

TEST_P(EveryMode, ShowUncoversEveryColumnOfTheCode) {
    Start();
    GiveUp();
    EXPECT_EQ(log.LinesFrom("color "), OneByOne(played.code));
    EXPECT_EQ(log.LinesFrom("holes: "), "holes: none\n");
}

TEST_P(EveryMode, CloneCopiesTheChosenRow) {
    Start();
    Guess(played.miss);
    Guess(Colors(played.code.size(), 1));
    Click(CommandButton::kClone);
    const std::string width = std::to_string(50 * played.columns);
    EXPECT_EQ(log.Text(),
              "buttons: none\n"
              "holes: none\n"
              "lblCloneRow(0) at 218,530 width " +
                  width +
                  " enabled\n"
                  "lblCloneRow(1) at 218,497 width " +
                  width +
                  " enabled\n"
                  "text: - yellow \"- Clone -\" grey \"Choose a row !\" -\n");
    log.Clear();
    game.round.ChooseRow(0);
    EXPECT_EQ(log.Text(), "sound 7\n" + Pegs(played.miss, 470) +
                              "lblCloneRow(1) hidden\n"
                              "lblCloneRow(0) hidden\n" +
                              Holes(played.columns) +
                              "text: - grey \"Game in progress...\" - -\n"
                              "buttons: Exit About Config Show Clone Check\n");
    EXPECT_EQ(global.ActiveRowColors, Row(played.miss));
}

TEST_P(EveryMode, CloneOnTheLastRowOffersEveryRowBelow) {
    Start();
    Miss(played.rows - 1);
    Click(CommandButton::kClone);
    for (int strip = 0; strip < played.rows - 1; ++strip) {
        const RecordingWindow::State& state = window.Of({Controls::lblCloneRow, strip});
        EXPECT_TRUE(state.visible && state.enabled) << strip;
        EXPECT_EQ(state.top, 530 - 33 * strip);
    }
    EXPECT_FALSE(window.Of({Controls::lblCloneRow, played.rows - 1}).visible);
    game.round.ChooseRow(played.rows - 2);
    EXPECT_TRUE(IsEnabled(ButtonOf(CommandButton::kCheck)));
}

TEST_P(EveryMode, TheIdleAnimationReachesTheLastRowColumnAndColor) {
    global.DemoDelay = 15;
    random.script = {0.9999, 0.9999, 0.9999};
    game.idle.Start();
    clock.In(101, [this] { clock.RequestEnd(); });
    EXPECT_THROW(game.idle.Run(), ProgramEnded);
    const std::string peg = "peg " + std::to_string(played.colors) + " at " +
                            PlaceOf(played.columns, kFirstRow - 33 * (played.rows - 1));
    EXPECT_EQ(log.LinesFrom("peg ").substr(0, peg.size()), peg);
}

}  // namespace
}  // namespace quendrel::test
