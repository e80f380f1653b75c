// The pictures of the skins as the game will find them: files and sizes, sprites that erase
// without a trace, boards rebuilt from pieces, outlines, colours that can be told apart.
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Bitmap.h"
#include "ColorDifference.h"
#include "FinePictures.h"
#include "MadeAgain.h"
#include "Skins.h"
#include "WindowPictures.h"
#include "ui/layout/MainLayout.h"

namespace quendrel {
namespace {

namespace fs = std::filesystem;

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

/// The pictures of a skin's main window.
class MainWindowTest : public SkinTest {
protected:
    Bitmap Game(const std::string& name, int pixels) const {
        return Bitmap(InSize(skin_, pixels) / "Game" / name);
    }
    Bitmap PegCell(int cell, int pixels = 1) const {
        return Game("Colors.bmp", pixels).Part(Times({44 * cell, 0, 44, 27}, pixels));
    }
    Bitmap MarkCell(int cell, int pixels = 1) const {
        return Game("Dots.bmp", pixels).Part(Times({11 * cell, 0, 11, 11}, pixels));
    }
    Bitmap CoverFrame(int color, int frame, int pixels = 1) const {
        const Rect cell{44 * (frame - 1), 27 * color, 44, 27};
        return Game("Coloranim.bmp", pixels).Part(Times(cell, pixels));
    }
    Bitmap BoardOf(const std::string& mode, int pixels = 1) const {
        const fs::path boards = fs::path(QUENDREL_BOARDS_FOLDER) / GetParam();
        return Bitmap(InSize(boards, pixels) / (mode + ".bmp"));
    }

