// What stands on Beacon's board: tablets of matte ceramic with a sign cut into each, square and
// round marks, lids that turn up on their hinge.
#include <array>

#include "kit/Fittings.h"
#include "kit/Light.h"
#include "kit/Noise.h"
#include "skins/Beacon.h"

namespace quendrel::art::beacon {

namespace {

/// The ceramic of a tablet, and whether its sign is filled with chalk or with ink.
struct Ceramic {
    Color glaze;
    bool chalkSign;
};

const std::array<Ceramic, 10> kCeramics{{
    {Hex(0xfad932), false},  // Yellow
    {Hex(0x1a7ae0), true},   // Blue
    {Hex(0xca1024), true},   // Red
    {Hex(0x34b07c), false},  // Green
    {Hex(0xf2f1ec), false},  // White
    {Hex(0x0a0d14), true},   // Black
    {Hex(0x8d6238), false},  // Brown
    {Hex(0xf87e0c), false},  // Orange
    {Hex(0x641c98), true},   // Purple
    {Hex(0xf5b6d0), false},  // Pink
}};

constexpr Color kLidStone{0.108, 0.125, 0.147};

// The signs of the colours, around (0, 0) and some 14 pixels high.

Shape Star() {
    const auto at = [](int corner) {
        return Rotate({0, corner % 2 == 0 ? -8.4 : -3.7}, corner * kPi / 5) + Vec2{0, 0.7};
    };
    Path path(at(0));
    for (int corner = 1; corner < 10; ++corner) path.LineTo(at(corner));
    return Inset(path.Close(), -0.2);
}

Shape Waves() {
    return [](Vec2 p) {
        const double swing = 1.9 * std::sin(p.x * 0.62);
        const double off = std::min(std::abs(p.y - 3.1 - swing), std::abs(p.y + 3.1 - swing));
        return std::max(off * 0.75 - 1.15, std::abs(p.x) - 10);
    };
}

Shape Heart() {
    return Path({0, 7.4})
        .CurveTo({-4.2, 4.2}, {-8.6, 0.8}, {-8.6, -2.8})
        .CurveTo({-8.6, -7.6}, {-2.2, -8.4}, {0, -3.6})
        .CurveTo({2.2, -8.4}, {8.6, -7.6}, {8.6, -2.8})
        .CurveTo({8.6, 0.8}, {4.2, 4.2}, {0, 7.4})
        .Close();
}

Shape Triangle() { return Path({0, -7.2}).LineTo({8.2, 6.2}).LineTo({-8.2, 6.2}).Close(); }

Shape Diamond() { return Path({0, -7}).LineTo({7.6, 0}).LineTo({0, 7}).LineTo({-7.6, 0}).Close(); }

Shape Box(double halfWidth, double halfHeight) {
    return RoundedBox({-halfWidth, -halfHeight}, {halfWidth, halfHeight}, 0.5);
}

std::vector<Shape> DrawSigns() {
    return {Star(),
            Waves(),
            Box(9, 2.2),
            Triangle(),
            Band(Ellipse({0, 0}, {7.6, 7.6}), 0, 2.9),
            Band(Box(5.9, 5.9), 0, 1.8),
            Union(Box(2.7, 8), Box(8.4, 2.7)),
            Ellipse({0, 0}, {6.6, 6.6}),
            Diamond(),
            Heart()};
}

/// Sampled once, since signs are slow to evaluate.
Shape SampledSign(const Shape& sign) { return Sampled(sign, {-10, -10, 20, 20}, 6); }

constexpr Vec2 kSeat{21.2, 12.9};
constexpr Vec2 kDish{20.2, 11.9};

void PaintDish(Canvas& canvas, Rect area, Vec2 middle, double scale) {
    const Shape seat = Pebble(middle, kSeat * scale);
    const Shape dish = Pebble(middle, kDish * scale);
    PaintFlat(canvas, area, seat, {0.008, 0.009, 0.011});
    PaintFace(canvas, area, dish, [&](Vec2 p) {
        const Vec2 q = (p - middle) * (1 / scale);
        const double light = SmoothStep(-0.9, 1.1, 0.62 * q.x / kDish.x + 0.78 * q.y / kDish.y);
        const double shade = HollowShadow(dish, p, 2.6 * scale, 2.4);
        const Color bottom = Mix({0.008, 0.0095, 0.012}, {0.034, 0.040, 0.048}, light);
        return bottom * (1 - 0.55 * shade);
    });
}

/// Where a tablet is painted, and how large; 1 is the board's size.
struct Tablet {
    Rect area;
    Vec2 middle;
    double scale;

