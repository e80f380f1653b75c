#include "ui/main/CommandButtons.h"

#include "Global.h"
#include "ui/main/MainView.h"

namespace quendrel {

namespace {

using enum CommandButton;
constexpr std::array<CommandButton, kCommandButtons> kEveryCommandButton{
    kExit, kAbout, kConfig, kHigh, kShow, kClone, kStart, kCheck};

}  // namespace

void CommandButtons::SetButtonStates(const ButtonStates& states) {
    for (const CommandButton button : kEveryCommandButton) {
        const bool barred = button == CommandButton::kHigh && !global_.Settings.GTimer;
        if (states[button] == 1 && !barred) window_.SetEnabled(ButtonOf(button), true);
        if (states[button] == 2) window_.SetEnabled(ButtonOf(button), false);
    }
}

void CommandButtons::SetButtonState(CommandButton button, bool enabled) {
    ButtonStates states{};
    states[button] = enabled ? 1 : 2;
    SetButtonStates(states);
}

ButtonStates CommandButtons::States() const {
    ButtonStates states{};
    for (const CommandButton button : kEveryCommandButton) {
        states[button] = window_.IsEnabled(ButtonOf(button)) ? 1 : 2;
    }
    return states;
}

}  // namespace quendrel
