// What the check of a skin finds in its pictures: outlines, grounds of live text and animations,
// masks, pegs, marks, numbers, covers, holes, corners of buttons; and in those of twice the size.
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Geometry.h"
#include "SkinFileList.h"
#include "SpoiltSkin.h"
#include "ui/skin/SkinCheck.h"

namespace quendrel::test {
namespace {

namespace fs = std::filesystem;

constexpr Pixel kBlack = 0x000000;
constexpr Pixel kWhite = 0xFFFFFF;

class SkinCheckTest : public SpoiltSkin {
protected:
    SkinCheckTest() { CopySkin(root); }
};

TEST_F(SkinCheckTest, EverySkinOfOursIsComplete) {
    for (const char* name : {"Atelier", "Beacon", "Carbon", "Daylight"}) {
        EXPECT_EQ(FaultsOfSkin(reader, std::string(QUENDREL_SKIN_FOLDER) + "/" + name),
                  std::vector<std::string>{});
    }
}

TEST_F(SkinCheckTest, AMaskWithoutWhiteIsNamed) {
    struct Mask {
        std::string name;
        Rect whole;
    };
    for (const Mask& mask : {Mask{"Game/Boardmask.bmp", {0, 0, 655, 605}},
                             Mask{"Config/Configmask.bmp", {0, 0, 640, 490}},
                             Mask{"High/Highmask.bmp", {0, 0, 460, 448}},
                             Mask{"About/Aboutmask.bmp", {0, 0, 464, 316}}}) {
        const std::string before = folder.Read("skin/" + mask.name);
        Paint(mask.name, mask.whole, 0xFEFFFF);
        EXPECT_EQ(OnlyFault(), mask.name +
                                   ": has no pixel that is exactly white (255, 255, 255); paint "
                                   "white what is to be cut away");
        Paint(mask.name, mask.whole, kWhite);
        EXPECT_EQ(OnlyFault(),
                  mask.name + ": is all white; paint black what is to be kept of the window");
        folder.Write("skin/" + mask.name, before);
    }
}

TEST_F(SkinCheckTest, ABrightRimIsNamed) {
    Paint("High/Highmask.bmp", {0, 0, 460, 448}, kWhite);
    Paint("High/Highmask.bmp", {30, 30, 400, 390}, kBlack);
    Paint("High/High.bmp", {30, 30, 400, 1}, 0x101010);
    Paint("High/High.bmp", {30, 419, 400, 1}, 0x101010);
    Paint("High/High.bmp", {30, 30, 1, 390}, 0x101010);
    Paint("High/High.bmp", {429, 30, 1, 390}, 0x101010);
    EXPECT_EQ(Faults(), std::vector<std::string>{});
    Paint("High/High.bmp", {100, 30, 1, 1}, 0x104110);
    EXPECT_EQ(OnlyFault(),
              "High/High.bmp: is #104110 at 100, 30, on the edge of the outline; paint the last "
              "pixel within the outline dark, no channel above 64");
}

TEST_F(SkinCheckTest, TheEdgeOfThePictureIsARimToo) {
    Paint("High/Highmask.bmp", {0, 0, 460, 448}, kBlack);
    Paint("High/Highmask.bmp", {5, 5, 1, 1}, kWhite);
    Paint("High/High.bmp", {4, 4, 3, 3}, 0x101010);
    for (const Rect& edge :
         {Rect{0, 0, 460, 1}, Rect{0, 447, 460, 1}, Rect{0, 0, 1, 448}, Rect{459, 0, 1, 448}}) {
        Paint("High/High.bmp", edge, 0x101010);
    }
    EXPECT_EQ(Faults(), std::vector<std::string>{});
    for (const Point at : {Point{0, 100}, Point{459, 100}, Point{100, 0}, Point{100, 447}}) {
        Paint("High/High.bmp", {at.x, at.y, 1, 1}, 0x104110);
        EXPECT_EQ(OnlyFault(), "High/High.bmp: is #104110 at " + std::to_string(at.x) + ", " +
                                   std::to_string(at.y) +
                                   ", on the edge of the outline; paint the last pixel within the "
                                   "outline dark, no channel above 64");
        Paint("High/High.bmp", {at.x, at.y, 1, 1}, 0x101010);
    }
}

TEST_F(SkinCheckTest, ABrightGroundUnderLiveTextIsNamed) {
    Paint("Game/Board.bmp", {40, 125, 1, 1}, 0x1C6529);
    EXPECT_EQ(OnlyFault(),
              "Game/Board.bmp: has #1C6529 at 40, 125, under live text; paint the place 18, 120 "
              "(170 x 18) dark and even, no channel above 100 or more than 48 from the middle of "
              "the place");
}

TEST_F(SkinCheckTest, AnUnevenGroundUnderLiveTextIsNamed) {
    Paint("Game/Board.bmp", {18, 120, 170, 18}, kBlack);
    Paint("Game/Board.bmp", {40, 125, 1, 1}, 0x303030);
    EXPECT_EQ(Faults(), std::vector<std::string>{});
    Paint("Game/Board.bmp", {40, 125, 1, 1}, 0x303130);
    EXPECT_EQ(OnlyFault(),
              "Game/Board.bmp: has #303130 at 40, 125, under live text; paint the place 18, 120 "
              "(170 x 18) dark and even, no channel above 100 or more than 48 from the middle of "
              "the place");
}

TEST_F(SkinCheckTest, ABrightGroundUnderTheClockOrAHighscoreIsNamed) {
    Paint("Game/Board.bmp", {95, 190, 1, 1}, kWhite);
    for (const int x : {100, 300, 400}) Paint("High/High.bmp", {x, 370, 1, 1}, kWhite);
    const std::vector<std::string> faults = Faults();
    ASSERT_EQ(faults.size(), 4U);
    EXPECT_NE(faults[0].find("Board.bmp: has #FFFFFF at 95, 190, under live text"),
              std::string::npos);
    EXPECT_NE(faults[1].find("High.bmp: has #FFFFFF at 100, 370, under live text"),
              std::string::npos);
    EXPECT_NE(faults[2].find("High.bmp: has #FFFFFF at 300, 370, under live text"),
              std::string::npos);
    EXPECT_NE(faults[3].find("High.bmp: has #FFFFFF at 400, 370, under live text"),
              std::string::npos);
}

TEST_F(SkinCheckTest, AWellOfManyColorsIsNamed) {
    Paint("Config/Config.bmp", {230, 202, 128, 28}, 0x203040);
    EXPECT_EQ(Faults(), std::vector<std::string>{});
    Paint("Config/Config.bmp", {230, 202, 5, 28}, 0x808080);
    EXPECT_EQ(Faults(), std::vector<std::string>{});
    Paint("Config/Config.bmp", {235, 210, 1, 1}, 0x313040);
    EXPECT_EQ(OnlyFault(),
              "Config/Config.bmp: has #313040 at 235, 210 in a well that is #203040 in its middle; "
              "paint the well at the place 230, 202 (128 x 28) in one colour, but for a rim of 5 "
              "pixels");
}

TEST_F(SkinCheckTest, AnotherGroundUnderAnAnimationIsNamed) {
    for (const Rect& place :
         {Rect{160, 192, 72, 60}, Rect{263, 192, 72, 60}, Rect{50, 68, 52, 168}}) {
        const int x = place.right() - 1;
        const int y = place.bottom() - 1;
        Paint("About/About.bmp", {x, y, 1, 1}, 0x191513);
        EXPECT_EQ(OnlyFault(), "About/About.bmp: has #191513 at " + std::to_string(x) + ", " +
                                   std::to_string(y) + ", under an animation; paint the place " +
                                   std::to_string(place.left) + ", " + std::to_string(place.top) +
                                   " (" + std::to_string(place.width) + " x " +
                                   std::to_string(place.height) + ") in exactly #191512");
        Paint("About/About.bmp", {x, y, 1, 1}, 0x191512);
    }
}

TEST_F(SkinCheckTest, AMaskCellThatIsNotPureBlackAndWhiteIsNamed) {
    Paint("Game/Colors.bmp", {484, 0, 1, 1}, 0xFEFEFE);
    Paint("Game/Dots.bmp", {43, 10, 1, 1}, 0x010101);
    const std::vector<std::string> faults = Faults();
    ASSERT_EQ(faults.size(), 2U);
    EXPECT_EQ(faults[0],
              root +
                  "/Game/Colors.bmp: has #FEFEFE at 484, 0, in its mask; paint the place "
                  "484, 0 (44 x 27) in nothing but pure black and pure white");
    EXPECT_EQ(faults[1], root +
                             "/Game/Dots.bmp: has #010101 at 43, 10, in its mask; paint the place "
                             "33, 0 (11 x 11) in nothing but pure black and pure white");
}

TEST_F(SkinCheckTest, AMaskCellWithoutBlackIsNamed) {
    Paint("Game/Dots.bmp", {33, 0, 11, 11}, kWhite);
    EXPECT_EQ(OnlyFault(),
              "Game/Dots.bmp: has no black in its mask, so nothing of it would be drawn; paint in "
              "the place 33, 0 (11 x 11) black what is to be drawn");
}

TEST_F(SkinCheckTest, AnEmptyMaskOfThePegsIsOneFault) {
    Paint("Game/Colors.bmp", {484, 0, 44, 27}, kWhite);
    EXPECT_EQ(OnlyFault(),
              "Game/Colors.bmp: has no black in its mask, so nothing of it would be drawn; paint "
              "in the place 484, 0 (44 x 27) black what is to be drawn");
}

TEST_F(SkinCheckTest, MarksThatLookAlikeOrAreInTheWrongOrderAreNamed) {
    Paint("Game/Dots.bmp", {11, 0, 22, 11}, 0x808080);
    EXPECT_EQ(OnlyFault(),
              "Game/Dots.bmp: shows the same in cells 2 and 3; paint in each what belongs there");
    Paint("Game/Dots.bmp", {11, 0, 11, 11}, 0xA0A0A0);
    EXPECT_EQ(OnlyFault(),
              "Game/Dots.bmp: has a black mark that is lighter than the white one; paint the black "
              "mark in cell 2 and the white one in cell 3");
}

TEST_F(SkinCheckTest, TheLightOfAMarkIsThatOfItsOwnCell) {
    Paint("Game/Dots.bmp", {11, 0, 22, 11}, 0x808080);
    Paint("Game/Dots.bmp", {16, 5, 1, 1}, kWhite);
    EXPECT_EQ(OnlyFault(),
              "Game/Dots.bmp: has a black mark that is lighter than the white one; paint the black "
              "mark in cell 2 and the white one in cell 3");
}

TEST_F(SkinCheckTest, PegsThatLookAlikeAreNamed) {
    for (const int color : {2, 10}) {
        Paint("Game/Colors.bmp", {44 * color, 0, 44, 27}, 0x8040C0);
        Paint("Game/Coloranim.bmp", {44 * 9, 27 * color, 44, 27}, 0x8040C0);
    }
    EXPECT_EQ(OnlyFault(),
              "Game/Colors.bmp: shows the same in cells 3 and 11; paint in each what belongs "
              "there");
}

TEST_F(SkinCheckTest, NumbersThatLookAlikeAreNamed) {
    for (const int number : {3, 14}) {
        Paint("Game/Numbers.bmp", {19 * number, 0, 19, 16}, 0x8040C0);
    }
    EXPECT_EQ(OnlyFault(),
              "Game/Numbers.bmp: shows the same in cells 4 and 15; paint in each what belongs "
              "there");
}

TEST_F(SkinCheckTest, ANumberThatIsNotLitIsNamedWithItsPlaceAndBoard) {
    // The number of row 14 is in piece H1, which comes from 134, 0 on the sheet to 196, 106.
    Paint("Game/Numbers.bmp", {19 * 14, 0, 19, 16}, 0x8040C0);
    Paint("Game/Modes.bmp", {134, 113 - 106, 19, 16}, 0x8040C0);
    EXPECT_EQ(OnlyFault(),
              "Game/Numbers.bmp: shows in cell 15 what the Hard board has at 196, 113; paint it "
              "lit");
}

TEST_F(SkinCheckTest, AMarkerOfTheCodeRowThatIsNotLitIsNamed) {
    Paint("Game/Numbers.bmp", {0, 0, 19, 16}, 0x8040C0);
    Paint("Game/Board.bmp", {196, 57, 19, 16}, 0x8040C0);
    EXPECT_EQ(OnlyFault(),
              "Game/Numbers.bmp: shows in cell 1 what the Easy board has at 196, 57; paint it lit");
}

TEST_F(SkinCheckTest, ALidThatDoesNotMoveIsNamed) {
    for (const int row : {0, 10}) {
        Paint("Game/Coloranim.bmp", {44 * 4, 27 * row, 88, 27}, 0x8040C0);
    }
    const std::vector<std::string> faults = Faults();
    ASSERT_EQ(faults.size(), 2U);
    EXPECT_EQ(faults[0], root +
                             "/Game/Coloranim.bmp: shows the same in cells 5 and 6 of row 1 (the "
                             "hidden code); draw a lid that moves");
    EXPECT_EQ(faults[1], root +
                             "/Game/Coloranim.bmp: shows the same in cells 5 and 6 of row 11 "
                             "(Pink); draw a lid that moves");
}

TEST_F(SkinCheckTest, CoversThatAreNotClosedOrDoNotShowThePegAreNamed) {
    Paint("Game/Coloranim.bmp", {20, 27 * 2 + 13, 1, 1}, 0x00FF00);
    Paint("Game/Coloranim.bmp", {396 + 20, 27 * 10 + 13, 1, 1}, 0x00FF00);
    const std::vector<std::string> faults = Faults();
    ASSERT_EQ(faults.size(), 2U);
    EXPECT_EQ(faults[0], root +
                             "/Game/Coloranim.bmp: is not closed in cell 1 of row 3 (Blue); paint "
                             "there what cell 10 of row 1 shows");
    EXPECT_EQ(faults[1], root +
                             "/Game/Coloranim.bmp: does not show the peg in cell 10 of row 11 "
                             "(Pink); paint there the peg of Colors.bmp");
}

TEST_F(SkinCheckTest, AHoleUnlikeTheOthersIsNamedWithItsPlaceAndBoard) {
    // Row 14 of column 6 is only on the Hard board: piece H6, 0, 0 on the sheet, 467, 106 there.
    Paint("Game/Modes.bmp", {468 - 467 + 22, 107 - 106 + 13, 1, 1}, 0x00FF00);
    EXPECT_EQ(
        OnlyFault(),
        "Game/Modes.bmp: shows another peg hole than the first cell of Colors.bmp at 468, 107 "
        "on the Hard board; paint the same hole in every place");
}

TEST_F(SkinCheckTest, AMarkHoleUnlikeTheOthersIsNamed) {
    // Slot 1 of row 1 is on all three boards.
    Paint("Game/Board.bmp", {524 + 5, 544 + 5, 1, 1}, 0x00FF00);
    const std::vector<std::string> faults = Faults();
    ASSERT_FALSE(faults.empty());
    EXPECT_EQ(faults[0], root +
                             "/Game/Board.bmp: shows another mark hole than the first cell of "
                             "Dots.bmp at 524, 544 on the Easy board; paint the same hole in every "
                             "place");
}

TEST_F(SkinCheckTest, AButtonWhoseCornerIsNotTheWindowsIsNamed) {
    for (const auto& [name, corner] : {std::pair{"Game/Interface/Yes_Over.bmp", Point{41, 23}},
                                       std::pair{"Config/Interface/Ok_Over.bmp", Point{0, 0}},
                                       std::pair{"Config/Interface/GTimer_On.bmp", Point{0, 27}},
                                       std::pair{"High/Interface/Ok_Up.bmp", Point{91, 0}},
                                       std::pair{"High/Interface/Default_Up.bmp", Point{0, 0}},
                                       std::pair{"High/Interface/Medium.bmp", Point{159, 27}},
                                       std::pair{"About/Interface/Ok_Down.bmp", Point{0, 0}}}) {
        const std::string before = folder.Read(std::string("skin/") + name);
        Paint(name, {corner.x, corner.y, 1, 1}, 0xFF00FF);
        EXPECT_EQ(OnlyFault().rfind(std::string(name) + ": is #FF00FF in its corner " +
                                        std::to_string(corner.x) + ", " + std::to_string(corner.y) +
                                        " where the window is #",
                                    0),
                  0U)
            << name;
        folder.Write(std::string("skin/") + name, before);
    }
}

TEST_F(SkinCheckTest, TheClocksCornersAreThoseOfTheWindowLitBesideTheTimeAndDarkAlone) {
    struct Place {
        int x;
        const char* picture;
        const char* corner;
    };
    for (const auto& [x, picture, corner] :
         {Place{32, "Up", "0, 0"}, Place{82, "Disabled", "25, 0"}}) {
        const std::string before = folder.Read("skin/Game/Board.bmp");
        Paint("Game/Board.bmp", {x, 186, 1, 1}, 0x404000);
        const std::string fault = OnlyFault();
        EXPECT_TRUE(
            fault.starts_with("Game/Interface/Timer_" + std::string(picture) + ".bmp: is #"))
            << fault;
        EXPECT_TRUE(fault.ends_with(" in its corner " + std::string(corner) +
                                    " where the window is #404000; cut its corners out of the "
                                    "window"))
            << fault;
        folder.Write("skin/Game/Board.bmp", before);
    }
}

TEST_F(SkinCheckTest, WhatIsWrongWithItsFontsIsNamedButAFaceThatOthersMayHaveIsNot) {
    folder.Write("skin/Fonts.ini", "[Clock]\nFace=No Such Face\nSize=big\n");
    EXPECT_EQ(OnlyFault(), "Fonts.ini: line 3: \"big\" is no whole number from 50 to 150");
}

TEST_F(SkinCheckTest, ASkinWithoutFontsOfItsOwnIsComplete) {
    fs::remove(root + "/Fonts.ini");
    EXPECT_EQ(Faults(), std::vector<std::string>());
}

class BitmapOf32Bits : public SkinCheckTest {
protected:
    static constexpr const char* kHide = "Game/Interface/Hide_Up.bmp";

