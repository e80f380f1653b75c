#include "ui/windows/WindowOutline.h"

#include <cmath>

#include <QPainter>

namespace quendrel {

namespace {

/// In the packed masks: what is cut away, what is kept.
constexpr Pixel kCutAway = 0;
constexpr Pixel kKept = 1;

/// The bit of a pixel in its byte of a line, the first pixel's being the highest.
unsigned BitOf(int x) { return 0x80U >> (x % 8); }

/// What a mask keeps; null for an empty mask.
QImage KeptBy(const Picture& mask, Pixel cut) {
    if (mask.width() == 0) return {};
    QImage kept(mask.width(), mask.height(), QImage::Format_Mono);
    kept.fill(kCutAway);
    for (int y = 0; y < mask.height(); ++y) {
        uchar* const line = kept.scanLine(y);
        for (int x = 0; x < mask.width(); ++x) {
            if (mask.At(x, y) == cut) continue;
            line[x / 8] = static_cast<uchar>(line[x / 8] | BitOf(x));
        }
    }
    return kept;
}

Picture MaskOf(const QImage& kept) {
    Picture mask(kept.width(), kept.height());
    for (int y = 0; y < kept.height(); ++y) {
        const uchar* const line = kept.constScanLine(y);
        for (int x = 0; x < kept.width(); ++x) {
            mask.Set(x, y, (line[x / 8] & BitOf(x)) != 0 ? kKept : kCutAway);
        }
    }
    return mask;
}

/// The toolkit's pixels that a region of device pixels touches.
QRegion Touched(const QRegion& device, qreal scale) {
    QRegion pixels;
    for (const QRect& rect : device) {
        pixels +=
            QRectF(QPointF(rect.topLeft()) / scale, QSizeF(rect.size()) / scale).toAlignedRect();
    }
    return pixels;
}

}  // namespace

/// At a scale between its quarters the toolkit clears the ground of a repaint in a window with
/// opacity beyond what it lets paint.
void WindowOutline::PrepareEdges(QWidget& window) {
    const qreal quarters = window.devicePixelRatioF() * 4;
    if (quarters == std::round(quarters)) window.setAttribute(Qt::WA_TranslucentBackground);
}

void WindowOutline::Take(const OutlineMasks& masks) {
    single_ = KeptBy(masks.single, masks.cut);
    doubled_ = KeptBy(masks.doubled, masks.cut);
}

/// Where the desktop does not cut the window the toolkit does, by its own larger pixels.
void WindowOutline::Cut(QWidget& window, double scale) {
    if (single_.isNull()) return;
    outline_ = Make(window, scale);
    if (!edges_.cut(window.winId(), outline_.kept)) {
        window.setMask(Touched(outline_.kept, window.devicePixelRatioF()));
    }
    window.update();
}

/// The larger mask says more where a unit takes more than one device pixel, and where the edge is
/// smooth.
Outline WindowOutline::Make(const QWidget& window, double scale) const {
    const qreal ratio = window.devicePixelRatioF();
    const QSize device(qRound(window.width() * ratio), qRound(window.height() * ratio));
    const bool smooth = window.testAttribute(Qt::WA_TranslucentBackground) && edges_.blends();
    const bool larger = (smooth || scale > 1) && !doubled_.isNull();
    const Picture mask = MaskOf(larger ? doubled_ : single_);
    return smooth ? SmoothOutline(mask, kCutAway, device) : HardOutline(mask, kCutAway, device);
}

bool WindowOutline::HasWithin(const QRect& pixels) const {
    if (single_.isNull()) return true;
    return QRegion(pixels).subtracted(outline_.kept).isEmpty() && !outline_.edge.intersects(pixels);
}

void WindowOutline::ClearOutside(QPainter& painter, const QRegion& region) const {
    if (!single_.isNull()) quendrel::ClearOutside(painter, outline_, region);
}

}  // namespace quendrel
