// How a guess is scored against the hidden code.
#pragma once

#include "Global.h"

namespace quendrel {

struct Score {
    /// 1 = right colour in the right place, 2 = right colour in the wrong place, 0 = none; all 1s
    /// before all 2s, from slot 1.
    RowOfPegs marks;
    /// How many marks there are, 0 to `columns`.
    int matched = 0;
    /// Every column is right.
    bool solved = false;
};

/// Scores columns 1 to `columns` (1 to 6). No peg of the guess or of the code counts twice.
Score ScoreGuess(const RowOfPegs& guess, const RowOfPegs& code, int columns);

}  // namespace quendrel
