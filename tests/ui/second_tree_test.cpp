// A skin's pictures at twice the size: what keeps them from being shown, and what is shown instead.
#include <filesystem>

#include "GameFixture.h"
#include "SecondTree.h"
#include "SkinFolder.h"
#include "TemporaryFolder.h"
#include "ui/skin/SkinFiles.h"
#include "ui/skin/WindowShape.h"

namespace quendrel::test {
namespace {

class SecondTreeTest : public ::testing::Test {
protected:
    SecondTreeTest() {
        WriteSecondTree(folder, "Atelier");
        global.SkinFolder = folder.path() + "\\";
        global.SkinNames = {"Atelier"};
    }

    std::string At(const std::string& name) const { return second + "/" + name; }

    void Remove(const std::string& name) const { std::filesystem::remove(At(name)); }
    void Write(const std::string& name, const std::string& bytes) const {
        folder.Write("Atelier/2x/" + name, bytes);
    }

    std::string Fault() const { return FaultOfSecondTree(root); }

    /// Reads the skin whole where the screen asks for `density`; what standard error says of it.
    std::string SaidOfReading(int density) {
        testing::internal::CaptureStderr();
        read = ReadWholeSkin(reader, global, 1, density);
        return testing::internal::GetCapturedStderr();
    }

    int ShownDensity() const { return read.board.easyBoard.density(); }

