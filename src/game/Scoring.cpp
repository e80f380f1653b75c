#include "game/Scoring.h"

namespace quendrel {

Score ScoreGuess(const RowOfPegs& guess, const RowOfPegs& code, int columns) {
    Score score;
    OneBased<bool, kMaxColumns> codeUsed;
    OneBased<bool, kMaxColumns> guessUsed;
    const auto give = [&](std::int16_t mark, int guessColumn, int codeColumn) {
        guessUsed[guessColumn] = true;
        codeUsed[codeColumn] = true;
        score.marks[++score.matched] = mark;
    };

    for (int column = 1; column <= columns; ++column) {
        if (guess[column] == code[column]) give(1, column, column);
    }
    score.solved = score.matched == columns;
    if (score.solved) return score;

    for (int i = 1; i <= columns; ++i) {
        for (int j = 1; j <= columns; ++j) {
            if (!guessUsed[i] && !codeUsed[j] && guess[i] == code[j]) give(2, i, j);
        }
    }
    return score;
}

}  // namespace quendrel
