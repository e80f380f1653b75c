// Checks that the screen is large enough for the game.
#pragma once

#include <string>

namespace quendrel {

/// Pixels of the whole screen, and bits per pixel.
struct ScreenSize {
    int width = 0;
    int height = 0;
    int depth = 0;
};

/// Thrown when the screen is too small, with the message for the player; caught in main.
struct ScreenTooSmall {
    std::string title;
    std::string text;
};

/// Returns for a screen of at least 800 x 600 pixels of 16 bits; throws ScreenTooSmall otherwise.
void CheckScreen(const ScreenSize& screen);

}  // namespace quendrel