    /// Writes a picture of our first skin anew, every pixel with a fourth byte: its opacity where
    /// the header, which takes 40 or 124 bytes, has room to say so and its mask for it is not 0.
    void Write(const std::string& name, std::uint32_t headerSize,
               std::uint32_t opacity = 0xFF000000) {
        const Picture picture = reader(std::string(QUENDREL_SKIN_FOLDER) + "/Atelier/" + name);
        const auto width = static_cast<std::uint32_t>(picture.width());
        const auto height = static_cast<std::uint32_t>(picture.height());
        bytes_.assign(14 + headerSize, '\0');
        bytes_[0] = 'B';
        bytes_[1] = 'M';
        Put(2, 14 + headerSize + width * height * 4);
        Put(10, 14 + headerSize);
        Put(14, headerSize);
        Put(18, width);
        Put(22, height);
        bytes_[26] = 1;
        bytes_[28] = 32;
        if (headerSize == 124) PutMasks(opacity);
        for (int y = picture.height() - 1; y >= 0; --y) {
            for (int x = 0; x < picture.width(); ++x) {
                bytes_.resize(bytes_.size() + 4);
                Put(bytes_.size() - 4, 0xFF000000U | picture.At(x, y));
            }
        }
        folder.Write("skin/" + name, bytes_);
    }

