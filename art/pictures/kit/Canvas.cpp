#include "kit/Canvas.h"

#include <array>
#include <thread>

namespace quendrel::art {

namespace {

/// The pixels of a unit.
constexpr int kPixels = kFine * kFine;

/// The samples of a unit, first two and then two more in each of its pixels: a grid with four to a
/// row of the unit. An edge or a fine line makes some of the first differ; the others are taken
/// only where they do.
constexpr int kGrid = 4;
constexpr std::array kFirst{0, 3, 12, 15, 5, 6, 9, 10};
constexpr std::array kSecond{1, 2, 4, 7, 8, 11, 13, 14};

/// The samples that each pixel of a unit gets where these differ much: their places in the top left
/// pixel, which the others mirror. They lie among the others. One beside them would find edges that
/// the others miss, and so dot such an edge wherever grain alone makes them differ.
constexpr std::array<Vec2, 4> kThird{{{0.19, 0.44}, {0.26, 0.19}, {0.44, 0.49}, {0.49, 0.26}}};
static_assert(kFine == 2, "the samples are laid out for four pixels");

constexpr int kThreads = 2;

/// With fewer units a second thread costs more time than it saves.
constexpr int kWorthSharing = 4000;

/// Samples of one place: their mean, and their largest difference from the first.
class Samples {
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
    bool AreEven() const { return apart_ <= Tolerance(); }

    bool DifferMuch() const { return apart_ > 3 * Tolerance(); }

    Sample Mean() const { return {sum_.color * (1.0 / count_), sum_.alpha / count_}; }

private:
    double Tolerance() const {
        return 0.002 + 0.1 * std::max({first_.color.x, first_.color.y, first_.color.z});
    }

    int count_ = 0;
    Sample first_;
    Sample sum_;
    double apart_ = 0;
};

/// The pixels of the unit at (x, y).
class Unit {
public:
    Unit(int x, int y, const Canvas::Shader& shader)
        : corner_{static_cast<double>(x), static_cast<double>(y)}, shader_(shader) {
        Samples all;
        for (const int i : kFirst) all.Add(TakeOnGrid(i));
        if (all.AreEven()) return;
        for (const int i : kSecond) all.Add(TakeOnGrid(i));
        if (!all.DifferMuch()) return;
        for (const Vec2 at : kThird) {
            Take(0, at);
            Take(1, {1 - at.x, at.y});
            Take(2, {at.x, 1 - at.y});
            Take(3, {1 - at.x, 1 - at.y});
        }
    }

    Sample Mean(int column, int row) const { return PixelAt(row * kFine + column).Mean(); }

private:
    Samples& PixelAt(int pixel) { return pixels_[static_cast<std::size_t>(pixel)]; }
    const Samples& PixelAt(int pixel) const { return pixels_[static_cast<std::size_t>(pixel)]; }

    Sample TakeOnGrid(int i) {
        const int column = i % kGrid;
        const int row = i / kGrid;
        return Take(row * kFine / kGrid * kFine + column * kFine / kGrid,
                    {(column + 0.5) / kGrid, (row + 0.5) / kGrid});
    }

    /// Adds the sample at the place `at` in the unit to a pixel.
    Sample Take(int pixel, Vec2 at) {
        Sample sample = shader_(corner_ + at);
        sample.color = sample.color * sample.alpha;
        PixelAt(pixel).Add(sample);
        return sample;
    }

    Vec2 corner_;
    const Canvas::Shader& shader_;
    std::array<Samples, kPixels> pixels_;
};

}  // namespace

Canvas::Canvas(Rect area)
    : area_(area),
      pixels_(static_cast<std::size_t>(area.width) * static_cast<std::size_t>(area.height) *
              kPixels) {}

Canvas Canvas::Cut(Rect area) const {
    Canvas part(area);
    part.Paste(*this, area);
    return part;
}

void Canvas::Paste(const Canvas& source, Rect area) {
    const Rect common = Intersection(area, Intersection(area_, source.area_));
    for (int y = common.top * kFine; y < common.bottom() * kFine; ++y) {
        for (int x = common.left * kFine; x < common.right() * kFine; ++x) {
            pixels_[Index(x, y)] = source.Fine(x, y);
        }
    }
}

Color Canvas::MeanOf(int x, int y) const {
    Color sum;
    for (int i = 0; i < kPixels; ++i)
        sum = sum + Fine(x * kFine + i % kFine, y * kFine + i / kFine);
    return sum * (1.0 / kPixels);
}

void Canvas::Paint(Rect area, const Shader& shader) {
    const Rect common = Intersection(area, area_);
    if (common.width * common.height < kWorthSharing) {
        PaintRows(common, shader);
        return;
    }
    // Every unit depends on itself alone, so sharing the rows out does not change the result.
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
            const Unit unit(x, y, shader);
            for (int row = 0; row < kFine; ++row) {
                for (int column = 0; column < kFine; ++column) {
                    const Sample seen = unit.Mean(column, row);
                    if (seen.alpha <= 0) continue;
                    Color& pixel = pixels_[Index(x * kFine + column, y * kFine + row)];
                    pixel = pixel * (1 - seen.alpha) + seen.color;
                }
            }
        }
    }
}

}  // namespace quendrel::art
