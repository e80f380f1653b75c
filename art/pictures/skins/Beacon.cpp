// Beacon's windows: slabs of pale stone with a slate let in, ruled and lettered with chalk.
#include "skins/Beacon.h"

#include "Modes.h"
#include "kit/Animation.h"
#include "kit/Fittings.h"
#include "kit/Light.h"
#include "kit/Noise.h"
#include "ui/layout/ConfigLayout.h"
#include "ui/layout/HighLayout.h"
#include "ui/layout/MainLayout.h"

namespace quendrel::art::beacon {

namespace {

constexpr Color kStone{0.222, 0.252, 0.292};
constexpr Color kSlate{0.026, 0.032, 0.039};
constexpr Color kGap{0.004, 0.004, 0.005};

constexpr double kFrame = 10;

// The slate of the board, between the console and the tower.
constexpr double kBoardSide = 193.5;
constexpr double kBoardRight = 519.5;
constexpr double kBoardMiddle = 365;

/// A corner of a slab: rounded, or with a negative radius hollowed out.
struct Corner {
    Vec2 at;
    double radius;
};

// Raised heads, scooped shoulders, and feet on both sides of a step.
const std::vector<Corner> kMainCorners{
    {{3, 49}, -17},  {{186, 49}, 20}, {{186, 3}, -18}, {{652, 3}, -18}, {{652, 602}, -18},
    {{512, 602}, 8}, {{512, 587}, 7}, {{202, 587}, 7}, {{202, 602}, 8}, {{3, 602}, -18}};
const std::vector<Corner> kAboutCorners{
    {{3, 3}, -18},   {{146, 3}, -18}, {{146, 54}, 18}, {{461, 54}, -18}, {{461, 313}, -18},
    {{372, 313}, 7}, {{372, 300}, 6}, {{92, 300}, 6},  {{92, 313}, 7},   {{3, 313}, -18}};
const std::vector<Corner> kHighCorners{{{3, 54}, -18},    {{138, 54}, 18}, {{138, 12}, -18},
                                       {{322, 12}, -18},  {{322, 54}, 18}, {{457, 54}, -18},
                                       {{457, 445}, -18}, {{290, 445}, 7}, {{290, 433}, 5},
                                       {{170, 433}, 5},   {{170, 445}, 7}, {{3, 445}, -18}};
const std::vector<Corner> kConfigCorners{{{3, 40}, -16},    {{190, 40}, 16}, {{190, 3}, -16},
                                         {{450, 3}, -16},   {{450, 40}, 16}, {{637, 40}, -16},
                                         {{637, 487}, -18}, {{350, 487}, 7}, {{350, 475}, 5},
                                         {{170, 475}, 5},   {{170, 487}, 7}, {{3, 487}, -18}};

Vec2 Towards(Vec2 from, Vec2 to) { return (to - from) * (1 / Length(to - from)); }

/// A slab with upright and level sides.
Shape Slab(const std::vector<Corner>& corners) {
    constexpr double kRound = 0.5523;
    const auto neighbour = [&corners](std::size_t i, std::size_t step) {
        return corners[(i + step) % corners.size()].at;
    };
    const auto entry = [&](std::size_t i) {
        return corners[i].at + Towards(corners[i].at, neighbour(i, corners.size() - 1)) *
                                   std::abs(corners[i].radius);
    };
    Path path(entry(0));
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const auto [at, radius] = corners[i];
        const Vec2 back = Towards(at, neighbour(i, corners.size() - 1)) * std::abs(radius);
        const Vec2 ahead = Towards(at, neighbour(i, 1)) * std::abs(radius);
        path.LineTo(at + back);
        if (radius < 0) {
            path.CurveTo(at + back + ahead * kRound, at + ahead + back * kRound, at + ahead);
        } else {
            path.CurveTo(at + back * (1 - kRound), at + ahead * (1 - kRound), at + ahead);
        }
    }
    return path.Close();
}

/// How much higher a row's middle stands than its ends.
double Bow(double x) { return 9.5 * (1 - Square((x - kBoardMiddle) / 125)); }
double MarkBow(double x) { return 4.2 * (1 - Square((x - 574.5) / 45)); }

/// The height of split stone: thin layers have broken off.
double RivenHeight(Vec2 p) {
    const double height = LayeredNoise({p.x * 0.011, p.y * 0.019}, 4, 301) * 4;
    const double leaf = std::floor(height);
    return 0.45 * (leaf + SmoothStep(0.72, 1.0, height - leaf)) + 0.22 * height;
}

/// Traces of chalk that was wiped off the slate.
double Haze(Vec2 p) {
    const double wipe = LayeredNoise({p.x * 0.006 + p.y * 0.004, p.y * 0.021 - p.x * 0.006}, 4, 77);
    return 0.030 * SmoothStep(-0.25, 0.8, wipe);
}

/// How much lighter the stone is at a place than on average.
double Grain(Vec2 p) {
    return 0.05 * Noise(p * 0.9, 307) + 0.04 * Noise(p * 1.9, 309) +
           0.08 * LayeredNoise(p * 0.02, 3, 311);
}

/// Noise that is slow to evaluate and the same in every window, sampled once.
struct Quarry {
    static constexpr Rect kArea{0, 0, kBoardSize.width + 1, kBoardSize.height + 1};
    DistanceGrid height{RivenHeight, kArea, 1};
    DistanceGrid grain{Grain, kArea, 2};
    DistanceGrid haze{Haze, kArea, 1};
};

const Quarry& TheQuarry() {
    static const Quarry quarry;
    return quarry;
}

/// Stone with the rough surface of its splitting; with `depth` 0 it is smooth.
Color Riven(Vec2 p, Color tone, Vec3 lean, double depth, double shade) {
    constexpr double kStep = 0.8;
    const auto& [height, grain, haze] = TheQuarry();
    const double here = height.At(p);
    const double dx = (height.At({p.x + kStep, p.y}) - here) * depth / kStep;
    const double dy = (height.At({p.x, p.y + kStep}) - here) * depth / kStep;
    const Vec3 normal = Normalize({lean.x - dx, lean.y - dy, lean.z});
    return Matte(tone * (1 + grain.At(p)), normal, shade);
}

/// How much of the light reaches across the table.
double LightAt(Vec2 p) { return Mix(1.10, 0.88, SmoothStep(0, 720, Length(p))); }

/// The slate that is let into a window's stone.
Shape SlateOf(Window window, const Shape& outline) {
    if (window != Window::kMain) return Inset(outline, kFrame);
    return [outline](Vec2 p) {
        return std::max({outline(p) + kFrame, kBoardSide - p.x, p.x - kBoardRight});
    };
}

void PaintStone(Canvas& canvas, const Shape& outline) {
    const Rect area = canvas.Area();
    canvas.Paint(area, [](Vec2) { return Sample{kGap, 1}; });
    const Shape slab = Inset(BothSides(outline), kDarkRim);
    canvas.Paint(area, [&](Vec2 p) {
        const double d = slab(p);
        if (d >= 0) return Sample{};
        const Vec3 edge = d > -4.5 ? Rounded(slab, p, 4.5, 0.85) : kFacing;
        return Sample{Riven(p, kStone, edge, 0.45, 0) * LightAt(p), 1};
    });
}

void PaintSlate(Canvas& canvas, const Shape& slate) {
    const Rect area = canvas.Area();
    PaintRim(canvas, area, slate, 2.0, 0.42);
    canvas.Paint(area, [&](Vec2 p) {
        const double d = slate(p);
        if (d >= 0) return Sample{};
        const double shade = d > -6 ? 0.8 * HollowShadow(slate, p, 2.4, 2.2) : 0;
        const Color stone = Riven(p, kSlate, kFacing, 0.20, shade);
        return Sample{Mix(stone, kChalk, TheQuarry().haze.At(p) * (1 - shade)) * LightAt(p), 1};
    });
}

/// Rules between the rows: of chalk on the slate, scored into the stone of the tower.
void PaintRules(Canvas& canvas) {
    for (int row = 0; row <= kMaxRows; ++row) {
        const int level = 566 - kRowPitch * row;
        const Rect pegs{220, level - 13, 294, 22};
        const Shape rule = [level](Vec2 p) {
            const double off = std::abs(p.y - level + Bow(p.x)) - 0.45;
            return std::max({off, 221 - p.x, p.x - 513});
        };
        PaintChalk(canvas, pegs, rule, kChalk, 0.34);
        const Rect marks{524, level - 6, 105, 14};
        const Shape score = [level](Vec2 p) {
            const double off = std::abs(p.y - level - 0.5 + MarkBow(p.x)) - 0.55;
            return std::max({off, 525 - p.x, p.x - 628});
        };
        PaintEngraved(canvas, marks, score, kStone * 0.42, kStone * 1.9);
    }
}

void PaintLevelRule(Canvas& canvas, double left, double right, double y) {
    const Rect area{static_cast<int>(left) - 2, static_cast<int>(y) - 2,
                    static_cast<int>(right - left) + 4, 5};
    PaintChalk(canvas, area, Stroke({left, y}, {right, y}, 1.0), kChalk, 0.38);
}

}  // namespace

