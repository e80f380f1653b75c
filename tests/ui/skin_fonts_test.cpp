// What a skin's file Fonts.ini says of the live text, and what is said of one that says it wrongly.
#include <chrono>
#include <filesystem>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"
#include "ui/skin/SkinFonts.h"

namespace quendrel::test {
namespace {

class SkinFontsTest : public ::testing::Test {
protected:
    SkinFonts Read() {
        return ReadSkinFonts(folder.path(),
                             [this](const std::string& face) { return face != missingFace; });
    }

    SkinFonts Read(const std::string& text) {
        folder.Write("Fonts.ini", text);
        return Read();
    }

    /// The file has one fault, which costs nothing but what it stands for.
    void ExpectFault(const std::string& text, const std::string& fault) {
        const SkinFonts fonts = Read(text);
        EXPECT_EQ(fonts.styles, TextStyles{}) << text;
        EXPECT_EQ(fonts.faults, std::vector{folder.path() + "/Fonts.ini: " + fault});
    }

    TemporaryFolder folder;
    std::string missingFace = "Missing Sans";
};

TEST_F(SkinFontsTest, WithoutAFileAllTextIsAsUsual) {
    const SkinFonts fonts = Read();
    EXPECT_EQ(fonts.faults, std::vector<std::string>{});
    for (const TextStyle& style : fonts.styles) {
        EXPECT_EQ(style.face, "Yanone Kaffeesatz");
        EXPECT_EQ(style.weight, 500);
        EXPECT_EQ(style.size, 100);
        EXPECT_EQ(style.width, 100);
        EXPECT_EQ(style.color, std::nullopt);
    }
}

TEST_F(SkinFontsTest, AWholeFileSaysEverythingOfEveryText) {
    const SkinFonts fonts = Read(
        "; mine\n"
        "[Messages]\nFace=Serif One\nWeight=100\nSize=50\nWidth=150\n\n"
        "[Clock]\nFace=Mono\nWeight=900\nSize=150\nWidth=50\nColor=#010203\n"
        "[Highscores]\nFace=Hand\nColor=#FFFFFF\n"
        "[Config]\nFace=\xC3\x89t\xC3\xA9\nWeight=400\nColor=#abcdef\n");
    EXPECT_EQ(fonts.faults, std::vector<std::string>{});
    EXPECT_EQ(fonts.styles[TextKind::kMessages], (TextStyle{"Serif One", 100, 50, 150, {}}));
    EXPECT_EQ(fonts.styles[TextKind::kClock], (TextStyle{"Mono", 900, 150, 50, 0x010203}));
    EXPECT_EQ(fonts.styles[TextKind::kEntries], (TextStyle{"Hand", 500, 100, 100, 0xFFFFFF}));
    EXPECT_EQ(fonts.styles[TextKind::kConfig],
              (TextStyle{"\xC3\x89t\xC3\xA9", 400, 100, 100, 0xABCDEF}));
}

TEST_F(SkinFontsTest, WhatAFileDoesNotSayIsAsUsual) {
    const SkinFonts fonts = Read("[Clock]\nSize=90\n");
    EXPECT_EQ(fonts.faults, std::vector<std::string>{});
    EXPECT_EQ(fonts.styles[TextKind::kClock], (TextStyle{"Yanone Kaffeesatz", 500, 90, 100, {}}));
    EXPECT_EQ(fonts.styles[TextKind::kMessages], TextStyle{});
}

TEST_F(SkinFontsTest, CaseBlanksForeignLineEndsAndAByteOrderMarkMakeNoDifference) {
    const SkinFonts fonts = Read("\xEF\xBB\xBF [CLOCK] \r\n face = Mono \r\nCOLOR= #0a0B0c \r\n");
    EXPECT_EQ(fonts.faults, std::vector<std::string>{});
    EXPECT_EQ(fonts.styles[TextKind::kClock], (TextStyle{"Mono", 500, 100, 100, 0x0A0B0C}));
}

TEST_F(SkinFontsTest, AnUnknownSectionIsNamedOnceWithWhatItHolds) {
    ExpectFault("\n[Clocks]\nFace=Mono\nAny=1\n",
                "line 2: there is no section [Clocks]; the sections are [Messages], [Clock], "
                "[Highscores] and [Config]");
}

TEST_F(SkinFontsTest, AnUnknownKeyIsNamed) {
    ExpectFault("[Clock]\nColour=#FFFFFF\n",
                "line 2: there is no key \"Colour\"; the keys are Face, Weight, Size, Width and "
                "Color");
}

TEST_F(SkinFontsTest, ALineThatIsNoEntryOrStandsInNoSectionIsNamed) {
    ExpectFault("[Clock]\nFace Mono\n", "line 2: is neither \"[Section]\" nor \"Key=Value\"");
    ExpectFault("Face=Mono\n",
                "line 1: stands in no section; the sections are [Messages], [Clock], [Highscores] "
                "and [Config]");
}

TEST_F(SkinFontsTest, AKeyThatStandsTwiceIsNamedAndTheFirstCounts) {
    const SkinFonts fonts = Read("[Clock]\nFace=Mono\n[Config]\nSize=90\n[Clock]\nface=Other\n");
    EXPECT_EQ(fonts.styles[TextKind::kClock].face, "Mono");
    EXPECT_EQ(
        fonts.faults,
        std::vector{folder.path() +
                    "/Fonts.ini: line 6: [Clock] has this key already; the first one counts"});
}

TEST_F(SkinFontsTest, AFileOfManyLinesIsReadAtOnce) {
    const auto begin = std::chrono::steady_clock::now();
    std::string text = "[Clock]\nSize=90\n";
    for (int line = 3; line <= 50000; ++line) text += "size=80\n";
    const SkinFonts fonts = Read(text);
    EXPECT_EQ(fonts.styles[TextKind::kClock].size, 90);
    EXPECT_EQ(fonts.faults.size(), 49998U);
    EXPECT_EQ(fonts.faults.back(),
              folder.path() +
                  "/Fonts.ini: line 50000: [Clock] has this key already; the first one "
                  "counts");
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(5));
}

TEST_F(SkinFontsTest, ABadColorIsNamed) {
    for (const std::string color :
         {"red", "#12345", "#1234567", "123456", "1234567", "#-12345", "#12345G"}) {
        ExpectFault("[Clock]\nColor=" + color + "\n",
                    "line 2: \"" + color + "\" is no colour; write #RRGGBB");
    }
}

TEST_F(SkinFontsTest, TheMessagesTakeNoColor) {
    ExpectFault("[Messages]\nColor=#FFFFFF\n",
                "line 2: [Messages] takes no Color; the game gives each message its own");
}

TEST_F(SkinFontsTest, ABadNumberIsNamedWithItsRange) {
    for (const std::string weight : {"", "99", "901", "bold", "400 ok", "4e2", "-400"}) {
        ExpectFault("[Clock]\nWeight=" + weight + "\n",
                    "line 2: \"" + weight + "\" is no whole number from 100 to 900");
    }
    for (const std::string key : {"Size", "Width"}) {
        for (const std::string percent : {"49", "151", "90%"}) {
            ExpectFault("[Clock]\n" + key + "=" + percent + "\n",
                        "line 2: \"" + percent + "\" is no whole number from 50 to 150");
        }
    }
}

TEST_F(SkinFontsTest, AFaceWithoutANameIsNamed) {
    ExpectFault("[Clock]\nFace= \n", "line 2: Face is empty; write the name of a font family");
}

TEST_F(SkinFontsTest, AFaceThatIsNotInstalledIsNamedAndItsWeightSizeAndWidthGoWithIt) {
    const SkinFonts fonts =
        Read("[Clock]\nWeight=700\nSize=80\nFace=Missing Sans\nWidth=90\nColor=#102030\n");
    EXPECT_EQ(fonts.styles[TextKind::kClock],
              (TextStyle{"Yanone Kaffeesatz", 500, 100, 100, 0x102030}));
    EXPECT_EQ(fonts.faults,
              std::vector{folder.path() +
                          "/Fonts.ini: line 4: the face \"Missing Sans\" is not installed; Yanone "
                          "Kaffeesatz stands in for it"});
}

TEST_F(SkinFontsTest, TheUsualFaceIsNeverMissing) {
    missingFace = "Yanone Kaffeesatz";
    const SkinFonts fonts = Read("[Clock]\nFace=Yanone Kaffeesatz\nSize=90\n");
    EXPECT_EQ(fonts.faults, std::vector<std::string>{});
    EXPECT_EQ(fonts.styles[TextKind::kClock].size, 90);
}

TEST_F(SkinFontsTest, OneFaultLeavesTheRestInForce) {
    const SkinFonts fonts = Read("[Clock]\nFace=Mono\nSize=big\nColor=#102030\n");
    EXPECT_EQ(fonts.faults.size(), 1U);
    EXPECT_EQ(fonts.styles[TextKind::kClock], (TextStyle{"Mono", 500, 100, 100, 0x102030}));
}

TEST_F(SkinFontsTest, AFileThatCannotBeReadIsNamedWithTheReason) {
    std::filesystem::create_directory(folder.path() + "/Fonts.ini");
    const SkinFonts fonts = Read();
    EXPECT_EQ(fonts.styles, TextStyles{});
    ASSERT_EQ(fonts.faults.size(), 1U);
    EXPECT_TRUE(fonts.faults[0].starts_with(folder.path() + "/Fonts.ini: ")) << fonts.faults[0];
}

}  // namespace
}  // namespace quendrel::test
