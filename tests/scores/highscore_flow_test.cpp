// What the highscore window does, as recorded sequences.
#include <filesystem>

#include <gtest/gtest.h>

#include "Log.h"
#include "TemporaryFolder.h"
#include "scores/HighscoreFlow.h"
#include "scores/HighscoreStore.h"

namespace quendrel::test {
namespace {

class RecordingHighscoreView : public HighscoreView {
public:
    explicit RecordingHighscoreView(Log& log) : log_(log) {}

    /// What stands in the name entry.
    std::string entered;

    void EnableDefault(bool enabled) override { log_.Add(enabled ? "default on" : "default off"); }
    void ShowEntry(int position, const std::string& name, const std::string& row,
                   const std::string& time) override {
        log_.Add(std::to_string(position) + ": " + name + " | " + row + " | " + time);
    }
    void ShowNameEntry(int position, const std::string& text) override {
        log_.Add("name entry at " + std::to_string(position) + " \"" + text + "\"");
    }
    void HideNameEntry() override { log_.Add("no name entry"); }
    std::string EnteredName() const override { return entered; }
    void ShowTrouble(const std::string& text) override { log_.Add("trouble: " + text); }
    void CloseWindow() override { log_.Add("close"); }

private:
    Log& log_;
};

constexpr const char* kDefaultRows =
    "1: Quendrel v1.0 | 0 | 03:00\n2: Quendrel v1.0 | 0 | 04:00\n"
    "3: Quendrel v1.0 | 0 | 05:00\n4: Quendrel v1.0 | 0 | 06:00\n"
    "5: Quendrel v1.0 | 0 | 07:00\n6: Quendrel v1.0 | 0 | 08:00\n"
    "7: Quendrel v1.0 | 0 | 09:00\n8: Quendrel v1.0 | 0 | 10:00\n"
    "9: Quendrel v1.0 | 0 | 11:00\n10: Quendrel v1.0 | 0 | 12:00\n";

class HighscoreFlowTest : public ::testing::Test {
protected:
    HighscoreFlowTest() {
        global.Settings.GameMode = 0;
        global.HighFolder = folder.path() + "\\High\\";
        global.HighscoreFile = global.HighFolder + "Easy.hsc";
        store.LoadHighscores();
    }

    /// A win in 75 seconds on row 4 waits for its name.
    void Win() {
        global.ElapsedSeconds = 75;
        global.ActiveRow = 4;
        global.NewScorePending = true;
    }

    void MakeReadOnly() const {
        std::filesystem::permissions(folder.path() + "/High/Easy.hsc",
                                     std::filesystem::perms(0444));
    }

    bool HasFile() const { return std::filesystem::exists(folder.path() + "/High/Easy.hsc"); }

