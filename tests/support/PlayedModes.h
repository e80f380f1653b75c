// The three modes as the rules have them, with a code and a miss to play in each.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace quendrel::test {

/// The colours of a row from column 1 on.
using Colors = std::vector<int>;

struct PlayedMode {
    int number;
    std::string name;
    int colors;
    int columns;
    int rows;
    /// Every colour once, the mode's last one first.
    Colors code;
    /// Has no colour of the code.
    Colors miss;
};

inline std::vector<PlayedMode> PlayedModes() {
    return {{0, "Easy", 6, 4, 10, {6, 1, 2, 3}, {4, 5, 5, 4}},
            {1, "Medium", 8, 5, 12, {8, 1, 2, 3, 4}, {5, 6, 7, 7, 6}},
            {2, "Hard", 10, 6, 14, {10, 1, 2, 3, 4, 5}, {6, 7, 8, 9, 9, 7}}};
}

inline std::ostream& operator<<(std::ostream& out, const PlayedMode& mode) {
    return out << mode.name;
}

inline std::string NameOfMode(const ::testing::TestParamInfo<PlayedMode>& info) {
    return info.param.name;
}

}  // namespace quendrel::test
