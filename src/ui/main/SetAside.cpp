#include "ui/main/SetAside.h"

#include "ui/main/InputBar.h"
#include "ui/main/MainView.h"

namespace quendrel {

void SetAside::PutAside() {
    message_ = panel_.Lines();
    place = window_.Place();
    buttons = commands_.States();
    commands_.SetButtonStates(kAllOff);
}

void SetAside::PutBack() {
    panel_.DisplayText(message_);
    commands_.SetButtonStates(buttons);
    inputBar_.Clear();
    if (place) window_.SetPlace(*place);
}

}  // namespace quendrel
