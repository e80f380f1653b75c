#include "game/KeyPlay.h"

#include <algorithm>

#include "game/PegPlacing.h"
#include "game/RoundController.h"
#include "game/Table.h"
#include "ui/controls/MouseButton.h"

namespace quendrel {

bool KeyPlay::Press(Key key) {
    switch (key) {
        case Key::kLeft:
            MoveToColumn(MarkedHole().index - 1);
            break;
        case Key::kRight:
            MoveToColumn(MarkedHole().index + 1);
            break;
        case Key::kHome:
            MoveToColumn(1);
            break;
        case Key::kEnd:
            MoveToColumn(kMaxColumns);
            break;
        case Key::kUp:
            MoveToRow(1);
            break;
        case Key::kDown:
            MoveToRow(-1);
            break;
        case Key::kSpace:
            return PressSpace();
        case Key::kEnter:
            PressEnter();
            break;
        case Key::kEscape:
            PressLetter(ButtonOf(Answer::kNo));
            break;
        case Key::kDelete:
            Empty();
            break;
        case Key::kShiftDelete:
            EmptyRow();
            break;
        case Key::kBackspace:
            EmptyBackwards();
            break;
    }
    return true;
}

void KeyPlay::PressNumber(int number) {
    if (!ColorIsOffered(number) || !table_.window.IsEnabled(ColorButton(number))) return;
    pegs_.ChooseColor(number);
    Fill();
}

void KeyPlay::PressShiftNumber(int number) {
    if (ColorIsOffered(number)) pegs_.SwitchColor(number);
}

void KeyPlay::PressLetter(Control button) { table_.window.Press(button); }

std::optional<Control> KeyPlay::Home() {
    if (HolesTakeKeys()) return MarkedHole();
    for (const Answer answer : {Answer::kOk, Answer::kNo}) {
        if (table_.inputBar.Takes(answer)) return ButtonOf(answer);
    }
    if (const auto strip = round_.NewestStrip()) return strip;
    for (const Control control : {MarkedHole(), ButtonOf(CommandButton::kStart)}) {
        if (table_.window.IsEnabled(control)) return control;
    }
    return std::nullopt;
}

Control KeyPlay::MarkedHole() {
    const std::optional<Control> place = table_.window.Place();
    if (place && place->array == Controls::lblActiveRow) column_ = place->index;
    column_ = std::min<int>(column_, table_.global.CurrentMode().columns);
    return Hole(column_);
}

bool KeyPlay::HolesTakeKeys() {
    return !pegs_.HolesAreDeaf() && table_.window.IsEnabled(MarkedHole());
}

bool KeyPlay::ColorIsOffered(int color) const {
    return color <= table_.global.CurrentMode().colors;
}

/// To the nearest column that the row has.
void KeyPlay::MoveToColumn(int column) {
    if (!HolesTakeKeys()) return;
    table_.window.SetPlace(Hole(std::clamp<int>(column, 1, table_.global.CurrentMode().columns)));
}

/// Among the rows that "Clone" offers; `step` is 1 for the next row up the board.
void KeyPlay::MoveToRow(int step) {
    const std::optional<Control> newest = round_.NewestStrip();
    if (!newest) return;
    const std::optional<int> strip = StripAtPlace();
    const int wanted = strip ? *strip + step : newest->index;
    table_.window.SetPlace({newest->array, std::clamp(wanted, 0, newest->index)});
}

void KeyPlay::Fill() {
    if (!HolesTakeKeys() || table_.global.SelectedColor == 0) return;
    const int column = MarkedHole().index;
    pegs_.PressHole(column, MouseButton::kLeft);
    MoveToColumn(column + 1);
}

void KeyPlay::Empty() {
    if (!HolesTakeKeys()) return;
    pegs_.PressHole(MarkedHole().index, MouseButton::kRight);
    table_.window.SetPlace(MarkedHole());
}

void KeyPlay::EmptyBackwards() {
    if (!HolesTakeKeys()) return;
    if (pegs_.IsEmpty(MarkedHole().index)) MoveToColumn(MarkedHole().index - 1);
    Empty();
}

void KeyPlay::EmptyRow() {
    if (!HolesTakeKeys()) return;
    pegs_.DoubleClickRow();
    MoveToColumn(1);
}

bool KeyPlay::PressSpace() {
    const std::optional<Control> place = table_.window.Place();
    if (place && IsButton(*place)) return false;
    if (const std::optional<int> strip = StripAtPlace()) {
        round_.ChooseRow(*strip);
    } else {
        Fill();
    }
    return true;
}

void KeyPlay::PressEnter() {
    const std::optional<Control> place = table_.window.Place();
    if (const std::optional<int> strip = StripAtPlace()) {
        round_.ChooseRow(*strip);
    } else if (place && IsButton(*place) && place->array != Controls::cmdColBtn) {
        table_.window.Press(*place);
    } else if (table_.inputBar.Takes(Answer::kOk)) {
        table_.window.Press(ButtonOf(Answer::kOk));
    } else {
        table_.window.Press(ButtonOf(CommandButton::kCheck));
    }
}

std::optional<int> KeyPlay::StripAtPlace() const {
    const std::optional<Control> place = table_.window.Place();
    if (!place || place->array != Controls::lblCloneRow) return std::nullopt;
    return place->index;
}

}  // namespace quendrel
