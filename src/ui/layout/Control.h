// The main window's controls by name.
#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <string>

namespace quendrel {

/// The main window's controls and control arrays.
enum class Controls : std::uint8_t {
    cmdMnuBtn,       // 0 to 7, in the order of ButtonNames
    cmdModeBtn,      // 0 to 2, in the order of ModeNames
    cmdColBtn,       // 0 to 9, in the order of ColorNames
    lblColorBackup,  // 0 to 9, behind the colour buttons
    cmdInput,        // 0 to 2, in the order of AnswerNames
    lblActiveRow,    // 1 to 6, the click targets over the holes
    lblCloneRow,     // 0 to 12, the choice strips over the checked rows
    lblDispRow,      // 1 to 4, the lines of the message panel
    cmdDuelBtn,
    cmdTmrBtn,
    cmdHideBtn,
    lblGTimer,
};

inline constexpr std::size_t kControlArrays = 12;
static_assert(kControlArrays == static_cast<std::size_t>(Controls::lblGTimer) + 1);

/// One control: its array, and its index there (0 for a control that stands alone).
struct Control {
    Controls array;
    int index = 0;

    auto operator<=>(const Control&) const = default;
};

/// The button of a colour, 1 to 10.
constexpr Control ColorButton(int color) { return {Controls::cmdColBtn, color - 1}; }

/// The hole of a column (1 to 6) in the row that is filled.
constexpr Control Hole(int column) { return {Controls::lblActiveRow, column}; }

constexpr bool IsButton(Control control) {
    switch (control.array) {
        case Controls::cmdMnuBtn:
        case Controls::cmdModeBtn:
        case Controls::cmdColBtn:
        case Controls::cmdInput:
        case Controls::cmdDuelBtn:
        case Controls::cmdTmrBtn:
        case Controls::cmdHideBtn:
            return true;
        default:
            return false;
    }
}

/// The control's own name, with its index in brackets where it has one: "cmdMnuBtn(6)".
std::string NameOf(Control control);

}  // namespace quendrel
