// The things on the table: everything that the flows of a game work with.
#pragma once

#include "audio/Music.h"
#include "audio/SoundEffects.h"
#include "platform/Machine.h"
#include "ui/Board.h"
#include "ui/CommandButtons.h"
#include "ui/InputBar.h"
#include "ui/MainWindow.h"
#include "ui/MessagePanel.h"
#include "ui/RowMarker.h"

namespace quendrel {

struct Table {
    Table(Global& global_, Machine machine_, MainWindow& window_);

    Global& global;
    const Machine machine;
    MainWindow& window;

    SoundEffects sounds;
    Music music;
    Board board;
    RowMarker rowMarker;
    MessagePanel panel;
    CommandButtons buttons;
    InputBar inputBar;

    /// Plays a sound slot once.
    void Play(SoundSlot slot) { sounds.PlaySoundFx(slot, kOnce); }

    /// Waits while the windows stay alive.
    void Wait(std::int16_t milliseconds);

    /// Builds the board of the mode in force and shows it in its sweep.
    void PrepareBoard();

    /// The text of an idle board.
    void ShowWelcome();
};

}  // namespace quendrel
