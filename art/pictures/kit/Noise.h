// Repeatable noise: the same place and seed always give the same value.
#pragma once

#include <cstdint>

#include "kit/Vector.h"

namespace quendrel::art {

/// A number in [0, 1) that belongs to the lattice point (x, y).
double Random(int x, int y, std::uint32_t seed);

/// Smooth noise in about [-1, 1], features one unit wide.
double Noise(Vec2 p, std::uint32_t seed);

/// `octaves` layers of noise, each twice as fine and half as strong; about [-1, 1].
double LayeredNoise(Vec2 p, int octaves, std::uint32_t seed);

}  // namespace quendrel::art
