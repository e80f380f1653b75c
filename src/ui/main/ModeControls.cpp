#include "ui/main/ModeControls.h"

#include "Global.h"
#include "ui/layout/BoardGeometry.h"
#include "ui/layout/Control.h"
#include "ui/main/MainView.h"
#include "ui/main/Spoken.h"

namespace quendrel {

void ShowModeColors(MainView& window, int mode) {
    const int colors = kModes.at(static_cast<std::size_t>(mode)).colors;
    for (int i = 0; i < kColorCount; ++i) {
        const bool inMode = i < colors;
        if (inMode) window.SetEnabled({Controls::cmdColBtn, i}, true);
        window.SetVisible({Controls::cmdColBtn, i}, inMode);
        window.SetVisible({Controls::lblColorBackup, i}, inMode);
    }
}

void PlaceActiveRowLabels(const Global& global, MainView& window, int row) {
    for (int column = 1; column <= kMaxColumns; ++column) {
        const Point at = global.CodeEntry ? CodePegAt(column) : PegAt(column, row);
        window.SetTop({Controls::lblActiveRow, column}, at.y);
    }
    NameHoles(global, window);
}

void NameHole(const Global& global, MainView& window, int column) {
    window.SetSpokenName({Controls::lblActiveRow, column}, SpokenHole(global, column));
}

void NameHoles(const Global& global, MainView& window) {
    for (int column = 1; column <= kMaxColumns; ++column) NameHole(global, window, column);
}

void EnableHoles(MainView& window, int columns, bool enabled) {
    for (int column = 1; column <= columns; ++column) {
        window.SetEnabled({Controls::lblActiveRow, column}, enabled);
    }
}

void EnableModeButtons(MainView& window, bool enabled) {
    for (int mode = 0; mode < static_cast<int>(kModes.size()); ++mode) {
        window.SetEnabled({Controls::cmdModeBtn, mode}, enabled);
    }
}

}  // namespace quendrel
