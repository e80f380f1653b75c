// The check of a skin's masks, at either size.
#pragma once

#include <array>

#include "Geometry.h"
#include "ui/skin/SkinFiles.h"

namespace quendrel {

class CheckedTree;

/// A window's mask and the picture that it cuts.
struct MaskedPicture {
    SkinPicture mask;
    SkinPicture face;
};

inline constexpr std::array<MaskedPicture, 4> kMaskedPictures{{
    {kBoardMask, kBoardPicture},
    {kConfigMask, kConfigPicture},
    {kHighMask, kHighPicture},
    {kAboutMask, kAboutPicture},
}};

/// A window's mask has something to cut away and something to keep. Whether it is there and does.
bool CheckWindowMask(CheckedTree& skin, const SkinPicture& file);

/// The cell of a strip (whose cells have `size` units) that is its mask is black and white, and not
/// all white. Whether the strip is there and it is.
bool CheckMaskCell(CheckedTree& skin, const SkinPicture& strip, Size size, int cell);

}  // namespace quendrel
