// The panel of four lines through which the game talks to the player.
#pragma once

#include "OneBased.h"
#include "ui/MessageLine.h"

namespace quendrel {

class MainWindow;

/// All four lines, top to bottom.
using Message = OneBased<MessageLine, 4>;

class MessagePanel {
public:
    explicit MessagePanel(MainWindow& window) : window_(window) {}

    /// Replaces the whole panel. A line with an empty text is hidden and keeps its colour.
    void DisplayText(const MessageLine& line1, const MessageLine& line2 = {},
                     const MessageLine& line3 = {}, const MessageLine& line4 = {});
    void DisplayText(const Message& message);

    /// What the panel shows, to be put back later; a hidden line reads as an empty text.
    const Message& Lines() const { return lines_; }

private:
    MainWindow& window_;
    Message lines_;
};

}  // namespace quendrel
