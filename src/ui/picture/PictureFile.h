// Picture files, read by the toolkit's own decoders.
#pragma once

#include "ui/picture/Picture.h"

namespace quendrel {

/// A PictureReader.
Picture ReadPictureFile(const std::string& path);

}  // namespace quendrel
