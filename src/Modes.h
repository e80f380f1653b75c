// The tables of the game: its modes, and the names of colours, commands and answers, which are the
// names of their pictures too.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace quendrel {

/// The largest board, which fixes the size of every table of it.
inline constexpr int kMaxRows = 14;
inline constexpr int kMaxColumns = 6;
inline constexpr int kColorCount = 10;

/// One difficulty mode: what GameMode counts from 0.
struct Mode {
    std::uint8_t colors;
    std::uint8_t columns;
    std::uint8_t rows;
};

inline constexpr std::array<Mode, 3> kModes{{
    {6, 4, 10},   // Easy
    {8, 5, 12},   // Medium
    {10, 6, 14},  // Hard
}};

inline constexpr std::array<std::string_view, kModes.size()> ModeNames{"Easy", "Medium", "Hard"};

/// The input bar's buttons, cmdInput(0) to cmdInput(2).
inline constexpr std::array<std::string_view, 3> AnswerNames{"Yes", "No", "Ok"};

/// The command buttons, cmdMnuBtn(0) to cmdMnuBtn(7).
inline constexpr std::array<std::string_view, 8> ButtonNames{"Exit", "About", "Config", "High",
                                                             "Show", "Clone", "Start",  "Check"};

/// Colour value k is entry k - 1, and so is its button cmdColBtn(k - 1).
inline constexpr std::array<std::string_view, kColorCount> ColorNames{
    "Yellow", "Blue", "Red", "Green", "White", "Black", "Brown", "Orange", "Purple", "Pink"};

}  // namespace quendrel
