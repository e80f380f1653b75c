// Poured glass: a shallow dome seen at the slant of the board. Light is followed from the eye
// through the surface to the ground beneath, where the dome gathers the window's light on the side
// away from it.
#pragma once

#include "kit/Canvas.h"
#include "kit/Shapes.h"

namespace quendrel::art {

/// What a dome is poured of.
struct GlassKind {
    /// What light keeps of its colour on the way through one radius.
    Color tint;
    /// What the glass itself scatters back.
    Color milk;
    /// How much of it is milk: 0 clear, 1 opal.
    double cloud;
    /// Strength of the gathered light.
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
