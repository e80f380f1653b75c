// What Carbon is made of: anodised metal, carbon twill under a clear coat, chamfered parts, and
// lines of light.
#pragma once

#include "kit/Canvas.h"
#include "kit/Light.h"
#include "kit/Shapes.h"

namespace quendrel::art::carbon {

// Anodised metals, from the darkest to the lightest. They are cool, for the light is warm.
inline constexpr Color kGraphite{0.080, 0.098, 0.135};
inline constexpr Color kGunmetal{0.168, 0.203, 0.275};
inline constexpr Color kTitanium{0.385, 0.455, 0.600};

// The lights: that of the instrument, and that of whatever is on.
inline constexpr Color kIce{0.36, 0.90, 1.05};
inline constexpr Color kAmber{1.45, 0.62, 0.09};

/// The dark inside holes and gaps.
inline constexpr Color kNight{0.0042, 0.0050, 0.0062};

/// A box whose corners are cut off: those at the upper left and lower right by `cut`, the other
/// two by `lesser`.
Shape Chamfered(Vec2 topLeft, Vec2 bottomRight, double cut, double lesser);
Shape Chamfered(Rect box, double inset, double cut, double lesser);

/// A hexagon with corners at its left and right.
Shape Hexagon(Vec2 middle, double halfWidth, double halfHeight);

/// The normal of a part whose edge is milled off `width` pixels wide, with flat facets.
Vec3 Milled(const Shape& shape, Vec2 p, double width, double slope);

/// Metal brushed along `angle`.
Color Anodised(Color tint, Vec3 normal, Vec2 p, double angle);

/// Woven carbon under a clear coat; `normal` is that of the coat.
Color Twill(Vec2 p, Vec3 normal);

/// A milled part of brushed metal.
void PaintMilled(Canvas& canvas, Rect area, const Shape& shape, Color tint, double width,
                 double angle);

/// A recess with sharp walls, `depth` pixels deep, and an even floor.
void PaintRecess(Canvas& canvas, Rect area, const Shape& shape, Color floor, double depth);

/// A shape that shines: its halo `reach` pixels wide, then itself.
void PaintLight(Canvas& canvas, Rect area, const Shape& shape, Color light, double reach,
                double halo);

/// A bolt with a hexagonal socket.
void PaintBolt(Canvas& canvas, Vec2 center, double radius, double turn);

}  // namespace quendrel::art::carbon
