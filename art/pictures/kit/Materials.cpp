#include "kit/Materials.h"

#include "kit/Noise.h"

namespace quendrel::art {

namespace {

/// Distances to the nearest two of random points, of which each unit square has one.
Vec2 NearestPoints(Vec2 p, std::uint32_t seed) {
    const int cx = static_cast<int>(std::floor(p.x));
    const int cy = static_cast<int>(std::floor(p.y));
    Vec2 nearest{9, 9};
    for (int y = cy - 1; y <= cy + 1; ++y) {
        for (int x = cx - 1; x <= cx + 1; ++x) {
            const Vec2 point{x + Random(x, y, seed), y + Random(x, y, seed + 1)};
            const double d = Length(p - point);
            if (d < nearest.x) {
                nearest = {d, nearest.x};
            } else if (d < nearest.y) {
                nearest.y = d;
            }
        }
    }
    return nearest;
}

double LeatherHeight(Vec2 p, std::uint32_t seed) {
    const Vec2 d = NearestPoints(p, seed);
    return SmoothStep(0, 0.35, d.y - d.x);
}

}  // namespace

Color Wood(Vec2 p, const WoodCut& cut) {
    Vec2 q = Rotate(p, -cut.angle);
    q.y += cut.figure * (52 * LayeredNoise({q.x * 0.0034, q.y * 0.009}, 2, cut.seed) +
                         5 * Noise({q.x * 0.016, q.y * 0.03}, cut.seed + 5));

    // Year rings of uneven width: slowly darker, then a sharp edge back to light.
    const double year = q.y * 0.075 + 1.3 * Noise({q.x * 0.0015, q.y * 0.022}, cut.seed + 7);
    const double within = year - std::floor(year);
    const double band = 0.25 + 0.75 * Random(static_cast<int>(std::floor(year)), 0, cut.seed);
    const double rings = band * within * within * SmoothStep(1.0, 0.90, within);

    const double streaks = Noise({q.x * 0.004, q.y * 0.19}, cut.seed + 9);
    const double fibres = Noise({q.x * 0.011, q.y * 0.55}, cut.seed + 11) * 0.6 +
                          Noise({q.x * 0.03, q.y * 1.3}, cut.seed + 12) * 0.5 +
                          Noise({q.x * 0.05, q.y * 2.7}, cut.seed + 15) * 0.35;
    const double clouds = LayeredNoise({p.x * 0.007, p.y * 0.007}, 2, cut.seed + 13);
    const double tone =
        Clamp01(0.60 - 0.62 * rings + 0.15 * streaks + 0.17 * fibres + 0.36 * clouds);
    Color color = Mix(cut.dark, cut.light, tone);

    // Pores: short dark strokes along the grain; ripples: sheen across it.
    const double pore = Noise({q.x * 0.07, q.y * 1.1}, cut.seed + 17);
    color = color * (1 - 0.5 * SmoothStep(0.45, 0.8, pore));
    const double ripple = Noise({q.x * 0.045, q.y * 0.010}, cut.seed + 19);
    return color * (1 + 0.13 * cut.figure * ripple);
}

Vec3 Brushed(Vec3 normal, Vec2 p, double angle, double depth, std::uint32_t seed) {
    const Vec2 q = Rotate(p, -angle);
    const double scratch = Noise({q.x * 0.06, q.y * 2.1}, seed);
    const Vec2 tilt = Rotate({0, scratch * depth}, angle);
    return Normalize({normal.x + tilt.x, normal.y + tilt.y, normal.z});
}

Vec3 Pebbled(Vec3 normal, Vec2 p, double size, double depth, std::uint32_t seed) {
    constexpr double kStep = 0.12;
    const Vec2 q = p * (1 / size);
    const double here = LeatherHeight(q, seed);
    const double dx = LeatherHeight({q.x + kStep, q.y}, seed) - here;
    const double dy = LeatherHeight({q.x, q.y + kStep}, seed) - here;
    return Normalize({normal.x - dx * depth, normal.y - dy * depth, normal.z});
}

}  // namespace quendrel::art
