// Files whose writing or reading the system disturbs, and what is flushed to the disk.
#include <chrono>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/syscall.h>

#include "TemporaryFolder.h"
#include "Tracer.h"
#include "platform/Errors.h"
#include "platform/Files.h"

namespace quendrel::test {
namespace {

class InterruptedFiles : public ::testing::Test {
protected:
    InterruptedFiles() { folder.Write("a.txt", "old"); }

    void Write() const { WriteFileAtomically(path, "new"); }

    /// Whether the save succeeds when one of its calls fails with an error.
    bool SavesThough(long kind, int count, int error) const {
        Tracer tracer([this] { Write(); });
        EXPECT_TRUE(tracer.DisturbKind(kind, count, {error}));
        return tracer.Succeeded();
    }

    std::set<std::string> Found() const {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
            names.insert(entry.path().filename().string());
        }
        return names;
    }

    TemporaryFolder folder;
    const std::string path = folder.path() + "/a.txt";
};

TEST_F(InterruptedFiles, ASaveIsFlushedBeforeTheRenameAndItsFolderAfterIt) {
    Tracer tracer([this] { Write(); });
    const std::vector<std::string> calls =
        tracer.Follow({{SYS_write, "write"}, {SYS_fsync, "flush"}, {SYS_rename, "rename"}});
    EXPECT_TRUE(tracer.Succeeded());
    ASSERT_EQ(calls.size(), 4U);
    EXPECT_TRUE(calls[0].starts_with("write " + folder.path() + "/.a.txt.new.")) << calls[0];
    EXPECT_EQ(calls[1], "flush" + calls[0].substr(5));
    EXPECT_EQ(calls[2], "rename ");
    EXPECT_EQ(calls[3], "flush " + folder.path());
}

TEST_F(InterruptedFiles, ASaveThatCannotBeFlushedFailsAndLeavesTheOldFile) {
    EXPECT_FALSE(SavesThough(SYS_fsync, 0, EIO));
    EXPECT_EQ(folder.Read("a.txt"), "old");
}

TEST_F(InterruptedFiles, AFolderThatCannotBeFlushedDoesNotFailTheSave) {
    EXPECT_TRUE(SavesThough(SYS_fsync, 1, EIO));
    EXPECT_EQ(folder.Read("a.txt"), "new");
}

TEST_F(InterruptedFiles, AKilledSaveLeavesAHiddenFileWhichASaveHoursLaterRemoves) {
    {
        Tracer tracer([this] { Write(); });
        ASSERT_TRUE(tracer.DisturbKind(SYS_rename, 0, {}));
    }
    ASSERT_EQ(Found().size(), 2U);
    const std::string left = *Found().begin();
    EXPECT_TRUE(left.starts_with(".a.txt.new.")) << left;
    Write();
    EXPECT_EQ(Found(), (std::set<std::string>{left, "a.txt"}));
    const auto hoursAgo = std::filesystem::file_time_type::clock::now() - std::chrono::hours(2);
    std::filesystem::last_write_time(folder.path() + "/" + left, hoursAgo);
    Write();
    EXPECT_EQ(Found(), std::set<std::string>{"a.txt"});
}

TEST_F(InterruptedFiles, WhereTheFolderCannotBeListedASaveIsDoneAllTheSame) {
    Tracer tracer([this] { Write(); });
    EXPECT_TRUE(tracer.DisturbKind(SYS_getdents64, 0, {EIO}));
    EXPECT_TRUE(tracer.Succeeded());
    EXPECT_EQ(folder.Read("a.txt"), "new");
}

/// It would hold for whatever is made beside the save.
TEST_F(InterruptedFiles, ASaveNeverChangesThePermissionsMaskOfTheProgram) {
    std::filesystem::remove(path);
    Tracer tracer([this] { Write(); });
    EXPECT_FALSE(tracer.DisturbKind(SYS_umask, 0, {EIO}));
    EXPECT_TRUE(tracer.Succeeded());
}

TEST_F(InterruptedFiles, AWriteThatASignalInterruptsIsRepeated) {
    EXPECT_TRUE(SavesThough(SYS_write, 0, EINTR));
    EXPECT_EQ(folder.Read("a.txt"), "new");
}

TEST_F(InterruptedFiles, AnOpeningThatASignalInterruptsIsRepeated) {
    Tracer tracer([this] { folder.Write("copy.txt", ReadFile(path)); });
    EXPECT_TRUE(tracer.DisturbKind(SYS_openat, 0, {EINTR}));
    EXPECT_TRUE(tracer.Succeeded());
    EXPECT_EQ(folder.Read("copy.txt"), "old");
}

TEST_F(InterruptedFiles, ASaveThatASignalInterruptsAnywhereIsDoneAllTheSame) {
    const std::vector<std::pair<long, int>> calls{{SYS_openat, 3}, {SYS_fsync, 2}, {SYS_close, 3}};
    for (const auto& [kind, most] : calls) {
        for (int count = 0; count < most; ++count) {
            folder.Write("a.txt", "old");
            EXPECT_TRUE(SavesThough(kind, count, EINTR)) << kind << ", " << count;
            EXPECT_EQ(folder.Read("a.txt"), "new");
        }
    }
}

TEST_F(InterruptedFiles, AReadThatASignalInterruptsIsRepeated) {
    for (const int count : {0, 1}) {
        Tracer tracer([this] { folder.Write("copy.txt", ReadFile(path)); });
        EXPECT_TRUE(tracer.DisturbKind(SYS_read, count, {EINTR}));
        EXPECT_TRUE(tracer.Succeeded());
        EXPECT_EQ(folder.Read("copy.txt"), "old");
    }
}

TEST_F(InterruptedFiles, AReadThatFailsIsNotTakenForTheEndOfTheFile) {
    Tracer tracer([this] { ReadFile(path); });
    EXPECT_TRUE(tracer.DisturbKind(SYS_read, 1, {EIO}));
    EXPECT_FALSE(tracer.Succeeded());
}

TEST_F(InterruptedFiles, AFolderThatCannotBeReadToItsEndIsNamed) {
    for (const int count : {0, 1}) {
        Tracer tracer([this] {
            try {
                ListFiles(folder.path());
                throw std::runtime_error("the folder was listed");
            } catch (const FileError& error) {
                if (error.what() != folder.path() + ": cannot be listed: Input/output error") throw;
            }
        });
        EXPECT_TRUE(tracer.DisturbKind(SYS_getdents64, count, {EIO}));
        EXPECT_TRUE(tracer.Succeeded()) << count;
    }
}

TEST_F(InterruptedFiles, ANameInAFolderThatCannotBeReadToItsEndIsLookedUpInWhatWasRead) {
    Tracer tracer([this] {
        if (MachinePath(folder.path() + "/A.TXT") != path) throw std::runtime_error("not found");
    });
    EXPECT_TRUE(tracer.DisturbKind(SYS_getdents64, 1, {EIO}));
    EXPECT_TRUE(tracer.Succeeded());
}

TEST_F(InterruptedFiles, NoFileIsHandedOnToAProgramThatTheGameStarts) {
    Tracer tracer([this] {
        Write();
        ReadFile(path);
    });
    const std::vector<std::string> opened = tracer.FollowOpening();
    EXPECT_TRUE(tracer.Succeeded());
    ASSERT_GE(opened.size(), 3U);
    for (const std::string& file : opened) EXPECT_TRUE(file.ends_with(" alone")) << file;
}

}  // namespace
}  // namespace quendrel::test
