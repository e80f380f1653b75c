#include <array>

#include "kit/Fittings.h"
#include "kit/Light.h"
#include "skins/Atelier.h"
#include "skins/AtelierCase.h"
#include "skins/AtelierWindows.h"
#include "ui/layout/ConfigLayout.h"

namespace quendrel::art::atelier {

namespace {

constexpr Rect kConfigWindow = WholeOf(layout::kConfigWindow);
constexpr double kConfigMiddle = kConfigWindow.width / 2.0;

/// The case's brass lines: between the groups of switches, and from side to side below them.
constexpr std::array<double, 2> kPosts{221, 419};
constexpr double kPostTop = 54;
constexpr std::array<double, 3> kRails{173, 239, 421.5};
constexpr Vec2 kLock{260, 445};
constexpr double kFinial = 44;

const WoodCut kPanelWood{Hex(0x231008), Hex(0x6c3e21), kPi / 2, 0.8, 907};
const WoodCut kFriezeWood{Hex(0x1a0d07), Hex(0x4c2b18), 0.0, 0.5, 31};
const WoodCut kDrawerWood{Hex(0x231008), Hex(0x6c3e21), 0.0, 0.55, 404};

/// The case without its finials.
Shape DrawCase() {
    // The left half. It goes on beyond the middle, as Symmetric asks.
    const Shape half = Path({12, 440})
                           .LineTo({12, 64})
                           .CurveTo({12, 58}, {4, 58}, {4, 50})
                           .CurveTo({4, 45}, {8, 42}, {14, 42})
                           .LineTo({166, 42})
                           .CurveTo({178, 42}, {184, 38}, {188, 28})
                           .CurveTo({194, 11}, {212, 2}, {240, 2})
                           .LineTo({900, 2})
                           .LineTo({900, 476})
                           .LineTo({320, 476})
                           .CurveTo({230, 476}, {190, 474}, {150, 474})
                           .CurveTo({120, 474}, {118, 487}, {96, 487})
                           .LineTo({14, 487})
                           .CurveTo({6, 487}, {2, 482}, {2, 474})
                           .CurveTo({2, 458}, {12, 456}, {12, 440})
                           .Close();
    return Symmetric(half, kConfigMiddle);
}

/// How wide a finial's turned body is, each way from its axis.
double FinialRadius(double y) {
    const double ball = Square(11.2) - Square(y - 15);
    const double neck = 3.2 + 9.5 * Square(SmoothStep(29, 39, y));
    return std::max(neck, ball > 0 ? std::sqrt(ball) : 0.0);
}

/// The finials with the dark rim that the outline keeps around them.
Shape Finials() {
    const Shape ball = Ellipse({kFinial, 15}, {13.2, 13.2});
    const Shape neck = RoundedBox({kFinial - 6.2, 20}, {kFinial + 6.2, 46}, 1);
    const Shape foot = RoundedBox({kFinial - 14.7, 33.5}, {kFinial + 14.7, 50}, 4);
    return Symmetric(Union(ball, Union(foot, neck)), kConfigMiddle);
}

/// The drawer's lock: an oval of brass around a keyhole.
void PaintLock(Canvas& canvas) {
    const Rect area = RectAround(kLock, 24, 20);
    const Shape plate = Ellipse(kLock, {11, 15});
    PaintShadow(canvas, area, plate, 1.6, 2.0, 0.7);
    PaintMetal(canvas, area, plate, kBrass, 2.6, 1.3, 0.28);
    const Shape hole = Union(Ellipse(kLock + Vec2{0, -3.5}, {3.4, 3.4}),
                             Stroke(kLock + Vec2{0, -2}, kLock + Vec2{0, 7}, 2.8));
    PaintHollow(canvas, area, hole, {0.008, 0.006, 0.005}, 1.6);
}

void PaintLines(Canvas& canvas, const Shape& inner) {
    for (const double x : kPosts) {
        const Shape post = RoundedBox({x - 0.9, kPostTop}, {x + 0.9, kRails[0]}, 0.9);
        PaintFillet(canvas, {static_cast<int>(x) - 6, 48, 12, 130}, post, inner);
    }
    for (const double y : kRails) {
        const Shape rail = [y](Vec2 p) { return std::abs(p.y - y) - 0.9; };
        PaintFillet(canvas, {0, static_cast<int>(y) - 6, kConfigWindow.width, 12}, rail, inner);
    }
}

Color CaseWood(Vec2 p) {
    // The panel's wood is mirrored at its middle.
    if (p.y < kRails[0]) return Wood({std::abs(p.x - kConfigMiddle) + 40, p.y}, kPanelWood);
    if (p.y < kRails[1]) return Wood(p, kFriezeWood);
    return Wood(p.y < kRails[2] ? p : p + Vec2{350, 90}, kDrawerWood);
}

/// The case's wood in the light of the lamp.
Color LitWood(Vec2 p) {
    return CaseWood(p) * Mix(1.35, 0.75, SmoothStep(0, 560, Length(p - Vec2{230, 80})));
}

/// The finials' rim, over the wood that goes on around `body`.
void PaintFinialBed(Canvas& canvas, const Shape& body) {
    const Shape finials = Finials();
    const Shape around = BothSides(finials);
    canvas.Paint({0, 0, kConfigWindow.width, 52}, [&](Vec2 p) {
        const bool bed = finials(p) < 0 || around(p) > -kDarkRim;
        return Sample{kCaseGap, bed && body(p) > -kDarkRim ? 1.0 : 0.0};
    });
}

/// A finial, round about the upright line at `axis`. It is of the case's own wood, so that it looks
/// right where another skin's outline cuts through it.
void PaintFinial(Canvas& canvas, double axis) {
    const Rect area{static_cast<int>(axis) - 20, 0, 40, 46};
    canvas.Paint(area, [axis](Vec2 p) {
        const double radius = FinialRadius(p.y);
        const double across = (p.x - axis) / radius;
        if (std::abs(across) >= 1 || p.y < 4) return Sample{};
        const double flare = (FinialRadius(p.y + 0.3) - FinialRadius(p.y - 0.3)) / 0.6;
        const double facing = std::sqrt(1 - Square(across));
        const Vec3 normal = Normalize({across, -std::clamp(flare, -3.0, 3.0), facing});
        const double groove = std::abs(p.y - 26.6) < 0.7 ? 0.35 : 1.0;
        return Sample{Coated(LitWood(p) * 1.25, normal, 0.2) * groove, 1};
    });
}

}  // namespace

Shape ConfigOutline() { return Union(DrawCase(), Finials()); }

void PaintRegulator(Canvas& canvas) {
    const Shape body = Sampled(DrawCase(), kConfigWindow);
    PaintCase(canvas, kConfigWindow, body, LitWood);
    PaintFinialBed(canvas, body);
    for (const double axis : {kFinial, kConfigWindow.width - kFinial}) PaintFinial(canvas, axis);
    PaintLines(canvas, Inset(body, kDarkRim + kCaseMoulding - 0.5));
    PaintMoulding(canvas, kConfigWindow, body);
    PaintLock(canvas);
}

}  // namespace quendrel::art::atelier
