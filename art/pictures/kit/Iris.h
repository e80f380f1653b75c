// A shutter of thin metal leaves that swing out of a round opening, as in a camera or a watch tool.
#pragma once

#include "kit/Canvas.h"

namespace quendrel::art {

struct Iris {
    Vec2 center;
    Vec2 radii;
    int leaves;
    /// How far a leaf's edge bends from its point to the rim, in radians.
    double twist;
    Color tint;
};

/// Whether `p` lies in the gap between the leaves, through which one sees.
bool InOpening(const Iris& iris, double open, Vec2 p);

/// The sample of the shutter at `p`, in the gap the shadow that it throws through it; `open` runs
/// from 0 (closed) to 1 (the leaves are gone).
Sample IrisSample(const Iris& iris, double open, Vec2 p);

}  // namespace quendrel::art
