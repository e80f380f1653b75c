// The flows of a game, each made once, and which of them know each other.
#pragma once

#include "duel/Duel.h"
#include "game/GameClock.h"
#include "game/Hiding.h"
#include "game/IdleAnimation.h"
#include "game/KeyPlay.h"
#include "game/ModeSwitch.h"
#include "game/PegPlacing.h"
#include "game/RoundController.h"
#include "game/Table.h"
#include "scores/HighscoreStore.h"

namespace quendrel {

struct Game {
    Game(Global& global, const Machine& machine, MainView& window, Host& host)
        : highscores(global),
          table(global, machine, window),
          pegs(table),
          clock(global, window, machine.clock),
          duel(global, window, table.panel, table.buttons, table.inputBar, machine.clock),
          idle(table),
          modes(table, highscores),
          hiding(table, clock, host),
          round(table, pegs, clock, duel, idle, highscores, host),
          keys(table, pegs, round) {}

    HighscoreStore highscores;
    Table table;
    PegPlacing pegs;
    GameClock clock;
    Duel duel;
    IdleAnimation idle;
    ModeSwitch modes;
    Hiding hiding;
    RoundController round;
    KeyPlay keys;
};

}  // namespace quendrel