    Log log;
    TemporaryFolder folder;
    Global global;
    HighscoreStore store{global};
    RecordingHighscoreView view{log};
    HighscoreFlow window{global, store, view};
};

TEST_F(HighscoreFlowTest, OpenedWithoutAFileItShowsTheDefaultsAndNothingToRestore) {
    window.ShowHighscores();
    EXPECT_EQ(log.Text(), std::string("default off\n") + kDefaultRows);
    log.Clear();
    window.ClickOk();
    EXPECT_EQ(log.Text(), "close\n");
    EXPECT_FALSE(HasFile());
}

TEST_F(HighscoreFlowTest, AWinIsInsertedAndItsNameAskedFor) {
    Win();
    window.ShowHighscores();
    EXPECT_EQ(log.Text(),
              "default off\n"
              "1:  | 4 | 01:15\n"
              "2: Quendrel v1.0 | 0 | 03:00\n3: Quendrel v1.0 | 0 | 04:00\n"
              "4: Quendrel v1.0 | 0 | 05:00\n5: Quendrel v1.0 | 0 | 06:00\n"
              "6: Quendrel v1.0 | 0 | 07:00\n7: Quendrel v1.0 | 0 | 08:00\n"
              "8: Quendrel v1.0 | 0 | 09:00\n9: Quendrel v1.0 | 0 | 10:00\n"
              "10: Quendrel v1.0 | 0 | 11:00\n"
              "name entry at 1 \"\"\n");
}

TEST_F(HighscoreFlowTest, AConfirmedNameIsSaved) {
    Win();
    window.ShowHighscores();
    log.Clear();
    view.entered = "Anna";
    window.ClickOk();
    EXPECT_EQ(log.Text(), "no name entry\nclose\n");
    EXPECT_FALSE(global.NewScorePending);
    global.HighscoreList = {};
    store.LoadHighscores();
    EXPECT_EQ(global.HighscoreList[1], (HighscoreEntry{"Anna", 4, 75}));
}

TEST_F(HighscoreFlowTest, AnEmptyNameDropsTheResult) {
    Win();
    window.ShowHighscores();
    log.Clear();
    window.ClickOk();
    EXPECT_EQ(log.Text(), "no name entry\nclose\n");
    EXPECT_FALSE(global.NewScorePending);
    EXPECT_FALSE(HasFile());
    EXPECT_EQ(global.HighscoreList[1], (HighscoreEntry{"Quendrel v1.0", 0, 180}));
}

TEST_F(HighscoreFlowTest, RestoringDuringTheEntryGivesTheResultUpAndStaysOpen) {
    store.SaveHighscores();
    Win();
    window.ShowHighscores();
    log.Clear();
    view.entered = "Anna";
    window.ClickDefault();
    EXPECT_EQ(log.Text(), "no name entry\ndefault off\n" + std::string(kDefaultRows));
    EXPECT_FALSE(global.NewScorePending);
    EXPECT_FALSE(HasFile());
}

TEST_F(HighscoreFlowTest, AListThatCannotBeSavedSaysSoAndStaysInMemory) {
    store.SaveHighscores();
    MakeReadOnly();
    Win();
    window.ShowHighscores();
    log.Clear();
    view.entered = "Anna";
    window.ClickOk();
    EXPECT_EQ(log.Text(), "no name entry\ntrouble: " + folder.path() +
                              "/High/Easy.hsc: cannot be written: it is read-only\nclose\n");
    EXPECT_FALSE(global.NewScorePending);
    EXPECT_EQ(global.HighscoreList[1], (HighscoreEntry{"Anna", 4, 75}));
    HighscoreStore(global).LoadHighscores();
    EXPECT_EQ(global.HighscoreList[1], (HighscoreEntry{"Quendrel v1.0", 0, 180}));
}

TEST_F(HighscoreFlowTest, AnEmptyNameDropsNoEarlierWinThatCouldNotBeSaved) {
    store.SaveHighscores();
    MakeReadOnly();
    for (const char* const name : {"Anna", ""}) {
        Win();
        window.ShowHighscores();
        view.entered = name;
        window.ClickOk();
    }
    EXPECT_EQ(global.HighscoreList[1], (HighscoreEntry{"Anna", 4, 75}));
    EXPECT_EQ(global.HighscoreList[2], (HighscoreEntry{"Quendrel v1.0", 0, 180}));
}

TEST_F(HighscoreFlowTest, AFileThatCannotBeDeletedSaysSoAndShowsWhileAPendingWinIsGivenUp) {
    global.HighscoreList[1].Name = "Ben";
    store.SaveHighscores();
    MakeReadOnly();
    Win();
    window.ShowHighscores();
    log.Clear();
    window.ClickDefault();
    std::string rows = kDefaultRows;
    rows.replace(rows.find("Quendrel v1.0"), std::string("Quendrel v1.0").size(), "Ben");
    EXPECT_EQ(log.Text(), "no name entry\ntrouble: " + folder.path() +
                              "/High/Easy.hsc: cannot be deleted: it is read-only\ndefault on\n" +
                              rows);
    EXPECT_FALSE(global.NewScorePending);
    EXPECT_TRUE(HasFile());
}

TEST_F(HighscoreFlowTest, RestoringAFileThatAnotherProgramHasDeletedShowsTheDefaults) {
    global.HighscoreList[1].Name = "Ben";
    store.SaveHighscores();
    window.ShowHighscores();
    std::filesystem::remove(folder.path() + "/High/Easy.hsc");
    log.Clear();
    window.ClickDefault();
    EXPECT_EQ(log.Text(), std::string("default off\n") + kDefaultRows);
}

TEST_F(HighscoreFlowTest, InAMatchTheNameOfThePlayerOnTurnIsOffered) {
    global.Settings.MindDuel = true;
    global.Settings.PlayerNames[1] = "Anna";
    global.Settings.PlayerNames[2] = "Ben";
    for (const auto& [turn, name] :
         {std::pair{1, "Anna"}, std::pair{2, "Ben"}, std::pair{0, "Ben"}}) {
        store.LoadHighscores();
        Win();
        global.Settings.PlrTrn = static_cast<std::uint8_t>(turn);
        log.Clear();
        window.ShowHighscores();
        EXPECT_NE(log.Text().find(std::string("name entry at 1 \"") + name + "\"\n"),
                  std::string::npos);
    }
}

}  // namespace
}  // namespace quendrel::test
