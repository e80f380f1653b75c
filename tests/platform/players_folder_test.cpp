// The folder of each player: links to what the system has, and what is his own.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <set>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "TemporaryFolder.h"
#include "Tracer.h"
#include "platform/Errors.h"
#include "platform/desktop/PlayersFolder.h"

namespace quendrel::test {
namespace {

namespace fs = std::filesystem;

using Names = std::set<std::string>;

class PlayersFolderTest : public ::testing::Test {
protected:
    PlayersFolderTest() {
        for (const char* const file :
             {"Skin/Atelier/Game/Board.bmp", "Skin/Beacon/Game/Board.bmp", "Sound/White.wav",
              "Music/Air No. 1.mid", "Rules/Rules.html"}) {
            Write(std::string("system/") + file, file);
        }
    }

    fs::path In(const std::string& name) const { return fs::path(folder.path()) / name; }

    void Write(const std::string& name, const std::string& bytes) {
        fs::create_directories(In(name).parent_path());
        folder.Write(name, bytes);
    }

    void Follow(const std::string& system = "system") {
        FollowSystem(In("home/quendrel").string(), In(system).string());
    }

    /// What the player reads in a file of his folder.
    std::string Read(const std::string& name) const { return folder.Read("home/quendrel/" + name); }

    Names NamesIn(const std::string& name) const {
        Names names;
        for (const auto& entry : fs::directory_iterator(In("home/quendrel") / name)) {
            names.insert(entry.path().filename().string());
        }
        return names;
    }

    TemporaryFolder folder;
};

TEST_F(PlayersFolderTest, WhatTheSystemHasIsLinkedAndNeverCopied) {
    Follow();
    EXPECT_EQ(Read("Skin/Atelier/Game/Board.bmp"), "Skin/Atelier/Game/Board.bmp");
    EXPECT_EQ(Read("Sound/White.wav"), "Sound/White.wav");
    EXPECT_EQ(Read("Music/Air No. 1.mid"), "Music/Air No. 1.mid");
    EXPECT_EQ(Read("Rules/Rules.html"), "Rules/Rules.html");
    for (const char* const link : {"Skin/Atelier", "Skin/Beacon", "Sound/White.wav",
                                   "Music/Air No. 1.mid", "Rules/Rules.html"}) {
        EXPECT_TRUE(fs::is_symlink(In("home/quendrel") / link)) << link;
    }
}

TEST_F(PlayersFolderTest, ANewSkinOfTheSystemComesAndOneThatIsGoneGoes) {
    Follow();
    Write("system/Skin/Carbon/Game/Board.bmp", "new");
    fs::remove_all(In("system/Skin/Beacon"));
    Follow();
    EXPECT_EQ(NamesIn("Skin"), (Names{"Atelier", "Carbon"}));
    EXPECT_EQ(Read("Skin/Carbon/Game/Board.bmp"), "new");
}

TEST_F(PlayersFolderTest, WhatThePlayerHasOfHisOwnIsNeverTouched) {
    Follow();
    Write("home/quendrel/Skin/Mine/Game/Board.bmp", "mine");
    fs::remove(In("home/quendrel/Music/Air No. 1.mid"));
    Write("home/quendrel/Music/Air No. 1.mid", "mine");
    Write("home/quendrel/High/Easy.hsc", "mine");
    fs::create_symlink("/nowhere/Skin/Away", In("home/quendrel/Skin/Away"));
    Write("system/Skin/Mine/Game/Board.bmp", "the system's");
    Write("system/High/Easy.hsc", "the system's");
    Follow();
    EXPECT_EQ(Read("Skin/Mine/Game/Board.bmp"), "mine");
    EXPECT_EQ(Read("Music/Air No. 1.mid"), "mine");
    EXPECT_EQ(Read("High/Easy.hsc"), "mine");
    EXPECT_EQ(fs::read_symlink(In("home/quendrel/Skin/Away")), "/nowhere/Skin/Away");

    fs::remove_all(In("system/Skin"));
    fs::create_directory(In("system/Skin"));
    Follow();
    EXPECT_EQ(NamesIn("Skin"), (Names{"Mine", "Away"}));
}

TEST_F(PlayersFolderTest, ASystemThatHasMovedIsFollowed) {
    Follow();
    fs::rename(In("system"), In("elsewhere"));
    Follow("elsewhere");
    EXPECT_EQ(Read("Skin/Atelier/Game/Board.bmp"), "Skin/Atelier/Game/Board.bmp");
    EXPECT_EQ(NamesIn("Skin"), (Names{"Atelier", "Beacon"}));
}

TEST_F(PlayersFolderTest, AHomeThatHasMovedKeepsEverything) {
    Follow();
    fs::rename(In("home"), In("new home"));
    EXPECT_EQ(folder.Read("new home/quendrel/Sound/White.wav"), "Sound/White.wav");
}

TEST_F(PlayersFolderTest, ScoresAndPlaylistAreTakenOverOnceWhereThePlayerBegins) {
    Write("system/High/Easy.hsc", "times");
    Write("system/Playlist.dat", "tunes");
    Follow();
    EXPECT_EQ(Read("High/Easy.hsc"), "times");
    EXPECT_EQ(Read("Playlist.dat"), "tunes");
    EXPECT_FALSE(fs::is_symlink(In("home/quendrel/High/Easy.hsc")));
    EXPECT_EQ(folder.Read("system/High/Easy.hsc"), "times");

    fs::remove(In("home/quendrel/High/Easy.hsc"));
    fs::remove(In("home/quendrel/Playlist.dat"));
    Follow();
    EXPECT_FALSE(fs::exists(In("home/quendrel/High/Easy.hsc")));
    EXPECT_FALSE(fs::exists(In("home/quendrel/Playlist.dat")));
}

TEST_F(PlayersFolderTest, AFolderThatCannotBeMadeIsNamed) {
    Write("home", "a file");
    try {
        Follow();
        FAIL() << "nothing was thrown";
    } catch (const FileError& error) {
        EXPECT_EQ(std::string(error.what()), In("home").string() +
                                                 ": cannot be brought up to date: "
                                                 "Not a directory");
    }
    EXPECT_EQ(folder.Read("home"), "a file");
}

TEST_F(PlayersFolderTest, NothingIsLeftOfABeginningThatFails) {
    fs::create_directory(In("system/High"));
    ASSERT_EQ(::mkfifo(In("system/High/Easy.hsc").c_str(), 0600), 0);  // cannot be copied
    EXPECT_THROW(Follow(), FileError);
    EXPECT_TRUE(fs::is_empty(In("home")));
}

class InterruptedFolder : public PlayersFolderTest, public ::testing::WithParamInterface<int> {
protected:
    /// Kills the start, or has a call of it fail, at every system call in turn. `check` looks at
    /// what that has left, and then the next start comes.
    template <typename Prepare, typename Check>
    void InterruptEverywhere(const std::string& system, const Prepare& prepare,
                             const Check& check) {
        const Disturbance disturbance = GetParam() == 0 ? Disturbance{} : Disturbance{GetParam()};
        int calls = 0;
        for (bool reached = true; reached; ++calls) {
            SCOPED_TRACE(calls);
            fs::remove_all(In("home"));
            prepare();
            {
                Tracer tracer([&] { Follow(system); });
                reached = tracer.Disturb(calls, disturbance);
            }
            check();
            Follow(system);
            ExpectWhole(system);
        }
        EXPECT_GT(calls, 30);
    }

