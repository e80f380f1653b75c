// The few functions of mathematics that the sounds need, made of exact steps only: the system's
// own may differ in the last bit from one processor to the next, and the sounds must not.
#pragma once

namespace quendrel::sounds {

/// e to the power of x, for -700 <= x <= 700.
double Exp(double x);

/// The factor of an amplitude that a number of decibels stands for.
double FromDecibels(double decibels);

/// The point of the unit circle after a number of whole turns.
struct CirclePoint {
    double cosine;
    double sine;
};
CirclePoint Turn(double turns);

}  // namespace quendrel::sounds
