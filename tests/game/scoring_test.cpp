// Scoring a guess: every pair of Easy against another way to count, and the cases that matter,
// written out.
#include "game/Scoring.h"

#include <algorithm>
#include <array>

#include <gtest/gtest.h>

namespace quendrel::test {
namespace {

constexpr int kEasyColumns = 4;
constexpr int kEasyColors = 6;
constexpr int kEasyCodes = 1296;

RowOfPegs Row(std::array<std::int16_t, 6> colors) { return RowOfPegs(colors); }

/// Code number 0 to 1295 of Easy.
RowOfPegs EasyCode(int number) {
    RowOfPegs row;
    for (int column = 1; column <= kEasyColumns; ++column) {
        row[column] = static_cast<std::int16_t>(number % kEasyColors + 1);
        number /= kEasyColors;
    }
    return row;
}

int ExactMatches(const RowOfPegs& a, const RowOfPegs& b) {
    int exact = 0;
    for (int column = 1; column <= kEasyColumns; ++column) exact += a[column] == b[column];
    return exact;
}

/// The matches of colour whatever the place: per colour, the smaller of the two counts.
int ColorMatches(const RowOfPegs& a, const RowOfPegs& b) {
    std::array<int, kEasyColors + 1> inA{};
    std::array<int, kEasyColors + 1> inB{};
    for (int column = 1; column <= kEasyColumns; ++column) {
        ++inA[static_cast<std::size_t>(a[column])];
        ++inB[static_cast<std::size_t>(b[column])];
    }
    int matches = 0;
    for (std::size_t color = 1; color <= kEasyColors; ++color) {
        matches += std::min(inA[color], inB[color]);
    }
    return matches;
}

TEST(Scoring, EveryPairOfCodeAndGuessOfEasyAgreesWithCountingColors) {
    int pairs = 0;
    for (int c = 0; c < kEasyCodes; ++c) {
        const RowOfPegs code = EasyCode(c);
        for (int g = 0; g < kEasyCodes; ++g) {
            const RowOfPegs guess = EasyCode(g);
            const int exact = ExactMatches(code, guess);
            const int all = ColorMatches(code, guess);
            const Score score = ScoreGuess(guess, code, kEasyColumns);
            ASSERT_EQ(score.matched, all);
            ASSERT_EQ(score.solved, exact == kEasyColumns);
            for (int slot = 1; slot <= kMaxColumns; ++slot) {
                const int packed = slot <= exact ? 1 : slot <= all ? 2 : 0;
                ASSERT_EQ(score.marks[slot], packed) << "code " << c << " guess " << g;
            }
            ++pairs;
        }
    }
    EXPECT_EQ(pairs, 1679616);
}

TEST(Scoring, PairsEachGuessPegWithTheLowestFreeCodePeg) {
    const Score score = ScoreGuess(Row({1, 2, 1, 1}), Row({1, 1, 2, 3}), 4);
    EXPECT_EQ(score.marks, Row({1, 2, 2, 0, 0, 0}));
    EXPECT_EQ(score.matched, 3);
    EXPECT_FALSE(score.solved);
}

TEST(Scoring, ThreeOfAColorAgainstOneElsewhereEarnOneMark) {
    EXPECT_EQ(ScoreGuess(Row({1, 1, 1, 2}), Row({3, 4, 5, 1}), 4).marks, Row({2, 0, 0, 0, 0, 0}));
}

TEST(Scoring, AnExactPegIsNotCountedAsAColorMatchToo) {
    EXPECT_EQ(ScoreGuess(Row({1, 1, 2, 2}), Row({1, 3, 3, 3}), 4).marks, Row({1, 0, 0, 0, 0, 0}));
}

TEST(Scoring, AnExactMatchLaterInTheRowIsTakenBeforeAColorMatch) {
    EXPECT_EQ(ScoreGuess(Row({1, 2, 2, 1}), Row({3, 3, 3, 1}), 4).marks, Row({1, 0, 0, 0, 0, 0}));
}

TEST(Scoring, MarksArePackedWhateverColumnsTheyCameFrom) {
    EXPECT_EQ(ScoreGuess(Row({2, 4, 4, 3}), Row({1, 2, 1, 3}), 4).marks, Row({1, 2, 0, 0, 0, 0}));
}

TEST(Scoring, NothingInCommonGivesNoMark) {
    const Score score = ScoreGuess(Row({1, 1, 2, 2}), Row({3, 4, 5, 6}), 4);
    EXPECT_EQ(score.marks, Row({0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(score.matched, 0);
}

TEST(Scoring, ARowEqualToTheCodeIsSolved) {
    const Score score = ScoreGuess(Row({6, 6, 6, 6}), Row({6, 6, 6, 6}), 4);
    EXPECT_TRUE(score.solved);
    EXPECT_EQ(score.marks, Row({1, 1, 1, 1, 0, 0}));
}

TEST(Scoring, TheRightColorsAllInWrongPlacesAreNotSolved) {
    const Score score = ScoreGuess(Row({2, 1, 4, 3}), Row({1, 2, 3, 4}), 4);
    EXPECT_FALSE(score.solved);
    EXPECT_EQ(score.marks, Row({2, 2, 2, 2, 0, 0}));
}

TEST(Scoring, HardScoresAllSixColumns) {
    const Score score = ScoreGuess(Row({10, 9, 8, 7, 6, 5}), Row({10, 9, 8, 7, 5, 6}), 6);
    EXPECT_EQ(score.marks, Row({1, 1, 1, 1, 2, 2}));
}

TEST(Scoring, ColumnsBeyondTheModeAreNotLookedAt) {
    EXPECT_EQ(ScoreGuess(Row({1, 1, 1, 1, 2, 2}), Row({3, 3, 3, 3, 2, 2}), 4).matched, 0);
}

}  // namespace
}  // namespace quendrel::test
