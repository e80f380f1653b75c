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

void WriteOne(const std::filesystem::path& path, const Bitmap& bitmap) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << BmpBytes(bitmap);
    file.close();
    if (!file) throw std::runtime_error("cannot write " + path.string());
}

std::uint32_t PixelOf(Color c) { return Level(c.x) << 16 | Level(c.y) << 8 | Level(c.z); }

Size Fine(Size size) { return {size.width * kFine, size.height * kFine}; }
Point Fine(Point at) { return {at.x * kFine, at.y * kFine}; }
Rect Fine(Rect r) { return CellAt(Fine(Point{r.left, r.top}), Fine(Size{r.width, r.height})); }

/// The mask of `shape` with `pixels` pixels a unit.
Bitmap MaskOf(const Shape& shape, Size size, int pixels) {
    Bitmap mask(size, kWhite);
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            if (shape(Vec2{x + 0.5, y + 0.5} * (1.0 / pixels)) < 0) mask.At(x, y) = kBlack;
        }
    }
    return mask;
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

void Bitmap::PasteMasked(const Bitmap& source, const Bitmap& mask, Point to) {
    for (int y = 0; y < source.size_.height; ++y) {
        for (int x = 0; x < source.size_.width; ++x) {
            if (mask.At(x, y) == kBlack) At(to.x + x, to.y + y) = source.At(x, y);
        }
    }
}

Picture::Picture(Size size, std::uint32_t fill) : single(size, fill), fine(Fine(size), fill) {}

void Picture::Paste(const Picture& source, Rect from, Point to) {
    single.Paste(source.single, from, to);
    fine.Paste(source.fine, Fine(from), Fine(to));
}

void Picture::Paste(const Picture& source, Point to) {
    Paste(source, WholeOf(source.single.Extent()), to);
}

void Picture::PasteMasked(const Picture& source, const Picture& mask, Point to) {
    single.PasteMasked(source.single, mask.single, to);
    fine.PasteMasked(source.fine, mask.fine, Fine(to));
}

Picture Develop(const Canvas& canvas) {
    const Rect area = canvas.Area();
    Picture picture({area.width, area.height});
    for (int y = 0; y < area.height; ++y) {
        for (int x = 0; x < area.width; ++x) {
            picture.single.At(x, y) = PixelOf(canvas.MeanOf(area.left + x, area.top + y));
        }
    }
    const Rect fine = Fine(area);
    for (int y = 0; y < fine.height; ++y) {
        for (int x = 0; x < fine.width; ++x) {
            picture.fine.At(x, y) = PixelOf(canvas.Fine(fine.left + x, fine.top + y));
        }
    }
    return picture;
}

Picture HardMask(const Shape& shape, Size size) {
    Picture mask(size);
    mask.single = MaskOf(shape, size, 1);
    mask.fine = MaskOf(shape, Fine(size), kFine);
    return mask;
}

std::filesystem::path FineFolder(const std::filesystem::path& root) {
    return root / (std::to_string(kFine) + 'x');
}

void WriteBmp(const std::filesystem::path& root, const std::filesystem::path& name,
              const Picture& picture) {
    WriteOne(root / name, picture.single);
    WriteOne(FineFolder(root) / name, picture.fine);
}

}  // namespace quendrel::art
