// Beacon's keys: domed pills of matte anthracite with plain white captions, yellow where they
// invite, of chalk where they answer; and its switches with I and O.
#include "kit/Fittings.h"
#include "kit/Light.h"
#include "skins/Beacon.h"

namespace quendrel::art::beacon {

namespace {

/// A little blue, so that a disabled key, which is grey, can be told apart.
constexpr Color kAnthracite{0.0125, 0.0165, 0.0230};

Vec2 Travel(ButtonState state) { return Pushed(state, {0.7, 1.2}); }

Color KeyStuff(ButtonKind kind) {
    if (kind == ButtonKind::kInviting) return kSignal;
    if (kind == ButtonKind::kPeg) return kAnthracite * 3;
    return kind == ButtonKind::kAnswer ? kChalk * 0.9 : kAnthracite;
}

/// The normal of a key's domed face.
Vec3 Domed(const Shape& key, Vec2 p, Vec2 middle, double height, ButtonState state) {
    const Vec3 edge = Rounded(key, p, 3.4, state == ButtonState::kDown ? 0.5 : 0.9);
    const Vec2 q = p - middle;
    const double bulge = state == ButtonState::kDown ? 0.14 : 0.30;
    return Normalize({edge.x + q.x * 0.003, edge.y + bulge * 2 * q.y / height, edge.z});
}

/// The colour of a key's face.
Color KeyFace(ButtonKind kind, ButtonState state, Vec3 normal, double shade) {
    const Color face = Coated(KeyStuff(kind), normal, 0.75, shade);
    switch (state) {
        case ButtonState::kDisabled:
            return Mix(Greyed(face, 0), {0.05, 0.05, 0.05}, 0.75);
        case ButtonState::kOver:
            return face * (StandsOut(kind) ? 1.10 : 1.35);
        case ButtonState::kDown:
            return face * (StandsOut(kind) ? 0.72 : 0.62);
        default:
            return face;
    }
}

/// The light around a key that is pointed at or held.
void PaintHalo(Canvas& canvas, const Button& button, ButtonState state, const Shape& key) {
    const bool held = state == ButtonState::kDown && CanBeHeld(button.kind);
    if (!held && state != ButtonState::kOver) return;
    // The light of a key that is held stays where it is while the key goes in.
    const Shape ring = held ? Band(Pill(button.place, 1.9), 0, 2.2) : Band(key, 0, 1.3);
    const Color light = held ? kSignal * 1.15 : kChalk;
    PaintFlat(canvas, button.place, ring, light);
}

}  // namespace

void Beacon::PaintBlank(Canvas& canvas, const Button& button, ButtonState state) const {
    const Rect place = button.place;
    const Shape socket = Pill(place, 0.8);
    const Shape key = Moved(Pill(place, 2.2), Travel(state));
    PaintSocket(canvas, place, Socket::kKey);
    PaintShadow(canvas, place, key, state == ButtonState::kDown ? 0.6 : 1.8, 1.5, 0.8);
    const Vec2 middle = MiddleOf(place) + Travel(state);
    PaintFace(canvas, place, key, [&](Vec2 p) {
        const double shade =
            state == ButtonState::kDown ? 0.8 * HollowShadow(socket, p, 3.0, 3.0) : 0.0;
        const Vec3 normal = Domed(key, p, middle, place.height, state);
        return KeyFace(button.kind, state, normal, shade);
    });
    PaintHalo(canvas, button, state, key);
}

void Beacon::PaintKeyPeg(Canvas& canvas, const Button& button, ButtonState state) const {
    const double scale = state == ButtonState::kDown ? 0.86 : 0.92;
    const Vec2 middle = MiddleOf(button.place) + Travel(state) * 0.5;
    if (state == ButtonState::kDisabled) {
        PaintBareDish(canvas, button.place, middle, scale, button.color);
    } else {
        PaintTablet(canvas, button.place, middle, scale, button.color);
    }
}

void Beacon::PaintCaption(Canvas& canvas, const Button& button, ButtonState state) const {
    const Vec2 middle = MiddleOf(button.place) + Travel(state);
    const bool large = button.kind == ButtonKind::kInviting;
    const bool small = button.kind == ButtonKind::kAnswer || button.place.height < 30;
    const Shape sign = Sign(button, middle, {Captions(), large ? 18.0 : small ? 14.0 : 16.0, 0.2});
    Color ink = StandsOut(button.kind) ? kInk : kChalk;
    if (state == ButtonState::kDown && CanBeHeld(button.kind)) ink = kSignal * 1.1;
    if (state == ButtonState::kDisabled) {
        ink = Color{1, 1, 1} * (StandsOut(button.kind) ? 0.022 : 0.19);
    }
    PaintFlat(canvas, button.place, sign, ink);
}

void Beacon::PaintClock(Canvas& canvas, Rect place, bool running) const {
    const Vec2 middle = MiddleOf(place);
    const auto tone = [running](Color c) { return running ? c : Greyed(c, 0) * 0.16; };
    const Shape rim = Ellipse(middle, {11.6, 11.6});
    const Shape dial = Ellipse(middle, {10, 10});
    PaintShadow(canvas, place, rim, 1.2, 1.4, 0.8);
    PaintFace(canvas, place, rim, [&](Vec2 p) {
        const bool face = dial(p) < 0;
        const Vec3 normal = Rounded(face ? dial : rim, p, 1.6, face ? -0.3 : 0.9);
        return tone(Matte(face ? kSignal : kAnthracite * 2.5, normal));
    });
    const Shape marks = Union(DialStrokes(middle, 1.18), DialHands(middle, 1.18));
    PaintFlat(canvas, place, marks, kInk);
}

void Beacon::PaintLever(Canvas& canvas, Rect place, SwitchState state) const {
    const Shape track = Pill(place, 1.5);
    const bool on = state == SwitchState::kOn;
    const bool dead = state == SwitchState::kDisabled;
    const Color floor = on ? kSignal * 0.9 : dead ? Color{0.040, 0.045, 0.051} : kFloor;
    PaintSunk(canvas, place, track, floor, 2.0);
    const Vec2 middle = MiddleOf(place);
    const double travel = (place.width - place.height) / 2.0;
    const Vec2 stroke{0, 4.6};
    const Shape one =
        Stroke(middle - Vec2{travel, 0} - stroke, middle - Vec2{travel, 0} + stroke, 2.4);
    const Shape zero = Band(Ellipse(middle + Vec2{travel - 0.5, 0}, {5.4, 5.4}), 0, 2.0);
    canvas.Paint(place, [&](Vec2 p) {
        if (dead) return Sample{};
        return on ? Sample{kInk, Inside(one(p))} : Sample{kChalk, Inside(zero(p))};
    });
    const double at = dead ? 0 : on ? travel : -travel;
    const double radius = place.height / 2.0 - 3.2;
    const Shape knob = Ellipse(middle + Vec2{at, 0}, {radius, radius});
    PaintShadow(canvas, place, knob, 1.8, 1.6, 0.8);
    PaintFace(canvas, place, knob, [&](Vec2 p) {
        const Vec3 edge = Rounded(knob, p, 3, 0.7);
        const Color face = Matte(kChalk, edge);
        return dead ? Greyed(face, 0) * 0.22 : face;
    });
}

void Beacon::PaintSwitchCaption(Canvas& canvas, const std::string& text, Vec2 leftMiddle,
                                SwitchState state) const {
    const Shape letters = Captions().LineFrom(text, 15.5, leftMiddle, 0.2);
    const Color ink = state == SwitchState::kDisabled ? Color{0.17, 0.17, 0.17} : kChalk;
    PaintFlat(canvas, canvas.Area(), letters, ink);
}

}  // namespace quendrel::art::beacon
