#include "ui/picture/Outline.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include <QPainter>

#include "ui/picture/PictureImage.h"

namespace quendrel {

namespace {

/// Neighbours in a line: `from` is the first of them, `to` the first that is none.
struct Run {
    int from;
    int to;

    bool operator==(const Run&) const = default;
};

using Runs = std::vector<Run>;

/// The runs of the `count` items that `belongs` holds for.
template <typename Belongs>
Runs RunsOf(int count, const Belongs& belongs) {
    Runs runs;
    int at = 0;
    while (true) {
        while (at < count && !belongs(at)) ++at;
        if (at == count) return runs;
        const int from = at;
        while (at < count && belongs(at)) ++at;
        runs.push_back({from, at});
    }
}

/// What each row of the mask keeps.
std::vector<Runs> KeptOf(const Picture& mask, Pixel cut) {
    std::vector<Runs> kept;
    kept.reserve(static_cast<std::size_t>(mask.height()));
    for (int y = 0; y < mask.height(); ++y) {
        const Pixel* const row = mask.Row(y);
        kept.push_back(RunsOf(mask.width(), [row, cut](int x) { return row[x] != cut; }));
    }
    return kept;
}

/// A region that is given row by row, from the top.
class RowByRow {
public:
    void Add(const Runs& runs) {
        if (runs != last_) Close();
        last_ = runs;
        ++height_;
    }

    QRegion Region() {
        Close();
        QRegion region;
        region.setRects(rects_.data(), static_cast<int>(rects_.size()));
        return region;
    }

private:
    /// Rows that are alike become rectangles together.
    void Close() {
        for (const Run& run : last_) rects_.emplace_back(run.from, y_, run.to - run.from, height_);
        y_ += height_;
        height_ = 0;
    }

    std::vector<QRect> rects_;
    Runs last_;
    int y_ = 0;
    int height_ = 0;
};

/// How the pixels of the mask lie under those of the device, along one side of the window.
class Side {
public:
    Side(int mask, int device) : mask_(mask), device_(device) {}

    int mask() const { return mask_; }
    int device() const { return device_; }

    /// The mask's pixel under the centre of a device pixel.
    int Under(int at) const {
        return static_cast<int>((2 * std::int64_t{at} + 1) * mask_ / (2 * std::int64_t{device_}));
    }

    /// The first device pixel whose centre lies in the mask's pixel `at` or behind it.
    int FirstFrom(int at) const {
        const std::int64_t twice = 2 * std::int64_t{mask_};
        return static_cast<int>((2 * std::int64_t{device_} * at - mask_ + twice - 1) / twice);
    }

    /// How much of what a device pixel sees lies before the mask's pixel `border`. It sees the mask
    /// about its centre, the less the farther, out to Reach.
    double SeenBefore(int border, int at) const {
        const double share = std::clamp((border - Center(at)) / Reach(), -1.0, 1.0);
        const double beyond = 1 - std::abs(share);
        return share < 0 ? beyond * beyond / 2 : 1 - beyond * beyond / 2;
    }

    /// The pixels of the mask that a device pixel sees, also beyond the mask's ends.
    Run Seen(int at) const {
        return {static_cast<int>(std::floor(Center(at) - Reach())),
                static_cast<int>(std::ceil(Center(at) + Reach()))};
    }

    /// The device pixels that see both sides of the mask's pixel border `border`.
    Run Seeing(int border) const {
        return {
            std::max(0, static_cast<int>(std::floor((border - Reach()) / PerPixel() - 0.5))),
            std::min(device_, static_cast<int>(std::ceil((border + Reach()) / PerPixel() + 0.5)))};
    }

    /// By how much differences of what is seen are raised for a straight side to be as wide as one
    /// device pixel again.
    double Contrast() const {
        const double half = PerPixel() / 2 / Reach();
        return 0.5 / (half - half * half / 2);
    }

private:
    double PerPixel() const { return static_cast<double>(mask_) / device_; }
    double Center(int at) const { return (at + 0.5) * PerPixel(); }

    /// So far that the steps of the mask even out, in pixels of the mask.
    double Reach() const { return std::max(3.0, 1.5 * PerPixel()); }

    int mask_;
    int device_;
};

/// The sums of what the pixels of a device row see, each as its difference from the one before.
class SeenRow {
public:
    explicit SeenRow(const Side& side)
        : side_(side), steps_(static_cast<std::size_t>(side.mask())) {
        for (int border = 1; border < side.mask(); ++border) {
            std::vector<float>& steps = steps_[static_cast<std::size_t>(border)];
            const Run seeing = side.Seeing(border);
            double before = 0;
            for (int at = seeing.from; at < seeing.to; ++at) {
                const double behind = 1 - side.SeenBefore(border, at);
                steps.push_back(static_cast<float>(behind - before));
                before = behind;
            }
        }
    }

