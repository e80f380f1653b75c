// The least screen that the game is played on.
#pragma once

namespace quendrel {

class MainWindow;

/// Pixels of the whole screen, and bits per pixel.
struct ScreenSize {
    int width = 0;
    int height = 0;
    int depth = 0;
};

/// Thrown when the screen does not do and the player has read why; caught in main.
struct ScreenTooSmall {};

/// Returns on a screen of at least 800 x 600 pixels of 16 bits. Otherwise shows a message box and
/// throws ScreenTooSmall. Runs before anything else of the main window.
void CheckScreen(MainWindow& window);

}  // namespace quendrel
