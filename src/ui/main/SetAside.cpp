#include "ui/main/SetAside.h"

#include "ui/main/InputBar.h"

namespace quendrel {

void SetAside::PutAside() {
    message_ = panel_.Lines();
    buttons = commands_.States();
    commands_.SetButtonStates(kAllOff);
}

void SetAside::PutBack() {
    panel_.DisplayText(message_);
    commands_.SetButtonStates(buttons);
    inputBar_.Clear();
}

}  // namespace quendrel
