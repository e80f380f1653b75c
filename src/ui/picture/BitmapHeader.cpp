#include "ui/picture/BitmapHeader.h"

#include <cstdint>

#include "platform/Errors.h"
#include "platform/Files.h"

namespace quendrel {

namespace {

// Where the fields stand, which are 32 bits each, the lowest byte first.
constexpr std::size_t kLengthAt = 2;
constexpr std::size_t kWidthAt = 18;
constexpr std::size_t kHeightAt = 22;
constexpr std::size_t kHeader = 26;

std::uint32_t Field(const std::string& bytes, std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = 4; i > 0; --i) {
        value = value << 8 | static_cast<unsigned char>(bytes[at + i - 1]);
    }
    return value;
}

}  // namespace

Size SizeOfBitmap(const std::string& path) {
    const FileStart start = ReadFileStart(path, kHeader);
    if (!start.bytes.starts_with("BM")) throw FileError(path, "is no Windows bitmap");
    if (start.bytes.size() < kHeader || start.length < Field(start.bytes, kLengthAt)) {
        throw FileError(path, "is cut short");
    }
    // A negative height says that the top row comes first.
    const std::uint32_t height = Field(start.bytes, kHeightAt);
    const bool topFirst = height >> 31 != 0;
    return {static_cast<std::int32_t>(Field(start.bytes, kWidthAt)),
            static_cast<std::int32_t>(topFirst ? 0U - height : height)};
}

}  // namespace quendrel
