// The one light of all pictures: a tall window to the upper left, slightly warm, a weak cool fill
// from the lower right, and the room that polished things mirror. Directions have x to the right,
// y downwards and z towards the eye.
#pragma once

#include "kit/Shapes.h"
#include "kit/Vector.h"

namespace quendrel::art {

inline constexpr Vec3 kFacing{0, 0, 1};

/// Where the key light comes from, and the way its shadows fall on a flat ground.
inline const Vec3 kKeyLight = Normalize({-0.52, -0.64, 0.62});
inline constexpr Vec2 kShadowFall{0.63, 0.77};

/// What a mirror sees in direction `d`; `roughness` from 0 (polished) to 1 (satin) blurs it.
Color Environment(Vec3 d, double roughness);

/// The mirror direction of the straight view at a surface.
Vec3 Mirrored(Vec3 normal);

/// A surface without gloss. `shade` is how much of the key light is kept away, 0 to 1.
Color Matte(Color albedo, Vec3 normal, double shade = 0);

/// A matte surface under a clear coat.
Color Coated(Color albedo, Vec3 normal, double roughness, double shade = 0);

Color Metal(Color tint, Vec3 normal, double roughness);

/// How much light a clear surface mirrors rather than lets in, by the cosine of the view.
double Fresnel(double cosine);

/// The normal of a body with rounded edges: flat inside, falling over the last `width` pixels as
/// steeply as `slope`; a negative slope makes a hollow.
Vec3 Rounded(const Shape& shape, Vec2 p, double width, double slope);

/// How much key light an edge of `shape`, standing `height` pixels high, takes from its
/// surroundings at `p`; `blur` is the width of the shadow's edge.
double CastShadow(const Shape& shape, Vec2 p, double height, double blur);

/// How much key light the rim of the hollow `shape`, `depth` pixels deep, takes from its floor.
double HollowShadow(const Shape& shape, Vec2 p, double depth, double blur);

}  // namespace quendrel::art
