// Daylight's windows: their outlines of shells and waves, their bodies, wells and lettering.
#include "skins/Daylight.h"

#include "kit/Animation.h"
#include "kit/Fittings.h"
#include "kit/Noise.h"
#include "ui/layout/AboutLayout.h"
#include "ui/layout/ConfigLayout.h"
#include "ui/layout/HighLayout.h"

namespace quendrel::art::daylight {

namespace {

constexpr double kLip = 7;
constexpr double kBoardMiddle = 365;

constexpr Color kRim{0.004, 0.006, 0.014};
constexpr Color kInkWell{0.0105, 0.0240, 0.0640};

/// Threads across and along, of a plain weave.
struct Cloth {
    Color along;
    Color across;
    std::uint32_t seed;
};
constexpr Cloth kNatural{{0.80, 0.785, 0.690}, {0.75, 0.735, 0.635}, 311};
constexpr Cloth kBlueLinen{{0.115, 0.230, 0.390}, {0.185, 0.305, 0.455}, 347};

/// Continues the path in `count` scallops, as a shell's edge, from (left, height) to (right,
/// height); the middle of the edge is `rise` higher.
void AddShell(Path& path, double left, double right, double height, double rise, int count) {
    const auto at = [=](int i) {
        const double t = 2.0 * i / count - 1;
        return Vec2{Mix(left, right, (t + 1) / 2), height - rise * (1 - t * t)};
    };
    for (int i = 0; i < count; ++i) {
        const Vec2 along = at(i + 1) - at(i);
        const Vec2 out = Vec2{along.y, -along.x} * (1 / Length(along));
        const Vec2 bulge = out * 4.6 + along * 0.16;
        path.CurveTo(at(i) + bulge, at(i) + along + out * 4.6 - along * 0.16, at(i) + along);
    }
}

/// Continues the path to `to` in `count` waves, a little more than `height` high.
void AddWaves(Path& path, Vec2 from, Vec2 to, int count, double height) {
    const Vec2 step = (to - from) * (1.0 / count);
    const Vec2 swing = Vec2{step.y, -step.x} * (4 * height / Length(step));
    for (int i = 0; i < count; ++i) {
        const Vec2 at = from + step * i;
        path.CurveTo(at + step * 0.4 + swing, at + step * 0.6 - swing, at + step);
    }
}

Shape MainOutline() {
    Path path({6, 150});
    path.CurveTo({1, 112}, {4, 84}, {26, 74})
        .CurveTo({44, 66}, {46, 45}, {72, 44})
        .CurveTo({112, 42}, {150, 52}, {182, 42})
        .CurveTo({198, 37}, {200, 26}, {212, 24});
    AddShell(path, 212, 514, 24, 18, 9);
    path.CurveTo({518, 20}, {519, 6}, {532, 5})
        .CurveTo({560, 2}, {606, 2}, {632, 5})
        .CurveTo({646, 7}, {650, 18}, {649, 40});
    AddWaves(path, {649, 40}, {649, 560}, 3, 3);
    path.CurveTo({650, 582}, {644, 598}, {624, 599});
    AddWaves(path, {624, 599}, {32, 599}, 5, 3.4);
    path.CurveTo({12, 598}, {5, 582}, {6, 560});
    AddWaves(path, {6, 560}, {6, 150}, 2, 3);
    return path.Close();
}

/// A shell whose crown of `count` scallops reaches from `shoulder` to its mirror image, the sides
/// swelling, the foot of `waves` waves.
Shape ShellOutline(Size size, Vec2 shoulder, double rise, int count, int waves) {
    const double right = size.width - 6.0;
    const double foot = size.height - 7.0;
    const double low = shoulder.y + 46;
    Path path({6, low});
    path.CurveTo({4, low - 26}, {shoulder.x - 30, shoulder.y + 12}, shoulder);
    const double far = size.width - shoulder.x;
    AddShell(path, shoulder.x, far, shoulder.y, rise, count);
    path.CurveTo({far + 30, shoulder.y + 12}, {right + 2, low - 26}, {right, low});
    AddWaves(path, {right, low}, {right, foot - 34}, 2, 2.4);
    path.CurveTo({right + 1, foot - 12}, {right - 10, foot}, {right - 28, foot});
    AddWaves(path, {right - 28, foot}, {34, foot}, waves, 3);
    path.CurveTo({16, foot}, {5, foot - 12}, {6, foot - 34});
    AddWaves(path, {6, foot - 34}, {6, low}, 2, 2.4);
    return path.Close();
}

/// How much of the daylight reaches `p`: most near the window, and softly less away from it.
double Daylit(Vec2 p, Rect area) {
    const double far = Length(p - Vec2{area.width * 0.28, area.height * 0.12});
    // The light of the window's panes falls in a slanted band.
    const double across = (p.x + 0.42 * p.y) / area.height;
    const double pane = SmoothStep(0.30, 0.36, across) * SmoothStep(1.16, 1.10, across);
    const double bar = SmoothStep(0.055, 0.025, std::abs(across - 0.73));
    return Mix(1.02, 0.87, SmoothStep(0, 1.15 * area.height, far)) + 0.11 * pane * (1 - bar);
}

/// The normal of a body's surface: a rounded lip, a groove behind it, and a gentle curve.
Vec3 Thrown(const Shape& outline, Vec2 p) {
    const double depth = -outline(p) - kDarkRim;
    const double swellX = 0.035 * Noise(p * 0.012, 51);
    const double swellY = 0.035 * Noise(p * 0.012, 52);
    if (depth > 22) return Normalize({swellX, swellY, 1});
    const double fall = 1.15 * SmoothStep(kLip * 0.75, 0, depth);
    const double groove =
        0.42 * SmoothStep(kLip * 0.6, kLip * 1.25, depth) * SmoothStep(20, kLip * 1.25, depth);
    const Vec2 out = Outward(outline, p) * (fall - groove);
    return Normalize({out.x + swellX, out.y + swellY, 1});
}

/// The colour of linen at `p`: threads of uneven thickness lie over and under each other.
Color Linen(Vec2 p, const Cloth& cloth, double shade) {
    constexpr double kPitch = 3.0;
    const Vec2 drift{0.5 * Noise(p * 0.021, cloth.seed), 0.5 * Noise(p * 0.023, cloth.seed + 1)};
    const Vec2 q = p * (1 / kPitch) + drift;
    const int column = static_cast<int>(std::floor(q.x));
    const int row = static_cast<int>(std::floor(q.y));
    const Vec2 within{q.x - column - 0.5, q.y - row - 0.5};
    const bool along = (column + row) % 2 == 0;
    const int thread = along ? column : row;
    const double way = along ? q.y : q.x;
    const double aside = along ? within.x : within.y;
    const double crest = along ? within.y : within.x;
    const std::uint32_t seed = cloth.seed + (along ? 10U : 20U);
    const double slub = Noise({way * 0.13, thread * 7.7}, seed + 1);
    const double tint = 0.92 + 0.12 * Random(thread, 0, seed) + 0.07 * slub +
                        0.06 * Noise({way * 1.4, thread * 3.1 + aside * 3}, seed + 2);
    const double width = 0.50 + 0.06 * slub;
    const double hollow = 1 - 0.30 * Clamp01(Square(aside / width)) - 0.36 * Square(crest);
    Vec3 normal{0.42 * aside / width, 0.42 * crest, 1};
    if (!along) normal = {normal.y, normal.x, 1};
    const Color dye = along ? cloth.along : cloth.across;
    return Matte(dye * (tint * hollow), Normalize(normal), shade) * 1.06;
}

/// The rounded edge of the porcelain around the hollow `shape`: dark on the side of the light,
/// bright on the other.
void PaintLip(Canvas& canvas, Rect area, const Shape& shape) {
    PaintEdge(canvas, area, shape, 3.4, {1, 1, 1}, 0.75, 0.42);
}

/// A panel of linen let into the porcelain, whose lip turns down to it.
void PaintLinen(Canvas& canvas, Rect area, const Shape& panel, const Cloth& cloth,
                const std::function<Vec2(Vec2)>& lie) {
    const Rect window = WholeOf(kBoardSize);
    constexpr double kTurn = 2.2;
    canvas.Paint(Grown(area, 6), [&](Vec2 p) {
        const double d = panel(p);
        if (d > kTurn) return Sample{};
        if (d > 0) {
            const Vec2 out = Outward(panel, p) * (-0.95 * SmoothStep(kTurn, 0, d));
            return Sample{Glazed(kPorcelain, Normalize({out.x, out.y, 1})) * Daylit(p, window), 1};
        }
        const double shade = 0.85 * HollowShadow(panel, p, 3.0, 3.2);
        const double corner = 1 - 0.35 * SmoothStep(-3.0, 0, d);
        return Sample{Linen(lie(p), cloth, shade) * (corner * Daylit(p, window)), 1};
    });
}

/// How much lower the rows of the board run at x than in its middle.
double Bow(double x) { return 11 * Square((x - kBoardMiddle) / 150); }

void PaintBoard(Canvas& canvas) {
    const Shape flat = RoundedBox({192.5, 37}, {515, 570}, 11);
    const auto unbowed = [](Vec2 p) { return Vec2{p.x, p.y - Bow(p.x)}; };
    PaintLinen(
        canvas, {188, 30, 334, 566}, [&](Vec2 p) { return flat(unbowed(p)); }, kNatural, unbowed);
    const Shape hem = Band(flat, 2.1, 1.1);
    canvas.Paint({188, 30, 334, 566}, [&](Vec2 p) {
        const double stitch = std::sin((p.x + p.y) * 0.7) + 0.25;
        return Sample{kCobalt * 1.9, 0.85 * Inside(hem(unbowed(p))) * Inside(-stitch)};
    });
    const Shape runner = RoundedBox({519.5, 104}, {636.5, 572}, 12);
    PaintLinen(canvas, {516, 100, 126, 478}, runner, kBlueLinen, [](Vec2 p) { return p; });
}

/// Two rows of waves like scales, painted from `left` to `right` over `foot`.
void PaintWaves(Canvas& canvas, double left, double right, double foot) {
    constexpr double kWave = 8;
    const Rect area{static_cast<int>(left), static_cast<int>(foot) - 14,
                    static_cast<int>(right - left) + 1, 14};
    const auto strokes = [](double r) {
        const double outer = std::abs(r - kWave + 0.6) - 0.6;
        const double inner = std::abs(r - 0.58 * kWave) - 0.45;
        return std::min({outer, inner, r - 0.2 * kWave});
    };
    const Shape waves = [=](Vec2 p) {
        for (const double row : {0.0, 1.0}) {
            const double begin = left + row * kWave;
            const double whole = std::floor((p.x - begin) / (2 * kWave));
            const double r = Length({p.x - begin - (2 * whole + 1) * kWave, p.y - foot + 5 * row});
            const bool there = p.x >= begin && p.x < right - row * kWave;
            if (there && r < kWave) return strokes(r);
        }
        return 1.0;
    };
    PaintBrushed(canvas, area, waves, kCobalt * 1.6);
}

/// The ribs of the shell, spreading from `hinge` to the crown's scallops, in low relief.
void PaintRibs(Canvas& canvas, Rect area, const Shape& outline, Vec2 hinge, double spread,
               int count) {
    canvas.Paint(area, [&](Vec2 p) {
        const Vec2 q = p - hinge;
        const double across = (q.x / -q.y) / spread * count / 2.0;
        if (q.y >= -1 || std::abs(across) > count / 2.0 || outline(p) > -kDarkRim - kLip) {
            return Sample{};
        }
        const double off = across - std::round(across + 0.5) + 0.5;
        const double fade = SmoothStep(-kDarkRim - kLip, -kDarkRim - kLip - 8, outline(p)) *
                            SmoothStep(area.bottom(), area.bottom() - 14.0, p.y);
        const double side = SmoothStep(0.16, 0.0, std::abs(off)) * fade;
        return off > 0 ? Sample{{1, 1, 1}, 0.30 * side} : Shadow(0.20 * side);
    });
}

}  // namespace

Color Glazed(Color body, Vec3 normal, double shade) {
    const double mirrored = (0.055 + 0.8 * Fresnel(normal.z)) * (1 - 0.8 * shade);
    return Matte(body, normal, shade) + Environment(Mirrored(normal), 0.12) * mirrored;
}

void PaintBrushed(Canvas& canvas, Rect area, const Shape& strokes, Color pigment) {
    PaintFace(canvas, area, strokes,
              [&](Vec2 p) { return Matte(pigment * (1 + 0.22 * Noise(p * 0.22, 77)), kFacing); });
}

void PaintTile(Canvas& canvas, Rect area, const Shape& tile, Color body, double width,
               double slope) {
    canvas.Paint(area, [&](Vec2 p) {
        const double d = tile(p);
        if (d >= 0) return Sample{};
        const double thin = 0.16 * SmoothStep(-0.7 * width, 0, d) * (1 - Luminance(body));
        const Vec3 edge = Rounded(tile, p, width, slope);
        const Vec3 swell = Rounded(tile, p, 3 * width, 0.22);
        const Vec3 normal = Normalize({edge.x + swell.x, edge.y + swell.y, edge.z});
        return Sample{Glazed(Mix(body, {0.40, 0.58, 0.80}, thin), normal), 1};
    });
}

Daylight::Daylight() : Craft(QUENDREL_DAYLIGHT_FONT, QUENDREL_DAYLIGHT_TITLE_FONT) {}

Shape Daylight::Outline(Window window) const {
    switch (window) {
        case Window::kAbout:
            return ShellOutline(layout::kAboutWindow, {40, 42}, 34, 11, 4);
        case Window::kHigh:
            return ShellOutline(layout::kHighWindow, {62, 56}, 46, 9, 4);
        case Window::kConfig:
            return ShellOutline(layout::kConfigWindow, {34, 24}, 16, 15, 6);
        default:
            return MainOutline();
    }
}

void Daylight::PaintBody(Canvas& canvas, Window window, const Shape& outline) const {
    const Rect area = canvas.Area();
    const Shape bodies = BothSides(outline);
    canvas.Paint(area, [&](Vec2 p) {
        const double d = bodies(p);
        if (d > -kDarkRim) return Sample{kRim, 1};
        const double shade = 0.45 * SmoothStep(-kDarkRim - 2.5, -kDarkRim, d);
        return Sample{Glazed(kPorcelain, Thrown(bodies, p), shade) * Daylit(p, area), 1};
    });
    PaintBrushed(canvas, area, Band(outline, kDarkRim + 2.6, 1.4), kCobalt);
    switch (window) {
        case Window::kMain:
            PaintRibs(canvas, {214, 4, 300, 40}, outline, {363, 300}, 0.545, 9);
            PaintBoard(canvas);
            PaintWaves(canvas, 22, 182, 583);
            break;
        case Window::kAbout:
            PaintRibs(canvas, {30, 8, 404, 60}, outline, {232, 250}, 0.92, 11);
            PaintWaves(canvas, 152, 440, 295);
            break;
        case Window::kHigh:
            PaintRibs(canvas, {60, 8, 340, 84}, outline, {230, 260}, 0.82, 9);
            PaintWaves(canvas, 166, 294, 406);
            break;
        case Window::kConfig:
            PaintRibs(canvas, {30, 4, 580, 44}, outline, {320, 560}, 0.535, 15);
            PaintWaves(canvas, 164, 356, 450);
            break;
    }
}

void Daylight::PaintWell(Canvas& canvas, Rect place, Well kind) const {
    if (IsNiche(kind)) {
        PaintTile(canvas, Grown(place, 8), RoundedBox(place, -4.5, 11), kCobalt * 1.2, 4.0, 0.9);
        PaintHollow(canvas, Grown(place, 2), RoundedBox(place, 0, 7), kNicheStuff, 2.6);
        return;
    }
    const Shape hollow = RoundedBox(place, 0.6, std::min(place.height / 2.0, 6.0));
    PaintLip(canvas, Grown(place, 5), hollow);
    PaintHollow(canvas, Grown(place, 4), hollow, kInkWell, 2.2);
    if (kind != Well::kTray) PaintBrushed(canvas, place, Band(hollow, 1.2, 0.8), kInkWell * 2.4);
}

void Daylight::PaintSocket(Canvas& canvas, Rect place, Socket /*kind*/) const {
    const double round = std::min(place.width, place.height) / 2.0 - 0.9;
    PaintHollow(canvas, Grown(place, 3), RoundedBox(place, 0.9, std::min(round, 16.0)),
                {0.38, 0.425, 0.49}, 1.5);
}

void Daylight::PaintLettering(Canvas& canvas, Lettering kind, const std::string& text,
                              Vec2 middle) const {
    const bool title = kind == Lettering::kName || IsTitle(kind);
    double pixels = 16;
    if (kind == Lettering::kName) pixels = 22;
    if (IsTitle(kind)) pixels = 29;
    if (kind == Lettering::kGroup) pixels = 19;
    if (IsNote(kind)) pixels = 17;
    const Font& font = title ? Titles() : Captions();
    const double spacing = title ? 0.8 : 0.2;
    const auto half = static_cast<int>(font.Width(text, pixels, spacing) / 2) + 26;
    const Rect area = RectAround(middle, half, 26);
    PaintBrushed(canvas, area, Inset(font.Line(text, pixels, middle, spacing), title ? -0.2 : 0.0),
                 kCobalt);
    if (kind != Lettering::kGroup) return;
    for (const double side : {-1.0, 1.0}) {
        const Vec2 from = middle + Vec2{side * (half - 20.0), 1};
        const Shape stroke = Stroke(from, from + Vec2{side * 14, 0}, 1.4);
        PaintBrushed(canvas, area, stroke, kSeaGreen);
    }
}

void Daylight::PaintScoreRow(Canvas& canvas, Rect row, int entry) const {
    if (entry % 2 != 0) return;
    const Shape stripe = RoundedBox({row.left + 4, row.top, row.width - 8, row.height}, 0, 6);
    PaintFlat(canvas, row, stripe, Matte(kInkWell * 1.7, kFacing));
}

void Daylight::PaintRank(Canvas& canvas, Rect place, int rank) const {
    const Vec2 middle = MiddleOf(place);
    const Shape plate = RoundedBox(middle - Vec2{14, 8.6}, middle + Vec2{14, 8.6}, 8.6);
    PaintShadow(canvas, place, plate, 1.2, 1.4, 0.7);
    PaintTile(canvas, place, plate, kPorcelain, 3.4, 1.0);
    PaintBrushed(canvas, place, Captions().Line(std::to_string(rank), 15, middle, 0.2), kCobalt);
}

void Daylight::PaintModeSign(Canvas& canvas, Rect place, const std::string& name, int mode) const {
    const Vec2 middle = MiddleOf(place);
    const Shape plate = RoundedBox(place, 1.8, place.height / 2.0 - 1.8);
    PaintShadow(canvas, place, plate, 1.4, 1.6, 0.6);
    PaintTile(canvas, place, plate, kPorcelain, 5.0, 0.9);
    PaintBrushed(canvas, place, Band(plate, 2.8, 1.0), kCobalt);
    PaintBrushed(canvas, place, Titles().Line(name, 20, middle, 0.5), kCobalt);
    // A mode has one pebble more than the easier one before it.
    constexpr int kBluePeg = 2;
    for (int pebble = 0; pebble <= mode; ++pebble) {
        for (const double side : {-1.0, 1.0}) {
            const Vec2 at = middle + Vec2{side * (place.width / 2.0 - 17 - 13 * pebble), 0};
            PaintPebble(canvas, place, at, 0.34, kBluePeg);
        }
    }
}

}  // namespace quendrel::art::daylight
