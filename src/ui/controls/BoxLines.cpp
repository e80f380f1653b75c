#include "ui/controls/BoxLines.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QLabel>
#include <QMessageBox>

namespace quendrel {

namespace {

/// What a box has beside its text: the icon, the margins and the frame.
constexpr int kBeside = 110;
/// What its label has beside its text.
constexpr int kBesideLabel = 16;

/// The width of the longest line.
qreal WidthOf(const QString& lines, const QFont& font) {
    return QFontMetricsF(font).size(0, lines).width();
}

}  // namespace

void KeepLines(QMessageBox& box, int room) {
    auto* const label = box.findChild<QLabel*>("qt_msgbox_label");  // the toolkit's own name
    if (label == nullptr) return;
    QFont font = label->font();
    const qreal width = WidthOf(box.text(), font);
    const qreal fits = room - kBeside;
    if (width > fits) {
        font.setPointSizeF(QFontInfo(font).pointSizeF() * fits / width);
        label->setFont(font);
    }
    label->setMinimumWidth(qCeil(WidthOf(box.text(), font)) + kBesideLabel);
}

}  // namespace quendrel
