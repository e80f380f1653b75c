#include "skins/Atelier.h"

#include <array>

#include "kit/Fittings.h"
#include "kit/Glass.h"
#include "kit/Iris.h"
#include "kit/Materials.h"
#include "kit/Noise.h"
#include "ui/MainLayout.h"

namespace quendrel::art::atelier {

namespace {

constexpr Rect kMainWindow = WholeOf(kBoardSize);

// The three parts of the bench: the console, the curved plate of the pegs, the tower of the marks.
constexpr double kPlateLeft = 193;
constexpr double kPlateRight = 520;
constexpr double kPlateMiddle = 365;
constexpr double kTowerMiddle = 582;

constexpr double kMoulding = 5;

const WoodCut kPlateWood{Hex(0x331609), Hex(0xaa6738), 0.0, 1.25, 211};
const WoodCut kConsoleWood{Hex(0x21120b), Hex(0x5f3a20), kPi / 2, 0.55, 23};
const WoodCut kTowerWood{Hex(0x6d4420), Hex(0xc8955c), kPi / 2, 0.7, 37};

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

Shape DrawMainOutline() {
    return Path({4, 112})
        .CurveTo({3, 96}, {9, 87}, {24, 86})
        .CurveTo({40, 85}, {47, 79}, {48, 67})
        .CurveTo({49, 54}, {60, 49}, {76, 48})
        .CurveTo({118, 46}, {164, 46}, {186, 36})
        .CurveTo({202, 28}, {212, 20}, {232, 15})
        .CurveTo({272, 5}, {322, 2}, {365, 2})
        .CurveTo({408, 2}, {452, 5}, {490, 14})
        .CurveTo({506, 18}, {516, 18}, {522, 13})
        .CurveTo({530, 5}, {552, 2}, {582, 2})
        .CurveTo({614, 2}, {640, 6}, {645, 22})
        .CurveTo({649, 40}, {645, 70}, {645, 100})
        .CurveTo({643, 240}, {643, 400}, {645, 520})
        .CurveTo({646, 560}, {653, 574}, {653, 590})
        .CurveTo({653, 599}, {648, 603}, {640, 603})
        .LineTo({552, 603})
        .CurveTo({532, 603}, {524, 592}, {502, 590})
        .CurveTo({450, 576}, {280, 576}, {218, 590})
        .CurveTo({196, 592}, {188, 603}, {168, 603})
        .LineTo({15, 603})
        .CurveTo({6, 603}, {2, 599}, {2, 590})
        .CurveTo({2, 574}, {8, 560}, {8, 520})
        .CurveTo({9, 400}, {9, 260}, {5, 150})
        .Close();
}

/// How much higher the curved plate's grain runs at x than at its ends, as its rows do.
double Bow(double x) { return 13 * (1 - Square((x - kPlateMiddle) / 150)); }

/// The turn of the board's surface: every part is a shallow barrel that leans back.
Vec3 Curvature(Vec2 p) {
    double t = (p.x - 96) / 100;
    if (p.x > kPlateLeft) t = (p.x - (kPlateLeft + kPlateRight) / 2) / 164;
    if (p.x > kPlateRight) t = (p.x - kTowerMiddle) / 64;
    const double lean = (p.y - 300) / 300;
    return Normalize({0.16 * t + 0.30 * t * t * t * t * t, 0.13 * lean, 1});
}

/// The warm lamp hangs over the upper left of the board.
double LampPool(Vec2 p) { return Mix(1.34, 0.76, SmoothStep(0, 580, Length(p - Vec2{250, 150}))); }

/// The brass line between the hidden code and the rows, bowed as they are.
void PaintLintel(Canvas& canvas, const Shape& inner) {
    const Rect area{static_cast<int>(kPlateLeft), 70, static_cast<int>(kPlateRight - kPlateLeft),
                    50};
    const auto height = [](Vec2 p) { return p.y - 84.2 - 11 * Square((p.x - kPlateMiddle) / 125); };
    const Shape line = [&](Vec2 p) { return std::max(std::abs(height(p)) - 0.9, inner(p)); };
    canvas.Paint(area, [&](Vec2 p) {
        return Shadow(0.65 * SmoothStep(2.6, 0.9, std::abs(height(p))) * Inside(inner(p)));
    });
    PaintMetal(canvas, area, line, kBrass * 0.9, 0.9, 0.6, 0.35);
}

void PaintConsole(Canvas& canvas) {
    for (const Rect& tray : {kAnswerTray, kClockTray})
        PaintHollow(canvas, Grown(tray, 4), RoundedBox(tray, 0, 7), kLeather * 0.55, 2.4);
    const Shape frame = RoundedBox(kMessagePanel, -1.6, 7);
    PaintShadow(canvas, Grown(kMessagePanel, 8), frame, 1.5, 2.0, 0.6);
    PaintMetal(canvas, Grown(kMessagePanel, 4), frame, kBrass, 1.4, 1.4, 0.3);
    const Shape inlay = RoundedBox(kMessagePanel, 0.6, 5.5);
    canvas.Paint(kMessagePanel, [&](Vec2 p) {
        if (inlay(p) >= 0) return Sample{};
        const double shade = HollowShadow(inlay, p, 2.6, 2.6);
        const Vec3 normal = Pebbled(kFacing, p, 2.6, 0.16, 91);
        return Sample{Matte(kLeather, normal, shade), 1};
    });

    const auto socket = [&](Rect place) {
        PaintHollow(canvas, Grown(place, 3), Socket(place), {0.016, 0.012, 0.010}, 2.2);
    };
    for (const Rect& place : layout::kMenuButtons) socket(place);
    for (const Rect& place : layout::kModeButtons) socket(place);
    for (const Rect& place : {layout::kDuelButton, layout::kHideButton}) socket(place);
    for (const Rect& place : layout::kColorButtons) {
        socket(place);
        PaintScrew(canvas, {place.left + place.width / 2.0, place.top + place.height / 2.0}, 2.6,
                   place.left * 0.1 + place.top * 0.05, kBrass * 0.55);
    }
}

/// The wood is turned down around a seat: dark towards the light, bright away from it.
void PaintCountersink(Canvas& canvas, Rect area, const Shape& seat, double width) {
    canvas.Paint(area, [&](Vec2 p) {
        const double facing = Dot(Outward(seat, p), kShadowFall);
        const double near = SmoothStep(width, 0.0, seat(p));
        return facing > 0 ? Sample{{0.85, 0.58, 0.34}, 0.22 * facing * near}
                          : Shadow(-0.55 * facing * near);
    });
}

void PaintScrews(Canvas& canvas) {
    PaintScrew(canvas, {22, 583}, 5, 0.6, kBrass);
    PaintScrew(canvas, {172, 583}, 5, 2.3, kBrass);
    PaintScrew(canvas, {544, 582}, 5, 1.1, kBrass);
    PaintScrew(canvas, {630, 582}, 5, 0.2, kBrass);
}

}  // namespace

const GlassKind& Atelier::GlassOf(int color) {
    return kGlass.at(static_cast<std::size_t>(color - 1));
}

Atelier::Atelier() : captions_(QUENDREL_CAPTION_FONT), titles_(QUENDREL_TITLE_FONT) {
    outline_ = Sampled(DrawMainOutline(), kMainWindow);
}

void Atelier::PaintWindow(Canvas& canvas) const {
    canvas.Paint(kMainWindow, [](Vec2) { return Sample{{0.006, 0.004, 0.003}, 1}; });
    PaintWood(canvas);
    PaintFillets(canvas);
    PaintNamePlate(canvas);
    PaintConsole(canvas);
    PaintScrews(canvas);
}

void Atelier::PaintWood(Canvas& canvas) const {
    canvas.Paint(kMainWindow, [bodies = BothSides(outline_)](Vec2 p) {
        const double d = bodies(p);
        if (d > -kDarkRim) return Sample{};
        const WoodCut& cut = p.x < kPlateLeft    ? kConsoleWood
                             : p.x > kPlateRight ? kTowerWood
                                                 : kPlateWood;
        const bool plate = p.x >= kPlateLeft && p.x <= kPlateRight;
        // The plate's veneer is laid out from its middle, the same on both sides.
        const double side = std::sqrt(Square(p.x - kPlateMiddle) + 2500);
        const Vec2 grain = plate ? Vec2{side + 900, p.y + Bow(p.x)} : p;
        const double nearEdge = SmoothStep(-22, -kDarkRim - kMoulding, d);
        const Color color = Wood(grain, cut) * LampPool(p);
        return Sample{Coated(color, Curvature(p), 0.8, 0.35 * nearEdge), 1};
    });
}

void Atelier::PaintFillets(Canvas& canvas) const {
    const Shape inner = Inset(outline_, kDarkRim + kMoulding - 0.5);
    for (const double x : {kPlateLeft, kPlateRight}) {
        const Shape line = [x, inner](Vec2 p) {
            return std::max(std::abs(p.x - x) - 1.0, inner(p));
        };
        const Rect area{static_cast<int>(x) - 8, 0, 16, kBoardSize.height};
        canvas.Paint(area, [&](Vec2 p) {
            const double far = std::abs(p.x - x);
            return Shadow(0.75 * SmoothStep(4.2, 1.0, far) * Inside(inner(p)));
        });
        PaintMetal(canvas, area, line, kBrass * 0.85, 1.0, 0.9, 0.4);
    }
    PaintLintel(canvas, inner);
    const Shape moulding = Band(outline_, kDarkRim, kMoulding);
    PaintMetal(canvas, kMainWindow, moulding, kBrass, kMoulding / 2, 1.5, 0.22);
}

void Atelier::PaintNamePlate(Canvas& canvas) const {
    const auto bowed = [](Shape shape) -> Shape {
        return [shape = std::move(shape)](Vec2 p) {
            return shape({p.x, p.y - 0.0024 * Square(p.x - kPlateMiddle)});
        };
    };
    const Rect area{280, 8, 170, 48};
    const Shape plate = bowed(RoundedBox({305, 12}, {425, 36}, 4));
    PaintShadow(canvas, area, plate, 1.6, 2.2, 0.7);
    canvas.Paint(area, [&](Vec2 p) {
        if (plate(p) >= 0) return Sample{};
        Vec3 normal = Rounded(plate, p, 1.8, 1.0);
        normal = Normalize({normal.x + (p.x - kPlateMiddle) * 0.0022, normal.y - 0.05, normal.z});
        return Sample{Metal(kBrass, Brushed(normal, p, 0, 0.07, 71), 0.3), 1};
    });
    const Shape line = bowed(Band(RoundedBox({305, 12}, {425, 36}, 4), 2.6, 0.8));
    canvas.Paint(area, [&](Vec2 p) { return Sample{{0.06, 0.03, 0.01}, 0.7 * Inside(line(p))}; });
    const Shape name = bowed(Inset(titles_.Line("Quendrel", 23, {kPlateMiddle, 24}, 1.0), -0.22));
    PaintEngraved(canvas, area, name, {0.035, 0.017, 0.007}, {1.0, 0.85, 0.5});
    PaintScrew(canvas, {311, 24 + 7}, 2.2, 0.5, kBrass);
    PaintScrew(canvas, {419, 24 + 7}, 2.2, 2.0, kBrass);
}

Shape Atelier::PegMask(Point cell) const { return Ellipse(MiddleOf(cell, kPegSize), {21.4, 13.0}); }

Shape Atelier::MarkMask(Point cell) const { return Ellipse(MiddleOf(cell, kMarkSize), {5.4, 5.4}); }

void Atelier::PaintPegHole(Canvas& canvas, Point cell) const {
    const Rect area = Grown(CellAt(cell, kPegSize), 6);
    const Shape seat = PegMask(cell);
    PaintCountersink(canvas, area, seat, 4.0);
    PaintSeat(canvas, area, MiddleOf(cell, kPegSize), 1);
}

void Atelier::PaintPeg(Canvas& canvas, Point cell, int color) const {
    PaintDome(canvas, CellAt(cell, kPegSize), MiddleOf(cell, kPegSize), 1, GlassOf(color));
}

void Atelier::PaintSeat(Canvas& canvas, Rect area, Vec2 middle, double scale) {
    const auto ellipse = [&](Vec2 radii, double lower) {
        return Ellipse(middle + Vec2{0, lower * scale}, radii * scale);
    };
    const Shape joint = ellipse({21.7, 13.2}, 0);
    const Shape rim = ellipse({21.0, 12.6}, 0);
    const Shape well = ellipse({18.3, 10.5}, 0.2);
    const Shape floor = ellipse({17.0, 8.6}, 2.3);
    canvas.Paint(area, [&](Vec2 p) { return Sample{{0.014, 0.008, 0.005}, Inside(joint(p))}; });
    const Shape ring = [&](Vec2 p) { return std::max(rim(p), -well(p)); };
    PaintMetal(canvas, area, ring, kBrass * 0.85, 1.25, 1.3, 0.3);
    canvas.Paint(area, [&](Vec2 p) {
        if (well(p) >= 0) return Sample{};
        const Vec2 q = (p - middle) * (1 / scale);
        const double light = SmoothStep(-0.7, 1.1, 0.62 * q.x / 18.4 + 0.78 * q.y / 10.6);
        const double wall = SmoothStep(-1.0, 0.5, floor(p));
        const Color bottom = Mix({0.007, 0.018, 0.012}, {0.043, 0.118, 0.074}, light);
        return Sample{bottom * (1 - 0.6 * wall), 1};
    });
}

void Atelier::PaintDome(Canvas& canvas, Rect area, Vec2 middle, double scale,
                        const GlassKind& glass) {
    const Dome dome{middle + Vec2{0, 1.1 * scale}, 17.8 * scale, 9.8 * scale, 0.614};
    PaintShadow(canvas, area, Foot(dome), 2.2 * scale, 2.0, 0.85);
    // The gathered light spills its colour onto the seat.
    const Vec2 spill = dome.foot + Vec2{11, 8.6} * scale;
    canvas.Paint(area, [&](Vec2 p) {
        return Sample{glass.tint * 0.8, 0.4 * SmoothStep(6 * scale, 0, Length(p - spill))};
    });
    canvas.Paint(area, [&](Vec2 p) { return GlassSample(dome, glass, p); });
}

void Atelier::PaintCover(Canvas& canvas, Point cell, double open) const {
    const Rect area = CellAt(cell, kPegSize);
    const Vec2 middle = MiddleOf(cell, kPegSize);
    const Iris iris{{middle.x, middle.y + 0.2}, {18.7, 10.9}, 7, 0.9, kBrass};
    // The peg stands behind the shutter and its seat: it shows through the opening alone.
    Canvas seat(area);
    PaintPegHole(seat, cell);
    canvas.Paint(area, [&](Vec2 p) {
        if (InOpening(iris, open, p)) return Sample{};
        return Sample{seat.At(static_cast<int>(p.x), static_cast<int>(p.y)), 1};
    });
    canvas.Paint(area, [&](Vec2 p) { return IrisSample(iris, open, p); });
}

void Atelier::PaintMarkHole(Canvas& canvas, Point cell) const {
    const Rect area = Grown(CellAt(cell, kMarkSize), 4);
    const Vec2 middle = MiddleOf(cell, kMarkSize);
    const Shape seat = MarkMask(cell);
    PaintCountersink(canvas, area, seat, 2.5);
    canvas.Paint(area, [&](Vec2 p) { return Sample{{0.15, 0.075, 0.034}, Inside(seat(p) - 0.3)}; });
    const Shape ring = Band(Ellipse(middle, {3.6, 3.6}), 0, 1.3);
    PaintMetal(canvas, area, ring, kBrass * 0.8, 0.75, 1.2, 0.35);
    canvas.Paint(area, [&](Vec2 p) {
        const Vec2 q = p - middle;
        if (Length(q) >= 2.3) return Sample{};
        const double light = SmoothStep(-1, 3, Dot(q, kShadowFall));
        return Sample{Mix({0.02, 0.011, 0.006}, {0.09, 0.046, 0.022}, light), 1};
    });
}

void Atelier::PaintMark(Canvas& canvas, Point cell, int mark) const {
    static constexpr GlassKind kJet{{0.003, 0.003, 0.004}, {0.002, 0.002, 0.003}, 0.5, 0.3};
    static constexpr GlassKind kPearl{{0.97, 0.95, 0.90}, {0.95, 0.93, 0.88}, 0.8, 1.2};
    const Rect area = CellAt(cell, kMarkSize);
    const Dome dome{MiddleOf(cell, kMarkSize), 4.7, 4.2, 0.999};
    PaintShadow(canvas, area, Foot(dome), 0.8, 1.0, 0.8);
    canvas.Paint(area, [&](Vec2 p) { return GlassSample(dome, mark == 1 ? kJet : kPearl, p); });
}

void Atelier::PaintNumber(Canvas& canvas, Point cell, int row, bool lit) const {
    const Rect area = CellAt(cell, kNumberSize);
    const Vec2 middle = MiddleOf(cell, kNumberSize);
    const Shape tile = RoundedBox(area, 0.9, 2.5);
    canvas.Paint(area, [&](Vec2) { return Sample{{0.012, 0.008, 0.006}, 1}; });
    canvas.Paint(area, [&](Vec2 p) {
        if (tile(p) >= 0) return Sample{};
        const Vec3 normal = Rounded(tile, p, 1.6, 0.8);
        if (!lit) return Sample{Coated(kEbony * 0.7, normal, 0.3), 1};
        const double glow = std::exp(-Square(Length(p - middle) / 11));
        return Sample{Mix({0.75, 0.22, 0.02}, {1.6, 0.95, 0.30}, glow), 1};
    });
    const Shape sign =
        row > 0 ? captions_.Line(std::to_string(row), 15, middle) : Shape([middle](Vec2 p) {
            const Vec2 q = p - middle;
            return std::abs(q.x) + std::abs(q.y) - 4.6;
        });
    const Color ink = lit ? Color{0.05, 0.014, 0.003} : kBrass * 0.78;
    canvas.Paint(area, [&](Vec2 p) { return Sample{ink, Inside(sign(p))}; });
}

}  // namespace quendrel::art::atelier
