// Keeps what the window showed before a question, and restores it when the question is over.
#pragma once

#include <optional>

#include "ui/layout/Control.h"
#include "ui/main/CommandButtons.h"
#include "ui/main/MessagePanel.h"

namespace quendrel {

class InputBar;
class MainView;

/// The message panel, the command buttons and the place where keys act, as they stood.
class SetAside {
public:
    SetAside(MainView& window, MessagePanel& panel, CommandButtons& commands, InputBar& inputBar)
        : window_(window), panel_(panel), commands_(commands), inputBar_(inputBar) {}

    /// Keeps all three and disables all command buttons.
    void PutAside();

    /// Puts all three back and forgets the answers: the question is over.
    void PutBack();

    /// The states that will be restored.
    ButtonStates buttons{};

    /// The place that will have the keys again.
    std::optional<Control> place;

private:
    MainView& window_;
    MessagePanel& panel_;
    CommandButtons& commands_;
    InputBar& inputBar_;
    Message message_;
};

}  // namespace quendrel
