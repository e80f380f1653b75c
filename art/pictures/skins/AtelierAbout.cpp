#include "kit/Fittings.h"
#include "kit/Light.h"
#include "skins/Atelier.h"
#include "skins/AtelierCase.h"
#include "skins/AtelierWindows.h"
#include "ui/layout/AboutLayout.h"

namespace quendrel::art::atelier {

namespace {

constexpr Rect kAboutWindow = WholeOf(layout::kAboutWindow);
constexpr double kTowerRight = 138;

const WoodCut kAboutTowerWood{Hex(0x331609), Hex(0x9a5c32), kPi / 2, 0.9, 517};
const WoodCut kBodyWood{Hex(0x21120b), Hex(0x5f3a20), 0.0, 0.7, 29};

/// How much the torch adds to the room's light on the case.
double TorchLight(Vec2 p) { return 0.9 * std::exp(-Square(Length(p - Vec2{76, 104}) / 82)); }

}  // namespace

Shape AboutOutline() {
    return Path({14, 262})
        .LineTo({14, 74})
        .CurveTo({14, 30}, {42, 3}, {76, 3})
        .CurveTo({106, 3}, {129, 21}, {136, 46})
        .CurveTo({139, 57}, {146, 63}, {160, 62})
        .CurveTo({240, 53}, {350, 53}, {428, 61})
        .CurveTo({444, 63}, {449, 70}, {450, 84})
        .LineTo({450, 262})
        .CurveTo({450, 278}, {462, 282}, {462, 296})
        .CurveTo({462, 307}, {456, 313}, {446, 313})
        .LineTo({406, 313})
        .CurveTo({390, 313}, {386, 303}, {368, 302})
        .CurveTo({290, 297}, {164, 297}, {96, 302})
        .CurveTo({78, 303}, {74, 313}, {58, 313})
        .LineTo({18, 313})
        .CurveTo({8, 313}, {2, 307}, {2, 296})
        .CurveTo({2, 282}, {14, 278}, {14, 262})
        .Close();
}

void PaintMantelClock(Canvas& canvas, const Shape& outline) {
    PaintCase(canvas, kAboutWindow, outline, [](Vec2 p) {
        const Color wood = Wood(p, p.x < kTowerRight ? kAboutTowerWood : kBodyWood);
        const double lamp = Mix(1.3, 0.85, SmoothStep(0, 420, Length(p - Vec2{180, 60})));
        return wood * lamp + wood * Color{1.0, 0.55, 0.2} * TorchLight(p);
    });
    const Shape inner = Inset(outline, kDarkRim + kCaseMoulding - 0.5);
    const Shape post = [](Vec2 p) { return std::abs(p.x - kTowerRight) - 1.0; };
    PaintFillet(canvas, {130, 40, 16, 270}, post, inner);
    const Shape plinth = [](Vec2 p) { return std::abs(p.y - 286) - 1.0; };
    PaintFillet(canvas, {0, 278, kAboutWindow.width, 16}, plinth, inner);
    PaintMoulding(canvas, kAboutWindow, outline);
    PaintScrew(canvas, {22, 298}, 4.4, 0.6, kBrass);
    PaintScrew(canvas, {442, 298}, 4.4, 2.2, kBrass);
}

}  // namespace quendrel::art::atelier
