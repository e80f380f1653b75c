// Atelier's highscore window: the head of a wall clock with a board of honour let into it.
#include <array>
#include <string>

#include "Modes.h"
#include "kit/Fittings.h"
#include "kit/Glass.h"
#include "kit/Light.h"
#include "skins/AtelierCase.h"
#include "skins/AtelierWindows.h"
#include "ui/HighLayout.h"

namespace quendrel::art::atelier {

namespace {

constexpr Rect kHighWindow = WholeOf(layout::kHighWindow);
constexpr double kHighMiddle = kHighWindow.width / 2.0;
constexpr Vec2 kMedallion{kHighMiddle, 35};

/// The board of honour: a head of brass over ten rows of leather.
constexpr Rect kBoard{36, 130, 388, 248};
constexpr int kRowsHeight = layout::kHighEntries * layout::kHighRowPitch;
constexpr std::array<double, 3> kColumnLines{90, 293, 352};

const WoodCut kCaseWood{Hex(0x2a1309), Hex(0x84502b), kPi / 2, 0.8, 613};

Shape DrawHighOutline() {
    // The left half; beyond the middle it runs on to the right.
    const Shape half = Path({14, 406})
                           .LineTo({14, 114})
                           .CurveTo({14, 102}, {2, 100}, {2, 86})
                           .CurveTo({2, 76}, {10, 72}, {22, 72})
                           .CurveTo({84, 72}, {116, 62}, {148, 34})
                           .CurveTo({160, 23}, {172, 17}, {182, 23})
                           .CurveTo({190, 28}, {197, 27}, {201, 20})
                           .CurveTo({206, 9}, {216, 2}, {230, 2})
                           .LineTo({700, 2})
                           .LineTo({700, 441})
                           .LineTo({230, 441})
                           .CurveTo({170, 441}, {120, 436}, {92, 431})
                           .CurveTo({74, 428}, {68, 445}, {52, 445})
                           .LineTo({20, 445})
                           .CurveTo({8, 445}, {2, 438}, {2, 428})
                           .CurveTo({2, 416}, {14, 416}, {14, 406})
                           .Close();
    return Symmetric(half, kHighMiddle);
}

/// Two sprigs of laurel around a stone.
void PaintMedallion(Canvas& canvas) {
    const Rect area{190, 0, 80, 66};
    const Shape disc = Ellipse(kMedallion, {20.5, 20.5});
    PaintShadow(canvas, area, disc, 2.0, 2.6, 0.8);
    PaintMetal(canvas, area, disc, kBrass, 3.0, 1.4, 0.25);
    const Shape field = Inset(disc, 2.6);
    PaintHollow(canvas, area, field, kLeather * 0.6, 1.6);
    Shape laurel = Inset(field, 100);
    for (int leaf = 0; leaf < 7; ++leaf) {
        for (const double side : {-1.0, 1.0}) {
            const double angle = side * (0.32 + 0.36 * leaf);
            const Vec2 stem = kMedallion + Rotate({0, 12.6}, angle);
            for (const double lean : {0.35, -0.55}) {
                const Vec2 tip = stem + Rotate({side * -4.4, 0}, angle + side * (0.35 + lean));
                laurel = Union(laurel, Stroke(stem, tip, 2.6));
            }
        }
    }
    PaintShadow(canvas, area, laurel, 0.7, 0.9, 0.7);
    PaintMetal(canvas, area, laurel, kBrass * 1.2, 1.0, 1.0, 0.3);
    const Dome stone{kMedallion, 7.4, 5.2, 0.999};
    const Shape setting = Ellipse(kMedallion, {8.8, 8.8});
    PaintShadow(canvas, area, setting, 0.8, 1.2, 0.7);
    PaintMetal(canvas, area, setting, kBrass, 1.4, 1.3, 0.25);
    const GlassKind ruby{{0.98, 0.006, 0.030}, {1.1, 0.008, 0.034}, 0.42, 2.2};
    canvas.Paint(area, [&](Vec2 p) { return GlassSample(stone, ruby, p); });
}

void PaintLeather(Canvas& canvas) {
    const Shape frame = RoundedBox(kBoard, -3.0, 8);
    PaintShadow(canvas, Grown(kBoard, 10), frame, 1.8, 2.2, 0.7);
    PaintMetal(canvas, Grown(kBoard, 5), frame, kBrass, 2.2, 1.4, 0.28);
    const Shape inlay = RoundedBox(kBoard, 0.4, 5.5);
    canvas.Paint(kBoard, [&](Vec2 p) {
        if (inlay(p) >= 0) return Sample{};
        const int row = std::min(static_cast<int>(p.y) - layout::kHighRowTop, kRowsHeight - 1) /
                        layout::kHighRowPitch;
        const double shade = HollowShadow(inlay, p, 2.6, 2.6);
        const Vec3 normal = Pebbled(kFacing, p, 2.6, 0.16, 91);
        return Sample{Matte(kLeather * (row % 2 == 0 ? 1.0 : 0.52), normal, shade), 1};
    });
}

void PaintColumnHeads(Canvas& canvas, const Font& font) {
    const Rect area{kBoard.left, kBoard.top, kBoard.width, layout::kHighRowTop - kBoard.top};
    const Shape strip = RoundedBox(area, 1.2, 4.5);
    PaintShadow(canvas, Grown(area, 4), strip, 1.4, 1.8, 0.8);
    canvas.Paint(area, [&](Vec2 p) {
        if (strip(p) >= 0) return Sample{};
        const Vec3 edge = Rounded(strip, p, 1.8, 1.0);
        const double bow = (p.x - kHighMiddle) * 0.0006;
        const Vec3 normal = Normalize({edge.x + bow, edge.y - 0.06, edge.z});
        return Sample{Metal(kBrass, Brushed(normal, p, 0, 0.07, 73), 0.3), 1};
    });
    const auto head = [&](const char* text, double x) {
        const Shape letters = font.Line(text, 18, {x, area.top + area.height / 2.0}, 0.6);
        PaintEngraved(canvas, area, letters, {0.035, 0.017, 0.007}, {1.0, 0.85, 0.5});
    };
    const auto middle = [](Rect place) { return place.left + place.width / 2.0; };
    head("Rank", middle(layout::HighRank(1)));
    head("Name", layout::HighName(1).left + font.Width("Name", 18, 0.6) / 2);
    head("Row", middle(layout::HighRow(1)));
    head("Time", middle(layout::HighTime(1)));
}

/// Hairlines of brass between the columns.
void PaintColumnLines(Canvas& canvas) {
    for (const double x : kColumnLines) {
        const Rect area{static_cast<int>(x) - 3, layout::kHighRowTop, 7, kRowsHeight};
        canvas.Paint(area, [&](Vec2 p) {
            const double d = std::abs(p.x - x);
            if (d < 0.6) return Sample{kBrass * 0.42, 1};
            return Shadow(0.5 * SmoothStep(2.0, 0.6, d));
        });
    }
}

/// A little plate of brass with the rank engraved.
void PaintRank(Canvas& canvas, int entry, const Font& font) {
    const Rect place = layout::HighRank(entry);
    const Vec2 middle{place.left + place.width / 2.0, place.top + place.height / 2.0};
    const Shape plate = RoundedBox(middle - Vec2{14, 8.5}, middle + Vec2{14, 8.5}, 4);
    PaintShadow(canvas, place, plate, 1.2, 1.4, 0.8);
    canvas.Paint(place, [&](Vec2 p) {
        if (plate(p) >= 0) return Sample{};
        const Vec3 edge = Rounded(plate, p, 2.0, 1.0);
        const Vec3 normal = Normalize({edge.x, edge.y - 0.05, edge.z});
        return Sample{Metal(kBrass, Brushed(normal, p, 0, 0.06, 79), 0.3) * 0.92, 1};
    });
    PaintEngraved(canvas, place, font.Line(std::to_string(entry), 17, middle, 0.3),
                  {0.035, 0.017, 0.007}, {1.0, 0.85, 0.5});
}

}  // namespace

Shape AtelierWindows::HighOutline() const {
    static const Shape outline = Sampled(DrawHighOutline(), kHighWindow);
    return outline;
}

void AtelierWindows::PaintHigh(Canvas& canvas) const {
    const Shape outline = HighOutline();
    PaintBody(canvas, kHighWindow, outline, [](Vec2 p) {
        const double side = std::abs(p.x - kHighMiddle) + 40;
        const double lamp = Mix(1.35, 0.75, SmoothStep(0, 430, Length(p - Vec2{190, 70})));
        return Wood({side, p.y}, kCaseWood) * lamp;
    });
    PaintMoulding(canvas, kHighWindow, outline);
    PaintMedallion(canvas);
    PaintPlate(canvas, {128, 48, 204, 54}, RoundedBox({138, 57}, {322, 91}, 6),
               Inset(titles_.Line("Highscores", 27, {kHighMiddle, 72}, 2.0), -0.32));
    for (const double x : {147.0, 313.0}) PaintScrew(canvas, {x, 74}, 2.4, x * 0.3, kBrass);

    PaintLeather(canvas);
    PaintColumnHeads(canvas, captions_);
    PaintColumnLines(canvas);
    for (int entry = 1; entry <= layout::kHighEntries; ++entry) PaintRank(canvas, entry, captions_);
    const auto socket = [&canvas](Rect place, double radius) {
        PaintHollow(canvas, Grown(place, 3), RoundedBox(place, 0.8, radius), {0.016, 0.012, 0.010},
                    2.2);
    };
    socket(layout::kHighMode, layout::kHighMode.height / 2.0 - 0.8);
    socket(layout::kHighDefault, 5.5);
    socket(layout::kHighOk, 5.5);
    for (const double x : {24.0, kHighWindow.width - 24.0}) {
        PaintScrew(canvas, {x, 88}, 4.4, x * 0.01, kBrass);
        PaintScrew(canvas, {x, 430}, 4.4, 1 + x * 0.01, kBrass);
    }
}

void AtelierWindows::PaintModeSign(Canvas& canvas, Rect place, int mode) const {
    const Vec2 middle{place.left + place.width / 2.0, place.top + place.height / 2.0};
    const Shape rim = RoundedBox(place, 1.6, place.height / 2.0 - 1.6);
    PaintShadow(canvas, place, rim, 1.4, 1.6, 0.8);
    PaintMetal(canvas, place, rim, kBrass, 1.8, 1.4, 0.25);
    const Shape enamel = Inset(rim, 2.4);
    canvas.Paint(place, [&](Vec2 p) {
        if (enamel(p) >= 0) return Sample{};
        const double shade = HollowShadow(enamel, p, 0.8, 1.0);
        const Vec3 normal = Normalize({0, (p.y - middle.y) * 0.018, 1});
        return Sample{Coated({0.86, 0.81, 0.68}, normal, 0.3, shade), 1};
    });
    const Shape name = Inset(
        titles_.Line(std::string(ModeNames.at(static_cast<std::size_t>(mode))), 22, middle, 1.0),
        -0.25);
    canvas.Paint(place, [&](Vec2 p) { return Sample{{0.025, 0.014, 0.010}, Inside(name(p))}; });
    // As a watch tells its grade: the finer, the more jewels.
    const GlassKind ruby{{0.98, 0.006, 0.030}, {1.1, 0.008, 0.034}, 0.42, 2.2};
    for (int jewel = 0; jewel <= mode; ++jewel) {
        for (const double side : {-1.0, 1.0}) {
            const Vec2 at = middle + Vec2{side * (place.width / 2.0 - 15 - 11 * jewel), 0};
            PaintMetal(canvas, place, Ellipse(at, {4.2, 4.2}), kBrass, 1.0, 1.2, 0.3);
            canvas.Paint(place, [&](Vec2 p) {
                return GlassSample({at, 3.1, 2.2, 0.999}, ruby, p);
            });
        }
    }
}

}  // namespace quendrel::art::atelier
