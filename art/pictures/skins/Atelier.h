// The skin "Atelier": a watchmaker's bench of oiled walnut, brass inlays and screws, green leather,
// pegs of poured glass, under the light of one window and a warm lamp.
#pragma once

#include "kit/Glass.h"
#include "kit/Text.h"
#include "skins/Look.h"

namespace quendrel::art::atelier {

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
    void PaintNamePlate(Canvas& canvas) const;

    /// What the pegs of colours 1 to 10 are poured of.
    static const GlassKind& GlassOf(int color);

    /// The brass seat of a peg and the peg in it, at any size; scale 1 is the board's.
    static void PaintSeat(Canvas& canvas, Rect area, Vec2 middle, double scale);
    static void PaintDome(Canvas& canvas, Rect area, Vec2 middle, double scale,
                          const GlassKind& glass);

    Shape Sign(const Button& button, Vec2 middle) const;
    void PaintCaption(Canvas& canvas, const Button& button, ButtonState state) const;

    Font captions_;
    Font titles_;
    Shape outline_;
};

/// The brass of all fittings.
inline constexpr Color kBrass{0.95, 0.64, 0.25};

/// The green leather of panels and wells.
inline constexpr Color kLeather{0.010, 0.038, 0.023};

/// The lamp that lights what is held.
inline constexpr Color kLamp{1.9, 0.92, 0.20};

/// The hollow that a key stands in.
inline Shape Socket(Rect place) { return RoundedBox(place, 0.8, 5.5); }

}  // namespace quendrel::art::atelier
