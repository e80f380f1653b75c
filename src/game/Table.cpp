#include "game/Table.h"

#include <utility>

#include "audio/Pause.h"

namespace quendrel {

Table::Table(Global& global_, Machine machine_, MainView& window_)
    : global(global_),
      machine(std::move(machine_)),
      window(window_),
      sounds(global, machine.soundPlayer),
      music(global, machine.mmcMidi, machine.random, machine.clock),
      board(global, window, machine.clock, sounds),
      rowMarker(global, window, board, machine.clock),
      panel(window),
      buttons(global, window),
      inputBar(window, machine.clock) {}

void Table::Wait(std::int16_t milliseconds) { Pause(machine.clock, milliseconds, true); }

void Table::PrepareBoard() {
    board.BuildBoard(global.Settings.GameMode);
    board.RevealBoard();
}

void Table::ShowWelcome() {
    panel.DisplayText(Grey("Welcome to"), Yellow(std::string(kAppName)), Grey("from"),
                      Grey("Brimwell"));
}

}  // namespace quendrel
