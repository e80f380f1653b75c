// The house in the evening: smoke rises from its chimney, and its windows' light is alive.
#include "kit/Animation.h"
#include "kit/Fittings.h"
#include "kit/Noise.h"
#include "skins/Atelier.h"
#include "ui/layout/AboutLayout.h"

namespace quendrel::art::house {

namespace {

constexpr int kFrames = 32;
constexpr int kCentiseconds = 6;

constexpr Rect kPlace{0, 0, layout::kAboutHome.width, layout::kAboutHome.height};
constexpr double kGround = 56;
constexpr double kEaves = 36;
constexpr double kRidge = 18;
constexpr double kLeft = 16;
constexpr double kRight = 56;
constexpr double kMiddle = (kLeft + kRight) / 2;
constexpr Vec2 kChimneyTop{48, 17};

constexpr Color kPlaster{0.62, 0.52, 0.38};
constexpr Color kTimber{0.075, 0.034, 0.014};
constexpr Color kTile{0.34, 0.070, 0.030};
constexpr Color kBrick{0.26, 0.062, 0.034};
constexpr Color kLamplight{2.1, 1.15, 0.30};

double Wave(double t, int turns, double phase) { return std::sin(2 * kPi * (turns * t + phase)); }

/// Puffs follow one another up from the chimney; each grows and thins away.
void PaintSmoke(Canvas& canvas, double t) {
    constexpr int kPuffs = 5;
    for (int i = 0; i < kPuffs; ++i) {
        const double age = t + static_cast<double>(i) / kPuffs;
        const double a = age - std::floor(age);
        const Vec2 at{kChimneyTop.x + 11 * a * a + 1.6 * std::sin(2 * kPi * a + i),
                      kChimneyTop.y - 1 - 12 * a};
        const double radius = 1.7 + 2.7 * a;
        const double thick = 0.60 * SmoothStep(0, 0.12, a) * SmoothStep(1.0, 0.45, a);
        canvas.Paint(kPlace, [&](Vec2 p) {
            const double d = Length(p - at) / radius;
            const double lit = 0.75 - 0.35 * Dot(p - at, kShadowFall) / radius;
            return Sample{Color{0.52, 0.46, 0.40} * lit, thick * SmoothStep(1.0, 0.1, d)};
        });
    }
}

void PaintChimney(Canvas& canvas) {
    const Shape stack = RoundedBox({44.5, 18}, {51.5, 34}, 0.4);
    const Shape crown = RoundedBox({43.5, 16.6}, {52.5, 20}, 0.6);
    PaintFace(canvas, kPlace, stack, [&](Vec2 p) {
        const double course = p.y * 0.42;
        const bool joint = course - std::floor(course) < 0.22;
        return Matte(joint ? kBrick * 0.45 : kBrick, Rounded(stack, p, 2.5, 0.8));
    });
    canvas.Paint(kPlace, [&](Vec2 p) {
        return Sample{Matte(kBrick * 1.15, Rounded(crown, p, 1.5, 0.9)), Inside(crown(p))};
    });
}

void PaintWalls(Canvas& canvas) {
    const Shape wall = Path({kLeft, kGround})
                           .LineTo({kLeft, kEaves})
                           .LineTo({kMiddle, kRidge + 3})
                           .LineTo({kRight, kEaves})
                           .LineTo({kRight, kGround})
                           .Close();
    canvas.Paint(kPlace, [&](Vec2 p) {
        const double grain = 1 + 0.10 * LayeredNoise(p * 0.7, 2, 77);
        const double eaves = kEaves - (kEaves - kRidge - 3) * (1 - std::abs(p.x - kMiddle) / 20);
        const double shade = 0.75 * SmoothStep(7.5, 3.0, p.y - eaves);
        return Sample{Matte(kPlaster * grain, kFacing, shade), Inside(wall(p))};
    });
    const auto beam = [&](Vec2 from, Vec2 to) {
        const Shape bar = Stroke(from, to, 2.0);
        canvas.Paint(kPlace, [&](Vec2 p) {
            return Sample{Matte(kTimber, Rounded(bar, p, 0.8, 0.7)),
                          Inside(std::max(bar(p), wall(p)))};
        });
    };
    beam({kLeft + 1, kEaves}, {kLeft + 1, kGround});
    beam({kRight - 1, kEaves}, {kRight - 1, kGround});
    beam({kLeft, kEaves + 1.5}, {kRight, kEaves + 1.5});
    beam({kMiddle, kRidge}, {kMiddle, kEaves});
    beam({kMiddle - 9, kEaves}, {kMiddle, kEaves - 10});
    beam({kMiddle + 9, kEaves}, {kMiddle, kEaves - 10});
}

/// A roof's edge: tiles seen end on.
void PaintRoof(Canvas& canvas) {
    for (const double side : {-1.0, 1.0}) {
        const Vec2 ridge{kMiddle, kRidge};
        const Vec2 eaves{kMiddle + side * 25, kEaves + 3.5};
        const Shape slope = Stroke(ridge, eaves, 5.0);
        PaintShadow(canvas, kPlace, slope, 1.6, 1.6, 0.6);
        const Vec2 along = (eaves - ridge) * (1 / Length(eaves - ridge));
        PaintFace(canvas, kPlace, slope, [&](Vec2 p) {
            const double tile = Dot(p - ridge, along) / 3.6;
            const double within = tile - std::floor(tile);
            Vec3 normal = Rounded(slope, p, 2.4, 0.9);
            normal = Normalize({normal.x + (within - 0.5) * 0.7 * along.x,
                                normal.y + (within - 0.5) * 0.7 * along.y, normal.z});
            return Coated(kTile, normal, 0.4) * (within < 0.14 ? 0.4 : 1.0);
        });
    }
}

/// A lit window with its glazing bars, and its light on the wall around.
void PaintWindow(Canvas& canvas, Rect place, double light) {
    const Shape frame = RoundedBox(place, -1.2, 0.6);
    const Shape glass = RoundedBox(place, 0, 0.3);
    const Vec2 middle{place.left + place.width / 2.0, place.top + place.height / 2.0};
    canvas.Paint(kPlace, [&](Vec2 p) {
        const double d = glass(p);
        return Sample{kLamplight, 0.30 * light * Square(SmoothStep(6, 0, d)) * Inside(-d)};
    });
    PaintFlat(canvas, kPlace, frame, kTimber * 0.8);
    canvas.Paint(kPlace, [&](Vec2 p) {
        const double near = 1 - 0.45 * Length({(p.x - middle.x) / place.width,
                                               (p.y - middle.y - 1) / place.height});
        return Sample{kLamplight * (light * near), Inside(glass(p))};
    });
    const Shape bars = Union(Stroke({middle.x, middle.y - 9}, {middle.x, middle.y + 9}, 1.0),
                             Stroke({middle.x - 9, middle.y}, {middle.x + 9, middle.y}, 1.0));
    canvas.Paint(kPlace, [&](Vec2 p) {
        return Sample{kTimber, Inside(std::max(bars(p), glass(p)))};
    });
}

void PaintDoor(Canvas& canvas) {
    const Shape frame = RoundedBox({kMiddle - 5.2, 41.2}, {kMiddle + 5.2, kGround + 1}, 4);
    const Shape door = RoundedBox({kMiddle - 4, 42.5}, {kMiddle + 4, kGround + 1}, 3.2);
    canvas.Paint(kPlace, [&](Vec2 p) {
        return Sample{kTimber, p.y < kGround ? Inside(frame(p)) : 0};
    });
    canvas.Paint(kPlace, [&](Vec2 p) {
        const double plank = p.x * 0.5 - std::floor(p.x * 0.5);
        const Color wood = Color{0.030, 0.115, 0.066} * (plank < 0.2 ? 0.5 : 1.0);
        return Sample{Matte(wood, kFacing), p.y < kGround ? Inside(door(p)) : 0};
    });
    const Vec2 knob{kMiddle + 2.4, 50};
    canvas.Paint(kPlace, [&](Vec2 p) {
        return Sample{{1.2, 0.8, 0.3}, Inside(Length(p - knob) - 0.8)};
    });
}

void PaintGround(Canvas& canvas) {
    const Shape step = RoundedBox({9, kGround - 0.6}, {63, kGround + 2.2}, 1.4);
    canvas.Paint(kPlace, [&](Vec2 p) {
        return Sample{Matte({0.20, 0.17, 0.14}, Rounded(step, p, 1.6, 0.8)), Inside(step(p))};
    });
    const Shape bushes =
        Union(Union(Ellipse({14.5, 53.5}, {4.6, 3.8}), Ellipse({20, 54.4}, {3.4, 2.8})),
              Ellipse({58, 53.6}, {4.6, 3.9}));
    PaintFace(canvas, kPlace, bushes, [&](Vec2 p) {
        const Vec3 leafy = Normalize(Rounded(bushes, p, 3, 1.0) +
                                     Vec3{0.5 * Noise(p * 0.9, 5), 0.5 * Noise(p * 0.9, 6), 0});
        return Matte({0.035, 0.125, 0.030}, leafy);
    });
}

Picture DrawHouse(double t) {
    Canvas canvas = EmptyFrame(kPlace);
    PaintChimney(canvas);
    PaintSmoke(canvas, t);
    PaintWalls(canvas);
    PaintRoof(canvas);
    const double candle = 0.92 + 0.10 * Wave(t, 3, 0) + 0.07 * Wave(t, 5, 0.4);
    const double hearth = 0.86 + 0.14 * Wave(t, 2, 0.2) + 0.08 * Wave(t, 7, 0.6);
    PaintDoor(canvas);
    PaintWindow(canvas, {20, 42, 7, 8}, candle);
    PaintWindow(canvas, {45, 42, 7, 8}, hearth);
    PaintGround(canvas);
    return Develop(canvas);
}

}  // namespace

std::vector<Frame> Frames() {
    std::vector<Frame> frames;
    frames.reserve(kFrames);
    for (int i = 0; i < kFrames; ++i) {
        frames.push_back({DrawHouse(static_cast<double>(i) / kFrames), kCentiseconds});
    }
    return frames;
}

}  // namespace quendrel::art::house
