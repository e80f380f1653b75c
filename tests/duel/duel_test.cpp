// A match of two players, played under the virtual clock.
#include "duel/Duel.h"

#include "BoardLog.h"
#include "GameFixture.h"
#include "audio/Pause.h"
#include "ui/controls/MouseButton.h"
#include "ui/layout/Control.h"

namespace quendrel::test {
namespace {

class DuelTest : public GameFixture {
protected:
    DuelTest() {
        SettingsRecord& settings = global.Settings;
        settings.MindDuel = true;
        settings.PlayerNames[1] = "Anna";
        settings.PlayerNames[2] = "Ben";
        settings.BestOf = 2;
    }

    /// The panel as it stands: yellow lines marked with a star, lines joined by slashes.
    std::string Panel() {
        std::string panel;
        for (int line = 1; line <= 4; ++line) {
            const MessageLine& shown = window.Line(line);
            if (line > 1) panel += " / ";
            if (!shown.text.empty() && shown.ink == kYellowInk) panel += "*";
            panel += shown.text;
        }
        return panel;
    }

    /// The texts that the panel has shown since the log was cleared.
    std::string Texts() const { return log.LinesFrom("text: "); }

    void Start() { StartWithCode({1, 1, 2, 3}); }

    /// A turn that breaks the code with its `guesses`-th guess. `answers` are the times of the
    /// presses of "Ok" after the last check.
    void WinTurn(int guesses, std::initializer_list<int> answers = {5000}) {
        Start();
        for (int i = 1; i < guesses; ++i) Guess({4, 4, 5, 6});
        Place({1, 1, 2, 3});
        for (const int time : answers) AnswerIn(time, Answer::kOk);
        Click(CommandButton::kCheck);
        log.Clear();
    }

