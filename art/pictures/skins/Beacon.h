// The skin "Beacon": grey stone, slate and chalk, keys like pebbles, one yellow. Every colour has a
// sign of its own cut into its tablet, so that it is told by its shape and its lightness as well.
#pragma once

#include <vector>

#include "skins/Craft.h"
#include "skins/Signs.h"

namespace quendrel::art::beacon {

class Beacon : public Craft {
public:
    Beacon();

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

    void PaintEmblem(Canvas& canvas, Vec2 middle, Color fill) const;
    /// The sign of a colour as it lies on the board, `size` times as large as it is drawn.
    Shape SignOf(int color, Vec2 middle, double size) const;
    void PaintTablet(Canvas& canvas, Rect area, Vec2 middle, double scale, int color) const;
    void PaintBareDish(Canvas& canvas, Rect area, Vec2 middle, double scale, int color) const;
    /// By colour, around (0, 0).
    std::vector<Shape> signs_;
    /// What lids carry, around (0, 0).
    Shape hidden_;
};

/// Chalk, the ink on light keys, the one yellow, and the slate's floor in wells.
inline constexpr Color kChalk{0.80, 0.82, 0.84};
inline constexpr Color kInk{0.008, 0.008, 0.009};
inline constexpr Color kSignal{0.92, 0.58, 0.035};
inline constexpr Color kFloor{0.0095, 0.0115, 0.0140};

/// A rounded square: the outline of the pegs and all that belongs to them.
Shape Pebble(Vec2 center, Vec2 radii);

/// A key's outline: its short sides are half rounds.
Shape Pill(Rect place, double inset);

/// The edge of a hollow, `width` pixels around it: dark towards the light, bright away from it.
void PaintRim(Canvas& canvas, Rect area, const Shape& hollow, double width, double strength);

/// A hollow with an even floor, `depth` pixels deep.
void PaintSunk(Canvas& canvas, Rect area, const Shape& hollow, Color floor, double depth);

/// Strokes of chalk on the slate's grain; `strength`, 0 to 1, is how much of them sticks.
void PaintChalk(Canvas& canvas, Rect area, const Shape& strokes, Color chalk, double strength);

}  // namespace quendrel::art::beacon
