// The pictures of the skins as the game will find them: files and sizes, sprites that erase
// without a trace, boards rebuilt from pieces, outlines, colours that can be told apart.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Bitmap.h"
#include "ui/MainLayout.h"

namespace quendrel {
namespace {

namespace fs = std::filesystem;

const fs::path kSkin = fs::path(QUENDREL_SKIN_FOLDER) / "Atelier";
const fs::path kGame = kSkin / "Game";
const fs::path kInterface = kGame / "Interface";
const fs::path kBoards = fs::path(QUENDREL_BOARDS_FOLDER) / "Atelier";

/// How many pixels differ so much in a channel that it is seen at once.
int VisibleDifferences(const Bitmap& a, const Bitmap& b) {
    int count = 0;
    for (std::size_t i = 0; i < a.pixels.size(); ++i) {
        bool visible = false;
        for (const int shift : {0, 8, 16})
            visible = visible || std::abs(static_cast<int>(a.pixels[i] >> shift & 255) -
                                          static_cast<int>(b.pixels.at(i) >> shift & 255)) > 24;
        count += visible ? 1 : 0;
    }
    return count;
}

Bitmap PegCell(int cell) { return Bitmap(kGame / "Colors.bmp").Part({44 * cell, 0, 44, 27}); }
Bitmap MarkCell(int cell) { return Bitmap(kGame / "Dots.bmp").Part({11 * cell, 0, 11, 11}); }
Bitmap CoverFrame(int color, int frame) {
    return Bitmap(kGame / "Coloranim.bmp").Part({44 * (frame - 1), 27 * color, 44, 27});
}

// ---- Colour measurement -------------------------------------------------------------------------

struct Lab {
    double l = 0;
    double a = 0;
    double b = 0;
};

Lab LabOf(Rgb c) {
    const auto f = [](double t) {
        return t > 216.0 / 24389 ? std::cbrt(t) : (24389.0 / 27 * t + 16) / 116;
    };
    const double x = f((0.4124564 * c.r + 0.3575761 * c.g + 0.1804375 * c.b) / 0.95047);
    const double y = f(0.2126729 * c.r + 0.7151522 * c.g + 0.0721750 * c.b);
    const double z = f((0.0193339 * c.r + 0.1191920 * c.g + 0.9503041 * c.b) / 1.08883);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

constexpr double kDegree = 3.14159265358979323846 / 180;

double Hue(double a, double b) {
    if (a == 0 && b == 0) return 0;
    const double hue = std::atan2(b, a) / kDegree;
    return hue < 0 ? hue + 360 : hue;
}

double MeanHue(double h1, double h2, double chromaProduct) {
    if (chromaProduct == 0) return h1 + h2;
    if (std::abs(h1 - h2) <= 180) return (h1 + h2) / 2;
    return h1 + h2 < 360 ? (h1 + h2 + 360) / 2 : (h1 + h2 - 360) / 2;
}

/// The colour difference CIEDE2000 with all weights 1.
double DeltaE(Lab p, Lab q) {
    const auto seventh = [](double c) {
        const double c7 = std::pow(c, 7);
        return std::sqrt(c7 / (c7 + std::pow(25.0, 7)));
    };
    const double g = 0.5 * (1 - seventh((std::hypot(p.a, p.b) + std::hypot(q.a, q.b)) / 2));
    const double a1 = (1 + g) * p.a;
    const double a2 = (1 + g) * q.a;
    const double c1 = std::hypot(a1, p.b);
    const double c2 = std::hypot(a2, q.b);
    const double h1 = Hue(a1, p.b);
    const double h2 = Hue(a2, q.b);

    double turn = c1 * c2 == 0 ? 0 : h2 - h1;
    if (turn > 180) turn -= 360;
    if (turn < -180) turn += 360;
    const double dl = q.l - p.l;
    const double dc = c2 - c1;
    const double dh = 2 * std::sqrt(c1 * c2) * std::sin(turn / 2 * kDegree);

    const double l = (p.l + q.l) / 2;
    const double c = (c1 + c2) / 2;
    const double h = MeanHue(h1, h2, c1 * c2);
    const double t = 1 - 0.17 * std::cos((h - 30) * kDegree) + 0.24 * std::cos(2 * h * kDegree) +
                     0.32 * std::cos((3 * h + 6) * kDegree) -
                     0.20 * std::cos((4 * h - 63) * kDegree);
    const double sl = 1 + 0.015 * (l - 50) * (l - 50) / std::sqrt(20 + (l - 50) * (l - 50));
    const double sc = 1 + 0.045 * c;
    const double sh = 1 + 0.015 * c * t;
    const double theta = 30 * std::exp(-std::pow((h - 275) / 25, 2));
    const double rt = -2 * seventh(c) * std::sin(2 * theta * kDegree);
    return std::sqrt(std::pow(dl / sl, 2) + std::pow(dc / sc, 2) + std::pow(dh / sh, 2) +
                     rt * (dc / sc) * (dh / sh));
}

/// The mean colour, by light, of the pixels that `wanted` accepts.
template <class Wanted>
Lab MeanColor(const Bitmap& picture, const Wanted& wanted) {
    Rgb sum;
    double count = 0;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            if (!wanted(x, y)) continue;
            const Rgb c = LinearOf(picture.At(x, y));
            sum = {sum.r + c.r, sum.g + c.g, sum.b + c.b};
            ++count;
        }
    }
    return LabOf({sum.r / count, sum.g / count, sum.b / count});
}

/// The mean colour of the pixels of a sprite that lie `depth` pixels within its mask.
Lab CoreColor(const Bitmap& sprite, const Bitmap& mask, int depth) {
    return MeanColor(sprite, [&mask, depth](int x, int y) {
        for (int dy = -depth; dy <= depth; ++dy) {
            for (int dx = -depth; dx <= depth; ++dx) {
                const bool inside =
                    x + dx >= 0 && y + dy >= 0 && x + dx < mask.width && y + dy < mask.height;
                if (!inside || mask.At(x + dx, y + dy) != kBlack) return false;
            }
        }
        return true;
    });
}

TEST(ColorDifference, AgreesWithThePublishedTestPairs) {
    struct Pair {
        Lab a;
        Lab b;
        double difference;
    };
    const std::vector<Pair> pairs{
        {{50.0000, 2.6772, -79.7751}, {50.0000, 0.0000, -82.7485}, 2.0425},
        {{50.0000, -1.3802, -84.2814}, {50.0000, 0.0000, -82.7485}, 1.0000},
        {{50.0000, 0.0000, 0.0000}, {50.0000, -1.0000, 2.0000}, 2.3669},
        {{50.0000, 2.4900, -0.0010}, {50.0000, -2.4900, 0.0009}, 7.1792},
        {{50.0000, 2.5000, 0.0000}, {73.0000, 25.0000, -18.0000}, 27.1492},
        {{50.0000, 2.5000, 0.0000}, {61.0000, -5.0000, 29.0000}, 22.8977},
        {{50.0000, 2.5000, 0.0000}, {56.0000, -27.0000, -3.0000}, 31.9030},
        {{60.2574, -34.0099, 36.2677}, {60.4626, -34.1751, 39.4387}, 1.2644},
        {{22.7233, 20.0904, -46.6940}, {23.0331, 14.9730, -42.5619}, 2.0373},
        {{2.0776, 0.0795, -1.1350}, {0.9033, -0.0636, -0.5514}, 0.9082},
    };
    for (const Pair& pair : pairs) EXPECT_NEAR(DeltaE(pair.a, pair.b), pair.difference, 0.00005);
}

// ---- Files --------------------------------------------------------------------------------------

TEST(MainWindowPictures, OfTheBoardHaveTheirNamesAndSizes) {
    const std::map<std::string, Size> sizes{
        {"Board.bmp", {655, 605}}, {"Boardmask.bmp", {655, 605}}, {"Modes.bmp", {305, 479}},
        {"Colors.bmp", {528, 27}}, {"Coloranim.bmp", {440, 297}}, {"Numbers.bmp", {304, 16}},
        {"Dots.bmp", {44, 11}},
    };
    for (const auto& [name, size] : sizes) {
        const Bitmap picture(kGame / name);
        EXPECT_EQ(picture.width, size.width) << name;
        EXPECT_EQ(picture.height, size.height) << name;
    }
}

struct ButtonSet {
    std::vector<std::string> names;
    std::vector<std::string> states;
    Size size;
};

const std::vector<ButtonSet> kButtonSets{
    {{"Hide"}, {"Up", "Down", "Over"}, {28, 26}},
    {{"Duel"}, {"Up", "Disabled", "Down", "Over"}, {28, 26}},
    {{"Timer"}, {"Up", "Disabled"}, {26, 26}},
    {{"Exit", "About", "Config", "High", "Show", "Clone"},
     {"Up", "Disabled", "Down", "Over"},
     {82, 34}},
    {{"Start", "Check"}, {"Up", "Disabled", "Down", "Over"}, {82, 44}},
    {{"Easy", "Medium", "Hard"}, {"Up", "Disabled", "Down"}, {92, 26}},
    {{"Yes", "No", "Ok"}, {"Up", "Disabled", "Down", "Over"}, {42, 24}},
    {{"Yellow", "Blue", "Red", "Green", "White", "Black", "Brown", "Orange", "Purple", "Pink"},
     {"Up", "Disabled", "Down", "Over"},
     {82, 30}},
};

/// One button picture, and the picture of the same button in its Up state.
struct ButtonPicture {
    std::string file;
    std::string upFile;
    Size size;
};

std::vector<ButtonPicture> ButtonPictures() {
    std::vector<ButtonPicture> pictures;
    const auto file = [](const std::string& name, const std::string& state) {
        return std::string(name).append("_").append(state).append(".bmp");
    };
    for (const ButtonSet& set : kButtonSets)
        for (const std::string& name : set.names)
            for (const std::string& state : set.states)
                pictures.push_back({file(name, state), file(name, "Up"), set.size});
    return pictures;
}

TEST(MainWindowPictures, OfButtonsHaveTheirNamesAndSizes) {
    for (const ButtonPicture& button : ButtonPictures()) {
        const Bitmap picture(kInterface / button.file);
        EXPECT_EQ(picture.width, button.size.width) << button.file;
        EXPECT_EQ(picture.height, button.size.height) << button.file;
    }
}

TEST(MainWindowPictures, AreNoMoreThanTheListed) {
    const auto count = [](const fs::path& folder) {
        int files = 0;
        for (const auto& entry : fs::directory_iterator(folder))
            files += entry.is_regular_file() ? 1 : 0;
        return files;
    };
    EXPECT_EQ(count(kGame), 7);
    EXPECT_EQ(count(kInterface), 102);
}

TEST(MainWindowPictures, ComeOutTheSameBitForBitWhenMadeAgain) {
    const fs::path again = kBoards.parent_path().parent_path() / "skins_made_again";
    fs::remove_all(again);
    const std::string command =
        std::string("\"") + QUENDREL_SKIN_MAKER + "\" \"" + again.string() + "\"";
    // NOLINTNEXTLINE(cert-env33-c): our own program with paths of the build folder
    ASSERT_EQ(std::system(command.c_str()), 0);
    int compared = 0;
    for (const auto& entry : fs::recursive_directory_iterator(again)) {
        if (!entry.is_regular_file()) continue;
        const fs::path same = fs::path(QUENDREL_SKIN_FOLDER) / fs::relative(entry.path(), again);
        EXPECT_TRUE(BytesOf(entry.path()) == BytesOf(same)) << same;
        ++compared;
    }
    EXPECT_GE(compared, 109);
    fs::remove_all(again);
}

// ---- Boards -------------------------------------------------------------------------------------

struct Piece {
    int x, y, width, height, sheetX, sheetY;
};

const std::vector<Piece> kMediumPieces{
    {196, 172, 71, 66, 134, 66}, {267, 167, 50, 66, 234, 132}, {317, 162, 100, 66, 205, 66},
    {417, 45, 50, 33, 50, 446},  {417, 167, 50, 413, 50, 0},   {522, 175, 89, 54, 134, 252},
    {594, 243, 17, 314, 117, 0},
};

const std::vector<Piece> kHardPieces{
    {196, 106, 71, 66, 134, 0},    {267, 101, 50, 66, 134, 132}, {317, 96, 100, 66, 205, 0},
    {417, 101, 50, 66, 184, 132},  {467, 50, 50, 33, 50, 413},   {467, 106, 50, 479, 0, 0},
    {522, 109, 107, 54, 134, 198}, {612, 179, 17, 380, 100, 0},
};

void PastePieces(Bitmap& board, const std::vector<Piece>& pieces) {
    const Bitmap sheet(kGame / "Modes.bmp");
    for (const Piece& p : pieces)
        board.Paste(sheet.Part({p.sheetX, p.sheetY, p.width, p.height}), {p.x, p.y});
}

TEST(Boards, BoardPictureIsTheEasyBoard) {
    EXPECT_EQ(Differences(Bitmap(kGame / "Board.bmp"), Bitmap(kBoards / "Easy.bmp")), 0);
}

TEST(Boards, MediumIsRebuiltExactlyFromItsPieces) {
    Bitmap board(kGame / "Board.bmp");
    PastePieces(board, kMediumPieces);
    EXPECT_EQ(Differences(board, Bitmap(kBoards / "Medium.bmp")), 0);
}

TEST(Boards, HardIsRebuiltExactlyFromThePiecesOfBothModes) {
    Bitmap board(kGame / "Board.bmp");
    PastePieces(board, kMediumPieces);
    PastePieces(board, kHardPieces);
    EXPECT_EQ(Differences(board, Bitmap(kBoards / "Hard.bmp")), 0);
}

struct BoardOfMode {
    std::string name;
    int columns;
    int rows;
};

const std::vector<BoardOfMode> kModesOfBoards{{"Easy", 4, 10}, {"Medium", 5, 12}, {"Hard", 6, 14}};
constexpr std::array<int, 7> kPegArc{0, 0, 5, 10, 10, 5, 0};
constexpr std::array<int, 7> kMarkArc{0, 0, 2, 4, 4, 2, 0};

std::vector<Point> PegHoles(const BoardOfMode& mode) {
    std::vector<Point> holes;
    for (int c = 1; c <= mode.columns; ++c) {
        const int arc = kPegArc[static_cast<std::size_t>(c)];
        holes.push_back({168 + 50 * c, 51 - arc});
        for (int r = 1; r <= mode.rows; ++r) holes.push_back({168 + 50 * c, 569 - 33 * r - arc});
    }
    return holes;
}

std::vector<Point> MarkHoles(const BoardOfMode& mode) {
    std::vector<Point> holes;
    for (int k = 1; k <= mode.columns; ++k)
        for (int r = 1; r <= mode.rows; ++r)
            holes.push_back({506 + 18 * k, 577 - 33 * r - kMarkArc[static_cast<std::size_t>(k)]});
    return holes;
}

TEST(Boards, ErasingAPegLeavesNoTraceInAnyHoleOfAnyMode) {
    const Bitmap mask = PegCell(11);
    const Bitmap empty = PegCell(0);
    for (const BoardOfMode& mode : kModesOfBoards) {
        const Bitmap board(kBoards / (mode.name + ".bmp"));
        Bitmap erased = board;
        for (const Point hole : PegHoles(mode)) erased.PasteThrough(mask, empty, hole);
        EXPECT_EQ(Differences(erased, board), 0) << mode.name;
    }
}

TEST(Boards, AnEmptyMarkLeavesNoTraceInAnyHoleOfAnyMode) {
    const Bitmap mask = MarkCell(3);
    const Bitmap empty = MarkCell(0);
    for (const BoardOfMode& mode : kModesOfBoards) {
        const Bitmap board(kBoards / (mode.name + ".bmp"));
        Bitmap erased = board;
        for (const Point hole : MarkHoles(mode)) erased.PasteThrough(mask, empty, hole);
        EXPECT_EQ(Differences(erased, board), 0) << mode.name;
    }
}

TEST(Boards, ALitNumberDiffersClearlyFromTheEngravedOne) {
    const Bitmap board(kBoards / "Hard.bmp");
    const Bitmap numbers(kGame / "Numbers.bmp");
    const auto all = [](int, int) { return true; };
    for (int row = 1; row <= 14; ++row) {
        const Bitmap dark = board.Part({196, 575 - 33 * row, 19, 16});
        const Bitmap lit = numbers.Part({19 * row, 0, 19, 16});
        EXPECT_GE(DeltaE(MeanColor(dark, all), MeanColor(lit, all)), 30) << row;
    }
    const Bitmap dark = board.Part({196, 57, 19, 16});
    EXPECT_GE(DeltaE(MeanColor(dark, all), MeanColor(numbers.Part({0, 0, 19, 16}), all)), 30);
}

// ---- Covers -------------------------------------------------------------------------------------

TEST(Covers, AreClosedAlikeOverEveryColorAndOverTheHiddenCode) {
    const Bitmap closed = CoverFrame(0, 10);
    for (int color = 1; color <= 10; ++color)
        EXPECT_EQ(Differences(CoverFrame(color, 1), closed), 0) << color;
}

TEST(Covers, LeaveThePegItselfInTheLastFrame) {
    for (int color = 1; color <= 10; ++color)
        EXPECT_EQ(Differences(CoverFrame(color, 10), PegCell(color)), 0) << color;
}

TEST(Covers, ShowMoreOfThePegFromFrameToFrame) {
    for (int color = 1; color <= 10; ++color) {
        const Bitmap peg = PegCell(color);
        for (int frame = 1; frame < 10; ++frame)
            EXPECT_GT(VisibleDifferences(CoverFrame(color, frame), peg),
                      VisibleDifferences(CoverFrame(color, frame + 1), peg))
                << color << " frame " << frame;
    }
}

TEST(Covers, OfTheHiddenCodeCloseOverTheEmptyHole) {
    const Bitmap hole = PegCell(0);
    for (int frame = 1; frame < 9; ++frame)
        EXPECT_LT(VisibleDifferences(CoverFrame(0, frame), hole),
                  VisibleDifferences(CoverFrame(0, frame + 1), hole))
            << frame;
    EXPECT_NE(Differences(CoverFrame(0, 9), CoverFrame(0, 10)), 0);
    EXPECT_LT(VisibleDifferences(CoverFrame(0, 1), hole) * 4,
              VisibleDifferences(CoverFrame(0, 10), hole));
}

// ---- Masks and outline --------------------------------------------------------------------------

TEST(Masks, AreOnlyPureBlackAndWhiteAndHoldBoth) {
    for (const Bitmap& mask : {PegCell(11), MarkCell(3), Bitmap(kGame / "Boardmask.bmp")}) {
        EXPECT_EQ(PixelsOtherThanBlackAndWhite(mask), 0);
        EXPECT_NE(std::count(mask.pixels.begin(), mask.pixels.end(), kBlack), 0);
        EXPECT_NE(std::count(mask.pixels.begin(), mask.pixels.end(), kWhite), 0);
    }
}

TEST(Outline, KeepsEveryControlWithAMargin) {
    const Bitmap mask(kGame / "Boardmask.bmp");
    for (const Rect& place : layout::kMenuButtons) ExpectKept(mask, place, 6);
    for (const Rect& place : layout::kModeButtons) ExpectKept(mask, place, 6);
    for (const Rect& place : layout::kColorButtons) ExpectKept(mask, place, 6);
    for (const Rect& place : layout::kMessageLines) ExpectKept(mask, place, 6);
    for (const Rect& place : {layout::kClockLabel, layout::kDuelButton, layout::kHideButton})
        ExpectKept(mask, place, 6);
    for (const Point at : {Point{75, 65}, Point{120, 65}, Point{100, 65}})
        ExpectKept(mask, {at.x, at.y, 42, 24}, 6);
}

TEST(Outline, KeepsEveryHoleAndNumberWithAMargin) {
    const Bitmap mask(kGame / "Boardmask.bmp");
    for (const Point hole : PegHoles(kModesOfBoards[2]))
        ExpectKept(mask, {hole.x, hole.y, 44, 27}, 6);
    for (const Point hole : MarkHoles(kModesOfBoards[2]))
        ExpectKept(mask, {hole.x, hole.y, 11, 11}, 6);
    ExpectKept(mask, {196, 57, 19, 16}, 6);
    for (int row = 1; row <= 14; ++row) ExpectKept(mask, {196, 575 - 33 * row, 19, 16}, 6);
}

TEST(Outline, HasADarkRimSoThatItsHardEdgeLooksClean) {
    ExpectDarkRim(Bitmap(kGame / "Boardmask.bmp"), Bitmap(kGame / "Board.bmp"));
}

// ---- Colours ------------------------------------------------------------------------------------

TEST(Colors, OfAnyTwoPegsAndOfTheEmptyHoleCanBeToldApart) {
    const Bitmap mask = PegCell(11);
    std::vector<Lab> pegs;
    for (int color = 0; color <= 10; ++color) pegs.push_back(CoreColor(PegCell(color), mask, 4));
    for (std::size_t i = 0; i < pegs.size(); ++i)
        for (std::size_t k = i + 1; k < pegs.size(); ++k)
            EXPECT_GE(DeltaE(pegs[i], pegs[k]), i == 0 ? 14 : 20) << i << " and " << k;
}

TEST(Colors, OfTheMarksCanBeToldFromEachOtherAndFromTheBoardAroundThem) {
    const Bitmap mask = MarkCell(3);
    const Lab black = CoreColor(MarkCell(1), mask, 1);
    const Lab white = CoreColor(MarkCell(2), mask, 1);
    EXPECT_GE(DeltaE(black, white), 20);
    const Bitmap board(kBoards / "Hard.bmp");
    for (const Point hole : MarkHoles(kModesOfBoards[2])) {
        const Bitmap around = board.Part({hole.x - 3, hole.y - 5, 17, 21});
        const Lab wood = MeanColor(around, [&mask](int x, int y) {
            const bool inCell = x >= 3 && x < 14 && y >= 5 && y < 16;
            return !inCell || mask.At(x - 3, y - 5) == kWhite;
        });
        EXPECT_GE(DeltaE(black, wood), 20) << hole.x << ", " << hole.y;
        EXPECT_GE(DeltaE(white, wood), 20) << hole.x << ", " << hole.y;
    }
}

TEST(Colors, OfTheMessagePanelGiveGreyAndYellowTextSevenfoldContrast) {
    const Bitmap board(kGame / "Board.bmp");
    for (const Rect& line : layout::kMessageLines) {
        for (const std::uint32_t pixel : board.Part(line).pixels) {
            ASSERT_GE(Contrast(pixel, 0xebebeb), 7);
            ASSERT_GE(Contrast(pixel, 0xffff00), 7);
        }
    }
}

TEST(Colors, OfTheClockRecessGiveItsTextSevenfoldContrast) {
    for (const std::uint32_t pixel : Bitmap(kGame / "Board.bmp").Part(layout::kClockLabel).pixels)
        ASSERT_GE(Contrast(pixel, 0xebebeb), 7);
}

// ---- Buttons ------------------------------------------------------------------------------------

TEST(Buttons, ThatMoveFindTheSameGroundAtEachPlace) {
    const Bitmap board(kGame / "Board.bmp");
    const auto ground = [&board](int left, int top, Size size) {
        return board.Part({left, top, size.width, size.height});
    };
    const Size clock{26, 26};
    const int top = layout::kClockButton.top;
    EXPECT_LE(LargestStep(ground(32, top, clock), ground(57, top, clock)), 1);
    const Size answer{42, 24};
    EXPECT_LE(LargestStep(ground(75, 65, answer), ground(120, 65, answer)), 1);
    EXPECT_LE(LargestStep(ground(75, 65, answer), ground(100, 65, answer)), 1);
}

void ExpectCornersOfConsole(const Bitmap& board, const std::string& file, Rect place) {
    const Bitmap picture(kInterface / file);
    const int right = place.width - 1;
    const int bottom = place.height - 1;
    for (const Point at : {Point{0, 0}, Point{right, 0}, Point{0, bottom}, Point{right, bottom}})
        EXPECT_EQ(picture.At(at.x, at.y), board.At(place.left + at.x, place.top + at.y)) << file;
}

TEST(Buttons, MeetTheConsoleAtTheirCorners) {
    const Bitmap board(kGame / "Board.bmp");
    for (const std::string state : {"_Up.bmp", "_Disabled.bmp", "_Down.bmp"}) {
        ExpectCornersOfConsole(board, "Start" + state, {18, 396, 82, 44});
        ExpectCornersOfConsole(board, "Exit" + state, {104, 526, 82, 34});
        ExpectCornersOfConsole(board, "Duel" + state, layout::kDuelButton);
        ExpectCornersOfConsole(board, "Hard" + state, layout::kModeButtons[2]);
        ExpectCornersOfConsole(board, "Pink" + state, layout::kColorButtons[9]);
        ExpectCornersOfConsole(board, "Yes" + state, {75, 65, 42, 24});
    }
    ExpectCornersOfConsole(board, "Timer_Up.bmp", layout::kClockButton);
}

TEST(Buttons, LookDifferentInEveryState) {
    for (const ButtonPicture& button : ButtonPictures()) {
        if (button.file == button.upFile) continue;
        const int area = button.size.width * button.size.height;
        EXPECT_GE(
            Differences(Bitmap(kInterface / button.upFile), Bitmap(kInterface / button.file)) * 8,
            area)
            << button.file;
    }
}

TEST(Buttons, LoseTheirColorWhenDisabled) {
    const auto chroma = [](const std::string& file) {
        double sum = 0;
        const Bitmap picture(kInterface / file);
        for (const std::uint32_t pixel : picture.pixels) {
            const Lab lab = LabOf(LinearOf(pixel));
            sum += std::hypot(lab.a, lab.b);
        }
        return sum / static_cast<double>(picture.pixels.size());
    };
    for (const std::string name : {"Start", "Check", "Show", "Duel", "Timer", "Easy", "Yes", "Red",
                                   "Yellow", "Blue", "Green", "Orange", "Purple", "Pink"})
        EXPECT_LT(chroma(name + "_Disabled.bmp"), 0.6 * chroma(name + "_Up.bmp")) << name;
}

}  // namespace
}  // namespace quendrel
