// Where everything on the board stands, in pixels of the main window's client area (origin top
// left, y downwards). Used by the drawing, by the click targets and by the programs that make
// the board pictures, so that a hole, its peg and its target are always in the same place.
#pragma once

#include "Geometry.h"
#include "OneBased.h"

namespace quendrel {

inline constexpr Size kBoardSize{655, 605};
inline constexpr Size kPegSize{44, 27};
inline constexpr Size kMarkSize{11, 11};
inline constexpr Size kNumberSize{19, 16};

/// The board begins at this x; the strip left of it is the console.
inline constexpr int kBoardLeft = 195;

/// Rows stand 33 pixels apart in every mode.
inline constexpr int kRowPitch = 33;
inline constexpr int kColumnPitch = 50;

/// How far the hole of a column (1 to 6) stands above the ends of its bowed row; 0 elsewhere.
constexpr int PegArc(int column) {
    constexpr OneBased<int, 6> arc({0, 5, 10, 10, 5, 0});
    return column >= 1 && column <= 6 ? arc[column] : 0;
}

/// How far the mark of a slot (1 to 6) stands above the ends of its bowed field; 0 elsewhere.
constexpr int MarkArc(int slot) {
    constexpr OneBased<int, 6> arc({0, 2, 4, 4, 2, 0});
    return slot >= 1 && slot <= 6 ? arc[slot] : 0;
}

/// Top left of the peg cell of `column` (1 to 6) in `row` (1 to 14, counted from the bottom).
constexpr Point PegAt(int column, int row) {
    return {168 + kColumnPitch * column, 569 - kRowPitch * row - PegArc(column)};
}

/// Top left of the cell of `column` (1 to 6) in the code row above the board.
constexpr Point CodePegAt(int column) { return {168 + kColumnPitch * column, 51 - PegArc(column)}; }

/// The first `columns` holes of `row` (1 to 14) as one place, as high as rows stand apart: it ends
/// below with the row's outermost pegs.
constexpr Rect RowStrip(int row, int columns) {
    const Point first = PegAt(1, row);
    return {first.x, first.y + kPegSize.height - kRowPitch, kColumnPitch * columns, kRowPitch};
}

/// Top left of the score mark of `slot` (1 to 6) in `row` (1 to 14).
constexpr Point MarkAt(int slot, int row) {
    return {506 + 18 * slot, 577 - kRowPitch * row - MarkArc(slot)};
}

/// Top left of the number of `row` (1 to 14) on the board.
constexpr Point NumberAt(int row) { return {196, 575 - kRowPitch * row}; }

/// Top left of the marker of the code row, which is row 0, while a player sets the code.
constexpr Point CodeNumberAt(int row) { return {196, 57 - kRowPitch * row}; }

}  // namespace quendrel
