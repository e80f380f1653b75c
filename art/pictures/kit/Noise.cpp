#include "kit/Noise.h"

namespace quendrel::art {

namespace {

std::uint32_t Scramble(std::uint32_t v) {
    v ^= v >> 16;
    v *= 0x7feb352dU;
    v ^= v >> 15;
    v *= 0x846ca68bU;
    return v ^ (v >> 16);
}

std::uint32_t LatticeBits(int x, int y, std::uint32_t seed) {
    return Scramble(static_cast<std::uint32_t>(x) * 0x9e3779b1U +
                    Scramble(static_cast<std::uint32_t>(y) * 0x85ebca77U + seed));
}

/// The height that the slope of lattice point (x, y) reaches at the offset (dx, dy) from it.
double Slope(int x, int y, double dx, double dy, std::uint32_t seed) {
    const std::uint32_t bits = LatticeBits(x, y, seed);
    const double gx = (bits & 0xffff) / 32767.5 - 1;
    const double gy = (bits >> 16) / 32767.5 - 1;
    return gx * dx + gy * dy;
}

}  // namespace

double Random(int x, int y, std::uint32_t seed) { return LatticeBits(x, y, seed) / 4294967296.0; }

double Noise(Vec2 p, std::uint32_t seed) {
    const double fx = std::floor(p.x);
    const double fy = std::floor(p.y);
    const int x = static_cast<int>(fx);
    const int y = static_cast<int>(fy);
    const double dx = p.x - fx;
    const double dy = p.y - fy;
    const double u = dx * dx * dx * (dx * (dx * 6 - 15) + 10);
    const double v = dy * dy * dy * (dy * (dy * 6 - 15) + 10);
    const double top = Mix(Slope(x, y, dx, dy, seed), Slope(x + 1, y, dx - 1, dy, seed), u);
    const double bottom =
        Mix(Slope(x, y + 1, dx, dy - 1, seed), Slope(x + 1, y + 1, dx - 1, dy - 1, seed), u);
    return 1.6 * Mix(top, bottom, v);
}

double LayeredNoise(Vec2 p, int octaves, std::uint32_t seed) {
    double sum = 0;
    double weight = 0.5;
    for (int i = 0; i < octaves; ++i) {
        sum += weight * Noise(p, seed + static_cast<std::uint32_t>(i));
        p = p * 2.0;
        weight *= 0.5;
    }
    return sum;
}

}  // namespace quendrel::art
