#include "kit/Png.h"

#include <stdexcept>
#include <vector>

#include <png.h>

namespace quendrel::art {

namespace {

/// The bytes of a picture, one for each shift that brings a channel to a pixel's lowest bits, and
/// then that of its coverage, if it has one.
std::vector<png_byte> Bytes(const Bitmap& picture, std::initializer_list<int> shifts,
                            const Bitmap* coverage = nullptr) {
    const auto [width, height] = picture.Extent();
    std::vector<png_byte> bytes;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            for (const int shift : shifts) {
                bytes.push_back(static_cast<png_byte>(picture.At(x, y) >> shift));
            }
            if (coverage != nullptr) bytes.push_back(static_cast<png_byte>(coverage->At(x, y)));
        }
    }
    return bytes;
}

void Write(const std::filesystem::path& path, Size size, png_uint_32 format,
           const std::vector<png_byte>& bytes) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(size.width);
    image.height = static_cast<png_uint_32>(size.height);
    image.format = format;
    if (png_image_write_to_file(&image, path.c_str(), 0, bytes.data(), 0, nullptr) == 0) {
        throw std::runtime_error("cannot write " + path.string() + ": " + image.message);
    }
}

}  // namespace

void WritePng(const std::filesystem::path& path, const Bitmap& picture, const Bitmap* coverage) {
    Write(path, picture.Extent(), coverage != nullptr ? PNG_FORMAT_RGBA : PNG_FORMAT_RGB,
          Bytes(picture, {16, 8, 0}, coverage));
}

void WriteGrayPng(const std::filesystem::path& path, const Bitmap& picture) {
    Write(path, picture.Extent(), PNG_FORMAT_GRAY, Bytes(picture, {0}));
}

}  // namespace quendrel::art
