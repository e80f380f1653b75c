// The scale that the windows are shown at, of what the player wants, what the desktop says and what
// the screen has room for. A scale is the pixels of the screen for a unit; all windows have one.
#pragma once

#include "Geometry.h"
#include "ViewScale.h"

namespace quendrel {

/// The screen that a window is on: its scale, and the pixels that its panels leave to windows.
struct ScreenRoom {
    double scale = 1;
    Size pixels;
};

/// What is shown: what is wanted, or the largest step at which the main window fits the room. It is
/// never less than 1.
double ShownScale(const ViewScale& wanted, const ScreenRoom& room);

/// Chooses the next step above or below the one that is shown. Nothing changes where there is none,
/// or no room for it.
void ChooseLarger(ViewScale& wanted, const ScreenRoom& room);
void ChooseSmaller(ViewScale& wanted, const ScreenRoom& room);

/// Leaves it to the desktop again.
void ChooseNone(ViewScale& wanted);

}  // namespace quendrel
