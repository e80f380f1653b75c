// The animated pictures of the about window. They are the same in every skin, so each skin sets
// them into niches with one and the same even floor.
#pragma once

#include <vector>

#include "kit/Bitmap.h"
#include "kit/Light.h"

namespace quendrel::art {

/// The material of a niche's floor, and the floor's colour outside the shadow of the rim.
inline constexpr Color kNicheStuff{0.0085, 0.0072, 0.0066};
inline Color NicheFloor() { return Matte(kNicheStuff, kFacing); }

/// An empty frame: the floor of the niche.
Canvas EmptyFrame(Rect place);

struct Frame {
    Picture picture;
    int centiseconds;
};

/// An envelope that opens, shows its letter and closes again.
namespace envelope {
std::vector<Frame> Frames();
}

/// A house in the evening: smoke, a window where somebody moves the light.
namespace house {
std::vector<Frame> Frames();
}

/// A torch in its bracket.
namespace torch {
std::vector<Frame> Frames();
}

}  // namespace quendrel::art
