#include "kit/Gif.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <limits>
#include <map>
#include <stdexcept>
#include <string>

#include <gif_lib.h>

namespace quendrel::art {

namespace {

constexpr int kTableSize = 256;
constexpr int kTransparent = 255;  // the last entry: the others are colours

/// A frame in one of its sizes.
struct Still {
    const Bitmap* picture;
    int centiseconds;
};

/// Levels of red, green and blue; after gamma, equal steps look about equal.
using Levels = std::array<double, 3>;

struct Weighted {
    Levels levels;
    double weight;
};

Levels LevelsOf(std::uint32_t pixel) {
    return {double(pixel >> 16 & 255), double(pixel >> 8 & 255), double(pixel & 255)};
}

double Difference(const Levels& a, const Levels& b) {
    constexpr Levels kWeights{0.6, 1.0, 0.4};
    double sum = 0;
    for (std::size_t i = 0; i < 3; ++i) sum += kWeights[i] * Square(a[i] - b[i]);
    return sum;
}

std::size_t Nearest(const std::vector<Levels>& table, const Levels& levels) {
    std::size_t nearest = 0;
    double least = std::numeric_limits<double>::max();
    for (std::size_t i = 0; i < table.size(); ++i) {
        const double difference = Difference(table[i], levels);
        if (difference < least) {
            least = difference;
            nearest = i;
        }
    }
    return nearest;
}

/// Every colour of the animation and how often it is seen.
std::map<std::uint32_t, double> Histogram(const std::vector<Still>& frames, std::uint32_t clear) {
    std::map<std::uint32_t, double> histogram;
    for (const Still& frame : frames) {
        const auto [width, height] = frame.picture->Extent();
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) ++histogram[frame.picture->At(x, y)];
        }
    }
    histogram.erase(clear);
    return histogram;
}

/// A range of colours that become one entry of the colour table, and how much they differ.
struct Box {
    std::vector<Weighted>::iterator begin;
    std::vector<Weighted>::iterator end;
    std::size_t axis = 0;
    double spread = 0;

    Box(std::vector<Weighted>::iterator from, std::vector<Weighted>::iterator to)
        : begin(from), end(to) {
        const Levels mean = Mean();
        for (std::size_t i = 0; i < 3; ++i) {
            double along = 0;
            for (auto it = begin; it != end; ++it) {
                along += it->weight * Square(it->levels[i] - mean[i]);
            }
            if (along > spread) {
                spread = along;
                axis = i;
            }
        }
    }

    Levels Mean() const {
        Levels sum{};
        double weight = 0;
        for (auto it = begin; it != end; ++it) {
            for (std::size_t i = 0; i < 3; ++i) sum[i] += it->weight * it->levels[i];
            weight += it->weight;
        }
        for (double& level : sum) level /= weight;
        return sum;
    }
};

/// Divides the box whose colours differ most, again and again, until there is one for each entry.
std::vector<Levels> CutTable(std::vector<Weighted>& colors) {
    std::vector<Box> boxes{{colors.begin(), colors.end()}};
    while (boxes.size() < kTransparent) {
        const auto widest =
            std::max_element(boxes.begin(), boxes.end(),
                             [](const Box& a, const Box& b) { return a.spread < b.spread; });
        if (widest->spread <= 0) break;
        const Box box = *widest;
        const double mean = box.Mean()[box.axis];
        const auto middle = std::stable_partition(
            box.begin, box.end, [&](const Weighted& c) { return c.levels[box.axis] < mean; });
        *widest = {box.begin, middle};
        boxes.emplace_back(middle, box.end);
    }
    std::vector<Levels> table;
    table.reserve(boxes.size());
    for (const Box& box : boxes) table.push_back(box.Mean());
    return table;
}

/// Moves every entry to the mean of the colours that are nearer to it than to the others.
void SettleTable(std::vector<Levels>& table, const std::vector<Weighted>& colors) {
    std::vector<Levels> sums(table.size());
    std::vector<double> weights(table.size());
    for (const Weighted& color : colors) {
        const std::size_t entry = Nearest(table, color.levels);
        for (std::size_t i = 0; i < 3; ++i) sums[entry][i] += color.weight * color.levels[i];
        weights[entry] += color.weight;
    }
    for (std::size_t entry = 0; entry < table.size(); ++entry) {
        for (std::size_t i = 0; i < 3; ++i) {
            if (weights[entry] > 0) table[entry][i] = sums[entry][i] / weights[entry];
        }
    }
}

std::vector<Levels> MakeTable(const std::map<std::uint32_t, double>& histogram) {
    constexpr int kRounds = 6;
    std::vector<Weighted> colors;
    colors.reserve(histogram.size());
    // A colour seen in every frame matters more than one seen once, but not as much more.
    for (const auto& [pixel, count] : histogram) {
        colors.push_back({LevelsOf(pixel), std::sqrt(count)});
    }
    std::vector<Levels> table = CutTable(colors);
    for (int round = 0; round < kRounds; ++round) SettleTable(table, colors);
    for (Levels& levels : table) {
        for (double& level : levels) level = std::round(level);
    }
    return table;
}

