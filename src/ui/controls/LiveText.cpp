#include "ui/controls/LiveText.h"

#include <algorithm>

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>
#include <QtMath>

namespace quendrel {

namespace {

constexpr int kSmallestPixels = 6;

/// How far the letters of a font reach above the baseline, accents included, and below it. Most
/// faces, the usual one among them, need no more than their size above and a quarter of it below.
struct Reach {
    int above;
    int below;
};

Reach ReachOf(const QFont& font) {
    const QString tallAndDeep = QString::fromUtf8("\u00c5\u00c9\u00d1gjpqy\u00c7");
    const QRectF ink = QFontMetricsF(font).tightBoundingRect(tallAndDeep);
    const int pixels = font.pixelSize();
    return {std::max(pixels, qCeil(-ink.top())), std::max((pixels + 3) / 4, qCeil(ink.bottom()))};
}

/// The baseline of plain text in the middle of a line of this height.
int MiddleBaseline(int height, const QFont& font) {
    const QFontMetricsF metrics(font);
    return qRound((height - metrics.height()) / 2 + metrics.ascent());
}

}  // namespace

SkinFonts FontsOfSkin(const std::string& root) {
    return ReadSkinFonts(root, [](const std::string& face) {
        return QFontDatabase::hasFamily(QString::fromStdString(face));
    });
}

QFont LiveFont(const TextStyle& style, int pixels) {
    constexpr int whole = 100;
    QFont font(QString::fromStdString(style.face));
    font.setPixelSize(qRound(pixels * style.size / static_cast<double>(whole)));
    font.setWeight(static_cast<QFont::Weight>(style.weight));
    if (style.width != whole) font.setStretch(style.width);
    return font;
}

QRect WholeLine(const QRect& place, const QFont& font) {
    const Reach reach = ReachOf(font);
    const int baseline = MiddleBaseline(place.height(), font);
    const int over = std::max(0, reach.above - baseline);
    const int under = std::max(0, baseline + reach.below - place.height());
    return place.adjusted(0, -over, 0, under);
}

void DrawLine(QPainter& painter, const QRect& line, Qt::Alignment side, const QFont& font,
              const QString& text, qsizetype kept) {
    const QFont fitting = FittingFont(line.height(), font, text);
    const QFontMetricsF metrics(fitting);
    const QString end = text.right(kept);
    const QString shown = metrics.elidedText(text.chopped(kept), Qt::ElideRight,
                                             line.width() - metrics.horizontalAdvance(end)) +
                          end;
    const qreal free = line.width() - metrics.horizontalAdvance(shown);
    const qreal indent = side.testFlag(Qt::AlignHCenter) ? free / 2 : 0;
    painter.setFont(fitting);
    painter.drawText(QPointF(line.left() + indent, line.top() + Baseline(line.height(), font)),
                     shown);
}

bool IsCut(const QRect& line, const QFont& font, const QString& text) {
    const QFontMetricsF metrics(FittingFont(line.height(), font, text));
    return metrics.horizontalAdvance(text) > line.width();
}

/// In the middle, or lower where accents would otherwise be outside the line.
int Baseline(int height, const QFont& font) {
    return std::max(ReachOf(font).above, MiddleBaseline(height, font));
}

QFont FittingFont(int height, const QFont& font, const QString& text) {
    const int above = Baseline(height, font);
    QFont fitting = font;
    for (int size = font.pixelSize(); size > kSmallestPixels; --size) {
        fitting.setPixelSize(size);
        const QRectF ink = QFontMetricsF(fitting).tightBoundingRect(text);
        if (ink.isEmpty() || (-ink.top() <= above && ink.bottom() <= height - above)) {
            return fitting;
        }
    }
    fitting.setPixelSize(kSmallestPixels);
    return fitting;
}

}  // namespace quendrel
