// Points, directions and colours, and the few blends that shading is made of. Colours are linear
// light (red, green, blue); 1 is white paper in the key light.
#pragma once

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quendrel::art {

inline constexpr double kPi = std::numbers::pi;

struct Vec2 {
    double x = 0;
    double y = 0;

    constexpr Vec2 operator+(Vec2 o) const { return {x + o.x, y + o.y}; }
    constexpr Vec2 operator-(Vec2 o) const { return {x - o.x, y - o.y}; }
    constexpr Vec2 operator*(double k) const { return {x * k, y * k}; }
};

struct Vec3 {
    double x = 0;
    double y = 0;
    double z = 0;

    constexpr Vec3 operator+(Vec3 o) const { return {x + o.x, y + o.y, z + o.z}; }
    constexpr Vec3 operator-(Vec3 o) const { return {x - o.x, y - o.y, z - o.z}; }
    constexpr Vec3 operator*(Vec3 o) const { return {x * o.x, y * o.y, z * o.z}; }
    constexpr Vec3 operator*(double k) const { return {x * k, y * k, z * k}; }
};

using Color = Vec3;

constexpr double Dot(Vec2 a, Vec2 b) { return a.x * b.x + a.y * b.y; }
constexpr double Dot(Vec3 a, Vec3 b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
inline double Length(Vec2 v) { return std::sqrt(Dot(v, v)); }
inline Vec3 Normalize(Vec3 v) { return v * (1 / std::sqrt(Dot(v, v))); }

constexpr Vec3 Cross(Vec3 a, Vec3 b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

inline Vec2 Rotate(Vec2 v, double angle) {
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    return {v.x * c - v.y * s, v.x * s + v.y * c};
}

constexpr double Clamp01(double v) { return v < 0 ? 0 : (v > 1 ? 1 : v); }
constexpr double Square(double v) { return v * v; }
constexpr double Mix(double a, double b, double t) { return a + (b - a) * t; }
constexpr Vec3 Mix(Vec3 a, Vec3 b, double t) { return a + (b - a) * t; }

/// 0 up to `from`, 1 beyond `to`, a smooth step between; `from` may be the larger.
constexpr double SmoothStep(double from, double to, double v) {
    const double t = Clamp01((v - from) / (to - from));
    return t * t * (3 - 2 * t);
}

inline double Luminance(Color c) { return 0.2126 * c.x + 0.7152 * c.y + 0.0722 * c.z; }

/// A colour that keeps only `keep` of its hue.
inline Color Greyed(Color c, double keep) {
    const double grey = Luminance(c);
    return Mix({grey, grey, grey}, c, keep);
}

/// A faint memory of a colour: it keeps `keep` of its hue, and what was dark is less so.
inline Color Faded(Color c, double keep) {
    return Greyed(c, keep) * std::pow(std::max(0.002, Luminance(c)), -0.2);
}

inline double FromSrgb(double v) {
    return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
}

inline double ToSrgb(double v) {
    return v <= 0.0031308 ? v * 12.92 : 1.055 * std::pow(v, 1 / 2.4) - 0.055;
}

/// The linear colour of 0xRRGGBB.
inline Color Hex(unsigned rgb) {
    return {FromSrgb(((rgb >> 16) & 255) / 255.0), FromSrgb(((rgb >> 8) & 255) / 255.0),
            FromSrgb((rgb & 255) / 255.0)};
}

}  // namespace quendrel::art