    std::string State() const {
        const SettingsRecord& settings = global.Settings;
        return std::to_string(settings.Round) + " " + std::to_string(settings.PlrTrn) + " " +
               std::to_string(settings.PlrPos[1]) + " " + std::to_string(settings.PlrPos[2]);
    }
};

TEST_F(DuelTest, BothTurnsOfARoundShowTheSameNumber) {
    Start();
    EXPECT_EQ(Panel(), "*- Mind Duel - / Round: 1/2 / *Anna: Guess=0 / Ben: Guess=0");
    EXPECT_EQ(State(), "0 1 0 0");
    WinWith({1, 1, 2, 3});
    EXPECT_EQ(State(), "0 2 1 0");
    Start();
    EXPECT_EQ(Panel(), "*- Mind Duel - / Round: 1/2 / Anna: Guess=1 / *Ben: Guess=0");
    EXPECT_EQ(State(), "1 2 1 0");
}

TEST_F(DuelTest, TheStatusStandsWhereASingleGameSaysThatItIsInProgress) {
    NextCode({1, 1, 2, 3});
    Click(CommandButton::kStart);
    const std::string text = log.Text();
    const std::size_t status = text.find(
        "text: yellow \"- Mind Duel -\" grey \"Round: 1/2\" "
        "yellow \"Anna: Guess=0\" grey \"Ben: Guess=0\"\n"
        "number 1 at 196,542\n");
    EXPECT_NE(status, std::string::npos);
    EXPECT_EQ(text.find("Game in progress"), std::string::npos);
}

TEST_F(DuelTest, EveryCheckedRowCountsAGuessAfterItsMarks) {
    Start();
    Place({4, 4, 5, 6});
    log.Clear();
    Click(CommandButton::kCheck);
    EXPECT_EQ(log.Text(),
              "buttons: none\n"
              "wait 500\n"
              "text: yellow \"- Mind Duel -\" grey \"Round: 1/2\" yellow \"Anna: Guess=1\" "
              "grey \"Ben: Guess=0\"\n"
              "buttons: Exit About Config Show\n"
              "board at 196,542\n"
              "hole tops: 503 498 493 493 498 503\n"
              "number 2 at 196,509\n"
              "buttons: Exit About Config Show Clone\n");
}

TEST_F(DuelTest, TheCountsStandWholeWhereALongNameIsCut) {
    global.Settings.PlayerNames[1] = std::string(300, 'A');
    global.Settings.PlrPos[1] = 9;
    Start();
    Guess({4, 4, 5, 6});
    const auto kept = [this](int line) {
        const MessageLine& shown = window.Line(line);
        return shown.text.substr(shown.text.size() - shown.kept);
    };
    EXPECT_EQ(kept(1), "");
    EXPECT_EQ(kept(2), "");
    EXPECT_EQ(kept(3), ": Guess=10");
    EXPECT_EQ(kept(4), ": Guess=0");
}

TEST_F(DuelTest, TheLastCountIsReadForHalfASecondBeforeTheClockStops) {
    global.Settings.GTimer = true;
    Start();
    Place({1, 1, 2, 3});
    Pause(clock, 200, true);
    AnswerIn(6000, Answer::kOk);
    // 2500 ms of marks, then the 500 ms in which the third second falls.
    clock.In(2990, [this] { EXPECT_EQ(Panel().substr(0, 15), "*- Mind Duel - "); });
    clock.In(3010, [this] {
        EXPECT_EQ(Panel(), "Congratulations! you made it. / Press ok when done! /  / ");
        EXPECT_EQ(global.ElapsedSeconds, 3);
    });
    clock.In(5900, [this] { EXPECT_EQ(global.ElapsedSeconds, 3); });
    Click(CommandButton::kCheck);
}

TEST_F(DuelTest, TheLastCountOfALossIsReadForHalfASecondBeforeTheClockStops) {
    global.Settings.GTimer = true;
    Start();
    Miss(9);
    // The sixth second falls into the half second.
    Pause(clock, 700, true);
    Lose();
    const std::string text = log.Text();
    EXPECT_EQ(text.substr(0, text.find("wait 300\nnumber 10")),
              "buttons: none\n"
              "wait 300\n"
              "board at 196,245\n"
              "wait 200\n"
              "text: yellow \"- Mind Duel -\" grey \"Round: 1/2\" yellow \"Anna: Guess=10\" "
              "grey \"Ben: Guess=0\"\n"
              "wait 300\n"
              "lblGTimer \"00:06\"\n"
              "wait 200\n"
              "sound 10\n"
              "text: - grey \"Sorry, no luck this time.\" - -\n");
    EXPECT_EQ(log.LinesFrom("lblGTimer "), "lblGTimer \"00:06\"\nlblGTimer \"00:00\"\n");
}

TEST_F(DuelTest, TheVerdictLeavesNoAnswerBehind) {
    global.Settings.BestOf = 1;
    for (const int match : {1, 2}) {
        WinTurn(1);
        EXPECT_EQ(State(), "0 2 1 0") << match;
        WinTurn(1, {5000, 7000});
        EXPECT_EQ(State(), "0 1 0 0") << match;
        Start();
        WaitsFor(Answer::kOk, [this] {
            Place({1, 1, 2, 3});
            Click(CommandButton::kCheck);
        });
        AnswerIn(500, Answer::kYes);
        game.round.ClickDuel();
    }
}

TEST_F(DuelTest, AMatchOfOneRoundEndsAfterATurnEach) {
    global.Settings.BestOf = 1;
    WinTurn(1);
    EXPECT_EQ(State(), "0 2 1 0");
    Start();
    Guess({4, 4, 5, 6});
    Place({1, 1, 2, 3});
    log.Clear();
    AnswerIn(5000, Answer::kOk);
    AnswerIn(7000, Answer::kOk);
    clock.In(5200, [this] { EXPECT_EQ(Panel(), " /  /  / "); });
    clock.In(6900, [this] {
        EXPECT_EQ(Panel(), "Well done Anna / you won the Mind Duel. /  / ");
        EXPECT_TRUE(global.GameBusy);
    });
    Click(CommandButton::kCheck);
    EXPECT_EQ(
        Texts(),
        "text: yellow \"- Mind Duel -\" grey \"Round: 1/1\" grey \"Anna: Guess=1\" "
        "yellow \"Ben: Guess=2\"\n"
        "text: grey \"Congratulations! you made it.\" grey \"Press ok when done!\" - -\n"
        "text: - - - -\n"
        "text: grey \"Well done Anna\" grey \"you won the Mind Duel.\" - -\n"
        "text: grey \"Welcome to\" yellow \"Quendrel v1.0\" grey \"from\" grey \"Brimwell\"\n");
    EXPECT_EQ(State(), "0 1 0 0");
    EXPECT_FALSE(global.GameBusy);
    EXPECT_FALSE(window.Of(ButtonOf(Answer::kOk)).visible);
    EXPECT_FALSE(window.Of(ButtonOf(Answer::kOk)).enabled);
}

TEST_F(DuelTest, TheVerdictComesAfterThreeHundredAndFiftyBlankMilliseconds) {
    global.Settings.BestOf = 1;
    WinTurn(2);
    Start();
    Place({1, 1, 2, 3});
    clock.In(5100, [this] { log.Clear(); });
    AnswerIn(5100, Answer::kOk);
    AnswerIn(7000, Answer::kOk);
    Click(CommandButton::kCheck);
    const std::string text = log.Text();
    EXPECT_EQ(text.substr(0, text.rfind("player")),
              "player: Ok\n"
              "cmdInput(2) hidden\n"
              "text: - - - -\n"
              "wait 350\n"
              "text: grey \"Well done Ben\" grey \"you won the Mind Duel.\" - -\n"
              "cmdInput(2) at 100,65 enabled\n"
              "wait 550\n"
              "number 1 at 196,542\n"
              "wait 1000\n");
}

TEST_F(DuelTest, EqualTotalsAreATie) {
    global.Settings.BestOf = 1;
    WinTurn(2);
    Start();
    Guess({4, 4, 5, 6});
    Place({1, 1, 2, 3});
    AnswerIn(5000, Answer::kOk);
    AnswerIn(7000, Answer::kOk);
    clock.In(6900,
             [this] { EXPECT_EQ(Panel(), "*- It's a tie - / You are boath wery good. /  / "); });
    Click(CommandButton::kCheck);
    EXPECT_EQ(State(), "0 1 0 0");
}

TEST_F(DuelTest, AMatchOfTwoRoundsHasFourTurns) {
    WinTurn(1);
    WinTurn(1);
    EXPECT_EQ(State(), "1 1 1 1");
    Start();
    EXPECT_EQ(Panel(), "*- Mind Duel - / Round: 2/2 / *Anna: Guess=1 / Ben: Guess=1");
    WinWith({1, 1, 2, 3});
    EXPECT_EQ(State(), "1 2 2 1");
    WinTurn(3, {5000, 7000});
    EXPECT_EQ(State(), "0 1 0 0");
}

TEST_F(DuelTest, AMatchOfTenRoundsShowsEveryNumberTwice) {
    global.Settings.BestOf = 10;
    for (const char* round : {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}) {
        for (const int turn : {1, 2}) {
            Start();
            EXPECT_EQ(window.Line(2).text, std::string("Round: ") + round + "/10");
            EXPECT_EQ(global.Settings.PlrTrn, turn);
            Place({1, 1, 2, 3});
            AnswerIn(5000, Answer::kOk);
            if (round == std::string("10") && turn == 2) AnswerIn(7000, Answer::kOk);
            Click(CommandButton::kCheck);
        }
    }
    EXPECT_EQ(State(), "0 1 0 0");
}

TEST_F(DuelTest, ATurnGivenUpCostsEveryRowOfTheMode) {
    Start();
    Guess({4, 4, 5, 6});
    Guess({4, 4, 5, 6});
    log.Clear();
    GiveUp();
    EXPECT_EQ(State(), "0 2 10 0");
    EXPECT_EQ(
        Texts(),
        "text: yellow \"- Show -\" grey \"Are you sure ?\" - -\n"
        "text: grey \"Here is the correct row.\" grey \"Press ok when done!\" - -\n"
        "text: grey \"Welcome to\" yellow \"Quendrel v1.0\" grey \"from\" grey \"Brimwell\"\n");
}

class DuelInEveryMode : public DuelTest, public ::testing::WithParamInterface<PlayedMode> {
protected:
    DuelInEveryMode() { Play(GetParam()); }

