#include "skins/CarbonStuff.h"

#include "kit/Fittings.h"
#include "kit/Materials.h"
#include "kit/Noise.h"

namespace quendrel::art::carbon {

namespace {

constexpr double kRoot = std::numbers::sqrt2;

/// The width of a tow (a flat bundle of fibres), and how steeply its ends go down beneath the
/// crossing ones.
constexpr double kTow = 4.0;
constexpr double kDive = 0.20;

/// The direction half way between the key light and the eye, in which fibres gleam.
const Vec3 kGleam = Normalize(kKeyLight + kFacing);

/// The tow on top at a point of the weave.
struct Tow {
    /// The way its fibres run.
    Vec2 along;
    /// From -1 to 1 over the length in which it lies on top.
    double run;
    /// From -1 to 1 over its width.
    double across;
    int number;
};

/// In a twill each tow goes over two and under two, a step further from tow to tow.
Tow TowAt(Vec2 p) {
    const Vec2 q = p * (1 / kTow);
    const int column = static_cast<int>(std::floor(q.x));
    const int row = static_cast<int>(std::floor(q.y));
    const double fx = q.x - column;
    const double fy = q.y - row;
    const int step = (column + row) & 3;
    if (step < 2) return {{0, 1}, step + fy - 1, 2 * fx - 1, column};
    return {{1, 0}, step - 2 + fx - 1, 2 * fy - 1, row};
}

}  // namespace

Shape Chamfered(Vec2 topLeft, Vec2 bottomRight, double cut, double lesser) {
    const Vec2 middle = (topLeft + bottomRight) * 0.5;
    const Vec2 half = (bottomRight - topLeft) * 0.5;
    const double reach = half.x + half.y;
    return [=](Vec2 p) {
        const Vec2 q = p - middle;
        const double sides = std::max(std::abs(q.x) - half.x, std::abs(q.y) - half.y);
        const double falling = (std::abs(q.x + q.y) - reach + cut) / kRoot;
        const double rising = (std::abs(q.x - q.y) - reach + lesser) / kRoot;
        return std::max(sides, std::max(falling, rising));
    };
}

Shape Chamfered(Rect box, double inset, double cut, double lesser) {
    return Chamfered({box.left + inset, box.top + inset},
                     {box.right() - inset, box.bottom() - inset}, cut, lesser);
}

Shape Hexagon(Vec2 middle, double halfWidth, double halfHeight) {
    const double side = std::hypot(halfHeight, halfWidth / 2);
    return [=](Vec2 p) {
        const Vec2 q{std::abs(p.x - middle.x), std::abs(p.y - middle.y)};
        const double slanted =
            (halfHeight * q.x + halfWidth / 2 * q.y - halfHeight * halfWidth) / side;
        return std::max(q.y - halfHeight, slanted);
    };
}

Vec3 Milled(const Shape& shape, Vec2 p, double width, double slope) {
    const double fall = slope * SmoothStep(-width - 0.35, -width + 0.35, shape(p));
    if (fall == 0) return kFacing;
    const Vec2 out = Outward(shape, p);
    return Normalize({out.x * fall, out.y * fall, 1});
}

Color Anodised(Color tint, Vec3 normal, Vec2 p, double angle) {
    return Metal(tint, Brushed(normal, p, angle, 0.13, 313), 0.45);
}

Color Twill(Vec2 p, Vec3 normal) {
    const Tow tow = TowAt(p);
    // Fibres gleam where they run across the light.
    const double tilt = -kDive * tow.run - Dot(tow.along, {normal.x, normal.y}) / normal.z;
    const Vec3 fibre = Normalize({tow.along.x, tow.along.y, tilt});
    const double gleam = std::pow(1 - Square(Dot(fibre, kGleam)), 14);
    const double onward = Dot(p, tow.along);
    const double strand = Noise({onward * 0.09, tow.across * 3.4 + tow.number * 7.0}, 401);
    const double edge = 1 - 0.75 * Square(Square(tow.across));
    const double light = (0.010 + 0.115 * gleam) * (1 + 0.30 * strand) * edge;
    const Color weave = Color{0.90, 1.0, 1.14} * light;
    return weave + Environment(Mirrored(normal), 0.15) * (0.5 * Fresnel(normal.z));
}

void PaintMilled(Canvas& canvas, Rect area, const Shape& shape, Color tint, double width,
                 double angle) {
    PaintFace(canvas, area, shape,
              [&](Vec2 p) { return Anodised(tint, Milled(shape, p, width, 0.85), p, angle); });
}

void PaintRecess(Canvas& canvas, Rect area, const Shape& shape, Color floor, double depth) {
    canvas.Paint(area, [&](Vec2 p) {
        const double d = shape(p);
        if (d < 0 || d > 1.1) return Sample{};
        const double facing = Dot(Outward(shape, p), kShadowFall);
        return facing > 0 ? Sample{{0.72, 0.80, 0.92}, 0.30 * facing} : Shadow(-0.70 * facing);
    });
    PaintFloor(canvas, area, shape, floor, depth, 0.7, 1);
}

void PaintLight(Canvas& canvas, Rect area, const Shape& shape, Color light, double reach,
                double halo) {
    canvas.Paint(area, [&](Vec2 p) {
        const double d = shape(p);
        if (d < 0) return Sample{light, 1};
        return Sample{light * 0.7, halo * Square(SmoothStep(reach, 0, d))};
    });
}

void PaintBolt(Canvas& canvas, Vec2 center, double radius, double turn) {
    const int reach = static_cast<int>(radius) + 5;
    const Rect area = RectAround(center, reach, reach);
    const Shape head = Ellipse(center, {radius, radius});
    PaintRecess(canvas, area, Inset(head, -1.0), kNight, 1.0);
    PaintMetal(canvas, area, head, kTitanium * 0.75, radius * 0.5, 0.9, 0.35);
    const Shape key = Hexagon({0, 0}, radius * 0.56, radius * 0.485);
    const Shape socket = [&](Vec2 p) { return key(Rotate(p - center, turn)); };
    PaintRecess(canvas, area, socket, kNight, 1.2);
}

}  // namespace quendrel::art::carbon
