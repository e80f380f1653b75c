// The signs on keys: captions, the pictures that stand for a word, and what a clock's dial shows.
#pragma once

#include "kit/Text.h"
#include "skins/Button.h"

namespace quendrel::art {

/// How captions are set.
struct Type {
    const Font& font;
    double pixels;
    double spacing;
};

/// What a key carries around `middle`: its caption in `type`, or the sign that is drawn for it. A
/// peg's and a clock's key carry neither.
Shape Sign(const Button& button, Vec2 middle, const Type& type);

/// The strokes of the twelve hours and the two hands of a clock, for a dial of radius 8.4 `scale`.
Shape DialStrokes(Vec2 middle, double scale);
Shape DialHands(Vec2 middle, double scale);

}  // namespace quendrel::art