    /// Makes the row empty.
    void Clear() { differences_.assign(static_cast<std::size_t>(side_.device()), 0); }

    /// Adds `share` of a row of the mask.
    void Add(const Runs& kept, float share) {
        for (const Run& run : kept) {
            AddStep(run.from, share);
            AddStep(run.to, -share);
        }
    }

    const std::vector<float>& Differences() const { return differences_; }

private:
    /// From this border of the mask on. What reaches the mask's end goes on beyond it.
    void AddStep(int border, float share) {
        if (border == 0) differences_[0] += share;
        if (border == 0 || border == side_.mask()) return;
        float* at = differences_.data() + side_.Seeing(border).from;
        for (const float step : steps_[static_cast<std::size_t>(border)]) *at++ += share * step;
    }

    Side side_;
    /// For each border between two pixels of the mask, how it comes into sight.
    std::vector<std::vector<float>> steps_;
    std::vector<float> differences_;
};

constexpr int kWhole = 255;

/// Writes the coverage of a row of the device.
void WriteCoverage(const std::vector<float>& differences, float contrast, uchar* coverage) {
    float seen = 0;
    for (const float difference : differences) {
        seen += difference;
        const float share = std::clamp((seen - 0.5F) * contrast + 0.5F, 0.0F, 1.0F);
        *coverage++ = static_cast<uchar>(share * kWhole + 0.5F);
    }
}

QImage CoverageOf(const std::vector<Runs>& kept, const Side& columns, const Side& rows) {
    QImage coverage = Whole({columns.device(), rows.device(), QImage::Format_Alpha8});
    const auto contrast = static_cast<float>(std::max(columns.Contrast(), rows.Contrast()));
    SeenRow seenRow(columns);
    for (int y = 0; y < rows.device(); ++y) {
        seenRow.Clear();
        const Run seen = rows.Seen(y);
        for (int row = seen.from; row < seen.to; ++row) {
            const double share = rows.SeenBefore(row + 1, y) - rows.SeenBefore(row, y);
            const int existing = std::clamp(row, 0, rows.mask() - 1);
            seenRow.Add(kept[static_cast<std::size_t>(existing)], static_cast<float>(share));
        }
        WriteCoverage(seenRow.Differences(), contrast, coverage.scanLine(y));
    }
    return coverage;
}

}  // namespace

Outline HardOutline(const Picture& mask, Pixel cut, QSize device) {
    const std::vector<Runs> kept = KeptOf(mask, cut);
    const Side columns(mask.width(), device.width());
    const Side rows(mask.height(), device.height());
    RowByRow region;
    for (int y = 0; y < device.height(); ++y) {
        Runs runs;
        for (const Run& run : kept[static_cast<std::size_t>(rows.Under(y))]) {
            const Run shown{columns.FirstFrom(run.from), columns.FirstFrom(run.to)};
            if (shown.from < shown.to) runs.push_back(shown);
        }
        region.Add(runs);
    }
    return {region.Region(), {}, {}};
}

Outline SmoothOutline(const Picture& mask, Pixel cut, QSize device) {
    const Side columns(mask.width(), device.width());
    const Side rows(mask.height(), device.height());
    const QImage coverage = CoverageOf(KeptOf(mask, cut), columns, rows);
    RowByRow kept;
    RowByRow edge;
    for (int y = 0; y < device.height(); ++y) {
        const uchar* const line = coverage.constScanLine(y);
        kept.Add(RunsOf(device.width(), [line](int x) { return line[x] > 0; }));
        edge.Add(RunsOf(device.width(), [line](int x) { return line[x] > 0 && line[x] < kWhole; }));
    }
    return {kept.Region(), edge.Region(), coverage};
}

void ClearOutside(QPainter& painter, const Outline& outline, const QRegion& region) {
    const QTransform toDevice = painter.deviceTransform();
    const QTransform widgetToDevice = painter.worldTransform().inverted() * toDevice;
    QRegion part;
    // One pixel more on each side, since the toolkit may round the clip of a part either way.
    for (const QRect& rect : region) {
        part += widgetToDevice.mapRect(QRectF(rect)).toAlignedRect().adjusted(-1, -1, 1, 1);
    }
    painter.save();
    painter.setTransform(toDevice.inverted(), true);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    for (const QRect& edge : outline.edge.intersected(part)) {
        painter.drawImage(edge.topLeft(), outline.coverage, edge);
    }
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    for (const QRect& outside : part.subtracted(outline.kept)) {
        painter.fillRect(outside, Qt::transparent);
    }
    painter.restore();
}

}  // namespace quendrel
