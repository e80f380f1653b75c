#include "game/GameClock.h"

#include <cstdint>
#include <limits>

#include "Global.h"
#include "ui/layout/Control.h"
#include "ui/layout/MainLayout.h"
#include "ui/main/MainView.h"
#include "ui/main/Spoken.h"

namespace quendrel {

GameClock::GameClock(Global& global, MainView& window, Clock& clock)
    : global_(global),
      window_(window),
      tmrGTimer_(clock.MakeTimer(1000, [this] { OnClockTick(); })) {}

void GameClock::Start() {
    if (!global_.Settings.GTimer) return;
    if (hidden_) {
        clockPaused_ = true;
    } else {
        tmrGTimer_->SwitchOn();
    }
}

void GameClock::Stop() {
    tmrGTimer_->SwitchOff();
    clockPaused_ = false;
}

void GameClock::Pause() {
    hidden_ = true;
    clockPaused_ = tmrGTimer_->IsOn();
    tmrGTimer_->SwitchOff();
}

void GameClock::Resume() {
    hidden_ = false;
    if (clockPaused_) tmrGTimer_->SwitchOn();
    clockPaused_ = false;
}

void GameClock::Reset() {
    if (!global_.Settings.GTimer) return;
    Stop();
    global_.ElapsedSeconds = 0;
    ShowTime();
}

void GameClock::SayTime() {
    window_.Announce(global_.Settings.GTimer ? "Clock: " + SpokenTime(global_.ElapsedSeconds)
                                             : "The clock is off");
}

void GameClock::ApplySetting() {
    const bool on = global_.Settings.GTimer;
    window_.SetEnabled({Controls::cmdTmrBtn}, on);
    window_.SetLeft({Controls::cmdTmrBtn},
                    on ? layout::kClockButtonBesideLabel : layout::kClockButton.left);
    window_.SetVisible({Controls::lblGTimer}, on);
    if (!on) Forget();
}

/// A game during which the clock is switched off has no time, not even that until then.
void GameClock::Forget() {
    Stop();
    if (global_.ElapsedSeconds == 0) return;
    global_.ElapsedSeconds = 0;
    ShowTime();
}

void GameClock::OnClockTick() {
    if (global_.ElapsedSeconds < std::numeric_limits<std::int16_t>::max()) {
        ++global_.ElapsedSeconds;
    }
    ShowTime();
}

void GameClock::ShowTime() { window_.SetClock(FormatGameTime(global_.ElapsedSeconds)); }

}  // namespace quendrel
