#include "game/ModeSwitch.h"

#include "audio/Pause.h"
#include "game/Table.h"
#include "scores/HighscoreStore.h"
#include "ui/controls/MouseButton.h"
#include "ui/layout/Control.h"
#include "ui/main/ModeControls.h"

namespace quendrel {

void ModeSwitch::PressModeButton(int mode, MouseButton button) {
    table_.window.ConfineCursor({Controls::cmdModeBtn, mode});
    if (mode != table_.global.LastMode && button == MouseButton::kLeft) {
        table_.Play(SoundSlot::kMediumClick);
    }
}

void ModeSwitch::ReleaseModeButton() { table_.window.FreeCursor(); }

void ModeSwitch::ClickModeButton(int mode) {
    if (mode != table_.global.LastMode) SwitchMode(static_cast<std::uint8_t>(mode));
}

void ModeSwitch::SwitchMode(std::uint8_t newMode) {
    Global& global = table_.global;
    global.Settings.GameMode = newMode;
    HoldModeButton();
    table_.board.BuildBoard(newMode);
    ShowModeColors(table_.window, newMode);
    ReleaseForeignColor();
    table_.board.RevealBoard();
    global.HighscoreFile = HighscoreFileName(global);
    highscores_.LoadHighscores();
    global.DemoDelay = static_cast<std::int16_t>(11 - 3 * newMode);
    table_.window.RepaintAll();
    Pause(table_.machine.clock, 75, false);
    table_.PrepareBoard();
    global.LastMode = newMode;
}

void ModeSwitch::ShowMode() {
    HoldModeButton();
    ShowModeColors(table_.window, table_.global.Settings.GameMode);
}

void ModeSwitch::HoldModeButton() {
    for (int mode = 0; mode < static_cast<int>(kModes.size()); ++mode) {
        table_.window.SetHeld({Controls::cmdModeBtn, mode},
                              mode == table_.global.Settings.GameMode);
    }
}

/// A colour that the new mode does not play cannot stay selected: its button is gone.
void ModeSwitch::ReleaseForeignColor() {
    Global& global = table_.global;
    if (global.SelectedColor <= global.CurrentMode().colors) return;
    table_.window.SetHeld(ColorButton(global.SelectedColor), false);
    global.SelectedColor = 0;
}

}  // namespace quendrel
