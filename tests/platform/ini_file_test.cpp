// The store of text values.
#include <gtest/gtest.h>

#include "platform/IniFile.h"

namespace quendrel::test {
namespace {

TEST(IniFile, AValueIsEverythingAfterTheFirstEqualsSign) {
    const IniFile file("[Duel]\nPlayer1= a = b ; c # d \nPlayer2=\n");
    EXPECT_EQ(file.Read("Duel", "Player1", "missing"), " a = b ; c # d ");
    EXPECT_EQ(file.Read("Duel", "Player2", "missing"), "");
}

TEST(IniFile, AMissingKeyOrSectionGivesTheDefault) {
    const IniFile file("Stray=0\n[Duel]\nPlayer1=Anna\n[Misc]\nGTimer=True\n");
    EXPECT_EQ(file.Read("Duel", "GTimer", "missing"), "missing");
    EXPECT_EQ(file.Read("Skin", "Player1", "missing"), "missing");
    EXPECT_EQ(file.Read("Duel", "Stray", "missing"), "missing");
}

TEST(IniFile, ASectionWithoutANameIsOneOfItsOwn) {
    EXPECT_EQ(IniFile("[Duel]\n[]\nPlayer1=Anna\n").Read("Duel", "Player1", "missing"), "missing");
}

TEST(IniFile, AHeadingThatIsNotClosedBeginsNoSection) {
    EXPECT_EQ(IniFile("[Duel\nPlayer1=Anna\n").Read("Duel", "Player1", "missing"), "missing");
}

TEST(IniFile, SectionsAndKeysAreFoundWithoutRegardToCase) {
    const IniFile file(" [DUEL] \n player1 =Anna\n");
    EXPECT_EQ(file.Read("Duel", "Player1", "missing"), "Anna");
}

TEST(IniFile, ItsLinesHaveTheirNumbersAndSectionsWithoutBlanksAndComments) {
    const std::vector<IniLine> lines =
        IniFile("Stray=0\n\n; mine\n [Duel] \n Player1 = a=b \n# his\nword\n[]\n").Lines();
    const std::vector<IniLine> expected{{1, "", "Stray", "0"},
                                        {4, "Duel", {}, {}},
                                        {5, "Duel", "Player1", " a=b "},
                                        {7, "Duel", "word", {}},
                                        {8, "", {}, {}}};
    EXPECT_EQ(lines, expected);
}

TEST(IniFile, ForeignLineEndsAndAByteOrderMarkAreUnderstood) {
    const IniFile file("\xEF\xBB\xBF[Duel]\r\nPlayer1=Anna\r\n");
    EXPECT_EQ(file.Read("Duel", "Player1", "missing"), "Anna");
}

TEST(IniFile, WhatWasReadComesBackWhateverItsLineEndsAndByteOrderMarksWere) {
    const std::string mark = "\xEF\xBB\xBF";
    const IniFile file(mark + mark + "[Duel]\r\r\nPlayer1=Anna\r\r\r\n" + mark + "Player2=Ben\r");
    EXPECT_EQ(file.Read("Duel", "Player1", "missing"), "Anna");
    EXPECT_EQ(file.Read("Duel", "Player2", "missing"), "Ben");
    EXPECT_EQ(file.Text(), "[Duel]\nPlayer1=Anna\nPlayer2=Ben\n");
    EXPECT_EQ(IniFile("a\rb\r\n").Text(), "a\rb\n");
}

TEST(IniFile, WritingKeepsEverythingThatItDoesNotKnow) {
    IniFile file("; mine\n[Other]\nx = 1\n\n[Duel]\nPlayer1=Anna\nColour=red\n\n[Last]\ny\n");
    file.Write("Duel", "Player1", "Ben");
    file.Write("Duel", "Player2", "Cleo");
    file.Write("Game", "GameMode", "1");
    EXPECT_EQ(file.Text(),
              "; mine\n[Other]\nx = 1\n\n[Duel]\nPlayer1=Ben\nColour=red\nPlayer2=Cleo\n\n[Last]\n"
              "y\n\n[Game]\nGameMode=1\n");
}

TEST(IniFile, AFileWithoutALineFeedAtItsEndIsComplete) {
    IniFile file("[Duel]\nPlayer1=Anna");
    file.Write("Duel", "Player2", "Ben");
    EXPECT_EQ(file.Text(), "[Duel]\nPlayer1=Anna\nPlayer2=Ben\n");
}

TEST(IniFile, AValueThatIsWrittenIsOneLineAndComesBackAsWritten) {
    IniFile file("[Duel]\nPlayer1=Anna\nBestOf=5\n");
    file.Write("Duel", "Player1", "Anna\nBestOf=xyz\n[Game]\r");
    EXPECT_EQ(file.Text(), "[Duel]\nPlayer1=Anna BestOf=xyz [Game] \nBestOf=5\n");
    EXPECT_EQ(file.Read("Duel", "Player1", "missing"), "Anna BestOf=xyz [Game] ");
    EXPECT_EQ(IniFile(file.Text()).Read("Duel", "Player1", "missing"), "Anna BestOf=xyz [Game] ");
    EXPECT_EQ(IniFile(file.Text()).Read("Duel", "BestOf", "missing"), "5");
}

std::string WithoutScale(const std::string& text) {
    IniFile file(text);
    file.Remove("View", "Scale");
    return file.Text();
}

TEST(IniFile, RemovingTakesAKeyAndTheSectionThatItLeavesEmpty) {
    EXPECT_EQ(WithoutScale("[Duel]\nPlayer1=Anna\n\n[view]\n scale = 2\n\n[Misc]\nGTimer=True\n"),
              "[Duel]\nPlayer1=Anna\n\n[Misc]\nGTimer=True\n");
    EXPECT_EQ(WithoutScale("[View]\nScale=2\n\n[Misc]\nGTimer=True\n"), "[Misc]\nGTimer=True\n");
    EXPECT_EQ(WithoutScale("[View]\nScale=2\n[Misc]\nGTimer=True\n"), "[Misc]\nGTimer=True\n");
    EXPECT_EQ(WithoutScale("[Misc]\nGTimer=True\n[View]\nScale=2\n"), "[Misc]\nGTimer=True\n");
    EXPECT_EQ(WithoutScale("[View]\nScale=2\n"), "");
}

TEST(IniFile, RemovingLeavesASectionInWhichThereIsSomethingElse) {
    for (const std::string other : {"Mine=1\n", "; mine\n", "\n\nMine=1\n"}) {
        EXPECT_EQ(WithoutScale("[View]\nScale=2\n" + other), "[View]\n" + other);
    }
    EXPECT_EQ(WithoutScale("[View]\nScale=2\n[View]\nMine=1\n"), "[View]\n[View]\nMine=1\n");
}

TEST(IniFile, RemovingTakesAKeyWhereverItStands) {
    EXPECT_EQ(WithoutScale("[View]\nScale=2\nMine=1\nscale=3\n\n[VIEW]\nScale=1\n\n[Misc]\nA=1\n"),
              "[View]\nMine=1\n\n[Misc]\nA=1\n");
}

TEST(IniFile, RemovingWhatIsNotThereChangesNothing) {
    const std::string text = "[View]\nMine=1\n\n[Duel]\nScale=2\n";
    IniFile file(text);
    file.Remove("View", "Scale");
    file.Remove("Misc", "Scale");
    EXPECT_EQ(file.Text(), text);
}

TEST(IniFile, NoBytesAreAnEmptyStore) {
    EXPECT_EQ(IniFile("").Text(), "");
    EXPECT_EQ(IniFile("").Read("Duel", "Player1", "missing"), "missing");
}

}  // namespace
}  // namespace quendrel::test
