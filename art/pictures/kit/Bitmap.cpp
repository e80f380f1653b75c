#include "kit/Bitmap.h"

#include <fstream>
#include <stdexcept>
#include <string>

namespace quendrel::art {

namespace {

/// Compresses light above kShoulder instead of cutting it off, so that highlights keep their shape.
double RollOff(double v) {
    constexpr double kShoulder = 0.7;
    if (v <= kShoulder) return std::max(v, 0.0);
    return kShoulder + (1 - kShoulder) * (1 - std::exp(-(v - kShoulder) / (1 - kShoulder)));
}

std::uint32_t Level(double light) {
    return static_cast<std::uint32_t>(std::lround(255 * ToSrgb(RollOff(light))));
}

void Put(std::string& out, std::uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) out += static_cast<char>((value >> (8 * i)) & 0xff);
}

std::string BmpBytes(const Bitmap& bitmap) {
    const auto [width, height] = bitmap.Extent();
    const int stride = (width * 3 + 3) / 4 * 4;
    constexpr std::uint32_t kHeaders = 14 + 40;
    const auto pixels = static_cast<std::uint32_t>(stride * height);
    std::string out = "BM";
    Put(out, kHeaders + pixels, 4);
    Put(out, 0, 4);
    Put(out, kHeaders, 4);
    Put(out, 40, 4);
    Put(out, static_cast<std::uint32_t>(width), 4);
    Put(out, static_cast<std::uint32_t>(height), 4);
    Put(out, 1, 2);   // planes
    Put(out, 24, 2);  // bits a pixel
    Put(out, 0, 4);   // uncompressed
    Put(out, pixels, 4);
    Put(out, 3780, 4);  // pixels a metre: 96 an inch
    Put(out, 3780, 4);
    Put(out, 0, 4);  // no colour table
    Put(out, 0, 4);
    for (int y = height - 1; y >= 0; --y) {
        for (int x = 0; x < width; ++x) Put(out, bitmap.At(x, y), 3);
        out.append(static_cast<std::size_t>(stride - width * 3), '\0');
    }
    return out;
}

}  // namespace

Bitmap::Bitmap(Size size, std::uint32_t fill)
    : size_(size),
      pixels_(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height), fill) {}

void Bitmap::Paste(const Bitmap& source, Rect from, Point to) {
    for (int y = 0; y < from.height; ++y) {
        for (int x = 0; x < from.width; ++x) {
            At(to.x + x, to.y + y) = source.At(from.left + x, from.top + y);
        }
    }
}

void Bitmap::Paste(const Bitmap& source, Point to) {
    Paste(source, {0, 0, source.size_.width, source.size_.height}, to);
}

void Bitmap::PasteMasked(const Bitmap& source, const Bitmap& mask, Point to) {
    for (int y = 0; y < source.size_.height; ++y) {
        for (int x = 0; x < source.size_.width; ++x) {
            if (mask.At(x, y) == kBlack) At(to.x + x, to.y + y) = source.At(x, y);
        }
    }
}

Bitmap Develop(const Canvas& canvas) {
    const Rect area = canvas.Area();
    Bitmap bitmap({area.width, area.height});
    for (int y = 0; y < area.height; ++y) {
        for (int x = 0; x < area.width; ++x) {
            const Color& c = canvas.At(area.left + x, area.top + y);
            bitmap.At(x, y) = Level(c.x) << 16 | Level(c.y) << 8 | Level(c.z);
        }
    }
    return bitmap;
}

Bitmap HardMask(const Shape& shape, Size size) {
    Bitmap mask(size, kWhite);
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            if (shape({x + 0.5, y + 0.5}) < 0) mask.At(x, y) = kBlack;
        }
    }
    return mask;
}

void WriteBmp(const std::filesystem::path& path, const Bitmap& bitmap) {
    std::ofstream file(path, std::ios::binary);
    file << BmpBytes(bitmap);
    file.close();
    if (!file) throw std::runtime_error("cannot write " + path.string());
}

}  // namespace quendrel::art
