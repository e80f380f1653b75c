// What the round controller asks of the rest of the program at named moments. What is not there
// yet is passed over quietly.
#pragma once

#include <functional>

namespace quendrel {

struct RoundHooks {
    /// The windows behind "About", "Config" and "High"; a button without one stays disabled.
    std::function<void()> showAbout;
    std::function<void()> showConfig;
    std::function<void()> showHighscores;

    /// Reads the list of ten best of the mode in force, from Global's HighscoreFile.
    std::function<void()> loadHighscores = [] {};

    /// Whether ElapsedSeconds earns a place among the ten best of the mode.
    std::function<bool()> timeQualifies = [] { return false; };

    /// Takes the name for a qualifying win; returns when the player has answered.
    std::function<void()> enterHighscore = [] {};

    /// The player leaves: saves what is kept between runs.
    std::function<void()> saveOnLeaving = [] {};
};

}  // namespace quendrel
