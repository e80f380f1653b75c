// The outlines and the bare bodies of Atelier's windows, each a piece of furniture.
#pragma once

#include "kit/Canvas.h"
#include "kit/Shapes.h"

namespace quendrel::art::atelier {

/// The bench.
Shape MainOutline();
void PaintBench(Canvas& canvas, const Shape& outline);

/// A mantel clock's case whose tower holds a torch.
Shape AboutOutline();
void PaintMantelClock(Canvas& canvas, const Shape& outline);

/// The head of a wall clock.
Shape HighOutline();
void PaintWallClock(Canvas& canvas, const Shape& outline);

/// A regulator's case under a break arch with two finials, its drawer locked by a key.
Shape ConfigOutline();
void PaintRegulator(Canvas& canvas);

}  // namespace quendrel::art::atelier
