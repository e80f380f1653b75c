// The drawing of the board.
#include "ui/main/Board.h"

#include "GameFixture.h"
#include "ui/controls/MouseButton.h"

namespace quendrel::test {
namespace {

class BoardTest : public GameFixture {
protected:
    Board& board = game.table.board;

    /// What stands in the middle of a peg cell of the built board.
    std::string Built(int x, int y) const {
        return Describe(game.table.board.BoardPicture().At(x, y));
    }
};

TEST_F(BoardTest, PegsStandWhereTheBoardHasItsHoles) {
    int row = 1;
    board.DrawPeg(4, 1, row);
    row = 14;
    board.DrawPeg(10, 1, row);
    row = 7;
    board.DrawPeg(0, 4, row);
    EXPECT_EQ(log.Text(), "peg 4 at 218,536\npeg 10 at 218,107\nno peg at 368,328\n");
    EXPECT_EQ(row, 7);
}

TEST_F(BoardTest, TheRowIsBowed) {
    for (int column = 1; column <= 6; ++column) {
        int row = 2;
        board.DrawPeg(1, column, row);
    }
    EXPECT_EQ(log.Text(),
              "peg 1 at 218,503\npeg 1 at 268,498\npeg 1 at 318,493\n"
              "peg 1 at 368,493\npeg 1 at 418,498\npeg 1 at 468,503\n");
}

TEST_F(BoardTest, WhileACodeIsSetPegsGoToTheCodeRowAndTheRowBecomesZero) {
    global.CodeEntry = true;
    int row = 7;
    board.DrawPeg(2, 3, row);
    EXPECT_EQ(log.Text(), "peg 2 at 318,41\n");
    EXPECT_EQ(row, 0);
}

TEST_F(BoardTest, MarksStandInTheirBowedFieldWithTheirSounds) {
    board.DrawScoreMark(1, 3, 1);
    board.DrawScoreMark(2, 1, 14);
    board.DrawScoreMark(0, 6, 1);
    EXPECT_EQ(log.Text(),
              "sound 8\nmark 1 at 560,540\n"
              "sound 9\nmark 2 at 524,115\n"
              "sound 9\nmark 0 at 614,544\n");
}

TEST_F(BoardTest, CodeCellsStandInTheCodeRow) {
    board.DrawCodeCell(1, 0, 10);
    board.DrawCodeCell(3, 10, 1);
    board.DrawCodeCell(6, 7, 4);
    EXPECT_EQ(log.Text(),
              "color 0 frame 10 at 218,51\n"
              "color 10 frame 1 at 318,41\n"
              "color 7 frame 4 at 468,51\n");
}

TEST_F(BoardTest, AColorBeyondItsStripCopiesWhateverLiesThere) {
    int row = 1;
    board.DrawPeg(12, 1, row);
    EXPECT_EQ(window.Image().At(240, 549), 0U);
}

TEST_F(BoardTest, LiveDrawingDoesNotReachTheBoardPicture) {
    board.BuildBoard(0);
    int row = 1;
    board.DrawPeg(4, 1, row);
    EXPECT_EQ(Built(240, 549), "board");
    EXPECT_EQ(Describe(window.Image().At(240, 549)), "peg 4");
}

TEST_F(BoardTest, BuildingShowsNothingOnTheScreenYet) {
    board.BuildBoard(2);
    EXPECT_EQ(log.Text(), "");
}

TEST_F(BoardTest, TheEasyBoardIsTheSkinsBoardAsItIs) {
    board.BuildBoard(0);
    EXPECT_EQ(board.BoardPicture(), Picture(655, 605, kEasyBoard));
    EXPECT_EQ(window.Image(), Picture(655, 605, kEasyBoard));
}

/// A mode sheet in which every pixel tells where it lies.
Picture SheetOfPlaces() {
    Picture sheet(305, 479);
    for (int y = 0; y < 479; ++y) {
        for (int x = 0; x < 305; ++x) sheet.Set(x, y, static_cast<Pixel>(x << 12 | y | 0x800));
    }
    return sheet;
}

struct Spot {
    int x;
    int y;
    Pixel pixel;
};

TEST_F(BoardTest, TheMediumBoardHasItsSevenPieces) {
    board.Skin().picModes = SheetOfPlaces();
    board.BuildBoard(1);
    // The first and last pixel of every piece, by their places on the board and on the sheet.
    for (const Spot& spot : {
             Spot{196, 172, 134 << 12 | 66 | 0x800},
             Spot{266, 237, 204 << 12 | 131 | 0x800},
             Spot{267, 167, 234 << 12 | 132 | 0x800},
             Spot{316, 232, 283 << 12 | 197 | 0x800},
             Spot{317, 162, 205 << 12 | 66 | 0x800},
             Spot{416, 227, 304 << 12 | 131 | 0x800},
             Spot{417, 45, 50 << 12 | 446 | 0x800},
             Spot{466, 77, 99 << 12 | 478 | 0x800},
             Spot{417, 167, 50 << 12 | 0 | 0x800},
             Spot{466, 579, 99 << 12 | 412 | 0x800},
             Spot{522, 175, 134 << 12 | 252 | 0x800},
             Spot{610, 228, 222 << 12 | 305 | 0x800},
             Spot{594, 243, 117 << 12 | 0 | 0x800},
             Spot{610, 556, 133 << 12 | 313 | 0x800},
         }) {
        EXPECT_EQ(board.BoardPicture().At(spot.x, spot.y), spot.pixel) << spot.x << "," << spot.y;
    }
    EXPECT_EQ(board.BoardPicture().At(467, 50), static_cast<Pixel>(kEasyBoard));
    EXPECT_EQ(board.BoardPicture().At(196, 106), static_cast<Pixel>(kEasyBoard));
}

TEST_F(BoardTest, TheHardBoardHasAllFifteenPieces) {
    board.Skin().picModes = SheetOfPlaces();
    board.BuildBoard(2);
    for (const Spot& spot : {
             Spot{196, 172, 134 << 12 | 66 | 0x800},
             Spot{610, 556, 133 << 12 | 313 | 0x800},
             Spot{196, 106, 134 << 12 | 0 | 0x800},
             Spot{266, 171, 204 << 12 | 65 | 0x800},
             Spot{267, 101, 134 << 12 | 132 | 0x800},
             Spot{316, 166, 183 << 12 | 197 | 0x800},
             Spot{317, 96, 205 << 12 | 0 | 0x800},
             Spot{416, 161, 304 << 12 | 65 | 0x800},
             Spot{417, 101, 184 << 12 | 132 | 0x800},
             Spot{466, 166, 233 << 12 | 197 | 0x800},
             Spot{467, 50, 50 << 12 | 413 | 0x800},
             Spot{516, 82, 99 << 12 | 445 | 0x800},
             Spot{467, 106, 0 << 12 | 0 | 0x800},
             Spot{516, 584, 49 << 12 | 478 | 0x800},
             Spot{522, 109, 134 << 12 | 198 | 0x800},
             Spot{628, 162, 240 << 12 | 251 | 0x800},
             Spot{612, 179, 100 << 12 | 0 | 0x800},
             Spot{628, 558, 116 << 12 | 379 | 0x800},
         }) {
        EXPECT_EQ(board.BoardPicture().At(spot.x, spot.y), spot.pixel) << spot.x << "," << spot.y;
    }
}

TEST_F(BoardTest, AtTwoPixelsAUnitEveryPieceStandsAtTwiceItsPlace) {
    BoardSkin skin = DoubledTestSkin();
    for (int y = 0; y < skin.picModes.height(); ++y) {
        for (int x = 0; x < skin.picModes.width(); ++x) {
            skin.picModes.Set(x, y, static_cast<Pixel>(x << 12 | y | 0x800));
        }
    }
    board.SetSkin(skin);
    board.BuildBoard(2);
    // The first and last pixel of a Medium and of a Hard piece, and what lies beside them.
    const Picture& built = board.BoardPicture();
    EXPECT_EQ(built.At(834, 90), static_cast<Pixel>(100 << 12 | 892 | 0x800));
    EXPECT_EQ(built.At(933, 155), static_cast<Pixel>(199 << 12 | 957 | 0x800));
    EXPECT_EQ(built.At(392, 212), static_cast<Pixel>(268 << 12 | 0 | 0x800));
    EXPECT_EQ(built.At(533, 343), static_cast<Pixel>(409 << 12 | 131 | 0x800));
    EXPECT_EQ(Describe(built.At(833, 90)), "board");
    EXPECT_EQ(Describe(built.At(391, 212)), "board");
    EXPECT_EQ(built.density(), 2);
}

TEST_F(BoardTest, AtTwoPixelsAUnitAPegFillsTwiceItsPlace) {
    board.SetSkin(DoubledTestSkin());
    board.BuildBoard(0);
    int row = 1;
    board.DrawPeg(4, 1, row);
    EXPECT_EQ(log.Text(), "peg 4 at 218,536\n");
    for (const Point corner : {Point{436, 1072}, Point{523, 1125}}) {
        EXPECT_EQ(Describe(window.Image().At(corner.x, corner.y)), "peg 4");
    }
    for (const Point beside :
         {Point{435, 1072}, Point{436, 1071}, Point{524, 1125}, Point{523, 1126}}) {
        EXPECT_EQ(Describe(window.Image().At(beside.x, beside.y)), "board");
    }
}

TEST_F(BoardTest, OutsideAGameTheBoardIsBuiltEmpty) {
    global.ActiveRow = 3;
    global.GuessRows[1] = RowOfPegs({1, 2, 3, 4, 0, 0});
    board.BuildBoard(0);
    EXPECT_EQ(board.BoardPicture(), Picture(655, 605, kEasyBoard));
}

class BoardOfEveryMode : public BoardTest, public ::testing::WithParamInterface<PlayedMode> {
protected:
    BoardOfEveryMode() { Play(GetParam()); }
};

INSTANTIATE_TEST_SUITE_P(Played, BoardOfEveryMode, ::testing::ValuesIn(PlayedModes()), NameOfMode);

TEST_P(BoardOfEveryMode, TheBoardRebuiltInMidGameEqualsTheBoardDrawnLive) {
    StartWithCode(played.code);
    Guess({played.code.rbegin(), played.code.rend()});
    Guess(played.miss);
    Place({3});
    game.pegs.PressHole(played.columns, MouseButton::kLeft);
    game.table.rowMarker.StopBlinking(3);
    // Empty marks are drawn when the board is rebuilt; live they are the board's own holes.
    Picture live = window.Image();
    for (int row = 1; row <= 2; ++row) {
        for (int slot = 1; slot <= played.columns; ++slot) {
            if (global.ScoreMarks[row][slot] == 0) board.DrawScoreMark(0, slot, row);
        }
    }
    live = window.Image();
    log.Clear();
    board.BuildBoard(played.number);
    EXPECT_EQ(board.BoardPicture(), live);
    EXPECT_EQ(log.Text(), "");
}

TEST_F(BoardTest, TheSweepLaysTheBoardDownInFivePassesFromTheLeftOfThePlayingArea) {
    board.BuildBoard(0);
    window.Image() = Picture(655, 605, 7);
    board.RevealBoard();
    EXPECT_EQ(log.Text(),
              "sweep lines 122\nstand still 20\nsweep lines 122\nstand still 20\n"
              "sweep lines 122\nstand still 20\nsweep lines 122\nstand still 20\n"
              "sweep lines 122\nstand still 20\n");
    EXPECT_EQ(window.Image().At(194, 300), 7U);
    EXPECT_EQ(window.Image().At(195, 0), static_cast<Pixel>(kEasyBoard));
    EXPECT_EQ(window.Image().At(654, 604), static_cast<Pixel>(kEasyBoard));
}

TEST_F(BoardTest, AnyOtherRevealStyleDoesNothing) {
    board.RevealCode(0);
    board.RevealCode(3);
    EXPECT_EQ(log.Text(), "");
}

}  // namespace
}  // namespace quendrel::test