/// A GIF file that is being written, in memory.
class GifFile {
public:
    GifFile() : file_(EGifOpen(&bytes_, Append, nullptr)) {
        if (file_ == nullptr) throw std::runtime_error("cannot make a GIF file");
        EGifSetGifVersion(file_, true);
    }
    ~GifFile() {
        if (file_ != nullptr) EGifCloseFile(file_, nullptr);
    }
    GifFile(const GifFile&) = delete;
    GifFile& operator=(const GifFile&) = delete;

    GifFileType* Handle() { return file_; }

    static void Check(int result) {
        if (result != GIF_OK) throw std::runtime_error("cannot make a GIF file");
    }

    /// Ends the file and gives its bytes.
    const std::string& Close() {
        const int result = EGifCloseFile(file_, nullptr);
        file_ = nullptr;
        Check(result);
        return bytes_;
    }

private:
    static int Append(GifFileType* file, const GifByteType* bytes, int count) {
        static_cast<std::string*>(file->UserData)
            ->append(bytes, bytes + static_cast<std::ptrdiff_t>(count));
        return count;
    }

    std::string bytes_;
    GifFileType* file_;
};

void PutEndlessLoop(GifFile& gif) {
    constexpr std::array<unsigned char, 3> kForever{1, 0, 0};
    GifFile::Check(EGifPutExtensionLeader(gif.Handle(), APPLICATION_EXT_FUNC_CODE));
    GifFile::Check(EGifPutExtensionBlock(gif.Handle(), 11, "NETSCAPE2.0"));
    GifFile::Check(EGifPutExtensionBlock(gif.Handle(), kForever.size(), kForever.data()));
    GifFile::Check(EGifPutExtensionTrailer(gif.Handle()));
}

void PutFrame(GifFile& gif, const Still& frame, const std::map<std::uint32_t, int>& entries) {
    const GraphicsControlBlock control{DISPOSE_BACKGROUND, false, frame.centiseconds, kTransparent};
    std::array<GifByteType, 4> bytes{};
    EGifGCBToExtension(&control, bytes.data());
    GifFile::Check(
        EGifPutExtension(gif.Handle(), GRAPHICS_EXT_FUNC_CODE, bytes.size(), bytes.data()));

    const auto [width, height] = frame.picture->Extent();
    GifFile::Check(EGifPutImageDesc(gif.Handle(), 0, 0, width, height, false, nullptr));
    std::vector<GifPixelType> line(static_cast<std::size_t>(width));
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            line[static_cast<std::size_t>(x)] =
                static_cast<GifPixelType>(entries.at(frame.picture->At(x, y)));
        }
        GifFile::Check(EGifPutLine(gif.Handle(), line.data(), width));
    }
}

void PutScreen(GifFile& gif, Size size, const std::vector<Levels>& table) {
    std::array<GifColorType, kTableSize> colors{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        colors[i] = {static_cast<GifByteType>(table[i][0]), static_cast<GifByteType>(table[i][1]),
                     static_cast<GifByteType>(table[i][2])};
    }
    ColorMapObject* const map = GifMakeMapObject(kTableSize, colors.data());
    const int result =
        EGifPutScreenDesc(gif.Handle(), size.width, size.height, 8, kTransparent, map);
    GifFreeMapObject(map);
    GifFile::Check(result);
}

void WriteOne(const std::filesystem::path& path, const std::vector<Still>& frames,
              std::uint32_t clear) {
    const std::map<std::uint32_t, double> histogram = Histogram(frames, clear);
    const std::vector<Levels> table = MakeTable(histogram);
    std::map<std::uint32_t, int> entries{{clear, kTransparent}};
    for (const auto& [pixel, count] : histogram) {
        entries[pixel] = static_cast<int>(Nearest(table, LevelsOf(pixel)));
    }

    GifFile gif;
    PutScreen(gif, frames.front().picture->Extent(), table);
    PutEndlessLoop(gif);
    for (const Still& frame : frames) PutFrame(gif, frame, entries);
    std::ofstream file(path, std::ios::binary);
    file << gif.Close();
    file.close();
    if (!file) throw std::runtime_error("cannot write " + path.string());
}

/// The frames in one of their sizes.
std::vector<Still> StillsOf(const std::vector<Frame>& frames, Bitmap Picture::*size) {
    std::vector<Still> stills;
    stills.reserve(frames.size());
    for (const Frame& frame : frames) {
        stills.push_back({&(frame.picture.*size), frame.centiseconds});
    }
    return stills;
}

}  // namespace

void WriteGif(const std::filesystem::path& root, const std::string& name,
              const std::vector<Frame>& frames) {
    const std::uint32_t clear = Develop(EmptyFrame({0, 0, 1, 1})).single.At(0, 0);
    WriteOne(root / name, StillsOf(frames, &Picture::single), clear);
    WriteOne(FineFolder(root) / name, StillsOf(frames, &Picture::fine), clear);
}

}  // namespace quendrel::art
