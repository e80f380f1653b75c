// A Hard game in its last row, which is the fullest board there is.
#pragma once

#include "Global.h"

namespace quendrel::bench {

inline void FillBoard(Global& global) {
    global.Settings.GameMode = 2;
    global.Settings.GameInProgress = true;
    global.ActiveRow = kMaxRows;
    for (int column = 1; column <= kMaxColumns; ++column) {
        global.ActiveRowColors[column] = static_cast<std::int16_t>(column);
        for (int row = 1; row < kMaxRows; ++row) {
            global.GuessRows[row][column] =
                static_cast<std::int16_t>((row + column) % kColorCount + 1);
            global.ScoreMarks[row][column] = static_cast<std::int16_t>(column % 2 + 1);
        }
    }
}

}  // namespace quendrel::bench
