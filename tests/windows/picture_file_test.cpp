// Reading picture files.
#include <cstdint>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "Geometry.h"
#include "TemporaryFolder.h"
#include "platform/Errors.h"
#include "ui/picture/PictureFile.h"

namespace quendrel::test {
namespace {

using namespace std::string_literals;

/// Two pixels of 24 bits, red and then 0x102030, bottom row first and padded to four bytes.
const std::string kTwoPixels =
    "BM\x3E\0\0\0\0\0\0\0\x36\0\0\0"s
    "\x28\0\0\0\x02\0\0\0\x01\0\0\0\x01\0\x18\0\0\0\0\0\x08\0\0\0"
    "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"s
    "\0\0\xFF\x30\x20\x10\0\0"s;

/// The same two pixels as indexes into a palette of two colours.
const std::string kTwoPixelsByPalette =
    "BM\x42\0\0\0\0\0\0\0\x3E\0\0\0"s
    "\x28\0\0\0\x02\0\0\0\x01\0\0\0\x01\0\x08\0\0\0\0\0\x04\0\0\0"
    "\0\0\0\0\0\0\0\0\x02\0\0\0\x02\0\0\0"s
    "\0\0\xFF\0\x30\x20\x10\0"s
    "\0\x01\0\0"s;

/// A header for pixels of 24 bits, of which none follow.
std::string HeaderOf(std::uint32_t width, std::uint32_t height) {
    std::string bytes =
        "BM\x36\0\0\0\0\0\0\0\x36\0\0\0"s
        "\x28\0\0\0\0\0\0\0\0\0\0\0\x01\0\x18\0\0\0\0\0\0\0\0\0"
        "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"s;
    for (std::size_t i = 0; i < 4; ++i) {
        bytes[18 + i] = static_cast<char>(width >> 8 * i & 0xFF);
        bytes[22 + i] = static_cast<char>(height >> 8 * i & 0xFF);
    }
    return bytes;
}

class PictureFileTest : public ::testing::Test {
protected:
    Picture Read(const std::string& bytes) {
        folder.Write("a.bmp", bytes);
        return reader(folder.path() + "/a.bmp");
    }

    /// What is said of a file that cannot be read, after its path.
    std::string FaultOf(const std::string& name) const {
        const std::string path = folder.path() + "/" + name;
        try {
            reader(path);
        } catch (const FileError& error) {
            const std::string said = error.what();
            return said.starts_with(path + ": ") ? said.substr(path.size() + 2) : said;
        }
        return "nothing";
    }

    TemporaryFolder folder;
    const PictureReader reader = ReadPictureFile;
};

TEST_F(PictureFileTest, ReadsPixelsAsRedGreenBlue) {
    const Picture picture = Read(kTwoPixels);
    EXPECT_EQ(picture.size(), (Size{2, 1}));
    EXPECT_EQ(picture.At(0, 0), 0xFF0000U);
    EXPECT_EQ(picture.At(1, 0), 0x102030U);
}

TEST_F(PictureFileTest, ReadsPalettesAsWell) {
    EXPECT_EQ(Read(kTwoPixelsByPalette), Read(kTwoPixels));
}

TEST_F(PictureFileTest, AFileCutShortAnywhereIsAFileErrorThatNamesIt) {
    for (std::size_t size = 0; size < kTwoPixels.size(); ++size) {
        try {
            Read(kTwoPixels.substr(0, size));
            FAIL() << "read " << size << " bytes";
        } catch (const FileError& error) {
            EXPECT_EQ(std::string(error.what()).rfind(folder.path() + "/a.bmp: ", 0), 0U);
        }
    }
}

TEST_F(PictureFileTest, ReadsTheOldestHeaderToo) {
    EXPECT_EQ(Read("BM\x22\0\0\0\0\0\0\0\x1A\0\0\0"
                   "\x0C\0\0\0\x02\0\x01\0\x01\0\x18\0"
                   "\0\0\xFF\x30\x20\x10\0\0"s),
              Read(kTwoPixels));
}

TEST_F(PictureFileTest, AHeaderOfAnyOtherLengthIsNotGuessedAt) {
    folder.Write("a.bmp",
                 "BM\x22\0\0\0\0\0\0\0\x1A\0\0\0"
                 "\x0D\0\0\0\x02\0\x01\0\x01\0\x18\0"
                 "\0\0\xFF\x30\x20\x10\0\0"s);
    EXPECT_EQ(FaultOf("a.bmp"), "is no usual Windows bitmap; save it as one, with 24 bits a pixel");
}

TEST_F(PictureFileTest, ASizeThatNoMachineHasMemoryForIsTheFaultOfTheFile) {
    constexpr std::uint32_t kMost = 0x7FFFFFFF;
    for (const std::uint32_t width : {40'000U, kMost}) {
        for (const std::uint32_t height : {40'000U, kMost, 0U - kMost}) {
            folder.Write("a.bmp", HeaderOf(width, height));
            EXPECT_EQ(FaultOf("a.bmp"), "Unable to read image data") << width << " x " << height;
        }
    }
}

TEST_F(PictureFileTest, TextIsNoPicture) { EXPECT_THROW(Read("BMbetter not"), FileError); }

TEST_F(PictureFileTest, AMissingFileIsAFileErrorThatNamesIt) {
    EXPECT_EQ(FaultOf("none.bmp"), "cannot be opened: No such file or directory");
}

TEST_F(PictureFileTest, APipeIsNoPictureAndIsNotWaitedFor) {
    ASSERT_EQ(mkfifo((folder.path() + "/pipe.bmp").c_str(), 0600), 0);
    EXPECT_EQ(FaultOf("pipe.bmp"), "cannot be read: it is no plain file");
}

TEST_F(PictureFileTest, AnyBytesCanBeTheNameOfAPicture) {
    folder.Write("caf\xE9\\.bmp", kTwoPixels);
    EXPECT_EQ(reader(folder.path() + "/caf\xE9\\.bmp").size(), (Size{2, 1}));
}

}  // namespace
}  // namespace quendrel::test
