// What is wrong with a skin, for people who make one: everything that docs/making-a-skin.md asks
// of its pictures.
#pragma once

#include <string>
#include <vector>

#include "ui/picture/Picture.h"

namespace quendrel {

/// A line for everything that is wrong with the skin in the folder `root`, in words that say what
/// to do; nothing for a skin that is complete.
std::vector<std::string> FaultsOfSkin(const PictureReader& reader, const std::string& root);

}  // namespace quendrel
