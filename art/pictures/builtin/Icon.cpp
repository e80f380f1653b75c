#include "builtin/Icon.h"

#include <array>

#include "kit/Fittings.h"
#include "kit/Glass.h"
#include "kit/Iris.h"
#include "kit/Light.h"
#include "kit/Materials.h"
#include "skins/Atelier.h"

namespace quendrel::art {

namespace {

using atelier::kBrass;

/// The icon's lengths, in pixels; they follow from its size.
struct Measures {
    double size;
    /// Width of the brass around the cup.
    double bezel;
    /// Radius of a peg.
    double peg;
    /// How far a peg's middle lies from the icon's, each way.
    double apart;

    Vec2 Middle() const { return {size / 2, size / 2}; }
    Vec2 PegMiddle(int x, int y) const { return Middle() + Vec2{x * apart, y * apart}; }
    bool Small() const { return size < 40; }
};

Measures MeasuresFor(int size) {
    const bool small = size < 40;
    const double s = size;
    return {s, s * (small ? 0.075 : 0.085), s * (small ? 0.178 : 0.160),
            s * (small ? 0.182 : 0.172)};
}

constexpr std::array<GlassKind, 3> kPegs{{
    {{0.98, 0.004, 0.030}, {1.25, 0.008, 0.040}, 0.45, 2.4},  // red
    {{1.00, 0.80, 0.02}, {1.50, 1.20, 0.04}, 0.55, 2.4},      // yellow
    {{0.01, 0.21, 1.00}, {0.02, 0.30, 1.25}, 0.42, 2.4},      // blue
}};

/// Notches around the outer part of the bezel, to turn it by.
void PaintKnurl(Canvas& canvas, Rect area, const Measures& m, const Shape& bezel) {
    constexpr int kNotches = 60;
    canvas.Paint(area, [&](Vec2 p) {
        const double depth = -bezel(p) / m.bezel;
        if (depth < 0.05 || depth > 0.45) return Sample{};
        const Vec2 q = p - m.Middle();
        const double turn = std::atan2(q.y, q.x);
        const double wave = std::sin(turn * kNotches);
        const Vec2 out = q * (1 / Length(q));
        const double slope = 0.75 * std::cos(turn * kNotches);
        const double fall = Mix(1.3, -0.1, (depth - 0.05) / 0.4);
        const Vec3 normal =
            Normalize({out.x * fall - out.y * slope, out.y * fall + out.x * slope, 1});
        return Sample{Metal(kBrass, normal, 0.25) * (0.80 + 0.20 * wave), 1};
    });
    const Shape groove = Band(bezel, m.bezel * 0.45, m.bezel * 0.07);
    PaintFlat(canvas, area, groove, {0.06, 0.03, 0.01}, 0.8);
}

void PaintCup(Canvas& canvas, Rect area, const Measures& m) {
    const double outer = m.size / 2 - m.size * 0.012 - 0.3;
    const Shape bezel = Ellipse(m.Middle(), {outer, outer});
    const Shape cup = Inset(bezel, m.bezel);
    PaintMetal(canvas, area, bezel, kBrass, m.bezel * 0.55, 1.5, 0.25);
    if (m.size >= 96) PaintKnurl(canvas, area, m, bezel);
    // A dark line at the very edge keeps the icon apart from any ground.
    canvas.Paint(area, [&](Vec2 p) {
        return Sample{{0.05, 0.024, 0.008}, 0.8 * SmoothStep(-0.026 * m.size, 0, bezel(p))};
    });
    canvas.Paint(area, [&](Vec2 p) {
        const double d = cup(p);
        if (d >= 0) return Sample{};
        const double shade = HollowShadow(cup, p, m.size * 0.045, m.size * 0.05);
        const double wall = SmoothStep(-m.size * 0.06, 0, d);
        const Vec3 normal = m.Small() ? kFacing : Pebbled(kFacing, p, m.size * 0.016, 0.14, 91);
        return Sample{Matte({0.014, 0.056, 0.034}, normal, shade) * (1 - 0.5 * wall), 1};
    });
}

void PaintSeatedPeg(Canvas& canvas, Rect area, const Measures& m, Vec2 middle,
                    const GlassKind& glass) {
    const double r = m.peg;
    const Shape seat = Ellipse(middle, {r, r});
    if (!m.Small()) {
        PaintShadow(canvas, area, seat, r * 0.14, r * 0.16, 0.75);
        PaintMetal(canvas, area, seat, kBrass * 0.9, r * 0.075, 1.4, 0.3);
        const Shape well = Inset(seat, r * 0.15);
        PaintFlat(canvas, area, well, {0.008, 0.010, 0.008});
    }
    const double radius = m.Small() ? r : r * 0.83;
    const Dome dome{middle, radius, radius * 0.66, 0.999};
    PaintShadow(canvas, area, Foot(dome), r * 0.12, r * 0.16, 0.8);
    canvas.Paint(area, [&](Vec2 p) { return GlassSample(dome, glass, p); });
}

void PaintHiddenPeg(Canvas& canvas, Rect area, const Measures& m, Vec2 middle) {
    const double r = m.peg;
    const Shape seat = Ellipse(middle, {r, r});
    PaintShadow(canvas, area, seat, r * 0.14, r * 0.16, 0.75);
    PaintMetal(canvas, area, seat, kBrass, r * 0.09, 1.4, 0.3);
    const Iris iris{middle, {r * 0.83, r * 0.83}, m.Small() ? 4 : 7, 0.9, kBrass};
    const Shape well = Inset(seat, r * 0.15);
    PaintFlat(canvas, area, well, {0.004, 0.003, 0.002});
    canvas.Paint(area, [&](Vec2 p) { return IrisSample(iris, 0.16, p); });
}

/// How much of each pixel the icon covers.
Bitmap Coverage(Rect area, const Measures& m) {
    const Shape disc = Ellipse(m.Middle(), {m.size / 2 - 0.3, m.size / 2 - 0.3});
    Bitmap coverage({area.width, area.height});
    Canvas canvas(area);
    PaintFlat(canvas, area, disc, {1, 1, 1});
    for (int y = 0; y < area.height; ++y) {
        for (int x = 0; x < area.width; ++x) {
            coverage.At(x, y) =
                static_cast<std::uint32_t>(std::lround(255 * canvas.MeanOf(x, y).x));
        }
    }
    return coverage;
}

}  // namespace

Icon DrawIcon(int size) {
    const Rect area{0, 0, size, size};
    const Measures m = MeasuresFor(size);
    Canvas canvas(area);
    canvas.Paint(area, [](Vec2) { return Sample{{0.05, 0.024, 0.008}, 1}; });
    PaintCup(canvas, area, m);
    PaintSeatedPeg(canvas, area, m, m.PegMiddle(-1, -1), kPegs[0]);
    PaintSeatedPeg(canvas, area, m, m.PegMiddle(1, -1), kPegs[1]);
    PaintSeatedPeg(canvas, area, m, m.PegMiddle(-1, 1), kPegs[2]);
    PaintHiddenPeg(canvas, area, m, m.PegMiddle(1, 1));
    if (size >= 48) PaintScrew(canvas, m.Middle(), size * 0.042, 0.7, kBrass);
    return {Develop(canvas).single, Coverage(area, m)};
}

}  // namespace quendrel::art