Shape Pebble(Vec2 center, Vec2 radii) {
    return [=](Vec2 p) {
        const double x = std::abs(p.x - center.x) / radii.x;
        const double y = std::abs(p.y - center.y) / radii.y;
        const double size = std::cbrt(x * x * x + y * y * y);
        if (size < 1e-6) return -std::min(radii.x, radii.y);
        const double slope = Length({x * x / radii.x, y * y / radii.y}) / Square(size);
        return (size - 1) / slope;
    };
}

Shape Pill(Rect place, double inset) {
    const double radius = std::min(place.width, place.height) / 2.0 - inset;
    return RoundedBox(place, inset, radius);
}

void PaintRim(Canvas& canvas, Rect area, const Shape& hollow, double width, double strength) {
    PaintEdge(canvas, area, hollow, width, kChalk, strength, 1.5 * strength);
}

void PaintSunk(Canvas& canvas, Rect area, const Shape& hollow, Color floor, double depth) {
    PaintRim(canvas, area, hollow, 1.5, 0.38);
    PaintFloor(canvas, area, hollow, floor, depth);
}

void PaintChalk(Canvas& canvas, Rect area, const Shape& strokes, Color chalk, double strength) {
    canvas.Paint(area, [&](Vec2 p) {
        const double d = strokes(p);
        if (d > 0.35) return Sample{};
        const double grain = 0.5 + 0.5 * Noise(p * 0.8, 19) + 0.25 * Noise(p * 0.13, 23);
        const double edge = SmoothStep(0.35, -0.35, d);
        return Sample{chalk, strength * edge * Mix(1.0, Clamp01(0.55 + grain), 0.55)};
    });
}

