// What a bitmap file says of itself.
#include <limits>

#include <gtest/gtest.h>

#include "SecondTree.h"
#include "TemporaryFolder.h"
#include "platform/Errors.h"
#include "ui/picture/BitmapHeader.h"

namespace quendrel::test {
namespace {

class BitmapHeaderTest : public ::testing::Test {
protected:
    std::string Path() const { return folder.path() + "/a.bmp"; }

    Size SizeIn(const std::string& bytes) {
        folder.Write("a.bmp", bytes);
        return SizeOfBitmap(Path());
    }

    /// What is wrong with the file, without the path before it.
    std::string Fault() {
        try {
            SizeOfBitmap(Path());
        } catch (const FileError& error) {
            const std::string fault = error.what();
            EXPECT_EQ(fault.substr(0, Path().size()), Path());
            return fault.substr(Path().size());
        }
        return "";
    }

    std::string FaultOf(const std::string& bytes) {
        folder.Write("a.bmp", bytes);
        return Fault();
    }

    TemporaryFolder folder;
};

TEST_F(BitmapHeaderTest, TheSizeIsThatOfThePicture) {
    EXPECT_EQ(SizeIn(BitmapStart({1310, 1210})), (Size{1310, 1210}));
    EXPECT_EQ(SizeIn(BitmapStart({70000, 1}) + "more"), (Size{70000, 1}));
}

TEST_F(BitmapHeaderTest, APictureWhoseTopRowComesFirstIsAsHigh) {
    EXPECT_EQ(SizeIn(BitmapStart({88, -54})), (Size{88, 54}));
}

TEST_F(BitmapHeaderTest, TheOldestHeaderHasShortNumbers) {
    std::string bytes(26, '\0');
    bytes.replace(0, 6, "BM\x1A\0\0\0", 6);
    bytes[14] = 12;
    bytes.replace(18, 8, "\x1E\x05\xBA\x04\x01\0\x18\0", 8);
    EXPECT_EQ(SizeIn(bytes), (Size{1310, 1210}));
    bytes.replace(20, 2, "\xCA\xFF");
    EXPECT_EQ(SizeIn(bytes), (Size{1310, 54}));
}

TEST_F(BitmapHeaderTest, APictureWithoutPixelsIsRefused) {
    const int lowest = std::numeric_limits<int>::min();
    for (const Size size : {Size{0, 1}, {1, 0}, {-1, 1}, {lowest, 1}, {1, lowest}}) {
        EXPECT_EQ(FaultOf(BitmapStart(size)), ": has no pixels") << size.width << size.height;
    }
}

TEST_F(BitmapHeaderTest, AFileThatEndsEarlierThanItSaysIsCutShort) {
    const std::string whole = BitmapStart({2, 1}, 30) + "1234";
    for (std::size_t size = 2; size < whole.size(); ++size) {
        EXPECT_EQ(FaultOf(whole.substr(0, size)), ": is cut short") << size;
    }
    EXPECT_EQ(FaultOf(whole), "");
}

TEST_F(BitmapHeaderTest, AnythingElseIsNoBitmap) {
    const std::string fault = ": is no Windows bitmap; save it as one, with 24 bits a pixel";
    EXPECT_EQ(FaultOf(""), fault);
    EXPECT_EQ(FaultOf("B"), fault);
    EXPECT_EQ(FaultOf("This is no picture, and rather long."), fault);
}

TEST_F(BitmapHeaderTest, AMissingFileIsNamedWithTheReason) {
    EXPECT_EQ(Fault(), ": cannot be opened: No such file or directory");
}

}  // namespace
}  // namespace quendrel::test
