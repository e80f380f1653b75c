// Carbon's keys: milled aluminium with lit captions, light panels, keys that show a cap; the little
// dial, and the slides of the switches.
#include "kit/Fittings.h"
#include "skins/Carbon.h"
#include "skins/CarbonStuff.h"
#include "skins/Signs.h"

namespace quendrel::art::carbon {

namespace {

/// How far a key is pushed in.
Vec2 Travel(ButtonState state) { return Pushed(state, {0.8, 1.3}); }

double Standing(ButtonState state) { return state == ButtonState::kDown ? 0.7 : 2.2; }

Shape KeyShape(const Button& button, ButtonState state) {
    return Moved(Chamfered(button.place, 2.6, 5.2, 2.0), Travel(state));
}

/// The metal of a key, whose top is slightly hollow.
Color KeyMetal(Vec3 edge, Vec2 q, Vec2 p, ButtonState state) {
    const Vec3 normal = Normalize({edge.x - q.x * 0.002, edge.y - q.y * 0.012, edge.z});
    const Color metal = Anodised(kGunmetal * 0.92, normal, p, 0);
    switch (state) {
        case ButtonState::kDisabled:
            return Greyed(metal, 0.0) * 0.50;
        case ButtonState::kDown:
            return metal * 0.55;
        case ButtonState::kOver:
            return metal * 1.22;
        default:
            return metal;
    }
}

void PaintKeyBody(Canvas& canvas, const Button& button, ButtonState state) {
    const Rect place = button.place;
    const Shape key = KeyShape(button, state);
    PaintShadow(canvas, place, key, Standing(state), 1.5, 0.8);
    const Vec2 middle = MiddleOf(place);
    PaintFace(canvas, place, key, [&](Vec2 p) {
        const Vec3 edge = Milled(key, p, 2.0, state == ButtonState::kDown ? 0.55 : 0.95);
        return KeyMetal(edge, p - middle, p, state);
    });
}

/// The line of light around a key that is pointed at or held.
void PaintKeyRim(Canvas& canvas, const Button& button, ButtonState state) {
    if (state != ButtonState::kOver && state != ButtonState::kDown) return;
    const bool held = state == ButtonState::kDown;
    if (held && CanBeHeld(button.kind)) {
        // The light stays where it is while the key goes in.
        const Shape gap = Chamfered(button.place, 0.8, 5.8, 2.2);
        PaintFlat(canvas, button.place, Band(gap, 0, 4.6), kNight, 0.8);
        PaintFlat(canvas, button.place, Band(gap, 1.1, 2.2), kAmber);
        return;
    }
    const Shape rim = Band(KeyShape(button, state), held ? 0.2 : 0.4, 1.2);
    const Color light = held ? kAmber : kIce;
    const Shape limits = Chamfered(button.place, 1.2, 5.6, 2.0);
    canvas.Paint(button.place, [&](Vec2 p) {
        const double d = rim(p);
        if (d < 0) return Sample{light, 1};
        return Sample{light * 0.6, 0.5 * Square(SmoothStep(4.0, 0.0, d)) * Inside(limits(p))};
    });
}

double PanelPower(ButtonState state) {
    if (state == ButtonState::kDisabled) return 0;
    return state == ButtonState::kOver ? 1.45 : state == ButtonState::kDown ? 0.55 : 1.0;
}

/// The light of a panel, `far` from its lamp; without power it is grey glass.
Color PanelLight(double far, double power) {
    const double fading = SmoothStep(0.0, 1.15, far);
    if (power == 0) return Color{0.088, 0.088, 0.088} * (1 - 0.6 * fading);
    return Mix({0.34, 1.02, 1.16}, {0.035, 0.34, 0.46}, fading) * power;
}

/// The light panel of an inviting key: brightest where its lamp stands, and spilling its light
/// onto the frame.
void PaintPanel(Canvas& canvas, const Button& button, ButtonState state) {
    const Rect place = button.place;
    const double inset = button.kind == ButtonKind::kInviting ? 6.4 : 5.0;
    const Shape panel = Moved(Chamfered(place, inset, 4.0, 1.2), Travel(state));
    const Shape key = KeyShape(button, state);
    const Vec2 middle = MiddleOf(place);
    const double power = PanelPower(state);
    PaintRecess(canvas, place, panel, kNight, 0.8);
    canvas.Paint(place, [&](Vec2 p) {
        const double d = panel(p);
        if (d >= 0) {
            const double near = Square(SmoothStep(4.5, 0.0, d));
            return Sample{kIce * 0.7, 0.5 * power * near * Inside(key(p))};
        }
        const Vec2 q{(p.x - middle.x) / place.width, (p.y - middle.y) / place.height};
        const double far = Length({q.x / 0.56, q.y / 0.62});
        const double gloss = SmoothStep(0.4, -0.2, q.y + 0.25) * (power > 0 ? 0.11 : 0.012);
        const Color light = PanelLight(far, power) * (1 - 0.30 * SmoothStep(-2.0, 0.0, d));
        return Sample{light + Color{gloss, gloss, gloss}, 1};
    });
}

/// The lamps at both sides of a key that can be held.
void PaintLamps(Canvas& canvas, const Button& button, ButtonState state) {
    const Vec2 middle = MiddleOf(button.place) + Travel(state);
    const double side = button.place.width / 2.0 - 8.6;
    const bool lit = state == ButtonState::kDown;
    for (const double x : {-side, side}) {
        const Vec2 at = middle + Vec2{x, 0};
        const Shape lamp = Stroke(at + Vec2{-1.2, 3.6}, at + Vec2{1.2, -3.6}, 3.0);
        PaintRecess(canvas, button.place, Inset(lamp, -0.7), kNight, 0.8);
        const Color off =
            state == ButtonState::kDisabled ? Color{0.02, 0.02, 0.02} : Color{0.085, 0.036, 0.006};
        PaintLight(canvas, button.place, lamp, lit ? kAmber : off, lit ? 8 : 0.1, lit ? 0.75 : 0);
    }
}

Color CaptionLight(const Button& button, ButtonState state) {
    switch (state) {
        case ButtonState::kDisabled:
            return StandsOut(button.kind) ? Color{0.008, 0.008, 0.008} : Color{0.125, 0.125, 0.125};
        case ButtonState::kOver:
            return StandsOut(button.kind) ? kNight : Color{0.85, 1.25, 1.30};
        case ButtonState::kDown:
            return StandsOut(button.kind) ? kNight : CanBeHeld(button.kind) ? kAmber : kIce;
        default:
            return StandsOut(button.kind) ? kNight : kIce * 0.78;
    }
}

}  // namespace

void Carbon::PaintBlank(Canvas& canvas, const Button& button, ButtonState state) const {
    PaintKeyBody(canvas, button, state);
    if (StandsOut(button.kind)) PaintPanel(canvas, button, state);
    if (CanBeHeld(button.kind)) PaintLamps(canvas, button, state);
    PaintKeyRim(canvas, button, state);
}

void Carbon::PaintKeyPeg(Canvas& canvas, const Button& button, ButtonState state) const {
    const double scale = state == ButtonState::kDown ? 0.80 : 0.86;
    const Vec2 middle = MiddleOf(button.place) + Travel(state) * 0.5;
    const LitCap& cap = CapOf(button.color);
    if (state == ButtonState::kDisabled) {
        PaintBareReflector(canvas, button.place, middle, scale, cap);
        return;
    }
    PaintReflector(canvas, button.place, middle, scale);
    PaintCap(canvas, button.place, middle, scale, cap);
}

void Carbon::PaintCaption(Canvas& canvas, const Button& button, ButtonState state) const {
    const double pixels = button.kind == ButtonKind::kInviting ? 19
                          : button.place.height < 30           ? 15
                                                               : 16;
    const Vec2 middle = MiddleOf(button.place) + Travel(state);
    const Shape sign = Sign(button, middle, {Captions(), pixels, 0.5});
    const Color light = CaptionLight(button, state);
    const bool dark = StandsOut(button.kind) || state == ButtonState::kDisabled;
    PaintLight(canvas, button.place, sign, light, dark ? 0.1 : 3.4, dark ? 0.0 : 0.32);
}

void Carbon::PaintClock(Canvas& canvas, Rect place, bool running) const {
    const Vec2 middle = MiddleOf(place);
    const Shape bezel = Chamfered(middle - Vec2{11.4, 11.4}, middle + Vec2{11.4, 11.4}, 6.6, 6.6);
    const Shape dial = Ellipse(middle, {9.0, 9.0});
    PaintShadow(canvas, place, bezel, 1.4, 1.4, 0.8);
    PaintMilled(canvas, place, bezel, kGunmetal * (running ? 1.5 : 0.45), 1.4, kPi / 4);
    PaintRecess(canvas, place, dial, kNight, 1.2);
    const Color lume = running ? kIce : Color{0.05, 0.05, 0.05};
    const double reach = running ? 3.0 : 0.1;
    PaintLight(canvas, place, DialStrokes(middle, 1.04), lume * 0.75, reach, 0.35);
    PaintLight(canvas, place, DialHands(middle, 1.0), running ? Color{1.0, 1.1, 1.15} : lume, reach,
               0.3);
}

void Carbon::PaintLever(Canvas& canvas, Rect place, SwitchState state) const {
    const Vec2 middle = MiddleOf(place);
    const Shape track = Chamfered(middle - Vec2{21, 8.5}, middle + Vec2{21, 8.5}, 5, 2);
    const Shape frame = Inset(track, -1.6);
    PaintMilled(canvas, place, frame, kGunmetal, 1.2, 0);
    PaintRecess(canvas, place, track, kNight, 2.0);
    const bool on = state == SwitchState::kOn;
    const double side = state == SwitchState::kDisabled ? 0 : on ? 1 : -1;
    if (on) {
        const Shape lamp = Stroke(middle + Vec2{-13.6, 3.2}, middle + Vec2{-8.4, -3.2}, 3.4);
        PaintLight(canvas, place, lamp, kAmber, 7.0, 0.8);
    } else if (state == SwitchState::kOff) {
        const Shape ring = Band(Ellipse(middle + Vec2{11, 0}, {3.6, 3.6}), 0, 1.3);
        PaintLight(canvas, place, ring, {0.10, 0.11, 0.12}, 0.1, 0);
    }
    const Vec2 at = middle + Vec2{10.2 * side, 0};
    const Shape knob = Chamfered(at - Vec2{9.6, 7.2}, at + Vec2{9.6, 7.2}, 3.6, 1.4);
    const Color tint = side == 0 ? kGunmetal * 0.5 : kTitanium * 0.72;
    PaintShadow(canvas, place, knob, 1.8, 1.6, 0.8);
    PaintMilled(canvas, place, knob, tint, 1.6, kPi / 2);
    for (const double x : {-3.2, 0.0, 3.2}) {
        const Shape rib = Stroke(at + Vec2{x, -3.6}, at + Vec2{x, 3.6}, 1.2);
        PaintRecess(canvas, place, rib, kNight * 2, 0.5);
    }
}

void Carbon::PaintSwitchCaption(Canvas& canvas, const std::string& text, Vec2 leftMiddle,
                                SwitchState state) const {
    const Shape letters = Captions().LineFrom(text, 16, leftMiddle, 0.4);
    const Color light = state == SwitchState::kDisabled ? Color{0.25, 0.26, 0.27}
                        : state == SwitchState::kOn     ? Color{0.72, 1.05, 1.12}
                                                        : Color{0.50, 0.56, 0.60};
    canvas.Paint(canvas.Area(),
                 [&](Vec2 p) { return Shadow(0.8 * SmoothStep(4.5, 0.5, letters(p))); });
    PaintFlat(canvas, canvas.Area(), letters, light);
}

}  // namespace quendrel::art::carbon
