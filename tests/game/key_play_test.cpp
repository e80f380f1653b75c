// The game by keys: what each key does, and where keys act.
#include "GameFixture.h"
#include "game/KeyPlay.h"
#include "ui/controls/MouseButton.h"
#include "ui/layout/Control.h"
#include "ui/main/ModeControls.h"

namespace quendrel::test {
namespace {

constexpr const char* kNotFull = "buttons: Exit About Config Show\n";

class KeyPlayTest : public GameFixture {
protected:
    KeyPlayTest() {
        window.press = [this](Control button) { PressButton(button); };
        Offer(played);
        window.place = ButtonOf(CommandButton::kStart);
        window.writesPlaces = true;
    }

    /// Puts a mode in force, with its colours.
    void Offer(const PlayedMode& mode) {
        Play(mode);
        ShowModeColors(window, mode.number);
        log.Clear();
    }

    void PressNumbers(const Colors& colors) {
        for (const int color : colors) game.keys.PressNumber(color);
    }

    bool Press(Key key) { return game.keys.Press(key); }

    /// What the player gets to see and hear of a key.
    std::string Of(const std::function<void()>& key) {
        log.Clear();
        key();
        return log.Text();
    }
    std::string Of(Key key) {
        return Of([&] { EXPECT_TRUE(Press(key)); });
    }
    std::string OfNumber(int number) {
        return Of([&] { game.keys.PressNumber(number); });
    }
    std::string OfShift(int number) {
        return Of([&] { game.keys.PressShiftNumber(number); });
    }

    /// The holes that keys cannot change show themselves by keys that do nothing.
    void ExpectHolesDeaf() {
        for (const Key key : {Key::kLeft, Key::kRight, Key::kHome, Key::kEnd, Key::kDelete,
                              Key::kShiftDelete, Key::kBackspace}) {
            EXPECT_EQ(Of(key), "") << static_cast<int>(key);
        }
        const int color = global.SelectedColor == 5 ? 6 : 5;
        game.keys.PressNumber(color);
        EXPECT_EQ(log.LinesFrom("peg"), "");
        EXPECT_EQ(OfNumber(color), "");
        EXPECT_EQ(global.SelectedColor, color);
    }

