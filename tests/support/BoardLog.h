// The lines that a log has for rows and for the whole board, to compare it with.
#pragma once

#include <array>
#include <string>

#include "PlayedModes.h"

namespace quendrel::test {

inline constexpr const char* kSweep =
    "sweep lines 122\nstand still 20\nsweep lines 122\nstand still 20\nsweep lines 122\n"
    "stand still 20\nsweep lines 122\nstand still 20\nsweep lines 122\nstand still 20\n";

/// The tops of the first hole of row 1 and of the code row.
inline constexpr int kFirstRow = 536;
inline constexpr int kCodeRow = 51;

/// The place of a column (1 to 6) of the bowed row whose first hole is at `top`.
inline std::string PlaceOf(int column, int top) {
    constexpr std::array<int, 6> lefts{218, 268, 318, 368, 418, 468};
    constexpr std::array<int, 6> arcs{0, 5, 10, 10, 5, 0};
    const auto at = static_cast<std::size_t>(column - 1);
    return std::to_string(lefts.at(at)) + "," + std::to_string(top - arcs.at(at)) + "\n";
}

/// The pegs of a row whose first hole is at `top`.
inline std::string Pegs(const Colors& colors, int top) {
    std::string pegs;
    int column = 0;
    for (const int color : colors) {
        pegs += (color == 0 ? "no peg" : "peg " + std::to_string(color)) + " at " +
                PlaceOf(++column, top);
    }
    return pegs;
}

inline std::string CodeCell(int column, int color, int frame) {
    return "color " + std::to_string(color) + " frame " + std::to_string(frame) + " at " +
           PlaceOf(column, kCodeRow);
}

/// One frame of all code cells.
inline std::string Frame(int frame, const Colors& colors) {
    std::string cells;
    int column = 0;
    for (const int color : colors) cells += CodeCell(++column, color, frame);
    return cells;
}

inline std::string Frames(int from, int to, const std::string& wait, const Colors& colors) {
    std::string all;
    const int step = from < to ? 1 : -1;
    for (int frame = from; frame != to + step; frame += step) all += Frame(frame, colors) + wait;
    return all;
}

/// The code uncovered peg by peg.
inline std::string OneByOne(const Colors& colors) {
    std::string cells;
    int column = 0;
    for (const int color : colors) {
        ++column;
        for (int frame = 1; frame <= 10; ++frame) cells += CodeCell(column, color, frame);
    }
    return cells;
}

inline Colors Empty(int columns) {
    Colors none;
    none.resize(static_cast<std::size_t>(columns));
    return none;
}

/// The holes that are open.
inline std::string Holes(int columns) {
    return "holes: " +
           std::string("1 2 3 4 5 6").substr(0, static_cast<std::size_t>(2 * columns - 1)) + "\n";
}

/// "Start" with a code drawn by the computer.
inline std::string StartByComputer(int columns) {
    return "buttons: Exit About Config Show\n"
           "modes: none\n" +
           std::string(kSweep) + "hole tops: 536 531 526 526 531 536\n" + Holes(columns) +
           "seed\n"
           "sound 4 alone\n" +
           Frames(1, 10, "wait 50\n", Empty(columns)) +
           "text: - grey \"Game in progress...\" - -\n"
           "number 1 at 196,542\n";
}

}  // namespace quendrel::test
