// The names of the main window's controls.
#include "ui/MainWindow.h"

#include <stdexcept>

namespace quendrel {

std::string NameOf(Control control) {
    const auto indexed = [&](const char* name) {
        return std::string(name) + "(" + std::to_string(control.index) + ")";
    };
    switch (control.array) {
        case Controls::cmdMnuBtn:
            return indexed("cmdMnuBtn");
        case Controls::cmdModeBtn:
            return indexed("cmdModeBtn");
        case Controls::cmdColBtn:
            return indexed("cmdColBtn");
        case Controls::lblColorBackup:
            return indexed("lblColorBackup");
        case Controls::cmdInput:
            return indexed("cmdInput");
        case Controls::lblActiveRow:
            return indexed("lblActiveRow");
        case Controls::lblCloneRow:
            return indexed("lblCloneRow");
        case Controls::lblDispRow:
            return indexed("lblDispRow");
        case Controls::cmdDuelBtn:
            return "cmdDuelBtn";
        case Controls::cmdTmrBtn:
            return "cmdTmrBtn";
        case Controls::cmdHideBtn:
            return "cmdHideBtn";
        case Controls::lblGTimer:
            return "lblGTimer";
    }
    throw std::logic_error("no such control");
}

}  // namespace quendrel
