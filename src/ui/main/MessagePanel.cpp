#include "ui/main/MessagePanel.h"

#include "ui/main/MainView.h"
#include "ui/main/Spoken.h"

namespace quendrel {

void MessagePanel::DisplayText(const MessageLine& line1, const MessageLine& line2,
                               const MessageLine& line3, const MessageLine& line4) {
    DisplayText(Message({line1, line2, line3, line4}));
}

void MessagePanel::DisplayText(const Message& message) {
    for (int line = 1; line <= kPanelLines; ++line) {
        lines_[line].text = message[line].text;
        lines_[line].kept = message[line].kept;
        if (!message[line].text.empty()) lines_[line].ink = message[line].ink;
        window_.SetMessageLine(line, lines_[line]);
    }
}

void MessagePanel::Say(const std::string& answers) const {
    window_.Announce(SpokenMessage(lines_) + (answers.empty() ? "" : " " + answers));
}

}  // namespace quendrel
