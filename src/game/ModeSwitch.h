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

    /// The button of a mode is let go: only the left mouse button on another mode than the one
    /// in force switches. The mode buttons are disabled during a game.
    void ReleaseModeButton(int mode, MouseButton button);

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
