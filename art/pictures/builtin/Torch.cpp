// The torch: tongues of flame that noise bends and tears, over a brass basket on a turned handle.
// All movement is periodic, so that the last frame leads back to the first.
#include <algorithm>
#include <array>

#include "kit/Animation.h"
#include "kit/Fittings.h"
#include "kit/Materials.h"
#include "kit/Noise.h"
#include "skins/Atelier.h"
#include "ui/layout/AboutLayout.h"

namespace quendrel::art::torch {

namespace {

using atelier::kBrass;

constexpr int kFrames = 32;
constexpr int kCentiseconds = 5;

constexpr Rect kPlace{0, 0, layout::kAboutTorch.width, layout::kAboutTorch.height};
constexpr double kMiddle = kPlace.width / 2.0;
constexpr double kBasketTop = 90;
constexpr double kBasketHalf = 19;

/// Noise that repeats every `period` units upwards.
double RisingNoise(Vec2 p, int period, std::uint32_t seed) {
    const double fx = std::floor(p.x);
    const double fy = std::floor(p.y);
    const auto value = [&](int dx, int dy) {
        const int y = static_cast<int>(fy) + dy;
        return 2 * Random(static_cast<int>(fx) + dx, (y % period + period) % period, seed) - 1;
    };
    const double u = SmoothStep(0, 1, p.x - fx);
    const double v = SmoothStep(0, 1, p.y - fy);
    return Mix(Mix(value(0, 0), value(1, 0), u), Mix(value(0, 1), value(1, 1), u), v);
}

/// One tongue of the flame.
struct Tongue {
    Vec2 foot;
    double height;
    double width;
    double sway;
    std::uint32_t seed;
};

constexpr std::array<Tongue, 4> kTongues{{
    {{kMiddle, kBasketTop + 3}, 75, 17.5, 4.5, 11},
    {{kMiddle - 7, kBasketTop + 2}, 58, 11.0, 4.0, 23},
    {{kMiddle + 7, kBasketTop + 2}, 66, 11.5, 4.2, 37},
    {{kMiddle + 1, kBasketTop + 3}, 46, 16.0, 2.0, 53},
}};

/// How far inside a tongue a point lies: 1 in its middle, 0 at its edge. `t` is the moment of the
/// animation, 0 to 1.
double Depth(const Tongue& tongue, Vec2 p, double t) {
    const double lick = 1 + 0.10 * std::sin(2 * kPi * (2 * t + tongue.seed * 0.1)) +
                        0.05 * std::sin(2 * kPi * (5 * t + tongue.seed * 0.3));
    const double h = (tongue.foot.y - p.y) / (tongue.height * lick);
    if (h < -0.12 || h >= 1) return -1;
    const double up = std::max(0.0, h);
    const double bend = RisingNoise({0.5, p.y * 0.045 + 4 * t}, 4, tongue.seed) * 0.7 +
                        RisingNoise({0.5, p.y * 0.10 + 6 * t}, 6, tongue.seed + 1) * 0.3;
    const double x = p.x - tongue.foot.x - tongue.sway * 2 * bend * std::pow(up, 0.8);
    const double belly = 1.75 * std::sqrt(up + 0.10) * std::pow(1 - up, 0.95);
    const double round = h < 0 ? std::sqrt(std::max(0.0, 1 - Square(h / 0.12))) : 1;
    const double tear = RisingNoise({p.x * 0.13, p.y * 0.075 + 8 * t}, 8, tongue.seed + 2) * 0.65 +
                        RisingNoise({p.x * 0.26, p.y * 0.16 + 12 * t}, 12, tongue.seed + 3) * 0.35;
    const double edge = tongue.width * belly * round;
    if (edge <= 0.05) return -1;
    return 1 - std::pow(std::abs(x / edge), 1.5) - (0.12 + 0.62 * up) * (0.35 + tear);
}

/// The flame's colour at a depth: red at the edge, then orange, yellow, nearly white inside.
Sample Fire(double depth, double height, double billows) {
    const double heat = Clamp01(depth * (0.97 - 0.45 * height + 0.30 * billows));
    const Color outer = Mix({0.50, 0.035, 0.004}, {1.15, 0.24, 0.012}, SmoothStep(0.0, 0.34, heat));
    const Color inner = Mix({1.35, 0.52, 0.035}, {1.55, 1.02, 0.26}, SmoothStep(0.50, 0.95, heat));
    const Color color = Mix(outer, inner, SmoothStep(0.22, 0.66, heat));
    return {color, 0.96 * SmoothStep(0.0, 0.30, depth)};
}

Sample FlameSample(Vec2 p, double t) {
    // The tongues are joined smoothly; this is how sharply.
    constexpr double kMelt = 5;
    double sum = 0;
    for (const Tongue& tongue : kTongues) sum += std::exp(kMelt * Depth(tongue, p, t));
    const double depth = std::log(sum) / kMelt;
    if (depth <= 0) return {};
    const double billows = RisingNoise({p.x * 0.15, p.y * 0.06 + 8 * t}, 8, 71);
    return Fire(depth, Clamp01((kBasketTop - p.y) / 80), billows);
}

/// How bright the fire is at a moment.
double Flicker(double t) {
    return 1 + 0.10 * std::sin(2 * kPi * 3 * t) + 0.07 * std::sin(2 * kPi * (7 * t + 0.3)) +
           0.05 * std::sin(2 * kPi * (11 * t + 0.7));
}

/// The light of the flame on the niche. It ends before the edge of the picture, where the skin's
/// own niche goes on.
void PaintGlow(Canvas& canvas, double t) {
    canvas.Paint(kPlace, [flicker = Flicker(t)](Vec2 p) {
        const double r = Length({(p.x - kMiddle) / (kMiddle - 0.5), (p.y - 60) / 60});
        const double glow = Square(std::max(0.0, 1 - r * r));
        return Sample{{0.62, 0.19, 0.035}, 0.42 * flicker * glow};
    });
}

/// A few sparks, each of which rises once while the animation runs through.
void PaintSparks(Canvas& canvas, double t) {
    for (int i = 0; i < 7; ++i) {
        const double start = Random(i, 0, 401);
        const double age = t - start - std::floor(t - start);
        const double life = 0.55 + 0.4 * Random(i, 1, 401);
        if (age > life) continue;
        const double a = age / life;
        const double side = 2 * Random(i, 2, 401) - 1;
        const Vec2 at{kMiddle + side * (5 + 11 * a) + 2.2 * std::sin(9 * a + i),
                      kBasketTop - 26 - (44 + 12 * Random(i, 3, 401)) * a};
        const Rect area{static_cast<int>(at.x) - 4, static_cast<int>(at.y) - 4, 9, 9};
        const double bright = SmoothStep(0.0, 0.15, a) * SmoothStep(1.0, 0.6, a);
        canvas.Paint(area, [&](Vec2 p) {
            const double d = Length({(p.x - at.x) * 1.2, p.y - at.y});
            return Sample{{2.2, 0.95, 0.16}, bright * SmoothStep(1.5, 0.4, d)};
        });
    }
}

void PaintHandle(Canvas& canvas, double fireLight) {
    const Shape handle = [](Vec2 p) {
        const double down = (p.y - 104) / 58;
        const double swell = 1.1 * std::sin(kPi * Clamp01(down)) - 1.6 * down;
        return std::max(std::abs(p.x - kMiddle) - 7.6 - swell, std::max(102 - p.y, p.y - 160));
    };
    static const WoodCut kWalnut{Hex(0x2b1409), Hex(0x8f5730), kPi / 2, 0.5, 61};
    PaintFace(canvas, kPlace, handle, [&](Vec2 p) {
        const double round = Clamp01(0.5 + (p.x - kMiddle) / 16) * 2 - 1;
        const Vec3 normal = Normalize({round * 1.3, 0, 1});
        const Color wood = Wood(p * 2.0, kWalnut);
        const double fire = fireLight * SmoothStep(150, 100, p.y) * 0.5;
        return Coated(wood, normal, 0.4) + wood * Color{1.3, 0.6, 0.2} * fire;
    });
}

/// A turned ring or pommel of brass around the handle.
void PaintRing(Canvas& canvas, double top, double bottom, double halfWidth) {
    const Shape ring =
        RoundedBox({kMiddle - halfWidth, top}, {kMiddle + halfWidth, bottom}, (bottom - top) / 2);
    PaintFace(canvas, kPlace, ring, [&](Vec2 p) {
        const double x = (p.x - kMiddle) / halfWidth;
        const double y = (p.y - (top + bottom) / 2) / ((bottom - top) / 2);
        return Metal(kBrass, Normalize({x * 0.9, y * 0.9, 0.8}), 0.22);
    });
}

/// The rim of the basket, seen a little from above; its mouth is full of embers.
Shape Mouth() { return Ellipse({kMiddle, kBasketTop}, {kBasketHalf + 1.2, 5.0}); }

void PaintMouth(Canvas& canvas, double fireLight) {
    const Shape rim = Mouth();
    PaintMetal(canvas, kPlace, rim, kBrass, 1.6, 1.4, 0.25);
    const Shape embers = Inset(rim, 1.7);
    canvas.Paint(kPlace, [&](Vec2 p) {
        const double coal = 0.5 + 0.5 * Noise({p.x * 0.5, p.y * 0.9}, 91);
        return Sample{Color{1.3, 0.30, 0.02} * (fireLight * (0.25 + 0.75 * coal)),
                      Inside(embers(p))};
    });
}

/// The front of the basket and of its rim, which stand before the fire.
void PaintBasket(Canvas& canvas, double fireLight) {
    const auto half = [](double y) {
        return Mix(kBasketHalf, 8.0, std::pow(Clamp01((y - kBasketTop) / 18), 0.8));
    };
    const Shape mouth = Mouth();
    const Shape cup = [&](Vec2 p) {
        return std::max(
            {std::abs(p.x - kMiddle) - half(p.y), kBasketTop - p.y, p.y - 108, -mouth(p)});
    };
    PaintFace(canvas, kPlace, cup, [&](Vec2 p) {
        const double down = Clamp01((p.y - kBasketTop) / 18);
        const double x = (p.x - kMiddle) / half(p.y);
        const Vec3 normal = Normalize({x * 0.9 + 0.16 * std::sin(x * 14), 0.28 + 0.3 * down, 0.75});
        return Metal(kBrass, normal, 0.28);
    });
    const Shape rim = Band(mouth, 0, 1.8);
    canvas.Paint(kPlace, [&](Vec2 p) {
        if (rim(p) >= 0 || p.y < kBasketTop) return Sample{};
        const Color brass = Metal(kBrass, Rounded(rim, p, 0.9, 1.2), 0.25);
        return Sample{brass + Color{0.55, 0.24, 0.06} * (0.6 * fireLight), 1};
    });
}

Picture DrawTorch(double t) {
    const double fireLight = Flicker(t);
    Canvas canvas = EmptyFrame(kPlace);
    PaintGlow(canvas, t);
    PaintHandle(canvas, fireLight);
    PaintMouth(canvas, fireLight);
    canvas.Paint(kPlace, [t](Vec2 p) { return FlameSample(p, t); });
    PaintBasket(canvas, fireLight);
    PaintRing(canvas, 106, 112, 10.0);
    PaintRing(canvas, 129, 135, 10.4);
    PaintRing(canvas, 156, 167, 8.0);
    PaintSparks(canvas, t);
    return Develop(canvas);
}

}  // namespace

std::vector<Frame> Frames() {
    std::vector<Frame> frames;
    frames.reserve(kFrames);
    for (int i = 0; i < kFrames; ++i) {
        frames.push_back({DrawTorch(static_cast<double>(i) / kFrames), kCentiseconds});
    }
    return frames;
}

}  // namespace quendrel::art::torch
