#include "kit/Iris.h"

#include "kit/Light.h"
#include "kit/Materials.h"

namespace quendrel::art {

namespace {

/// How far the leaves turn while they open, in radians.
constexpr double kTurn = 0.9;

/// A point of the shutter.
struct Place {
    /// From the shutter's centre, in radii.
    Vec2 q;
    /// How far from the centre.
    double r;
    /// Turned by this angle, the bent edges of the leaves become straight.
    double bend;

    Place(const Iris& iris, double open, Vec2 p)
        : q{(p.x - iris.center.x) / iris.radii.x, (p.y - iris.center.y) / iris.radii.y},
          r(Length(q)),
          bend(kTurn * open + iris.twist * r) {}
};

Vec2 LeafDirection(const Iris& iris, int leaf) {
    const double angle = leaf * 2 * kPi / iris.leaves;
    return {std::cos(angle), std::sin(angle)};
}

/// How far the place lies behind the edge of a leaf; negative where the leaf leaves it bare.
double Covered(const Iris& iris, double open, const Place& place, int leaf) {
    return Dot(Rotate(place.q, place.bend), LeafDirection(iris, leaf)) - open;
}

/// How far the place lies from the nearest leaf edge; negative where a leaf covers it.
double Gap(const Iris& iris, double open, const Place& place) {
    double gap = 1e9;
    for (int leaf = 0; leaf < iris.leaves; ++leaf) {
        gap = std::min(gap, -Covered(iris, open, place, leaf));
    }
    return gap;
}

/// The leaf at a covered place: each lies upon the next one round.
int TopLeaf(const Iris& iris, double open, const Place& place) {
    for (int leaf = 0; leaf < iris.leaves; ++leaf) {
        const int upper = (leaf + iris.leaves - 1) % iris.leaves;
        if (Covered(iris, open, place, leaf) > 0 && Covered(iris, open, place, upper) <= 0) {
            return leaf;
        }
    }
    return 0;
}

Sample LeafSample(const Iris& iris, double open, const Place& place) {
    const int leaf = TopLeaf(iris, open, place);
    const double here = Covered(iris, open, place, leaf);
    const double above = Covered(iris, open, place, (leaf + iris.leaves - 1) % iris.leaves);
    const Vec2 lean = Rotate(LeafDirection(iris, leaf), -place.bend);
    const Vec2 q = place.q;
    const Vec3 tilted = Normalize({q.x * 0.55 - lean.x * 0.30, q.y * 0.55 - lean.y * 0.30, 1});
    const Vec2 polar{place.r * 40, std::atan2(q.y, q.x) * 3};
    const Vec3 normal = Brushed(tilted, polar, kPi / 2, 0.05, 31);
    const double shadow = SmoothStep(0.16, 0.0, -above);
    const double bright = SmoothStep(0.07, 0.02, here);
    return {Metal(iris.tint, normal, 0.35) * (1 - 0.72 * shadow) * (1 + 0.9 * bright), 1};
}

}  // namespace

bool InOpening(const Iris& iris, double open, Vec2 p) {
    const Place place(iris, open, p);
    return place.r < 1 && Gap(iris, open, place) > 0;
}

Sample IrisSample(const Iris& iris, double open, Vec2 p) {
    const Place place(iris, open, p);
    if (place.r >= 1) return {};
    const double gap = Gap(iris, open, place);
    if (gap <= 0) return LeafSample(iris, open, place);
    return Shadow(0.6 * SmoothStep(0.22, 0.0, gap));
}

}  // namespace quendrel::art
