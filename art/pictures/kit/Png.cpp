#include "kit/Png.h"

#include <stdexcept>
#include <vector>

#include <png.h>

namespace quendrel::art {

void WritePng(const std::filesystem::path& path, const Bitmap& picture, const Bitmap* coverage) {
    const auto [width, height] = picture.Extent();
    std::vector<png_byte> bytes;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            for (const int shift : {16, 8, 0}) {
                bytes.push_back(static_cast<png_byte>(picture.At(x, y) >> shift));
            }
            if (coverage != nullptr) bytes.push_back(static_cast<png_byte>(coverage->At(x, y)));
        }
    }
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(width);
    image.height = static_cast<png_uint_32>(height);
    image.format = coverage != nullptr ? PNG_FORMAT_RGBA : PNG_FORMAT_RGB;
    if (png_image_write_to_file(&image, path.c_str(), 0, bytes.data(), 0, nullptr) == 0) {
        throw std::runtime_error("cannot write " + path.string() + ": " + image.message);
    }
}

}  // namespace quendrel::art
