// The skin "Daylight": a bright table by the sea. Bodies of white glazed porcelain with a line of
// cobalt, a board of natural linen, marks on a runner of blue linen, pegs of sea-washed pebbles.
#pragma once

#include <string>

#include "skins/Craft.h"

namespace quendrel::art::daylight {

class Daylight : public Craft {
public:
    Daylight();

    Shape Outline(Window window) const override;
    void PaintBody(Canvas& canvas, Window window, const Shape& outline) const override;
    void PaintWell(Canvas& canvas, Rect place, Well kind) const override;
    void PaintSocket(Canvas& canvas, Rect place, Socket kind) const override;
    void PaintLettering(Canvas& canvas, Lettering kind, const std::string& text,
                        Vec2 middle) const override;
    void PaintScoreRow(Canvas& canvas, Rect row, int entry) const override;
    void PaintRank(Canvas& canvas, Rect place, int rank) const override;
    void PaintModeSign(Canvas& canvas, Rect place, const std::string& name,
                       int mode) const override;

    Shape PegMask(Rect cell) const override;
    Shape MarkMask(Rect cell) const override;
    void PaintPegHole(Canvas& canvas, Rect cell) const override;
    void PaintPeg(Canvas& canvas, Rect cell, int color) const override;
    void PaintCover(Canvas& canvas, Rect cell, double open) const override;
    void PaintMarkHole(Canvas& canvas, Rect cell) const override;
    void PaintMark(Canvas& canvas, Rect cell, int mark) const override;
    void PaintNumber(Canvas& canvas, Rect cell, int row, bool lit) const override;

    void PaintLever(Canvas& canvas, Rect place, SwitchState state) const override;
    void PaintSwitchCaption(Canvas& canvas, const std::string& text, Vec2 leftMiddle,
                            SwitchState state) const override;

private:
    void PaintBlank(Canvas& canvas, const Button& button, ButtonState state) const override;
    void PaintCaption(Canvas& canvas, const Button& button, ButtonState state) const override;
    void PaintKeyPeg(Canvas& canvas, const Button& button, ButtonState state) const override;
    void PaintClock(Canvas& canvas, Rect place, bool running) const override;
};

/// The white of the porcelain, the blue that is painted under its glaze, the blue and the green of
/// glazes, and a clay that was never glazed.
inline constexpr Color kPorcelain{0.79, 0.835, 0.885};
inline constexpr Color kCobalt{0.011, 0.036, 0.205};
inline constexpr Color kDipped{0.014, 0.070, 0.285};
inline constexpr Color kSeaGreen{0.030, 0.300, 0.290};
inline constexpr Color kBisque{0.53, 0.572, 0.625};

/// The yellow of the row that is being played and of what is chosen.
inline constexpr Color kSunlit{0.98, 0.62, 0.030};

/// A body under glaze, which reflects the window on its curves.
Color Glazed(Color body, Vec3 normal, double shade = 0);

/// Strokes painted under the glaze, thinner and thicker as a brush leaves them.
void PaintBrushed(Canvas& canvas, Rect area, const Shape& strokes, Color pigment);

/// A cushion of porcelain: its edge falls over the last `width` pixels as steeply as `slope`, and
/// its glaze is thinner there.
void PaintTile(Canvas& canvas, Rect area, const Shape& tile, Color body, double width,
               double slope);

/// A dimple of porcelain, a pebble lying in it, and a bare dimple with a ring in the colour of its
/// pebble, at any size; scale 1 is the board's.
void PaintDimple(Canvas& canvas, Rect area, Vec2 middle, double scale, bool glazed);
void PaintPebble(Canvas& canvas, Rect area, Vec2 middle, double scale, int color);
void PaintBareDimple(Canvas& canvas, Rect area, Vec2 middle, double scale, int color);

}  // namespace quendrel::art::daylight
