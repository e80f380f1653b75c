#include "ui/picture/BitmapHeader.h"

#include "platform/Errors.h"
#include "platform/Files.h"

namespace quendrel {

namespace {

// Where the fields stand, the lowest byte first. All have 32 bits, but in the oldest header, which
// is known by its own length, the size has 16 each way.
constexpr std::size_t kLengthAt = 2;
constexpr std::size_t kInfoLengthAt = 14;
constexpr std::size_t kSizeAt = 18;
constexpr std::size_t kHeader = 26;
constexpr std::uint32_t kOldestInfoLength = 12;

std::uint32_t Field(const std::string& bytes, std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = 4; i > 0; --i) {
        value = value << 8 | static_cast<unsigned char>(bytes[at + i - 1]);
    }
    return value;
}

/// Without the sign of the height, which says that the top row comes first; the lowest number,
/// which has no positive one, stays.
Size SizeIn(const std::string& bytes) {
    const std::uint32_t first = Field(bytes, kSizeAt);
    auto width = static_cast<std::int32_t>(first);
    auto height = static_cast<std::int32_t>(Field(bytes, kSizeAt + 4));
    if (Field(bytes, kInfoLengthAt) == kOldestInfoLength) {
        width = static_cast<std::int16_t>(first & 0xFFFF);
        height = static_cast<std::int16_t>(first >> 16);
    }
    if (height < 0) height = static_cast<std::int32_t>(0U - static_cast<std::uint32_t>(height));
    return {width, height};
}

}  // namespace

Size SizeInBitmap(const std::string& path, const std::string& start, std::uintmax_t length) {
    if (!start.starts_with("BM")) {
        throw FileError(path, "is no Windows bitmap; save it as one, with 24 bits a pixel");
    }
    if (start.size() < kHeader || length < Field(start, kLengthAt)) {
        throw FileError(path, "is cut short");
    }
    const Size size = SizeIn(start);
    if (size.width <= 0 || size.height <= 0) throw FileError(path, "has no pixels");
    return size;
}

Size SizeOfBitmap(const std::string& path) {
    const FileStart start = ReadFileStart(path, kHeader);
    return SizeInBitmap(path, start.bytes, start.length);
}

}  // namespace quendrel
