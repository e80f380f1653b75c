#include "skins/Atelier.h"

#include <array>

#include "kit/Fittings.h"
#include "kit/Light.h"
#include "kit/Materials.h"
#include "skins/AtelierCase.h"
#include "skins/AtelierWindows.h"
#include "ui/layout/HighLayout.h"

namespace quendrel::art::atelier {

namespace {

constexpr Color kHollow{0.016, 0.012, 0.010};

/// A well lined with leather, in a frame of brass.
struct LeatherWell {
    // The frame: how far it reaches around the opening, how round its corners and its edges are,
    // how dull it is, and its shadow.
    double frame;
    double frameRadius;
    double roundness;
    double roughness;
    double height;
    double blur;
    double strength;
    // The floor: how far it keeps within the opening, how round its corners are, how deep it lies,
    // how soft the rim's shadow on it is, and how coarse its grain.
    double inset;
    double radius;
    double depth;
    double softness;
    double grain;
};

constexpr LeatherWell kMessagesWell{1.6, 7, 1.4, 0.3, 1.5, 2.0, 0.6, 0.6, 5.5, 2.6, 2.6, 0.16};
constexpr LeatherWell kScoresWell{3.0, 8, 2.2, 0.28, 1.8, 2.2, 0.7, 0.4, 5.5, 2.6, 2.6, 0.16};
constexpr LeatherWell kBoxWell{2.4, 4.5, 1.8, 0.28, 1.6, 2.0, 0.7, 0, 2.5, 2.2, 2.0, 0.3};

/// Leather in the colour kLeather times `tone`, which may differ by place.
template <class Tone>
void PaintLeather(Canvas& canvas, Rect place, const LeatherWell& well, const Tone& tone) {
    const Shape frame = RoundedBox(place, -well.frame, well.frameRadius);
    PaintShadow(canvas, Grown(place, 10), frame, well.height, well.blur, well.strength);
    PaintMetal(canvas, Grown(place, 5), frame, kBrass, well.roundness, 1.4, well.roughness);
    const Shape floor = RoundedBox(place, well.inset, well.radius);
    PaintFace(canvas, place, floor, [&](Vec2 p) {
        const double shade = HollowShadow(floor, p, well.depth, well.softness);
        const Vec3 normal = Pebbled(kFacing, p, 2.6, well.grain, 91);
        return Matte(kLeather * tone(p), normal, shade);
    });
}

// The highscore window's list: a head of brass over ten rows of leather, thin lines between the
// columns.
constexpr int kHeadHeight = 20;
constexpr int kRowsHeight = layout::kHighEntries * layout::kHighRowPitch;
constexpr std::array<double, 3> kColumnLines{90, 293, 352};

void PaintColumnLines(Canvas& canvas) {
    for (const double x : kColumnLines) {
        const Rect area{static_cast<int>(x) - 3, layout::kHighRowTop, 7, kRowsHeight};
        canvas.Paint(area, [&](Vec2 p) {
            const double d = std::abs(p.x - x);
            if (d < 0.6) return Sample{kBrass * 0.42, 1};
            return Shadow(0.5 * SmoothStep(2.0, 0.6, d));
        });
    }
}

void PaintBoardOfHonour(Canvas& canvas, Rect rows) {
    const Rect board{rows.left, rows.top - kHeadHeight, rows.width, rows.height + kHeadHeight};
    PaintLeather(canvas, board, kScoresWell, [](Vec2 p) {
        const int row = std::min(static_cast<int>(p.y) - layout::kHighRowTop, kRowsHeight - 1) /
                        layout::kHighRowPitch;
        return row % 2 == 0 ? 1.0 : 0.52;
    });
    const Rect head{board.left, board.top, board.width, layout::kHighRowTop - board.top};
    const Shape strip = RoundedBox(head, 1.2, 4.5);
    PaintShadow(canvas, Grown(head, 4), strip, 1.4, 1.8, 0.8);
    PaintBrass(
        canvas, head, strip,
        {.middle = MiddleOf(head), .bevel = 1.8, .bow = {0.0006, 0}, .lean = 0.06, .seed = 73});
    PaintColumnLines(canvas);
}

/// A box with a round head.
Shape TorchNiche(Rect place) {
    const double half = place.width / 2.0 + 7;
    const Vec2 spring{MiddleOf(place).x, place.top + 21.0};
    return [=](Vec2 p) {
        if (p.y < spring.y) return Length(p - spring) - half;
        return std::max(std::abs(p.x - spring.x) - half, p.y - place.bottom());
    };
}

}  // namespace

Atelier::Atelier() : Craft(QUENDREL_CAPTION_FONT, QUENDREL_TITLE_FONT) {}

Shape Atelier::Outline(Window window) const {
    switch (window) {
        case Window::kAbout:
            return AboutOutline();
        case Window::kHigh:
            return HighOutline();
        case Window::kConfig:
            return ConfigOutline();
        default:
            return MainOutline();
    }
}

void Atelier::PaintBody(Canvas& canvas, Window window, const Shape& outline) const {
    switch (window) {
        case Window::kMain:
            PaintBench(canvas, outline);
            break;
        case Window::kAbout:
            PaintMantelClock(canvas, outline);
            break;
        case Window::kHigh:
            PaintWallClock(canvas, outline);
            break;
        case Window::kConfig:
            PaintRegulator(canvas);
            break;
    }
}

void Atelier::PaintWell(Canvas& canvas, Rect place, Well kind) const {
    const auto plain = [](Vec2) { return 1.0; };
    switch (kind) {
        case Well::kMessages:
            PaintLeather(canvas, place, kMessagesWell, plain);
            break;
        case Well::kTray:
            PaintHollow(canvas, Grown(place, 4), RoundedBox(place, 0, 7), kLeather * 0.55, 2.4);
            break;
        case Well::kLink:
            PaintNiche(canvas, Grown(place, 7), RoundedBox(place, 1, 7));
            break;
        case Well::kTorch:
            PaintNiche(canvas, Grown(place, 30), TorchNiche(place));
            break;
        case Well::kScores:
            PaintBoardOfHonour(canvas, place);
            break;
        case Well::kBox:
            PaintLeather(canvas, place, kBoxWell, plain);
            break;
    }
}

void Atelier::PaintSocket(Canvas& canvas, Rect place, Socket kind) const {
    const Shape hollow = kind == Socket::kModeSign
                             ? RoundedBox(place, 0.8, place.height / 2.0 - 0.8)
                             : KeySocket(place);
    PaintHollow(canvas, Grown(place, 3), hollow, kHollow, 2.2);
    if (kind != Socket::kPeg) return;
    PaintScrew(canvas, MiddleOf(place), 2.6, place.left * 0.1 + place.top * 0.05, kBrass * 0.55);
}

}  // namespace quendrel::art::atelier
