// What stands on Daylight's board: dimples of porcelain with their pebbles, lids that part along a
// wave, marks of basalt and shell, and the tiles of the rows' numbers.
#include <array>

#include "kit/Fittings.h"
#include "kit/Noise.h"
#include "skins/Daylight.h"

namespace quendrel::art::daylight {

namespace {

/// The linen in the shadow of what stands on it, where sprites end.
constexpr Color kLinenShade{0.40, 0.375, 0.32};
constexpr Color kBlueShade{0.055, 0.095, 0.150};

constexpr Color kDimpleDeep{0.200, 0.400, 0.410};
constexpr Color kDimpleEdge{0.42, 0.64, 0.65};

/// How steeply the board is seen: sine and cosine of the view's height.
constexpr double kSlantSine = 0.614;
constexpr double kSlantCosine = 0.789;

/// A flat ellipsoid, its outline worn out of round by the sea.
struct Pebble {
    Vec2 foot;
    double radius;
    double height;
    /// Of the angle from which it is seen: 1 is from above.
    double sine;
    double cosine;
    /// How far it is longer than broad.
    double oval;
    /// How far it is three-sided.
    double corner;
    double turn;
};

/// What a pebble of a colour is: its veins are of quartz or of a paler layer.
struct Stone {
    Color body;
    Color vein;
    int veins;
    double oval;
    double corner;
    double turn;
};

constexpr std::array<Stone, 10> kStones{{
    {{0.93, 0.62, 0.060}, {1.00, 0.88, 0.50}, 0, 0.045, 0.030, 0.4},     // Yellow
    {{0.050, 0.190, 0.620}, {0.55, 0.68, 0.90}, 1, 0.030, 0.050, 1.3},   // Blue
    {{0.680, 0.026, 0.042}, {0.90, 0.42, 0.34}, 0, 0.050, 0.032, 2.2},   // Red
    {{0.065, 0.360, 0.105}, {0.50, 0.74, 0.46}, 2, 0.034, 0.044, 3.1},   // Green
    {{0.82, 0.84, 0.84}, {0.62, 0.65, 0.68}, 1, 0.050, 0.026, 4.0},      // White
    {{0.008, 0.010, 0.013}, {0.20, 0.21, 0.23}, 1, 0.030, 0.048, 4.9},   // Black
    {{0.165, 0.076, 0.033}, {0.32, 0.20, 0.115}, 2, 0.046, 0.034, 5.8},  // Brown
    {{0.900, 0.225, 0.012}, {1.00, 0.55, 0.22}, 0, 0.032, 0.046, 0.9},   // Orange
    {{0.215, 0.052, 0.420}, {0.60, 0.45, 0.74}, 1, 0.048, 0.030, 1.8},   // Purple
    {{0.900, 0.330, 0.450}, {1.00, 0.74, 0.76}, 2, 0.034, 0.044, 2.7},   // Pink
}};

const Stone& StoneOf(int color) { return kStones.at(static_cast<std::size_t>(color - 1)); }

/// A point of the picture relative to a pebble, in radii, as if the pebble were round.
Vec2 Unworn(const Pebble& pebble, Vec2 p) {
    const Vec2 q = p - pebble.foot;
    const double around = std::atan2(q.y / pebble.sine, q.x) + pebble.turn;
    const double reach =
        1 + pebble.oval * std::cos(2 * around) + pebble.corner * std::cos(3 * around);
    return q * (1 / (pebble.radius * reach));
}

/// The surface of the pebble at `q`: its normal towards the eye, or a length of 0 beside it.
Vec3 SurfaceNormal(const Pebble& pebble, Vec2 q) {
    const double flat = Square(pebble.radius / pebble.height);
    const double s = pebble.sine;
    const double c = pebble.cosine;
    const double a = c * c + flat * s * s;
    const double b = 2 * s * c * q.y * (1 - flat);
    const double rest = q.x * q.x + q.y * q.y * (s * s + flat * c * c) - 1;
    const double root = b * b - 4 * a * rest;
    if (root <= 0) return {0, 0, 0};
    const double z = (std::sqrt(root) - b) / (2 * a);
    const double along = s * q.y + c * z;
    const double up = s * z - c * q.y;
    return Normalize({q.x, s * along - flat * c * up, c * along + flat * s * up});
}

/// The colour of a wet stone with its sheen; dark stones are rougher.
Color WetStone(Color body, Vec3 normal) {
    const double wet = Mix(0.35, 1.0, SmoothStep(0, 0.12, Luminance(body)));
    const Color sheen =
        Environment(Mirrored(normal), 0.42) * ((0.026 + 0.4 * Fresnel(normal.z)) * wet);
    const Color glint = Environment(Mirrored(normal), 0.10) * (0.034 * wet);
    const double bounce = std::max(0.0, 0.45 * normal.x + 0.62 * normal.y);
    return Matte(body, normal) + body * (0.20 * bounce) + sheen + glint;
}

/// The colour of the stone at `q`: grain, a few specks, and a vein or two.
Color Grain(const Stone& stone, Vec2 q, std::uint32_t seed) {
    const double clouds = LayeredNoise(q * 2.6, 3, seed);
    const double grain = Noise(q * 15, seed + 7);
    Color color = stone.body * (1 + 0.16 * clouds + 0.07 * grain);
    const Vec2 turned = Rotate(q, stone.turn);
    const double bend = 0.22 * Noise({turned.x * 1.7, 3.1}, seed + 9);
    const std::array<double, 2> far{std::abs(turned.y - 0.30 - bend),
                                    std::abs(turned.y + 0.38 + bend - 0.3 * turned.x)};
    for (int i = 0; i < stone.veins; ++i) {
        const double width = 0.085 / (1 + i) * (1 + 0.5 * clouds);
        const double vein = far.at(static_cast<std::size_t>(i));
        color = Mix(color, stone.vein, 0.62 * SmoothStep(1.5 * width, 0.4 * width, vein));
    }
    const double speck = Noise(q * 8.5, seed + 11);
    return Mix(color, stone.vein, 0.45 * SmoothStep(0.62, 0.78, speck));
}

/// A pebble with its shadow.
template <class Painter>
void PaintStone(Canvas& canvas, Rect area, const Pebble& pebble, const Painter& painter) {
    canvas.Paint(area, [&](Vec2 p) {
        const Vec3 normal = SurfaceNormal(pebble, Unworn(pebble, p));
        if (normal.z <= 0) return Sample{};
        return Sample{painter(p, normal), 1};
    });
}

// The lid over a hole: two halves that part along a wave.
constexpr Vec2 kLidRadii{19.6, 11.6};

/// How far right of the lid's middle the seam runs at height `y` over it.
double Seam(double y) { return 5.2 * std::sin(y * 0.29); }

/// The face of the closed lid at `q` from its middle: waves left white under blue glaze.
Color LidFace(Vec2 q) {
    const Vec2 around{q.x / kLidRadii.x, q.y / kLidRadii.y};
    const double rise = Length(around);
    const Vec3 dome = Normalize({0.40 * around.x + 0.5 * around.x * std::pow(rise, 6),
                                 0.46 * around.y + 0.5 * around.y * std::pow(rise, 6), 1});
    const double line = std::abs(rise - 0.82);
    Color body = Mix(kDipped, kPorcelain, SmoothStep(0.075, 0.035, line));
    const double ripple = std::abs(q.x - Seam(q.y));
    const double stroke = std::abs(ripple - 5.2) - 1.25 + 0.09 * std::abs(q.y);
    body = Mix(body, kPorcelain, SmoothStep(0.45, -0.1, stroke) * Inside(rise - 0.74));
    return Glazed(body, dome);
}

/// One half of the lid, gone aside by `shift`: -1 is the left one.
Sample LidHalf(Vec2 q, double side, double shift) {
    const Vec2 own = q - Vec2{side * shift, 0};
    const double seam = side * (own.x - Seam(own.y));
    if (seam < 0 || Length({own.x / kLidRadii.x, own.y / kLidRadii.y}) >= 1) return Sample{};
    const Color face = LidFace(own);
    if (seam > 1.1) return {face, 1};
    return {kPorcelain * (side > 0 ? 1.0 : 0.62), 1};
}

/// A cockle seen from above: ribs that spread from its hinge.
Color Cockle(Vec2 q, Vec3 normal) {
    const Vec2 spread = q - Vec2{0, 5.2};
    const double rib = std::cos(std::atan2(spread.x, -spread.y) * 15);
    const Vec3 ribbed = Normalize({normal.x + 0.34 * rib, normal.y, normal.z});
    const Color shell = Mix({0.84, 0.87, 0.90}, {0.62, 0.60, 0.60}, Clamp01(-0.5 * rib));
    return WetStone(shell, ribbed);
}

}  // namespace

void PaintDimple(Canvas& canvas, Rect area, Vec2 middle, double scale, bool glazed) {
    const auto ellipse = [&](Vec2 radii, double lower) {
        return Ellipse(middle + Vec2{0, lower * scale}, radii * scale);
    };
    const Shape rim = ellipse({20.9, 12.5}, 0);
    const Shape well = ellipse({18.6, 10.6}, 0.1);
    const Shape ring = [&](Vec2 p) { return std::max(rim(p), -well(p)); };
    PaintFace(canvas, area, ring, [&](Vec2 p) {
        return Glazed(glazed ? kPorcelain : kBisque, Rounded(ring, p, 1.15, 1.0));
    });
    PaintFace(canvas, area, well, [&](Vec2 p) {
        const Vec2 q = (p - middle) * (1 / scale);
        const Vec2 tilt{q.x / 18.6, q.y / 10.6};
        const double deep = SmoothStep(1.0, 0.25, Length(tilt));
        const Color pool = Mix(kDimpleEdge, kDimpleDeep, deep) * (glazed ? 1 : 0.34);
        const double shade = 0.75 * HollowShadow(well, p, 2.2 * scale, 2.0);
        return Glazed(pool, Normalize({-0.34 * tilt.x, -0.34 * tilt.y, 1}), shade);
    });
}

void PaintBareDimple(Canvas& canvas, Rect area, Vec2 middle, double scale, int color) {
    PaintDimple(canvas, area, middle, scale, false);
    const Shape ring =
        Band(Ellipse(middle + Vec2{0, 0.5} * scale, Vec2{14.4, 7.8} * scale), 0, 2.2 * scale);
    PaintBrushed(canvas, area, ring, Faded(StoneOf(color).body, 1) * 0.56);
}

void PaintPebble(Canvas& canvas, Rect area, Vec2 middle, double scale, int color) {
    const Stone& stone = StoneOf(color);
    const Pebble pebble{middle + Vec2{0, -0.3 * scale},
                        16.6 * scale,
                        6.9 * scale,
                        kSlantSine,
                        kSlantCosine,
                        stone.oval,
                        stone.corner,
                        stone.turn};
    const Shape foot = Ellipse(pebble.foot + Vec2{0, 2.6} * scale, Vec2{16.2, 10.0} * scale);
    PaintShadow(canvas, area, foot, 1.8 * scale, 2.2, 0.62);
    const auto seed = static_cast<std::uint32_t>(700 + 31 * color);
    PaintStone(canvas, area, pebble, [&](Vec2 p, Vec3 normal) {
        const Vec2 q = (p - pebble.foot) * (1 / (12 * scale));
        const Vec3 worn = Normalize({normal.x + 0.10 * Noise(q * 2.1, seed + 1),
                                     normal.y + 0.10 * Noise(q * 2.1, seed + 2), normal.z});
        const Color body = Grain(stone, q, seed);
        return WetStone(body, worn);
    });
}

Shape Daylight::PegMask(Rect cell) const { return Ellipse(MiddleOf(cell), {21.4, 13.0}); }

Shape Daylight::MarkMask(Rect cell) const { return Ellipse(MiddleOf(cell), {5.4, 5.4}); }

void Daylight::PaintPegHole(Canvas& canvas, Rect cell) const {
    const Rect area = Grown(cell, 6);
    const Vec2 middle = MiddleOf(cell);
    const Shape seat = PegMask(cell);
    PaintShadow(canvas, area, seat, 1.8, 2.2, 0.42);
    const Shape joint = Ellipse(middle, {21.7, 13.2});
    PaintFlat(canvas, area, joint, kLinenShade);
    PaintDimple(canvas, area, middle, 1, true);
}

void Daylight::PaintPeg(Canvas& canvas, Rect cell, int color) const {
    PaintPebble(canvas, cell, MiddleOf(cell), 1, color);
}

void Daylight::PaintCover(Canvas& canvas, Rect cell, double open) const {
    const Vec2 middle = MiddleOf(cell);
    const double shift = 22.4 * open;
    PaintHoleAround(canvas, cell, [&](Vec2 p) {
        const Vec2 q = p - middle;
        return std::abs(q.x - Seam(q.y)) < shift;
    });
    canvas.Paint(cell, [&](Vec2 p) {
        const Vec2 q = p - middle - kShadowFall * 1.4;
        const double gap = shift - std::abs(q.x - Seam(q.y));
        const double within = Length({q.x / kLidRadii.x, q.y / kLidRadii.y});
        return Shadow(0.55 * SmoothStep(2.2, -0.6, gap) * SmoothStep(1.06, 0.98, within));
    });
    for (const double side : {-1.0, 1.0}) {
        canvas.Paint(cell, [&](Vec2 p) { return LidHalf(p - middle, side, shift); });
    }
}

void Daylight::PaintMarkHole(Canvas& canvas, Rect cell) const {
    const Rect area = Grown(cell, 4);
    const Vec2 middle = MiddleOf(cell);
    const Shape seat = MarkMask(cell);
    PaintShadow(canvas, area, seat, 0.8, 1.4, 0.35);
    canvas.Paint(area, [&](Vec2 p) { return Sample{kBlueShade, Inside(seat(p) - 0.3)}; });
    const Shape rim = Ellipse(middle, {4.3, 4.3});
    const Shape well = Ellipse(middle, {3.0, 3.0});
    PaintFace(canvas, area, rim, [&](Vec2 p) {
        if (well(p) >= 0) return Glazed(Color{0.155, 0.222, 0.315}, Rounded(rim, p, 1.3, 1.0));
        const Vec2 q = (p - middle) * (1 / 3.0);
        const double shade = 0.8 * HollowShadow(well, p, 1.0, 1.0);
        return Glazed(kDimpleDeep * 0.45, Normalize({-0.5 * q.x, -0.5 * q.y, 1}), shade);
    });
}

void Daylight::PaintMark(Canvas& canvas, Rect cell, int mark) const {
    const Vec2 middle = MiddleOf(cell);
    PaintShadow(canvas, cell, Ellipse(middle, {4.4, 4.4}), 0.9, 1.0, mark == 1 ? 0.95 : 0.7);
    const Pebble pebble{middle, 5.2, 3.2, 0.98, 0.28, 0.02, 0.03, mark == 1 ? 1.2 : 0.0};
    PaintStone(canvas, cell, pebble, [&](Vec2 p, Vec3 normal) {
        if (mark == 2) return Cockle(p - middle, normal);
        const double grain = Noise(p - middle, 41);
        // Darker than the stone of a peg, so that it stands out from the hole.
        return WetStone(Color{0.013, 0.015, 0.019} * (1 + 0.3 * grain), normal) * 0.3;
    });
}

void Daylight::PaintNumber(Canvas& canvas, Rect cell, int row, bool lit) const {
    const Vec2 middle = MiddleOf(cell);
    const Shape tile = RoundedBox(cell, 0.8, 5.5);
    canvas.Paint(cell, [&](Vec2) { return Sample{kLinenShade * 1.45, 1}; });
    PaintTile(canvas, cell, tile, lit ? kSunlit : kDipped, 2.4, 0.8);
    Shape sign = Captions().Line(std::to_string(row), 12.5, middle);
    if (row == 0) sign = Ellipse(middle, {3.2, 3.2});
    PaintBrushed(canvas, cell, Inset(sign, lit ? -0.3 : -0.12), lit ? kCobalt * 0.6 : kPorcelain);
}

}  // namespace quendrel::art::daylight
