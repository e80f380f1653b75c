#include "kit/Fittings.h"
#include "kit/Glass.h"
#include "kit/Light.h"
#include "skins/Atelier.h"
#include "skins/AtelierCase.h"
#include "skins/AtelierWindows.h"
#include "ui/layout/HighLayout.h"

namespace quendrel::art::atelier {

namespace {

constexpr Rect kHighWindow = WholeOf(layout::kHighWindow);
constexpr double kHighMiddle = kHighWindow.width / 2.0;
constexpr Vec2 kMedallion{kHighMiddle, 35};

const WoodCut kCaseWood{Hex(0x2a1309), Hex(0x84502b), kPi / 2, 0.8, 613};

/// Two sprigs of laurel around a stone.
void PaintMedallion(Canvas& canvas) {
    const Rect area{190, 0, 80, 66};
    const Shape disc = Ellipse(kMedallion, {20.5, 20.5});
    PaintShadow(canvas, area, disc, 2.0, 2.6, 0.8);
    PaintMetal(canvas, area, disc, kBrass, 3.0, 1.4, 0.25);
    const Shape field = Inset(disc, 2.6);
    PaintHollow(canvas, area, field, kLeather * 0.6, 1.6);
    Shape laurel = Inset(field, 100);
    for (int leaf = 0; leaf < 7; ++leaf) {
        for (const double side : {-1.0, 1.0}) {
            const double angle = side * (0.32 + 0.36 * leaf);
            const Vec2 stem = kMedallion + Rotate({0, 12.6}, angle);
            for (const double lean : {0.35, -0.55}) {
                const Vec2 tip = stem + Rotate({side * -4.4, 0}, angle + side * (0.35 + lean));
                laurel = Union(laurel, Stroke(stem, tip, 2.6));
            }
        }
    }
    PaintShadow(canvas, area, laurel, 0.7, 0.9, 0.7);
    PaintMetal(canvas, area, laurel, kBrass * 1.2, 1.0, 1.0, 0.3);
    const Dome stone{kMedallion, 7.4, 5.2, 0.999};
    const Shape setting = Ellipse(kMedallion, {8.8, 8.8});
    PaintShadow(canvas, area, setting, 0.8, 1.2, 0.7);
    PaintMetal(canvas, area, setting, kBrass, 1.4, 1.3, 0.25);
    canvas.Paint(area, [&](Vec2 p) { return GlassSample(stone, kRuby, p); });
}

}  // namespace

Shape HighOutline() {
    // The left half. It goes on beyond the middle, as Symmetric asks.
    const Shape half = Path({14, 406})
                           .LineTo({14, 114})
                           .CurveTo({14, 102}, {2, 100}, {2, 86})
                           .CurveTo({2, 76}, {10, 72}, {22, 72})
                           .CurveTo({84, 72}, {116, 62}, {148, 34})
                           .CurveTo({160, 23}, {172, 17}, {182, 23})
                           .CurveTo({190, 28}, {197, 27}, {201, 20})
                           .CurveTo({206, 9}, {216, 2}, {230, 2})
                           .LineTo({700, 2})
                           .LineTo({700, 441})
                           .LineTo({230, 441})
                           .CurveTo({170, 441}, {120, 436}, {92, 431})
                           .CurveTo({74, 428}, {68, 445}, {52, 445})
                           .LineTo({20, 445})
                           .CurveTo({8, 445}, {2, 438}, {2, 428})
                           .CurveTo({2, 416}, {14, 416}, {14, 406})
                           .Close();
    return Symmetric(half, kHighMiddle);
}

void PaintWallClock(Canvas& canvas, const Shape& outline) {
    PaintCase(canvas, kHighWindow, outline, [](Vec2 p) {
        const double side = std::abs(p.x - kHighMiddle) + 40;
        const double lamp = Mix(1.35, 0.75, SmoothStep(0, 430, Length(p - Vec2{190, 70})));
        return Wood({side, p.y}, kCaseWood) * lamp;
    });
    PaintMoulding(canvas, kHighWindow, outline);
    PaintMedallion(canvas);
    for (const double x : {24.0, kHighWindow.width - 24.0}) {
        PaintScrew(canvas, {x, 88}, 4.4, x * 0.01, kBrass);
        PaintScrew(canvas, {x, 430}, 4.4, 1 + x * 0.01, kBrass);
    }
}

}  // namespace quendrel::art::atelier