    Shape Part(Vec2 radii, double lower) const {
        return Pebble(middle + Vec2{0, lower * scale}, radii * scale);
    }
};

void PaintCeramic(Canvas& canvas, const Tablet& tablet, Color glaze) {
    const Shape face = tablet.Part({18.6, 10.2}, -1.3);
    const Shape body = Union(tablet.Part({18.6, 10.4}, 0.9), face);
    PaintShadow(canvas, tablet.area, body, 1.6 * tablet.scale, 1.6, 0.8);
    PaintFace(canvas, tablet.area, body, [&](Vec2 p) {
        const Vec2 q = (p - tablet.middle) * (1 / tablet.scale);
        const Vec3 wall = Normalize({q.x / 26, 1.1, 0.75});
        if (face(p) >= 0) return Matte(glaze, wall) * 0.75;
        const Vec3 bevel = Rounded(face, p, 2.3 * tablet.scale, 0.85);
        const double speckle = 1 + 0.03 * Noise(q * 1.3, 41);
        const Vec3 normal = Normalize({bevel.x + q.x * 0.004, bevel.y + q.y * 0.006, bevel.z});
        return Coated(glaze * speckle, normal, 0.9);
    });
}

/// The sign cut into a tablet's face, seen at the board's slant.
void PaintSign(Canvas& canvas, Rect area, const Shape& sign, Color fill, Color lip) {
    const Shape far = Moved(sign, kShadowFall * 0.9);
    PaintFlat(canvas, area, far, lip, 0.55);
    PaintFace(canvas, area, sign, [&](Vec2 p) {
        const double shade = HollowShadow(sign, p, 0.9, 0.8);
        return fill * (1 - 0.45 * shade);
    });
}

/// A lid on a hinge along its upper edge, turned up by `open` quarters of a circle.
struct Lid {
    Vec2 middle;
    double open;

    double Foreshortened() const { return std::cos(open * kPi / 2); }

