// The three mode buttons.
#pragma once

#include <cstdint>
#include <functional>

#include "ui/MainWindow.h"

namespace quendrel {

struct Table;

class ModeSwitch {
public:
    /// `loadHighscores` reads the list of the mode in force from Global's HighscoreFile.
    ModeSwitch(Table& table, std::function<void()> loadHighscores)
        : table_(table), loadHighscores_(std::move(loadHighscores)) {}

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
    std::function<void()> loadHighscores_;
};

/// The name of the highscore file of the mode in force.
std::string HighscoreFileName(const struct Global& global);

}  // namespace quendrel
