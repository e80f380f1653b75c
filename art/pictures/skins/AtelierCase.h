// What the cases of Atelier's small windows are built of: walnut bodies with a brass moulding,
// brass plates, gilt lettering and niches.
#pragma once

#include <cstdint>
#include <functional>

#include "kit/Canvas.h"
#include "kit/Materials.h"
#include "kit/Shapes.h"

namespace quendrel::art::atelier {

inline constexpr double kCaseMoulding = 5;
/// The colour of the dark rim along the outline.
inline constexpr Color kCaseGap{0.006, 0.004, 0.003};

/// The left half of a shape, mirrored at the upright line `axis`. The half must go on straight
/// beyond the axis.
Shape Symmetric(Shape leftHalf, double axis);

/// The bodies on both sides of the outline, of the wood that `wood` gives.
void PaintCase(Canvas& canvas, Rect window, const Shape& outline,
               const std::function<Color(Vec2)>& wood);

/// The brass moulding that runs around the body.
void PaintMoulding(Canvas& canvas, Rect window, const Shape& outline);

/// A line of brass let into the body along `line`, kept within `limits`.
void PaintFillet(Canvas& canvas, Rect area, const Shape& line, const Shape& limits);

/// The surface of a sheet of brass: how it bows away from its middle, each way and by the pixel,
/// how wide its bevel is, how far it leans back, and how it is scratched.
struct BrassSheet {
    Vec2 middle;
    double bevel = 2.0;
    Vec2 bow;
    double lean = 0.05;
    double scratch = 0.07;
    std::uint32_t seed = 71;
    double tone = 1;
};
void PaintBrass(Canvas& canvas, Rect area, const Shape& shape, const BrassSheet& sheet);

/// Lettering cut into brass, and a line scored along its edge.
void PaintEngraving(Canvas& canvas, Rect area, const Shape& letters);
void PaintScoredLine(Canvas& canvas, Rect area, const Shape& line);

/// A plate of brushed brass with a scored line, and lettering engraved in it.
void PaintPlate(Canvas& canvas, Rect area, const Shape& plate, const Shape& letters);

/// Lettering of gilt metal let into the wood.
void PaintGilt(Canvas& canvas, Rect area, const Shape& letters, Color gilt);

/// A hollow with a brass frame, whose floor is even where no rim shades it.
void PaintNiche(Canvas& canvas, Rect area, const Shape& opening);

}  // namespace quendrel::art::atelier
