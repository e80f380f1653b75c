// What a skin must be able to paint of the main window. Everything is painted where it stands in
// the window's coordinates, so that a button's picture is cut out of the console it stands in.
#pragma once

#include <string>
#include <vector>

#include "kit/Canvas.h"
#include "kit/Shapes.h"
#include "ui/MainLayout.h"

namespace quendrel::art {

/// A Sign's caption is one of "<", ">", "^", "v", "-" and "+", drawn as a shape.
enum class ButtonKind { Menu, Inviting, Mode, Answer, Peg, Hide, Duel, Timer, Sign };
enum class ButtonState { Up, Disabled, Down, Over };

struct Button {
    ButtonKind kind;
    Rect place;
    std::string caption;  ///< drawn on those kinds that carry text
    int color = 0;        ///< 1 to 10 for a colour button
};

/// A button and the states it has pictures for.
struct ButtonSet {
    Button button;
    std::vector<ButtonState> states;
};

/// The state as the names of picture files have it.
inline const char* StateName(ButtonState state) {
    switch (state) {
        case ButtonState::Up:
            return "Up";
        case ButtonState::Disabled:
            return "Disabled";
        case ButtonState::Down:
            return "Down";
        case ButtonState::Over:
            return "Over";
    }
    return "";
}

// Where the main window's console is let in for the messages, the answer keys and the clock.
inline constexpr Rect kMessagePanel{14, 98, 176, 80};
inline constexpr Rect kAnswerTray{69, 61, 99, 31};
inline constexpr Rect kClockTray{18, layout::kClockButton.top - 1, 104,
                                 layout::kClockButton.height + 2};

class Look {
public:
    virtual ~Look() = default;

    /// The window's outline: the shape that Boardmask.bmp keeps.
    virtual Shape Outline() const = 0;

    /// The whole window but for holes and numbers; buttons leave their empty places.
    virtual void PaintWindow(Canvas& canvas) const = 0;

    // In what follows `cell` is the top left of a peg, mark or number cell.

    /// The hole and what surrounds it; within the mask it must not depend on the place.
    virtual void PaintPegHole(Canvas& canvas, Point cell) const = 0;
    virtual void PaintMarkHole(Canvas& canvas, Point cell) const = 0;
    virtual void PaintNumber(Canvas& canvas, Point cell, int row, bool lit) const = 0;

    /// What stands in a hole: a peg of colour 1 to 10; mark 1 (right place) or 2 (right colour).
    virtual void PaintPeg(Canvas& canvas, Point cell, int color) const = 0;
    virtual void PaintMark(Canvas& canvas, Point cell, int mark) const = 0;

    /// The cover over a hole, from closed (0) to gone (1).
    virtual void PaintCover(Canvas& canvas, Point cell, double open) const = 0;

    /// The parts of a cell that its sprites own.
    virtual Shape PegMask(Point cell) const = 0;
    virtual Shape MarkMask(Point cell) const = 0;

    virtual void PaintButton(Canvas& canvas, const Button& button, ButtonState state) const = 0;
};

}  // namespace quendrel::art
