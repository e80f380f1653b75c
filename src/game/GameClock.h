// The game clock: whole seconds of play, shown as minutes and seconds.
#pragma once

#include <memory>

#include "platform/Clock.h"

namespace quendrel {

class MainView;
struct Global;

class GameClock {
public:
    GameClock(Global& global, MainView& window, Clock& clock);

    /// Starts counting where the clock setting is on. The seconds go on from where they stand.
    void Start();

    /// The game is hidden, or comes back: time spent hidden is not counted.
    void Pause();
    void Resume();

    /// Stops counting; the seconds stay.
    void Stop();

    /// Back to "00:00" for the next game; leaves everything alone where the setting is off.
    void Reset();

    /// Lets a screen reader say the time.
    void SayTime();

    /// Shows the clock setting on the main window. On: the label, and the enabled button beside it.
    /// Off: the disabled button alone, and the seconds go back to 0.
    void ApplySetting();

private:
    void Forget();
    void OnClockTick();
    void ShowTime();

    Global& global_;
    MainView& window_;
    std::unique_ptr<Timer> tmrGTimer_;
    bool hidden_ = false;
    /// Resume is to switch the clock on again.
    bool clockPaused_ = false;
};

}  // namespace quendrel
