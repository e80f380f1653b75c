// The buttons of all windows, as the skins paint them.
#pragma once

#include <cstdint>
#include <string>

#include "kit/Vector.h"
#include "ui/layout/BoardGeometry.h"
#include "ui/layout/StatePictures.h"

namespace quendrel::art {

/// A sign's caption is one of "<", ">", "^", "v", "-" and "+", drawn as a shape.
enum class ButtonKind : std::uint8_t {
    kMenu,
    kInviting,
    kMode,
    kAnswer,
    kPeg,
    kHide,
    kDuel,
    kTimer,
    kSign
};

/// Keys that are painted to stand out: "Start" and "Check", and the answers.
constexpr bool StandsOut(ButtonKind kind) {
    return kind == ButtonKind::kInviting || kind == ButtonKind::kAnswer;
}

/// Keys that stay down while what they stand for is chosen.
constexpr bool CanBeHeld(ButtonKind kind) {
    return kind == ButtonKind::kMode || kind == ButtonKind::kPeg;
}

/// How far a key is pushed in that goes as far as `down`.
constexpr Vec2 Pushed(ButtonState state, Vec2 down) {
    return state == ButtonState::kDown ? down : Vec2{0, 0};
}

/// A switch that cannot be moved shows neither state.
enum class SwitchState : std::uint8_t { kOff, kOn, kDisabled };

struct Button {
    ButtonKind kind;
    Rect place;
    /// Drawn on those kinds that carry text.
    std::string caption;
    /// 1 to 10 for a colour button.
    int color = 0;
};

/// A button and the pictures that it has.
struct ButtonSet {
    Button button;
    StatePictures pictures;
};

}  // namespace quendrel::art