    TemporaryFolder folder;
    const std::string root = folder.path() + "/Atelier";
    const std::string second = root + "/2x";
    Global global;
    Log log;
    RecordingPictureReader reader{log};
    MainSkin read;
};

TEST_F(SecondTreeTest, AWholeOneHasNoFault) {
    EXPECT_TRUE(HasSecondTree(root));
    EXPECT_EQ(Fault(), "");
}

TEST_F(SecondTreeTest, EachFileThatIsMissingIsNamed) {
    for (const File& file : AllFiles()) {
        Remove(file.name);
        EXPECT_EQ(Fault(), At(file.name) + ": cannot be opened: No such file or directory");
        Write(file.name, BitmapStart({2 * file.size.width, 2 * file.size.height}));
    }
    EXPECT_EQ(Fault(), "");
}

TEST_F(SecondTreeTest, EachFileThatIsOnePixelOffIsNamedWithBothSizes) {
    for (const File& file : AllFiles()) {
        const Size right{2 * file.size.width, 2 * file.size.height};
        const auto pixels = [](Size size) {
            return std::to_string(size.width) + " x " + std::to_string(size.height) + " pixels";
        };
        for (const Size wrong :
             {Size{right.width - 1, right.height}, Size{right.width, right.height - 1},
              Size{right.width + 1, right.height}}) {
            const bool mayBeLarger = file.name == "Game/Modes.bmp" && wrong.width > right.width;
            Write(file.name, BitmapStart(wrong));
            EXPECT_EQ(Fault(), mayBeLarger ? ""
                                           : At(file.name) + ": has " + pixels(wrong) +
                                                 " instead of " + pixels(right));
        }
        Write(file.name, BitmapStart(right));
    }
}

TEST_F(SecondTreeTest, AFileThatIsNoBitmapOrCutShortIsNamed) {
    Write("High/Interface/Ok_Up.bmp", "no picture at all, but long enough for one");
    EXPECT_EQ(Fault(), At("High/Interface/Ok_Up.bmp") +
                           ": is no Windows bitmap; save it as one, with 24 bits a pixel");
    Write("High/Interface/Ok_Up.bmp", BitmapStart({184, 68}, 27));
    EXPECT_EQ(Fault(), At("High/Interface/Ok_Up.bmp") + ": is cut short");
}

TEST_F(SecondTreeTest, NamesOfAnotherCaseAreFound) {
    std::filesystem::rename(At("Game"), At("GAME"));
    std::filesystem::rename(second, root + "/2X");
    EXPECT_TRUE(HasSecondTree(root));
    EXPECT_EQ(Fault(), "");
}

TEST_F(SecondTreeTest, IsShownWhereTheScreenAsksForIt) {
    EXPECT_EQ(SaidOfReading(2), "");
    EXPECT_EQ(read.board.easyBoard, DoubledTestSkin().easyBoard);
    EXPECT_EQ(read.board.picColors, DoubledTestSkin().picColors);
    const ButtonPictures& exit = read.buttons.at(ButtonOf(CommandButton::kExit));
    EXPECT_EQ(exit.up.size(), (Size{164, 68}));
    EXPECT_EQ(exit.up.extent(), (Size{82, 34}));
    EXPECT_EQ(TreeOf(global, 1, 2).density, 2);
}

TEST_F(SecondTreeTest, IsNotShownWhereTheScreenDoesNotAskForIt) {
    EXPECT_EQ(SaidOfReading(1), "");
    EXPECT_EQ(read.board.easyBoard, TestSkin().easyBoard);
    EXPECT_EQ(TreeOf(global, 1, 1).density, 1);
}

TEST_F(SecondTreeTest, IsNotLookedAtWhereTheScreenDoesNotAskForIt) {
    Remove("Game/Board.bmp");
    EXPECT_EQ(SaidOfReading(1), "");
    EXPECT_EQ(ShownDensity(), 1);
    EXPECT_EQ(log.Text().find("/2x/"), std::string::npos);
    EXPECT_EQ(TreeOf(global, 1, 1).density, 1);
}

TEST_F(SecondTreeTest, ASkinWithoutOneIsShownInItsSingleSizeAndNothingIsSaid) {
    std::filesystem::remove_all(second);
    EXPECT_FALSE(HasSecondTree(root));
    EXPECT_EQ(SaidOfReading(2), "");
    EXPECT_EQ(read.board.easyBoard, TestSkin().easyBoard);
    EXPECT_EQ(TreeOf(global, 1, 2).density, 1);
}

TEST_F(SecondTreeTest, ADamagedOneIsSaidAndTheSkinShownInItsSingleSize) {
    Write("About/Interface/Ok_Over.bmp", BitmapStart({140, 81}));
    EXPECT_EQ(SaidOfReading(2), "quendrel: " + At("About/Interface/Ok_Over.bmp") +
                                    ": has 140 x 81 pixels instead of 140 x 80 pixels; the skin is "
                                    "shown in its single size\n");
    EXPECT_EQ(read.board.easyBoard, TestSkin().easyBoard);
    EXPECT_EQ(TreeOf(global, 1, 2).density, 1);
}

TEST_F(SecondTreeTest, OneOfWhichAPictureOrTheMaskCannotBeReadIsSaidToo) {
    for (const char* const name : {"Game/Dots.bmp", "Game/Boardmask.bmp"}) {
        reader.missing = At(name);
        EXPECT_EQ(SaidOfReading(2), "quendrel: " + At(name) +
                                        ": No such file or directory; the skin is shown in its "
                                        "single size\n");
        EXPECT_EQ(read.board.easyBoard, TestSkin().easyBoard);
    }
}

TEST_F(SecondTreeTest, DoesNotStandInForADamagedFirstOne) {
    reader.missing = root + "/Config/Interface/Add_Up.bmp";
    EXPECT_THROW(ReadWholeSkin(reader, global, 1, 2), FileError);
}

TEST_F(SecondTreeTest, AWindowHasBothMasksWhereItIsWholeAndOtherwiseTheSingleOne) {
    const OutlineMasks both = ReadMasks(reader, global, 1, kHighMask);
    EXPECT_EQ(both.single.size(), (Size{460, 448}));
    EXPECT_EQ(both.doubled.size(), (Size{920, 896}));
    Remove("Game/Dots.bmp");
    const OutlineMasks one = ReadMasks(reader, global, 1, kHighMask);
    EXPECT_EQ(one.single.size(), (Size{460, 448}));
    EXPECT_EQ(one.doubled.size(), (Size{0, 0}));
}

TEST_F(SecondTreeTest, AWindowWhoseLargerMaskCannotBeReadHasTheSingleOne) {
    reader.missing = At("High/Highmask.bmp");
    const OutlineMasks one = ReadMasks(reader, global, 1, kHighMask);
    EXPECT_EQ(one.single.size(), (Size{460, 448}));
    EXPECT_EQ(one.doubled.size(), (Size{0, 0}));
    reader.missing = root + "/High/Highmask.bmp";
    EXPECT_THROW(ReadMasks(reader, global, 1, kHighMask), FileError);
}

}  // namespace
}  // namespace quendrel::test