Shape Beacon::Outline(Window window) const {
    switch (window) {
        case Window::kAbout:
            return Slab(kAboutCorners);
        case Window::kHigh:
            return Slab(kHighCorners);
        case Window::kConfig:
            return Slab(kConfigCorners);
        default:
            return Slab(kMainCorners);
    }
}

void Beacon::PaintBody(Canvas& canvas, Window window, const Shape& outline) const {
    PaintStone(canvas, outline);
    PaintSlate(canvas, SlateOf(window, outline));
    switch (window) {
        case Window::kMain:
            PaintRules(canvas);
            PaintEmblem(canvas, {102, 580}, kStone * 0.22);
            break;
        case Window::kAbout:
            PaintEmblem(canvas, {76, 272}, kChalk);
            PaintLevelRule(canvas, 182, 402, 127);
            break;
        case Window::kHigh:
            PaintEmblem(canvas, {layout::kHighWindow.width / 2.0, 40}, kChalk);
            break;
        case Window::kConfig:
            for (const double y : {174.0, 238.0, 421.0}) PaintLevelRule(canvas, 34, 606, y);
            break;
    }
}

/// The skin's emblem, cut into the stone and filled: a triangle, a circle and a square.
void Beacon::PaintEmblem(Canvas& canvas, Vec2 middle, Color fill) const {
    const Rect area = RectAround(middle, 44, 12);
    const auto cut = [&](std::size_t sign, double x, Color color) {
        PaintEngraved(canvas, area, Moved(signs_.at(sign), middle + Vec2{x, 0}), color, kStone * 2);
    };
    cut(3, -24, fill);
    cut(7, 0, kSignal);
    cut(5, 24, fill);
}

