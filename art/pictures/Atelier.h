// The skin "Atelier": a watchmaker's bench of oiled walnut, brass inlays and screws, green leather,
// pegs of poured glass, under the light of one window and a warm lamp.
#pragma once

#include "Glass.h"
#include "Look.h"
#include "Text.h"

namespace quendrel::art {

class Atelier : public Look {
public:
    Atelier();

    Shape Outline() const override { return outline_; }
    void PaintWindow(Canvas& canvas) const override;
    void PaintPegHole(Canvas& canvas, Point cell) const override;
    void PaintMarkHole(Canvas& canvas, Point cell) const override;
    void PaintNumber(Canvas& canvas, Point cell, int row, bool lit) const override;
    void PaintPeg(Canvas& canvas, Point cell, int color) const override;
    void PaintMark(Canvas& canvas, Point cell, int mark) const override;
    void PaintCover(Canvas& canvas, Point cell, double open) const override;
    Shape PegMask(Point cell) const override;
    Shape MarkMask(Point cell) const override;
    void PaintButton(Canvas& canvas, const Button& button, ButtonState state) const override;

private:
    void PaintWood(Canvas& canvas) const;
    void PaintFillets(Canvas& canvas) const;
    /// The brass line between the hidden code and the rows, bowed as they are.
    void PaintLintel(Canvas& canvas, const Shape& inner) const;
    void PaintNamePlate(Canvas& canvas) const;
    void PaintConsole(Canvas& canvas) const;
    void PaintScrews(Canvas& canvas) const;

    /// What the pegs of colours 1 to 10 are poured of.
    static const GlassKind& GlassOf(int color);

    /// The brass seat of a peg and the peg in it, at any size; scale 1 is the board's.
    void PaintSeat(Canvas& canvas, Rect area, Vec2 middle, double scale) const;
    void PaintDome(Canvas& canvas, Rect area, Vec2 middle, double scale,
                   const GlassKind& glass) const;

    void PaintKey(Canvas& canvas, const Button& button, ButtonState state) const;
    void PaintKeyRim(Canvas& canvas, const Button& button, ButtonState state,
                     const Shape& key) const;
    /// A small lamp of glass set in a key that can be held.
    void PaintJewel(Canvas& canvas, Rect area, Vec2 center, ButtonState state) const;
    void PaintCaption(Canvas& canvas, const Button& button, ButtonState state, Vec2 shift) const;
    void PaintWatch(Canvas& canvas, Rect place, bool running) const;

    Font captions_;
    Font titles_;
    Shape outline_;
};

/// The brass of all fittings.
inline constexpr Color kBrass{0.95, 0.64, 0.25};

/// The lamp that lights what is held, hovered or asked for.
inline constexpr Color kLamp{1.9, 0.92, 0.20};

}  // namespace quendrel::art