    void ExpectWhole(const std::string& system) {
        EXPECT_EQ(NamesIn("."),
                  (Names{".system", "High", "Music", "Playlist.dat", "Rules", "Skin", "Sound"}));
        EXPECT_EQ(NamesIn("Skin"), (Names{"Atelier", "Beacon"}));
        EXPECT_EQ(Read("Skin/Atelier/Game/Board.bmp"), system);
        EXPECT_EQ(Read("High/Easy.hsc"), "times");
        EXPECT_EQ(Read("Playlist.dat"), "tunes");
    }

    bool WhatIsLeftIsHidden() const {
        std::error_code missing;
        const fs::directory_iterator entries(In("home"), missing);
        return std::all_of(begin(entries), end(entries), [](const fs::directory_entry& entry) {
            const std::string name = entry.path().filename().string();
            return name == "quendrel" || name.starts_with('.');
        });
    }

    void MakeSystem(const std::string& name) {
        Write(name + "/Skin/Atelier/Game/Board.bmp", name);
        Write(name + "/Skin/Beacon/Game/Board.bmp", name);
        Write(name + "/Sound/White.wav", name);
        Write(name + "/Music/Air No. 1.mid", name);
        Write(name + "/Rules/Rules.html", name);
        Write(name + "/High/Easy.hsc", "times");
        Write(name + "/Playlist.dat", "tunes");
    }
};

TEST_P(InterruptedFolder, ABeginningIsWholeAtTheNextStart) {
    MakeSystem("system");
    InterruptEverywhere(
        "system", [] {},
        [this] {
            EXPECT_TRUE(WhatIsLeftIsHidden());
            if (!fs::exists(In("home/quendrel"))) return;
            EXPECT_EQ(Read("High/Easy.hsc"), "times");
            EXPECT_EQ(Read("Playlist.dat"), "tunes");
        });
}

TEST_P(InterruptedFolder, AChangeOfTheSystemLeavesTheOldOneOrTheNewOne) {
    MakeSystem("system");
    MakeSystem("elsewhere");
    Write("system/Skin/Gone/Game/Board.bmp", "old");
    fs::remove_all(In("system/Skin/Beacon"));
    InterruptEverywhere(
        "elsewhere", [this] { Follow(); },
        [this] {
            const std::string board = Read("Skin/Atelier/Game/Board.bmp");
            EXPECT_TRUE(board == "system" || board == "elsewhere") << board;
            EXPECT_EQ(Read("High/Easy.hsc"), "times");
        });
}

INSTANTIATE_TEST_SUITE_P(Every, InterruptedFolder, ::testing::Values(0, ENOSPC, EIO),
                         [](const auto& tested) -> std::string {
                             switch (tested.param) {
                                 case 0:
                                     return "Kill";
                                 case ENOSPC:
                                     return "FullDisk";
                                 default:
                                     return "FailingDisk";
                             }
                         });

class FolderToPlayInTest : public PlayersFolderTest {
protected:
    FolderToPlayInTest() { ::setenv("XDG_DATA_HOME", In("home").c_str(), 1); }

