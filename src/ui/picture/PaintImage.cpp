#include "ui/picture/PaintImage.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

#include <QPainter>

namespace quendrel {

namespace {

/// One direction of the way from an image to the device.
struct Axis {
    /// Where the image begins on the device.
    qreal origin;
    /// The device's pixels for one of the image's.
    qreal scale;
    /// The image's pixels.
    int size;

    /// Where the centre of a device pixel lies on the image.
    qreal At(int device) const { return (device + 0.5 - origin) / scale; }
};

/// Scales are products of fractions, so they are a little off.
constexpr qreal kSlack = 1e-4;

bool IsWhole(qreal value) { return std::abs(value - std::round(value)) < kSlack; }

/// Whether pixel lies on pixel.
bool FitsExactly(const Axis& axis) {
    return std::abs(axis.scale - 1) < kSlack && IsWhole(axis.origin);
}

/// For each of `count` device pixels from `first` on, the image's pixel under its centre.
std::vector<int> Under(const Axis& axis, int first, int count) {
    std::vector<int> under(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        const auto at = static_cast<int>(std::floor(axis.At(first + i)));
        under[static_cast<std::size_t>(i)] = std::clamp(at, 0, axis.size - 1);
    }
    return under;
}

QImage Nearest(const QImage& image, const QRect& device, const Axis& x, const Axis& y) {
    const auto columns = Under(x, device.x(), device.width());
    const auto rows = Under(y, device.y(), device.height());
    QImage scaled(device.size(), QImage::Format_RGB32);
    for (int line = 0; line < device.height(); ++line) {
        const int row = rows[static_cast<std::size_t>(line)];
        const auto* const from = reinterpret_cast<const QRgb*>(image.constScanLine(row));
        auto* const to = reinterpret_cast<QRgb*>(scaled.scanLine(line));
        std::transform(columns.begin(), columns.end(), to, [from](int at) { return from[at]; });
    }
    return scaled;
}

/// Catmull and Rom's cubic, which keeps edges sharp without letting them ring far.
qreal Cubic(qreal at) {
    const qreal x = std::abs(at);
    if (x < 1) return (1.5 * x - 2.5) * x * x + 1;
    if (x < 2) return ((-0.5 * x + 2.5) * x - 4) * x + 2;
    return 0;
}

/// Weights are whole numbers that add up to this.
constexpr int kOne = 1 << 12;

/// What a device pixel is mixed of: the image's pixels from `first` on, with these weights.
struct Mixture {
    int first = 0;
    std::vector<int> weights;
};

/// The mixture of one device pixel. Where the image is scaled down the cubic is as much wider, so
/// that every pixel of the image counts.
Mixture MixtureAt(const Axis& axis, int device) {
    const qreal stretch = std::max(1.0, 1 / axis.scale);
    const qreal centre = axis.At(device) - 0.5;
    const int first = static_cast<int>(std::floor(centre - 2 * stretch)) + 1;
    const int last = static_cast<int>(std::ceil(centre + 2 * stretch)) - 1;
    std::vector<qreal> shares;
    qreal sum = 0;
    for (int at = first; at <= last; ++at) {
        shares.push_back(Cubic((at - centre) / stretch));
        sum += shares.back();
    }
    Mixture mixture{first, {}};
    int left = kOne;
    for (const qreal share : shares) {
        mixture.weights.push_back(static_cast<int>(std::lround(share / sum * kOne)));
        left -= mixture.weights.back();
    }
    *std::max_element(mixture.weights.begin(), mixture.weights.end()) += left;
    return mixture;
}

/// The same within the image, whose pixels at the edge go on beyond it.
Mixture MixtureWithin(const Axis& axis, int device) {
    const Mixture free = MixtureAt(axis, device);
    const auto inside = [&axis](int at) { return std::clamp(at, 0, axis.size - 1); };
    const int last = free.first + static_cast<int>(free.weights.size()) - 1;
    Mixture kept{inside(free.first), {}};
    kept.weights.resize(static_cast<std::size_t>(inside(last) - kept.first + 1));
    for (std::size_t i = 0; i < free.weights.size(); ++i) {
        const int at = inside(free.first + static_cast<int>(i));
        kept.weights[static_cast<std::size_t>(at - kept.first)] += free.weights[i];
    }
    return kept;
}

std::vector<Mixture> Mixtures(const Axis& axis, int first, int count) {
    std::vector<Mixture> mixtures;
    mixtures.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) mixtures.push_back(MixtureWithin(axis, first + i));
    return mixtures;
}

constexpr int kChannels = 3;

/// The channels of a row of pixels, one after the other.
using Row = std::vector<std::int32_t>;

Row MixedColumns(const QRgb* pixels, const std::vector<Mixture>& columns) {
    Row row;
    row.reserve(columns.size() * kChannels);
    for (const Mixture& mixture : columns) {
        std::array<std::int32_t, kChannels> sum{};
        const QRgb* from = pixels + mixture.first;
        for (const int weight : mixture.weights) {
            sum[0] += weight * qRed(*from);
            sum[1] += weight * qGreen(*from);
            sum[2] += weight * qBlue(*from);
            ++from;
        }
        for (const std::int32_t channel : sum) row.push_back((channel + 8) >> 4);
    }
    return row;
}

/// What is left of two weights' fractions once a row's own has been cut to eight bits.
constexpr int kFraction = 20;

int Level(std::int32_t sum) {
    return std::clamp((sum + (1 << (kFraction - 1))) >> kFraction, 0, 255);
}

QImage Mixed(const QImage& image, const QRect& device, const Axis& x, const Axis& y) {
    const auto columns = Mixtures(x, device.x(), device.width());
    const auto rows = Mixtures(y, device.y(), device.height());
    // The rows of the image that are needed, mixed across.
    const int top = rows.front().first;
    const int end = rows.back().first + static_cast<int>(rows.back().weights.size());
    std::vector<Row> across;
    across.reserve(static_cast<std::size_t>(end - top));
    for (int row = top; row < end; ++row) {
        across.push_back(
            MixedColumns(reinterpret_cast<const QRgb*>(image.constScanLine(row)), columns));
    }

    QImage mixed(device.size(), QImage::Format_RGB32);
    Row sums(columns.size() * kChannels);
    for (int line = 0; line < device.height(); ++line) {
        const Mixture& mixture = rows[static_cast<std::size_t>(line)];
        std::fill(sums.begin(), sums.end(), 0);
        auto from = across.cbegin() + (mixture.first - top);
        for (const int weight : mixture.weights) {
            std::transform(from->begin(), from->end(), sums.begin(), sums.begin(),
                           [weight](std::int32_t channel, std::int32_t sum) {
                               return sum + weight * channel;
                           });
            ++from;
        }
        auto* const to = reinterpret_cast<QRgb*>(mixed.scanLine(line));
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const auto* const sum = sums.data() + i * kChannels;
            to[i] = qRgb(Level(sum[0]), Level(sum[1]), Level(sum[2]));
        }
    }
    return mixed;
}

/// What the device shows of the image within a rectangle of device pixels.
QImage Scaled(const QImage& image, const QRect& device, const QTransform& toDevice) {
    const qreal density = image.devicePixelRatio();
    const Axis x{toDevice.dx(), toDevice.m11() / density, image.width()};
    const Axis y{toDevice.dy(), toDevice.m22() / density, image.height()};
    const bool asItIs = density == 1 || (FitsExactly(x) && FitsExactly(y));
    return asItIs ? Nearest(image, device, x, y) : Mixed(image, device, x, y);
}

}  // namespace

void PaintImage(QPainter& painter, const QImage& image, const QRegion& region) {
    const QTransform toDevice = painter.deviceTransform();
    const QTransform widgetToDevice = painter.worldTransform().inverted() * toDevice;
    painter.save();
    painter.setTransform(toDevice.inverted(), true);
    for (const QRect& part : region) {
        // One pixel more on each side, since the toolkit may round the clip of a part either way.
        const QRect device =
            widgetToDevice.mapRect(QRectF(part)).toAlignedRect().adjusted(-1, -1, 1, 1);
        painter.drawImage(device.topLeft(), Scaled(image, device, toDevice));
    }
    painter.restore();
}

}  // namespace quendrel
