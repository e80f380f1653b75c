// The panel of four lines through which the game talks to the player.
#pragma once

#include <string>

#include "OneBased.h"
#include "ui/layout/MainLayout.h"
#include "ui/main/MessageLine.h"

namespace quendrel {

class MainView;

inline constexpr int kPanelLines = 4;
static_assert(layout::kMessageLines.size() == kPanelLines);

/// All lines, top to bottom.
using Message = OneBased<MessageLine, kPanelLines>;

class MessagePanel {
public:
    explicit MessagePanel(MainView& window) : window_(window) {}

    /// Replaces the whole panel. A line with an empty text is hidden and keeps its colour.
    void DisplayText(const MessageLine& line1, const MessageLine& line2 = {},
                     const MessageLine& line3 = {}, const MessageLine& line4 = {});
    void DisplayText(const Message& message);

    /// Lets a screen reader say what the panel shows, and which answers there are.
    void Say(const std::string& answers = {}) const;

    /// What the panel shows, to be put back later; a hidden line reads as an empty text.
    const Message& Lines() const { return lines_; }

private:
    MainView& window_;
    Message lines_;
};

}  // namespace quendrel
