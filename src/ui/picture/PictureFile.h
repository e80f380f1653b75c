// Picture files, read by the toolkit's own decoders.
#pragma once

#include "ui/picture/Picture.h"

namespace quendrel {

class PictureFileReader : public PictureReader {
public:
    Picture Read(const std::string& path) override;
};

}  // namespace quendrel
