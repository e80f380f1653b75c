// The live text as our skins letter it: every text whole in its place, and read easily there.
#include <string>

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include "Contrast.h"
#include "ui/controls/LiveText.h"
#include "ui/controls/QtValues.h"
#include "ui/layout/ConfigLayout.h"
#include "ui/layout/HighLayout.h"
#include "ui/layout/MainLayout.h"
#include "ui/picture/PictureFile.h"
#include "ui/skin/SkinFiles.h"

namespace quendrel::test {
namespace {

/// The rows of both lists, beside their scroll bars.
constexpr Rect kTuneRow{100, 40, 166, 23};

class OurSkinsFonts : public ::testing::TestWithParam<std::string> {
protected:
    QFont FontOf(TextKind kind, int pixels) const { return LiveFont(fonts.styles[kind], pixels); }

    /// Not cut, in its full size, and no ink outside the line.
    static void ExpectWhole(const QRect& line, const QFont& font, const QString& text) {
        EXPECT_FALSE(IsCut(line, font, text)) << text.toStdString();
        EXPECT_EQ(FittingFont(line.height(), font, text), font) << text.toStdString();
        QImage canvas(line.right() + 100, line.bottom() + 100, QImage::Format_RGB32);
        canvas.fill(Qt::white);
        QPainter painter(&canvas);
        DrawLine(painter, line, Qt::AlignHCenter, font, text);
        painter.fillRect(line, Qt::white);
        painter.end();
        QImage blank = canvas;
        blank.fill(Qt::white);
        EXPECT_EQ(canvas, blank) << text.toStdString();
    }

    static void ExpectWhole(const Rect& line, const QFont& font, const QString& text) {
        ExpectWhole(ToQRect(line), font, text);
    }

    void ExpectContrast(const SkinPicture& window, const Rect& place, Pixel ink) const {
        const Picture picture = ReadSkinPicture(ReadPictureFile, {root}, window);
        for (int y = place.top; y < place.bottom(); ++y) {
            for (int x = place.left; x < place.right(); ++x) {
                ASSERT_GE(Contrast(picture.At(x, y), ink), 7) << x << ", " << y;
            }
        }
    }

