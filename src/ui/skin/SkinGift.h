// A skin that a friend has given to the player, as a folder or a .zip archive.
#pragma once

#include <string>

#include "ui/picture/Picture.h"

namespace quendrel {

/// Puts the skin at `path` into the folder of skins (both are paths of the machine) and returns its
/// name there. Only the files of a skin are taken, and they appear all at once or not at all; a
/// skin that is there already, file by file the same, is left as it is. Throws FileError, naming
/// `path` and the reason, for everything in which FaultsOfSkin finds a fault, that may be meant to
/// harm, that cannot be written, or whose name another skin has.
std::string TakeSkin(const PictureReader& reader, const std::string& path,
                     const std::string& skins);

}  // namespace quendrel
