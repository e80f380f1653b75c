// What the round controller asks of the rest of the program at named moments.
#pragma once

#include <cstdint>
#include <functional>

namespace quendrel {

struct RoundHooks {
    /// The windows behind "About", "Config" and "High"; the last two return when they are closed.
    std::function<void()> showAbout = [] {};
    std::function<void()> showConfig = [] {};
    std::function<void()> showHighscores = [] {};

    /// Puts the skin SkinPtr on the main window; `oldSkin` comes back where it is damaged.
    std::function<void(std::int16_t oldSkin)> changeSkin = [](std::int16_t) {};

    /// Reads the list of ten best of the mode in force, from Global's HighscoreFile.
    std::function<void()> loadHighscores = [] {};

    /// Whether ElapsedSeconds earns a place among the ten best of the mode.
    std::function<bool()> timeQualifies = [] { return false; };

    /// Takes the name for a qualifying win; returns when the player has answered.
    std::function<void()> enterHighscore = [] {};

    /// The player leaves: saves what is kept between runs. Throws NotSaved.
    std::function<void()> saveOnLeaving = [] {};
};

}  // namespace quendrel