    /// Gives a picture of 24 bits a pixel the long header, whose mask says nothing of such pixels.
    void WriteWithLongHeader(const std::string& name) {
        bytes_ = folder.Read("skin/" + name);
        bytes_.insert(54, 84, '\0');
        Put(2, static_cast<std::uint32_t>(bytes_.size()));
        Put(10, 138);
        Put(14, 124);
        Put(66, 0xFF000000);
        folder.Write("skin/" + name, bytes_);
    }

private:
    void Put(std::size_t at, std::uint32_t value) {
        for (std::size_t i = 0; i < 4; ++i) {
            bytes_[at + i] = static_cast<char>(value >> 8 * i & 255);
        }
    }

    void PutMasks(std::uint32_t opacity) {
        bytes_[30] = 3;
        Put(54, 0x00FF0000);
        Put(58, 0x0000FF00);
        Put(62, 0x000000FF);
        Put(66, opacity);
    }

    std::string bytes_;
};

TEST_F(BitmapOf32Bits, IsNamedWhereItIsTransparent) {
    Write(kHide, 124);
    EXPECT_EQ(OnlyFault(),
              "Game/Interface/Hide_Up.bmp: is transparent; save it with 24 bits a pixel");
}

TEST_F(BitmapOf32Bits, IsAsGoodAsAnyWhereItSaysNothingOfOpacity) {
    Write(kHide, 40);
    EXPECT_EQ(Faults(), std::vector<std::string>());
    Write(kHide, 124, 0);
    EXPECT_EQ(Faults(), std::vector<std::string>());
    WriteWithLongHeader("Game/Interface/About_Up.bmp");
    EXPECT_EQ(Faults(), std::vector<std::string>());
}

/// A copy of both trees, of which each test spoils the second.
class SecondTreeCheckTest : public BitmapOf32Bits {
protected:
    SecondTreeCheckTest() { CopySecondTree(root); }
};

TEST_F(SecondTreeCheckTest, AWholeOneHasNoFault) {
    EXPECT_EQ(Faults(), std::vector<std::string>{});
}

TEST_F(SecondTreeCheckTest, OfAnEmptyFolderEveryFileIsNamedWithItsSize) {
    for (const File& file : AllFiles()) fs::remove(root + "/2x/" + file.name);
    const std::vector<std::string> faults = Faults();
    EXPECT_EQ(faults.size(), 190U);
    for (const File& file : AllFiles()) {
        const std::string said = root + "/2x/" + file.name + ": is missing; it is a picture of " +
                                 std::to_string(2 * file.size.width) + " x " +
                                 std::to_string(2 * file.size.height) + " pixels";
        EXPECT_EQ(std::count(faults.begin(), faults.end(), said), 1) << said;
    }
}

TEST_F(SecondTreeCheckTest, AWrongSizeIsNamedWithTheRightOne) {
    fs::copy_file(root + "/2x/Game/Interface/Start_Up.bmp", root + "/2x/Game/Interface/Exit_Up.bmp",
                  fs::copy_options::overwrite_existing);
    EXPECT_EQ(OnlyFault(),
              "2x/Game/Interface/Exit_Up.bmp: has 164 x 88 pixels instead of 164 x 68 pixels");
}

TEST_F(SecondTreeCheckTest, WhatIsNoBitmapOrCutShortOrTransparentIsNamed) {
    folder.Write("skin/2x/Game/Colors.bmp", "This is no picture, and rather long for a header.");
    fs::resize_file(root + "/2x/Game/Dots.bmp", 1000);
    Write("2x/Game/Interface/Hide_Up.bmp", 124);
    EXPECT_EQ(Faults(),
              (std::vector<std::string>{
                  root + "/2x/Game/Colors.bmp: is no Windows bitmap; save it as one, with 24 bits "
                         "a pixel",
                  root + "/2x/Game/Dots.bmp: is cut short",
                  root + "/2x/Game/Interface/Hide_Up.bmp: is transparent; save it with 24 bits a "
                         "pixel"}));
}

TEST_F(SecondTreeCheckTest, AMaskCellThatIsNotPureBlackAndWhiteIsNamed) {
    Paint("2x/Game/Colors.bmp", {968, 0, 1, 1}, 0xFEFEFE);
    Paint("2x/Game/Dots.bmp", {87, 21, 1, 1}, 0x010101);
    EXPECT_EQ(Faults(), (std::vector<std::string>{
                            root + "/2x/Game/Colors.bmp: has #FEFEFE at 968, 0, in its mask; paint "
                                   "the place 968, 0 (88 x 54) in nothing but pure black and pure "
                                   "white",
                            root + "/2x/Game/Dots.bmp: has #010101 at 87, 21, in its mask; paint "
                                   "the place 66, 0 (22 x 22) in nothing but pure black and pure "
                                   "white"}));
}

TEST_F(SecondTreeCheckTest, AMaskThatCutsOrKeepsNothingIsNamed) {
    Paint("2x/Game/Dots.bmp", {66, 0, 22, 22}, kWhite);
    Paint("2x/High/Highmask.bmp", {0, 0, 920, 896}, kBlack);
    Paint("2x/About/Aboutmask.bmp", {0, 0, 928, 632}, kWhite);
    const std::vector<std::string> faults = Faults();
    ASSERT_EQ(faults.size(), 6U);
    EXPECT_EQ(faults[0], root +
                             "/2x/High/Highmask.bmp: has no pixel that is exactly white (255, 255, "
                             "255); paint white what is to be cut away");
    EXPECT_EQ(faults[1],
              root +
                  "/2x/About/Aboutmask.bmp: is all white; paint black what is to be kept "
                  "of the window");
    EXPECT_EQ(faults[2], root +
                             "/2x/Game/Dots.bmp: has no black in its mask, so nothing of it would "
                             "be drawn; paint in the place 66, 0 (22 x 22) black what is to be "
                             "drawn");
}

TEST_F(SecondTreeCheckTest, APictureThatShowsSomethingElseIsNamedWithThePlace) {
    Paint("2x/Game/Board.bmp", {640, 320, 16, 16}, kWhite);
    EXPECT_EQ(OnlyFault(),
              "2x/Game/Board.bmp: shows something else at 640, 320 than Game/Board.bmp; paint the "
              "same at twice the size");
}

TEST_F(SecondTreeCheckTest, ThePictureOfAnotherButtonIsNamed) {
    fs::copy_file(root + "/2x/Game/Interface/Red_Up.bmp", root + "/2x/Game/Interface/Blue_Up.bmp",
                  fs::copy_options::overwrite_existing);
    EXPECT_EQ(OnlyFault().rfind("2x/Game/Interface/Blue_Up.bmp: shows something else at ", 0), 0U);
}

TEST_F(SecondTreeCheckTest, MeansOfASquareMayBe40ApartInAChannel) {
    struct Square {
        std::string button;
        Pixel doubled;
        bool same;
    };
    std::vector<std::string> expected;
    for (const Square& square :
         {Square{"Exit_Up", 0x684040, true}, Square{"Exit_Down", 0x694040, false},
          Square{"High_Up", 0x406840, true}, Square{"High_Down", 0x406940, false},
          Square{"Show_Up", 0x404068, true}, Square{"Show_Down", 0x404069, false},
          Square{"Start_Up", 0x181818, true}, Square{"Start_Down", 0x171818, false}}) {
        const std::string name = "Game/Interface/" + square.button + ".bmp";
        Paint(name, {40, 16, 8, 8}, 0x404040);
        Paint("2x/" + name, {80, 32, 16, 16}, square.doubled);
        if (square.same) continue;
        expected.push_back(root + "/2x/" + name + ": shows something else at 80, 32 than " + name +
                           "; paint the same at twice the size");
    }
    EXPECT_EQ(Faults(), expected);
}

TEST_F(SecondTreeCheckTest, TheLastSquareEndsWithThePicture) {
    Paint("2x/About/Interface/Ok_Up.bmp", {139, 79, 1, 1}, kWhite);
    EXPECT_EQ(Faults(), std::vector<std::string>{});
    Paint("2x/About/Interface/Ok_Up.bmp", {132, 64, 8, 16}, kWhite);
    EXPECT_EQ(OnlyFault(),
              "2x/About/Interface/Ok_Up.bmp: shows something else at 124, 64 than "
              "About/Interface/Ok_Up.bmp; paint the same at twice the size");
}

}  // namespace
}  // namespace quendrel::test
