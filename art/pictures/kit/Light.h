// The light that all pictures share: a tall window to the upper left, slightly warm, a weak cool
// light from the lower right, and the room that polished things reflect. Directions have x to the
// right,
// y downwards and z towards the eye.
#pragma once

#include "kit/Shapes.h"
#include "kit/Vector.h"

namespace quendrel::art {

inline constexpr Vec3 kFacing{0, 0, 1};

/// Where the key light comes from, and the way its shadows fall on a flat ground.
inline const Vec3 kKeyLight = Normalize({-0.52, -0.64, 0.62});
inline constexpr Vec2 kShadowFall{0.63, 0.77};

/// The light that comes from direction `d`; `roughness` from 0 (polished) to 1 (satin) blurs it.
Color Environment(Vec3 d, double roughness);

/// The direction that a surface reflects towards the eye, which looks straight down.
Vec3 Mirrored(Vec3 normal);

/// The colour of a surface without gloss. `shade` is how much of the key light is blocked, 0 to 1.
Color Matte(Color albedo, Vec3 normal, double shade = 0);

/// A matte surface under a clear coat.
Color Coated(Color albedo, Vec3 normal, double roughness, double shade = 0);

Color Metal(Color tint, Vec3 normal, double roughness);

/// The share of light that a clear surface reflects, by the cosine of the angle of view.
double Fresnel(double cosine);

/// The normal of a body with rounded edges: flat inside, falling over the last `width` pixels as
/// steeply as `slope`; a negative slope makes a hollow.
Vec3 Rounded(const Shape& shape, Vec2 p, double width, double slope);

/// How much of the key light `shape`, `height` pixels high, blocks at `p` beside it, 0 to 1; `blur`
/// is the width of the shadow's edge.
double CastShadow(const Shape& shape, Vec2 p, double height, double blur);

/// How much of the key light the rim of the hollow `shape`, `depth` pixels deep, blocks at `p` on
/// its floor, 0 to 1.
double HollowShadow(const Shape& shape, Vec2 p, double depth, double blur);

}  // namespace quendrel::art
