#include "ui/picture/BitmapHeader.h"

#include <cstdint>

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

std::uint32_t Field(const std::string& bytes, std::size_t at, std::size_t length = 4) {
    std::uint32_t value = 0;
    for (std::size_t i = length; i > 0; --i) {
        value = value << 8 | static_cast<unsigned char>(bytes[at + i - 1]);
    }
    return value;
}

Size SizeIn(const std::string& bytes) {
    if (Field(bytes, kInfoLengthAt) == kOldestInfoLength) {
        return {static_cast<std::int32_t>(Field(bytes, kSizeAt, 2)),
                static_cast<std::int32_t>(Field(bytes, kSizeAt + 2, 2))};
    }
    // A negative height says that the top row comes first.
    const std::uint32_t height = Field(bytes, kSizeAt + 4);
    const bool topFirst = height >> 31 != 0;
    return {static_cast<std::int32_t>(Field(bytes, kSizeAt)),
            static_cast<std::int32_t>(topFirst ? 0U - height : height)};
}

}  // namespace

Size SizeOfBitmap(const std::string& path) {
    const FileStart start = ReadFileStart(path, kHeader);
    if (!start.bytes.starts_with("BM")) throw FileError(path, "is no Windows bitmap");
    if (start.bytes.size() < kHeader || start.length < Field(start.bytes, kLengthAt)) {
        throw FileError(path, "is cut short");
    }
    const Size size = SizeIn(start.bytes);
    // The lowest height of all has no positive one.
    if (size.width <= 0 || size.height <= 0) throw FileError(path, "has no pixels");
    return size;
}

}  // namespace quendrel
