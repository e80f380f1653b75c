#include "skins/Signs.h"

namespace quendrel::art {

namespace {

/// Two crossed foils: blades, guards and pommels.
Shape CrossedFoils(Vec2 c) {
    const auto foil = [c](double side) {
        const Vec2 tip = c + Vec2{side * 8.2, -7.6};
        const Vec2 hilt = c + Vec2{side * -4.4, 3.8};
        const Vec2 pommel = c + Vec2{side * -7.6, 6.7};
        const Vec2 guard{side * 2.2, 2.4};
        return Union(Union(Stroke(tip, hilt, 1.5), Stroke(hilt, pommel, 1.7)),
                     Union(Stroke(hilt - guard, hilt + guard, 1.5), Ellipse(pommel, {1.5, 1.5})));
    };
    return Union(foil(1), foil(-1));
}

/// An arrow that goes down into a tray.
Shape ArrowIntoTray(Vec2 c) {
    const Shape arrow = Union(Stroke(c + Vec2{0, -7.5}, c + Vec2{0, 1.6}, 2.2),
                              Union(Stroke(c + Vec2{-4, -2}, c + Vec2{0, 2}, 2.2),
                                    Stroke(c + Vec2{4, -2}, c + Vec2{0, 2}, 2.2)));
    const Shape tray = Union(Stroke(c + Vec2{-7, 6.6}, c + Vec2{7, 6.6}, 2.0),
                             Union(Stroke(c + Vec2{-7, 3.4}, c + Vec2{-7, 6.6}, 2.0),
                                   Stroke(c + Vec2{7, 3.4}, c + Vec2{7, 6.6}, 2.0)));
    return Union(arrow, tray);
}

/// An angle that points up, turned by `angle`.
Shape Chevron(Vec2 c, double angle) {
    const auto at = [c, angle](double x, double y) { return c + Rotate({x, y}, angle); };
    constexpr double kWidth = 2.6;
    return Union(Stroke(at(-5, 2.5), at(0, -2.5), kWidth), Stroke(at(5, 2.5), at(0, -2.5), kWidth));
}

Shape DrawnSign(char sign, Vec2 c) {
    Shape minus = Stroke(c + Vec2{-4.8, 0}, c + Vec2{4.8, 0}, 2.6);
    switch (sign) {
        case '<':
            return Chevron(c, -kPi / 2);
        case '>':
            return Chevron(c, kPi / 2);
        case '^':
            return Chevron(c, 0);
        case 'v':
            return Chevron(c, kPi);
        case '+':
            return Union(minus, Stroke(c + Vec2{0, -4.8}, c + Vec2{0, 4.8}, 2.6));
        default:
            return minus;
    }
}

}  // namespace

Shape Sign(const Button& button, Vec2 middle, const Type& type) {
    switch (button.kind) {
        case ButtonKind::kDuel:
            return CrossedFoils(middle);
        case ButtonKind::kHide:
            return ArrowIntoTray(middle);
        case ButtonKind::kSign:
            return DrawnSign(button.caption.front(), middle);
        default:
            return type.font.Line(button.caption, type.pixels, middle, type.spacing);
    }
}

Shape DialStrokes(Vec2 middle, double scale) {
    Shape strokes;
    for (int hour = 0; hour < 12; ++hour) {
        const Vec2 out = Rotate({0, -1}, hour * kPi / 6);
        const double width = (hour % 3 == 0 ? 1.1 : 0.6) * scale;
        const Shape stroke =
            Stroke(middle + out * (6.4 * scale), middle + out * (7.4 * scale), width);
        strokes = strokes ? Union(strokes, stroke) : stroke;
    }
    return strokes;
}

Shape DialHands(Vec2 middle, double scale) {
    return Union(Stroke(middle, middle + Vec2{-2.6, -3.4} * scale, 1.5 * scale),
                 Stroke(middle, middle + Vec2{4.4, -3.6} * scale, 1.1 * scale));
}

}  // namespace quendrel::art
