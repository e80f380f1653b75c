#include "ui/windows/ShownScale.h"

#include <algorithm>
#include <cmath>

#include "ui/layout/BoardGeometry.h"

namespace quendrel {

namespace {

/// Scales are quotients, so they are a little off.
constexpr double kSlack = 1e-6;

double StepBelow(double scale) { return std::floor(scale / kScaleStep + kSlack) * kScaleStep; }
double StepAbove(double scale) { return std::ceil(scale / kScaleStep - kSlack) * kScaleStep; }

/// The largest step at which the main window, the largest of all, fits.
double Largest(Size room) {
    const double fits = std::min(static_cast<double>(room.width) / kBoardSize.width,
                                 static_cast<double>(room.height) / kBoardSize.height);
    return std::max(kLeastScale, StepBelow(fits));
}

void Choose(ViewScale& wanted, double scale) {
    wanted.chosen = scale;
    wanted.ofRun.reset();
}

}  // namespace

double ShownScale(const ViewScale& wanted, const ScreenRoom& room) {
    const double scale = wanted.ofRun.value_or(wanted.chosen.value_or(room.scale));
    return std::max(kLeastScale, std::min(scale, Largest(room.pixels)));
}

void ChooseLarger(ViewScale& wanted, const ScreenRoom& room) {
    const double next = StepBelow(ShownScale(wanted, room)) + kScaleStep;
    if (next <= std::min(kMostScale, Largest(room.pixels))) Choose(wanted, next);
}

void ChooseSmaller(ViewScale& wanted, const ScreenRoom& room) {
    const double next = StepAbove(ShownScale(wanted, room)) - kScaleStep;
    if (next >= kLeastScale) Choose(wanted, std::min(next, kMostScale));
}

void ChooseNone(ViewScale& wanted) { wanted = {}; }

}  // namespace quendrel
