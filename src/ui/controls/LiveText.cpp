#include "ui/controls/LiveText.h"

#include <algorithm>

#include <QFontMetricsF>
#include <QPainter>

#include "ui/layout/MainLayout.h"

namespace quendrel {

namespace {

constexpr int kSmallestPixels = 6;

/// How far the letters of this font reach above the baseline, accents included, and below it.
constexpr int Above(int pixels) { return pixels; }
constexpr int Below(int pixels) { return (pixels + 3) / 4; }

/// The baseline of plain text in the middle of a line of this height.
int MiddleBaseline(int height, int pixels) {
    const QFontMetricsF font(LiveFont(pixels));
    return qRound((height - font.height()) / 2 + font.ascent());
}

}  // namespace

QFont LiveFont(int pixels) {
    QFont font(layout::kTextFamily);
    font.setPixelSize(pixels);
    font.setWeight(static_cast<QFont::Weight>(layout::kTextWeight));
    return font;
}

QRect WholeLine(const QRect& place, int pixels) {
    const int baseline = MiddleBaseline(place.height(), pixels);
    const int over = std::max(0, Above(pixels) - baseline);
    const int under = std::max(0, baseline + Below(pixels) - place.height());
    return place.adjusted(0, -over, 0, under);
}

void DrawLine(QPainter& painter, const QRect& line, Qt::Alignment side, int pixels,
              const QString& text, qsizetype kept) {
    const QFont font = FittingFont(line.height(), pixels, text);
    const QFontMetricsF metrics(font);
    const QString end = text.right(kept);
    const QString shown = metrics.elidedText(text.chopped(kept), Qt::ElideRight,
                                             line.width() - metrics.horizontalAdvance(end)) +
                          end;
    const qreal free = line.width() - metrics.horizontalAdvance(shown);
    const qreal indent = side.testFlag(Qt::AlignHCenter) ? free / 2 : 0;
    painter.setFont(font);
    painter.drawText(QPointF(line.left() + indent, line.top() + Baseline(line.height(), pixels)),
                     shown);
}

bool IsCut(const QRect& line, int pixels, const QString& text) {
    const QFontMetricsF metrics(FittingFont(line.height(), pixels, text));
    return metrics.horizontalAdvance(text) > line.width();
}

/// In the middle, or lower where accents would otherwise be outside the line.
int Baseline(int height, int pixels) {
    return std::max(Above(pixels), MiddleBaseline(height, pixels));
}

QFont FittingFont(int height, int pixels, const QString& text) {
    const int above = Baseline(height, pixels);
    for (int size = pixels; size > kSmallestPixels; --size) {
        const QFont font = LiveFont(size);
        const QRectF ink = QFontMetricsF(font).tightBoundingRect(text);
        if (ink.isEmpty() || (-ink.top() <= above && ink.bottom() <= height - above)) return font;
    }
    return LiveFont(kSmallestPixels);
}

}  // namespace quendrel
