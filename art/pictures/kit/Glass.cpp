#include "kit/Glass.h"

#include "kit/Light.h"

namespace quendrel::art {

namespace {

constexpr double kRefraction = 1.5;

/// A tint is the colour of light that has come this far through the glass, in radii.
constexpr double kTintedWay = 0.45;

/// Reflections are seen from this much lower than straight above, in radians.
constexpr double kLean = 0.26;

/// Turns directions between the view and the board, whose axes are x along a row, y away from the
/// viewer, z up.
struct Slant {
    double sine;
    double cosine;

    Vec3 ToBoard(Vec3 v) const {
        return {v.x, -v.y * sine - v.z * cosine, -v.y * cosine + v.z * sine};
    }
};

Vec3 Refract(Vec3 ray, Vec3 normal) {
    const double eta = 1 / kRefraction;
    const double cosine = -Dot(ray, normal);
    const double k = 1 - eta * eta * (1 - cosine * cosine);
    return ray * eta + normal * (eta * cosine - std::sqrt(k));
}

/// The point, in radii of the dome, where the ray from the eye meets it.
struct Hit {
    bool found = false;
    Vec3 point;
    /// On the board's axes.
    Vec3 normal;
};

Hit Meet(const Dome& dome, const Slant& slant, Vec2 p) {
    const double flat = dome.height / dome.radius;
    const Vec3 ray = slant.ToBoard({0, 0, -1});
    const Vec2 q = (p - dome.foot) * (1 / dome.radius);
    const Vec3 from = slant.ToBoard({q.x, q.y, 0}) - ray * 4;
    // Scaled so that the dome becomes a unit ball; solves |from + t ray| = 1.
    const Vec3 a{from.x, from.y, from.z / flat};
    const Vec3 b{ray.x, ray.y, ray.z / flat};
    const double bb = Dot(b, b);
    const double ab = Dot(a, b);
    const double root = ab * ab - bb * (Dot(a, a) - 1);
    if (root < 0) return {};
    const double t = (-ab - std::sqrt(root)) / bb;
    const Vec3 point = from + ray * t;
    if (point.z < 0) return {};
    return {true, point, Normalize({point.x, point.y, point.z / (flat * flat)})};
}

/// The light that the dome focuses on the ground beneath it, `ground` being in radii: a crescent
/// along the rim on the side away from the window, and a spot inside it.
double Gathered(Vec2 ground) {
    const Vec2 away{0.62, -0.78};
    const double along = Dot(ground, away);
    const double r = Length(ground);
    const double crescent =
        SmoothStep(0.1, 0.95, along / std::max(r, 0.2)) * std::exp(-Square((r - 0.72) / 0.2));
    const double spot = std::exp(-(Square(along - 0.5) + Square(Dot(ground, {0.78, 0.62}))) / 0.09);
    return 0.9 * crescent + 0.75 * spot;
}

}  // namespace

Sample GlassSample(const Dome& dome, const GlassKind& glass, Vec2 p) {
    const Slant slant{dome.slant, std::sqrt(1 - dome.slant * dome.slant)};
    const Hit hit = Meet(dome, slant, p);
    if (!hit.found) return {};

    const Vec3 inward = Refract(slant.ToBoard({0, 0, -1}), hit.normal);
    constexpr double kGround = -0.12;  // the foot stands a little below the board
    const double way = (hit.point.z - kGround) / std::max(0.15, -inward.z);
    const Vec2 ground{hit.point.x + inward.x * way, hit.point.y + inward.y * way};

    const double depth = way / kTintedWay;
    const Color kept{std::pow(glass.tint.x, depth), std::pow(glass.tint.y, depth),
                     std::pow(glass.tint.z, depth)};
    const double lit = 0.30 + glass.glow * Gathered(ground);
    const Color through = kept * Color{1.05, 1.0, 0.92} * lit;

    // Cloudy glass glows on the side away from the light. The surface reflects as if seen almost
    // from above, as everything else on the board does.
    const double far = SmoothStep(-1.1, 1.0, Dot(Vec2{hit.point.x, -hit.point.y}, kShadowFall));
    const Color scattered = glass.milk * (0.50 + 0.55 * far);
    const Vec2 leant = Rotate({-hit.normal.y, hit.normal.z}, kLean);
    const Vec3 normal{hit.normal.x, leant.x, std::max(0.0, leant.y)};
    const double mirrored = std::min(0.55, 0.022 + Fresnel(normal.z));
    const Color inside = Mix(through, scattered, glass.cloud);
    return {inside * (1 - mirrored) + Environment(Mirrored(normal), 0) * mirrored, 1};
}

Shape Foot(const Dome& dome) { return Ellipse(dome.foot, {dome.radius, dome.radius * dome.slant}); }

}  // namespace quendrel::art
