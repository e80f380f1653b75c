#include "game/IdleAnimation.h"

#include "Raised.h"
#include "game/Table.h"
#include "platform/Clock.h"
#include "platform/Random.h"

namespace quendrel {

void IdleAnimation::Start() {
    table_.global.DemoStop = false;
    if (playing_) {
        table_.PrepareBoard();
    } else {
        wanted_ = true;
    }
}

void IdleAnimation::Stop() {
    table_.global.DemoStop = true;
    wanted_ = false;
}

void IdleAnimation::Run() {
    for (;;) {
        if (wanted_) {
            Play();
        } else {
            table_.machine.clock.PumpEvents(kLongestSleep);
        }
    }
}

void IdleAnimation::Play() {
    wanted_ = false;
    const Raised playing(playing_);
    table_.machine.random.SeedFromClock();
    table_.PrepareBoard();
    while (!table_.global.DemoStop) {
        DrawRandomPeg();
        table_.Wait(table_.global.DemoDelay);
    }
}

void IdleAnimation::DrawRandomPeg() {
    const Mode& mode = table_.global.CurrentMode();
    Random& random = table_.machine.random;
    int row = random.Draw(mode.rows);
    const int column = random.Draw(mode.columns);
    const int color = random.Draw(mode.colors);
    table_.board.DrawPeg(color, column, row);
}

}  // namespace quendrel
