#include "kit/Canvas.h"

#include <thread>

namespace quendrel::art {

namespace {

constexpr int kSamples = 4;
constexpr int kThreads = 2;

/// Below this many pixels a second thread costs more than it saves.
constexpr int kWorthSharing = 4000;

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
    for (int y = common.top; y < common.bottom(); ++y)
        for (int x = common.left; x < common.right(); ++x) At(x, y) = source.At(x, y);
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
            Color sum;
            double alpha = 0;
            for (int i = 0; i < kSamples * kSamples; ++i) {
                const int across = i % kSamples;
                const int down = i / kSamples;
                const Sample s =
                    shader({x + (across + 0.5) / kSamples, y + (down + 0.5) / kSamples});
                sum = sum + s.color * s.alpha;
                alpha += s.alpha;
            }
            if (alpha <= 0) continue;
            const double weight = 1.0 / (kSamples * kSamples);
            Color& pixel = At(x, y);
            pixel = pixel * (1 - alpha * weight) + sum * weight;
        }
    }
}

}  // namespace quendrel::art
