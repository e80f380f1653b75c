// What the game asks of the program around it. frmMain implements it; tests have one that records.
#pragma once

namespace quendrel {

class Host {
public:
    virtual ~Host() = default;

    /// Shows the highscore window, in which the player names a pending result. Returns when it is
    /// closed. Throws what Clock::PumpEvents throws.
    virtual void ShowHighscores() = 0;

    /// Hides the main window, in the tray or else in the taskbar, and returns whether it is hidden:
    /// not every window manager minimises. RestoreWindow brings it back.
    virtual bool HideWindow(bool toTray) = 0;
    virtual void RestoreWindow() = 0;

    /// Saves what is kept between runs, when the player leaves. Throws NotSaved.
    virtual void SaveOnLeaving() = 0;
};

}  // namespace quendrel
