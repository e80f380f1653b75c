// What all flows of a game work with: the state, the machine, the window, and what is on it.
#pragma once

#include "audio/Music.h"
#include "audio/SoundEffects.h"
#include "platform/Machine.h"
#include "ui/main/Board.h"
#include "ui/main/CommandButtons.h"
#include "ui/main/InputBar.h"
#include "ui/main/MainView.h"
#include "ui/main/MessagePanel.h"
#include "ui/main/RowMarker.h"

namespace quendrel {

struct Table {
    Table(Global& global_, Machine machine_, MainView& window_);

    Global& global;
    const Machine machine;
    MainView& window;

    SoundEffects sounds;
    Music music;
    Board board;
    RowMarker rowMarker;
    MessagePanel panel;
    CommandButtons buttons;
    InputBar inputBar;

    /// Plays a sound slot once.
    void Play(SoundSlot slot) { sounds.PlaySoundFx(slot, SoundMode::kOnce); }

    /// Waits, handling events meanwhile.
    void Wait(std::int16_t milliseconds);

    /// Builds the board of the mode in force and shows it in its sweep.
    void PrepareBoard();

    /// The text of an idle board.
    void ShowWelcome();
};

}  // namespace quendrel
