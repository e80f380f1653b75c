// How the sheets are divided that the board is drawn with: the cells of the sprites, and the pieces
// that turn the Easy board into the other two. Used by the drawing and by the programs that make
// the sheets.
#pragma once

#include <algorithm>
#include <array>

#include "Modes.h"
#include "ui/layout/BoardGeometry.h"

namespace quendrel {

/// A strip of pegs: the empty hole, the ten colours, and the mask of them all.
inline constexpr int kPegMaskCell = kColorCount + 1;
inline constexpr Size kPegStripSize{kPegSize.width * (kPegMaskCell + 1), kPegSize.height};
constexpr Point PegOnStrip(int cell) { return {kPegSize.width * cell, 0}; }

/// A sheet of covers: a column for each frame of their opening, a row for each colour from 0 on.
inline constexpr int kCoverFrames = 10;
inline constexpr Size kCoverSheetSize{kPegSize.width * kCoverFrames,
                                      kPegSize.height*(kColorCount + 1)};
constexpr Point CoverOnSheet(int color, int frame) {
    return {kPegSize.width * (frame - 1), kPegSize.height * color};
}

/// A strip of numbers: the marker of the code row, the rows, and a spare cell.
inline constexpr int kSpareNumberCell = kMaxRows + 1;
inline constexpr Size kNumberStripSize{kNumberSize.width * (kSpareNumberCell + 1),
                                       kNumberSize.height};
constexpr Point NumberOnStrip(int cell) { return {kNumberSize.width * cell, 0}; }

/// A strip of marks: none, black, white, and the mask of them all.
inline constexpr int kMarkMaskCell = 3;
inline constexpr Size kMarkStripSize{kMarkSize.width * (kMarkMaskCell + 1), kMarkSize.height};
constexpr Point MarkOnStrip(int cell) { return {kMarkSize.width * cell, 0}; }

/// A sheet of the modes' pieces.
inline constexpr Size kModeSheetSize{305, 479};

/// One piece: its place on the board, and its top left on the sheet.
struct ModePiece {
    Rect board;
    Point sheet;
};

// clang-format off
/// Pasted over the Easy board for Medium, and for Hard too.
inline constexpr std::array<ModePiece, 7> kMediumPieces{{
    {{196, 172,  71,  66}, {134,  66}},
    {{267, 167,  50,  66}, {234, 132}},
    {{317, 162, 100,  66}, {205,  66}},
    {{417,  45,  50,  33}, { 50, 446}},
    {{417, 167,  50, 413}, { 50,   0}},
    {{522, 175,  89,  54}, {134, 252}},
    {{594, 243,  17, 314}, {117,   0}},
}};

/// Pasted for Hard after the Medium pieces.
inline constexpr std::array<ModePiece, 8> kHardPieces{{
    {{196, 106,  71,  66}, {134,   0}},
    {{267, 101,  50,  66}, {134, 132}},
    {{317,  96, 100,  66}, {205,   0}},
    {{417, 101,  50,  66}, {184, 132}},
    {{467,  50,  50,  33}, { 50, 413}},
    {{467, 106,  50, 479}, {  0,   0}},
    {{522, 109, 107,  54}, {134, 198}},
    {{612, 179,  17, 380}, {100,   0}},
}};
// clang-format on

/// Whether all of them lie on the board, right of the console, and on the sheet.
template <class Pieces>
constexpr bool LieOnBothPictures(const Pieces& pieces) {
    constexpr Rect board{kBoardLeft, 0, kBoardSize.width - kBoardLeft, kBoardSize.height};
    constexpr Rect sheet{0, 0, kModeSheetSize.width, kModeSheetSize.height};
    return std::ranges::all_of(pieces, [&](const ModePiece& piece) {
        return board.Holds(piece.board) &&
               sheet.Holds({piece.sheet.x, piece.sheet.y, piece.board.width, piece.board.height});
    });
}
static_assert(LieOnBothPictures(kMediumPieces) && LieOnBothPictures(kHardPieces));

}  // namespace quendrel
