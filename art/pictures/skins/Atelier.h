// The skin "Atelier": a watchmaker's bench of oiled walnut, brass inlays and screws, green leather,
// pegs of poured glass, under the light of one window and a warm lamp.
#pragma once

#include <string>

#include "kit/Glass.h"
#include "skins/Craft.h"

namespace quendrel::art::atelier {

class Atelier : public Craft {
public:
    Atelier();

    Shape Outline(Window window) const override;
    void PaintBody(Canvas& canvas, Window window, const Shape& outline) const override;
    void PaintWell(Canvas& canvas, Rect place, Well kind) const override;
    void PaintSocket(Canvas& canvas, Rect place, Socket kind) const override;
    void PaintLettering(Canvas& canvas, Lettering kind, const std::string& text,
                        Vec2 middle) const override;
    std::string VersionWord() const override { return "v"; }
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

    void PaintNamePlate(Canvas& canvas, const std::string& text, Vec2 middle) const;
    void PaintTitle(Canvas& canvas, Lettering kind, const std::string& text, Vec2 middle) const;
    void PaintGroup(Canvas& canvas, const std::string& text, Vec2 middle) const;

    /// What the pegs of colours 1 to 10 are poured of.
    static const GlassKind& GlassOf(int color);

    /// The brass seat of a peg and the peg in it, at any size; scale 1 is the board's.
    static void PaintSeat(Canvas& canvas, Rect area, Vec2 middle, double scale, Color brass);
    static void PaintBareSeat(Canvas& canvas, Rect area, Vec2 middle, double scale, int color);
    static void PaintDome(Canvas& canvas, Rect area, Vec2 middle, double scale,
                          const GlassKind& glass);
};

/// The brass of all fittings.
inline constexpr Color kBrass{0.95, 0.64, 0.25};

/// The green leather of panels and wells.
inline constexpr Color kLeather{0.010, 0.038, 0.023};

/// The light of keys that are held.
inline constexpr Color kLamp{1.9, 0.92, 0.20};

/// The stone of the medallion and of the modes' signs.
inline constexpr GlassKind kRuby{{0.98, 0.006, 0.030}, {1.1, 0.008, 0.034}, 0.42, 2.2};

/// The hollow that a key stands in.
inline Shape KeySocket(Rect place) { return RoundedBox(place, 0.8, 5.5); }

}  // namespace quendrel::art::atelier
