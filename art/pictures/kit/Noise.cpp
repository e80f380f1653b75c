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

std::uint32_t RowBits(int y, std::uint32_t seed) {
    return Scramble(static_cast<std::uint32_t>(y) * 0x85ebca77U + seed);
}

/// The bits of lattice point x in the row that has `row`.
std::uint32_t LatticeBits(int x, std::uint32_t row) {
    return Scramble(static_cast<std::uint32_t>(x) * 0x9e3779b1U + row);
}

/// Faster than std::floor, which would take most of the noise's time.
int Floor(double v) {
    const int towardsZero = static_cast<int>(v);
    return towardsZero - (v < towardsZero ? 1 : 0);
}

/// The height that the slope of a lattice point reaches at the offset (dx, dy) from it.
double Slope(std::uint32_t bits, double dx, double dy) {
    constexpr double kUnit = 1 / 32767.5;
    const double gx = (bits & 0xffff) * kUnit - 1;
    const double gy = (bits >> 16) * kUnit - 1;
    return gx * dx + gy * dy;
}

}  // namespace

double Random(int x, int y, std::uint32_t seed) {
    return LatticeBits(x, RowBits(y, seed)) / 4294967296.0;
}

double Noise(Vec2 p, std::uint32_t seed) {
    const int x = Floor(p.x);
    const int y = Floor(p.y);
    const double dx = p.x - x;
    const double dy = p.y - y;
    const double u = dx * dx * dx * (dx * (dx * 6 - 15) + 10);
    const double v = dy * dy * dy * (dy * (dy * 6 - 15) + 10);
    const auto along = [=](std::uint32_t row, double down) {
        return Mix(Slope(LatticeBits(x, row), dx, down),
                   Slope(LatticeBits(x + 1, row), dx - 1, down), u);
    };
    return 1.6 * Mix(along(RowBits(y, seed), dy), along(RowBits(y + 1, seed), dy - 1), v);
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
