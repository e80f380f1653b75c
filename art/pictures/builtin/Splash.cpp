#include "builtin/Splash.h"

#include <array>

#include "kit/Fittings.h"
#include "kit/Glass.h"
#include "kit/Iris.h"
#include "kit/Light.h"
#include "kit/Text.h"
#include "skins/AtelierCase.h"

namespace quendrel::art::splash {

using namespace atelier;

namespace {

constexpr Rect kWindow{0, 0, 460, 300};
constexpr double kMiddle = 230;
constexpr Vec2 kEye{kMiddle, 50};
constexpr std::uint32_t kCutAway = 0xffff00;

const WoodCut kBurl{Hex(0x2c1207), Hex(0xa05f33), 0.0, 1.3, 905};

Shape DrawOutline() {
    // The left half. It goes on beyond the middle, as Symmetric asks.
    const Shape half = Path({2, 112})
                           .CurveTo({2, 100}, {6, 94}, {16, 92})
                           .CurveTo({28, 89}, {33, 84}, {35, 74})
                           .CurveTo({37, 66}, {44, 63}, {56, 62})
                           .CurveTo({104, 58}, {136, 54}, {164, 34})
                           .CurveTo({184, 14}, {204, 2}, {230, 2})
                           .LineTo({600, 2})
                           .LineTo({600, 297})
                           .LineTo({230, 297})
                           .CurveTo({160, 297}, {104, 290}, {60, 276})
                           .CurveTo({46, 272}, {38, 268}, {36, 258})
                           .CurveTo({34, 246}, {28, 241}, {16, 238})
                           .CurveTo({6, 236}, {2, 230}, {2, 218})
                           .Close();
    return Symmetric(half, kMiddle);
}

/// The body's wood, whose grain is curved like the row of pegs.
Color BodyWood(Vec2 p) {
    const double side = std::sqrt(Square(p.x - kMiddle) + 2500);
    const double bow = 16 * (1 - Square((p.x - kMiddle) / 210));
    const double lamp = Mix(1.45, 0.62, SmoothStep(0, 330, Length(p - Vec2{170, 96})));
    return Wood({side + 300, p.y + bow}, kBurl) * lamp;
}

/// The ornament over the name: a partly open shutter with glass behind it.
void PaintEye(Canvas& canvas) {
    const Rect area{170, 4, 120, 100};
    const Shape bezel = Ellipse(kEye, {35, 35});
    PaintShadow(canvas, area, bezel, 3.0, 4.0, 0.8);
    PaintMetal(canvas, area, bezel, kBrass, 5.5, 1.5, 0.22);
    const Shape well = Ellipse(kEye, {29, 29});
    PaintHollow(canvas, area, well, {0.010, 0.026, 0.017}, 3.0);
    const Dome ruby{kEye, 25, 15, 0.97};
    const GlassKind glass{{0.98, 0.01, 0.035}, {0.95, 0.012, 0.035}, 0.34, 2.2};
    canvas.Paint(area, [&](Vec2 p) { return GlassSample(ruby, glass, p); });
    const Iris iris{kEye, {29, 29}, 9, 0.9, kBrass};
    canvas.Paint(area, [&](Vec2 p) { return IrisSample(iris, 0.60, p); });
}

/// The name: raised brass with polished edges, bedded in a dark joint.
void PaintName(Canvas& canvas, const Font& font) {
    const Rect area{20, 84, 420, 116};
    const Shape name = Inset(font.Line("Quendrel", 104, {kMiddle, 136}, 1.0), -0.6);
    const Shape bed = Inset(name, -1.5);
    PaintShadow(canvas, area, bed, 2.6, 3.0, 0.85);
    PaintFlat(canvas, area, bed, {0.012, 0.007, 0.004});
    PaintFace(canvas, area, name, [&](Vec2 p) {
        const Vec3 edge = Rounded(name, p, 3.4, 1.3);
        const Vec3 bent = Normalize({edge.x - 0.05, edge.y - 0.14 + (p.y - 138) * 0.006, edge.z});
        return Metal(kBrass, Brushed(bent, p, 0.2, 0.03, 77), 0.22) * 1.12;
    });
}

void PaintPegs(Canvas& canvas, const Atelier& atelier) {
    // Red, orange, yellow, green, blue, purple.
    constexpr std::array<int, 6> kRow{3, 8, 1, 4, 2, 9};
    for (int column = 1; column <= 6; ++column) {
        const Point at{33 + kColumnPitch * column, 235 - PegArc(column)};
        const Rect cell = CellAt(at, kPegSize);
        atelier.PaintPegHole(canvas, cell);
        atelier.PaintPeg(canvas, cell, kRow.at(static_cast<std::size_t>(column - 1)));
    }
}

}  // namespace

Picture Draw(const Atelier& atelier) {
    const Font titles(QUENDREL_TITLE_FONT);
    const Font captions(QUENDREL_CAPTION_FONT);
    const Shape outline = Sampled(DrawOutline(), kWindow);
    Canvas canvas(kWindow);
    PaintCase(canvas, kWindow, outline, BodyWood);
    PaintMoulding(canvas, kWindow, outline);
    PaintEye(canvas);
    PaintName(canvas, titles);
    PaintGilt(canvas, {60, 194, 340, 26},
              captions.Line("A code-breaking game with colours", 20, {kMiddle, 207}, 1.2),
              {0.95, 0.68, 0.32});
    PaintPegs(canvas, atelier);
    for (const double x : {20.0, 440.0}) {
        for (const double y : {112.0, 218.0}) PaintScrew(canvas, {x, y}, 4.6, x * 0.01 + y, kBrass);
    }

    Picture picture({kWindow.width, kWindow.height}, kCutAway);
    picture.PasteMasked(Develop(canvas), HardMask(outline, {kWindow.width, kWindow.height}),
                        {0, 0});
    return picture;
}

Bitmap MaskOf(const Bitmap& splash) {
    const auto [width, height] = splash.Extent();
    Bitmap mask(splash.Extent());
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            mask.At(x, y) = splash.At(x, y) == kCutAway ? kWhite : kBlack;
        }
    }
    return mask;
}

}  // namespace quendrel::art::splash
