// What is in a folder and in a zip archive, however bad it is.
#include "platform/Package.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "TemporaryFolder.h"
#include "WhatGoesWrong.h"
#include "ZipMaker.h"

namespace quendrel::test {
namespace {

namespace fs = std::filesystem;

using Lines = std::vector<std::string>;

class PackageTest : public ::testing::Test {
protected:
    std::string In(const std::string& name) const { return folder.path() + "/" + name; }

    std::unique_ptr<Package> Open(const std::string& name,
                                  const PackageLimits& limits = {1 << 20, 100}) const {
        return OpenPackage(In(name), limits);
    }

    /// A sorted line for every thing: its name, its kind, and the bytes of a file.
    static Lines Contents(const Package& package) {
        Lines lines;
        std::size_t index = 0;
        for (const Packed& packed : package.Contents()) {
            const bool isFile = packed.kind == Packed::Kind::kFile;
            const bool isFolder = packed.kind == Packed::Kind::kFolder;
            lines.push_back(packed.name + (isFile     ? ": " + package.Read(index)
                                           : isFolder ? " folder"
                                                      : " other"));
            ++index;
        }
        std::sort(lines.begin(), lines.end());
        return lines;
    }

    /// What is said where the first file of an archive is read.
    std::string TroubleInFirst(const std::string& name) const {
        const auto package = Open(name);
        return WhatGoesWrong([&] { static_cast<void>(package->Read(0)); });
    }

