// Small joinery that any look is built of: shadows, hollows, inlays, mouldings, screws, keys.
#pragma once

#include "kit/Canvas.h"
#include "kit/Light.h"
#include "kit/Shapes.h"

namespace quendrel::art {

/// Darkens the ground beneath a body of the given shape that stands `height` pixels high.
void PaintShadow(Canvas& canvas, Rect area, const Shape& body, double height, double blur,
                 double strength);

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
