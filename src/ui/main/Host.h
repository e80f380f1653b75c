// What the game asks of the program around it. frmMain implements it; tests have one that records.
#pragma once

namespace quendrel {

class Host {
public:
    virtual ~Host() = default;

    /// The window of the ten best, which takes the name of a pending result. Returns when it is
    /// closed. Throws what Clock::PumpEvents throws.
    virtual void ShowHighscores() = 0;

    /// Takes the main window off the screen, to the tray or else to the taskbar, and tells whether
    /// it is gone: not every window manager minimises. And back.
    virtual bool HideWindow(bool toTray) = 0;
    virtual void RestoreWindow() = 0;

    /// The player leaves: saves what is kept between runs. Throws NotSaved.
    virtual void SaveOnLeaving() = 0;
};

}  // namespace quendrel
