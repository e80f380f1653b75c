// Materials: colours and grain from layered noise.
#pragma once

#include <cstdint>

#include "kit/Vector.h"

namespace quendrel::art {

/// How a board was sawn: grain runs along `angle` (0 is to the right).
struct WoodCut {
    Color dark;
    Color light;
    double angle;
    /// 0 is straight and plain, 1 swirls.
    double figure;
    std::uint32_t seed;
};

Color Wood(Vec2 p, const WoodCut& cut);

/// A normal disturbed by the fine scratches of brushing along `angle`.
Vec3 Brushed(Vec3 normal, Vec2 p, double angle, double depth, std::uint32_t seed);

/// A normal disturbed by the grain of leather.
Vec3 Pebbled(Vec3 normal, Vec2 p, double size, double depth, std::uint32_t seed);

}  // namespace quendrel::art
