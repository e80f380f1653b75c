// One line of live text on the console.
#include "ui/MessageLabel.h"

#include <QPainter>

namespace quendrel {

void MessageLabel::SetColor(const QColor& color) {
    color_ = color;
    update();
}

void MessageLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(color_);
    painter.drawText(rect(), static_cast<int>(alignment()) | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), Qt::ElideRight, width()));
}

}  // namespace quendrel