    TemporaryFolder folder;
};

TEST_F(PackageTest, AFolderIsListedAtEveryDepthAndItsFilesAreRead) {
    fs::create_directories(In("Mine/Game/Interface"));
    folder.Write("Mine/a.txt", "one");
    folder.Write("Mine/Game/Interface/b.txt", "two");
    EXPECT_EQ(Contents(*Open("Mine")), (Lines{"Game folder", "Game/Interface folder",
                                              "Game/Interface/b.txt: two", "a.txt: one"}));
}

TEST_F(PackageTest, LinksAndPipesInAFolderAreNeitherFollowedNorRead) {
    fs::create_directories(In("Mine"));
    folder.Write("secret", "secret");
    fs::create_symlink("../secret", In("Mine/link"));
    fs::create_directory_symlink("..", In("Mine/up"));
    ASSERT_EQ(mkfifo(In("Mine/pipe").c_str(), 0600), 0);
    EXPECT_EQ(Contents(*Open("Mine")), (Lines{"link other", "pipe other", "up other"}));
}

TEST_F(PackageTest, WhatLiesInAHiddenFolderIsNotCounted) {
    fs::create_directories(In("Mine/.git/objects"));
    folder.Write("Mine/a.txt", "one");
    EXPECT_EQ(Contents(*Open("Mine", {0, 2})), (Lines{".git folder", "a.txt: one"}));
}

TEST_F(PackageTest, AnArchiveIsListedAndReadCompressedOrNot) {
    {
        ZipMaker zip(In("a.zip"));
        zip.Add("Mine/a.txt", "one");
        zip.AddCompressed("Mine/Größe.txt", std::string(5000, 'x'));
        zip.Add("Mine/Game/", "");
    }
    EXPECT_EQ(Contents(*Open("a.zip")),
              (Lines{"Mine/Game/ folder", "Mine/Größe.txt: " + std::string(5000, 'x'),
                     "Mine/a.txt: one"}));
}

TEST_F(PackageTest, LinksAndPipesInAnArchiveAreToldFromFiles) {
    {
        ZipMaker zip(In("a.zip"));
        zip.AddOfType("file", S_IFREG, "one");
        zip.AddOfType("link", S_IFLNK, "../secret");
        zip.AddOfType("pipe", S_IFIFO, "");
        zip.AddOfType("device", S_IFCHR, "");
    }
    EXPECT_EQ(Contents(*Open("a.zip")),
              (Lines{"device other", "file: one", "link other", "pipe other"}));
}

TEST_F(PackageTest, MoreThingsThanTheLimitAreRefused) {
    fs::create_directories(In("Mine/Game"));
    folder.Write("Mine/a.txt", "one");
    {
        ZipMaker zip(In("a.zip"));
        for (const char* const name : {"a", "b", "c"}) zip.Add(name, "");
    }
    EXPECT_EQ(Open("Mine", {0, 2})->Contents().size(), 2U);
    EXPECT_EQ(Open("a.zip", {1 << 20, 3})->Contents().size(), 3U);
    EXPECT_EQ(WhatGoesWrong([this] {
                  Open("Mine", {0, 1});
              }),
              In("Mine") + ": holds more than 1 files and folders");
    EXPECT_EQ(WhatGoesWrong([this] {
                  Open("a.zip", {1 << 20, 2});
              }),
              In("a.zip") + ": holds more than 2 files and folders");
}

TEST_F(PackageTest, ALargerArchiveThanTheLimitIsNotOpened) {
    ZipMaker(In("a.zip")).Add("a.bmp", std::string(2 << 20, 'x'));
    EXPECT_EQ(WhatGoesWrong([this] {
                  Open("a.zip", {2 << 20, 10});
              }),
              In("a.zip") + ": is larger than 2 MiB");
}

TEST_F(PackageTest, WhatIsNeitherFolderNorArchiveIsRefused) {
    folder.Write("a.zip", "It only says so.");
    ASSERT_EQ(mkfifo(In("pipe.zip").c_str(), 0600), 0);
    EXPECT_EQ(WhatGoesWrong([this] { Open("a.zip"); }),
              In("a.zip") + ": cannot be unpacked: Not a zip archive");
    EXPECT_EQ(WhatGoesWrong([this] { Open("pipe.zip"); }),
              In("pipe.zip") + ": cannot be read: it is no plain file");
    EXPECT_EQ(WhatGoesWrong([this] { Open("none.zip"); }),
              In("none.zip") + ": cannot be opened: No such file or directory");
}

TEST_F(PackageTest, AnEncryptedFileIsNotRead) {
    ZipMaker(In("a.zip")).AddEncrypted("a.txt", "one");
    EXPECT_EQ(TroubleInFirst("a.zip"), In("a.zip") + ": a.txt: is encrypted");
}

TEST_F(PackageTest, AFileOfAnotherLengthThanTheArchiveStatesIsNotRead) {
    ZipMaker(In("long.zip")).AddCompressed("a.txt", std::string(100000, 'x'));
    ZipMaker(In("short.zip")).AddCompressed("a.txt", std::string(100000, 'x'));
    StateLength(In("long.zip"), 99999);
    StateLength(In("short.zip"), 100001);
    EXPECT_EQ(TroubleInFirst("long.zip"),
              In("long.zip") + ": a.txt: is longer than the archive says");
    EXPECT_EQ(TroubleInFirst("short.zip"),
              In("short.zip") + ": a.txt: is shorter than the archive says");
}

TEST_F(PackageTest, ADamagedFileOfAnArchiveIsFound) {
    ZipMaker(In("a.zip")).Add("a.txt", "everything is in order");
    std::string bytes = folder.Read("a.zip");
    bytes[bytes.find("order")] = 'O';
    folder.Write("a.zip", bytes);
    EXPECT_EQ(TroubleInFirst("a.zip"), In("a.zip") + ": a.txt: CRC error");
}

TEST_F(PackageTest, AFileOfAFolderThatHasGrownMeanwhileIsNotRead) {
    fs::create_directories(In("Mine"));
    folder.Write("Mine/a.txt", "one");
    const auto package = Open("Mine");
    folder.Write("Mine/a.txt", "one and more");
    EXPECT_EQ(WhatGoesWrong([&] { static_cast<void>(package->Read(0)); }),
              In("Mine/a.txt") + ": has just been changed");
}

}  // namespace
}  // namespace quendrel::test
