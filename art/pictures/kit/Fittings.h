// Parts that every skin uses: faces, shadows, hollows, metal parts, screws and engraving.
#pragma once

#include "kit/Canvas.h"
#include "kit/Light.h"
#include "kit/Shapes.h"

namespace quendrel::art {

/// Fills `shape` with one colour; `strength` is how much it hides of the ground, 0 to 1.
void PaintFlat(Canvas& canvas, Rect area, const Shape& shape, Color color, double strength = 1);

/// Fills `shape` with the colour that `light` gives for each place in it.
template <class Light>
void PaintFace(Canvas& canvas, Rect area, const Shape& shape, const Light& light) {
    canvas.Paint(area, [&](Vec2 p) { return shape(p) < 0 ? Sample{light(p), 1} : Sample{}; });
}

/// Darkens the ground beneath a body of the given shape that stands `height` pixels high.
void PaintShadow(Canvas& canvas, Rect area, const Shape& body, double height, double blur,
                 double strength);

/// The rounded edge around a hollow, `width` pixels wide. The side that faces the light is lit with
/// `light`, as strongly as `bright`; the other side is darkened as strongly as `dark`.
void PaintEdge(Canvas& canvas, Rect area, const Shape& hollow, double width, Color light,
               double bright, double dark);

/// The even floor of a hollow `depth` pixels deep. The edge of the rim's shadow is `softness` times
/// `depth` wide, the darkness in the corner `corner` times `depth`.
void PaintFloor(Canvas& canvas, Rect area, const Shape& hollow, Color floor, double depth,
                double softness = 0.8, double corner = 1.5);

/// A hollow with an even floor: `depth` pixels deep, its rim catching light on the far side.
void PaintHollow(Canvas& canvas, Rect area, const Shape& shape, Color floor, double depth);

/// A body of metal with rounded edges; a negative slope is a groove.
void PaintMetal(Canvas& canvas, Rect area, const Shape& shape, Color tint, double roundness,
                double slope, double roughness);

/// A slotted screw with its countersink.
void PaintScrew(Canvas& canvas, Vec2 center, double radius, double slotAngle, Color tint);

/// Lettering cut into the surface and filled with a colour, its lower edges catching light.
void PaintEngraved(Canvas& canvas, Rect area, const Shape& letters, Color fill, Color edge);

}  // namespace quendrel::art
