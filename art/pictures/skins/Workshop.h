// The workshop that builds every window of a skin out of its craft: it knows where everything
// stands, the craft how it is made.
#pragma once

#include "skins/Craft.h"

namespace quendrel::art {

/// A window with its texts and wells; buttons, switches and the mode's sign leave their places.
struct BareWindow {
    Shape outline;
    Canvas canvas;
};

BareWindow BuildWindow(const Craft& craft, Window window);

/// A switch: its lever at the left, its caption beside it.
void PaintSwitch(Canvas& canvas, const Craft& craft, const Button& button, SwitchState state);

}  // namespace quendrel::art