    /// The place on the lying lid that is seen at `p`.
    Vec2 Lying(Vec2 p) const {
        const double hinge = middle.y - kDish.y;
        // The raised part is nearer to the eye, so it looks wider.
        const double near = 1 + 0.10 * open * Clamp01((p.y - hinge) / (2 * kDish.y));
        return {middle.x + (p.x - middle.x) / near, hinge + (p.y - hinge) / Foreshortened()};
    }
};

}  // namespace

Beacon::Beacon() : Craft(QUENDREL_BEACON_FONT, QUENDREL_BEACON_TITLE_FONT) {
    for (const Shape& sign : DrawSigns()) signs_.push_back(SampledSign(sign));
    hidden_ = SampledSign(Captions().Line("?", 15, {0, 0}));
}

Shape Beacon::PegMask(Rect cell) const { return Pebble(MiddleOf(cell), {21.6, 13.3}); }

Shape Beacon::MarkMask(Rect cell) const {
    const Vec2 middle = MiddleOf(cell);
    return RoundedBox(middle - Vec2{5.2, 5.2}, middle + Vec2{5.2, 5.2}, 3.2);
}

void Beacon::PaintPegHole(Canvas& canvas, Rect cell) const {
    const Rect area = Grown(cell, 4);
    const Shape mask = PegMask(cell);
    PaintRim(canvas, area, Inset(mask, 0.6), 2.8, 0.34);
    PaintFlat(canvas, area, mask, {0.05, 0.058, 0.068});
    PaintDish(canvas, area, MiddleOf(cell), 1);
}

void Beacon::PaintPeg(Canvas& canvas, Rect cell, int color) const {
    PaintTablet(canvas, cell, MiddleOf(cell), 1, color);
}

Shape Beacon::SignOf(int color, Vec2 middle, double size) const {
    const Shape& sign = signs_[static_cast<std::size_t>(color - 1)];
    return [&sign, middle, size](Vec2 p) {
        const Vec2 q = p - middle;
        return sign({q.x / size, q.y / (size * 0.88)}) * size;
    };
}

void Beacon::PaintTablet(Canvas& canvas, Rect area, Vec2 middle, double scale, int color) const {
    const auto [glaze, chalkSign] = kCeramics.at(static_cast<std::size_t>(color - 1));
    PaintCeramic(canvas, {area, middle, scale}, glaze);
    // The board's slant makes the sign on the face a little lower.
    const Shape sign = SignOf(color, middle + Vec2{0, -1.3 * scale}, 0.95 * scale);
    PaintSign(canvas, area, sign, chalkSign ? kChalk : kInk, Mix(glaze * 1.5, kChalk, 0.25));
}

/// Without its tablet a dish shows its stone, stained with the tablet's colour, and the sign in
/// chalk.
void Beacon::PaintBareDish(Canvas& canvas, Rect area, Vec2 middle, double scale, int color) const {
    const Color glaze = kCeramics.at(static_cast<std::size_t>(color - 1)).glaze;
    const Color stone = Mix({0.073, 0.076, 0.080}, glaze, 0.17);
    PaintDish(canvas, area, middle, scale);
    const Shape floor = Pebble(middle, kDish * scale);
    PaintFace(canvas, area, floor,
              [&](Vec2 p) { return Matte(stone, kFacing, HollowShadow(floor, p, 2.6, 1.6)); });
    // The lighter the stain, the whiter the chalk.
    const Color chalk = kChalk * (0.75 + 0.3 * Luminance(glaze));
    PaintSign(canvas, area, SignOf(color, middle, 0.95 * scale), chalk, stone);
}

void Beacon::PaintCover(Canvas& canvas, Rect cell, double open) const {
    const Vec2 middle = MiddleOf(cell);
    const Shape dish = Pebble(middle, kDish);
    const Lid lid{middle, open};
    const Shape seen = [&](Vec2 p) { return std::max(dish(p), dish(lid.Lying(p))); };
    PaintHoleAround(canvas, cell, [&](Vec2 p) { return dish(p) < 0 && seen(p) >= 0; });
    const double lift = std::sin(open * kPi / 2);
    canvas.Paint(cell, [&](Vec2 p) {
        if (dish(p) >= 0) return Sample{};
        const Vec2 under = p - Vec2{0.5, 1 + 5 * lift * lid.Foreshortened()};
        return Shadow(0.45 * SmoothStep(2.5, -1.0, dish(lid.Lying(under))));
    });
    PaintFace(canvas, cell, seen, [&](Vec2 p) {
        const Vec2 q = lid.Lying(p);
        const Vec3 bevel = Rounded(dish, q, 2.4, 0.8);
        const Vec3 normal = Normalize({bevel.x, bevel.y + 0.35 * lift, bevel.z});
        const double grain = 1 + 0.06 * Noise(q * 0.9, 53) + 0.08 * Noise(q * 0.2, 57);
        const Color stone = Matte(kLidStone * grain, normal);
        return hidden_(q - middle) < 0 ? kInk : stone;
    });
}

void Beacon::PaintMarkHole(Canvas& canvas, Rect cell) const {
    const Rect area = Grown(cell, 2);
    const Shape mask = MarkMask(cell);
    PaintRim(canvas, area, mask, 1.4, 0.36);
    PaintFace(canvas, area, mask, [&](Vec2 p) {
        const double shade = HollowShadow(mask, p, 1.5, 1.6);
        return Matte({0.170, 0.195, 0.224}, kFacing, 0.92 * shade);
    });
}

void Beacon::PaintMark(Canvas& canvas, Rect cell, int mark) const {
    const Vec2 middle = MiddleOf(cell);
    const Shape stone = mark == 1
                            ? RoundedBox(middle - Vec2{4.7, 4.7}, middle + Vec2{4.7, 4.7}, 0.9)
                            : Ellipse(middle, {5.1, 5.1});
    PaintShadow(canvas, cell, stone, 1.0, 1.0, 0.75);
    PaintFace(canvas, cell, stone, [&](Vec2 p) {
        const Vec3 normal = Rounded(stone, p, mark == 1 ? 1.5 : 2.4, mark == 1 ? 0.9 : 0.5);
        return Matte(mark == 1 ? Color{0.006, 0.006, 0.007} : kChalk * 1.15, normal);
    });
}

void Beacon::PaintNumber(Canvas& canvas, Rect cell, int row, bool lit) const {
    const Vec2 middle = MiddleOf(cell);
    const Shape tile = RoundedBox(cell, 0.4, 4);
    if (lit) {
        canvas.Paint(cell, [](Vec2) { return Sample{Matte({0.026, 0.032, 0.039}, kFacing), 1}; });
        PaintFace(canvas, cell, tile,
                  [&](Vec2 p) { return Matte(kSignal, Rounded(tile, p, 2, 0.6)); });
    }
    const Shape sign = row > 0 ? Captions().Line(std::to_string(row), 12.5, middle)
                               : Shape(Ellipse(middle, {3.4, 3.4}));
    const Color ink = lit ? kInk : kChalk * 0.62;
    PaintFlat(canvas, cell, sign, ink);
}

}  // namespace quendrel::art::beacon
