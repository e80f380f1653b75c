// What stands on Atelier's board: pegs of poured glass in seats of brass, shutters, marks of jet
// and pearl, and the tiles of the rows' numbers.
#include <array>

#include "kit/Fittings.h"
#include "kit/Glass.h"
#include "kit/Iris.h"
#include "kit/Light.h"
#include "skins/Atelier.h"

namespace quendrel::art::atelier {

namespace {

constexpr Color kEbony{0.017, 0.013, 0.011};

constexpr std::array<GlassKind, 10> kGlass{{
    {{1.00, 0.80, 0.02}, {1.00, 0.84, 0.03}, 0.50, 1.8},        // Yellow
    {{0.01, 0.21, 1.00}, {0.01, 0.20, 0.86}, 0.35, 1.9},        // Blue
    {{0.98, 0.004, 0.030}, {0.95, 0.006, 0.032}, 0.40, 1.9},    // Red
    {{0.02, 0.55, 0.09}, {0.02, 0.40, 0.06}, 0.32, 1.7},        // Green
    {{0.95, 0.95, 0.93}, {1.00, 0.97, 0.92}, 0.66, 1.3},        // White
    {{0.003, 0.003, 0.004}, {0.004, 0.004, 0.006}, 0.50, 0.7},  // Black
    {{0.38, 0.135, 0.016}, {0.27, 0.096, 0.010}, 0.45, 1.5},    // Brown
    {{1.00, 0.38, 0.004}, {1.00, 0.38, 0.004}, 0.42, 1.7},      // Orange
    {{0.25, 0.004, 0.34}, {0.19, 0.006, 0.26}, 0.30, 1.8},      // Purple
    {{1.00, 0.33, 0.50}, {1.00, 0.40, 0.56}, 0.45, 1.6},        // Pink
}};

/// The sunk edge of the wood around a seat: dark on the side of the light, bright on the other.
void PaintCountersink(Canvas& canvas, Rect area, const Shape& seat, double width) {
    canvas.Paint(area, [&](Vec2 p) {
        const double facing = Dot(Outward(seat, p), kShadowFall);
        const double near = SmoothStep(width, 0.0, seat(p));
        return facing > 0 ? Sample{{0.85, 0.58, 0.34}, 0.22 * facing * near}
                          : Shadow(-0.55 * facing * near);
    });
}

}  // namespace

const GlassKind& Atelier::GlassOf(int color) {
    return kGlass.at(static_cast<std::size_t>(color - 1));
}

Shape Atelier::PegMask(Rect cell) const { return Ellipse(MiddleOf(cell), {21.4, 13.0}); }

Shape Atelier::MarkMask(Rect cell) const { return Ellipse(MiddleOf(cell), {5.4, 5.4}); }

void Atelier::PaintPegHole(Canvas& canvas, Rect cell) const {
    const Rect area = Grown(cell, 6);
    const Shape seat = PegMask(cell);
    PaintCountersink(canvas, area, seat, 4.0);
    PaintSeat(canvas, area, MiddleOf(cell), 1, kBrass);
}

void Atelier::PaintPeg(Canvas& canvas, Rect cell, int color) const {
    PaintDome(canvas, cell, MiddleOf(cell), 1, GlassOf(color));
}

void Atelier::PaintSeat(Canvas& canvas, Rect area, Vec2 middle, double scale, Color brass) {
    const auto ellipse = [&](Vec2 radii, double lower) {
        return Ellipse(middle + Vec2{0, lower * scale}, radii * scale);
    };
    const Shape joint = ellipse({21.7, 13.2}, 0);
    const Shape rim = ellipse({21.0, 12.6}, 0);
    const Shape well = ellipse({18.3, 10.5}, 0.2);
    const Shape floor = ellipse({17.0, 8.6}, 2.3);
    PaintFlat(canvas, area, joint, {0.014, 0.008, 0.005});
    const Shape ring = [&](Vec2 p) { return std::max(rim(p), -well(p)); };
    PaintMetal(canvas, area, ring, brass * 0.85, 1.25, 1.3, 0.3);
    PaintFace(canvas, area, well, [&](Vec2 p) {
        const Vec2 q = (p - middle) * (1 / scale);
        const double light = SmoothStep(-0.7, 1.1, 0.62 * q.x / 18.4 + 0.78 * q.y / 10.6);
        const double wall = SmoothStep(-1.0, 0.5, floor(p));
        const Color bottom = Mix({0.007, 0.018, 0.012}, {0.043, 0.118, 0.074}, light);
        return bottom * (1 - 0.6 * wall);
    });
}

void Atelier::PaintDome(Canvas& canvas, Rect area, Vec2 middle, double scale,
                        const GlassKind& glass) {
    const Dome dome{middle + Vec2{0, 1.1 * scale}, 17.8 * scale, 9.8 * scale, 0.614};
    PaintShadow(canvas, area, Foot(dome), 2.2 * scale, 2.0, 0.85);
    // The light that the glass focuses colours the seat beside it.
    const Vec2 spill = dome.foot + Vec2{11, 8.6} * scale;
    canvas.Paint(area, [&](Vec2 p) {
        return Sample{glass.tint * 0.8, 0.4 * SmoothStep(6 * scale, 0, Length(p - spill))};
    });
    canvas.Paint(area, [&](Vec2 p) { return GlassSample(dome, glass, p); });
}

void Atelier::PaintCover(Canvas& canvas, Rect cell, double open) const {
    const Vec2 middle = MiddleOf(cell);
    const Iris iris{{middle.x, middle.y + 0.2}, {18.7, 10.9}, 7, 0.9, kBrass};
    PaintHoleAround(canvas, cell, [&](Vec2 p) { return InOpening(iris, open, p); });
    canvas.Paint(cell, [&](Vec2 p) { return IrisSample(iris, open, p); });
}

void Atelier::PaintMarkHole(Canvas& canvas, Rect cell) const {
    const Rect area = Grown(cell, 4);
    const Vec2 middle = MiddleOf(cell);
    const Shape seat = MarkMask(cell);
    PaintCountersink(canvas, area, seat, 2.5);
    canvas.Paint(area, [&](Vec2 p) {
        return Sample{{0.235, 0.130, 0.062}, Inside(seat(p) - 0.3)};
    });
    const Shape ring = Band(Ellipse(middle, {3.6, 3.6}), 0, 1.3);
    PaintMetal(canvas, area, ring, kBrass * 0.8, 0.75, 1.2, 0.35);
    canvas.Paint(area, [&](Vec2 p) {
        const Vec2 q = p - middle;
        if (Length(q) >= 2.3) return Sample{};
        const double light = SmoothStep(-1, 3, Dot(q, kShadowFall));
        return Sample{Mix({0.14, 0.090, 0.047}, {0.30, 0.195, 0.102}, light), 1};
    });
}

void Atelier::PaintMark(Canvas& canvas, Rect cell, int mark) const {
    static constexpr GlassKind kJet{{0.003, 0.003, 0.004}, {0.002, 0.002, 0.003}, 0.9, 0.0};
    static constexpr GlassKind kPearl{{0.97, 0.95, 0.90}, {0.95, 0.93, 0.88}, 0.8, 1.2};
    const Dome dome{MiddleOf(cell), 5.3, 4.2, 0.999};
    PaintShadow(canvas, cell, Foot(dome), 0.8, 1.0, mark == 1 ? 0.9 : 0.4);
    canvas.Paint(cell, [&](Vec2 p) {
        if (mark == 2) return GlassSample(dome, kPearl, p);
        // Jet is dull, so that no reflection makes it look like an empty hole.
        const Sample glass = GlassSample(dome, kJet, p);
        return Sample{glass.color * 0.13, glass.alpha};
    });
}

void Atelier::PaintNumber(Canvas& canvas, Rect cell, int row, bool lit) const {
    const Vec2 middle = MiddleOf(cell);
    const Shape tile = RoundedBox(cell, 0.9, 2.5);
    canvas.Paint(cell, [&](Vec2) { return Sample{{0.012, 0.008, 0.006}, 1}; });
    PaintFace(canvas, cell, tile, [&](Vec2 p) {
        const Vec3 normal = Rounded(tile, p, 1.6, 0.8);
        if (!lit) return Coated(kEbony * 0.7, normal, 0.3);
        const double glow = std::exp(-Square(Length(p - middle) / 11));
        return Mix({0.75, 0.22, 0.02}, {1.6, 0.95, 0.30}, glow);
    });
    const Shape sign =
        row > 0 ? Captions().Line(std::to_string(row), 15, middle) : Shape([middle](Vec2 p) {
            const Vec2 q = p - middle;
            return std::abs(q.x) + std::abs(q.y) - 4.6;
        });
    const Color ink = lit ? Color{0.05, 0.014, 0.003} : kBrass * 0.78;
    PaintFlat(canvas, cell, sign, ink);
}

}  // namespace quendrel::art::atelier