void Beacon::PaintWell(Canvas& canvas, Rect place, Well kind) const {
    const double radius = kind == Well::kTray ? 9 : 6;
    const Shape opening = RoundedBox(place, 0, radius);
    const Shape frame = Inset(opening, -1.6);
    PaintFace(canvas, Grown(place, 3), frame,
              [&](Vec2 p) { return Matte(kStone * 0.8, Rounded(frame, p, 1.6, 0.9)); });
    PaintSunk(canvas, Grown(place, 3), opening, IsNiche(kind) ? kNicheStuff : kFloor, 2.2);
}

void Beacon::PaintSocket(Canvas& canvas, Rect place, Socket /*kind*/) const {
    PaintSunk(canvas, Grown(place, 2), Pill(place, 0.8), kFloor * 0.6, 2.0);
}

void Beacon::PaintLettering(Canvas& canvas, Lettering kind, const std::string& text,
                            Vec2 middle) const {
    const auto write = [&](const Type& type, Color chalk) {
        const Shape letters = type.font.Line(text, type.pixels, middle, type.spacing);
        const int reach =
            static_cast<int>(type.font.Width(text, type.pixels, type.spacing) / 2) + 6;
        const int height = static_cast<int>(type.pixels);
        const Rect area = RectAround(middle, reach, height);
        PaintChalk(canvas, area, letters, chalk, 1);
    };
    if (kind == Lettering::kName) return write({Titles(), 20, 3.0}, kChalk);
    if (IsTitle(kind)) return write({Titles(), 25, 1.4}, kChalk);
    if (kind == Lettering::kGroup) return write({Captions(), 16, 0.5}, kSignal);
    if (IsNote(kind)) return write({Titles(), 14.5, 0.2}, kChalk);
    write({Captions(), 13, 0.4}, kChalk);
}

void Beacon::PaintScoreRow(Canvas& canvas, Rect row, int entry) const {
    if (entry % 2 == 0) return;
    const Shape stripe =
        RoundedBox({row.left + 5.0, row.top + 0.5}, {row.right() - 5.0, row.bottom() - 0.5}, 5);
    canvas.Paint(row, [&](Vec2 p) { return Sample{kSlate * 1.1, Inside(stripe(p)) * 0.9}; });
}

void Beacon::PaintRank(Canvas& canvas, Rect place, int rank) const {
    const Vec2 middle = MiddleOf(place);
    const Shape digits = Captions().Line(std::to_string(rank), 14, middle, 0.2);
    PaintFlat(canvas, place, digits, rank <= 3 ? kSignal : kChalk, 0.95);
}

void Beacon::PaintModeSign(Canvas& canvas, Rect place, const std::string& name, int mode) const {
    const Vec2 middle = MiddleOf(place);
    const Shape tablet = Pill(place, 1.8);
    PaintShadow(canvas, place, tablet, 1.4, 1.6, 0.8);
    PaintFace(canvas, place, tablet,
              [&](Vec2 p) { return Matte(kChalk * 0.92, Rounded(tablet, p, 3, 0.7)); });
    Shape signs = Captions().Line(name, 16, middle, 0.4);
    for (int dot = 0; dot <= mode; ++dot) {
        for (const double side : {-1.0, 1.0}) {
            signs = Union(signs, Ellipse(middle + Vec2{side * (64 - 11 * dot), 0}, {4, 4}));
        }
    }
    PaintFlat(canvas, place, signs, kInk);
}

}  // namespace quendrel::art::beacon
