// Builds every window of a skin. This knows where everything stands; the skin's Craft knows what it
// looks like.
#pragma once

#include "skins/Craft.h"

namespace quendrel::art {

/// A window with its texts and wells, and with empty places for buttons, switches and the mode's
/// sign.
struct BareWindow {
    Shape outline;
    Canvas canvas;
};

BareWindow BuildWindow(const Craft& craft, Window window);

/// A switch: its lever at the left, its caption beside it.
void PaintSwitch(Canvas& canvas, const Craft& craft, const Button& button, SwitchState state);

}  // namespace quendrel::art
