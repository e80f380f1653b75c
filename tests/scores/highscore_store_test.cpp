// The highscore list and its file.
#include <filesystem>
#include <random>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"
#include "platform/Errors.h"
#include "platform/Files.h"
#include "scores/HighscoreStore.h"

namespace quendrel::test {
namespace {

using namespace std::string_literals;

/// The default list of Easy as it is saved: 3:00, 4:00 ... 12:00.
const std::string kEasyDefaults =
    "\x0D\0Quendrel v1.0\0\0\xB4\0"
    "\x0D\0Quendrel v1.0\0\0\xF0\0"
    "\x0D\0Quendrel v1.0\0\0\x2C\x01"
    "\x0D\0Quendrel v1.0\0\0\x68\x01"
    "\x0D\0Quendrel v1.0\0\0\xA4\x01"
    "\x0D\0Quendrel v1.0\0\0\xE0\x01"
    "\x0D\0Quendrel v1.0\0\0\x1C\x02"
    "\x0D\0Quendrel v1.0\0\0\x58\x02"
    "\x0D\0Quendrel v1.0\0\0\x94\x02"
    "\x0D\0Quendrel v1.0\0\0\xD0\x02"s;

class HighscoreStoreTest : public ::testing::Test {
protected:
    HighscoreStoreTest() {
        global.HighFolder = folder.path() + "\\High\\";
        SetMode(0, "Easy");
    }

    void SetMode(std::uint8_t mode, const std::string& name) {
        global.Settings.GameMode = mode;
        global.HighscoreFile = global.HighFolder + name + ".hsc";
    }

    void WriteEasy(const std::string& bytes) {
        std::filesystem::create_directories(folder.path() + "/High");
        folder.Write("High/Easy.hsc", bytes);
    }
    std::string ReadEasy() const { return folder.Read("High/Easy.hsc"); }

    /// Ten entries of one second each under one name.
    void FillList(const std::string& name) {
        for (int i = 1; i <= 10; ++i) {
            global.HighscoreList[i] = {name, 1, static_cast<std::int16_t>(i)};
        }
    }

    void SetReadOnly(const std::string& name, bool readOnly) const {
        std::filesystem::permissions(folder.path() + "/High/" + name,
                                     std::filesystem::perms(readOnly ? 0444 : 0644));
    }

    /// A list of this mode under one name, which cannot be saved: its file is read-only.
    void FailToSave(std::uint8_t mode, const std::string& modeName, const std::string& name) {
        SetMode(mode, modeName);
        store.LoadHighscores();
        store.SaveHighscores();
        SetReadOnly(modeName + ".hsc", true);
        FillList(name);
        EXPECT_THROW(store.SaveHighscores(), FileError);
    }

    /// The first name in the mode's list as it is loaded.
    std::string Loaded(std::uint8_t mode, const std::string& modeName) {
        SetMode(mode, modeName);
        store.LoadHighscores();
        return global.HighscoreList[1].Name;
    }

    std::string Times() const {
        std::string times;
        for (int i = 1; i <= 10; ++i) times += std::to_string(global.HighscoreList[i].Time) + " ";
        return times;
    }

