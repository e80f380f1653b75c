#include "ui/main/HelpTexts.h"

#include <array>
#include <cstddef>

#include "Modes.h"
#include "ui/layout/Control.h"

namespace quendrel {

namespace {

// clang-format off
constexpr std::array<const char*, ButtonNames.size()> kCommandHelp{
    "Pressing this button will terminate the game and return you to Windows!",
    "Press here to get information about the game and it's creators.",
    "Pressing this button will bring out the configuration window. It's here you alter the game to suit your state of mind.",
    "Press here to see the the Highscores for the current mode.",
    "Pressing this button will show you the correct row and then terminate the round you where playing.",
    "Pressing this button will let you clone any row. Just click on the row that you want to clone.",
    "Pressing this button will start the game in the mode you have selected in the top right corner.",
    "Press this button when you want to check your guess against the hidden color combination.",
};

constexpr std::array<const char*, kModes.size()> kModeHelp{
    "Pressing this button will select the 'Easy' version with 6 colors, 4 columns, 10 rows!",
    "Pressing this button will select the 'Medium' version with 8 colors, 5 columns, 12 rows!",
    "Pressing this button will select the 'Hard' version with 10 colors, 6 columns, 14 rows!",
};

constexpr std::array<const char*, AnswerNames.size()> kInputHelp{
    "Click here to accept.",
    "Click here to decline.",
    "Click here when you are ready. ",
};
// clang-format on

}  // namespace

std::string HelpText(Control control) {
    const auto index = static_cast<std::size_t>(control.index);
    switch (control.array) {
        case Controls::cmdMnuBtn:
            return kCommandHelp.at(index);
        case Controls::cmdModeBtn:
            return kModeHelp.at(index);
        case Controls::cmdInput:
            return kInputHelp.at(index);
        case Controls::cmdColBtn:
            return "Here you select the color to use. Right click will enable/disable it.";
        case Controls::cmdDuelBtn:
            return "Press here to reset Mind Duel.";
        case Controls::cmdTmrBtn:
            return "Press here when you are ready to continue.";
        case Controls::cmdHideBtn:
            return "Press here to quickley hide the game from view. Double-click tray icon to "
                   "resume game.";
        case Controls::lblColorBackup:
        case Controls::lblActiveRow:
        case Controls::lblCloneRow:
        case Controls::lblDispRow:
        case Controls::lblGTimer:
            return {};
    }
    return {};
}

}  // namespace quendrel
