// Atelier's about window: a mantel clock's case whose tower holds a torch.
#include "kit/Fittings.h"
#include "kit/Light.h"
#include "skins/AtelierCase.h"
#include "skins/AtelierWindows.h"
#include "ui/AboutLayout.h"

namespace quendrel::art::atelier {

namespace {

constexpr Rect kAboutWindow = WholeOf(layout::kAboutWindow);
constexpr double kAboutTowerMiddle = 76;
constexpr double kTowerRight = 138;
constexpr double kBodyMiddle = 292;

const WoodCut kAboutTowerWood{Hex(0x331609), Hex(0x9a5c32), kPi / 2, 0.9, 517};
const WoodCut kBodyWood{Hex(0x21120b), Hex(0x5f3a20), 0.0, 0.7, 29};

Shape DrawAboutOutline() {
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

/// How much the torch adds to the room's light on the case.
double TorchLight(Vec2 p) { return 0.9 * std::exp(-Square(Length(p - Vec2{76, 104}) / 82)); }

/// The torch's niche: a box with a round head.
Shape TorchNiche() {
    const double half = 40;
    const double spring = 82;
    return [=](Vec2 p) {
        const double dx = std::abs(p.x - kAboutTowerMiddle) - half;
        if (p.y < spring) return Length({p.x - kAboutTowerMiddle, p.y - spring}) - half;
        return std::max(dx, p.y - 243);
    };
}

Shape LinkNiche(Rect place) { return RoundedBox(place, -6.0, 7); }

}  // namespace

AtelierWindows::AtelierWindows(const Atelier& atelier)
    : atelier_(atelier), captions_(QUENDREL_CAPTION_FONT), titles_(QUENDREL_TITLE_FONT) {}

Shape AtelierWindows::AboutOutline() const {
    static const Shape outline = Sampled(DrawAboutOutline(), kAboutWindow);
    return outline;
}

void AtelierWindows::PaintAbout(Canvas& canvas) const {
    const Shape outline = AboutOutline();
    PaintBody(canvas, kAboutWindow, outline, [](Vec2 p) {
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

    PaintNiche(canvas, {26, 32, 100, 222}, TorchNiche());
    for (const Rect& place : {layout::kAboutEmail, layout::kAboutHome})
        PaintNiche(canvas, Grown(place, 14), LinkNiche(place));
    PaintHollow(canvas, Grown(layout::kAboutOk, 3), RoundedBox(layout::kAboutOk, 0.8, 5.5),
                {0.016, 0.012, 0.010}, 2.2);
    PaintAboutTexts(canvas);
    PaintScrew(canvas, {22, 298}, 4.4, 0.6, kBrass);
    PaintScrew(canvas, {442, 298}, 4.4, 2.2, kBrass);
}

void AtelierWindows::PaintAboutTexts(Canvas& canvas) const {
    const Rect area{142, 66, 304, 66};
    const Shape plate = RoundedBox({154, 74}, {430, 122}, 6);
    const Shape name = Union(Inset(titles_.Line("Quendrel", 43, {kBodyMiddle - 24, 98}, 1.6), -0.3),
                             captions_.Line("v1.0", 22, {kBodyMiddle + 91, 104}, 0.8));
    PaintPlate(canvas, area, plate, name);
    for (const double x : {163.5, 420.5}) PaintScrew(canvas, {x, 98}, 2.6, x * 0.3, kBrass);

    const Color gilt{0.86, 0.60, 0.27};
    PaintGilt(canvas, {142, 128, 304, 26},
              captions_.Line("A code-breaking game with colours", 20, {kBodyMiddle, 140}, 0.5),
              gilt);
    PaintGilt(canvas, {142, 150, 304, 26},
              titles_.Line("Made by Brimwell", 20, {kBodyMiddle, 163}, 0.6), gilt);
    const auto label = [&](const char* text, Rect place) {
        const Vec2 middle{place.left + place.width / 2.0, 272.0};
        PaintGilt(canvas, {place.left - 10, 262, place.width + 20, 22},
                  captions_.Line(text, 16, middle, 0.5), gilt);
    };
    label("E-mail", layout::kAboutEmail);
    label("Home page", layout::kAboutHome);
}

void AtelierWindows::PaintPushButton(Canvas& canvas, const Button& button,
                                     ButtonState state) const {
    atelier_.PaintButton(canvas, button, state);
}

}  // namespace quendrel::art::atelier
