// Files of the machine.
#include "platform/Files.h"

#include <chrono>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "FileLimits.h"
#include "TemporaryFolder.h"
#include "WhatGoesWrong.h"
#include "platform/Errors.h"

namespace quendrel::test {
namespace {

namespace fs = std::filesystem;

class FilesTest : public ::testing::Test {
protected:
    std::string In(const std::string& name) const { return folder.path() + "/" + name; }

    std::size_t EntriesInFolder() const {
        std::size_t count = 0;
        for ([[maybe_unused]] const auto& entry : fs::directory_iterator(folder.path())) ++count;
        return count;
    }

    mode_t PermissionsOf(const std::string& name) const {
        struct stat status {};
        EXPECT_EQ(stat(In(name).c_str(), &status), 0);
        return status.st_mode & 07777;
    }

    TemporaryFolder folder;
};

TEST_F(FilesTest, ANameWithBackslashesIsFoundWithoutRegardToCase) {
    fs::create_directories(In("Skin/Atelier/GAME"));
    folder.Write("Skin/Atelier/GAME/board.BMP", "x");
    EXPECT_EQ(MachinePath(folder.path() + "\\skin\\atelier\\Game\\Board.bmp"),
              In("Skin/Atelier/GAME/board.BMP"));
}

TEST_F(FilesTest, TheExactNameIsTakenBeforeOneThatDiffersInCase) {
    folder.Write("Board.bmp", "x");
    folder.Write("BOARD.bmp", "x");
    EXPECT_EQ(MachinePath(folder.path() + "\\Board.bmp"), In("Board.bmp"));
    EXPECT_EQ(MachinePath(folder.path() + "\\BOARD.bmp"), In("BOARD.bmp"));
}

TEST_F(FilesTest, OfSeveralNamesThatDifferInCaseTheFirstIsTaken) {
    const std::vector<std::string> names{"bOARD.BMP", "BOARd.bmp", "Board.bmp", "BOard.bmp"};
    for (std::size_t last = 0; last < names.size(); ++last) {
        fs::create_directories(In("Skin"));
        for (std::size_t i = 1; i <= names.size(); ++i) {
            folder.Write("Skin/" + names.at((last + i) % names.size()), "x");
        }
        EXPECT_EQ(MachinePath(folder.path() + "\\Skin\\board.bmp"), In("Skin/BOARd.bmp"));
        EXPECT_EQ(MachinePath(folder.path() + "\\SKIN\\BOARD.BMP"), In("Skin/BOARd.bmp"));
        fs::remove_all(In("Skin"));
    }
}

TEST_F(FilesTest, OfSeveralFoldersThatDifferInCaseTheFirstIsTaken) {
    for (const char* name : {"Skin/game", "Skin/GAME", "Skin/Game", "skin/game"}) {
        fs::create_directories(In(name));
    }
    EXPECT_EQ(MachinePath(folder.path() + "\\SKIN\\gAME\\None.bmp"), In("Skin/GAME/None.bmp"));
}

TEST_F(FilesTest, ABackslashCanBeALetterOfAName) {
    fs::create_directories(In("one\\half/Skin/Ours\\2"));
    folder.Write("one\\half/Skin/Ours\\2/Board.bmp", "x");
    EXPECT_EQ(MachinePath(In("one\\half") + "\\skin\\Ours\\2\\board.BMP"),
              In("one\\half/Skin/Ours\\2/Board.bmp"));
    EXPECT_EQ(MachinePath(In("one\\half") + "\\Playlist.dat"), In("one\\half/Playlist.dat"));
}

TEST_F(FilesTest, ABackslashPartsNamesWhereThatLeadsFarther) {
    fs::create_directories(In("one/half/Skin"));
    fs::create_directories(In("one\\half"));
    EXPECT_EQ(MachinePath(In("one\\half") + "\\Skin"), In("one/half/Skin"));
    EXPECT_EQ(MachinePath(In("one\\half") + "\\new"), In("one/half/new"));
    fs::create_directories(In("one\\half/Sound/More"));
    EXPECT_EQ(MachinePath(In("one\\half") + "\\Sound\\new"), In("one\\half/Sound/new"));
}

TEST_F(FilesTest, AnAbsolutePathHasNeitherDotsNorDoubledSlashes) {
    folder.Write("a.txt", "x");
    EXPECT_EQ(AbsolutePath(In("b/.././/a.txt")), In("a.txt"));
    EXPECT_EQ(AbsolutePath(In("caf\xE9\\/")), In("caf\xE9\\"));
    EXPECT_EQ(AbsolutePath("/"), "/");
    const fs::path before = fs::current_path();
    fs::current_path(folder.path());
    EXPECT_EQ(AbsolutePath("new/b"), In("new/b"));
    fs::current_path(before);
}

TEST_F(FilesTest, ANameThatFitsNothingStaysAsWritten) {
    EXPECT_EQ(MachinePath(folder.path() + "\\Skin\\None.bmp"), In("Skin/None.bmp"));
}

TEST_F(FilesTest, AFileIsReplacedWhole) {
    folder.Write("a.txt", "a much longer text");
    WriteFileAtomically(In("a.txt"), "short");
    EXPECT_EQ(folder.Read("a.txt"), "short");
    EXPECT_EQ(EntriesInFolder(), 1U);
}

TEST_F(FilesTest, AShorterTextKeepsTheTailOfTheOldOneWhereThatIsAskedFor) {
    WriteFileKeepingTail(In("a.txt"), "first");
    EXPECT_EQ(folder.Read("a.txt"), "first");
    WriteFileKeepingTail(In("a.txt"), "a longer text");
    EXPECT_EQ(folder.Read("a.txt"), "a longer text");
    WriteFileKeepingTail(In("a.txt"), "A ");
    EXPECT_EQ(folder.Read("a.txt"), "A longer text");
    EXPECT_EQ(EntriesInFolder(), 1U);
}

TEST_F(FilesTest, FilesAndFoldersAreListedApartAndByNameWithoutRegardToCase) {
    fs::create_directories(In("folder"));
    fs::create_directories(In("Archive"));
    folder.Write("b.txt", "x");
    folder.Write("A.txt", "x");
    folder.Write("a.txt", "x");
    EXPECT_EQ(ListFiles(folder.path()), (std::vector<std::string>{"A.txt", "a.txt", "b.txt"}));
    EXPECT_EQ(ListFolders(folder.path()), (std::vector<std::string>{"Archive", "folder"}));
    EXPECT_THROW(ListFiles(In("none")), FileError);
}

TEST_F(FilesTest, HiddenFilesAndFoldersAreNotListed) {
    fs::create_directories(In(".git"));
    fs::create_directories(In("folder"));
    folder.Write(".hidden.txt", "x");
    folder.Write("a.txt", "x");
    EXPECT_EQ(ListFiles(folder.path()), std::vector<std::string>{"a.txt"});
    EXPECT_EQ(ListFolders(folder.path()), std::vector<std::string>{"folder"});
}

TEST_F(FilesTest, NamesThatWouldLeadElsewhereAreNotListed) {
    fs::create_directories(In("List/Skin"));
    fs::create_directories(In("List/Skin\\..\\..\\Other"));
    folder.Write("List/Air.mid", "x");
    folder.Write("List/Skin\\..\\..\\Air.mid", "x");
    fs::create_directories(In("List/\\Other"));
    fs::create_directories(In("List/Half\\..more"));
    EXPECT_EQ(ListFolders(In("List")), (std::vector<std::string>{"Half\\..more", "Skin"}));
    EXPECT_EQ(ListFiles(In("List")), std::vector<std::string>{"Air.mid"});
}

TEST_F(FilesTest, AReplacedFileKeepsItsPermissions) {
    folder.Write("a.txt", "old");
    ASSERT_EQ(chmod(In("a.txt").c_str(), 0640), 0);
    WriteFileAtomically(In("a.txt"), "new");
    EXPECT_EQ(PermissionsOf("a.txt"), 0640U);
}

TEST_F(FilesTest, ANewFileHasThePermissionsThatThePlayersMaskLeaves) {
    const mode_t before = umask(0);
    for (const auto& [mask, expected] :
         {std::pair{0U, 0666U}, {0022U, 0644U}, {0027U, 0640U}, {0077U, 0600U}}) {
        umask(mask);
        WriteFileAtomically(In("a.txt"), "new");
        EXPECT_EQ(PermissionsOf("a.txt"), expected);
        EXPECT_EQ(umask(0), mask);
        RemoveFile(In("a.txt"));
    }
    umask(before);
}

TEST_F(FilesTest, OfWhatIsBesideAFileASaveRemovesOnlyWhatAnOldSaveOfItHasLeft) {
    const std::vector<std::string> kept{
        ".a.txt.new.abc12",    // too few letters
        ".a.txt.new.abc1234",  // too many
        ".a.txt.new.abc.12",   // none that a save has
        ".a.txt.backup",       // the player's
        ".aatxt.new.abc123",   // another name
        ".b.txt.new.abc123",   // another file's
        "a.txt.new.abc123",    // not hidden
    };
    for (const std::string& name : kept) folder.Write(name, "x");
    folder.Write(".a.txt.new.aB3xYz", "left");
    folder.Write(".a.txt.new.111111", "left");
    fs::create_directory(In(".a.txt.new.folder"));
    const auto hoursAgo = fs::file_time_type::clock::now() - std::chrono::hours(2);
    for (const auto& entry : fs::directory_iterator(folder.path())) {
        fs::last_write_time(entry, hoursAgo);
    }
    folder.Write(".a.txt.new.youngs", "being written");
    fs::create_symlink(".a.txt.backup", In(".a.txt.new.linked"));

    WriteFileAtomically(In("a.txt"), "new");
    EXPECT_FALSE(fs::exists(In(".a.txt.new.aB3xYz")));
    EXPECT_FALSE(fs::exists(In(".a.txt.new.111111")));
    for (const std::string& name : kept) EXPECT_TRUE(fs::exists(In(name))) << name;
    for (const char* const name : {"folder", "linked", "youngs"}) {
        EXPECT_TRUE(fs::exists(In(".a.txt.new." + std::string(name)))) << name;
    }
    EXPECT_EQ(EntriesInFolder(), kept.size() + 4);
}

TEST_F(FilesTest, AFileWithTheLongestNameThatTheSystemHoldsIsSaved) {
    const std::string longest(255, 'x');
    for (const char* const bytes : {"old", "new"}) {
        EXPECT_EQ(WhatGoesWrong([&] { WriteFileAtomically(In(longest), bytes); }), "nothing");
        EXPECT_EQ(folder.Read(longest), bytes);
    }
    EXPECT_EQ(EntriesInFolder(), 1U);
}

TEST_F(FilesTest, ALinkStaysALink) {
    folder.Write("real.txt", "old");
    fs::create_symlink("real.txt", In("link.txt"));
    WriteFileAtomically(In("link.txt"), "new");
    EXPECT_TRUE(fs::is_symlink(In("link.txt")));
    EXPECT_EQ(folder.Read("real.txt"), "new");
}

TEST_F(FilesTest, WhatCannotBeWrittenNamesThePathAndLeavesNothingBehind) {
    fs::create_directory(In("taken"));
    try {
        WriteFileAtomically(In("taken"), "new");
        FAIL();
    } catch (const FileError& error) {
        EXPECT_EQ(error.what(), In("taken") + ": cannot be written: it is no plain file");
    }
    EXPECT_EQ(EntriesInFolder(), 1U);
    EXPECT_THROW(WriteFileAtomically(In("none/a.txt"), "new"), FileError);
}

TEST_F(FilesTest, AFileThatItsOwnerMayNotWriteIsNeitherReplacedNorDeleted) {
    folder.Write("a.txt", "old");
    ASSERT_EQ(chmod(In("a.txt").c_str(), 0444), 0);
    EXPECT_EQ(WhatGoesWrong([this] { WriteFileAtomically(In("a.txt"), "new"); }),
              In("a.txt") + ": cannot be written: it is read-only");
    EXPECT_EQ(WhatGoesWrong([this] { WriteFileKeepingTail(In("a.txt"), "new"); }),
              In("a.txt") + ": cannot be written: it is read-only");
    EXPECT_EQ(WhatGoesWrong([this] { RemoveFile(In("a.txt")); }),
              In("a.txt") + ": cannot be deleted: it is read-only");
    EXPECT_EQ(folder.Read("a.txt"), "old");
    EXPECT_EQ(EntriesInFolder(), 1U);
}

TEST_F(FilesTest, ALinkThatLeadsNowhereIsFollowedAndItsTargetMade) {
    fs::create_directory(In("elsewhere"));
    fs::create_symlink("elsewhere/step.txt", In("link.txt"));
    fs::create_symlink("real.txt", In("elsewhere/step.txt"));
    WriteFileAtomically(In("link.txt"), "new");
    EXPECT_TRUE(fs::is_symlink(In("link.txt")));
    EXPECT_TRUE(fs::is_symlink(In("elsewhere/step.txt")));
    EXPECT_EQ(folder.Read("elsewhere/real.txt"), "new");
}

TEST_F(FilesTest, ALinkToItselfIsLeftAlone) {
    fs::create_symlink("round.txt", In("round.txt"));
    EXPECT_EQ(WhatGoesWrong([this] { WriteFileAtomically(In("round.txt"), "new"); }),
              In("round.txt") + ": cannot be written: Too many levels of symbolic links");
    EXPECT_TRUE(fs::is_symlink(In("round.txt")));
}

TEST_F(FilesTest, ASocketIsLeftAlone) {
    ASSERT_EQ(mknod(In("socket").c_str(), S_IFSOCK | 0600, 0), 0);
    EXPECT_EQ(WhatGoesWrong([this] { WriteFileAtomically(In("socket"), "new"); }),
              In("socket") + ": cannot be written: it is no plain file");
    EXPECT_TRUE(fs::is_socket(In("socket")));
}

TEST_F(FilesTest, ANameOfManyBackslashesIsFollowedAtOnce) {
    const auto begin = std::chrono::steady_clock::now();
    folder.Write("Air.mid", "x");
    std::string dots;
    std::string backslashes = "A";
    while (dots.size() < 3000) dots += ".\\";
    while (backslashes.size() < 65000) backslashes += "\\";
    EXPECT_EQ(ReadFile(MachinePath(folder.path() + "\\" + dots + "Air.mid")), "x");
    EXPECT_FALSE(FileExists(MachinePath(folder.path() + "\\" + backslashes)));
    while (dots.size() < 65000) dots += dots;
    EXPECT_FALSE(FileExists(MachinePath(folder.path() + "\\" + dots + "Air.mid")));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(5));
}

TEST_F(FilesTest, APipeIsLeftAloneAndNotWaitedFor) {
    ASSERT_EQ(mkfifo(In("pipe").c_str(), 0600), 0);
    fs::create_symlink("pipe", In("link"));
    for (const std::string& path : {In("pipe"), In("link")}) {
        EXPECT_EQ(WhatGoesWrong([&path] { ReadFile(path); }),
                  path + ": cannot be read: it is no plain file");
        EXPECT_EQ(WhatGoesWrong([&path] { WriteFileAtomically(path, "new"); }),
                  path + ": cannot be written: it is no plain file");
        EXPECT_EQ(WhatGoesWrong([&path] { WriteFileKeepingTail(path, "new"); }),
                  path + ": cannot be written: it is no plain file");
        EXPECT_EQ(WhatGoesWrong([&path] { RemoveFile(path); }),
                  path + ": cannot be deleted: it is no plain file");
    }
    EXPECT_TRUE(fs::is_fifo(In("pipe")));
    EXPECT_EQ(EntriesInFolder(), 2U);
}

TEST_F(FilesTest, DeletingWhatIsAlreadyGoneIsNoError) {
    folder.Write("a.txt", "old");
    RemoveFile(In("a.txt"));
    EXPECT_EQ(EntriesInFolder(), 0U);
    RemoveFile(In("a.txt"));
    RemoveFile(In("none/a.txt"));
}

TEST_F(FilesTest, AWriteThatRunsOutOfSpaceLeavesTheOldFile) {
    folder.Write("a.txt", "old");
    {
        const FileSizeLimit limit(2);
        EXPECT_THROW(WriteFileAtomically(In("a.txt"), "new text"), FileError);
    }
    EXPECT_EQ(folder.Read("a.txt"), "old");
    EXPECT_EQ(EntriesInFolder(), 1U);
}

TEST_F(FilesTest, InAFolderThatIsReadOnlyNothingIsWrittenOrDeleted) {
    folder.Write("a.txt", "old");
    fs::permissions(folder.path(), fs::perms(0555));
    {
        const OrdinaryUser user;
        EXPECT_EQ(WhatGoesWrong([this] { WriteFileAtomically(In("b.txt"), "new"); }),
                  In("b.txt") + ": cannot be written: Permission denied");
        EXPECT_EQ(WhatGoesWrong([this] { WriteFileAtomically(In("a.txt"), "new"); }),
                  In("a.txt") + ": cannot be written: Permission denied");
        EXPECT_EQ(WhatGoesWrong([this] { RemoveFile(In("a.txt")); }),
                  In("a.txt") + ": cannot be deleted: Permission denied");
    }
    fs::permissions(folder.path(), fs::perms(0700));
    EXPECT_EQ(folder.Read("a.txt"), "old");
    EXPECT_EQ(EntriesInFolder(), 1U);
}

TEST_F(FilesTest, AMissingFileSaysWhichAndWhy) {
    try {
        ReadFile(In("none.txt"));
        FAIL();
    } catch (const FileError& error) {
        EXPECT_EQ(error.what(), In("none.txt") + ": cannot be opened: No such file or directory");
    }
}

TEST_F(FilesTest, AFolderIsNoFile) {
    EXPECT_THROW(ReadFile(folder.path()), FileError);
    EXPECT_FALSE(FileExists(folder.path()));
    EXPECT_TRUE(FolderExists(folder.path()));
}

TEST_F(FilesTest, BytesAreReadAsTheyStand) {
    const std::string bytes("a\0\r\n\xFF", 5);
    folder.Write("a.bin", bytes);
    EXPECT_EQ(ReadFile(In("a.bin")), bytes);
}

TEST_F(FilesTest, TheStartOfAFileIsReadWithTheLengthOfAllOfIt) {
    const std::string bytes("a\0\r\n\xFF", 5);
    folder.Write("a.bin", bytes);
    for (const std::size_t count : {0U, 2U, 5U, 9U}) {
        const FileStart start = ReadFileStart(In("a.bin"), count);
        EXPECT_EQ(start.bytes, bytes.substr(0, count));
        EXPECT_EQ(start.length, 5U);
    }
    EXPECT_EQ(WhatGoesWrong([this] { ReadFileStart(In("none.bin"), 2); }),
              In("none.bin") + ": cannot be opened: No such file or directory");
    EXPECT_EQ(WhatGoesWrong([this] { ReadFileStart(folder.path(), 2); }),
              folder.path() + ": cannot be read: it is no plain file");
}

TEST_F(FilesTest, FoldersAreListedByNameWithoutRegardToCaseAndFilesAreNot) {
    for (const char* name : {"beacon", "Atelier", "daylight", "Carbon"}) {
        fs::create_directory(In(name));
    }
    folder.Write("Aaa.txt", "x");
    EXPECT_EQ(ListFolders(folder.path()),
              (std::vector<std::string>{"Atelier", "beacon", "Carbon", "daylight"}));
}

TEST_F(FilesTest, AMissingFolderCannotBeListed) {
    EXPECT_THROW(ListFolders(In("none")), FileError);
}

}  // namespace
}  // namespace quendrel::test
