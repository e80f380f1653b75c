// The course of a game, each as one recorded sequence of draws, sounds, waits, texts and button
// states. Between rounds of Easy; the code is drawn by script.
#include "BoardLog.h"
#include "GameFixture.h"
#include "audio/Pause.h"
#include "ui/controls/MouseButton.h"
#include "ui/layout/Control.h"

namespace quendrel::test {
namespace {

class RoundFlow : public GameFixture {
protected:
    std::function<void()> Clicking(CommandButton button) {
        return [this, button] { Click(button); };
    }
};

constexpr int kClosingCovers = 500;

constexpr const char* kBackToIdle =
    "text: grey \"Welcome to\" yellow \"Quendrel v1.0\" grey \"from\" grey \"Brimwell\"\n";

TEST_F(RoundFlow, AWrongRowShowsItsMarksOneByOneAndMovesToTheNextRow) {
    StartWithCode({1, 1, 2, 3});
    Place({1, 2, 1, 1});
    log.Clear();
    Click(CommandButton::kCheck);
    EXPECT_EQ(log.Text(),
              "buttons: none\n"
              "wait 500\n"
              "sound 8\n"
              "mark 1 at 524,544\n"
              "wait 500\n"
              "board at 196,542\n"
              "sound 9\n"
              "mark 2 at 542,542\n"
              "wait 500\n"
              "sound 9\n"
              "mark 2 at 560,540\n"
              "wait 500\n"
              "number 1 at 196,542\n"
              "buttons: Exit About Config Show\n"
              "board at 196,542\n"
              "hole tops: 503 498 493 493 498 503\n"
              "number 2 at 196,509\n"
              "buttons: Exit About Config Show Clone\n");
    EXPECT_EQ(global.ActiveRow, 2);
    EXPECT_EQ(global.GuessRows[1], RowOfPegs({1, 2, 1, 1, 0, 0}));
    EXPECT_EQ(global.ScoreMarks[1], RowOfPegs({1, 2, 2, 0, 0, 0}));
    EXPECT_EQ(global.ActiveRowColors, RowOfPegs());
    EXPECT_FALSE(global.GameBusy);
}

TEST_F(RoundFlow, ARowWithoutAMarkWaitsOnce) {
    StartWithCode({1, 1, 2, 3});
    Place({4, 4, 5, 6});
    log.Clear();
    Click(CommandButton::kCheck);
    EXPECT_EQ(log.Text(),
              "buttons: none\n"
              "wait 500\n"
              "buttons: Exit About Config Show\n"
              "board at 196,542\n"
              "hole tops: 503 498 493 493 498 503\n"
              "number 2 at 196,509\n"
              "buttons: Exit About Config Show Clone\n");
}

TEST_F(RoundFlow, ASolvedRowWins) {
    StartWithCode({1, 1, 2, 3});
    Place({1, 1, 2, 3});
    log.Clear();
    AnswerIn(3300, Answer::kOk);
    Click(CommandButton::kCheck);
    EXPECT_EQ(log.Text(),
              "buttons: none\n"
              "wait 500\n"
              "sound 8\n"
              "mark 1 at 524,544\n"
              "wait 500\n"
              "board at 196,542\n"
              "sound 8\n"
              "mark 1 at 542,542\n"
              "wait 500\n"
              "sound 8\n"
              "mark 1 at 560,540\n"
              "wait 500\n"
              "number 1 at 196,542\n"
              "sound 8\n"
              "mark 1 at 578,540\n"
              "wait 500\n"
              "text: grey \"Congratulations! you made it.\" "
              "grey \"Press ok when done!\" - -\n"
              "cmdInput(2) at 100,65 enabled\n"
              "sound 5\n" +
                  Frames(1, 9, "wait 40\n", {1, 1, 2, 3}) + Frame(10, {1, 1, 2, 3}) +
                  "wait 140\n"
                  "board at 196,542\n"
                  "wait 300\n"
                  "player: Ok\n"
                  "cmdInput(2) hidden\n" +
                  kBackToIdle +
                  "board at 196,542\n"
                  "modes: Easy Medium Hard\n"
                  "buttons: Exit About Config Start\n"
                  "holes: none\n");
}

TEST_F(RoundFlow, TheLastRowWithoutSuccessLosesTheGame) {
    StartWithCode({1, 1, 2, 3});
    for (int row = 1; row <= 9; ++row) Guess({4, 4, 5, 6});
    Place({4, 4, 5, 6});
    log.Clear();
    AnswerIn(7600, Answer::kOk);
    clock.In(7599, [this] { EXPECT_EQ(global.ActiveRow, 10); });
    Click(CommandButton::kCheck);
    EXPECT_EQ(log.Text(),
              "buttons: none\n"
              "wait 500\n"
              "sound 10\n"
              "text: - grey \"Sorry, no luck this time.\" - -\n"
              "wait 500\n"
              "board at 196,245\n"
              "wait 1000\n"
              "number 10 at 196,245\n"
              "wait 1000\n"
              "board at 196,245\n"
              "text: grey \"Here is the correct row.\" grey \"Press ok when done.\" - -\n"
              "cmdInput(2) at 100,65 disabled\n"
              "wait 1000\n"
              "number 10 at 196,245\n"
              "sound 3\n"
              "color 1 frame 1 at 218,51\n"
              "wait 40\n"
              "color 1 frame 2 at 218,51\n"
              "wait 40\n"
              "color 1 frame 3 at 218,51\n"
              "wait 40\n"
              "color 1 frame 4 at 218,51\n"
              "wait 40\n"
              "color 1 frame 5 at 218,51\n"
              "wait 40\n"
              "color 1 frame 6 at 218,51\n"
              "wait 40\n"
              "color 1 frame 7 at 218,51\n"
              "wait 40\n"
              "color 1 frame 8 at 218,51\n"
              "wait 40\n"
              "color 1 frame 9 at 218,51\n"
              "wait 40\n"
              "color 1 frame 10 at 218,51\n"
              "wait 290\n"
              "sound 3\n"
              "color 1 frame 1 at 268,46\n"
              "wait 40\n"
              "color 1 frame 2 at 268,46\n"
              "wait 40\n"
              "color 1 frame 3 at 268,46\n"
              "wait 40\n"
              "color 1 frame 4 at 268,46\n"
              "wait 40\n"
              "color 1 frame 5 at 268,46\n"
              "wait 40\n"
              "color 1 frame 6 at 268,46\n"
              "wait 40\n"
              "color 1 frame 7 at 268,46\n"
              "wait 40\n"
              "color 1 frame 8 at 268,46\n"
              "wait 40\n"
              "color 1 frame 9 at 268,46\n"
              "wait 30\n"
              "board at 196,245\n"
              "wait 10\n"
              "color 1 frame 10 at 268,46\n"
              "wait 290\n"
              "sound 3\n"
              "color 2 frame 1 at 318,41\n"
              "wait 40\n"
              "color 2 frame 2 at 318,41\n"
              "wait 40\n"
              "color 2 frame 3 at 318,41\n"
              "wait 40\n"
              "color 2 frame 4 at 318,41\n"
              "wait 40\n"
              "color 2 frame 5 at 318,41\n"
              "wait 40\n"
              "color 2 frame 6 at 318,41\n"
              "wait 40\n"
              "color 2 frame 7 at 318,41\n"
              "wait 40\n"
              "color 2 frame 8 at 318,41\n"
              "wait 40\n"
              "color 2 frame 9 at 318,41\n"
              "wait 40\n"
              "color 2 frame 10 at 318,41\n"
              "wait 290\n"
              "sound 3\n"
              "color 3 frame 1 at 368,41\n"
              "wait 40\n"
              "color 3 frame 2 at 368,41\n"
              "wait 10\n"
              "number 10 at 196,245\n"
              "wait 30\n"
              "color 3 frame 3 at 368,41\n"
              "wait 40\n"
              "color 3 frame 4 at 368,41\n"
              "wait 40\n"
              "color 3 frame 5 at 368,41\n"
              "wait 40\n"
              "color 3 frame 6 at 368,41\n"
              "wait 40\n"
              "color 3 frame 7 at 368,41\n"
              "wait 40\n"
              "color 3 frame 8 at 368,41\n"
              "wait 40\n"
              "color 3 frame 9 at 368,41\n"
              "wait 40\n"
              "color 3 frame 10 at 368,41\n"
              "wait 290\n"
              "cmdInput(2) at 100,65 enabled\n"
              "wait 400\n"
              "board at 196,245\n"
              "wait 600\n"
              "player: Ok\n"
              "cmdInput(2) hidden\n"
              "text: grey \"Welcome to\" yellow \"Quendrel v1.0\" grey \"from\" grey \"Brimwell\"\n"
              "board at 196,245\n"
              "modes: Easy Medium Hard\n"
              "buttons: Exit About Config Start\n"
              "holes: none\n");
}

TEST_F(RoundFlow, ShowAnsweredWithNoPutsTheGameBack) {
    StartWithCode({1, 1, 2, 3});
    Place({4, 4, 5, 6});
    log.Clear();
    AnswerIn(700, Answer::kNo);
    Click(CommandButton::kShow);
    EXPECT_EQ(log.Text(),
              "buttons: none\n"
              "text: yellow \"- Show -\" grey \"Are you sure ?\" - -\n"
              "cmdInput(0) at 75,65 enabled\n"
              "cmdInput(1) at 120,65 enabled\n"
              "wait 700\n"
              "player: No\n"
              "cmdInput(0) hidden\n"
              "cmdInput(1) hidden\n"
              "text: - grey \"Game in progress...\" - -\n"
              "buttons: Exit About Config Show Check\n");
    EXPECT_FALSE(global.GameBusy);
    EXPECT_TRUE(global.Settings.GameInProgress);
}

TEST_F(RoundFlow, ShowAnsweredWithYesUncoversTheCodePegByPegAndEndsTheRound) {
    StartWithCode({1, 1, 2, 3});
    log.Clear();
    GiveUp();
    EXPECT_EQ(log.Text(),
              "buttons: none\n"
              "text: yellow \"- Show -\" grey \"Are you sure ?\" - -\n"
              "cmdInput(0) at 75,65 enabled\n"
              "cmdInput(1) at 120,65 enabled\n"
              "wait 100\n"
              "player: Yes\n"
              "cmdInput(0) hidden\n"
              "cmdInput(1) hidden\n"
              "text: grey \"Here is the correct row.\" grey \"Press ok when done!\" - -\n"
              "cmdInput(2) at 100,65 disabled\n"
              "wait 900\n"
              "board at 196,542\n"
              "wait 100\n"
              "sound 3\n"
              "color 1 frame 1 at 218,51\n"
              "wait 40\n"
              "color 1 frame 2 at 218,51\n"
              "wait 40\n"
              "color 1 frame 3 at 218,51\n"
              "wait 40\n"
              "color 1 frame 4 at 218,51\n"
              "wait 40\n"
              "color 1 frame 5 at 218,51\n"
              "wait 40\n"
              "color 1 frame 6 at 218,51\n"
              "wait 40\n"
              "color 1 frame 7 at 218,51\n"
              "wait 40\n"
              "color 1 frame 8 at 218,51\n"
              "wait 40\n"
              "color 1 frame 9 at 218,51\n"
              "wait 40\n"
              "color 1 frame 10 at 218,51\n"
              "wait 290\n"
              "sound 3\n"
              "color 1 frame 1 at 268,46\n"
              "wait 40\n"
              "color 1 frame 2 at 268,46\n"
              "wait 40\n"
              "color 1 frame 3 at 268,46\n"
              "wait 40\n"
              "color 1 frame 4 at 268,46\n"
              "wait 40\n"
              "color 1 frame 5 at 268,46\n"
              "wait 40\n"
              "color 1 frame 6 at 268,46\n"
              "wait 40\n"
              "color 1 frame 7 at 268,46\n"
              "wait 10\n"
              "number 1 at 196,542\n"
              "wait 30\n"
              "color 1 frame 8 at 268,46\n"
              "wait 40\n"
              "color 1 frame 9 at 268,46\n"
              "wait 40\n"
              "color 1 frame 10 at 268,46\n"
              "wait 290\n"
              "sound 3\n"
              "color 2 frame 1 at 318,41\n"
              "wait 40\n"
              "color 2 frame 2 at 318,41\n"
              "wait 40\n"
              "color 2 frame 3 at 318,41\n"
              "wait 40\n"
              "color 2 frame 4 at 318,41\n"
              "wait 40\n"
              "color 2 frame 5 at 318,41\n"
              "wait 40\n"
              "color 2 frame 6 at 318,41\n"
              "wait 40\n"
              "color 2 frame 7 at 318,41\n"
              "wait 40\n"
              "color 2 frame 8 at 318,41\n"
              "wait 40\n"
              "color 2 frame 9 at 318,41\n"
              "wait 40\n"
              "color 2 frame 10 at 318,41\n"
              "wait 240\n"
              "board at 196,542\n"
              "wait 50\n"
              "sound 3\n"
              "color 3 frame 1 at 368,41\n"
              "wait 40\n"
              "color 3 frame 2 at 368,41\n"
              "wait 40\n"
              "color 3 frame 3 at 368,41\n"
              "wait 40\n"
              "color 3 frame 4 at 368,41\n"
              "wait 40\n"
              "color 3 frame 5 at 368,41\n"
              "wait 40\n"
              "color 3 frame 6 at 368,41\n"
              "wait 40\n"
              "color 3 frame 7 at 368,41\n"
              "wait 40\n"
              "color 3 frame 8 at 368,41\n"
              "wait 40\n"
              "color 3 frame 9 at 368,41\n"
              "wait 40\n"
              "color 3 frame 10 at 368,41\n"
              "wait 290\n"
              "cmdInput(2) at 100,65 enabled\n"
              "wait 300\n"
              "number 1 at 196,542\n"
              "wait 1000\n"
              "board at 196,542\n"
              "wait 1000\n"
              "player: Ok\n"
              "cmdInput(2) hidden\n"
              "text: grey \"Welcome to\" yellow \"Quendrel v1.0\" grey \"from\" grey \"Brimwell\"\n"
              "board at 196,542\n"
              "modes: Easy Medium Hard\n"
              "buttons: Exit About Config Start\n"
              "holes: none\n");
}

TEST_F(RoundFlow, ThePlayerSetsTheCodeByHand) {
    global.Settings.SetColor = true;
    clock.In(150, [this] { Place({1, 1, 2}); });
    clock.In(200, [this] { Place({1, 1, 2, 3}); });
    AnswerIn(300, Answer::kOk);
    Click(CommandButton::kStart);
    EXPECT_EQ(
        log.Text(),
        std::string(
            "buttons: Exit About Config\n"
            "modes: none\n"
            "sweep lines 122\n"
            "stand still 20\n"
            "sweep lines 122\n"
            "stand still 20\n"
            "sweep lines 122\n"
            "stand still 20\n"
            "sweep lines 122\n"
            "stand still 20\n"
            "sweep lines 122\n"
            "stand still 20\n"
            "hole tops: 536 531 526 526 531 536\n"
            "holes: 1 2 3 4\n"
            "buttons: none\n"
            "hole tops: 51 46 41 41 46 51\n"
            "number 0 at 196,57\n"
            "text: grey \"Please set your color combi-\" grey \"nation.Press ok when done.\" - -\n"
            "cmdInput(2) at 100,65 disabled\n"
            "wait 50\n"
            "hold the pointer in cmdColBtn(0)\n"
            "sound 1\n"
            "hold cmdColBtn(0)\n"
            "sound 7\n"
            "peg 1 at 218,51\n"
            "cmdInput(2) at 100,65 disabled\n"
            "sound 7\n"
            "peg 1 at 268,46\n"
            "cmdInput(2) at 100,65 disabled\n"
            "hold the pointer in cmdColBtn(1)\n"
            "sound 1\n"
            "let go cmdColBtn(0)\n"
            "hold cmdColBtn(1)\n"
            "sound 7\n"
            "peg 2 at 318,41\n"
            "cmdInput(2) at 100,65 disabled\n"
            "wait 50\n"
            "hold the pointer in cmdColBtn(0)\n"
            "sound 1\n"
            "let go cmdColBtn(1)\n"
            "hold cmdColBtn(0)\n"
            "peg 1 at 218,51\n"
            "cmdInput(2) at 100,65 disabled\n"
            "peg 1 at 268,46\n"
            "cmdInput(2) at 100,65 disabled\n"
            "hold the pointer in cmdColBtn(1)\n"
            "sound 1\n"
            "let go cmdColBtn(0)\n"
            "hold cmdColBtn(1)\n"
            "peg 2 at 318,41\n"
            "cmdInput(2) at 100,65 disabled\n"
            "hold the pointer in cmdColBtn(2)\n"
            "sound 1\n"
            "let go cmdColBtn(1)\n"
            "hold cmdColBtn(2)\n"
            "sound 7\n"
            "peg 3 at 368,41\n"
            "cmdInput(2) at 100,65 enabled\n"
            "wait 100\n"
            "player: Ok\n"
            "holes: none\n"
            "board at 196,57\n"
            "sound 4 alone\n") +
            Frames(10, 1, "wait 50\n", {1, 1, 2, 3}) + Frame(10, Empty(4)) +
            "cmdInput(2) hidden\n"
            "hole tops: 536 531 526 526 531 536\n"
            "holes: 1 2 3 4\n"
            "buttons: Exit About Config\n"
            "text: - grey \"Game in progress...\" - -\n"
            "number 1 at 196,542\n");
}

TEST_F(RoundFlow, ShowStaysDarkWhereThePlayerHasSetTheCode) {
    global.Settings.SetColor = true;
    SetCodeByHand({1, 1, 2, 3});
    Click(CommandButton::kStart);
    Place({4, 4, 5, 6});
    log.Clear();
    Click(CommandButton::kCheck);
    EXPECT_EQ(log.LinesFrom("buttons: "),
              "buttons: none\n"
              "buttons: Exit About Config\n"
              "buttons: Exit About Config Clone\n");
}

TEST_F(RoundFlow, AboutAndHighOpenTheirWindows) {
    global.Settings.GTimer = true;
    game.table.buttons.SetButtonStates(kIdle);
    log.Clear();
    Click(CommandButton::kAbout);
    EXPECT_EQ(log.Text(), "about\n");
    log.Clear();
    Click(CommandButton::kHigh);
    EXPECT_EQ(log.Text(), "highscores\n");
}

TEST_F(RoundFlow, EveryQuestionOfExitWaitsForAnAnswerOfItsOwn) {
    for (int time = 1; time <= 2; ++time) WaitsFor(Answer::kNo, Clicking(CommandButton::kExit));
}

TEST_F(RoundFlow, EveryQuestionOfShowWaitsForAnAnswerOfItsOwn) {
    for (int time = 1; time <= 2; ++time) {
        StartWithCode({1, 1, 2, 3});
        for (int question = 1; question <= 2; ++question)
            WaitsFor(Answer::kNo, Clicking(CommandButton::kShow));
        AnswerIn(100, Answer::kYes);
        WaitsFor(Answer::kOk, Clicking(CommandButton::kShow));
    }
}

TEST_F(RoundFlow, EveryWinWaitsForAnOkOfItsOwn) {
    for (int time = 1; time <= 2; ++time) {
        StartWithCode({1, 1, 2, 3});
        Place({1, 1, 2, 3});
        WaitsFor(Answer::kOk, Clicking(CommandButton::kCheck));
    }
}

TEST_F(RoundFlow, EveryLossWaitsForAnOkOfItsOwn) {
    for (int time = 1; time <= 2; ++time) {
        StartWithCode({1, 1, 2, 3});
        Miss(9);
        Place({4, 4, 5, 6});
        WaitsFor(Answer::kOk, Clicking(CommandButton::kCheck));
    }
}

TEST_F(RoundFlow, EveryCodeSetByHandWaitsForAnOkOfItsOwn) {
    global.Settings.SetColor = true;
    for (int time = 1; time <= 2; ++time) {
        clock.In(200, [this] { Place({1, 1, 2, 3}); });
        WaitsFor(Answer::kOk, Clicking(CommandButton::kStart), kClosingCovers);
        Place({1, 1, 2, 3});
        WaitsFor(Answer::kOk, Clicking(CommandButton::kCheck));
    }
}

TEST_F(RoundFlow, HolesAreDeafWhileShowAsksAndUncovers) {
    StartWithCode({1, 1, 2, 3});
    Place({4, 4, 5, 6});
    log.Clear();
    for (const int time : {50, 2000}) {
        clock.In(time, [this] { game.pegs.PressHole(1, MouseButton::kRight); });
    }
    GiveUp();
    EXPECT_EQ(log.Text().find("peg"), std::string::npos);
}

TEST_F(RoundFlow, ExitAnsweredWithNoPutsEverythingBack) {
    AnswerIn(100, Answer::kNo);
    Click(CommandButton::kExit);
    EXPECT_EQ(log.Text(),
              "buttons: none\n"
              "text: yellow \"- Exit -\" grey \"Are you sure ?\" - -\n"
              "cmdInput(0) at 75,65 enabled\n"
              "cmdInput(1) at 120,65 enabled\n"
              "wait 100\n"
              "player: No\n"
              "cmdInput(0) hidden\n"
              "cmdInput(1) hidden\n"
              "text: grey \"Welcome to\" yellow \"Quendrel v1.0\" grey \"from\" grey \"Brimwell\"\n"
              "buttons: Exit About Config Start\n");
}

TEST_F(RoundFlow, ExitAnsweredWithYesSavesAndEndsTheProgram) {
    AnswerIn(100, Answer::kYes);
    EXPECT_THROW(Click(CommandButton::kExit), ProgramEnded);
    EXPECT_EQ(log.Text(),
              "buttons: none\n"
              "text: yellow \"- Exit -\" grey \"Are you sure ?\" - -\n"
              "cmdInput(0) at 75,65 enabled\n"
              "cmdInput(1) at 120,65 enabled\n"
              "wait 100\n"
              "player: Yes\n"
              "cmdInput(0) hidden\n"
              "cmdInput(1) hidden\n"
              "text: - grey \"Ok, see you later...\" - -\n"
              "wait 1500\n"
              "save\n");
}

TEST_F(RoundFlow, ConfigurationThatChangesNothingSetsDuelAndClockByTheirSettings) {
    Click(CommandButton::kConfig);
    EXPECT_EQ(log.Text(),
              "configure\n"
              "cmdDuelBtn hidden\n"
              "buttons: Exit About Config Start\n"
              "cmdTmrBtn hidden\n"
              "lblGTimer hidden\n");
}

TEST_F(RoundFlow, ClockAndDuelChosenInTheConfigurationAreOnTheConsoleAfterwards) {
    configure = [this] {
        global.Settings.GTimer = true;
        global.Settings.MindDuel = true;
    };
    Click(CommandButton::kConfig);
    EXPECT_TRUE(window.Of({Controls::cmdDuelBtn}).enabled);
    EXPECT_TRUE(window.Of({Controls::cmdTmrBtn}).enabled);
    EXPECT_EQ(window.Of({Controls::cmdTmrBtn}).left, 32);
    EXPECT_TRUE(window.Of({Controls::lblGTimer}).visible);
    EXPECT_TRUE(window.Of(ButtonOf(CommandButton::kHigh)).enabled);
    configure = [this] { global.Settings.GTimer = false; };
    Click(CommandButton::kConfig);
    EXPECT_EQ(window.Of({Controls::cmdTmrBtn}).left, 57);
    EXPECT_FALSE(window.Of(ButtonOf(CommandButton::kHigh)).enabled);
}

TEST_F(RoundFlow, AClockSwitchedOffInTheMiddleOfAGameHasTakenNoTime) {
    global.Settings.GTimer = true;
    StartWithCode({1, 1, 2, 3});
    Pause(clock, 2500, true);
    EXPECT_EQ(global.ElapsedSeconds, 2);
    configure = [this] { global.Settings.GTimer = false; };
    Click(CommandButton::kConfig);
    Pause(clock, 5000, true);
    EXPECT_EQ(global.ElapsedSeconds, 0);
}

TEST_F(RoundFlow, AnotherSkinIsPutOnAndTheIdleBoardPreparedAgain) {
    global.SkinNames = {"Atelier", "Beacon"};
    configure = [this] { global.Settings.SkinPtr = 2; };
    Click(CommandButton::kConfig);
    const std::string text = log.Text();
    EXPECT_EQ(text.substr(text.find("repaint"), 35), "repaint the window\nsweep lines 122\n");
    EXPECT_EQ(global.Settings.SkinPtr, 2);
}

TEST_F(RoundFlow, DuringAGameAnotherSkinLeavesTheBoardAsItStands) {
    StartWithCode({1, 1, 2, 3});
    global.SkinNames = {"Atelier", "Beacon"};
    configure = [this] { global.Settings.SkinPtr = 2; };
    Click(CommandButton::kConfig);
    const std::string text = log.Text();
    EXPECT_EQ(text.substr(text.find("repaint")), "repaint the window\n");
}

TEST_F(RoundFlow, ADamagedSkinIsNotPutOnAndTheOldOneStaysChosen) {
    global.SkinNames = {"Atelier", "Beacon"};
    global.SkinFolder = "/game\\Skin\\";
    reader.missing = "/game/Skin/Beacon/High/High.bmp";
    configure = [this] { global.Settings.SkinPtr = 2; };
    Click(CommandButton::kConfig);
    EXPECT_EQ(global.Settings.SkinPtr, 1);
    EXPECT_EQ(log.LinesFrom("trouble: "),
              "trouble: The skin \"Beacon\" is damaged: /game/Skin/Beacon/High/High.bmp: "
              "No such file or directory\n");
}

TEST_F(RoundFlow, PlayingMusicStopsOnceEverythingIsSaved) {
    global.PlayState = PlayStates::kPlaying;
    AnswerIn(100, Answer::kYes);
    EXPECT_THROW(Click(CommandButton::kExit), ProgramEnded);
    const std::string text = log.Text();
    EXPECT_EQ(text.substr(text.find("wait 1500\n")),
              "wait 1500\nsave\nseed\nmidi: stop\nmidi: close\n");
}

TEST_F(RoundFlow, ASecondGameStartsOnTheFirstRowAgain) {
    StartWithCode({1, 1, 2, 3});
    Guess({4, 4, 5, 6});
    GiveUp();
    log.Clear();
    NextCode({2, 3, 4, 5});
    Click(CommandButton::kStart);
    EXPECT_EQ(log.Text(), StartByComputer(4));
    EXPECT_EQ(global.ActiveRow, 1);
    EXPECT_EQ(global.SecretCode, RowOfPegs({2, 3, 4, 5, 0, 0}));
    EXPECT_EQ(global.GuessRows, BoardOfPegs());
    EXPECT_EQ(global.ScoreMarks, BoardOfPegs());
}

TEST_F(RoundFlow, TheRoundEndsWithTheFinishedRowsAndTheCoveredCodeInThePicture) {
    StartWithCode({1, 1, 2, 3});
    Guess({4, 4, 5, 6});
    GiveUp();
    EXPECT_EQ(Describe(window.Image().At(240, 64)), "color 0 frame 10");
    EXPECT_EQ(Describe(window.Image().At(240, 549)), "peg 4");
    EXPECT_FALSE(global.Settings.GameInProgress);
    EXPECT_FALSE(global.DemoStop);
}

TEST_F(RoundFlow, AClickWhileTheCodeIsCoveredIsObeyedOnceStartHasEnded) {
    NextCode({1, 1, 2, 3});
    clock.In(201, [this] { Click(CommandButton::kShow); });
    AnswerIn(700, Answer::kNo);
    Click(CommandButton::kStart);
    const std::string text = log.Text();
    EXPECT_EQ(text.substr(text.find("text: ")),
              "text: - grey \"Game in progress...\" - -\n"
              "number 1 at 196,542\n"
              "buttons: none\n"
              "text: yellow \"- Show -\" grey \"Are you sure ?\" - -\n"
              "cmdInput(0) at 75,65 enabled\n"
              "cmdInput(1) at 120,65 enabled\n"
              "wait 100\n"
              "player: No\n"
              "cmdInput(0) hidden\n"
              "cmdInput(1) hidden\n"
              "text: - grey \"Game in progress...\" - -\n"
              "buttons: Exit About Config Show\n");
}

TEST_F(RoundFlow, OfSeveralClicksWhileTheCodeIsCoveredTheLastCounts) {
    NextCode({1, 1, 2, 3});
    clock.In(201, [this] { Click(CommandButton::kShow); });
    clock.In(202, [this] { Click(CommandButton::kConfig); });
    clock.In(9000, [this] { game.table.inputBar.Click(Answer::kNo); });
    Click(CommandButton::kStart);
    EXPECT_EQ(log.Text().find("- Show -"), std::string::npos);
    EXPECT_NE(log.Text().find("number 1 at 196,542\nconfigure\n"), std::string::npos);
}

TEST_F(RoundFlow, ARememberedClickOnAButtonThatIsDisabledByThenIsNotObeyed) {
    StartWithCode({1, 1, 2, 3});
    Place({4, 4, 5, 6});
    log.Clear();
    clock.In(100, [this] { Click(CommandButton::kCheck); });
    Click(CommandButton::kCheck);
    EXPECT_EQ(global.ActiveRow, 2);
    EXPECT_EQ(log.Text().find("buttons: none", 20), std::string::npos);
}

TEST_F(RoundFlow, AHolePressedWithTheOkOfTheCodeEntryNoLongerReachesTheCode) {
    global.Settings.SetColor = true;
    clock.In(200, [this] { Place({1, 1, 2, 3}); });
    clock.In(300, [this] {
        game.table.inputBar.Click(Answer::kOk);
        game.pegs.PressHole(1, MouseButton::kRight);
        game.pegs.PressHole(2, MouseButton::kLeft);
        game.pegs.DoubleClickRow();
    });
    Click(CommandButton::kStart);
    EXPECT_EQ(global.SecretCode, RowOfPegs({1, 1, 2, 3, 0, 0}));
    EXPECT_EQ(global.ActiveRowColors, RowOfPegs());
}

TEST_F(RoundFlow, OfTwoAnswersInTheSameMomentTheFirstCounts) {
    StartWithCode({1, 1, 2, 3});
    clock.In(100, [this] {
        game.table.inputBar.Click(Answer::kNo);
        game.table.inputBar.Click(Answer::kYes);
    });
    clock.In(9000, [this] { game.table.inputBar.Click(Answer::kOk); });
    Click(CommandButton::kShow);
    EXPECT_TRUE(global.Settings.GameInProgress);
    EXPECT_EQ(window.Line(2).text, "Game in progress...");
}

TEST_F(RoundFlow, HolesAreDeafWhileARowIsScored) {
    StartWithCode({1, 1, 2, 3});
    Place({4, 4, 5, 6});
    log.Clear();
    clock.In(250, [this] {
        game.pegs.PressHole(1, MouseButton::kLeft);
        game.pegs.PressHole(1, MouseButton::kRight);
        game.pegs.DoubleClickRow();
    });
    Click(CommandButton::kCheck);
    EXPECT_EQ(log.Text().find("peg"), std::string::npos);
    EXPECT_EQ(global.GuessRows[1], RowOfPegs({4, 4, 5, 6, 0, 0}));
}

TEST_F(RoundFlow, AWinWithTheClockOnAndAGoodTimeEntersTheHighscores) {
    global.Settings.GTimer = true;
    global.HighscoreList[kHighscores].Time = 103;  // the game takes 102
    StartWithCode({1, 1, 2, 3});
    global.ElapsedSeconds = 100;
    Place({1, 1, 2, 3});
    AnswerIn(5000, Answer::kOk);
    clock.In(4999, [this] { log.Clear(); });
    Click(CommandButton::kCheck);
    EXPECT_EQ(log.Text(),
              "wait 1\n"
              "player: Ok\n"
              "cmdInput(2) hidden\n"
              "text: yellow \"Well played !\" grey \"You are one of the\" "
              "grey \"10 best players ever.\" grey \"Please enter your name...\"\n"
              "enter highscore\n" +
                  std::string(kBackToIdle) +
                  "board at 196,542\n"
                  "modes: Easy Medium Hard\n"
                  "buttons: Exit About Config High Start\n"
                  "holes: none\n"
                  "lblGTimer \"00:00\"\n");
    EXPECT_EQ(global.ElapsedSeconds, 0);
}

TEST_F(RoundFlow, AWinInTheTimeOfTheTenthEntersNoHighscore) {
    global.Settings.GTimer = true;
    StartWithCode({1, 1, 2, 3});
    global.ElapsedSeconds = 100;
    global.HighscoreList[kHighscores].Time = 102;
    WinWith({1, 1, 2, 3});
    EXPECT_EQ(log.Text().find("highscore"), std::string::npos);
}

TEST_F(RoundFlow, AHighscoreIsPendingNoLongerThanItsWindowIsCalledWhateverBecameOfThat) {
    global.Settings.GTimer = true;
    LetAnyTimeQualify();
    StartWithCode({1, 1, 2, 3});
    WinWith({1, 1, 2, 3});
    EXPECT_NE(log.Text().find("enter highscore\n"), std::string::npos);
    EXPECT_FALSE(global.NewScorePending);
}

TEST_F(RoundFlow, AWinWithoutTheClockNeverAsksForAHighscore) {
    LetAnyTimeQualify();
    StartWithCode({1, 1, 2, 3});
    WinWith({1, 1, 2, 3});
    EXPECT_EQ(log.Text().find("highscore"), std::string::npos);
}

TEST_F(RoundFlow, CloneIsNotOfferedOnTheFirstRow) {
    StartWithCode({1, 1, 2, 3});
    Place({4, 4, 5, 6});
    EXPECT_FALSE(window.Of(ButtonOf(CommandButton::kClone)).enabled);
    Click(CommandButton::kCheck);
    EXPECT_TRUE(window.Of(ButtonOf(CommandButton::kClone)).enabled);
}

TEST_F(RoundFlow, AHolePressedDuringTheExitQuestionChangesNothing) {
    StartWithCode({1, 1, 2, 3});
    Place({4, 4, 5, 6});
    clock.In(50, [this] { game.pegs.PressHole(1, MouseButton::kRight); });
    AnswerIn(100, Answer::kNo);
    Click(CommandButton::kExit);
    EXPECT_TRUE(window.Of(ButtonOf(CommandButton::kCheck)).enabled);
    EXPECT_EQ(global.ActiveRowColors, RowOfPegs({4, 4, 5, 6, 0, 0}));
}

TEST_F(RoundFlow, AFailureInAnyWaitLeavesNoFlagUp) {
    const auto fails = [this](const std::function<void()>& command) {
        clock.In(100, [] { throw std::runtime_error("it went wrong"); });
        EXPECT_THROW(command(), std::runtime_error);
        EXPECT_FALSE(global.GameBusy || global.CodeEntry || game.duel.IsAsking());
    };
    fails([this] { game.round.ClickDuel(); });
    game.table.buttons.SetButtonStates(kIdle);
    fails(Clicking(CommandButton::kExit));
    game.table.buttons.SetButtonStates(kIdle);
    global.Settings.SetColor = true;
    fails(Clicking(CommandButton::kStart));
    global.Settings.SetColor = false;
    game.table.buttons.SetButtonStates(kIdle);
    fails(Clicking(CommandButton::kStart));
    fails(Clicking(CommandButton::kShow));
    game.table.buttons.SetButtonState(CommandButton::kCheck, true);
    fails(Clicking(CommandButton::kCheck));
    game.table.buttons.SetButtonState(CommandButton::kAbout, true);
    log.Clear();
    Click(CommandButton::kAbout);
    EXPECT_EQ(log.Text(), "about\n");
}

}  // namespace
}  // namespace quendrel::test
