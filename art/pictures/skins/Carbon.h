// The skin Carbon: an instrument at night. Anodised metal and carbon twill, thin lines of light,
// hexagonal caps lit from within, plates that slide over them.
#pragma once

#include "skins/Craft.h"

namespace quendrel::art::carbon {

/// A cap lit from within: its colour at the edges and where the lamp stands. An unlit one shows by
/// the trim around its top.
struct LitCap {
    Color edge;
    Color core;
    Color trim{};
};

class Carbon : public Craft {
public:
    Carbon();

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

    static void PaintHighFittings(Canvas& canvas, const Shape& inner);
    void PaintPlate(Canvas& canvas, const Shape& letters, Vec2 middle, Vec2 half) const;

    static const LitCap& CapOf(int color);
    /// The hole of a cap and the cap around `middle`; the board's own size is 1.
    static void PaintReflector(Canvas& canvas, Rect area, Vec2 middle, double scale);
    static void PaintBareReflector(Canvas& canvas, Rect area, Vec2 middle, double scale,
                                   const LitCap& cap);
    static void PaintCap(Canvas& canvas, Rect area, Vec2 middle, double scale, const LitCap& cap);
};

}  // namespace quendrel::art::carbon
