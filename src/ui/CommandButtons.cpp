// The states of the eight command buttons.
#include "ui/CommandButtons.h"

#include "Global.h"
#include "ui/MainWindow.h"

namespace quendrel {

void CommandButtons::SetButtonStates(const ButtonStates& states) {
    for (int i = 0; i < 8; ++i) {
        const std::uint8_t state = states.at(static_cast<std::size_t>(i));
        const bool barred = i == kHigh && !global_.Settings.GTimer;
        if (state == 1 && !barred) window_.SetEnabled({Controls::cmdMnuBtn, i}, true);
        if (state == 2) window_.SetEnabled({Controls::cmdMnuBtn, i}, false);
    }
}

void CommandButtons::SetButtonState(CommandButton button, bool enabled) {
    ButtonStates states{};
    states[button] = enabled ? 1 : 2;
    SetButtonStates(states);
}

ButtonStates CommandButtons::States() const {
    ButtonStates states{};
    for (int i = 0; i < 8; ++i) {
        states[static_cast<std::size_t>(i)] = window_.IsEnabled({Controls::cmdMnuBtn, i}) ? 1 : 2;
    }
    return states;
}

}  // namespace quendrel
