// Daylight's keys: cushions of porcelain with a painted line, dipped in cobalt where they invite or
// are held; the little clock, and the switches' knobs.
#include "kit/Fittings.h"
#include "skins/Daylight.h"
#include "skins/Signs.h"

namespace quendrel::art::daylight {

namespace {

constexpr Color kPaleGlaze{0.64, 0.755, 0.90};
constexpr Color kLitLine{0.055, 0.54, 0.50};
constexpr Color kGreyInk{0.235, 0.253, 0.278};

/// Whether the key is held down because what it stands for is chosen.
bool IsHeld(const Button& button, ButtonState state) {
    return state == ButtonState::kDown &&
           (button.kind == ButtonKind::kMode || button.kind == ButtonKind::kPeg);
}

/// A key under blue glaze, its lettering left white.
bool IsDipped(const Button& button, ButtonState state) {
    return state != ButtonState::kDisabled &&
           (button.kind == ButtonKind::kInviting || IsHeld(button, state));
}

Color BodyOf(const Button& button, ButtonState state) {
    if (state == ButtonState::kDisabled) return kBisque;
    if (IsHeld(button, state)) return kDipped;
    const bool down = state == ButtonState::kDown;
    if (button.kind == ButtonKind::kInviting) {
        return down ? kDipped * 0.55 : state == ButtonState::kOver ? kDipped * 1.7 : kDipped;
    }
    const Color body = button.kind == ButtonKind::kAnswer ? kPorcelain : kPaleGlaze;
    return down ? body * Color{0.50, 0.60, 0.74} : state == ButtonState::kOver ? kPorcelain : body;
}

/// How far a key is pushed in.
Vec2 Travel(ButtonState state) { return Pushed(state, {0.8, 1.3}); }

/// A cushion: round at both ends where it is low, with soft corners where it is tall.
Shape Cushion(Rect place, double inset) {
    const double round = std::min(place.width, place.height) / 2.0 - inset;
    return RoundedBox(place, inset, std::min(round, 15.0));
}

/// The painted line of a key, and the light around one that is pointed at.
void PaintLine(Canvas& canvas, const Button& button, ButtonState state, const Shape& key) {
    const Rect place = button.place;
    if (state == ButtonState::kOver) {
        const Shape rim = Band(key, 0.4, 2.8);
        PaintTile(canvas, place, rim, kLitLine, 1.3, 0.8);
        return;
    }
    if (IsHeld(button, state)) {
        // It stays where it is while the key goes in.
        PaintFlat(canvas, place, Band(Cushion(place, 0.9), 0, 5.0), kCobalt);
        PaintTile(canvas, place, Band(Cushion(place, 1.9), 0, 2.2), kSunlit, 1.0, 0.4);
        return;
    }
    if (place.width < 34) return;
    const Shape line = Band(key, 2.7, button.kind == ButtonKind::kInviting ? 1.3 : 1.0);
    Color pigment = IsDipped(button, state) ? kPorcelain : kCobalt;
    if (state == ButtonState::kDisabled) pigment = kGreyInk;
    PaintBrushed(canvas, place, line, pigment);
}

}  // namespace

void Daylight::PaintBlank(Canvas& canvas, const Button& button, ButtonState state) const {
    const Rect place = button.place;
    const Shape key = Moved(Cushion(place, 2.0), Travel(state));
    const bool down = state == ButtonState::kDown;
    PaintShadow(canvas, place, key, down ? 0.7 : 1.9, 1.6, 0.6);
    PaintTile(canvas, place, key, BodyOf(button, state), down ? 3.6 : 5.5, down ? 0.5 : 1.0);
    PaintLine(canvas, button, state, key);
}

void Daylight::PaintKeyPeg(Canvas& canvas, const Button& button, ButtonState state) const {
    const double scale = state == ButtonState::kDown ? 0.80 : 0.88;
    const Vec2 middle = MiddleOf(button.place) + Travel(state) * 0.5;
    if (state == ButtonState::kDisabled) {
        PaintBareDimple(canvas, button.place, middle, scale, button.color);
        return;
    }
    PaintDimple(canvas, button.place, middle, scale, true);
    PaintPebble(canvas, button.place, middle, scale, button.color);
}

void Daylight::PaintCaption(Canvas& canvas, const Button& button, ButtonState state) const {
    const Vec2 middle = MiddleOf(button.place) + Travel(state);
    double pixels = 17;
    if (button.kind == ButtonKind::kInviting) pixels = button.place.height > 36 ? 21 : 18;
    if (button.kind == ButtonKind::kAnswer || button.kind == ButtonKind::kMode) pixels = 15.5;
    if (button.place.height < 30 && button.kind == ButtonKind::kMenu) pixels = 15.5;
    const Shape sign = Sign(button, middle, {Captions(), pixels, 0.2});
    if (state == ButtonState::kDisabled) {
        PaintBrushed(canvas, button.place, sign, kGreyInk);
        return;
    }
    PaintBrushed(canvas, button.place, Inset(sign, -0.1),
                 IsDipped(button, state) ? Color{0.95, 0.96, 0.95} : kCobalt);
}

void Daylight::PaintClock(Canvas& canvas, Rect place, bool running) const {
    const Vec2 middle = MiddleOf(place);
    const Shape body = Ellipse(middle, {11.4, 11.4});
    PaintShadow(canvas, place, body, 1.2, 1.4, 0.5);
    PaintTile(canvas, place, body, running ? kDipped : kBisque * 0.6, 3.0, 1.2);
    const Shape dial = Ellipse(middle, {8.8, 8.8});
    PaintFace(canvas, place, dial, [&](Vec2 p) {
        const double shade = 0.6 * HollowShadow(dial, p, 0.8, 1.0);
        return Glazed(running ? kPorcelain : kBisque, kFacing, shade);
    });
    const Color ink = running ? kCobalt : kGreyInk;
    PaintBrushed(canvas, place, DialStrokes(middle, 1.0), ink);
    PaintBrushed(canvas, place, DialHands(middle, 1.0), ink);
}

void Daylight::PaintLever(Canvas& canvas, Rect place, SwitchState state) const {
    const Vec2 middle = MiddleOf(place);
    const Shape slot = RoundedBox(middle - Vec2{20, 7.5}, middle + Vec2{20, 7.5}, 7.5);
    const bool on = state == SwitchState::kOn;
    const bool disabled = state == SwitchState::kDisabled;
    PaintHollow(canvas, place, slot,
                on         ? kSeaGreen
                : disabled ? kBisque * 0.8
                           : kBisque * 0.62,
                2.0);
    const double side = disabled ? 0 : on ? 11.5 : -11.5;
    const Shape knob = Ellipse(middle + Vec2{side, 0}, {9.6, 9.6});
    PaintShadow(canvas, place, knob, 2.0, 1.8, 0.6);
    PaintTile(canvas, place, knob, disabled ? kBisque : kPorcelain, 5.5, 1.1);
    if (disabled) return;
    const Shape dot = Ellipse(middle + Vec2{side, 0}, {3.2, 3.2});
    PaintBrushed(canvas, place, on ? dot : Band(dot, 0, 1.0), kCobalt);
}

void Daylight::PaintSwitchCaption(Canvas& canvas, const std::string& text, Vec2 leftMiddle,
                                  SwitchState state) const {
    const Shape letters = Captions().LineFrom(text, 16.5, leftMiddle, 0.2);
    Color ink = state == SwitchState::kOn ? kCobalt : Color{0.060, 0.085, 0.150};
    if (state == SwitchState::kDisabled) ink = kGreyInk * 1.3;
    PaintBrushed(canvas, canvas.Area(), letters, ink);
}

}  // namespace quendrel::art::daylight