    const std::string root = std::string(QUENDREL_SKIN_FOLDER) + "/" + GetParam();
    const SkinFonts fonts = FontsOfSkin(root);
};

TEST_P(OurSkinsFonts, AreTheSkinsOwnAndInstalled) {
    EXPECT_EQ(fonts.faults, std::vector<std::string>{});
    const std::string face = GetParam() == "Atelier"  ? "Yanone Kaffeesatz"
                             : GetParam() == "Beacon" ? "Inter"
                             : GetParam() == "Carbon" ? "Play"
                                                      : "Gentium Book Plus";
    for (const TextStyle& style : fonts.styles) EXPECT_EQ(style.face, face);
}

TEST_P(OurSkinsFonts, ShowEveryMessageWhole) {
    const QFont font = FontOf(TextKind::kMessages, layout::kMessagePixels);
    for (const Rect& place : layout::kMessageLines) {
        const QRect line = WholeLine(ToQRect(place), font);
        for (const char* const text : {"Welcome to",
                                       "Quendrel v1.0",
                                       "from",
                                       "Brimwell",
                                       "Game in progress...",
                                       "Sorry, no luck this time.",
                                       "Here is the correct row.",
                                       "Press ok when done.",
                                       "Congratulations! you made it.",
                                       "Press ok when done!",
                                       "Well played !",
                                       "You are one of the",
                                       "10 best players ever.",
                                       "Please enter your name...",
                                       "- Clone -",
                                       "Choose a row !",
                                       "Ok, see you later...",
                                       "- Exit -",
                                       "- Show -",
                                       "Are you sure ?",
                                       "Please set your color combi-",
                                       "nation.Press ok when done.",
                                       "- Mind Duel -",
                                       "Round: 10/10",
                                       "Player 1: Guess=140",
                                       "Player 2: Guess=140",
                                       "- It's a tie -",
                                       "You are boath wery good.",
                                       "Well done Player 2",
                                       "you won the Mind Duel.",
                                       "- Reset Mind Duel -",
                                       "Sorry, not during play !"}) {
            ExpectWhole(line, font, text);
        }
    }
}

TEST_P(OurSkinsFonts, ShowAccentsAndDescendersWhole) {
    const QString tallAndDeep = QString::fromUtf8("\u00c5\u00c9\u00d1 gjpqy\u00e7");
    const QFont message = FontOf(TextKind::kMessages, layout::kMessagePixels);
    ExpectWhole(WholeLine(ToQRect(layout::kMessageLines[0]), message), message, tallAndDeep);
    const QFont entry = FontOf(TextKind::kEntries, layout::kHighTextPixels);
    ExpectWhole(WholeLine(ToQRect(layout::HighName(1)), entry), entry, tallAndDeep);
    const QFont config = FontOf(TextKind::kConfig, layout::kConfigTextPixels);
    ExpectWhole(kTuneRow, config, tallAndDeep);
    ExpectWhole(layout::kConfigPlayers[0], config, tallAndDeep);
}

TEST_P(OurSkinsFonts, ShowEveryTimeWholeOnTheClock) {
    const QFont font = FontOf(TextKind::kClock, layout::kClockPixels);
    for (const char* const text : {"00:00", "44:44", "59:59", "--:--"}) {
        ExpectWhole(layout::kClockLabel, font, text);
    }
}

TEST_P(OurSkinsFonts, ShowTheHighscoresWhole) {
    const QFont font = FontOf(TextKind::kEntries, layout::kHighTextPixels);
    const auto expectWhole = [&](const Rect& place, const QString& text) {
        ExpectWhole(WholeLine(ToQRect(place), font), font, text);
    };
    for (int entry = 1; entry <= layout::kHighEntries; ++entry) {
        expectWhole(layout::HighName(entry), "Quendrel v1.0");
        expectWhole(layout::HighName(entry), "Maximiliane Wintergarten");
        expectWhole(layout::HighRow(entry), "14");
        expectWhole(layout::HighTime(entry), "44:44");
        expectWhole(layout::HighTime(entry), "--:--");
    }
}

TEST_P(OurSkinsFonts, ShowTheTextsOfTheConfigurationWhole) {
    const QFont font = FontOf(TextKind::kConfig, layout::kConfigTextPixels);
    const auto inside = [](Rect well) {
        return Rect{well.left + 5, well.top, well.width - 10, well.height};
    };
    for (const char* const skin : {"Atelier", "Beacon", "Carbon", "Daylight"}) {
        ExpectWhole(inside(layout::kConfigSkin), font, skin);
    }
    ExpectWhole(inside(layout::kConfigBestOf), font, "10");
    ExpectWhole(inside(layout::kConfigPlayers[0]), font, "Player 1");
    ExpectWhole(inside(layout::kConfigPlayers[1]), font, "Maximiliane");
    for (const char* const tune :
         {"Canon in D", "Greensleeves", "Gymnopedie No. 1", "La Folia", "Lamplight",
          "Londonderry Air", "Lullaby", "Minuet in G", "Prelude in C", "Salley Gardens",
          "Si Bheag, Si Mhor", "Walnut and Brass"}) {
        ExpectWhole(kTuneRow, font, tune);
    }
}

TEST_P(OurSkinsFonts, GiveEveryTextSevenfoldContrast) {
    const auto colorOf = [this](TextKind kind) { return fonts.styles[kind].color.value(); };
    ExpectContrast(kBoardPicture, layout::kClockLabel, colorOf(TextKind::kClock));
    for (int entry = 1; entry <= layout::kHighEntries; ++entry) {
        for (const Rect& place :
             {layout::HighName(entry), layout::HighRow(entry), layout::HighTime(entry)}) {
            ExpectContrast(kHighPicture, place, colorOf(TextKind::kEntries));
        }
    }
    for (const Rect& well : layout::kConfigWells) {
        const Rect floor{well.left + 5, well.top + 5, well.width - 10, well.height - 10};
        ExpectContrast(kConfigPicture, floor, colorOf(TextKind::kConfig));
    }
}

INSTANTIATE_TEST_SUITE_P(Every, OurSkinsFonts,
                         ::testing::Values("Atelier", "Beacon", "Carbon", "Daylight"),
                         [](const auto& skin) { return skin.param; });

}  // namespace
}  // namespace quendrel::test
