// What a skin is made of: its outlines, materials, type, keys, and the things on its board. The
// workshop builds every window out of these, so that a new skin is one description.
#pragma once

#include <string>

#include "kit/Text.h"
#include "skins/Look.h"
#include "skins/WindowLook.h"

namespace quendrel::art {

/// The windows that a skin dresses; their sizes are those of the layouts.
enum class Window { Main, About, High, Config };

/// An inlay with an even floor. Live text in a text well is light, so its floor is dark; the floor
/// of a niche has the one colour that the animations stand on; a tray holds keys that come and go
/// beside light text. The place of a well is its opening: a rim's shadow keeps to the outer six
/// pixels of it, a frame to three pixels around it.
enum class Well { Text, Niche, Tray };

/// The name on the main window's board; a window's title; a group's heading or a column's; a small
/// heading; a line of plain reading.
enum class Lettering { Name, Title, Heading, Head, Note };

class Craft {
public:
    virtual ~Craft() = default;

    /// The lettering of captions and headings, and that of titles.
    virtual const Font& Captions() const = 0;
    virtual const Font& Titles() const = 0;

    /// The outline of a window, at least two pixels within its size. No rectangle.
    virtual Shape Outline(Window window) const = 0;

    /// The bare body of a window with its rim, edge and ornaments, its material going on outside
    /// the outline (BothSides, in Shapes.h): of the main window console,
    /// board and tower, which the bowed rows of holes, the marks and the mode buttons stand on.
    virtual void PaintBody(Canvas& canvas, Window window, const Shape& outline) const = 0;

    virtual void PaintWell(Canvas& canvas, Rect place, Well kind) const = 0;

    /// The place of a key that is gone: a hollow within `place`.
    virtual void PaintSocket(Canvas& canvas, Rect place) const = 0;

    /// A text around `middle`, with the plate or whatever else it stands on.
    virtual void PaintLettering(Canvas& canvas, Lettering kind, const std::string& text,
                                Vec2 middle) const = 0;

    /// What sets row `entry` of the highscores off within their well.
    virtual void PaintScoreRow(Canvas& /*canvas*/, Rect /*row*/, int /*entry*/) const {}

    /// A rank of the highscore window and the sign of a mode (0 to 2), within `place`.
    virtual void PaintRank(Canvas& canvas, Rect place, int rank) const = 0;
    virtual void PaintModeSign(Canvas& canvas, Rect place, int mode) const = 0;

    // The board: as Look has it.
    virtual Shape PegMask(Point cell) const = 0;
    virtual Shape MarkMask(Point cell) const = 0;
    virtual void PaintPegHole(Canvas& canvas, Point cell) const = 0;
    virtual void PaintPeg(Canvas& canvas, Point cell, int color) const = 0;
    virtual void PaintCover(Canvas& canvas, Point cell, double open) const = 0;
    virtual void PaintMarkHole(Canvas& canvas, Point cell) const = 0;
    virtual void PaintMark(Canvas& canvas, Point cell, int mark) const = 0;
    virtual void PaintNumber(Canvas& canvas, Point cell, int row, bool lit) const = 0;

    /// A key of any kind in any state, with its caption, sign (Signs.h), peg or dial.
    virtual void PaintKey(Canvas& canvas, const Button& button, ButtonState state) const = 0;

    /// The lever of a switch, within `place` at the left of its caption: off and on differ in
    /// shape. And the caption.
    virtual void PaintLever(Canvas& canvas, Rect place, SwitchState state) const = 0;
    virtual void PaintSwitchCaption(Canvas& canvas, const std::string& text, Vec2 leftMiddle,
                                    SwitchState state) const = 0;
};

}  // namespace quendrel::art
