#include "kit/Light.h"

namespace quendrel::art {

namespace {

constexpr Color kKeyColor{1.10, 1.00, 0.86};
constexpr Color kFillColor{0.10, 0.13, 0.18};
constexpr Color kAmbient{0.25, 0.225, 0.21};
const Vec3 kFillLight = Normalize({0.6, 0.62, 0.5});

/// The window's own axes: across and up, as seen from the bench.
const Vec3 kWindowAcross = Normalize(Cross({0, -1, 0}, kKeyLight));
const Vec3 kWindowUp = Cross(kKeyLight, kWindowAcross);

/// The panes' brightness in direction `d`, with a glazing bar each way.
double WindowLight(Vec3 d, double roughness) {
    const double ahead = Dot(d, kKeyLight);
    if (ahead <= 0.05) return 0;
    const double across = Dot(d, kWindowAcross) / ahead;
    const double up = Dot(d, kWindowUp) / ahead;
    const double soft = 0.05 + roughness * 0.9;
    const double pane = (1 - SmoothStep(0.34 - soft, 0.34 + soft, std::abs(across))) *
                        (1 - SmoothStep(0.44 - soft, 0.44 + soft, std::abs(up)));
    const double bars = std::max(1 - SmoothStep(0.03, 0.07, std::abs(across)),
                                 1 - SmoothStep(0.03, 0.07, std::abs(up)));
    const double barDepth = 0.75 * Clamp01(1 - roughness * 5);
    return pane * (1 - bars * barDepth) / (1 + 6 * roughness);
}

}  // namespace

Color Environment(Vec3 d, double roughness) {
    const double towardsLight = -0.42 * d.x - 0.62 * d.y + 0.30 * d.z;
    const double soft = 0.35 + 0.45 * roughness;
    const Color room = Mix({0.030, 0.022, 0.018}, {0.74, 0.60, 0.44},
                           SmoothStep(0.36 - soft, 0.36 + soft, towardsLight));
    const double fill = SmoothStep(0.55 - 0.4 * roughness, 1.05, Dot(d, kFillLight));
    return room + kKeyColor * (9.0 * WindowLight(d, roughness)) + Color{0.15, 0.15, 0.17} * fill;
}

Vec3 Mirrored(Vec3 normal) { return normal * (2 * normal.z) - kFacing; }

double Fresnel(double cosine) {
    const double grazing = 1 - Clamp01(cosine);
    return 0.04 + 0.96 * grazing * grazing * grazing * grazing * grazing;
}

Color Matte(Color albedo, Vec3 normal, double shade) {
    const double key = std::max(0.0, Dot(normal, kKeyLight)) * (1 - shade);
    const double fill = std::max(0.0, Dot(normal, kFillLight));
    return albedo * (kKeyColor * (1.25 * key) + kFillColor * fill + kAmbient * (1 - 0.6 * shade));
}

Color Coated(Color albedo, Vec3 normal, double roughness, double shade) {
    const double mirrored = 0.8 * Fresnel(normal.z) * (1 - 0.8 * shade);
    return Matte(albedo, normal, shade) + Environment(Mirrored(normal), roughness) * mirrored;
}

Color Metal(Color tint, Vec3 normal, double roughness) {
    const Color mirrored = Environment(Mirrored(normal), roughness);
    const double key = std::max(0.0, Dot(normal, kKeyLight));
    return tint * (mirrored * 0.85 + kKeyColor * (0.22 * key));
}

Vec3 Rounded(const Shape& shape, Vec2 p, double width, double slope) {
    const double d = shape(p);
    if (d < -width) return kFacing;
    const double fall = slope * SmoothStep(-width, 0, d);
    const Vec2 out = Outward(shape, p);
    return Normalize({out.x * fall, out.y * fall, 1});
}

double CastShadow(const Shape& shape, Vec2 p, double height, double blur) {
    return SmoothStep(blur, -blur, shape(p - kShadowFall * height));
}

double HollowShadow(const Shape& shape, Vec2 p, double depth, double blur) {
    return SmoothStep(-blur, blur, shape(p - kShadowFall * depth));
}

}  // namespace quendrel::art
