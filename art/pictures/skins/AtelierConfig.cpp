// Atelier's configuration window: a regulator's case under a break arch with two finials, its
// drawer locked by a key, its wells lined with green leather.
#include <array>
#include <string>

#include "kit/Fittings.h"
#include "kit/Light.h"
#include "skins/AtelierCase.h"
#include "skins/AtelierWindows.h"
#include "ui/ConfigLayout.h"

namespace quendrel::art::atelier {

namespace {

constexpr Rect kConfigWindow = WholeOf(layout::kConfigWindow);
constexpr double kConfigMiddle = kConfigWindow.width / 2.0;

/// The case's brass lines: between the groups of switches, and from side to side below them.
constexpr std::array<double, 2> kPosts{221, 419};
constexpr double kPostTop = 54;
constexpr std::array<double, 3> kRails{173, 239, 421.5};
constexpr Vec2 kLock{260, 445};
constexpr double kFinial = 44;
constexpr Vec2 kTitle{layout::kConfigTitle.middle.x, layout::kConfigTitle.middle.y};

const WoodCut kPanelWood{Hex(0x231008), Hex(0x6c3e21), kPi / 2, 0.8, 907};
const WoodCut kFriezeWood{Hex(0x1a0d07), Hex(0x4c2b18), 0.0, 0.5, 31};
const WoodCut kDrawerWood{Hex(0x231008), Hex(0x6c3e21), 0.0, 0.55, 404};
constexpr Color kInk{0.035, 0.017, 0.007};
constexpr Color kGilt{0.86, 0.60, 0.27};

/// The place of a switch's slot within its picture, its slider, and where its caption begins.
constexpr Rect kSlot{6, 5, 46, 18};
constexpr int kSliderWidth = 22;
constexpr double kCaptionLeft = 63;

/// The case without its finials.
Shape DrawCase() {
    // The left half; beyond the middle it runs on to the right.
    const Shape half = Path({12, 440})
                           .LineTo({12, 64})
                           .CurveTo({12, 58}, {4, 58}, {4, 50})
                           .CurveTo({4, 45}, {8, 42}, {14, 42})
                           .LineTo({166, 42})
                           .CurveTo({178, 42}, {184, 38}, {188, 28})
                           .CurveTo({194, 11}, {212, 2}, {240, 2})
                           .LineTo({900, 2})
                           .LineTo({900, 476})
                           .LineTo({320, 476})
                           .CurveTo({230, 476}, {190, 474}, {150, 474})
                           .CurveTo({120, 474}, {118, 487}, {96, 487})
                           .LineTo({14, 487})
                           .CurveTo({6, 487}, {2, 482}, {2, 474})
                           .CurveTo({2, 458}, {12, 456}, {12, 440})
                           .Close();
    return Symmetric(half, kConfigMiddle);
}

/// How wide a finial's turned body is, each way from its axis.
double FinialRadius(double y) {
    const double ball = Square(11.2) - Square(y - 15);
    const double neck = 3.2 + 9.5 * Square(SmoothStep(29, 39, y));
    return std::max(neck, ball > 0 ? std::sqrt(ball) : 0.0);
}

/// The finials with the dark rim that the outline keeps around them.
Shape Finials() {
    const Shape ball = Ellipse({kFinial, 15}, {13.2, 13.2});
    const Shape neck = RoundedBox({kFinial - 6.2, 20}, {kFinial + 6.2, 46}, 1);
    const Shape foot = RoundedBox({kFinial - 14.7, 33.5}, {kFinial + 14.7, 50}, 4);
    return Symmetric(Union(ball, Union(foot, neck)), kConfigMiddle);
}

/// A leather floor in a brass frame; its nap is so fine that live text stands on one colour.
void PaintLeatherWell(Canvas& canvas, Rect well) {
    const Shape frame = RoundedBox(well, -2.4, 4.5);
    PaintShadow(canvas, Grown(well, 9), frame, 1.6, 2.0, 0.7);
    PaintMetal(canvas, Grown(well, 4), frame, kBrass, 1.8, 1.4, 0.28);
    const Shape floor = RoundedBox(well, 0, 2.5);
    canvas.Paint(well, [&](Vec2 p) {
        if (floor(p) >= 0) return Sample{};
        const double shade = HollowShadow(floor, p, 2.2, 2.0);
        return Sample{Matte(kLeather, Pebbled(kFacing, p, 2.6, 0.3, 91), shade), 1};
    });
}

/// The drawer's lock: an oval of brass around a keyhole.
void PaintLock(Canvas& canvas) {
    const Rect area{static_cast<int>(kLock.x) - 24, static_cast<int>(kLock.y) - 20, 48, 40};
    const Shape plate = Ellipse(kLock, {11, 15});
    PaintShadow(canvas, area, plate, 1.6, 2.0, 0.7);
    PaintMetal(canvas, area, plate, kBrass, 2.6, 1.3, 0.28);
    const Shape hole = Union(Ellipse(kLock + Vec2{0, -3.5}, {3.4, 3.4}),
                             Stroke(kLock + Vec2{0, -2}, kLock + Vec2{0, 7}, 2.8));
    PaintHollow(canvas, area, hole, {0.008, 0.006, 0.005}, 1.6);
}

void PaintLines(Canvas& canvas, const Shape& inner) {
    for (const double x : kPosts) {
        const Shape post = RoundedBox({x - 0.9, kPostTop}, {x + 0.9, kRails[0]}, 0.9);
        PaintFillet(canvas, {static_cast<int>(x) - 6, 48, 12, 130}, post, inner);
    }
    for (const double y : kRails) {
        const Shape rail = [y](Vec2 p) { return std::abs(p.y - y) - 0.9; };
        PaintFillet(canvas, {0, static_cast<int>(y) - 6, kConfigWindow.width, 12}, rail, inner);
    }
}

Color CaseWood(Vec2 p) {
    // The panel's veneer is laid out from its middle, the same on both sides.
    if (p.y < kRails[0]) return Wood({std::abs(p.x - kConfigMiddle) + 40, p.y}, kPanelWood);
    if (p.y < kRails[1]) return Wood(p, kFriezeWood);
    return Wood(p.y < kRails[2] ? p : p + Vec2{350, 90}, kDrawerWood);
}

/// What the lamp shows of the case's wood.
Color LitWood(Vec2 p) {
    return CaseWood(p) * Mix(1.35, 0.75, SmoothStep(0, 560, Length(p - Vec2{230, 80})));
}

/// The finials' rim, over the wood that goes on around `body`.
void PaintFinialBed(Canvas& canvas, const Shape& body) {
    const Shape finials = Finials();
    const Shape around = BothSides(finials);
    canvas.Paint({0, 0, kConfigWindow.width, 52}, [&](Vec2 p) {
        const bool bed = finials(p) < 0 || around(p) > -kDarkRim;
        return Sample{kCaseGap, bed && body(p) > -kDarkRim ? 1.0 : 0.0};
    });
}

/// Turned of the case's own wood, which another outline may cut: a body of revolution about the
/// upright line at `axis`.
void PaintFinial(Canvas& canvas, double axis) {
    const Rect area{static_cast<int>(axis) - 20, 0, 40, 46};
    canvas.Paint(area, [axis](Vec2 p) {
        const double radius = FinialRadius(p.y);
        const double across = (p.x - axis) / radius;
        if (std::abs(across) >= 1 || p.y < 4) return Sample{};
        const double flare = (FinialRadius(p.y + 0.3) - FinialRadius(p.y - 0.3)) / 0.6;
        const double facing = std::sqrt(1 - Square(across));
        const Vec3 normal = Normalize({across, -std::clamp(flare, -3.0, 3.0), facing});
        const double groove = std::abs(p.y - 26.6) < 0.7 ? 0.35 : 1.0;
        return Sample{Coated(LitWood(p) * 1.25, normal, 0.2) * groove, 1};
    });
}

/// Engraved in a little plate of brass.
void PaintGroupPlate(Canvas& canvas, const Font& font, const layout::ConfigHeading& group) {
    const Rect area{group.middle.x - 60, group.middle.y - 16, 120, 32};
    const Vec2 middle{static_cast<double>(group.middle.x), static_cast<double>(group.middle.y)};
    const Shape plate = RoundedBox(middle - Vec2{38, 9}, middle + Vec2{38, 9}, 4);
    PaintShadow(canvas, area, plate, 1.4, 1.8, 0.75);
    canvas.Paint(area, [&](Vec2 p) {
        if (plate(p) >= 0) return Sample{};
        const Vec3 edge = Rounded(plate, p, 2.0, 1.0);
        const Vec3 normal = Normalize({edge.x + (p.x - middle.x) * 0.002, edge.y - 0.05, edge.z});
        return Sample{Metal(kBrass, Brushed(normal, p, 0, 0.06, 79), 0.3) * 0.92, 1};
    });
    PaintEngraved(canvas, area, font.Line(std::string(group.text), 19, middle, 0.8), kInk,
                  {1.0, 0.85, 0.5});
    for (const double side : {-32.0, 32.0})
        PaintEngraved(canvas, area, Ellipse(middle + Vec2{side, 0}, {1.3, 1.3}), kInk,
                      {1.0, 0.85, 0.5});
}

struct SwitchTones {
    Color brass;
    Color floor;
    Color sign;
    Color caption;
};

SwitchTones TonesOf(SwitchState state) {
    switch (state) {
        case SwitchState::Off:
            return {kBrass, kLeather * 0.35, {0.50, 0.36, 0.17}, {0.74, 0.52, 0.24}};
        case SwitchState::On:
            return {kBrass, kLamp, {0.05, 0.02, 0.004}, {1.25, 0.95, 0.52}};
        case SwitchState::Disabled:
            return {{0.19, 0.18, 0.165}, {0.02, 0.019, 0.018}, {}, {0.27, 0.25, 0.227}};
    }
    return {};
}

Rect SliderAt(Rect slot, SwitchState state) {
    const int way = slot.width - kSliderWidth;
    int step = way / 2;
    if (state == SwitchState::Off) step = 0;
    if (state == SwitchState::On) step = way;
    return {slot.left + step, slot.top, kSliderWidth, slot.height};
}

/// The slot in its brass frame; the side that the slider leaves is lit when on.
void PaintSlot(Canvas& canvas, Rect place, Rect slot, SwitchState state) {
    const SwitchTones tones = TonesOf(state);
    const Shape frame = RoundedBox(slot, -2.0, 6.5);
    const Shape floor = RoundedBox(slot, 0.2, 4.5);
    PaintShadow(canvas, place, frame, 1.2, 1.8, 0.7);
    PaintMetal(canvas, place, frame, tones.brass, 1.4, 1.3, 0.3);
    const Vec2 lamp{slot.left + (slot.width - kSliderWidth) / 2.0, slot.top + slot.height / 2.0};
    canvas.Paint(place, [&](Vec2 p) {
        if (floor(p) >= 0) return Sample{};
        const double shade = HollowShadow(floor, p, 2.2, 1.8);
        if (state != SwitchState::On) return Sample{Matte(tones.floor, kFacing, shade), 1};
        const double near = SmoothStep(16, 1, Length(p - lamp));
        return Sample{tones.floor * (Mix(0.16, 0.46, near) * (1 - 0.3 * shade)), 1};
    });
    Shape sign = Stroke(lamp + Vec2{0, -3.7}, lamp + Vec2{0, 3.7}, 2.5);
    if (state == SwitchState::Disabled) return;
    if (state == SwitchState::Off)
        sign = Band(Ellipse(lamp + Vec2{static_cast<double>(kSliderWidth), 0}, {4.4, 4.9}), 0, 1.6);
    canvas.Paint(place, [&](Vec2 p) { return Sample{tones.sign, Inside(sign(p))}; });
}

/// A block of brass with a knurl to push it by.
void PaintSlider(Canvas& canvas, Rect place, Rect slider, Color brass) {
    const Shape block = RoundedBox(slider, 0.6, 3.5);
    const Vec2 middle = MiddleOf(slider);
    PaintShadow(canvas, place, block, 2.0, 1.8, 0.85);
    canvas.Paint(place, [&](Vec2 p) {
        if (block(p) >= 0) return Sample{};
        const Vec3 edge = Rounded(block, p, 3.0, 1.1);
        const Vec2 q = p - middle;
        // Flutes from top to bottom, each with a lit and a shaded flank.
        const bool fluted = std::abs(q.x) < 6 && std::abs(q.y) < 5.5;
        const double flank = fluted ? 0.75 * std::sin(q.x * kPi) : 0.0;
        const Vec3 normal = Normalize({edge.x + flank, edge.y + q.y * 0.02 - 0.04, edge.z});
        return Sample{Metal(brass, normal, 0.3), 1};
    });
}

}  // namespace

Shape AtelierWindows::ConfigOutline() const {
    static const Shape outline = Sampled(Union(DrawCase(), Finials()), kConfigWindow);
    return outline;
}

void AtelierWindows::PaintConfig(Canvas& canvas) const {
    const Shape body = Sampled(DrawCase(), kConfigWindow);
    PaintBody(canvas, kConfigWindow, body, LitWood);
    PaintFinialBed(canvas, body);
    for (const double axis : {kFinial, kConfigWindow.width - kFinial}) PaintFinial(canvas, axis);
    PaintLines(canvas, Inset(body, kDarkRim + kCaseMoulding - 0.5));
    PaintMoulding(canvas, kConfigWindow, body);
    for (const Rect& well : layout::kConfigWells) PaintLeatherWell(canvas, well);
    for (const layout::ConfigPlace& button : layout::kConfigButtons) {
        PaintHollow(canvas, Grown(button.place, 3), Socket(button.place), {0.016, 0.012, 0.010},
                    2.2);
    }
    PaintLock(canvas);
    PaintConfigTexts(canvas);
}

void AtelierWindows::PaintConfigTexts(Canvas& canvas) const {
    PaintPlate(canvas, {204, 8, 232, 48}, RoundedBox({218, 13}, {422, 47}, 6),
               Inset(titles_.Line(std::string(layout::kConfigTitle.text), 27, kTitle, 1.8), -0.32));
    for (const double x : {227.5, 412.5}) PaintScrew(canvas, {x, kTitle.y}, 2.4, x * 0.3, kBrass);
    for (const layout::ConfigHeading& group : layout::kConfigGroups)
        PaintGroupPlate(canvas, captions_, group);
    for (const layout::ConfigHeading& head : layout::kConfigHeads) {
        const Vec2 middle{static_cast<double>(head.middle.x), static_cast<double>(head.middle.y)};
        PaintGilt(canvas, {head.middle.x - 60, head.middle.y - 10, 120, 20},
                  captions_.Line(std::string(head.text), 17, middle, 0.6), kGilt);
    }
}

void AtelierWindows::PaintSwitch(Canvas& canvas, const Button& button, SwitchState state) const {
    const Rect place = button.place;
    const Rect slot{place.left + kSlot.left, place.top + kSlot.top, kSlot.width, kSlot.height};
    const SwitchTones tones = TonesOf(state);
    PaintSlot(canvas, place, slot, state);
    PaintSlider(canvas, place, SliderAt(slot, state), tones.brass);
    const double width = captions_.Width(button.caption, 19, 0.5);
    const Vec2 middle{place.left + kCaptionLeft + width / 2, MiddleOf(place).y};
    PaintGilt(canvas, place, captions_.Line(button.caption, 19, middle, 0.5), tones.caption);
}

}  // namespace quendrel::art::atelier