    const fs::path game_ = skin_ / "Game";
    const fs::path interface_ = game_ / "Interface";
};

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

class MainWindowPictures : public MainWindowTest {};

TEST_P(MainWindowPictures, OfTheBoardHaveTheirNamesAndSizes) {
    const std::map<std::string, Size> sizes{
        {"Board.bmp", {655, 605}}, {"Boardmask.bmp", {655, 605}}, {"Modes.bmp", {305, 479}},
        {"Colors.bmp", {528, 27}}, {"Coloranim.bmp", {440, 297}}, {"Numbers.bmp", {304, 16}},
        {"Dots.bmp", {44, 11}},
    };
    for (const auto& [name, size] : sizes) {
        const Bitmap picture(game_ / name);
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

TEST_P(MainWindowPictures, OfButtonsHaveTheirNamesAndSizes) {
    for (const ButtonPicture& button : ButtonPictures()) {
        const Bitmap picture(interface_ / button.file);
        EXPECT_EQ(picture.width, button.size.width) << button.file;
        EXPECT_EQ(picture.height, button.size.height) << button.file;
    }
}

TEST_P(MainWindowPictures, AreNoMoreThanTheListed) {
    const auto count = [](const fs::path& folder) {
        int files = 0;
        for (const auto& entry : fs::directory_iterator(folder))
            files += entry.is_regular_file() ? 1 : 0;
        return files;
    };
    EXPECT_EQ(count(game_), 7);
    EXPECT_EQ(count(interface_), 102);
}

class Skins : public SkinTest {};

TEST_P(Skins, ComeOutTheSameBitForBitWhenMadeAgain) {
    ExpectTheSameWhenMadeAgain(skin_, 380, QUENDREL_SKIN_MAKER, "--only " + GetParam() + " \"%\"");
}

TEST(SkinFolder, HoldsTheListedSkinsAndNothingElse) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(QUENDREL_SKIN_FOLDER))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, kSkins);
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

void PastePieces(const Bitmap& sheet, const std::vector<Piece>& pieces, int pixels, Bitmap& board) {
    for (const Piece& p : pieces)
        board.Paste(sheet.Part(Times({p.sheetX, p.sheetY, p.width, p.height}, pixels)),
                    Times(Point{p.x, p.y}, pixels));
}

class Boards : public MainWindowTest {};

TEST_P(Boards, BoardPictureIsTheEasyBoard) {
    for (const int pixels : kPixelsAUnit)
        EXPECT_EQ(Differences(Game("Board.bmp", pixels), BoardOf("Easy", pixels)), 0) << pixels;
}

TEST_P(Boards, MediumIsRebuiltExactlyFromItsPieces) {
    for (const int pixels : kPixelsAUnit) {
        const Bitmap sheet = Game("Modes.bmp", pixels);
        Bitmap board = Game("Board.bmp", pixels);
        PastePieces(sheet, kMediumPieces, pixels, board);
        EXPECT_EQ(Differences(board, BoardOf("Medium", pixels)), 0) << pixels;
    }
}

TEST_P(Boards, HardIsRebuiltExactlyFromThePiecesOfBothModes) {
    for (const int pixels : kPixelsAUnit) {
        const Bitmap sheet = Game("Modes.bmp", pixels);
        Bitmap board = Game("Board.bmp", pixels);
        PastePieces(sheet, kMediumPieces, pixels, board);
        PastePieces(sheet, kHardPieces, pixels, board);
        EXPECT_EQ(Differences(board, BoardOf("Hard", pixels)), 0) << pixels;
    }
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

/// `empty` in every one of `holes` leaves `board` as it is.
void ExpectNoTrace(const Bitmap& board, const Bitmap& mask, const Bitmap& empty,
                   const std::vector<Point>& holes, int pixels) {
    Bitmap erased = board;
    for (const Point hole : holes) erased.PasteThrough(mask, empty, Times(hole, pixels));
    EXPECT_EQ(Differences(erased, board), 0) << holes.size() << " holes, " << pixels;
}

TEST_P(Boards, ErasingAPegLeavesNoTraceInAnyHoleOfAnyMode) {
    for (const int pixels : kPixelsAUnit)
        for (const BoardOfMode& mode : kModesOfBoards)
            ExpectNoTrace(BoardOf(mode.name, pixels), PegCell(11, pixels), PegCell(0, pixels),
                          PegHoles(mode), pixels);
}

TEST_P(Boards, AnEmptyMarkLeavesNoTraceInAnyHoleOfAnyMode) {
    for (const int pixels : kPixelsAUnit)
        for (const BoardOfMode& mode : kModesOfBoards)
            ExpectNoTrace(BoardOf(mode.name, pixels), MarkCell(3, pixels), MarkCell(0, pixels),
                          MarkHoles(mode), pixels);
}

TEST_P(Boards, ALitNumberDiffersClearlyFromTheEngravedOne) {
    const Bitmap board = BoardOf("Hard");
    const Bitmap numbers(game_ / "Numbers.bmp");
    const auto all = [](int, int) { return true; };
    for (int row = 1; row <= 14; ++row) {
        const Bitmap dark = board.Part({196, 575 - 33 * row, 19, 16});
        const Bitmap lit = numbers.Part({19 * row, 0, 19, 16});
        EXPECT_GE(DeltaE(MeanColor(dark, all), MeanColor(lit, all)), 30) << row;
    }
    const Bitmap dark = board.Part({196, 57, 19, 16});
    EXPECT_GE(DeltaE(MeanColor(dark, all), MeanColor(numbers.Part({0, 0, 19, 16}), all)), 30);
}

/// How well a row's number stands out from the tile around it.
double NumberContrast(const Bitmap& picture, Point cell) {
    return LetterContrast(picture.Part({cell.x + 3, cell.y + 3, 13, 10}));
}

TEST_P(Boards, NumbersCanBeReadOnTheirTilesAndTheLitOneBest) {
    const Bitmap board = BoardOf("Hard");
    const Bitmap numbers(game_ / "Numbers.bmp");
    for (int row = 0; row <= 14; ++row) {
        const Point dark = row == 0 ? Point{196, 57} : Point{196, 575 - 33 * row};
        EXPECT_GE(NumberContrast(board, dark), 3) << row << " in the dark";
        EXPECT_GE(NumberContrast(numbers, {19 * row, 0}), 4.5) << row << " lit";
    }
}

// ---- Covers -------------------------------------------------------------------------------------

class Covers : public MainWindowTest {};

TEST_P(Covers, AreClosedAlikeOverEveryColorAndOverTheHiddenCode) {
    for (const int pixels : kPixelsAUnit) {
        const Bitmap closed = CoverFrame(0, 10, pixels);
        for (int color = 1; color <= 10; ++color)
            EXPECT_EQ(Differences(CoverFrame(color, 1, pixels), closed), 0)
                << color << ", " << pixels;
    }
}

TEST_P(Covers, LeaveThePegItselfInTheLastFrame) {
    for (const int pixels : kPixelsAUnit)
        for (int color = 1; color <= 10; ++color)
            EXPECT_EQ(Differences(CoverFrame(color, 10, pixels), PegCell(color, pixels)), 0)
                << color << ", " << pixels;
}

TEST_P(Covers, ShowMoreOfThePegFromFrameToFrame) {
    for (int color = 1; color <= 10; ++color) {
        const Bitmap peg = PegCell(color);
        for (int frame = 1; frame < 10; ++frame)
            EXPECT_GT(VisibleDifferences(CoverFrame(color, frame), peg),
                      VisibleDifferences(CoverFrame(color, frame + 1), peg))
                << color << " frame " << frame;
    }
}

TEST_P(Covers, OfTheHiddenCodeCloseOverTheEmptyHole) {
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

class Masks : public MainWindowTest {};

TEST_P(Masks, AreOnlyPureBlackAndWhiteAndHoldBoth) {
    for (const Bitmap& mask : {PegCell(11), MarkCell(3), Bitmap(game_ / "Boardmask.bmp")}) {
        EXPECT_EQ(PixelsOtherThanBlackAndWhite(mask), 0);
        EXPECT_NE(std::count(mask.pixels.begin(), mask.pixels.end(), kBlack), 0);
        EXPECT_NE(std::count(mask.pixels.begin(), mask.pixels.end(), kWhite), 0);
    }
}

class Outline : public MainWindowTest {};

TEST_P(Outline, KeepsEveryControlWithAMargin) {
    const Bitmap mask(game_ / "Boardmask.bmp");
    for (const Rect& place : layout::kMenuButtons) ExpectKept(mask, place, 6);
    for (const Rect& place : layout::kModeButtons) ExpectKept(mask, place, 6);
    for (const Rect& place : layout::kColorButtons) ExpectKept(mask, place, 6);
    for (const Rect& place : layout::kMessageLines) ExpectKept(mask, place, 6);
    for (const Rect& place : {layout::kClockLabel, layout::kDuelButton, layout::kHideButton})
        ExpectKept(mask, place, 6);
    for (const Point at : {Point{75, 65}, Point{120, 65}, Point{100, 65}})
        ExpectKept(mask, {at.x, at.y, 42, 24}, 6);
}

TEST_P(Outline, KeepsEveryHoleAndNumberWithAMargin) {
    const Bitmap mask(game_ / "Boardmask.bmp");
    for (const Point hole : PegHoles(kModesOfBoards[2]))
        ExpectKept(mask, {hole.x, hole.y, 44, 27}, 6);
    for (const Point hole : MarkHoles(kModesOfBoards[2]))
        ExpectKept(mask, {hole.x, hole.y, 11, 11}, 6);
    ExpectKept(mask, {196, 57, 19, 16}, 6);
    for (int row = 1; row <= 14; ++row) ExpectKept(mask, {196, 575 - 33 * row, 19, 16}, 6);
}

TEST_P(Outline, HasADarkRimSoThatItsHardEdgeLooksClean) {
    ExpectDarkRim(Bitmap(game_ / "Boardmask.bmp"), Bitmap(game_ / "Board.bmp"));
}

// ---- Colours ------------------------------------------------------------------------------------

class Colors : public MainWindowTest {};

TEST_P(Colors, OfAnyTwoPegsAndOfTheEmptyHoleCanBeToldApart) {
    const Bitmap mask = PegCell(11);
    std::vector<Lab> pegs;
    for (int color = 0; color <= 10; ++color) pegs.push_back(CoreColor(PegCell(color), mask, 4));
    for (std::size_t i = 0; i < pegs.size(); ++i)
        for (std::size_t k = i + 1; k < pegs.size(); ++k)
            EXPECT_GE(DeltaE(pegs[i], pegs[k]), i == 0 ? 14 : 20) << i << " and " << k;
}

TEST_P(Colors, OfTheMarksCanBeToldFromEachOtherAndFromTheBoardAroundThem) {
    const Bitmap mask = MarkCell(3);
    const Lab black = CoreColor(MarkCell(1), mask, 1);
    const Lab white = CoreColor(MarkCell(2), mask, 1);
    EXPECT_GE(DeltaE(black, white), 20);
    const Bitmap board = BoardOf("Hard");
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

/// The mean light of the pixels that `wanted` accepts.
template <class Wanted>
double MeanLight(const Bitmap& picture, const Wanted& wanted) {
    double sum = 0;
    int count = 0;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            if (!wanted(x, y)) continue;
            sum += LuminanceOf(picture.At(x, y));
            ++count;
        }
    }
    return sum / count;
}

/// The light of a cell, as the mean over its mask within `radius` of the middle.
double LightOf(const Bitmap& cell, const Bitmap& mask, int radius) {
    return MeanLight(cell, [&mask, radius](int x, int y) {
        const int dx = x - mask.width / 2;
        const int dy = y - mask.height / 2;
        return mask.At(x, y) == kBlack && dx * dx + dy * dy <= radius * radius;
    });
}

TEST_P(Colors, OfTheMarksStandOutThreefoldFromTheEmptyHoleAndFromEachOther) {
    const Bitmap mask = MarkCell(3);
    constexpr int kWholeMark = 11;
    constexpr int kCore = 3;
    for (const int radius : {kWholeMark, kCore}) {
        const double hole = LightOf(MarkCell(0), mask, radius) + 0.05;
        const double black = LightOf(MarkCell(1), mask, radius) + 0.05;
        const double white = LightOf(MarkCell(2), mask, radius) + 0.05;
        EXPECT_GE(hole / black, 3) << "black on the hole, " << radius;
        EXPECT_GE(white / hole, 3) << "white on the hole, " << radius;
        EXPECT_GE(white / black, 3) << "white beside black, " << radius;
    }
}

TEST_P(Colors, OfTheMessagePanelGiveGreyAndYellowTextSevenfoldContrast) {
    const Bitmap board(game_ / "Board.bmp");
    for (const Rect& line : layout::kMessageLines) {
        for (const std::uint32_t pixel : board.Part(line).pixels) {
            ASSERT_GE(Contrast(pixel, 0xebebeb), 7);
            ASSERT_GE(Contrast(pixel, 0xffff00), 7);
        }
    }
}

TEST_P(Colors, OfTheClockRecessGiveItsTextSevenfoldContrast) {
    for (const std::uint32_t pixel : Bitmap(game_ / "Board.bmp").Part(layout::kClockLabel).pixels)
        ASSERT_GE(Contrast(pixel, 0xebebeb), 7);
}

// ---- Buttons ------------------------------------------------------------------------------------

class Buttons : public MainWindowTest {};

TEST_P(Buttons, ThatMoveFindTheSameGroundAtEachPlace) {
    const Bitmap board(game_ / "Board.bmp");
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

void ExpectCornersOfConsole(const Bitmap& board, const fs::path& file, Rect place) {
    const Bitmap picture(file);
    const int right = place.width - 1;
    const int bottom = place.height - 1;
    for (const Point at : {Point{0, 0}, Point{right, 0}, Point{0, bottom}, Point{right, bottom}})
        EXPECT_EQ(picture.At(at.x, at.y), board.At(place.left + at.x, place.top + at.y)) << file;
}

TEST_P(Buttons, MeetTheConsoleAtTheirCorners) {
    const Bitmap board(game_ / "Board.bmp");
    for (const std::string state : {"_Up.bmp", "_Disabled.bmp", "_Down.bmp"}) {
        ExpectCornersOfConsole(board, interface_ / ("Start" + state), {18, 396, 82, 44});
        ExpectCornersOfConsole(board, interface_ / ("Exit" + state), {104, 526, 82, 34});
        ExpectCornersOfConsole(board, interface_ / ("Duel" + state), layout::kDuelButton);
        ExpectCornersOfConsole(board, interface_ / ("Hard" + state), layout::kModeButtons[2]);
        ExpectCornersOfConsole(board, interface_ / ("Pink" + state), layout::kColorButtons[9]);
        ExpectCornersOfConsole(board, interface_ / ("Yes" + state), {75, 65, 42, 24});
    }
    ExpectCornersOfConsole(board, interface_ / "Timer_Up.bmp", layout::kClockButton);
}

TEST_P(Buttons, LookDifferentInEveryState) {
    for (const ButtonPicture& button : ButtonPictures()) {
        if (button.file == button.upFile) continue;
        const int area = button.size.width * button.size.height;
        EXPECT_GE(
            Differences(Bitmap(interface_ / button.upFile), Bitmap(interface_ / button.file)) * 8,
            area)
            << button.file;
    }
}

TEST_P(Buttons, LoseTheirColorWhenDisabled) {
    const auto chroma = [this](const std::string& file) {
        return MeanChroma(Bitmap(interface_ / file));
    };
    for (const std::string name : {"Red", "Yellow", "Blue", "Green", "Orange", "Purple", "Pink"})
        EXPECT_LT(chroma(name + "_Disabled.bmp"), 0.6 * chroma(name + "_Up.bmp")) << name;
    // A key may be grey from the start.
    for (const std::string name : {"Start", "Check", "Show", "Duel", "Timer", "Easy", "Yes"})
        EXPECT_LT(chroma(name + "_Disabled.bmp"),
                  std::max(kGreyChroma, 0.6 * chroma(name + "_Up.bmp")))
            << name;
}

/// A key's face with what stands on it, without its edges.
Bitmap FaceOf(const Bitmap& key) { return key.Part({7, 7, key.width - 14, key.height - 14}); }

TEST_P(Buttons, LoseContrastWhenDisabled) {
    for (const std::string name : {"Exit", "About", "Config", "High", "Show", "Clone", "Start",
                                   "Check", "Easy", "Medium", "Hard", "Yes", "No", "Ok", "Duel"}) {
        const double up = LightnessRange(FaceOf(Bitmap(interface_ / (name + "_Up.bmp"))));
        const double disabled =
            LightnessRange(FaceOf(Bitmap(interface_ / (name + "_Disabled.bmp"))));
        EXPECT_LT(disabled, 0.65 * up) << name;
        EXPECT_GT(disabled, 15) << name << " cannot be read";
    }
}

// ---- Colour buttons -----------------------------------------------------------------------------

class ColorButtons : public MainWindowTest {
protected:
    Bitmap Key(const std::string& color, const std::string& state) const {
        return Bitmap(interface_ / (color + "_" + state + ".bmp"));
    }

    const std::vector<std::string>& colors_ = kButtonSets.back().names;
};

/// The middle of a colour button, which its peg covers.
bool InPeg(int x, int y) {
    const double across = (x - 40.5) / 14;
    const double down = (y - 14.5) / 8;
    return across * across + down * down < 1;
}

/// The colour that half of the peg is lighter than.
Lab MedianOfPeg(const Bitmap& key) {
    std::array<std::vector<std::uint32_t>, 3> channels;
    for (int y = 0; y < key.height; ++y)
        for (int x = 0; x < key.width; ++x)
            for (std::size_t i = 0; InPeg(x, y) && i < 3; ++i)
                channels.at(i).push_back(key.At(x, y) >> (8 * i) & 255);
    std::uint32_t median = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        std::sort(channels.at(i).begin(), channels.at(i).end());
        median |= channels.at(i)[channels.at(i).size() / 2] << (8 * i);
    }
    return LabOf(LinearOf(median));
}

TEST_P(ColorButtons, ThatAreOffDifferFromTheOnesThatAreOn) {
    for (const std::string& color : colors_) {
        const Bitmap up = Key(color, "Up");
        const Lab median = MedianOfPeg(up);
        // Neither a sign nor a gleam shows the peg's colour.
        const auto showsColor = [&](int x, int y) {
            return InPeg(x, y) && DeltaE(LabOf(LinearOf(up.At(x, y))), median) < 20;
        };
        EXPECT_GE(DeltaE(MeanColor(up, showsColor), MeanColor(Key(color, "Disabled"), showsColor)),
                  15)
            << color;
    }
}

TEST_P(ColorButtons, ThatAreOffStillTellTheirColor) {
    std::vector<Lab> pegs;
    for (const std::string& color : colors_)
        pegs.push_back(MeanColor(Key(color, "Disabled"), InPeg));
    for (std::size_t i = 0; i < pegs.size(); ++i)
        for (std::size_t k = i + 1; k < pegs.size(); ++k)
            EXPECT_GE(DeltaE(pegs[i], pegs[k]), 6) << colors_[i] << " and " << colors_[k];
}

/// How far a place on a colour button's long sides is from the nearer one; -1 at its ends, where
/// the sides are round.
int FromLongSide(const Bitmap& key, int x, int y) {
    return x < 16 || x >= key.width - 16 ? -1 : std::min(y, key.height - 1 - y);
}

/// The frame of a colour that is chosen, and what is beside it outside and inside.
bool InFrame(const Bitmap& key, int x, int y) {
    const int depth = FromLongSide(key, x, y);
    return depth == 2 || depth == 3;
}
bool BesideFrame(const Bitmap& key, int x, int y, int depth) {
    return FromLongSide(key, x, y) == depth;
}

TEST_P(ColorButtons, HaveAFrameWhenChosenThatTheOthersLack) {
    for (const std::string& color : colors_) {
        const Bitmap down = Key(color, "Down");
        const auto frame = [&down](int x, int y) { return InFrame(down, x, y); };
        for (const std::string state : {"Up", "Disabled"})
            EXPECT_GE(DeltaE(MeanColor(down, frame), MeanColor(Key(color, state), frame)), 15)
                << color << " " << state;
    }
}

TEST_P(ColorButtons, HaveAFrameWhenChosenThatStandsOutThreefoldOnEitherSide) {
    for (const std::string& color : colors_) {
        const Bitmap down = Key(color, "Down");
        const double frame = MeanLight(down, [&](int x, int y) { return InFrame(down, x, y); });
        for (const int depth : {1, 4}) {
            const double beside =
                MeanLight(down, [&](int x, int y) { return BesideFrame(down, x, y, depth); });
            EXPECT_GE((frame + 0.05) / (beside + 0.05), 3) << color << ", " << depth;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Every, ColorButtons, kEverySkin, SkinName);
INSTANTIATE_TEST_SUITE_P(Every, MainWindowPictures, kEverySkin, SkinName);
INSTANTIATE_TEST_SUITE_P(Every, Skins, kEverySkin, SkinName);
INSTANTIATE_TEST_SUITE_P(Every, Boards, kEverySkin, SkinName);
INSTANTIATE_TEST_SUITE_P(Every, Covers, kEverySkin, SkinName);
INSTANTIATE_TEST_SUITE_P(Every, Masks, kEverySkin, SkinName);
INSTANTIATE_TEST_SUITE_P(Every, Outline, kEverySkin, SkinName);
INSTANTIATE_TEST_SUITE_P(Every, Colors, kEverySkin, SkinName);
INSTANTIATE_TEST_SUITE_P(Every, Buttons, kEverySkin, SkinName);

}  // namespace
}  // namespace quendrel
