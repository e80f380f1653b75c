// Atelier's main window: a console, the curved plate of the pegs, the tower of the marks.
#include <array>

#include "kit/Fittings.h"
#include "kit/Light.h"
#include "kit/Materials.h"
#include "skins/Atelier.h"
#include "skins/AtelierCase.h"
#include "skins/AtelierWindows.h"

namespace quendrel::art::atelier {

namespace {

constexpr Rect kMainWindow = WholeOf(kBoardSize);

// Where its three parts meet.
constexpr double kPlateLeft = 193;
constexpr double kPlateRight = 520;
constexpr double kPlateMiddle = 365;
constexpr double kTowerMiddle = 582;

const WoodCut kPlateWood{Hex(0x331609), Hex(0xaa6738), 0.0, 1.25, 211};
const WoodCut kConsoleWood{Hex(0x21120b), Hex(0x5f3a20), kPi / 2, 0.55, 23};
const WoodCut kTowerWood{Hex(0x6d4420), Hex(0xc8955c), kPi / 2, 0.7, 37};

/// How much higher the curved plate's grain runs at x than at its ends, as its rows do.
double Bow(double x) { return 13 * (1 - Square((x - kPlateMiddle) / 150)); }

/// The normal of the board's surface: each of its three parts is slightly curved and leans back.
Vec3 Curvature(Vec2 p) {
    double t = (p.x - 96) / 100;
    if (p.x > kPlateLeft) t = (p.x - (kPlateLeft + kPlateRight) / 2) / 164;
    if (p.x > kPlateRight) t = (p.x - kTowerMiddle) / 64;
    const double lean = (p.y - 300) / 300;
    return Normalize({0.16 * t + 0.30 * t * t * t * t * t, 0.13 * lean, 1});
}

/// The light of the warm lamp over the upper left of the board.
double LampPool(Vec2 p) { return Mix(1.34, 0.76, SmoothStep(0, 580, Length(p - Vec2{250, 150}))); }

/// The brass line between the hidden code and the rows, bowed as they are.
void PaintLintel(Canvas& canvas, const Shape& inner) {
    const Rect area{static_cast<int>(kPlateLeft), 70, static_cast<int>(kPlateRight - kPlateLeft),
                    50};
    const auto height = [](Vec2 p) { return p.y - 84.2 - 11 * Square((p.x - kPlateMiddle) / 125); };
    const Shape line = [&](Vec2 p) { return std::max(std::abs(height(p)) - 0.9, inner(p)); };
    canvas.Paint(area, [&](Vec2 p) {
        return Shadow(0.65 * SmoothStep(2.6, 0.9, std::abs(height(p))) * Inside(inner(p)));
    });
    PaintMetal(canvas, area, line, kBrass * 0.9, 0.9, 0.6, 0.35);
}

void PaintWood(Canvas& canvas, const Shape& outline) {
    canvas.Paint(kMainWindow, [bodies = BothSides(outline)](Vec2 p) {
        const double d = bodies(p);
        if (d > -kDarkRim) return Sample{};
        const WoodCut& cut = p.x < kPlateLeft    ? kConsoleWood
                             : p.x > kPlateRight ? kTowerWood
                                                 : kPlateWood;
        const bool plate = p.x >= kPlateLeft && p.x <= kPlateRight;
        // The plate's wood is mirrored at its middle.
        const double side = std::sqrt(Square(p.x - kPlateMiddle) + 2500);
        const Vec2 grain = plate ? Vec2{side + 900, p.y + Bow(p.x)} : p;
        const double nearEdge = SmoothStep(-22, -kDarkRim - kCaseMoulding, d);
        const Color color = Wood(grain, cut) * LampPool(p);
        return Sample{Coated(color, Curvature(p), 0.8, 0.35 * nearEdge), 1};
    });
}

void PaintFillets(Canvas& canvas, const Shape& outline) {
    const Shape inner = Inset(outline, kDarkRim + kCaseMoulding - 0.5);
    for (const double x : {kPlateLeft, kPlateRight}) {
        const Shape line = [x, inner](Vec2 p) {
            return std::max(std::abs(p.x - x) - 1.0, inner(p));
        };
        const Rect area{static_cast<int>(x) - 8, 0, 16, kBoardSize.height};
        canvas.Paint(area, [&](Vec2 p) {
            const double far = std::abs(p.x - x);
            return Shadow(0.75 * SmoothStep(4.2, 1.0, far) * Inside(inner(p)));
        });
        PaintMetal(canvas, area, line, kBrass * 0.85, 1.0, 0.9, 0.4);
    }
    PaintLintel(canvas, inner);
    PaintMoulding(canvas, kMainWindow, outline);
}

void PaintScrews(Canvas& canvas) {
    PaintScrew(canvas, {22, 583}, 5, 0.6, kBrass);
    PaintScrew(canvas, {172, 583}, 5, 2.3, kBrass);
    PaintScrew(canvas, {544, 582}, 5, 1.1, kBrass);
    PaintScrew(canvas, {630, 582}, 5, 0.2, kBrass);
}

}  // namespace

Shape MainOutline() {
    return Path({4, 112})
        .CurveTo({3, 96}, {9, 87}, {24, 86})
        .CurveTo({40, 85}, {47, 79}, {48, 67})
        .CurveTo({49, 54}, {60, 49}, {76, 48})
        .CurveTo({118, 46}, {164, 46}, {186, 36})
        .CurveTo({202, 28}, {212, 20}, {232, 15})
        .CurveTo({272, 5}, {322, 2}, {365, 2})
        .CurveTo({408, 2}, {452, 5}, {490, 14})
        .CurveTo({506, 18}, {516, 18}, {522, 13})
        .CurveTo({530, 5}, {552, 2}, {582, 2})
        .CurveTo({614, 2}, {640, 6}, {645, 22})
        .CurveTo({649, 40}, {645, 70}, {645, 100})
        .CurveTo({643, 240}, {643, 400}, {645, 520})
        .CurveTo({646, 560}, {653, 574}, {653, 590})
        .CurveTo({653, 599}, {648, 603}, {640, 603})
        .LineTo({552, 603})
        .CurveTo({532, 603}, {524, 592}, {502, 590})
        .CurveTo({450, 576}, {280, 576}, {218, 590})
        .CurveTo({196, 592}, {188, 603}, {168, 603})
        .LineTo({15, 603})
        .CurveTo({6, 603}, {2, 599}, {2, 590})
        .CurveTo({2, 574}, {8, 560}, {8, 520})
        .CurveTo({9, 400}, {9, 260}, {5, 150})
        .Close();
}

void PaintBench(Canvas& canvas, const Shape& outline) {
    canvas.Paint(kMainWindow, [](Vec2) { return Sample{kCaseGap, 1}; });
    PaintWood(canvas, outline);
    PaintFillets(canvas, outline);
    PaintScrews(canvas);
}

}  // namespace quendrel::art::atelier
