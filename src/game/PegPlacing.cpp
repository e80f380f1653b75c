#include "game/PegPlacing.h"

#include "game/Table.h"
#include "ui/layout/Control.h"
#include "ui/main/ModeControls.h"

namespace quendrel {

void PegPlacing::PressColorButton(int color, MouseButton button) {
    Global& global = table_.global;
    if (color == global.SelectedColor) return;
    if (button != MouseButton::kLeft) {
        table_.Play(SoundSlot::kSmallClick);
        table_.window.SetEnabled(ColorButton(color), false);
        return;
    }
    table_.window.ConfineCursor(ColorButton(color));
    ChooseColor(color);
}

void PegPlacing::ChooseColor(int color) {
    Global& global = table_.global;
    if (color == global.SelectedColor) return;
    table_.Play(SoundSlot::kSelectColor);
    if (global.SelectedColor > 0) {
        table_.window.SetHeld(ColorButton(global.SelectedColor), false);
    }
    global.SelectedColor = static_cast<std::int16_t>(color);
    table_.window.SetHeld(ColorButton(color), true);
}

void PegPlacing::ReleaseColorButton() { table_.window.FreeCursor(); }

void PegPlacing::PressColorBackup(int color, MouseButton button) {
    const Control colorButton = ColorButton(color);
    if (button != MouseButton::kRight || table_.window.IsEnabled(colorButton)) return;
    table_.Play(SoundSlot::kSmallClick);
    table_.window.SetEnabled(colorButton, true);
}

void PegPlacing::SwitchColor(int color) {
    if (table_.window.IsEnabled(ColorButton(color))) {
        PressColorButton(color, MouseButton::kRight);
    } else {
        PressColorBackup(color, MouseButton::kRight);
    }
}

void PegPlacing::PressHole(int column, MouseButton button) {
    if (HolesAreDeaf()) return;
    const Global& global = table_.global;
    const std::int16_t present = RowBeingFilled()[column];
    if (button == MouseButton::kLeft) {
        if (present != global.SelectedColor) table_.Play(SoundSlot::kPutColor);
        PutPeg(column, global.SelectedColor);
    } else {
        if (present != 0) table_.Play(SoundSlot::kSmallClick);
        PutPeg(column, 0);
    }
    EnableConfirmation(RowIsFull());
}

void PegPlacing::DoubleClickRow() {
    if (HolesAreDeaf()) return;
    const Global& global = table_.global;
    table_.Play(SoundSlot::kSmallClick);
    for (int column = 1; column <= global.CurrentMode().columns; ++column) PutPeg(column, 0);
    EnableConfirmation(false);
}

/// From the click on "Ok" the code cannot be changed any more, although the wait for it has not
/// returned yet.
bool PegPlacing::HolesAreDeaf() const {
    return table_.global.CodeEntry ? table_.inputBar.IsAnswered() : table_.global.GameBusy;
}

void PegPlacing::DrawActiveRow() {
    const Global& global = table_.global;
    for (int column = 1; column <= global.CurrentMode().columns; ++column) {
        int row = global.ActiveRow;
        table_.board.DrawPeg(global.ActiveRowColors[column], column, row);
    }
    NameHoles(global, table_.window);
}

RowOfPegs& PegPlacing::RowBeingFilled() {
    Global& global = table_.global;
    return global.CodeEntry ? global.SecretCode : global.ActiveRowColors;
}

void PegPlacing::PutPeg(int column, std::int16_t color) {
    int row = table_.global.ActiveRow;
    table_.board.DrawPeg(color, column, row);
    RowBeingFilled()[column] = color;
    NameHole(table_.global, table_.window, column);
}

bool PegPlacing::RowIsFull() {
    const RowOfPegs& row = RowBeingFilled();
    for (int column = 1; column <= table_.global.CurrentMode().columns; ++column) {
        if (row[column] == 0) return false;
    }
    return true;
}

void PegPlacing::EnableConfirmation(bool enabled) {
    if (table_.global.CodeEntry) {
        table_.inputBar.Enable(Answer::kOk, enabled);
    } else {
        table_.buttons.SetButtonState(CommandButton::kCheck, enabled);
    }
}

}  // namespace quendrel
