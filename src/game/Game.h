// A game on its table: the flows, each once, and how they hang together.
#pragma once

#include <functional>

#include "duel/Duel.h"
#include "game/GameClock.h"
#include "game/Hiding.h"
#include "game/IdleAnimation.h"
#include "game/ModeSwitch.h"
#include "game/PegPlacing.h"
#include "game/RoundController.h"
#include "game/RoundHooks.h"
#include "game/Table.h"

namespace quendrel {

struct Game {
    Game(Global& global, const Machine& machine, MainWindow& window, RoundHooks hooks)
        : table(global, machine, window),
          pegs(table),
          clock(global, window, machine.timers),
          duel(global, table.panel, table.buttons, table.inputBar, machine.clock),
          idle(table),
          loadHighscores(hooks.loadHighscores),
          modes(table, hooks.loadHighscores),
          hiding(table, clock),
          round(table, pegs, clock, duel, idle, std::move(hooks)) {}

    Table table;
    PegPlacing pegs;
    GameClock clock;
    Duel duel;
    IdleAnimation idle;
    std::function<void()> loadHighscores;
    ModeSwitch modes;
    Hiding hiding;
    RoundController round;
};

}  // namespace quendrel