    std::string players() const { return In("home/quendrel").string(); }
};

TEST_F(FolderToPlayInTest, IsThePlayersWhichFollowsTheFolderOfABuild) {
    EXPECT_EQ(FolderToPlayIn("", In("system").string()), players());
    EXPECT_EQ(Read("Sound/White.wav"), "Sound/White.wav");
}

TEST_F(FolderToPlayInTest, IsThePlayersWhichFollowsWhatIsInstalledWhereverThatIs) {
    for (const char* const prefix : {"usr", "moved"}) {
        Write(std::string(prefix) + "/bin/quendrel", "program");
        Write(std::string(prefix) + "/share/quendrel/Skin/Atelier/Game/Board.bmp", prefix);
        EXPECT_EQ(FolderToPlayIn("", In(std::string(prefix) + "/bin").string()), players());
        EXPECT_EQ(Read("Skin/Atelier/Game/Board.bmp"), prefix);
    }
}

TEST_F(FolderToPlayInTest, IsTheOneThatIsAskedForWithEverythingInIt) {
    EXPECT_EQ(FolderToPlayIn(In("system").string(), "/nowhere"), In("system"));
    EXPECT_FALSE(fs::exists(In("home")));
}

TEST_F(FolderToPlayInTest, OneThatIsAskedForAndMissingIsNotReplacedByAnother) {
    EXPECT_EQ(FolderToPlayIn("/nowhere", In("system").string()), "/nowhere");
    EXPECT_FALSE(fs::exists(In("home")));
}

TEST_F(FolderToPlayInTest, WhereThePlayersCannotBeMadeIsTheSystemsAndSaysWhy) {
    Write("home", "a file");
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(FolderToPlayIn("", In("system").string()), In("system"));
    EXPECT_EQ(
        ::testing::internal::GetCapturedStderr(),
        "quendrel: " + In("home").string() + ": cannot be brought up to date: Not a directory\n");
}

TEST_F(FolderToPlayInTest, APlayersFolderThatCannotBeBroughtUpToDateIsUsedAsItIs) {
    Follow();
    fs::remove(In("home/quendrel/.system"));
    Write("home/quendrel/.system", "a file");
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(FolderToPlayIn("", In("system").string()), players());
    EXPECT_NE(::testing::internal::GetCapturedStderr(), "");
}

TEST(PlayersFolderPath, IsBelowTheDataFolderOfThePlayer) {
    ::setenv("HOME", "/home/anna", 1);
    ::unsetenv("XDG_DATA_HOME");
    EXPECT_EQ(PlayersFolder(), "/home/anna/.local/share/quendrel");
    ::setenv("XDG_DATA_HOME", "/data/anna", 1);
    EXPECT_EQ(PlayersFolder(), "/data/anna/quendrel");
    ::setenv("XDG_DATA_HOME", "relative", 1);
    EXPECT_EQ(PlayersFolder(), "/home/anna/.local/share/quendrel");
}

}  // namespace
}  // namespace quendrel::test
