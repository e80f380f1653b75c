#include "skins/Carbon.h"

#include <algorithm>
#include <vector>

#include "kit/Animation.h"
#include "kit/Fittings.h"
#include "skins/CarbonStuff.h"

namespace quendrel::art::carbon {

namespace {

// The bezel from the outline inwards: a dark rim, a milled edge, a land, a groove.
constexpr double kMilledEdge = 3.2;
constexpr double kLand = 2.2;
constexpr double kGroove = 0.9;
constexpr double kBezel = kDarkRim + kMilledEdge + kLand + kGroove;

// The main window: the console, the board of the pegs and the tower of the marks.
constexpr double kBoardEdge = 193;
constexpr double kTowerEdge = 520;
constexpr double kBoardMiddle = 365;

constexpr double kAboutTower = 138;
constexpr double kHighHead = 128;
constexpr double kConfigHead = 48;
constexpr double kConfigFoot = 421;

const std::vector<Vec2> kMainCorners{
    {3, 99},    {20, 82},   {42, 82},   {57, 45},   {186, 45},  {216, 4},   {486, 4},
    {500, 29},  {512, 29},  {526, 4},   {632, 4},   {652, 24},  {652, 318}, {647, 330},
    {647, 500}, {652, 512}, {652, 572}, {622, 602}, {548, 602}, {534, 588}, {212, 588},
    {198, 602}, {30, 602},  {3, 575},   {3, 216},   {7, 206},   {7, 196},   {3, 186},
};
const std::vector<Vec2> kAboutCorners{
    {12, 42},   {44, 4},    {110, 4},   {137, 36},  {137, 54},  {420, 54},  {452, 86},
    {452, 250}, {460, 262}, {460, 294}, {442, 312}, {306, 312}, {294, 302}, {152, 302},
    {140, 312}, {24, 312},  {3, 291},   {3, 262},   {12, 248},
};
const std::vector<Vec2> kHighCorners{
    {3, 128},   {31, 100},  {82, 100},  {128, 6},   {306, 6},   {326, 42},  {404, 42},  {457, 95},
    {457, 296}, {450, 308}, {450, 392}, {457, 404}, {457, 424}, {436, 445}, {284, 445}, {272, 434},
    {182, 434}, {170, 445}, {24, 445},  {3, 424},   {3, 330},   {10, 318},  {10, 230},  {3, 218},
};
const std::vector<Vec2> kConfigCorners{
    {3, 62},    {26, 39},   {142, 39},  {172, 4},   {482, 4},   {500, 24},  {602, 24},
    {637, 59},  {637, 230}, {631, 242}, {631, 398}, {637, 410}, {637, 462}, {612, 487},
    {364, 487}, {352, 475}, {168, 475}, {156, 487}, {28, 487},  {3, 462},
};

const std::vector<Vec2>& CornersOf(Window window) {
    switch (window) {
        case Window::kAbout:
            return kAboutCorners;
        case Window::kHigh:
            return kHighCorners;
        case Window::kConfig:
            return kConfigCorners;
        default:
            return kMainCorners;
    }
}

enum class Stuff : std::uint8_t { kGraphite, kWeave, kTitanium };

Stuff StuffAt(Window window, Vec2 p) {
    switch (window) {
        case Window::kAbout:
            return p.x < kAboutTower ? Stuff::kTitanium : Stuff::kWeave;
        case Window::kHigh:
            return p.y < kHighHead ? Stuff::kGraphite : Stuff::kWeave;
        case Window::kConfig:
            return p.y < kConfigHead || p.y > kConfigFoot ? Stuff::kGraphite : Stuff::kWeave;
        default:
            if (p.x < kBoardEdge) return Stuff::kGraphite;
            return p.x < kTowerEdge ? Stuff::kWeave : Stuff::kTitanium;
    }
}

/// The normal of the surface: every window leans back, and the main window's board is curved.
Vec3 Curvature(Window window, Vec2 p) {
    if (window != Window::kMain) return Normalize({(p.x - 230) * 0.0006, (p.y - 200) * 0.0005, 1});
    const double middle = p.x < kBoardEdge ? 96 : p.x < kTowerEdge ? 356 : 584;
    const double half = p.x < kBoardEdge ? 96 : p.x < kTowerEdge ? 164 : 64;
    return Normalize({0.15 * (p.x - middle) / half, 0.12 * (p.y - 300) / 300, 1});
}

/// The window's light fades towards the lower right.
double LightPool(Window window, Vec2 p) {
    const double reach = window == Window::kMain ? 900 : 520;
    return Mix(1.25, 0.78, SmoothStep(0, reach, Length(p - Vec2{150, 90})));
}

Color Surface(Window window, Vec2 p) {
    const Vec3 normal = Curvature(window, p);
    switch (StuffAt(window, p)) {
        case Stuff::kWeave:
            return Twill(p, normal);
        case Stuff::kTitanium:
            return Anodised(kTitanium * 0.92, normal, p, kPi / 2);
        default:
            return Anodised(kGraphite, normal, p, 0);
    }
}

void PaintBezel(Canvas& canvas, const Shape& outline) {
    const Shape part = Inset(outline, kDarkRim);
    canvas.Paint(canvas.Area(), [&](Vec2 p) {
        const double d = part(p);
        if (d >= 0 || d < -kMilledEdge - kLand - kGroove) return Sample{};
        if (d < -kMilledEdge - kLand) return Sample{kNight, 0.85};
        const Vec3 normal = Milled(part, p, kMilledEdge, 0.8);
        return Sample{Anodised(d > -kMilledEdge ? kGunmetal * 1.25 : kGunmetal, normal, p, 0), 1};
    });
}

/// Where two materials meet: a gap with a line of light in it.
void PaintSeam(Canvas& canvas, Rect area, const Shape& line, const Shape& inner) {
    const Shape gap = [&](Vec2 p) { return std::max(line(p) - 1.7, inner(p)); };
    const Shape light = [&](Vec2 p) { return std::max(line(p) - 0.45, inner(p) + 3); };
    PaintRecess(canvas, area, gap, kNight, 1.0);
    PaintLight(canvas, area, light, kIce * 0.55, 4.5, 0.35);
}

void PaintUprightSeam(Canvas& canvas, double x, const Shape& inner) {
    const Rect whole = canvas.Area();
    PaintSeam(
        canvas, {static_cast<int>(x) - 7, whole.top, 15, whole.height},
        [x](Vec2 p) { return std::abs(p.x - x); }, inner);
}

void PaintLevelSeam(Canvas& canvas, double y, const Shape& inner) {
    const Rect whole = canvas.Area();
    PaintSeam(
        canvas, {whole.left, static_cast<int>(y) - 7, whole.width, 15},
        [y](Vec2 p) { return std::abs(p.y - y); }, inner);
}

/// The line of light between the hidden code and the rows, bent as they are.
void PaintLintel(Canvas& canvas, const Shape& inner) {
    const auto height = [](Vec2 p) {
        return p.y - 82.6 - 0.125 * std::max(0.0, std::abs(p.x - kBoardMiddle) - 46);
    };
    const Shape line = [height](Vec2 p) {
        return std::max(std::abs(height(p)), std::abs(p.x - 366) - 146);
    };
    PaintSeam(canvas, {200, 74, 330, 34}, line, inner);
}

/// Slanted slots through which the instrument is cooled.
void PaintSlots(Canvas& canvas, Vec2 from, int count) {
    for (int i = 0; i < count; ++i) {
        const Vec2 foot = from + Vec2{7.0 * i, 0};
        const Rect area{static_cast<int>(foot.x) - 6, static_cast<int>(foot.y) - 14, 18, 20};
        PaintRecess(canvas, area, Stroke(foot, foot + Vec2{3.2, -8}, 2.6), kNight, 1.4);
    }
}

void PaintMainFittings(Canvas& canvas, const Shape& inner) {
    PaintUprightSeam(canvas, kBoardEdge, inner);
    PaintUprightSeam(canvas, kTowerEdge, inner);
    PaintLintel(canvas, inner);
    PaintSlots(canvas, {64, 584}, 10);
    PaintBolt(canvas, {36, 580}, 4.6, 0.2);
    PaintBolt(canvas, {172, 580}, 4.6, 0.7);
    PaintBolt(canvas, {550, 582}, 4.6, 0.4);
    PaintBolt(canvas, {618, 580}, 4.6, 0.9);
    PaintSlots(canvas, {568, 587}, 5);
}

void PaintAboutFittings(Canvas& canvas, const Shape& inner) {
    PaintUprightSeam(canvas, kAboutTower, inner);
    PaintSlots(canvas, {40, 286}, 10);
    PaintBolt(canvas, {26, 290}, 4.4, 0.3);
    PaintBolt(canvas, {438, 292}, 4.4, 0.8);
}

void PaintConfigFittings(Canvas& canvas, const Shape& inner) {
    PaintLevelSeam(canvas, kConfigHead, inner);
    PaintLevelSeam(canvas, kConfigFoot, inner);
    PaintSlots(canvas, {196, 456}, 19);
    PaintBolt(canvas, {20, 450}, 4.2, 0.5);
    PaintBolt(canvas, {621, 450}, 4.2, 0.1);
}

}  // namespace

Carbon::Carbon() : Craft(QUENDREL_CARBON_FONT, QUENDREL_CARBON_TITLE_FONT) {}

Shape Carbon::Outline(Window window) const {
    const std::vector<Vec2>& corners = CornersOf(window);
    Path path(corners.front());
    for (std::size_t i = 1; i < corners.size(); ++i) path.LineTo(corners[i]);
    return path.Close();
}

void Carbon::PaintBody(Canvas& canvas, Window window, const Shape& outline) const {
    const Shape bodies = BothSides(outline);
    canvas.Paint(canvas.Area(), [&](Vec2 p) {
        const double d = bodies(p);
        if (d > -kDarkRim) return Sample{{0.003, 0.003, 0.004}, 1};
        const double nearEdge = SmoothStep(-18, -kBezel, d);
        return Sample{Surface(window, p) * (LightPool(window, p) * (1 - 0.30 * nearEdge)), 1};
    });
    const Shape inner = Inset(outline, kBezel - kGroove);
    switch (window) {
        case Window::kMain:
            PaintMainFittings(canvas, inner);
            break;
        case Window::kAbout:
            PaintAboutFittings(canvas, inner);
            break;
        case Window::kHigh:
            PaintHighFittings(canvas, inner);
            break;
        case Window::kConfig:
            PaintConfigFittings(canvas, inner);
            break;
    }
    PaintBezel(canvas, outline);
}

void Carbon::PaintHighFittings(Canvas& canvas, const Shape& inner) {
    PaintLevelSeam(canvas, kHighHead, inner);
    PaintBolt(canvas, {24, 420}, 4.4, 0.3);
    PaintBolt(canvas, {436, 420}, 4.4, 0.8);
    // At the head of the window, a code that has been found.
    constexpr double kScale = 0.54;
    constexpr Rect kHead{138, 10, 170, 44};
    Vec2 middle{163, 37};
    for (const int color : {1, 4, 2, 9, 3}) {
        PaintReflector(canvas, kHead, middle, kScale);
        PaintCap(canvas, kHead, middle, kScale, CapOf(color));
        middle.x += 28;
    }
}

void Carbon::PaintWell(Canvas& canvas, Rect place, Well kind) const {
    const Rect area = Grown(place, 4);
    const double cut = std::min(6.0, place.height * 0.2);
    const Shape opening = Chamfered(place, 0, cut, 2);
    if (kind == Well::kTray) {
        PaintRecess(canvas, area, opening, kNight * 2.2, 2.2);
        return;
    }
    const Shape frame = Chamfered(place, -2.4, cut + 1.4, 3.4);
    PaintShadow(canvas, Grown(place, 7), frame, 1.4, 1.8, 0.6);
    PaintMilled(canvas, area, frame, kGunmetal * 1.3, 1.4, 0);
    PaintRecess(canvas, area, opening, IsNiche(kind) ? kNicheStuff : kNight * 1.2, 2.2);
}

void Carbon::PaintSocket(Canvas& canvas, Rect place, Socket /*kind*/) const {
    PaintRecess(canvas, place, Chamfered(place, 1.1, 6, 2.4), kNight * 1.3, 2.0);
}

void Carbon::PaintPlate(Canvas& canvas, const Shape& letters, Vec2 middle, Vec2 half) const {
    const Rect area =
        RectAround(middle, static_cast<int>(half.x) + 9, static_cast<int>(half.y) + 9);
    const Shape plate = Chamfered(middle - half, middle + half, 8, 3);
    PaintShadow(canvas, area, plate, 2.0, 2.4, 0.75);
    PaintMilled(canvas, area, plate, kGraphite * 1.15, 1.8, 0);
    PaintLight(canvas, area, letters, kIce * 0.95, 4.0, 0.5);
}

void Carbon::PaintLettering(Canvas& canvas, Lettering kind, const std::string& text,
                            Vec2 middle) const {
    if (kind == Lettering::kName || IsTitle(kind)) {
        const double pixels = kind == Lettering::kName ? 17 : 23;
        const double spacing = pixels * 0.16;
        const Vec2 half{Titles().Width(text, pixels, spacing) / 2 + 18, pixels * 0.64};
        PaintPlate(canvas, Titles().Line(text, pixels, middle, spacing), middle, half);
        return;
    }
    const double pixels = kind == Lettering::kGroup ? 17 : IsNote(kind) ? 16 : 15;
    Color light = kIce * 0.72;
    if (kind == Lettering::kGroup) light = {0.72, 1.12, 1.20};
    if (IsNote(kind)) light = {0.72, 0.76, 0.80};
    const int half = static_cast<int>(Captions().Width(text, pixels, 0.6) / 2) + 8;
    const Rect area = RectAround(middle, half, 14);
    const Shape letters = Captions().Line(text, pixels, middle, 0.6);
    canvas.Paint(area, [&](Vec2 p) { return Shadow(0.8 * SmoothStep(4.5, 0.5, letters(p))); });
    PaintFlat(canvas, area, letters, light);
}

void Carbon::PaintScoreRow(Canvas& canvas, Rect row, int entry) const {
    if (entry % 2 == 0) return;
    const Shape band = Chamfered(row, 3, 4, 1);
    PaintFlat(canvas, row, band, {0.013, 0.017, 0.022});
}

void Carbon::PaintRank(Canvas& canvas, Rect place, int rank) const {
    const Vec2 middle = MiddleOf(place);
    const Shape plate = Hexagon(middle, 17, 9.2);
    PaintShadow(canvas, place, plate, 1.2, 1.4, 0.8);
    PaintMilled(canvas, place, plate, kGunmetal, 1.6, 0);
    const Shape number = Captions().Line(std::to_string(rank), 14, middle);
    PaintLight(canvas, place, number, rank == 1 ? kAmber : kIce * 0.9, 3.0, 0.4);
}

void Carbon::PaintModeSign(Canvas& canvas, Rect place, const std::string& name, int mode) const {
    const Vec2 middle = MiddleOf(place);
    const Shape frame = Chamfered(place, 1.8, 8, 3);
    PaintMilled(canvas, place, frame, kGunmetal * 1.2, 1.6, 0);
    PaintRecess(canvas, place, Inset(frame, 2.4), kNight, 1.6);
    PaintLight(canvas, place, Captions().Line(name, 17, middle, 1.2), kIce, 4.0, 0.45);
    // The scale at both sides: the harder, the more of it is lit.
    for (int step = 0; step < 3; ++step) {
        for (const double side : {-1.0, 1.0}) {
            const Vec2 foot = middle + Vec2{side * (46 + 8.5 * step), 5};
            const Shape bar =
                Stroke(foot, foot + Vec2{side * (1.6 + step), -4.0 - 3.0 * step}, 3.2);
            const bool lit = step <= mode;
            PaintLight(canvas, place, bar, lit ? kAmber : Color{0.020, 0.022, 0.026},
                       lit ? 4.0 : 0.1, lit ? 0.5 : 0.0);
        }
    }
}

}  // namespace quendrel::art::carbon
