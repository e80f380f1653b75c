// The three mode buttons.
#pragma once

#include <cstdint>

#include "ui/controls/MouseButton.h"

namespace quendrel {

class HighscoreStore;
struct Table;

class ModeSwitch {
public:
    ModeSwitch(Table& table, HighscoreStore& highscores) : table_(table), highscores_(highscores) {}

    /// The button of a mode (0 to 2) goes down.
    void PressModeButton(int mode, MouseButton button);

    /// Any mouse button is let go over a mode button.
    void ReleaseModeButton();

    /// A click on the button of a mode switches to it unless it is in force. The mode buttons are
    /// disabled during a game.
    void ClickModeButton(int mode);

    /// Holds the button of the mode in force down and shows the mode's colours: start-up.
    void ShowMode();

private:
    void SwitchMode(std::uint8_t newMode);
    void HoldModeButton();
    void ReleaseForeignColor();

    Table& table_;
    HighscoreStore& highscores_;
};

}  // namespace quendrel
