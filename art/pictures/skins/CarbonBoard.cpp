// What stands on Carbon's board: caps lit from within, the reflectors that they stand in, the
// plates that slide over them, the marks and the numbers of the rows.
#include <array>
#include <vector>

#include "kit/Fittings.h"
#include "skins/Carbon.h"
#include "skins/CarbonStuff.h"

namespace quendrel::art::carbon {

namespace {

constexpr std::array<LitCap, 10> kCaps{{
    {{0.92, 0.60, 0.004}, {1.50, 1.20, 0.16}},                            // Yellow
    {{0.004, 0.060, 0.80}, {0.10, 0.36, 1.70}},                           // Blue
    {{0.70, 0.003, 0.008}, {1.70, 0.125, 0.07}},                          // Red
    {{0.006, 0.34, 0.040}, {0.12, 1.15, 0.20}},                           // Green
    {{0.70, 0.76, 0.82}, {1.60, 1.65, 1.70}},                             // White
    {{0.0025, 0.003, 0.004}, {0.006, 0.007, 0.010}, {0.10, 0.19, 0.23}},  // Black
    {{0.125, 0.038, 0.005}, {0.40, 0.150, 0.030}},                        // Brown
    {{0.95, 0.17, 0.003}, {1.60, 0.50, 0.03}},                            // Orange
    {{0.165, 0.004, 0.30}, {0.58, 0.06, 0.90}},                           // Purple
    {{0.95, 0.20, 0.42}, {1.60, 0.62, 0.90}},                             // Pink
}};

/// A cap's outline at the height `t`, from its foot (0) to its top (1).
Shape Section(Vec2 middle, double scale, double t) {
    const double half = Mix(17.6, 14.6, t) * scale;
    return Hexagon(middle + Vec2{0, Mix(2.0, -2.4, t) * scale}, half, half * 0.60);
}

/// Three walls face the eye; the one between the others most.
Color WallLight(const LitCap& cap, const Shape& foot, Vec2 p, double t) {
    const double facing = Outward(foot, p).y;
    const double turn = facing > 0.9 ? 0.92 : Outward(foot, p).x > 0 ? 0.50 : 0.66;
    return cap.edge * (turn * Mix(1.0, 0.62, t));
}

Color TopLight(const LitCap& cap, const Shape& top, Vec2 q, Vec2 p, double scale) {
    const double far = Length({q.x / (10.5 * scale), (q.y - 0.8 * scale) / (6.2 * scale)});
    Color light = Mix(cap.core, cap.edge, SmoothStep(0.0, 1.25, far));
    light = light + cap.core * (0.55 * std::exp(-Square(far / 0.45)));
    // The cap's upper edge reflects the window, the lower one glows from within.
    const double d = top(p);
    const double facing = -Dot(Outward(top, p), kShadowFall);
    const double rim = SmoothStep(-1.7 * scale, -0.3 * scale, d);
    light = light + cap.trim * rim;
    light = light + Color{0.62, 0.68, 0.74} * (0.55 * rim * std::max(0.0, facing));
    light = light + cap.core * (0.25 * rim * std::max(0.0, -facing));
    const double gloss = SmoothStep(
        0.9, 0.2,
        Length({(q.x + 5.2 * scale) / (5.5 * scale), (q.y + 4.6 * scale) / (2.6 * scale)}));
    return light + Color{0.55, 0.60, 0.66} * (0.22 * gloss);
}

}  // namespace

const LitCap& Carbon::CapOf(int color) { return kCaps.at(static_cast<std::size_t>(color - 1)); }

Shape Carbon::PegMask(Rect cell) const { return Hexagon(MiddleOf(cell), 21.9, 13.2); }

Shape Carbon::MarkMask(Rect cell) const { return Chamfered(cell, 0.3, 2.2, 2.2); }

void Carbon::PaintReflector(Canvas& canvas, Rect area, Vec2 middle, double scale) {
    const auto hexagon = [&](double half, double height) {
        return Hexagon(middle, half * scale, height * scale);
    };
    const Shape ring = hexagon(21.9, 13.2);
    const Shape cup = hexagon(18.6, 11.1);
    PaintFlat(canvas, area, ring, kNight);
    PaintMetal(canvas, area, Inset(ring, 0.6 * scale), kGunmetal * 0.9, 1.6 * scale, 0.9, 0.45);
    const Shape floor = Hexagon(middle + Vec2{0, 2.0} * scale, 11.0 * scale, 5.6 * scale);
    const Shape die = Chamfered(middle + Vec2{-2.6, 0.6} * scale, middle + Vec2{2.6, 3.8} * scale,
                                0.8 * scale, 0.8 * scale);
    PaintFace(canvas, area, cup, [&](Vec2 p) {
        if (die(p) < 0) return Color{0.30, 0.27, 0.12};
        const Vec2 out = floor(p) < 0 ? Vec2{0, 0} : Outward(cup, p);
        const Vec3 normal = Normalize({-out.x * 0.75, -out.y * 0.75, 1});
        const double shade = HollowShadow(cup, p, 3.0 * scale, 2.2 * scale);
        return Metal(kTitanium * 0.62, normal, 0.7) * (1 - 0.7 * shade);
    });
}

/// Without its cap a reflector shows a ring in the cap's colour.
void Carbon::PaintBareReflector(Canvas& canvas, Rect area, Vec2 middle, double scale,
                                const LitCap& cap) {
    PaintReflector(canvas, area, middle, scale);
    const Shape ring =
        Band(Hexagon(middle + Vec2{0, 0.6} * scale, 15.6 * scale, 9.0 * scale), 0, 1.9 * scale);
    PaintFace(canvas, area, ring, [&](Vec2 p) {
        return Matte(Faded(Mix(cap.edge, cap.core, 0.4), 0.52) * 0.6,
                     Rounded(ring, p, 1.0 * scale, 0.6));
    });
}

void Carbon::PaintCap(Canvas& canvas, Rect area, Vec2 middle, double scale, const LitCap& cap) {
    constexpr int kSteps = 8;
    std::vector<Shape> sections;
    for (int i = 0; i <= kSteps; ++i) {
        sections.push_back(Section(middle, scale, static_cast<double>(i) / kSteps));
    }
    const Shape& foot = sections.front();
    const Shape& top = sections.back();
    const double power = Clamp01(2 * Luminance(cap.core));
    // Its light spills onto the rim of its hole.
    const Shape ring = Hexagon(middle, 21.9 * scale, 13.2 * scale);
    canvas.Paint(area, [&](Vec2 p) {
        const double near = Square(SmoothStep(7.0 * scale, 0, foot(p)));
        return Sample{cap.edge, 0.66 * power * near * Inside(ring(p))};
    });
    PaintShadow(canvas, area, foot, 1.2 * scale, 1.2, 0.7);
    canvas.Paint(area, [&](Vec2 p) {
        const Vec2 q = p - middle + Vec2{0, 2.4 * scale};
        if (top(p) < 0) return Sample{TopLight(cap, top, q, p, scale), 1};
        for (int i = kSteps - 1; i >= 0; --i) {
            const Shape& section = sections[static_cast<std::size_t>(i)];
            if (section(p) >= 0) continue;
            return Sample{WallLight(cap, section, p, static_cast<double>(i) / kSteps), 1};
        }
        return Sample{};
    });
}

void Carbon::PaintPegHole(Canvas& canvas, Rect cell) const {
    const Shape ring = PegMask(cell);
    canvas.Paint(Grown(cell, 6), [&](Vec2 p) {
        const double d = ring(p);
        if (d < 0 || d > 2.2) return Sample{};
        const double facing = Dot(Outward(ring, p), kShadowFall);
        const double near = SmoothStep(2.2, 0.0, d);
        return facing > 0 ? Sample{{0.55, 0.62, 0.72}, 0.20 * facing * near} : Shadow(0.6 * near);
    });
    PaintReflector(canvas, cell, MiddleOf(cell), 1);
}

void Carbon::PaintPeg(Canvas& canvas, Rect cell, int color) const {
    PaintCap(canvas, cell, MiddleOf(cell), 1, CapOf(color));
}

void Carbon::PaintCover(Canvas& canvas, Rect cell, double open) const {
    const Vec2 middle = MiddleOf(cell);
    const Shape slot = Hexagon(middle, 18.9, 11.3);
    // The seam is slanted; each plate slides away from it.
    const auto beside = [&](Vec2 p) { return p.x - middle.x + 0.45 * (p.y - middle.y); };
    const double gap = open * 18.9;
    PaintHoleAround(canvas, cell, [&](Vec2 p) { return slot(p) < 0 && std::abs(beside(p)) < gap; });
    canvas.Paint(cell, [&](Vec2 p) {
        const double past = std::abs(beside(p)) - gap;
        if (slot(p) >= 0) return Sample{};
        if (past < 0) return Shadow(0.6 * SmoothStep(-4, 0, past));
        const double side = beside(p) > 0 ? 1 : -1;
        if (past < 0.7) return Sample{kIce * 0.8, 1};
        const Vec2 slid{p.x - side * gap, p.y};
        const double rib = std::cos((past - 4.4) * 2 * kPi / 3.6);
        const double lean = past > 3.4 && past < 13 ? 0.30 * rib : 0.0;
        const Vec3 normal = Normalize({side * 0.10 + lean, 0.10 + 0.45 * lean, 1});
        const double wall = HollowShadow(slot, p, 1.6, 1.6);
        return Sample{Anodised(kGunmetal * 1.1, normal, slid, 0) * (1 - 0.6 * wall), 1};
    });
}

void Carbon::PaintMarkHole(Canvas& canvas, Rect cell) const {
    const Rect area = Grown(cell, 2);
    const Shape seat = MarkMask(cell);
    const Vec2 middle = MiddleOf(cell);
    PaintRecess(canvas, area, seat, kTitanium * 0.48, 1.3);
    PaintRecess(canvas, area, Ellipse(middle, {1.2, 1.2}), kTitanium * 0.2, 0.8);
}

void Carbon::PaintMark(Canvas& canvas, Rect cell, int mark) const {
    const Vec2 middle = MiddleOf(cell);
    const Shape tile = Inset(MarkMask(cell), 0.3);
    PaintFace(canvas, cell, tile, [&](Vec2 p) {
        const Vec3 normal = Milled(tile, p, 1.4, 0.8);
        const double lit = std::max(0.0, Dot(normal, kKeyLight) - kKeyLight.z);
        return kNight * 0.5 + Color{0.10, 0.12, 0.14} * lit;
    });
    if (mark == 1) return;
    // The lamp of the other mark fills its tile with light.
    const Shape lens = Ellipse(middle, {4.8, 4.8});
    canvas.Paint(cell, [&](Vec2 p) {
        if (lens(p) >= 0) return Sample{{0.55, 0.62, 0.70}, 0.5 * Inside(tile(p))};
        const double far = Length(p - middle + Vec2{0.7, 0.8}) / 4.6;
        return Sample{Mix({1.9, 1.9, 1.9}, {0.60, 0.70, 0.80}, Square(far)), 1};
    });
}

void Carbon::PaintNumber(Canvas& canvas, Rect cell, int row, bool lit) const {
    const Vec2 middle = MiddleOf(cell);
    const Shape window = Chamfered(cell, 0.9, 3.5, 1.2);
    canvas.Paint(cell, [&](Vec2) { return Sample{kNight, 1}; });
    canvas.Paint(cell, [&](Vec2 p) {
        const double d = window(p);
        if (d >= 0) return Sample{};
        if (!lit) return Sample{kNight * (d > -1 ? 6.0 : 1.6), 1};
        const double glow = std::exp(-Square(Length(p - middle) / 11));
        return Sample{Mix({0.70, 0.20, 0.015}, {1.55, 0.85, 0.22}, glow), 1};
    });
    const Shape sign =
        row > 0 ? Captions().Line(std::to_string(row), 12.5, middle) : Hexagon(middle, 5.4, 4.4);
    if (lit) {
        PaintFlat(canvas, cell, sign, {0.035, 0.012, 0.002});
        return;
    }
    PaintLight(canvas, cell, sign, kIce * 0.42, 2.5, 0.25);
}

}  // namespace quendrel::art::carbon
