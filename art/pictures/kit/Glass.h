// Glass pegs: shallow domes, seen at the slant of the board. A ray is followed from the eye through
// the surface to the ground, where the dome focuses the window's light on the side away from it.
#pragma once

#include "kit/Canvas.h"
#include "kit/Shapes.h"

namespace quendrel::art {

/// The glass of a dome.
struct GlassKind {
    /// The colour of light that has passed through the glass.
    Color tint;
    /// The colour that cloudy glass scatters back.
    Color milk;
    /// How cloudy it is: 0 clear, 1 opal.
    double cloud;
    /// Strength of the light that is focused on the ground.
    double glow;
};

/// A half ellipsoid standing on the board: `radius` across, `height` high, in pixels.
struct Dome {
    /// The middle of its foot on the picture.
    Vec2 foot;
    double radius;
    double height;
    /// Sine of the angle from which the board is seen: 1 is from above.
    double slant;
};

/// The sample of the dome at `p`; alpha 0 beside it.
Sample GlassSample(const Dome& dome, const GlassKind& glass, Vec2 p);

/// Where the dome stands on the picture, as its foot.
Shape Foot(const Dome& dome);

}  // namespace quendrel::art