    TemporaryFolder folder;
    Global global;
    HighscoreStore store{global};
};

TEST_F(HighscoreStoreTest, WithoutAFileTheListIsTheModesDefaults) {
    store.LoadHighscores();
    EXPECT_EQ(Times(), "180 240 300 360 420 480 540 600 660 720 ");
    SetMode(1, "Medium");
    store.LoadHighscores();
    EXPECT_EQ(Times(), "360 420 480 540 600 660 720 780 840 900 ");
    SetMode(2, "Hard");
    store.LoadHighscores();
    EXPECT_EQ(Times(), "540 600 660 720 780 840 900 960 1020 1080 ");
    for (int i = 1; i <= 10; ++i) {
        EXPECT_EQ(global.HighscoreList[i].Name, "Quendrel v1.0");
        EXPECT_EQ(global.HighscoreList[i].Row, 0);
    }
}

TEST_F(HighscoreStoreTest, LoadingMakesNeitherFolderNorFile) {
    store.LoadHighscores();
    EXPECT_FALSE(std::filesystem::exists(folder.path() + "/High"));
}

TEST_F(HighscoreStoreTest, SavingMakesTheFolderAndTheFile) {
    store.LoadHighscores();
    store.SaveHighscores();
    EXPECT_EQ(ReadEasy(), kEasyDefaults);
    EXPECT_EQ(kEasyDefaults.size(), 190U);
}

TEST_F(HighscoreStoreTest, TenEmptyNamesAreSixtyBytes) {
    FillList("");
    store.SaveHighscores();
    EXPECT_EQ(ReadEasy().size(), 60U);
    EXPECT_EQ(ReadEasy().substr(0, 12), "\0\0\x01\0\x01\0\0\0\x01\0\x02\0"s);
}

TEST_F(HighscoreStoreTest, NamesAreWrittenInTheCodePage) {
    FillList("");
    global.HighscoreList[1] = {"Zoé €→", 14, -2};
    store.SaveHighscores();
    EXPECT_EQ(ReadEasy().substr(0, 12), "\x06\0Zo\xE9 \x80?\x0E\0\xFE\xFF"s);
}

TEST_F(HighscoreStoreTest, NamesAreWrittenAsOneLine) {
    FillList("");
    global.HighscoreList[1] = {"An\r\nna\u2028\u0081", 1, 1};
    store.SaveHighscores();
    EXPECT_EQ(ReadEasy().substr(0, 13), "\x07\0An na  \x01\0\x01\0"s);
}

TEST_F(HighscoreStoreTest, NamesAreReadAsOneLine) {
    WriteEasy("\x08\0An\nna\0\x81\x85\x02\0\x03\0"s);
    store.LoadHighscores();
    EXPECT_EQ(global.HighscoreList[1], (HighscoreEntry{"An na  …", 2, 3}));
}

TEST_F(HighscoreStoreTest, ALongNameIsKeptWhole) {
    FillList("");
    global.HighscoreList[1].Name = std::string(300, 'x');
    store.SaveHighscores();
    EXPECT_EQ(ReadEasy().substr(0, 306), "\x2C\x01"s + std::string(300, 'x') + "\x01\0\x01\0"s);
    FillList("other");
    store.LoadHighscores();
    EXPECT_EQ(global.HighscoreList[1].Name, std::string(300, 'x'));
}

TEST_F(HighscoreStoreTest, ANameIsCutAtWhatItsLengthFieldCanSay) {
    FillList("");
    global.HighscoreList[1].Name = std::string(70000, 'x');
    store.SaveHighscores();
    EXPECT_EQ(ReadEasy().size(), 60U + 65535U);
    store.LoadHighscores();
    EXPECT_EQ(global.HighscoreList[1].Name.size(), 65535U);
    EXPECT_EQ(global.HighscoreList[10].Time, 10);
}

TEST_F(HighscoreStoreTest, AShorterListKeepsTheOldFilesTail) {
    FillList("long name");
    store.SaveHighscores();
    const std::string old = ReadEasy();
    FillList("a");
    store.SaveHighscores();
    EXPECT_EQ(ReadEasy().size(), 150U);
    EXPECT_EQ(ReadEasy().substr(70), old.substr(70));
    FillList("");
    store.LoadHighscores();
    EXPECT_EQ(global.HighscoreList[10], (HighscoreEntry{"a", 1, 10}));
}

TEST_F(HighscoreStoreTest, AFileCutAnywhereKeepsTheRecordsThatAreWhole) {
    FillList("Anna");
    store.SaveHighscores();
    const std::string whole = ReadEasy();
    ASSERT_EQ(whole.size(), 100U);
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        WriteEasy(whole.substr(0, size));
        store.LoadHighscores();
        const int read = static_cast<int>(size / 10);
        for (int i = 1; i <= 10; ++i) {
            const HighscoreEntry fallback{"Quendrel v1.0", 0,
                                          static_cast<std::int16_t>(120 + 60 * i)};
            const HighscoreEntry expected =
                i <= read ? HighscoreEntry{"Anna", 1, static_cast<std::int16_t>(i)} : fallback;
            ASSERT_EQ(global.HighscoreList[i], expected) << size << " bytes, entry " << i;
        }
        EXPECT_EQ(ReadEasy(), whole.substr(0, size));
    }
}

TEST_F(HighscoreStoreTest, ALengthBeyondTheEndIsAMissingRecord) {
    WriteEasy("\x01\0A\x02\0\x03\0\xFF\xFFrest"s);
    store.LoadHighscores();
    EXPECT_EQ(global.HighscoreList[1], (HighscoreEntry{"A", 2, 3}));
    EXPECT_EQ(global.HighscoreList[2], (HighscoreEntry{"Quendrel v1.0", 0, 240}));
}

TEST_F(HighscoreStoreTest, RandomBytesAlwaysGiveTenEntriesAndStayUntouched) {
    std::mt19937 generator(7);
    for (int round = 0; round < 500; ++round) {
        std::string bytes(generator() % 300, '\0');
        for (char& byte : bytes) byte = static_cast<char>(generator());
        WriteEasy(bytes);
        ASSERT_NO_THROW(store.LoadHighscores());
        ASSERT_EQ(ReadEasy(), bytes);
    }
}

TEST_F(HighscoreStoreTest, AFolderInTheFilesPlaceIsNoFile) {
    std::filesystem::create_directories(folder.path() + "/High/Easy.hsc");
    store.LoadHighscores();
    EXPECT_EQ(global.HighscoreList[1].Time, 180);
    EXPECT_THROW(store.SaveHighscores(), FileError);
}

TEST_F(HighscoreStoreTest, AFileOfAnyCaseIsTheModesFile) {
    std::filesystem::create_directories(folder.path() + "/HIGH");
    folder.Write("HIGH/easy.HSC", "\x01\0A\x02\0\x03\0"s);
    store.LoadHighscores();
    EXPECT_EQ(global.HighscoreList[1].Name, "A");
}

TEST_F(HighscoreStoreTest, OnlyAStrictlyBetterTimeThanTheTenthQualifies) {
    store.LoadHighscores();
    global.ElapsedSeconds = 719;
    EXPECT_TRUE(store.Qualifies());
    global.ElapsedSeconds = 720;
    EXPECT_FALSE(store.Qualifies());
}

TEST_F(HighscoreStoreTest, AnEqualTimeIsInsertedAboveTheOldOne) {
    store.LoadHighscores();
    global.ElapsedSeconds = 180;
    global.ActiveRow = 7;
    EXPECT_EQ(store.InsertNewScore(), 1);
    EXPECT_EQ(global.HighscoreList[1], (HighscoreEntry{"", 7, 180}));
    EXPECT_EQ(Times(), "180 180 240 300 360 420 480 540 600 660 ");
}

TEST_F(HighscoreStoreTest, ATimeInTheMiddleMovesTheRestDown) {
    store.LoadHighscores();
    global.ElapsedSeconds = 500;
    EXPECT_EQ(store.InsertNewScore(), 7);
    EXPECT_EQ(Times(), "180 240 300 360 420 480 500 540 600 660 ");
}

TEST_F(HighscoreStoreTest, ATimeWorseThanAllIsNotInserted) {
    store.LoadHighscores();
    global.ElapsedSeconds = 721;
    EXPECT_EQ(store.InsertNewScore(), 0);
    EXPECT_EQ(Times(), "180 240 300 360 420 480 540 600 660 720 ");
}

TEST_F(HighscoreStoreTest, RestoringDeletesOnlyTheModesFile) {
    FillList("Anna");
    store.SaveHighscores();
    SetMode(1, "Medium");
    store.SaveHighscores();
    SetMode(0, "Easy");
    store.RestoreDefaults();
    EXPECT_FALSE(store.HasFile());
    EXPECT_EQ(Times(), "180 240 300 360 420 480 540 600 660 720 ");
    EXPECT_TRUE(FileExists(folder.path() + "/High/Medium.hsc"));
}

TEST_F(HighscoreStoreTest, ListsThatCannotBeSavedStayThroughChangesOfTheMode) {
    FailToSave(0, "Easy", "Anna");
    FailToSave(1, "Medium", "Ben");
    EXPECT_EQ(Loaded(0, "Easy"), "Anna");
    EXPECT_EQ(Loaded(1, "Medium"), "Ben");
    EXPECT_EQ(Loaded(2, "Hard"), "Quendrel v1.0");
    EXPECT_EQ(ReadEasy(), kEasyDefaults);
}

TEST_F(HighscoreStoreTest, AListThatCouldNotBeSavedIsSavedWithTheNextThatCan) {
    FailToSave(0, "Easy", "Anna");
    SetMode(1, "Medium");
    FillList("Ben");
    store.SaveHighscores();
    EXPECT_EQ(ReadEasy(), kEasyDefaults);
    EXPECT_EQ(Loaded(0, "Easy"), "Anna");
    SetReadOnly("Easy.hsc", false);
    SetMode(1, "Medium");
    FillList("Cleo");
    store.SaveHighscores();
    EXPECT_EQ(ReadEasy().substr(0, 10), "\4\0Anna\1\0\1\0"s);
    EXPECT_EQ(folder.Read("High/Medium.hsc").substr(0, 10), "\4\0Cleo\1\0\1\0"s);
}

TEST_F(HighscoreStoreTest, AListThatHasBeenSavedAfterAllIsTheFilesAgain) {
    FailToSave(0, "Easy", "Anna");
    SetReadOnly("Easy.hsc", false);
    store.SaveKeptLists();
    EXPECT_EQ(ReadEasy().substr(0, 10), "\4\0Anna\1\0\1\0"s);
    WriteEasy("\x01\0A\x02\0\x03\0"s);
    EXPECT_EQ(Loaded(0, "Easy"), "A");
}

TEST_F(HighscoreStoreTest, TheListThatIsSavedIsTheNewestOne) {
    FailToSave(0, "Easy", "Anna");
    FillList("Ben");
    EXPECT_THROW(store.SaveHighscores(), FileError);
    EXPECT_EQ(Loaded(0, "Easy"), "Ben");
    SetReadOnly("Easy.hsc", false);
    FillList("Cleo");
    store.SaveHighscores();
    EXPECT_EQ(Loaded(0, "Easy"), "Cleo");
    EXPECT_EQ(ReadEasy().substr(0, 10), "\4\0Cleo\1\0\1\0"s);
}

TEST_F(HighscoreStoreTest, RestoringForgetsAListThatCouldNotBeSavedOnlyIfTheFileGoes) {
    FailToSave(0, "Easy", "Anna");
    EXPECT_THROW(store.RestoreDefaults(), FileError);
    EXPECT_EQ(global.HighscoreList[1].Name, "Anna");
    SetReadOnly("Easy.hsc", false);
    store.RestoreDefaults();
    EXPECT_EQ(global.HighscoreList[1].Name, "Quendrel v1.0");
    EXPECT_EQ(Loaded(0, "Easy"), "Quendrel v1.0");
}

}  // namespace
}  // namespace quendrel::test
