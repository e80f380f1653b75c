// What Atelier's texts stand on: plates of brass with engraved lettering, gilt letters in the wood,
// and the enamel of the modes' signs.
#include <string>

#include "kit/Fittings.h"
#include "kit/Light.h"
#include "skins/Atelier.h"
#include "skins/AtelierCase.h"

namespace quendrel::art::atelier {

namespace {

constexpr Color kGilt{0.86, 0.60, 0.27};

/// A title on its plate; everything lies around the title's middle in the window.
struct TitlePlate {
    Rect area;
    Vec2 middle;
    Vec2 half;
    Vec2 text;
    double pixels;
    double spacing;
    double thin;
    double screwsAt;
    double screwRadius;
};

constexpr TitlePlate kAboutPlate{
    {-150, -20, 304, 66}, {0, 12}, {138, 24}, {-24, 12}, 43, 1.6, 0.3, 128.5, 2.6};
constexpr TitlePlate kHighPlate{
    {-102, -23, 204, 54}, {0, 3}, {92, 17}, {0, 1}, 27, 2.0, 0.32, 83, 2.4};
constexpr TitlePlate kConfigPlate{
    {-116, -22, 232, 48}, {0, 0}, {102, 17}, {0, 0}, 27, 1.8, 0.32, 92.5, 2.4};

/// Where the version stands on the about window's plate, from its place below the title.
constexpr Vec2 kVersionShift{91, -11};

/// How much lower than elsewhere the heads of the columns stand.
constexpr double kColumnsDrop = 3;

const TitlePlate& PlateOf(Lettering kind) {
    if (kind == Lettering::kAboutTitle) return kAboutPlate;
    return kind == Lettering::kHighTitle ? kHighPlate : kConfigPlate;
}

/// A little plate, `half` large each way, that bows by `bow` a pixel.
void PaintLittlePlate(Canvas& canvas, Rect area, Vec2 middle, Vec2 half, double bow) {
    PaintBrass(canvas, area, RoundedBox(middle - half, middle + half, 4),
               {.middle = middle, .bow = {bow, 0}, .scratch = 0.06, .seed = 79, .tone = 0.92});
}

}  // namespace

void Atelier::PaintLettering(Canvas& canvas, Lettering kind, const std::string& text,
                             Vec2 middle) const {
    const auto gilt = [&](const Font& font, double pixels, double spacing, int halfHeight) {
        const int half = static_cast<int>(font.Width(text, pixels, spacing) / 2) + 10;
        const Shape letters = font.Line(text, pixels, middle, spacing);
        PaintGilt(canvas, RectAround(middle, half, halfHeight), letters, kGilt);
    };
    const auto engraved = [&](double pixels, double spacing, Vec2 at) {
        PaintEngraving(canvas, RectAround(at, 60, 12), Captions().Line(text, pixels, at, spacing));
    };
    switch (kind) {
        case Lettering::kName:
            return PaintNamePlate(canvas, text, middle);
        case Lettering::kAboutTitle:
        case Lettering::kHighTitle:
        case Lettering::kConfigTitle:
            return PaintTitle(canvas, kind, text, middle);
        case Lettering::kVersion:
            return engraved(22, 0.8, middle + kVersionShift);
        case Lettering::kSubject:
            return gilt(Captions(), 20, 0.5, 13);
        case Lettering::kMaker:
            return gilt(Titles(), 20, 0.6, 13);
        case Lettering::kLabel:
            return gilt(Captions(), 16, 0.5, 11);
        case Lettering::kColumn:
            return engraved(18, 0.6, middle + Vec2{0, kColumnsDrop});
        case Lettering::kNameColumn: {
            const double left = middle.x - kNameColumnWidth / 2;
            return engraved(18, 0.6,
                            {left + Captions().Width(text, 18, 0.6) / 2, middle.y + kColumnsDrop});
        }
        case Lettering::kGroup:
            return PaintGroup(canvas, text, middle);
        case Lettering::kBox:
            return gilt(Captions(), 17, 0.6, 10);
    }
}

void Atelier::PaintNamePlate(Canvas& canvas, const std::string& text, Vec2 middle) const {
    // The plate is bowed as the rows are.
    const auto bowed = [middle](Shape shape) -> Shape {
        return [shape = std::move(shape), middle](Vec2 p) {
            return shape({p.x, p.y - 0.0024 * Square(p.x - middle.x)});
        };
    };
    const Rect area = RectAround(middle, 85, 32);
    const Vec2 half{60, 12};
    const Shape box = RoundedBox(middle - half, middle + half, 4);
    const Shape plate = bowed(box);
    PaintShadow(canvas, area, plate, 1.6, 2.2, 0.7);
    PaintBrass(canvas, area, plate, {.middle = middle, .bevel = 1.8, .bow = {0.0022, 0}});
    PaintScoredLine(canvas, area, bowed(Band(box, 2.6, 0.8)));
    PaintEngraving(canvas, area, bowed(Inset(Titles().Line(text, 23, middle, 1.0), -0.22)));
    PaintScrew(canvas, middle + Vec2{-54, 7}, 2.2, 0.5, kBrass);
    PaintScrew(canvas, middle + Vec2{54, 7}, 2.2, 2.0, kBrass);
}

void Atelier::PaintTitle(Canvas& canvas, Lettering kind, const std::string& text,
                         Vec2 middle) const {
    const TitlePlate& plate = PlateOf(kind);
    const Rect area{static_cast<int>(middle.x) + plate.area.left,
                    static_cast<int>(middle.y) + plate.area.top, plate.area.width,
                    plate.area.height};
    const Vec2 center = middle + plate.middle;
    const Shape letters = Titles().Line(text, plate.pixels, middle + plate.text, plate.spacing);
    PaintPlate(canvas, area, RoundedBox(center - plate.half, center + plate.half, 6),
               Inset(letters, -plate.thin));
    for (const double side : {-plate.screwsAt, plate.screwsAt}) {
        const Vec2 screw = center + Vec2{side, 0};
        PaintScrew(canvas, screw, plate.screwRadius, screw.x * 0.3, kBrass);
    }
}

void Atelier::PaintGroup(Canvas& canvas, const std::string& text, Vec2 middle) const {
    const Rect area = RectAround(middle, 60, 16);
    const Vec2 half{38, 9};
    PaintShadow(canvas, area, RoundedBox(middle - half, middle + half, 4), 1.4, 1.8, 0.75);
    PaintLittlePlate(canvas, area, middle, half, 0.002);
    PaintEngraving(canvas, area, Captions().Line(text, 19, middle, 0.8));
    for (const double side : {-32.0, 32.0}) {
        PaintEngraving(canvas, area, Ellipse(middle + Vec2{side, 0}, {1.3, 1.3}));
    }
}

void Atelier::PaintRank(Canvas& canvas, Rect place, int rank) const {
    const Vec2 middle = MiddleOf(place);
    const Vec2 half{14, 8.5};
    PaintShadow(canvas, place, RoundedBox(middle - half, middle + half, 4), 1.2, 1.4, 0.8);
    PaintLittlePlate(canvas, place, middle, half, 0);
    PaintEngraving(canvas, place, Captions().Line(std::to_string(rank), 17, middle, 0.3));
}

void Atelier::PaintModeSign(Canvas& canvas, Rect place, const std::string& name, int mode) const {
    const Vec2 middle = MiddleOf(place);
    const Shape rim = RoundedBox(place, 1.6, place.height / 2.0 - 1.6);
    PaintShadow(canvas, place, rim, 1.4, 1.6, 0.8);
    PaintMetal(canvas, place, rim, kBrass, 1.8, 1.4, 0.25);
    const Shape enamel = Inset(rim, 2.4);
    PaintFace(canvas, place, enamel, [&](Vec2 p) {
        const double shade = HollowShadow(enamel, p, 0.8, 1.0);
        const Vec3 normal = Normalize({0, (p.y - middle.y) * 0.018, 1});
        return Coated({0.86, 0.81, 0.68}, normal, 0.3, shade);
    });
    const Shape letters = Inset(Titles().Line(name, 22, middle, 1.0), -0.25);
    PaintFlat(canvas, place, letters, {0.025, 0.014, 0.010});
    // A mode has one jewel more than the easier one before it, as finer watches have more jewels.
    for (int jewel = 0; jewel <= mode; ++jewel) {
        for (const double side : {-1.0, 1.0}) {
            const Vec2 at = middle + Vec2{side * (place.width / 2.0 - 15 - 11 * jewel), 0};
            PaintMetal(canvas, place, Ellipse(at, {4.2, 4.2}), kBrass, 1.0, 1.2, 0.3);
            canvas.Paint(place, [&](Vec2 p) {
                return GlassSample({at, 3.1, 2.2, 0.999}, kRuby, p);
            });
        }
    }
}

}  // namespace quendrel::art::atelier
