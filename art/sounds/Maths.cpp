// Power series over a small range; both end where further terms no longer change a double.
#include "Maths.h"

#include <cmath>
#include <numbers>

namespace quendrel::sounds {

double Exp(double x) {
    const double twos = std::floor(x / std::numbers::ln2 + 0.5);
    const double rest = x - twos * std::numbers::ln2;
    double sum = 1;
    double term = 1;
    for (int k = 1; k <= 16; ++k) {
        term *= rest / k;
        sum += term;
    }
    return std::ldexp(sum, static_cast<int>(twos));
}

double FromDecibels(double decibels) { return Exp(decibels * std::numbers::ln10 / 20); }

CirclePoint Turn(double turns) {
    const double angle = (turns - std::floor(turns + 0.5)) * 2 * std::numbers::pi;
    CirclePoint point{1, angle};
    double term = angle;
    for (int k = 2; k <= 28; k += 2) {
        term *= -angle / k;
        point.cosine += term;
        term *= angle / (k + 1);
        point.sine += term;
    }
    return point;
}

}  // namespace quendrel::sounds
