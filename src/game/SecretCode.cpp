#include "game/SecretCode.h"

#include "Raised.h"
#include "game/Table.h"
#include "platform/Random.h"
#include "ui/layout/BoardSheets.h"
#include "ui/layout/Control.h"
#include "ui/main/ModeControls.h"

namespace quendrel {

namespace {

void DrawCodeByChance(Table& table) {
    const Mode& mode = table.global.CurrentMode();
    Random& random = table.machine.random;
    random.SeedFromClock();
    for (int column = 1; column <= mode.columns; ++column) {
        table.global.SecretCode[column] = static_cast<std::int16_t>(random.Draw(mode.colors));
    }

    table.sounds.PlaySoundFx(SoundSlot::kStartGame, SoundMode::kAlone);
    for (int frame = 1; frame <= kCoverFrames; ++frame) {
        for (int column = 1; column <= mode.columns; ++column) {
            table.board.DrawCodeCell(column, 0, frame);
        }
        table.Wait(50);
    }
}

/// Closes the covers over the colours that the player has set.
void CoverCode(Table& table) {
    const int columns = table.global.CurrentMode().columns;
    table.sounds.PlaySoundFx(SoundSlot::kStartGame, SoundMode::kAlone);
    for (int frame = kCoverFrames; frame >= 1; --frame) {
        for (int column = 1; column <= columns; ++column) {
            table.board.DrawCodeCell(column, table.global.SecretCode[column], frame);
        }
        table.Wait(50);
    }
    for (int column = 1; column <= columns; ++column) {
        table.board.DrawCodeCell(column, 0, kCoverFrames);
    }
}

/// Waits for the player's code and closes the covers over it.
void WaitForCode(Table& table) {
    Global& global = table.global;
    const Raised entry(global.CodeEntry);
    PlaceActiveRowLabels(global, table.window, global.ActiveRow);
    table.rowMarker.StartBlinking(0);
    table.panel.DisplayText(Grey("Please set your color combi-"),
                            Grey("nation.Press ok when done."));
    table.panel.Say();
    table.inputBar.Place(Answer::kOk, false);
    table.inputBar.WaitFor({Answer::kOk});

    EnableHoles(table.window, global.CurrentMode().columns, false);
    table.rowMarker.StopBlinking(0);
    CoverCode(table);
    table.inputBar.PutAway(Answer::kOk);
    table.inputBar.Clear();
}

void LetPlayerSetCode(Table& table) {
    const Global& global = table.global;
    table.buttons.SetButtonStates(kAllOff);
    WaitForCode(table);
    PlaceActiveRowLabels(global, table.window, global.ActiveRow);
    EnableHoles(table.window, global.CurrentMode().columns, true);
    table.window.SetPlace(Hole(1));
    table.buttons.SetButtonStates(kStartedWithOwnCode);
}

}  // namespace

void SetSecretCode(Table& table, bool playerSetsCode) {
    if (playerSetsCode) {
        LetPlayerSetCode(table);
    } else {
        DrawCodeByChance(table);
    }
}

}  // namespace quendrel
