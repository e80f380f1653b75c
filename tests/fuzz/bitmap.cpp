// A picture of a skin.
#include <algorithm>
#include <array>
#include <cstdint>
#include <exception>
#include <optional>
#include <string>

#include "MemoryFiles.h"
#include "Promise.h"
#include "Readers.h"
#include "platform/Errors.h"
#include "ui/picture/BitmapHeader.h"
#include "ui/picture/PictureFile.h"

namespace quendrel::fuzz {

namespace {

const std::string kPictureFile = "/Skin/Mine/picture.bmp";

/// What is read, or nothing where the words say what is wrong with the file.
template <typename Read>
auto ReadOrRefuse(const Read& read) -> std::optional<decltype(read(kPictureFile))> {
    try {
        return read(kPictureFile);
    } catch (const FileError& error) {
        const std::string said = error.what();
        Promise(said.starts_with(kPictureFile + ": ") && said.size() > kPictureFile.size() + 2,
                "words name the file and say what is wrong with it");
        return std::nullopt;
    }
}

/// Larger ones are as good or bad, and take longer.
bool IsLarge(Size size) {
    constexpr std::int64_t most = 1 << 12;
    return std::int64_t{size.width} * size.height > most;
}

void Append(std::string& bytes, std::uint32_t number, int length) {
    for (int i = 0; i < length; ++i) bytes += static_cast<char>(number >> 8 * i & 0xFF);
}

/// A bitmap of 24 bits a pixel.
std::string BitmapOf(const Picture& picture) {
    std::string rows;
    for (int y = picture.height() - 1; y >= 0; --y) {
        for (int x = 0; x < picture.width(); ++x) Append(rows, picture.At(x, y), 3);
        while (rows.size() % 4 != 0) rows += '\0';
    }
    constexpr std::uint32_t header = 54;
    std::string bytes = "BM";
    Append(bytes, header + static_cast<std::uint32_t>(rows.size()), 4);
    Append(bytes, 0, 4);
    Append(bytes, header, 4);
    Append(bytes, header - 14, 4);
    Append(bytes, static_cast<std::uint32_t>(picture.width()), 4);
    Append(bytes, static_cast<std::uint32_t>(picture.height()), 4);
    Append(bytes, 1 | 24 << 16, 4);
    bytes.append(24, '\0');
    return bytes + rows;
}

void LookAtPicture(const Picture& picture) {
    for (int y = 0; y < picture.height(); ++y) {
        const Pixel* const row = picture.Row(y);
        Promise(
            std::all_of(row, row + picture.width(), [](Pixel pixel) { return pixel <= 0xFFFFFF; }),
            "a pixel has three bytes");
    }
    Files()[kPictureFile] = BitmapOf(picture);
    Promise(ReadOrRefuse(ReadPictureFile) == picture,
            "a picture that is saved is read as the same");
    Promise(ReadOrRefuse(SizeOfBitmap) == picture.size(), "and has its size");
}

}  // namespace

void Bitmap(std::string_view bytes) {
    Files()[kPictureFile] = bytes;
    const std::optional<Size> size = ReadOrRefuse(SizeOfBitmap);
    Promise(!size || (size->width > 0 && size->height > 0), "a size is that of a picture");
    if (size && IsLarge(*size)) return;

    const std::optional<Picture> picture = ReadOrRefuse(ReadPictureFile);
    if (!picture) return;
    Promise(size == picture->size(), "a picture that can be read has the size that its file says");
    LookAtPicture(*picture);
}

}  // namespace quendrel::fuzz
