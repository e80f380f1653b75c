// Saves of the three files that the game writes, interrupted at every one of their system calls.
#include <filesystem>

#include <gtest/gtest.h>

#include "Global.h"
#include "TemporaryFolder.h"
#include "Tracer.h"
#include "audio/Playlist.h"
#include "platform/Files.h"
#include "scores/HighscoreStore.h"
#include "settings/SettingsStore.h"

namespace quendrel::test {
namespace {

namespace fs = std::filesystem;

/// A file that holds a name.
struct SavedFile {
    std::string file;
    void (*save)(Global& global, const std::string& name);
    std::string (*load)(Global& global);
};

SettingsStore Settings(Global& global) {
    return {global, MachinePath(global.AppFolder + "settings.ini")};
}

const SavedFile kSettingsFile{"settings.ini",
                              [](Global& global, const std::string& name) {
                                  global.Settings.PlayerNames[1] = name;
                                  Settings(global).SaveSettings();
                              },
                              [](Global& global) {
                                  Settings(global).LoadSettings();
                                  return global.Settings.PlayerNames[1];
                              }};

const SavedFile kPlaylistFile{"Playlist.dat",
                              [](Global& global, const std::string& name) {
                                  SetPlaylist(global, {name});
                                  SavePlaylist(global);
                              },
                              [](Global& global) {
                                  LoadPlaylist(global);
                                  return global.Playlist.at(0);
                              }};

const SavedFile kHighscoreFile{"High/Easy.hsc",
                               [](Global& global, const std::string& name) {
                                   for (int i = 1; i <= 10; ++i)
                                       global.HighscoreList[i] = {name, 1, 1};
                                   HighscoreStore(global).SaveHighscores();
                               },
                               [](Global& global) {
                                   HighscoreStore(global).LoadHighscores();
                                   return global.HighscoreList[10].Name;
                               }};

class InterruptedSave : public ::testing::TestWithParam<SavedFile> {
protected:
    InterruptedSave() {
        global.AppFolder = folder.path() + "\\";
        global.HighFolder = global.AppFolder + "High\\";
        global.HighscoreFile = global.HighFolder + "Easy.hsc";
        GetParam().save(global, "before");
        old_ = Stored();
        GetParam().save(global, "afterwards");
        new_ = Stored();
    }

    /// Interrupts the save at each of its system calls in turn.
    void InterruptEverywhere(const Disturbance& disturbance) {
        int calls = 0;
        int kept = 0;
        for (bool reached = true; reached; ++calls) {
            PutBack();
            {
                Tracer tracer([this] { GetParam().save(global, "afterwards"); });
                reached = tracer.Disturb(calls, disturbance);
            }
            const bool isOld = Stored() == old_;
            EXPECT_TRUE(isOld || Stored() == new_) << "system call " << calls;
            EXPECT_EQ(GetParam().load(global), isOld ? "before" : "afterwards");
            if (isOld) ++kept;
            GetParam().save(global, "afterwards");
            EXPECT_EQ(Stored(), new_) << "after system call " << calls;
        }
        EXPECT_GT(kept, 0);
        EXPECT_GT(calls, kept + 3);
    }

    std::string Stored() const { return folder.Read(GetParam().file); }

    void PutBack() const {
        for (const auto& entry : fs::directory_iterator(folder.path())) fs::remove_all(entry);
        fs::create_directories(folder.path() + "/High");
        folder.Write(GetParam().file, old_);
    }

    TemporaryFolder folder;
    Global global;

private:
    std::string old_;
    std::string new_;
};

TEST_P(InterruptedSave, KilledAtAnyCallItLeavesTheOldBytesOrTheNewOnes) { InterruptEverywhere({}); }

TEST_P(InterruptedSave, OnAFullDiskItLeavesTheOldBytesOrTheNewOnes) {
    InterruptEverywhere({ENOSPC});
}

TEST_P(InterruptedSave, WithoutPermissionItLeavesTheOldBytesOrTheNewOnes) {
    InterruptEverywhere({EACCES});
}

TEST_P(InterruptedSave, OnADiskThatFailsItLeavesTheOldBytesOrTheNewOnes) {
    InterruptEverywhere({EIO});
}

TEST_P(InterruptedSave, WithoutADescriptorItLeavesTheOldBytesOrTheNewOnes) {
    InterruptEverywhere({EMFILE});
}

INSTANTIATE_TEST_SUITE_P(Every, InterruptedSave,
                         ::testing::Values(kSettingsFile, kPlaylistFile, kHighscoreFile),
                         [](const auto& tested) {
                             const std::string& file = tested.param.file;
                             return file == kSettingsFile.file   ? "Settings"
                                    : file == kPlaylistFile.file ? "Playlist"
                                                                 : "Highscores";
                         });

}  // namespace
}  // namespace quendrel::test