    /// "Start" with a code that the player sets; `during` happens before it is confirmed.
    void StartWithOwnCode(const std::function<void()>& during) {
        global.Settings.SetColor = true;
        clock.In(200, during);
        Click(CommandButton::kStart);
    }

private:
    /// A key presses a button as the main window has it.
    void PressButton(Control button) {
        if (button.array == Controls::cmdMnuBtn) {
            game.table.Play(SoundSlot::kBigClick);
            Click(static_cast<CommandButton>(button.index));
        } else if (button.array == Controls::cmdInput) {
            log.Add("player: " +
                    std::string(AnswerNames.at(static_cast<std::size_t>(button.index))));
            game.table.inputBar.Click(static_cast<Answer>(button.index));
        } else {
            log.Add("press " + NameOf(button));
        }
    }
};

class KeyPlayInMode : public KeyPlayTest, public ::testing::WithParamInterface<PlayedMode> {
protected:
    KeyPlayInMode() { Offer(GetParam()); }
};

INSTANTIATE_TEST_SUITE_P(All, KeyPlayInMode, ::testing::ValuesIn(PlayedModes()), NameOfMode);

TEST_P(KeyPlayInMode, ARowIsFilledAndCheckedByOneKeyForEachColumnAndEnter) {
    StartWithCode(played.code);
    PressNumbers(played.miss);
    Press(Key::kEnter);
    EXPECT_EQ(global.GuessRows[1], Row(played.miss));
    EXPECT_EQ(global.ActiveRow, 2);
    PressNumbers(played.code);
    AnswerIn(9000, Answer::kOk);
    Press(Key::kEnter);
    EXPECT_FALSE(global.Settings.GameInProgress);
}

TEST_P(KeyPlayInMode, TheCodeIsSetByOneKeyForEachColumnAndEnter) {
    StartWithOwnCode([this] {
        PressNumbers(played.code);
        Press(Key::kEnter);
    });
    EXPECT_EQ(log.LinesFrom("player"), "player: Ok\n");
    EXPECT_EQ(global.SecretCode, Row(played.code));
    PressNumbers(played.miss);
    Press(Key::kEnter);
    EXPECT_EQ(global.GuessRows[1], Row(played.miss));
}

TEST_P(KeyPlayInMode, ANumberThatTheModeHasNoColorForDoesNothing) {
    StartWithCode(played.code);
    for (int number = played.colors + 1; number <= 10; ++number) {
        EXPECT_EQ(OfNumber(number), "") << number;
        EXPECT_EQ(OfShift(number), "") << number;
    }
    EXPECT_EQ(global.ActiveRowColors, RowOfPegs());
}

TEST_P(KeyPlayInMode, ThePlaceGoesAlongTheHolesAndNoFarther) {
    StartWithCode(played.code);
    const std::string last = "place at lblActiveRow(" + std::to_string(played.columns) + ")\n";
    const std::string beforeLast =
        "place at lblActiveRow(" + std::to_string(played.columns - 1) + ")\n";
    EXPECT_EQ(Of(Key::kRight), "place at lblActiveRow(2)\n");
    EXPECT_EQ(Of(Key::kEnd), last);
    EXPECT_EQ(Of(Key::kRight), last);
    EXPECT_EQ(Of(Key::kLeft), beforeLast);
    EXPECT_EQ(Of(Key::kHome), "place at lblActiveRow(1)\n");
    EXPECT_EQ(Of(Key::kLeft), "place at lblActiveRow(1)\n");
}

TEST_F(KeyPlayTest, ANumberChoosesItsColorFillsTheMarkedHoleAndMovesOn) {
    StartWithCode({1, 1, 2, 3});
    EXPECT_EQ(OfNumber(3), std::string("sound 1\n"
                                       "hold cmdColBtn(2)\n"
                                       "sound 7\n"
                                       "peg 3 at 218,536\n") +
                               kNotFull + "place at lblActiveRow(2)\n");
    EXPECT_EQ(OfNumber(3), std::string("sound 7\n"
                                       "peg 3 at 268,531\n") +
                               kNotFull + "place at lblActiveRow(3)\n");
    EXPECT_EQ(OfNumber(5), std::string("sound 1\n"
                                       "let go cmdColBtn(2)\n"
                                       "hold cmdColBtn(4)\n"
                                       "sound 7\n"
                                       "peg 5 at 318,526\n") +
                               kNotFull + "place at lblActiveRow(4)\n");
    EXPECT_EQ(OfNumber(5),
              "sound 7\n"
              "peg 5 at 368,526\n"
              "buttons: Exit About Config Show Check\n"
              "place at lblActiveRow(4)\n");
}

TEST_F(KeyPlayTest, SpacePutsTheChosenColorIntoTheMarkedHoleAndMovesOn) {
    StartWithCode({1, 1, 2, 3});
    EXPECT_EQ(Of(Key::kSpace), "");
    game.pegs.PressColorButton(2, MouseButton::kLeft);
    EXPECT_EQ(Of(Key::kSpace), std::string("sound 7\n"
                                           "peg 2 at 218,536\n") +
                                   kNotFull + "place at lblActiveRow(2)\n");
}

TEST_F(KeyPlayTest, SpaceOnAButtonIsLeftToTheButton) {
    StartWithCode({1, 1, 2, 3});
    game.pegs.PressColorButton(2, MouseButton::kLeft);
    log.Clear();
    for (const Control button : {ColorButton(4), ButtonOf(CommandButton::kExit),
                                 Control{Controls::cmdHideBtn}, ButtonOf(Answer::kNo)}) {
        window.place = button;
        EXPECT_FALSE(Press(Key::kSpace)) << NameOf(button);
    }
    EXPECT_EQ(log.Text(), "");
}

TEST_F(KeyPlayTest, DeleteEmptiesTheMarkedHole) {
    StartWithCode({1, 1, 2, 3});
    PressNumbers({4, 5});
    Press(Key::kLeft);
    EXPECT_EQ(Of(Key::kDelete), std::string("sound 2\n"
                                            "no peg at 268,531\n") +
                                    kNotFull + "place at lblActiveRow(2)\n");
    EXPECT_EQ(global.ActiveRowColors, RowOfPegs({4, 0, 0, 0, 0, 0}));
}

TEST_F(KeyPlayTest, BackspaceEmptiesTheMarkedHoleOrTheOneBeforeIt) {
    StartWithCode({1, 1, 2, 3});
    PressNumbers({4, 5, 6, 4});
    EXPECT_EQ(Of(Key::kBackspace), std::string("sound 2\n"
                                               "no peg at 368,526\n") +
                                       kNotFull + "place at lblActiveRow(4)\n");
    EXPECT_EQ(Of(Key::kBackspace), std::string("place at lblActiveRow(3)\n"
                                               "sound 2\n"
                                               "no peg at 318,526\n") +
                                       kNotFull + "place at lblActiveRow(3)\n");
    EXPECT_EQ(global.ActiveRowColors, RowOfPegs({4, 5, 0, 0, 0, 0}));
    for (int i = 0; i < 3; ++i) Press(Key::kBackspace);
    EXPECT_EQ(global.ActiveRowColors, RowOfPegs());
    EXPECT_EQ(Of(Key::kBackspace).find("sound"), std::string::npos);
    EXPECT_EQ(window.place, Hole(1));
}

TEST_F(KeyPlayTest, ShiftAndDeleteEmptyTheRowWhichBeginsAnew) {
    StartWithCode({1, 1, 2, 3});
    PressNumbers({4, 5, 6});
    EXPECT_EQ(Of(Key::kShiftDelete), std::string("sound 2\n"
                                                 "no peg at 218,536\n"
                                                 "no peg at 268,531\n"
                                                 "no peg at 318,526\n"
                                                 "no peg at 368,526\n") +
                                         kNotFull + "place at lblActiveRow(1)\n");
}

TEST_F(KeyPlayTest, ShiftAndANumberSwitchTheColorOffAndOnAgain) {
    StartWithCode({1, 1, 2, 3});
    EXPECT_EQ(OfShift(2), "sound 2\ncmdColBtn(1) at 0,0 disabled\n");
    EXPECT_EQ(OfNumber(2), "");
    EXPECT_EQ(OfShift(2), "sound 2\ncmdColBtn(1) at 0,0 enabled\n");
    PressNumbers({2});
    EXPECT_EQ(OfShift(2), "");
    EXPECT_EQ(global.ActiveRowColors, RowOfPegs({2, 0, 0, 0, 0, 0}));
}

TEST_F(KeyPlayTest, WhileThePlaceIsElsewhereKeysActOnTheHoleThatWasMarked) {
    StartWithCode({1, 1, 2, 3});
    game.keys.HoleReached(2);
    window.place = ButtonOf(CommandButton::kExit);
    EXPECT_EQ(OfNumber(4), std::string("sound 1\nhold cmdColBtn(3)\nsound 7\npeg 4 at 268,531\n") +
                               kNotFull + "place at lblActiveRow(3)\n");
    game.keys.HoleReached(2);
    window.place = ButtonOf(CommandButton::kExit);
    EXPECT_EQ(Of(Key::kDelete), std::string("sound 2\nno peg at 268,531\n") + kNotFull +
                                    "place at lblActiveRow(2)\n");
}

TEST_F(KeyPlayTest, EnterPressesTheButtonAtThePlaceUnlessItIsAColor) {
    StartWithCode({1, 1, 2, 3});
    PressNumbers({4, 4, 5, 5});
    window.SetEnabled({Controls::cmdHideBtn}, true);
    window.place = Control{Controls::cmdHideBtn};
    EXPECT_EQ(Of(Key::kEnter), "press cmdHideBtn\n");
    window.place = ButtonOf(CommandButton::kAbout);
    EXPECT_EQ(Of(Key::kEnter), "sound 0\nabout\n");
    window.place = ColorButton(1);
    Press(Key::kEnter);
    EXPECT_EQ(global.ActiveRow, 2);
}

TEST_F(KeyPlayTest, EnterDoesNothingWhileTheRowIsNotFull) {
    StartWithCode({1, 1, 2, 3});
    PressNumbers({4, 4, 5});
    EXPECT_EQ(Of(Key::kEnter), "");
}

TEST_F(KeyPlayTest, ALetterPressesItsButtonWithItsSoundWhereItIsEnabled) {
    EXPECT_EQ(Of([this] { game.keys.PressLetter(ButtonOf(CommandButton::kAbout)); }),
              "sound 0\nabout\n");
    EXPECT_EQ(Of([this] { game.keys.PressLetter(ButtonOf(CommandButton::kShow)); }), "");
    EXPECT_EQ(Of([this] {
                  game.keys.PressLetter({Controls::cmdModeBtn, 2});
              }),
              "press cmdModeBtn(2)\n");
}

TEST_F(KeyPlayTest, WithoutAGameANumberChoosesOnly) {
    EXPECT_EQ(OfNumber(3), "sound 1\nhold cmdColBtn(2)\n");
    ExpectHolesDeaf();
    EXPECT_EQ(Of(Key::kUp), "");
    EXPECT_EQ(Of(Key::kDown), "");
    EXPECT_EQ(Of(Key::kEscape), "");
}

TEST_F(KeyPlayTest, TheHolesAreDeafWhileARowIsScored) {
    StartWithCode({1, 1, 2, 3});
    PressNumbers({4, 4, 5, 5});
    clock.In(300, [this] { ExpectHolesDeaf(); });
    Press(Key::kEnter);
    EXPECT_EQ(global.GuessRows[1], RowOfPegs({4, 4, 5, 5, 0, 0}));
    EXPECT_EQ(window.place, Hole(1));
    EXPECT_EQ(OfNumber(5),
              "sound 1\n"
              "let go cmdColBtn(5)\n"
              "hold cmdColBtn(4)\n"
              "sound 7\n"
              "peg 5 at 218,503\n"
              "buttons: Exit About Config Show Clone\n"
              "place at lblActiveRow(2)\n");
}

TEST_F(KeyPlayTest, AQuestionTakesThePlaceToNoAndGivesItBack) {
    StartWithCode({1, 1, 2, 3});
    PressNumbers({4, 4});
    clock.In(700, [this] {
        EXPECT_EQ(window.place, ButtonOf(Answer::kNo));
        ExpectHolesDeaf();
        EXPECT_EQ(window.place, ButtonOf(Answer::kNo));
        Press(Key::kEnter);
    });
    game.keys.PressLetter(ButtonOf(CommandButton::kShow));
    EXPECT_EQ(log.LinesFrom("p"), "player: No\nplace at lblActiveRow(3)\n");
    EXPECT_TRUE(global.Settings.GameInProgress);
}

TEST_F(KeyPlayTest, YesNoAndEscapeAnswer) {
    StartWithCode({1, 1, 2, 3});
    for (const auto& answer : std::vector<std::function<void()>>{
             [this] { Press(Key::kEscape); },
             [this] { game.keys.PressLetter(ButtonOf(Answer::kNo)); }}) {
        clock.In(700, answer);
        Click(CommandButton::kShow);
        EXPECT_TRUE(global.Settings.GameInProgress);
    }
    clock.In(700, [this] { game.keys.PressLetter(ButtonOf(Answer::kYes)); });
    clock.In(6000, [this] {
        EXPECT_EQ(window.place, ButtonOf(Answer::kOk));
        Press(Key::kEnter);
    });
    Click(CommandButton::kShow);
    EXPECT_EQ(log.LinesFrom("player"), "player: No\nplayer: No\nplayer: Yes\nplayer: Ok\n");
    EXPECT_EQ(window.place, ButtonOf(CommandButton::kStart));
}

TEST_F(KeyPlayTest, ThePlaceIsAtTheFirstHoleWhereAGameOrARowBegins) {
    NextCode({1, 1, 2, 3});
    Click(CommandButton::kStart);
    EXPECT_EQ(log.LinesFrom("place"), "place at lblActiveRow(1)\n");
    PressNumbers({4, 4, 5, 5});
    log.Clear();
    Press(Key::kEnter);
    EXPECT_EQ(log.LinesFrom("place"), "place at lblActiveRow(1)\n");
    PressNumbers({4, 4, 5});
    log.Clear();
    WinWith({1, 1, 2, 3});
    EXPECT_EQ(log.LinesFrom("place"), "place at cmdInput(2)\nplace at cmdMnuBtn(6)\n");
}

TEST_F(KeyPlayTest, ThePlaceIsAtTheFirstHoleOfTheCodeAndThenOfTheRow) {
    StartWithOwnCode([this] {
        EXPECT_EQ(window.place, Hole(1));
        log.Clear();
        PressNumbers({1, 2, 3, 4});
        EXPECT_EQ(log.LinesFrom("peg"),
                  "peg 1 at 218,51\npeg 2 at 268,46\npeg 3 at 318,41\npeg 4 at 368,41\n");
        EXPECT_EQ(window.place, Hole(4));
        log.Clear();
        Press(Key::kEnter);
        ExpectHolesDeaf();
    });
    EXPECT_EQ(log.LinesFrom("place"), "place at lblActiveRow(1)\n");
    EXPECT_EQ(global.SecretCode, RowOfPegs({1, 2, 3, 4, 0, 0}));
}

TEST_F(KeyPlayTest, CloneChoosesARowByKeysAndBeginsWithTheNewest) {
    StartWithCode({1, 1, 2, 3});
    Guess({4, 4, 4, 4});
    Guess({5, 5, 5, 5});
    Guess({6, 6, 6, 6});
    window.place = Hole(3);
    game.keys.PressLetter(ButtonOf(CommandButton::kClone));
    EXPECT_EQ(log.LinesFrom("place"), "place at lblCloneRow(2)\n");
    ExpectHolesDeaf();
    EXPECT_EQ(Of(Key::kUp), "place at lblCloneRow(2)\n");
    EXPECT_EQ(Of(Key::kDown), "place at lblCloneRow(1)\n");
    EXPECT_EQ(Of(Key::kDown), "place at lblCloneRow(0)\n");
    EXPECT_EQ(Of(Key::kDown), "place at lblCloneRow(0)\n");
    EXPECT_EQ(Of(Key::kUp), "place at lblCloneRow(1)\n");
    window.place = Control{Controls::cmdHideBtn};
    EXPECT_EQ(Of(Key::kDown), "place at lblCloneRow(2)\n");
    Press(Key::kDown);
    log.Clear();
    Press(Key::kEnter);
    EXPECT_EQ(log.LinesFrom("sound") + log.LinesFrom("place"),
              "sound 7\nplace at lblActiveRow(3)\n");
    EXPECT_EQ(global.ActiveRowColors, RowOfPegs({5, 5, 5, 5, 0, 0}));
    EXPECT_EQ(Of(Key::kUp), "");
    Press(Key::kEnter);
    EXPECT_EQ(global.GuessRows[4], RowOfPegs({5, 5, 5, 5, 0, 0}));
}

TEST_F(KeyPlayTest, CloneByItsOwnButtonLeavesThePlaceAtAHole) {
    StartWithCode({1, 1, 2, 3});
    Guess({4, 4, 4, 4});
    window.place = ButtonOf(CommandButton::kClone);
    Press(Key::kEnter);
    EXPECT_EQ(window.place, (Control{Controls::lblCloneRow, 0}));
    EXPECT_TRUE(Press(Key::kSpace));
    EXPECT_EQ(window.place, Hole(1));
    EXPECT_EQ(global.ActiveRowColors, RowOfPegs({4, 4, 4, 4, 0, 0}));
}

TEST_F(KeyPlayTest, ARefusedResetGivesThePlaceBackToTheHoleOfTheCode) {
    global.Settings.MindDuel = true;
    StartWithOwnCode([this] {
        PressNumbers({1, 2, 3});
        log.Clear();
        clock.In(100, [this] {
            ExpectHolesDeaf();
            Press(Key::kEnter);
        });
        game.round.ClickDuel();
        EXPECT_EQ(window.place, Hole(4));
        PressNumbers({4});
        Press(Key::kEnter);
    });
    EXPECT_EQ(global.SecretCode, RowOfPegs({1, 2, 3, 4, 0, 0}));
}

TEST_F(KeyPlayTest, TheHomeOfThePlaceFollowsTheSituation) {
    EXPECT_EQ(game.keys.Home(), ButtonOf(CommandButton::kStart));
    StartWithCode({1, 1, 2, 3});
    PressNumbers({4, 4});
    EXPECT_EQ(game.keys.Home(), Hole(3));
    clock.In(200, [this] {
        EXPECT_EQ(game.keys.Home(), ButtonOf(Answer::kNo));
        Press(Key::kEscape);
    });
    Click(CommandButton::kShow);
    EXPECT_EQ(game.keys.Home(), Hole(3));
    PressNumbers({5, 5});
    clock.In(200, [this] { EXPECT_EQ(game.keys.Home(), Hole(4)); });
    Press(Key::kEnter);
    Click(CommandButton::kClone);
    EXPECT_EQ(game.keys.Home(), (Control{Controls::lblCloneRow, 0}));
    Press(Key::kEnter);
    AnswerIn(100, Answer::kYes);
    clock.In(300, [this] {
        EnableHoles(window, played.columns, false);
        EXPECT_EQ(game.keys.Home(), std::nullopt);
    });
    clock.In(6000, [this] {
        EXPECT_EQ(game.keys.Home(), ButtonOf(Answer::kOk));
        Press(Key::kEnter);
    });
    Click(CommandButton::kShow);
    EXPECT_EQ(game.keys.Home(), ButtonOf(CommandButton::kStart));
}

TEST_F(KeyPlayTest, TheMarkedHoleIsOneOfTheMode) {
    game.keys.HoleReached(6);
    StartWithCode({1, 1, 2, 3});
    window.place = ButtonOf(CommandButton::kExit);
    EXPECT_EQ(game.keys.Home(), Hole(4));
    PressNumbers({4});
    EXPECT_EQ(global.ActiveRowColors, RowOfPegs({0, 0, 0, 4, 0, 0}));
}

}  // namespace
}  // namespace quendrel::test
