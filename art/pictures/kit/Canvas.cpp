#include "kit/Canvas.h"

#include <array>
#include <thread>

namespace quendrel::art {

namespace {

constexpr int kSamples = 4;

/// The 16 samples of a pixel, four to a row, in the order in which they are taken. First the
/// corners and the middle: an edge or a fine line makes some of these differ. The rest are taken
/// only where they do.
constexpr std::array kOrder{0, 3, 12, 15, 5, 6, 9, 10, 1, 2, 4, 7, 8, 11, 13, 14};
constexpr int kFirst = 8;

constexpr int kThreads = 2;

/// With fewer pixels a second thread costs more time than it saves.
constexpr int kWorthSharing = 4000;

/// The samples of one pixel: their mean, and their largest difference from the first.
class Pixel {
public:
    /// The sample's colour is already multiplied by its alpha.
    void Add(const Sample& sample) {
        if (count_++ == 0) first_ = sample;
        sum_.color = sum_.color + sample.color;
        sum_.alpha += sample.alpha;
        const Vec3 apart = sample.color - first_.color;
        apart_ = std::max({apart_, std::abs(apart.x), std::abs(apart.y), std::abs(apart.z),
                           std::abs(sample.alpha - first_.alpha)});
    }

    /// Whether the samples are so alike that more of them would hardly change the mean.
    bool IsEven() const {
        return apart_ <= 0.002 + 0.1 * std::max({first_.color.x, first_.color.y, first_.color.z});
    }

    Sample Mean() const { return {sum_.color * (1.0 / count_), sum_.alpha / count_}; }

private:
    int count_ = 0;
    Sample first_;
    Sample sum_;
    double apart_ = 0;
};

Sample MeanOf(int x, int y, const Canvas::Shader& shader) {
    Pixel pixel;
    int taken = 0;
    for (const int i : kOrder) {
        if (taken++ == kFirst && pixel.IsEven()) break;
        const int column = i % kSamples;
        const int row = i / kSamples;
        Sample sample = shader({x + (column + 0.5) / kSamples, y + (row + 0.5) / kSamples});
        sample.color = sample.color * sample.alpha;
        pixel.Add(sample);
    }
    return pixel.Mean();
}

}  // namespace

Canvas::Canvas(Rect area)
    : area_(area),
      pixels_(static_cast<std::size_t>(area.width) * static_cast<std::size_t>(area.height)) {}

Canvas Canvas::Cut(Rect area) const {
    Canvas part(area);
    part.Paste(*this, area);
    return part;
}

void Canvas::Paste(const Canvas& source, Rect area) {
    const Rect common = Intersection(area, Intersection(area_, source.area_));
    for (int y = common.top; y < common.bottom(); ++y) {
        for (int x = common.left; x < common.right(); ++x) At(x, y) = source.At(x, y);
    }
}

void Canvas::Paint(Rect area, const Shader& shader) {
    const Rect common = Intersection(area, area_);
    if (common.width * common.height < kWorthSharing) {
        PaintRows(common, shader);
        return;
    }
    // Every pixel depends on itself alone, so sharing the rows out does not change the result.
    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i) {
        const int from = common.top + common.height * i / kThreads;
        const int to = common.top + common.height * (i + 1) / kThreads;
        threads.emplace_back(
            [this, &shader, strip = Rect{common.left, from, common.width, to - from}] {
                PaintRows(strip, shader);
            });
    }
    for (std::thread& thread : threads) thread.join();
}

void Canvas::PaintRows(Rect area, const Shader& shader) {
    for (int y = area.top; y < area.bottom(); ++y) {
        for (int x = area.left; x < area.right(); ++x) {
            const Sample seen = MeanOf(x, y, shader);
            if (seen.alpha <= 0) continue;
            Color& pixel = At(x, y);
            pixel = pixel * (1 - seen.alpha) + seen.color;
        }
    }
}

}  // namespace quendrel::art
