// What leaving saves, and what it says where something cannot be saved.
#include <filesystem>

#include <gtest/gtest.h>

#include "FileLimits.h"
#include "Global.h"
#include "TemporaryFolder.h"
#include "platform/Errors.h"
#include "scores/HighscoreStore.h"
#include "settings/SaveOnLeaving.h"
#include "settings/SettingsStore.h"

namespace quendrel::test {
namespace {

namespace fs = std::filesystem;

class SaveOnLeavingTest : public ::testing::Test {
protected:
    SaveOnLeavingTest() {
        global.AppFolder = folder.path() + "\\";
        global.Playlist = {"Dusk"};
        global.PlaylistUpper = 0;
        global.Settings.PlayerNames[1] = "Anna";
        folder.Write("settings.ini", "[Duel]\nPlayer1=old\n");
        folder.Write("Playlist.dat", "old");
    }

    void MakeReadOnly(const std::string& name) const {
        fs::permissions(folder.path() + "/" + name, fs::perms(0444));
    }

    /// What is said when the player leaves.
    std::string Leave() {
        try {
            SaveOnLeaving(store, highscores, global);
        } catch (const NotSaved& error) {
            return error.what();
        }
        return "";
    }

    bool SettingsAreSaved() const {
        return folder.Read("settings.ini").find("Player1=Anna\n") != std::string::npos;
    }
    bool PlaylistIsSaved() const { return folder.Read("Playlist.dat") == kDusk; }

    const std::string kDusk = std::string("\0\0\4\0Dusk", 8);
    TemporaryFolder folder;
    Global global;
    SettingsStore store{global, folder.path() + "/settings.ini"};
    HighscoreStore highscores{global};
};

TEST_F(SaveOnLeavingTest, SettingsAndPlaylistAreSaved) {
    EXPECT_EQ(Leave(), "");
    EXPECT_TRUE(SettingsAreSaved());
    EXPECT_TRUE(PlaylistIsSaved());
}

TEST_F(SaveOnLeavingTest, SettingsThatCannotBeSavedAreNamedAndThePlaylistIsSavedAllTheSame) {
    MakeReadOnly("settings.ini");
    EXPECT_EQ(Leave(), folder.path() + "/settings.ini: cannot be written: it is read-only");
    EXPECT_FALSE(SettingsAreSaved());
    EXPECT_TRUE(PlaylistIsSaved());
}

TEST_F(SaveOnLeavingTest, APlaylistThatCannotBeSavedIsNamedAndTheSettingsAreSavedAllTheSame) {
    MakeReadOnly("Playlist.dat");
    EXPECT_EQ(Leave(), folder.path() + "/Playlist.dat: cannot be written: it is read-only");
    EXPECT_TRUE(SettingsAreSaved());
    EXPECT_EQ(folder.Read("Playlist.dat"), "old");
}

TEST_F(SaveOnLeavingTest, HighscoresThatStillCannotBeSavedAreNamedAndTheRestIsSaved) {
    global.HighFolder = folder.path() + "\\";
    global.HighscoreFile = global.HighFolder + "Easy.hig";
    folder.Write("Easy.hig", "old");
    MakeReadOnly("Easy.hig");
    EXPECT_THROW(highscores.SaveHighscores(), FileError);
    EXPECT_EQ(Leave(), folder.path() + "/Easy.hig: cannot be written: it is read-only");
    EXPECT_TRUE(SettingsAreSaved());
    EXPECT_TRUE(PlaylistIsSaved());
}

TEST_F(SaveOnLeavingTest, OnAFullDiskBothAreNamedAndStandAsTheyWere) {
    {
        const FileSizeLimit limit(4);
        EXPECT_EQ(Leave(), folder.path() + "/settings.ini: cannot be written: File too large\n" +
                               folder.path() + "/Playlist.dat: cannot be written: File too large");
    }
    EXPECT_EQ(folder.Read("settings.ini"), "[Duel]\nPlayer1=old\n");
    EXPECT_EQ(folder.Read("Playlist.dat"), "old");
}

TEST_F(SaveOnLeavingTest, FilesThatAnotherProgramHasDeletedAreMadeAnew) {
    fs::remove(folder.path() + "/settings.ini");
    fs::remove(folder.path() + "/Playlist.dat");
    EXPECT_EQ(Leave(), "");
    EXPECT_TRUE(SettingsAreSaved());
    EXPECT_TRUE(PlaylistIsSaved());
}

}  // namespace
}  // namespace quendrel::test