    const std::string rows = std::to_string(GetParam().rows);
};

INSTANTIATE_TEST_SUITE_P(Played, DuelInEveryMode, ::testing::ValuesIn(PlayedModes()), NameOfMode);

TEST_P(DuelInEveryMode, ATurnGivenUpCostsEitherPlayerEveryRowOfTheMode) {
    for (const char* const player : {"one", "two"}) {
        StartWithCode(played.code);
        if (player == std::string("two")) Miss(3);
        GiveUp();
        EXPECT_EQ(State(),
                  player == std::string("one") ? "0 2 " + rows + " 0" : "1 1 " + rows + " " + rows);
    }
}

TEST_P(DuelInEveryMode, ATurnWhoseRowsRanOutCostsEitherPlayerEveryRowOfTheMode) {
    for (const std::string& state : {"0 2 " + rows + " 0", "1 1 " + rows + " " + rows}) {
        StartWithCode(played.code);
        Miss(played.rows - 1);
        Lose();
        EXPECT_EQ(State(), state);
    }
}

TEST_P(DuelInEveryMode, TheRefusalOverTheCodeEntryOpensEveryHoleAgain) {
    global.Settings.SetColor = true;
    clock.In(110, [this] {
        log.Clear();
        game.round.ClickDuel();
        EXPECT_EQ(log.LinesFrom("holes: "), "holes: none\n" + Holes(played.columns));
    });
    AnswerIn(150, Answer::kOk);
    SetCodeByHand(played.code);
    Click(CommandButton::kStart);
}

TEST_F(DuelTest, AStoredTurnThatIsNoPlayersCountsAsPlayerTwos) {
    global.Settings.PlrTrn = 0;
    Start();
    EXPECT_EQ(Panel(), "*- Mind Duel - / Round: 0/2 / Anna: Guess=0 / *Ben: Guess=0");
    WinWith({1, 1, 2, 3});
    EXPECT_EQ(State(), "0 1 0 1");
}

TEST_F(DuelTest, GivingUpWithSuchATurnIsAnIndexOutOfRange) {
    global.Settings.PlrTrn = 3;
    Start();
    AnswerIn(100, Answer::kYes);
    EXPECT_THROW(Click(CommandButton::kShow), std::out_of_range);
}

TEST_F(DuelTest, TheResetBetweenRoundsStartsAMatchAnew) {
    WinTurn(1);
    AnswerIn(500, Answer::kYes);
    game.round.ClickDuel();
    EXPECT_EQ(log.Text(),
              "buttons: none\n"
              "text: yellow \"- Reset Mind Duel -\" grey \"Are you sure ?\" - -\n"
              "cmdInput(0) at 75,65 enabled\n"
              "cmdInput(1) at 120,65 enabled\n"
              "wait 500\n"
              "player: Yes\n"
              "cmdInput(0) hidden\n"
              "cmdInput(1) hidden\n"
              "text: grey \"Welcome to\" yellow \"Quendrel v1.0\" grey \"from\" grey \"Brimwell\"\n"
              "buttons: Exit About Config Start\n");
    EXPECT_EQ(State(), "0 1 0 0");
}

TEST_F(DuelTest, NoToTheResetChangesNothing) {
    WinTurn(1);
    AnswerIn(500, Answer::kNo);
    game.round.ClickDuel();
    EXPECT_EQ(State(), "0 2 1 0");
    EXPECT_TRUE(window.Of(ButtonOf(CommandButton::kStart)).enabled);
}

TEST_F(DuelTest, DuringPlayTheResetIsRefusedAndThePanelPutBack) {
    WinTurn(3);
    Start();
    Place({1, 2, 3, 4});
    log.Clear();
    clock.In(100, [this] { game.pegs.PressHole(1, MouseButton::kRight); });
    AnswerIn(500, Answer::kOk);
    game.round.ClickDuel();
    EXPECT_EQ(log.Text(),
              "buttons: none\n"
              "text: yellow \"- Reset Mind Duel -\" grey \"Sorry, not during play !\" - -\n"
              "cmdInput(2) at 100,65 enabled\n"
              "wait 500\n"
              "player: Ok\n"
              "cmdInput(2) hidden\n"
              "text: yellow \"- Mind Duel -\" grey \"Round: 1/2\" grey \"Anna: Guess=3\" "
              "yellow \"Ben: Guess=0\"\n"
              "buttons: Exit About Config Show Check\n");
    EXPECT_EQ(State(), "1 2 3 0");
}

TEST_F(DuelTest, EveryResetWaitsForAnAnswerOfItsOwn) {
    const auto reset = [this] { game.round.ClickDuel(); };
    for (const Answer answer : {Answer::kNo, Answer::kNo, Answer::kYes, Answer::kYes})
        WaitsFor(answer, reset);
    Start();
    for (const Answer answer : {Answer::kOk, Answer::kOk}) WaitsFor(answer, reset);
}

TEST_F(DuelTest, TheResetDuringACloneChoiceLeavesTheChoiceOpen) {
    Start();
    Guess({4, 4, 5, 6});
    Click(CommandButton::kClone);
    clock.In(100, [this] { game.round.ChooseRow(0); });
    AnswerIn(500, Answer::kOk);
    game.round.ClickDuel();
    EXPECT_EQ(window.Line(2).text, "- Clone -");
    EXPECT_TRUE(window.Of({Controls::lblCloneRow, 0}).visible);
    game.round.ChooseRow(0);
    EXPECT_TRUE(window.Of(ButtonOf(CommandButton::kCheck)).enabled);
}

TEST_F(DuelTest, TheDuelButtonIsDeafDuringAnotherQuestion) {
    clock.In(100, [this] { game.round.ClickDuel(); });
    AnswerIn(500, Answer::kNo);
    Click(CommandButton::kExit);
    EXPECT_EQ(Texts().find("Reset"), std::string::npos);
}

TEST_F(DuelTest, TheRefusalOverTheCodeEntryPutsTheEntryBackAsItStood) {
    global.Settings.PlrPos[1] = 3;
    global.Settings.SetColor = true;
    clock.In(200, [this] { Place({4, 3, 2}); });
    clock.In(300, [this] {
        log.Clear();
        game.round.ClickDuel();
        log.Add("back");
    });
    clock.In(350, [this] { game.round.ClickDuel(); });
    AnswerIn(400, Answer::kOk);
    clock.In(500, [this] {
        log.Clear();
        game.pegs.PressColorButton(1, MouseButton::kLeft);
        game.pegs.PressHole(4, MouseButton::kLeft);
    });
    AnswerIn(600, Answer::kOk);
    clock.In(499, [this] {
        EXPECT_EQ(log.Text(),
                  "holes: none\n"
                  "cmdInput(2) hidden\n"
                  "buttons: none\n"
                  "text: yellow \"- Reset Mind Duel -\" grey \"Sorry, not during play !\" - -\n"
                  "cmdInput(2) at 100,65 enabled\n"
                  "wait 100\n"
                  "player: Ok\n"
                  "cmdInput(2) hidden\n"
                  "text: grey \"Please set your color combi-\" grey \"nation.Press ok when "
                  "done.\" - -\n"
                  "buttons: none\n"
                  "cmdInput(2) at 100,65 disabled\n"
                  "holes: 1 2 3 4\n"
                  "back\n"
                  "wait 99\n");
    });
    Click(CommandButton::kStart);
    EXPECT_EQ(global.SecretCode, RowOfPegs({4, 3, 2, 1, 0, 0}));
    EXPECT_EQ(State(), "0 1 3 0");
}

TEST_F(DuelTest, TheRefusalOverAClosingOkAnswersNothing) {
    Start();
    Place({1, 1, 2, 3});
    const std::int64_t begin = clock.Now();
    clock.In(5000, [this] {
        log.Clear();
        game.round.ClickDuel();
        log.Add("back");
    });
    AnswerIn(5100, Answer::kOk);
    clock.In(5200, [this] {
        EXPECT_EQ(log.Text(),
                  "cmdInput(2) hidden\n"
                  "buttons: none\n"
                  "text: yellow \"- Reset Mind Duel -\" grey \"Sorry, not during play !\" - -\n"
                  "cmdInput(2) at 100,65 enabled\n"
                  "board at 196,542\n"
                  "wait 100\n"
                  "player: Ok\n"
                  "cmdInput(2) hidden\n"
                  "text: grey \"Congratulations! you made it.\" grey \"Press ok when done!\" - "
                  "-\n"
                  "buttons: none\n"
                  "cmdInput(2) at 100,65 enabled\n"
                  "back\n"
                  "wait 100\n");
        EXPECT_TRUE(global.GameBusy);
    });
    AnswerIn(5300, Answer::kOk);
    Click(CommandButton::kCheck);
    EXPECT_EQ(clock.Now() - begin, 5300);
    EXPECT_EQ(Panel(), "Welcome to / *Quendrel v1.0 / from / Brimwell");
}

TEST_F(DuelTest, TheRefusalOverAnOkThatIsNotEnabledYetLeavesItSo) {
    Start();
    AnswerIn(100, Answer::kYes);
    clock.In(500, [this] { game.round.ClickDuel(); });
    AnswerIn(600, Answer::kOk);
    clock.In(601, [this] { EXPECT_FALSE(window.Of(ButtonOf(Answer::kOk)).enabled); });
    AnswerIn(6000, Answer::kOk);
    Click(CommandButton::kShow);
    EXPECT_FALSE(global.Settings.GameInProgress);
}

TEST_F(DuelTest, TheRefusalOverTheVerdictPutsTheVerdictBack) {
    global.Settings.BestOf = 1;
    WinTurn(1);
    Start();
    Guess({4, 4, 5, 6});
    Place({1, 1, 2, 3});
    const std::int64_t begin = clock.Now();
    AnswerIn(5000, Answer::kOk);
    clock.In(6000, [this] { game.round.ClickDuel(); });
    AnswerIn(6100, Answer::kOk);
    clock.In(6200, [this] {
        EXPECT_EQ(Panel(), "Well done Anna / you won the Mind Duel. /  / ");
        EXPECT_EQ(State(), "1 1 1 2");
    });
    AnswerIn(7000, Answer::kOk);
    Click(CommandButton::kCheck);
    EXPECT_EQ(clock.Now() - begin, 7000);
    EXPECT_EQ(State(), "0 1 0 0");
}

TEST_F(DuelTest, TheDuelButtonPressedWhileTheCodeIsCoveredRefusesOnceStartHasEnded) {
    NextCode({1, 1, 2, 3});
    clock.In(200, [this] { game.round.ClickDuel(); });
    AnswerIn(700, Answer::kOk);
    Click(CommandButton::kStart);
    EXPECT_EQ(Texts(),
              "text: yellow \"- Mind Duel -\" grey \"Round: 1/2\" yellow \"Anna: Guess=0\" "
              "grey \"Ben: Guess=0\"\n"
              "text: yellow \"- Reset Mind Duel -\" grey \"Sorry, not during play !\" - -\n"
              "text: yellow \"- Mind Duel -\" grey \"Round: 1/2\" yellow \"Anna: Guess=0\" "
              "grey \"Ben: Guess=0\"\n");
}

TEST_F(DuelTest, TheDuelButtonPressedWhileTheLastMarksAreShownIsForgotten) {
    Start();
    Place({1, 1, 2, 3});
    clock.In(600, [this] { game.round.ClickDuel(); });
    AnswerIn(6000, Answer::kOk);
    Click(CommandButton::kCheck);
    EXPECT_EQ(Texts().find("Reset"), std::string::npos);
}

TEST_F(DuelTest, TheDuelButtonPressedJustBeforeTheVerdictIsForgotten) {
    global.Settings.Round = 1;
    global.Settings.PlrTrn = 2;
    Start();
    Place({1, 1, 2, 3});
    AnswerIn(5000, Answer::kOk);
    clock.In(5100, [this] {
        log.Add("pressed");
        game.round.ClickDuel();
    });
    AnswerIn(7000, Answer::kOk);
    log.Clear();
    Click(CommandButton::kCheck);
    EXPECT_LT(log.Text().find("pressed"), log.Text().find("Well done Anna"));
    EXPECT_EQ(log.Text().find("Reset"), std::string::npos);
    EXPECT_EQ(State(), "0 1 0 0");
}

TEST_F(DuelTest, CountsThatAreStoredAtTheirLimitStayThere) {
    global.Settings.Round = 255;
    global.Settings.PlrTrn = 2;
    global.Settings.PlrPos[2] = 255;
    Start();
    Place({1, 1, 2, 3});
    AnswerIn(5000, Answer::kOk);
    AnswerIn(7000, Answer::kOk);
    Click(CommandButton::kCheck);
    EXPECT_NE(log.Text().find("\"Round: 255/2\""), std::string::npos);
    EXPECT_EQ(log.Text().find("\"Round: 0/2\""), std::string::npos);
    EXPECT_EQ(log.Text().find("\"Ben: Guess=0\""), std::string::npos);
    EXPECT_NE(log.Text().find("Well done Anna"), std::string::npos);
    EXPECT_EQ(State(), "0 1 0 0");
}

TEST_F(DuelTest, AGivenUpGameRaisesNoCountBeyondItsLimit) {
    global.Settings.PlrPos[1] = 250;
    Start();
    AnswerIn(500, Answer::kYes);
    AnswerIn(20000, Answer::kOk);
    Click(CommandButton::kShow);
    EXPECT_EQ(State(), "0 2 255 0");
}

TEST_F(DuelTest, AMatchThatHasPassedItsLengthEndsWithTheTurn) {
    global.Settings.Round = 3;
    global.Settings.PlrTrn = 2;
    WinTurn(1, {5000, 7000});
    EXPECT_EQ(State(), "0 1 0 0");
}

TEST_F(DuelTest, SwitchedOffItNeitherCountsNorSpeaks) {
    global.Settings.MindDuel = false;
    WinTurn(2);
    EXPECT_EQ(State(), "0 1 0 0");
}

TEST_F(DuelTest, SwitchedOffAGivenUpGameCostsNobodyAGuess) {
    WinTurn(2);
    global.Settings.MindDuel = false;
    Start();
    GiveUp();
    EXPECT_EQ(State(), "0 2 2 0");
}

TEST_F(DuelTest, SwitchedOffAndOnAgainTheMatchGoesOn) {
    WinTurn(1);
    global.Settings.MindDuel = false;
    WinTurn(3);
    global.Settings.MindDuel = true;
    Start();
    EXPECT_EQ(Panel(), "*- Mind Duel - / Round: 1/2 / Anna: Guess=1 / *Ben: Guess=0");
}

TEST_F(DuelTest, TheOpponentSetsTheCodeByHandBeforeTheStatusIsShown) {
    global.Settings.SetColor = true;
    SetCodeByHand({4, 3, 2, 1});
    Click(CommandButton::kStart);
    EXPECT_EQ(
        Texts(),
        "text: grey \"Please set your color combi-\" grey \"nation.Press ok when done.\" - -\n"
        "text: yellow \"- Mind Duel -\" grey \"Round: 1/2\" yellow \"Anna: Guess=0\" "
        "grey \"Ben: Guess=0\"\n");
    EXPECT_EQ(global.SecretCode, RowOfPegs({4, 3, 2, 1, 0, 0}));
}

}  // namespace
}  // namespace quendrel::test
