// What a skin must be able to paint of the windows beside the main one. Everything is painted
// where it stands in its window's coordinates, so that a button's picture is cut out of the window
// it stands in.
#pragma once

#include "skins/Look.h"

namespace quendrel::art {

/// A switch that cannot be moved shows neither state.
enum class SwitchState { Off, On, Disabled };

class WindowLook {
public:
    virtual ~WindowLook() = default;

    virtual Shape AboutOutline() const = 0;

    /// The whole window with its texts; the button leaves its empty place, and every animation a
    /// niche with the floor that the animations are painted on.
    virtual void PaintAbout(Canvas& canvas) const = 0;

    virtual Shape HighOutline() const = 0;

    /// The whole window with its headings and ranks; buttons and the mode's sign leave their
    /// places.
    virtual void PaintHigh(Canvas& canvas) const = 0;

    /// The name of mode 0 to 2, as the highscore window shows it.
    virtual void PaintModeSign(Canvas& canvas, Rect place, int mode) const = 0;

    virtual Shape ConfigOutline() const = 0;

    /// The whole window with its title, headings and wells; buttons and switches leave their
    /// places.
    virtual void PaintConfig(Canvas& canvas) const = 0;

    /// A switch: its lever at the left, its caption beside it.
    virtual void PaintSwitch(Canvas& canvas, const Button& button, SwitchState state) const = 0;

    virtual void PaintPushButton(Canvas& canvas, const Button& button, ButtonState state) const = 0;
};

}  // namespace quendrel::art
