#include "skins/AtelierCase.h"

#include <utility>

#include "kit/Animation.h"
#include "kit/Fittings.h"
#include "kit/Light.h"
#include "skins/Atelier.h"

namespace quendrel::art::atelier {

Shape Symmetric(Shape leftHalf, double axis) {
    return [half = std::move(leftHalf), axis](Vec2 p) {
        return half({axis - std::abs(p.x - axis), p.y});
    };
}

void PaintCase(Canvas& canvas, Rect window, const Shape& outline,
               const std::function<Color(Vec2)>& wood) {
    canvas.Paint(window, [](Vec2) { return Sample{kCaseGap, 1}; });
    const Shape bodies = BothSides(outline);
    canvas.Paint(window, [&](Vec2 p) {
        const double d = bodies(p);
        if (d > -kDarkRim) return Sample{};
        const double nearEdge = SmoothStep(-20, -kDarkRim - kCaseMoulding, d);
        const Vec3 normal = Rounded(Inset(bodies, kDarkRim + kCaseMoulding), p, 14, 0.22);
        return Sample{Coated(wood(p), normal, 0.8, 0.35 * nearEdge), 1};
    });
}

void PaintMoulding(Canvas& canvas, Rect window, const Shape& outline) {
    const Shape moulding = Band(outline, kDarkRim, kCaseMoulding);
    PaintMetal(canvas, window, moulding, kBrass, kCaseMoulding / 2, 1.5, 0.22);
}

void PaintFillet(Canvas& canvas, Rect area, const Shape& line, const Shape& limits) {
    const Shape within = [&](Vec2 p) { return std::max(line(p), limits(p)); };
    canvas.Paint(area, [&](Vec2 p) {
        return Shadow(0.75 * SmoothStep(3.2, 0, line(p)) * Inside(limits(p)));
    });
    PaintMetal(canvas, area, within, kBrass * 0.85, 1.0, 0.9, 0.4);
}

void PaintBrass(Canvas& canvas, Rect area, const Shape& shape, const BrassSheet& sheet) {
    PaintFace(canvas, area, shape, [&](Vec2 p) {
        const Vec3 edge = Rounded(shape, p, sheet.bevel, 1.0);
        const Vec2 q = p - sheet.middle;
        const Vec3 normal = Normalize(
            {edge.x + q.x * sheet.bow.x, edge.y + q.y * sheet.bow.y - sheet.lean, edge.z});
        const Vec3 brushed = Brushed(normal, p, 0, sheet.scratch, sheet.seed);
        return Metal(kBrass, brushed, 0.3) * sheet.tone;
    });
}

void PaintEngraving(Canvas& canvas, Rect area, const Shape& letters) {
    PaintEngraved(canvas, area, letters, {0.035, 0.017, 0.007}, {1.0, 0.85, 0.5});
}

void PaintScoredLine(Canvas& canvas, Rect area, const Shape& line) {
    PaintFlat(canvas, area, line, {0.06, 0.03, 0.01}, 0.7);
}

void PaintPlate(Canvas& canvas, Rect area, const Shape& plate, const Shape& letters) {
    const double bow = 0.24 / area.width;
    PaintShadow(canvas, area, plate, 1.8, 2.4, 0.75);
    PaintBrass(canvas, area, plate, {.middle = MiddleOf(area), .bow = {bow, bow}});
    PaintScoredLine(canvas, area, Band(plate, 3.4, 0.9));
    PaintEngraving(canvas, area, letters);
}

void PaintGilt(Canvas& canvas, Rect area, const Shape& letters, Color gilt) {
    PaintShadow(canvas, area, letters, 0.6, 1.0, 0.6);
    canvas.Paint(area, [&](Vec2 p) {
        const Vec3 normal = Rounded(letters, p, 0.8, 0.5);
        return Sample{gilt * (0.8 + 0.35 * Dot(normal, kKeyLight)), Inside(letters(p))};
    });
}

void PaintNiche(Canvas& canvas, Rect area, const Shape& opening) {
    const Shape frame = Inset(opening, -3.4);
    PaintShadow(canvas, area, frame, 1.6, 2.0, 0.7);
    PaintMetal(canvas, area, frame, kBrass, 2.2, 1.4, 0.28);
    PaintHollow(canvas, area, opening, kNicheStuff, 2.6);
}

}  // namespace quendrel::art::atelier
