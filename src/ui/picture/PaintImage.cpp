#include "ui/picture/PaintImage.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

#include <QPainter>

#include "platform/Doors.h"
#include "ui/picture/PictureImage.h"

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

/// A picture says nothing of opacity; the device's pixels have it.
constexpr QRgb kOpaque = 0xFF000000;

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
    QImage scaled = Whole({device.size(), QImage::Format_RGB32});
    for (int line = 0; line < device.height(); ++line) {
        const int row = rows[static_cast<std::size_t>(line)];
        const auto* const from = reinterpret_cast<const QRgb*>(image.constScanLine(row));
        auto* const to = reinterpret_cast<QRgb*>(scaled.scanLine(line));
        std::transform(columns.begin(), columns.end(), to,
                       [from](int at) { return kOpaque | from[at]; });
    }
    return scaled;
}

/// Catmull and Rom's cubic, which keeps edges sharp without letting them ring far.
float Cubic(float at) {
    const float x = std::abs(at);
    if (x < 1) return (1.5F * x - 2.5F) * x * x + 1;
    if (x < 2) return ((-0.5F * x + 2.5F) * x - 4) * x + 2;
    return 0;
}

/// What device pixels are mixed of: each of as many of the image's pixels, from its own first one
/// on, by their shares.
struct Mixtures {
    std::size_t parts = 0;
    std::vector<int> first;
    std::vector<float> shares;

    const float* SharesOf(std::size_t mixture) const { return shares.data() + mixture * parts; }
};

/// The mixtures of `count` device pixels from `first` on. Where the image is scaled down the cubic
/// is as much wider, so that every pixel of the image counts. The image's edges go on beyond it.
Mixtures MixturesOf(const Axis& axis, int first, int count) {
    const qreal stretch = std::max(1.0, 1 / axis.scale);
    Mixtures mixtures;
    mixtures.parts =
        static_cast<std::size_t>(std::min(static_cast<int>(std::ceil(4 * stretch)), axis.size));
    const int last = axis.size - static_cast<int>(mixtures.parts);
    mixtures.first.resize(static_cast<std::size_t>(count));
    mixtures.shares.resize(mixtures.first.size() * mixtures.parts);
    for (int i = 0; i < count; ++i) {
        const qreal centre = axis.At(first + i) - 0.5;
        const int free = static_cast<int>(std::floor(centre - 2 * stretch)) + 1;
        const int kept = std::clamp(free, 0, last);
        mixtures.first[static_cast<std::size_t>(i)] = kept;
        float* const shares = mixtures.shares.data() + static_cast<std::size_t>(i) * mixtures.parts;
        float sum = 0;
        for (int part = 0; part < static_cast<int>(mixtures.parts); ++part) {
            const float share = Cubic(static_cast<float>((free + part - centre) / stretch));
            const int at =
                std::clamp(free + part, kept, kept + static_cast<int>(mixtures.parts) - 1);
            shares[at - kept] += share;
            sum += share;
        }
        std::for_each(shares, shares + mixtures.parts, [sum](float& share) { share /= sum; });
    }
    return mixtures;
}

/// The channels of a pixel; the fourth is unused and makes the sums fit the processor's registers.
using Channels = std::array<float, 4>;

void Add(Channels& sum, float share, const Channels& pixel) {
    for (std::size_t i = 0; i < sum.size(); ++i) sum[i] += share * pixel[i];
}

Channels ChannelsOf(QRgb pixel) {
    return {static_cast<float>(qRed(pixel)), static_cast<float>(qGreen(pixel)),
            static_cast<float>(qBlue(pixel)), 0};
}

/// A row of the image as the device's columns show it.
class MixedRow {
public:
    MixedRow(const QRgb* row, int width, const Mixtures& columns) : mixed_(columns.first.size()) {
        std::vector<Channels> pixels(static_cast<std::size_t>(width));
        const auto begin = static_cast<std::size_t>(columns.first.front());
        const std::size_t end = static_cast<std::size_t>(columns.first.back()) + columns.parts;
        for (std::size_t x = begin; x < end; ++x) pixels[x] = ChannelsOf(row[x]);
        for (std::size_t i = 0; i < mixed_.size(); ++i) {
            const Channels* const from = pixels.data() + columns.first[i];
            const float* const shares = columns.SharesOf(i);
            Channels sum{};
            for (std::size_t part = 0; part < columns.parts; ++part) {
                Add(sum, shares[part], from[part]);
            }
            mixed_[i] = sum;
        }
    }

    const std::vector<Channels>& pixels() const { return mixed_; }

private:
    std::vector<Channels> mixed_;
};

int Level(float channel) { return std::clamp(static_cast<int>(channel + 0.5F), 0, 255); }

QImage Mixed(const QImage& image, const QRect& device, const Axis& x, const Axis& y) {
    const Mixtures columns = MixturesOf(x, device.x(), device.width());
    const Mixtures rows = MixturesOf(y, device.y(), device.height());
    const int top = rows.first.front();
    std::vector<MixedRow> across;
    for (int row = top; row < rows.first.back() + static_cast<int>(rows.parts); ++row) {
        across.emplace_back(reinterpret_cast<const QRgb*>(image.constScanLine(row)), image.width(),
                            columns);
    }

    QImage mixed = Whole({device.size(), QImage::Format_RGB32});
    std::vector<Channels> sums(columns.first.size());
    for (std::size_t line = 0; line < rows.first.size(); ++line) {
        std::fill(sums.begin(), sums.end(), Channels{});
        for (std::size_t part = 0; part < rows.parts; ++part) {
            const auto row = static_cast<std::size_t>(rows.first[line] - top) + part;
            const Channels* const from = across[row].pixels().data();
            const float share = rows.SharesOf(line)[part];
            for (std::size_t i = 0; i < sums.size(); ++i) Add(sums[i], share, from[i]);
        }
        auto* const to = reinterpret_cast<QRgb*>(mixed.scanLine(static_cast<int>(line)));
        std::transform(sums.begin(), sums.end(), to, [](const Channels& sum) {
            return qRgb(Level(sum[0]), Level(sum[1]), Level(sum[2]));
        });
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
        // A large part takes memory, which may not be there.
        AtDoor([&] { painter.drawImage(device.topLeft(), Scaled(image, device, toDevice)); });
    }
    painter.restore();
}

void CopyPixels(const Picture& picture, const QRect& pixels, QImage& image) {
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        const Pixel* const from = picture.Row(y) + pixels.left();
        auto* const to = reinterpret_cast<QRgb*>(image.scanLine(y)) + pixels.left();
        std::transform(from, from + pixels.width(), to,
                       [](Pixel pixel) { return kOpaque | pixel; });
    }
}

}  // namespace quendrel
