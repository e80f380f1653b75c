// What a player who listens with a screen reader is told, in order.
#include "GameFixture.h"

namespace quendrel::test {
namespace {

constexpr const char* kPlaying = "Game in progress...\n";
constexpr const char* kWelcome = "Welcome to Quendrel v1.0 from Brimwell\n";
constexpr const char* kWon = "Congratulations! you made it. Press ok when done!\n";
constexpr const char* kCode = "The code is Yellow, Yellow, Blue, Red\n";

class Announcements : public GameFixture {
protected:
    /// What has been said since the last call.
    std::string Said() { return std::exchange(window.said, {}); }

    void Start() { StartWithCode({1, 1, 2, 3}); }

    std::string NameOfHole(int column) {
        return window.Of({Controls::lblActiveRow, column}).spokenName;
    }

    void PlayDuel() {
        global.Settings.MindDuel = true;
        global.Settings.PlayerNames = OneBased<std::string, 2>({"Anna", "Ben"});
        global.Settings.BestOf = 1;
    }
};

TEST_F(Announcements, AWonGameIsToldFromItsStartToItsEnd) {
    Start();
    EXPECT_EQ(Said(), kPlaying);
    Guess({1, 2, 1, 1});
    EXPECT_EQ(Said(), "Row 1: Yellow, Blue, Yellow, Yellow; 1 black, 2 white\n");
    Guess({4, 4, 5, 6});
    EXPECT_EQ(Said(), "Row 2: Green, Green, White, Black; no marks\n");
    WinWith({1, 1, 2, 3});
    EXPECT_EQ(Said(),
              "Row 3: Yellow, Yellow, Blue, Red; 4 black\n" + std::string(kWon) + kCode + kWelcome);
}

TEST_F(Announcements, ALostGameIsToldToItsEnd) {
    Start();
    Miss(9);
    Said();
    Lose();
    EXPECT_EQ(Said(),
              "Row 10: Green, White, White, Green; no marks\n"
              "Sorry, no luck this time.\n"
              "Here is the correct row. Press ok when done.\n" +
                  std::string(kCode) + kWelcome);
}

TEST_F(Announcements, AQuestionIsToldWithItsAnswersAndWhatFollows) {
    Start();
    Said();
    AnswerIn(100, Answer::kNo);
    Click(CommandButton::kShow);
    EXPECT_EQ(Said(), "Show. Are you sure? Yes or No\n" + std::string(kPlaying));
    GiveUp();
    EXPECT_EQ(Said(),
              "Show. Are you sure? Yes or No\n"
              "Here is the correct row. Press ok when done!\n" +
                  std::string(kCode) + kWelcome);
    AnswerIn(100, Answer::kNo);
    Click(CommandButton::kExit);
    EXPECT_EQ(Said(), "Exit. Are you sure? Yes or No\n" + std::string(kWelcome));
    AnswerIn(100, Answer::kYes);
    EXPECT_THROW(Click(CommandButton::kExit), ProgramEnded);
    EXPECT_EQ(Said(), "Exit. Are you sure? Yes or No\nOk, see you later...\n");
}

TEST_F(Announcements, ADuelTellsWhoseTurnItIsAndCountsInTheRow) {
    PlayDuel();
    Start();
    EXPECT_EQ(Said(), "Mind Duel. Round 1 of 1. On turn: Anna, 0 guesses. Ben, 0 guesses\n");
    Guess({1, 2, 1, 1});
    EXPECT_EQ(Said(), "Row 1: Yellow, Blue, Yellow, Yellow; 1 black, 2 white. Anna, 1 guess\n");
    WinWith({1, 1, 2, 3});
    EXPECT_EQ(Said(), "Row 2: Yellow, Yellow, Blue, Red; 4 black. Anna, 2 guesses\n" +
                          std::string(kWon) + kCode + kWelcome);
    Start();
    EXPECT_EQ(Said(), "Mind Duel. Round 1 of 1. On turn: Ben, 0 guesses. Anna, 2 guesses\n");
    AnswerIn(9000, Answer::kOk);
    WinWith({1, 1, 2, 3});
    EXPECT_EQ(Said(), "Row 1: Yellow, Yellow, Blue, Red; 4 black. Ben, 1 guess\n" +
                          std::string(kWon) + kCode + "Well done Ben you won the Mind Duel. Ok\n" +
                          kWelcome);
}

TEST_F(Announcements, TheResetOfAMatchIsAQuestionToo) {
    PlayDuel();
    AnswerIn(100, Answer::kYes);
    game.round.ClickDuel();
    EXPECT_EQ(Said(), "Reset Mind Duel. Are you sure? Yes or No\n" + std::string(kWelcome));
}

TEST_F(Announcements, ACodeOfOnesOwnIsAskedFor) {
    global.Settings.SetColor = true;
    clock.In(100, [this] { EXPECT_EQ(NameOfHole(2), "Code, hole 2: empty"); });
    clock.In(250, [this] { EXPECT_EQ(NameOfHole(2), "Code, hole 2: Blue"); });
    SetCodeByHand({1, 2, 3, 4});
    Click(CommandButton::kStart);
    EXPECT_EQ(Said(),
              "Please set your color combination. Press ok when done.\n" + std::string(kPlaying));
    EXPECT_EQ(NameOfHole(2), "Row 1, hole 2: empty");
    EXPECT_EQ(window.spokenRows, (std::map<int, std::string>{{0, "Code: hidden"}}));
}

TEST_F(Announcements, ACloneTellsWhatTheRowHasThen) {
    Start();
    Guess({1, 2, 1, 1});
    Said();
    Click(CommandButton::kClone);
    EXPECT_EQ(Said(), "Clone. Choose a row!\n");
    EXPECT_EQ(window.Of({Controls::lblCloneRow, 0}).spokenName,
              "Row 1: Yellow, Blue, Yellow, Yellow; 1 black, 2 white");
    game.round.ChooseRow(0);
    EXPECT_EQ(Said(), "Row 2: Yellow, Blue, Yellow, Yellow\n");
    EXPECT_EQ(NameOfHole(2), "Row 2, hole 2: Blue");
}

TEST_F(Announcements, TheHolesAreNamedByWhatIsInThem) {
    Start();
    EXPECT_EQ(NameOfHole(3), "Row 1, hole 3: empty");
    Place({1, 2, 3, 4});
    EXPECT_EQ(NameOfHole(3), "Row 1, hole 3: Red");
    game.pegs.PressHole(3, MouseButton::kRight);
    EXPECT_EQ(NameOfHole(3), "Row 1, hole 3: empty");
    game.pegs.DoubleClickRow();
    EXPECT_EQ(NameOfHole(4), "Row 1, hole 4: empty");
    Guess({1, 2, 3, 4});
    EXPECT_EQ(NameOfHole(4), "Row 2, hole 4: empty");
    Place({1, 2, 3, 4});
    GiveUp();
    EXPECT_EQ(NameOfHole(4), "Row 1, hole 4: empty");
}

TEST_F(Announcements, CheckedRowsAndTheCodeCanBeReadUntilTheGameIsOver) {
    Start();
    Guess({1, 2, 1, 1});
    const std::string first = "Row 1: Yellow, Blue, Yellow, Yellow; 1 black, 2 white";
    EXPECT_EQ(window.spokenRows, (std::map<int, std::string>{{0, "Code: hidden"}, {1, first}}));
    clock.In(4500, [this, first] {
        EXPECT_EQ(window.spokenRows,
                  (std::map<int, std::string>{{0, "Code: Yellow, Yellow, Blue, Red"},
                                              {1, first},
                                              {2, "Row 2: Yellow, Yellow, Blue, Red; 4 black"}}));
    });
    WinWith({1, 1, 2, 3});
    EXPECT_TRUE(window.spokenRows.empty());
}

TEST_F(Announcements, NothingIsSaidWhileNothingHappens) {
    global.Settings.GTimer = true;
    Start();
    Said();
    game.table.Wait(10500);
    EXPECT_EQ(global.ElapsedSeconds, 10);
    EXPECT_EQ(Said(), "");
}

TEST_F(Announcements, TheClockIsSaidWhenItIsAskedFor) {
    game.clock.SayTime();
    EXPECT_EQ(Said(), "The clock is off\n");
    global.Settings.GTimer = true;
    global.ElapsedSeconds = 75;
    game.clock.SayTime();
    EXPECT_EQ(Said(), "Clock: 1 minute 15 seconds\n");
}

TEST_F(Announcements, AColorIsSwitchedOffAndOnWithoutTheMouse) {
    const Control red = ColorButton(3);
    window.SetEnabled(red, true);
    game.pegs.SwitchColor(3);
    EXPECT_FALSE(window.IsEnabled(red));
    game.pegs.SwitchColor(3);
    EXPECT_TRUE(window.IsEnabled(red));
}

}  // namespace
}  // namespace quendrel::test
