// What a screen reader says of the game.
#include "ui/main/Spoken.h"

#include <gtest/gtest.h>

namespace quendrel::test {
namespace {

class Spoken : public ::testing::Test {
protected:
    Spoken() {
        global.Settings.GameMode = 0;
        global.ActiveRow = 3;
        global.ActiveRowColors = RowOfPegs({3, 0, 10, 4, 0, 0});
        global.SecretCode = RowOfPegs({1, 2, 0, 9, 0, 0});
        global.GuessRows[2] = RowOfPegs({3, 2, 2, 4, 0, 0});
    }

    std::string RowWithMarks(const RowOfPegs& marks) {
        global.ScoreMarks[2] = marks;
        return SpokenCheckedRow(global, 2);
    }

    static std::string Panel(const Message& message) { return SpokenMessage(message); }

    Global global;
};

TEST_F(Spoken, AHoleIsNamedByItsRowItsPlaceAndItsColor) {
    EXPECT_EQ(SpokenHole(global, 1), "Row 3, hole 1: Red");
    EXPECT_EQ(SpokenHole(global, 2), "Row 3, hole 2: empty");
    EXPECT_EQ(SpokenHole(global, 3), "Row 3, hole 3: Pink");
}

TEST_F(Spoken, AHoleOfTheCodeThatIsSetIsNamedAsSuch) {
    global.CodeEntry = true;
    EXPECT_EQ(SpokenHole(global, 1), "Code, hole 1: Yellow");
    EXPECT_EQ(SpokenHole(global, 3), "Code, hole 3: empty");
}

TEST_F(Spoken, ACheckedRowEndsWithItsMarks) {
    EXPECT_EQ(RowWithMarks(RowOfPegs({1, 2, 2, 0, 0, 0})),
              "Row 2: Red, Blue, Blue, Green; 1 black, 2 white");
    EXPECT_EQ(RowWithMarks(RowOfPegs({1, 1, 1, 1, 0, 0})),
              "Row 2: Red, Blue, Blue, Green; 4 black");
    EXPECT_EQ(RowWithMarks(RowOfPegs({2, 0, 0, 0, 0, 0})),
              "Row 2: Red, Blue, Blue, Green; 1 white");
    EXPECT_EQ(RowWithMarks({}), "Row 2: Red, Blue, Blue, Green; no marks");
}

TEST_F(Spoken, ARowHasAsManyColorsAsTheModeHasColumns) {
    EXPECT_EQ(SpokenActiveRow(global), "Row 3: Red, empty, Pink, Green");
    global.Settings.GameMode = 2;
    EXPECT_EQ(SpokenActiveRow(global), "Row 3: Red, empty, Pink, Green, empty, empty");
    EXPECT_EQ(SpokenCode(global), "Yellow, Blue, empty, Purple, empty, empty");
}

TEST_F(Spoken, ThePanelIsOneTextWithoutItsOrnaments) {
    EXPECT_EQ(Panel(Message({Grey("Welcome to"), Yellow("Quendrel v1.0"), {}, Grey("Brimwell")})),
              "Welcome to Quendrel v1.0 Brimwell");
    EXPECT_EQ(Panel(Message({Yellow("- Exit -"), Grey("Are you sure ?"), {}, {}})),
              "Exit. Are you sure?");
    EXPECT_EQ(
        Panel(Message(
            {Grey("Please set your color combi-"), Grey("nation.Press ok when done."), {}, {}})),
        "Please set your color combination. Press ok when done.");
    EXPECT_EQ(Panel({}), "");
}

TEST_F(Spoken, TheTimeIsInMinutesAndSeconds) {
    EXPECT_EQ(SpokenTime(0), "0 seconds");
    EXPECT_EQ(SpokenTime(1), "1 second");
    EXPECT_EQ(SpokenTime(59), "59 seconds");
    EXPECT_EQ(SpokenTime(60), "1 minute 0 seconds");
    EXPECT_EQ(SpokenTime(3599), "59 minutes 59 seconds");
    EXPECT_EQ(SpokenTime(3600), "An hour or more");
}

TEST_F(Spoken, OneGuessIsNotGuesses) {
    EXPECT_EQ(SpokenGuesses(0), "0 guesses");
    EXPECT_EQ(SpokenGuesses(1), "1 guess");
    EXPECT_EQ(SpokenGuesses(2), "2 guesses");
}

}  // namespace
}  // namespace quendrel::test
