#include "kit/Fittings.h"

#include "kit/Materials.h"

namespace quendrel::art {

void PaintFlat(Canvas& canvas, Rect area, const Shape& shape, Color color, double strength) {
    canvas.Paint(area, [&](Vec2 p) { return Sample{color, strength * Inside(shape(p))}; });
}

void PaintShadow(Canvas& canvas, Rect area, const Shape& body, double height, double blur,
                 double strength) {
    canvas.Paint(area,
                 [&](Vec2 p) { return Shadow(strength * CastShadow(body, p, height, blur)); });
}

void PaintEdge(Canvas& canvas, Rect area, const Shape& hollow, double width, Color light,
               double bright, double dark) {
    canvas.Paint(area, [&](Vec2 p) {
        const double d = hollow(p);
        if (d < 0 || d > width) return Sample{};
        const double facing = Dot(Outward(hollow, p), kShadowFall);
        const double near = SmoothStep(width, 0, d);
        return facing > 0 ? Sample{light, bright * facing * near} : Shadow(-dark * facing * near);
    });
}

void PaintFloor(Canvas& canvas, Rect area, const Shape& hollow, Color floor, double depth,
                double softness, double corner) {
    canvas.Paint(area, [&](Vec2 p) {
        const double d = hollow(p);
        if (d >= 0) return Sample{};
        const double shade = HollowShadow(hollow, p, depth, depth * softness);
        const double dark = 0.35 * SmoothStep(-depth * corner, 0, d);
        return Sample{Matte(floor, kFacing, shade) * (1 - dark), 1};
    });
}

void PaintHollow(Canvas& canvas, Rect area, const Shape& shape, Color floor, double depth) {
    // The rim: dark towards the light, bright away from it.
    canvas.Paint(area, [&](Vec2 p) {
        const double d = shape(p);
        if (d < 0 || d > 1.4) return Sample{};
        const Vec2 out = Outward(shape, p);
        const double facing = Dot(out, kShadowFall);
        const double edge = 1 - d / 1.4;
        return facing > 0 ? Sample{{1.0, 0.85, 0.62}, 0.34 * facing * edge}
                          : Shadow(-0.75 * facing * edge);
    });
    PaintFloor(canvas, area, shape, floor, depth);
}

void PaintMetal(Canvas& canvas, Rect area, const Shape& shape, Color tint, double roundness,
                double slope, double roughness) {
    PaintFace(canvas, area, shape,
              [&](Vec2 p) { return Metal(tint, Rounded(shape, p, roundness, slope), roughness); });
}

void PaintScrew(Canvas& canvas, Vec2 center, double radius, double slotAngle, Color tint) {
    const int reach = static_cast<int>(radius) + 5;
    const Rect area = RectAround(center, reach, reach);
    const Shape head = Ellipse(center, {radius, radius});
    PaintHollow(canvas, area, Inset(head, -0.9), {0.02, 0.014, 0.01}, 1.2);
    const Vec2 along = Rotate({radius * 1.2, 0}, slotAngle);
    const Shape slot = Stroke(center - along, center + along, radius * 0.36);
    PaintFace(canvas, area, head, [&](Vec2 p) {
        const Vec2 q = p - center;
        Vec3 normal = Rounded(head, p, radius * 0.45, 1.1);
        normal =
            Normalize({normal.x + q.x * 0.22 / radius, normal.y + q.y * 0.22 / radius, normal.z});
        const double d = slot(p);
        if (d < 0) return Color{0.02, 0.013, 0.008};
        const Color metal = Metal(tint, Brushed(normal, p, slotAngle + 0.8, 0.1, 5), 0.25);
        const bool litEdge = d < 0.6 && Dot(Outward(slot, p), kShadowFall) > 0;
        return litEdge ? metal * 1.5 : metal;
    });
}

void PaintEngraved(Canvas& canvas, Rect area, const Shape& letters, Color fill, Color edge) {
    const Shape lip = Moved(letters, kShadowFall * 0.8);
    PaintFlat(canvas, area, lip, edge, 0.5);
    PaintFlat(canvas, area, letters, fill);
}

}  // namespace quendrel::art
