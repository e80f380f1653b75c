// What a skin is made of: its outlines, materials, type, keys, and the things on its board. The
// workshop builds every window out of these, so that a new skin is one description. Everything is
// painted where it stands in its window's coordinates, so that a button's picture is cut out of
// the window it stands in.
#pragma once

#include <cstdint>
#include <string>

#include "kit/Canvas.h"
#include "kit/Text.h"
#include "skins/Button.h"

namespace quendrel::art {

/// The windows that a skin dresses; their sizes are those of the layouts.
enum class Window : std::uint8_t { kMain, kAbout, kHigh, kConfig };

/// An inlay with an even floor: the messages, the keys that come and go, the pictures of the about
/// window that are links, its torch, the rows of the highscores, a box of the configuration window.
/// Live text is light, so its floor is dark; the floor of a niche has the one colour that the
/// animations stand on. The place of a well is its opening: a rim's shadow keeps to the outer six
/// pixels of it, a frame to three pixels around it.
enum class Well : std::uint8_t { kMessages, kTray, kLink, kTorch, kScores, kBox };

constexpr bool IsNiche(Well kind) { return kind == Well::kLink || kind == Well::kTorch; }

/// What stands in a place when it is not empty: a key, a key with a peg, the sign of a mode.
enum class Socket : std::uint8_t { kKey, kPeg, kModeSign };

/// The texts of the windows, by what they are there for.
enum class Lettering : std::uint8_t {
    kName,  // on the main window's board
    kAboutTitle,
    kVersion,
    kSubject,
    kMaker,
    kLabel,  // below a picture of the about window
    kHighTitle,
    kColumn,
    kNameColumn,  // its middle is that of a word as wide as kNameColumnWidth
    kConfigTitle,
    kGroup,  // over a group of switches
    kBox     // over a box
};
inline constexpr double kNameColumnWidth = 40;

constexpr bool IsTitle(Lettering kind) {
    return kind == Lettering::kAboutTitle || kind == Lettering::kHighTitle ||
           kind == Lettering::kConfigTitle;
}

/// A line of plain reading.
constexpr bool IsNote(Lettering kind) {
    return kind == Lettering::kSubject || kind == Lettering::kMaker;
}

class Craft {
public:
    Craft(const Craft&) = delete;
    Craft& operator=(const Craft&) = delete;
    virtual ~Craft() = default;

    /// The outline of a window, at least two pixels within its size. No rectangle.
    virtual Shape Outline(Window window) const = 0;

    /// The bare body of a window with its rim, edge and ornaments, its material going on outside
    /// the outline (BothSides, in Shapes.h): of the main window console, board and tower, which the
    /// bowed rows of holes, the marks and the mode buttons stand on.
    virtual void PaintBody(Canvas& canvas, Window window, const Shape& outline) const = 0;

    virtual void PaintWell(Canvas& canvas, Rect place, Well kind) const = 0;

    /// The hollow within `place` that is left when what stands there is gone.
    virtual void PaintSocket(Canvas& canvas, Rect place, Socket kind) const = 0;

    /// A text around `middle`, with the plate or whatever else it stands on.
    virtual void PaintLettering(Canvas& canvas, Lettering kind, const std::string& text,
                                Vec2 middle) const = 0;

    /// What stands before the number of the version.
    virtual std::string VersionWord() const { return "Version "; }

    /// What sets row `entry` of the highscores apart from its neighbours, if anything.
    virtual void PaintScoreRow(Canvas& /*canvas*/, Rect /*row*/, int /*entry*/) const {}

    /// A rank of the highscore window and the sign of a mode (0 to 2), within `place`.
    virtual void PaintRank(Canvas& canvas, Rect place, int rank) const = 0;
    virtual void PaintModeSign(Canvas& canvas, Rect place, const std::string& name,
                               int mode) const = 0;

    // In what follows `cell` is the place of a peg, a mark or a number.

    /// The part of a cell that its sprites draw.
    virtual Shape PegMask(Rect cell) const = 0;
    virtual Shape MarkMask(Rect cell) const = 0;

    /// The hole and its surroundings; within the mask they must look the same in every cell.
    virtual void PaintPegHole(Canvas& canvas, Rect cell) const = 0;
    virtual void PaintMarkHole(Canvas& canvas, Rect cell) const = 0;

    /// What stands in a hole: a peg of colour 1 to 10; mark 1 (right place) or 2 (right colour).
    virtual void PaintPeg(Canvas& canvas, Rect cell, int color) const = 0;
    virtual void PaintMark(Canvas& canvas, Rect cell, int mark) const = 0;

    /// The cover over a hole, from closed (0) to gone (1).
    virtual void PaintCover(Canvas& canvas, Rect cell, double open) const = 0;

    /// The number of a row; row 0 is that of the code.
    virtual void PaintNumber(Canvas& canvas, Rect cell, int row, bool lit) const = 0;

    /// A key of any kind in any state, with its caption, sign (Signs.h), peg or dial.
    void PaintKey(Canvas& canvas, const Button& button, ButtonState state) const;

    /// The lever of a switch, within `place` at the left of its caption, and the caption. Off and
    /// on differ in shape.
    virtual void PaintLever(Canvas& canvas, Rect place, SwitchState state) const = 0;
    virtual void PaintSwitchCaption(Canvas& canvas, const std::string& text, Vec2 leftMiddle,
                                    SwitchState state) const = 0;

protected:
    /// The font files of captions and of titles.
    Craft(const std::string& captions, const std::string& titles)
        : captions_(captions), titles_(titles) {}

    const Font& Captions() const { return captions_; }
    const Font& Titles() const { return titles_; }

    /// Paints the empty hole over whatever stands in it, but for the part where `opened` says that
    /// the cover is away: only there a peg still shows.
    template <class Opened>
    void PaintHoleAround(Canvas& canvas, Rect cell, const Opened& opened) const {
        Canvas hole(cell);
        PaintPegHole(hole, cell);
        canvas.Paint(cell, [&](Vec2 p) {
            if (opened(p)) return Sample{};
            return Sample{hole.At(p), 1};
        });
    }

private:
    /// A key with nothing on it.
    virtual void PaintBlank(Canvas& canvas, const Button& button, ButtonState state) const = 0;

    /// What a key carries: its caption or sign, or its peg.
    virtual void PaintCaption(Canvas& canvas, const Button& button, ButtonState state) const = 0;
    virtual void PaintKeyPeg(Canvas& canvas, const Button& button, ButtonState state) const = 0;

    virtual void PaintClock(Canvas& canvas, Rect place, bool running) const = 0;

    Font captions_;
    Font titles_;
};

}  // namespace quendrel::art
