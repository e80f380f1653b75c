// New folders, which appear whole or not at all, however the machine disturbs that.
#include <filesystem>
#include <set>
#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>

#include "FileLimits.h"
#include "TemporaryFolder.h"
#include "Tracer.h"
#include "WhatGoesWrong.h"
#include "platform/NewFolder.h"

namespace quendrel::test {
namespace {

namespace fs = std::filesystem;

using Names = std::set<std::string>;

class NewFolderTest : public ::testing::Test {
protected:
    std::string In(const std::string& name) const { return folder.path() + "/" + name; }

    void Make() const {
        const NewFolder made(folder.path(), "Mine");
        made.Write("a.txt", "one");
        made.Write("Game/Interface/b.txt", "two");
        made.Appear();
    }

    /// The names in the folder that the new one is made in.
    Names Found() const {
        Names names;
        for (const auto& entry : fs::directory_iterator(folder.path())) {
            names.insert(entry.path().filename().string());
        }
        return names;
    }

    bool IsWhole() const {
        return folder.Read("Mine/a.txt") == "one" &&
               folder.Read("Mine/Game/Interface/b.txt") == "two";
    }

    TemporaryFolder folder;
};

TEST_F(NewFolderTest, ItAppearsWithEverythingInItAndNothingIsLeftBesideIt) {
    Make();
    EXPECT_EQ(Found(), Names{"Mine"});
    EXPECT_TRUE(IsWhole());
}

TEST_F(NewFolderTest, ItAndItsFilesHaveTheUsualPermissions) {
    const mode_t before = umask(027);
    Make();
    umask(before);
    EXPECT_EQ(fs::status(In("Mine")).permissions(), fs::perms{0750});
    EXPECT_EQ(fs::status(In("Mine/Game/Interface")).permissions(), fs::perms{0750});
    EXPECT_EQ(fs::status(In("Mine/a.txt")).permissions(), fs::perms{0640});
}

TEST_F(NewFolderTest, UntilItAppearsItIsHiddenAndThenItIsRemovedAgain) {
    {
        const NewFolder made(folder.path(), "Mine");
        made.Write("a.txt", "one");
        ASSERT_EQ(Found().size(), 1U);
        EXPECT_EQ(Found().begin()->front(), '.');
        EXPECT_EQ(fs::path(made.path()).filename(), "Mine");
    }
    EXPECT_EQ(Found(), Names{});
}

TEST_F(NewFolderTest, NothingOfItsNameIsReplaced) {
    for (const bool isLink : {false, true}) {
        if (isLink) {
            fs::create_symlink("nowhere", In("Mine"));
        } else {
            fs::create_directory(In("Mine"));
        }
        EXPECT_EQ(WhatGoesWrong([this] { Make(); }), In("Mine") + ": is there already");
        EXPECT_EQ(Found(), Names{"Mine"});
        fs::remove(In("Mine"));
    }
}

TEST_F(NewFolderTest, AFileIsNeverWrittenTwice) {
    const NewFolder made(folder.path(), "Mine");
    made.Write("a.txt", "one");
    EXPECT_EQ(WhatGoesWrong([&] { made.Write("a.txt", "two"); }),
              In("Mine/a.txt") + ": cannot be written: File exists");
}

TEST_F(NewFolderTest, OnAFullDiskNothingAppearsAndNothingIsLeft) {
    EXPECT_EQ(WhatGoesWrong([this] {
                  const FileSizeLimit limit(2);
                  Make();
              }),
              In("Mine/a.txt") + ": cannot be written: File too large");
    EXPECT_EQ(Found(), Names{});
}

TEST_F(NewFolderTest, AFolderThatCannotBeWrittenIsNamed) {
    fs::permissions(folder.path(), fs::perms{0555});
    EXPECT_EQ(WhatGoesWrong([this] {
                  const OrdinaryUser user;
                  Make();
              }),
              folder.path() + ": cannot be written: Permission denied");
}

TEST_F(NewFolderTest, ANameThatTheSystemCannotHoldIsNamed) {
    const std::string name(300, 'x');
    EXPECT_EQ(WhatGoesWrong([&] { const NewFolder made(folder.path(), name); }),
              In(name) + ": cannot be made: File name too long");
    EXPECT_EQ(Found(), Names{});
}

TEST_F(NewFolderTest, KilledAtAnyMomentItIsWholeOrNotThereAndWhatIsLeftGoes) {
    fs::create_directory(In("Other"));
    int kills = 0;
    for (;; ++kills) {
        {
            Tracer tracer([this] { Make(); });
            if (!tracer.Disturb(kills, {})) break;
        }
        EXPECT_TRUE(IsWhole() || !fs::exists(In("Mine"))) << "killed at call " << kills;
        RemoveLeftFolders(folder.path());
        fs::remove_all(In("Mine"));
        EXPECT_EQ(Found(), Names{"Other"}) << "killed at call " << kills;
    }
    EXPECT_GT(kills, 10);
}

TEST_F(NewFolderTest, WhatAnotherProgramIsFillingIsNotTakenAway) {
    const NewFolder made(folder.path(), "Mine");
    made.Write("a.txt", "one");
    RemoveLeftFolders(folder.path());
    made.Appear();
    EXPECT_EQ(folder.Read("Mine/a.txt"), "one");
}

TEST_F(NewFolderTest, ALinkOfSuchANameIsNotFollowed) {
    fs::create_directories(In("Other/Kept"));
    fs::create_directory_symlink("Other", In(".new.abcdef"));
    RemoveLeftFolders(folder.path());
    EXPECT_TRUE(fs::exists(In("Other/Kept")));
}

TEST_F(NewFolderTest, EveryFileIsFlushedBeforeItAppearsAndTheFolderAfterwards) {
    Tracer tracer([this] { Make(); });
    const std::vector<std::string> calls =
        tracer.Follow({{SYS_fsync, "flush"}, {SYS_rename, "rename"}});
    ASSERT_TRUE(tracer.Succeeded());
    Names before;
    std::size_t at = 0;
    for (; at < calls.size() && calls[at] != "rename "; ++at) {
        before.insert(fs::path(calls[at]).filename().string());
    }
    EXPECT_TRUE(before.contains("a.txt"));
    EXPECT_TRUE(before.contains("b.txt"));
    EXPECT_EQ(std::vector(calls.begin() + static_cast<std::ptrdiff_t>(at), calls.end()),
              (std::vector<std::string>{"rename ", "flush " + folder.path()}));
}

/// The names in its two folders may fail to be flushed, the two files may not.
TEST_F(NewFolderTest, AFileThatCannotBeFlushedKeepsItFromAppearing) {
    int kept = 0;
    for (int flush = 0; flush < 4; ++flush) {
        Tracer tracer([this] { Make(); });
        ASSERT_TRUE(tracer.DisturbKind(SYS_fsync, flush, {EIO}));
        EXPECT_EQ(fs::exists(In("Mine")), tracer.Succeeded());
        if (!tracer.Succeeded()) ++kept;
        fs::remove_all(In("Mine"));
    }
    EXPECT_EQ(kept, 2);
}

}  // namespace
}  // namespace quendrel::test
