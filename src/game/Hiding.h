// Hiding the game from view and coming back.
#pragma once

namespace quendrel {

class GameClock;
class Host;
struct Table;

class Hiding {
public:
    Hiding(Table& table, GameClock& clock, Host& host)
        : table_(table), clock_(clock), host_(host) {}

    /// Hides the main window to the tray, or, where there is none, minimises it. A running clock
    /// and playing music pause. Where the window cannot go, nothing changes.
    void HideToTray();

    /// Brings the window back, with the clock and the music as they were. Nothing where it is
    /// not hidden.
    void RestoreFromTray();

    bool IsHidden() const { return hidden_; }

private:
    Table& table_;
    GameClock& clock_;
    Host& host_;
    bool hidden_ = false;
};

}  // namespace quendrel
