// Atelier's keys: ebony with brass, brass with engraving, ivory; and the little watch.
#include "kit/Fittings.h"
#include "kit/Glass.h"
#include "kit/Materials.h"
#include "skins/Atelier.h"
#include "skins/AtelierCase.h"
#include "skins/Signs.h"

namespace quendrel::art::atelier {

namespace {

constexpr Color kEbonyKey{0.014, 0.010, 0.008};
constexpr Color kIvory{0.78, 0.68, 0.48};

Color Dulled(Color c, double keep) {
    const double grey = Luminance(c);
    return Mix({grey, grey * 0.95, grey * 0.88}, c, keep);
}

/// How far a key is pushed in.
Vec2 Travel(ButtonState state) { return Pushed(state, {0.8, 1.2}); }

double Standing(ButtonState state) { return state == ButtonState::kDown ? 0.8 : 2.2; }

/// The colour of a key's face.
Color KeyFace(ButtonKind kind, ButtonState state, Vec3 normal, Vec2 p) {
    Color face = Coated(kEbonyKey, normal, 0.2);
    if (kind == ButtonKind::kInviting) {
        face = Metal(kBrass, Brushed(normal, p, 0, 0.06, 41), 0.3) * 1.25;
    } else if (kind == ButtonKind::kAnswer) {
        face = Coated(kIvory, normal, 0.25);
    }
    if (state == ButtonState::kDisabled) {
        face = Dulled(face, 0.2) * (StandsOut(kind) ? 0.30 : 0.75);
    }
    if (state == ButtonState::kOver) return face * 1.18;
    return state == ButtonState::kDown ? face * 0.70 : face;
}

Color RimTint(ButtonState state) {
    if (state == ButtonState::kDisabled) return Dulled(kBrass, 0.2) * 0.28;
    return kBrass * (state == ButtonState::kOver ? 1.9 : 0.8);
}

/// A small lamp of glass set in a key that can be held.
void PaintJewel(Canvas& canvas, Rect area, Vec2 center, ButtonState state) {
    const bool lit = state == ButtonState::kDown;
    static constexpr GlassKind kDark{{0.30, 0.07, 0.01}, {0.12, 0.03, 0.006}, 0.5, 0.9};
    static constexpr GlassKind kLit{{1.0, 0.62, 0.12}, {2.6, 1.35, 0.35}, 0.8, 2.0};
    static constexpr GlassKind kDead{{0.10, 0.09, 0.08}, {0.05, 0.045, 0.04}, 0.5, 0.6};
    const Dome dome{center, 2.7, 1.8, 0.999};
    const Shape setting = Ellipse(center, {3.6, 3.6});
    if (lit) {
        canvas.Paint(area, [&](Vec2 p) {
            return Sample{kLamp * 0.6, 0.75 * Square(SmoothStep(11, 2, Length(p - center)))};
        });
    }
    PaintMetal(canvas, area, setting, RimTint(state), 1.0, 1.2, 0.35);
    const GlassKind& glass = lit ? kLit : state == ButtonState::kDisabled ? kDead : kDark;
    canvas.Paint(area, [&](Vec2 p) { return GlassSample(dome, glass, p); });
}

/// The brass line of an ebony key; on any key, the light around it when it is held or pointed at.
void PaintKeyRim(Canvas& canvas, const Button& button, ButtonState state, const Shape& key) {
    const Rect place = button.place;
    const bool lit = state == ButtonState::kDown || state == ButtonState::kOver;
    if (!lit && StandsOut(button.kind)) return;
    const double depth = !StandsOut(button.kind) && button.kind != ButtonKind::kPeg ? 1.3 : 0.0;
    const Shape rim = Band(key, depth, 1.3);
    if (state != ButtonState::kDown) {
        PaintMetal(canvas, place, rim, RimTint(state), 0.6, 0.6, 0.4);
        return;
    }
    const Shape socket = KeySocket(place);
    if (CanBeHeld(button.kind)) {
        // The light stays where it is while the key goes in.
        PaintFlat(canvas, place, Band(socket, 0, 5.0), {0.010, 0.008, 0.006}, 0.8);
        PaintFlat(canvas, place, Band(socket, 1.1, 2.2), kLamp);
        return;
    }
    canvas.Paint(place, [&](Vec2 p) {
        const double d = rim(p);
        if (d < 0) return Sample{kLamp, 0.95};
        return Sample{kLamp * 0.6, 0.5 * Square(SmoothStep(5.0, 0.0, d)) * Inside(socket(p))};
    });
}

Type CaptionType(const Button& button, const Font& font) {
    switch (button.kind) {
        case ButtonKind::kInviting:
            return {font, 25, 0.6};
        case ButtonKind::kAnswer:
        case ButtonKind::kMode:
            return {font, 18, 0.5};
        default:
            return {font, button.place.height < 30 ? 18.0 : 20.0, 0.5};
    }
}

/// A switch's slot within its lever's place, its slider, and how far its caption keeps away.
constexpr Rect kSlot{2, 3, 46, 18};
constexpr int kSliderWidth = 22;
constexpr double kCaptionGap = 5;

struct SwitchTones {
    Color brass;
    Color floor;
    Color sign;
    Color caption;
};

SwitchTones TonesOf(SwitchState state) {
    switch (state) {
        case SwitchState::kOff:
            return {kBrass, kLeather * 0.35, {0.50, 0.36, 0.17}, {0.74, 0.52, 0.24}};
        case SwitchState::kOn:
            return {kBrass, kLamp, {0.05, 0.02, 0.004}, {1.25, 0.95, 0.52}};
        case SwitchState::kDisabled:
            return {{0.19, 0.18, 0.165}, {0.02, 0.019, 0.018}, {}, {0.27, 0.25, 0.227}};
    }
    return {};
}

Rect SliderAt(Rect slot, SwitchState state) {
    const int way = slot.width - kSliderWidth;
    int step = way / 2;
    if (state == SwitchState::kOff) step = 0;
    if (state == SwitchState::kOn) step = way;
    return {slot.left + step, slot.top, kSliderWidth, slot.height};
}

/// The slot in its brass frame; the side that the slider leaves is lit when on.
void PaintSlot(Canvas& canvas, Rect slot, SwitchState state) {
    const Rect place = canvas.Area();
    const SwitchTones tones = TonesOf(state);
    const Shape frame = RoundedBox(slot, -2.0, 6.5);
    const Shape floor = RoundedBox(slot, 0.2, 4.5);
    PaintShadow(canvas, place, frame, 1.2, 1.8, 0.7);
    PaintMetal(canvas, place, frame, tones.brass, 1.4, 1.3, 0.3);
    const Vec2 lamp{slot.left + (slot.width - kSliderWidth) / 2.0, slot.top + slot.height / 2.0};
    PaintFace(canvas, place, floor, [&](Vec2 p) {
        const double shade = HollowShadow(floor, p, 2.2, 1.8);
        if (state != SwitchState::kOn) return Matte(tones.floor, kFacing, shade);
        const double near = SmoothStep(16, 1, Length(p - lamp));
        return tones.floor * (Mix(0.16, 0.46, near) * (1 - 0.3 * shade));
    });
    Shape sign = Stroke(lamp + Vec2{0, -3.7}, lamp + Vec2{0, 3.7}, 2.5);
    if (state == SwitchState::kDisabled) return;
    if (state == SwitchState::kOff) {
        sign = Band(Ellipse(lamp + Vec2{static_cast<double>(kSliderWidth), 0}, {4.4, 4.9}), 0, 1.6);
    }
    PaintFlat(canvas, place, sign, tones.sign);
}

/// A block of brass with a knurl to push it by.
void PaintSlider(Canvas& canvas, Rect slider, Color brass) {
    const Rect place = canvas.Area();
    const Shape block = RoundedBox(slider, 0.6, 3.5);
    const Vec2 middle = MiddleOf(slider);
    PaintShadow(canvas, place, block, 2.0, 1.8, 0.85);
    PaintFace(canvas, place, block, [&](Vec2 p) {
        const Vec3 edge = Rounded(block, p, 3.0, 1.1);
        const Vec2 q = p - middle;
        // Flutes from top to bottom, each with a lit and a shaded flank.
        const bool fluted = std::abs(q.x) < 6 && std::abs(q.y) < 5.5;
        const double flank = fluted ? 0.75 * std::sin(q.x * kPi) : 0.0;
        const Vec3 normal = Normalize({edge.x + flank, edge.y + q.y * 0.02 - 0.04, edge.z});
        return Metal(brass, normal, 0.3);
    });
}

}  // namespace

void Atelier::PaintBlank(Canvas& canvas, const Button& button, ButtonState state) const {
    const Rect place = button.place;
    const Shape key = Moved(RoundedBox(place, 2.4, 4.5), Travel(state));
    PaintHollow(canvas, place, KeySocket(place), {0.010, 0.008, 0.006}, 2.2);
    PaintShadow(canvas, place, key, Standing(state), 1.5, 0.8);
    const Vec2 middle = MiddleOf(place);
    PaintFace(canvas, place, key, [&](Vec2 p) {
        const Vec2 q = p - middle;
        Vec3 normal = Rounded(key, p, 3.2, state == ButtonState::kDown ? 0.6 : 1.0);
        normal = Normalize({normal.x + q.x * 0.003, normal.y + q.y * 0.014, normal.z});
        return KeyFace(button.kind, state, normal, p);
    });
    PaintKeyRim(canvas, button, state, key);
    if (button.kind == ButtonKind::kPeg || button.kind == ButtonKind::kMode) {
        const double side = place.width / 2.0 - 11;
        for (const double x : {-side, side}) {
            PaintJewel(canvas, place, middle + Travel(state) + Vec2{x, 0}, state);
        }
    }
}

void Atelier::PaintKeyPeg(Canvas& canvas, const Button& button, ButtonState state) const {
    const double scale = state == ButtonState::kDown ? 0.82 : 0.90;
    const Vec2 middle = MiddleOf(button.place) + Travel(state) * 0.5;
    if (state == ButtonState::kDisabled) {
        PaintBareSeat(canvas, button.place, middle, scale, button.color);
        return;
    }
    PaintSeat(canvas, button.place, middle, scale, kBrass);
    PaintDome(canvas, button.place, middle, scale, GlassOf(button.color));
}

/// Without its peg a seat shows its felt, and a ring of enamel in the peg's colour.
void Atelier::PaintBareSeat(Canvas& canvas, Rect area, Vec2 middle, double scale, int color) {
    PaintSeat(canvas, area, middle, scale, RimTint(ButtonState::kDisabled) * 2);
    const Shape well = Ellipse(middle + Vec2{0, 0.2 * scale}, Vec2{18.3, 10.5} * scale);
    PaintFace(canvas, area, well, [&](Vec2 p) {
        return Matte({0.178, 0.180, 0.180}, kFacing, 0.9 * HollowShadow(well, p, 2.2, 1.6));
    });
    const Shape ring = Band(Ellipse(middle + Vec2{0, 0.8} * scale, Vec2{14, 7.6} * scale), 0, 2.3);
    PaintFace(canvas, area, ring, [&](Vec2 p) {
        return Matte(Faded(GlassOf(color).milk, 0.8) * 0.45, Rounded(ring, p, 1.0, 0.5));
    });
}

void Atelier::PaintCaption(Canvas& canvas, const Button& button, ButtonState state) const {
    const Shape sign =
        Sign(button, MiddleOf(button.place) + Travel(state), CaptionType(button, Captions()));
    const bool disabled = state == ButtonState::kDisabled;
    if (StandsOut(button.kind)) {
        const Color ink = disabled ? Color{0.020, 0.018, 0.015} : Color{0.03, 0.015, 0.007};
        const Color edge = disabled ? Color{0.16, 0.15, 0.13} : Color{1.0, 0.9, 0.62};
        PaintEngraved(canvas, button.place, sign, ink, edge);
        return;
    }
    Color inlay{1.15, 0.82, 0.36};
    if (state == ButtonState::kUp) inlay = {0.80, 0.56, 0.25};
    if (disabled) inlay = {0.15, 0.138, 0.122};
    canvas.Paint(button.place, [&](Vec2 p) {
        const Vec3 normal = Rounded(sign, p, 0.8, 0.5);
        return Sample{inlay * (0.8 + 0.35 * Dot(normal, kKeyLight)), Inside(sign(p))};
    });
}

void Atelier::PaintClock(Canvas& canvas, Rect place, bool running) const {
    const Vec2 middle = MiddleOf(place) + Vec2{0, 1};
    const Shape bezel = Ellipse(middle, {10.6, 10.6});
    const Shape dial = Ellipse(middle, {8.4, 8.4});
    const Shape crown = Stroke(middle + Vec2{0, -12.2}, middle + Vec2{0, -10.5}, 4);
    const auto tone = [running](Color c) { return running ? c : Dulled(c, 0.1) * 0.22; };
    PaintShadow(canvas, place, Union(bezel, crown), 1.6, 1.6, 0.8);
    PaintMetal(canvas, place, crown, tone(kBrass), 1.5, 1.2, 0.3);
    PaintMetal(canvas, place, bezel, tone(kBrass), 2.2, 1.4, 0.25);
    PaintFace(canvas, place, dial, [&](Vec2 p) {
        const double shade = HollowShadow(dial, p, 0.9, 1.0);
        return tone(Coated({0.86, 0.82, 0.70}, kFacing, 0.3, shade));
    });
    const Color ink = running ? Color{0.03, 0.02, 0.015} : Color{0.012, 0.011, 0.010};
    for (const Shape& part : {DialStrokes(middle, 1), DialHands(middle, 1)}) {
        PaintFlat(canvas, place, part, ink);
    }
}

void Atelier::PaintLever(Canvas& canvas, Rect place, SwitchState state) const {
    const Rect slot{place.left + kSlot.left, place.top + kSlot.top, kSlot.width, kSlot.height};
    PaintSlot(canvas, slot, state);
    PaintSlider(canvas, SliderAt(slot, state), TonesOf(state).brass);
}

void Atelier::PaintSwitchCaption(Canvas& canvas, const std::string& text, Vec2 leftMiddle,
                                 SwitchState state) const {
    const Shape letters = Captions().LineFrom(text, 19, leftMiddle + Vec2{kCaptionGap, 0}, 0.5);
    PaintGilt(canvas, canvas.Area(), letters, TonesOf(state).caption);
}

}  // namespace quendrel::art::atelier
