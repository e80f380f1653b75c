// The program's icon: a brass cup with three glass pegs and one that a shutter still hides.
#pragma once

#include "kit/Bitmap.h"

namespace quendrel::art {

struct Icon {
    Bitmap picture;
    /// Grey levels from clear (0) to opaque (255).
    Bitmap coverage;
};

/// Drawn for a square of `size` pixels; small ones are drawn plainer and bolder.
Icon DrawIcon(int size);

}  // namespace quendrel::art
