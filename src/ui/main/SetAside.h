// Keeps what the window showed before a question, and restores it when the question is over.
#pragma once

#include "ui/main/CommandButtons.h"
#include "ui/main/MessagePanel.h"

namespace quendrel {

class InputBar;

/// The message panel and the command buttons as they stood.
class SetAside {
public:
    SetAside(MessagePanel& panel, CommandButtons& commands, InputBar& inputBar)
        : panel_(panel), commands_(commands), inputBar_(inputBar) {}

    /// Keeps both and disables all command buttons.
    void PutAside();

    /// Shows both again and forgets the answers: the question is over.
    void PutBack();

    /// The states that will be restored.
    ButtonStates buttons{};

private:
    MessagePanel& panel_;
    CommandButtons& commands_;
    InputBar& inputBar_;
    Message message_;
};

}  // namespace quendrel
