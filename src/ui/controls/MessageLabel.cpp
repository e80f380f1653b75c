#include "ui/controls/MessageLabel.h"

#include <QPainter>

#include "ui/controls/LiveText.h"

namespace quendrel {

MessageLabel::MessageLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

void MessageLabel::SetColor(const QColor& color) {
    color_ = color;
    update();
}

void MessageLabel::ShowText(const QString& text, qsizetype kept) {
    kept_ = kept;
    setText(text);
}

bool MessageLabel::IsTextCut() const { return IsCut(rect(), font(), text()); }

void MessageLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(color_);
    DrawLine(painter, rect(), alignment(), font(), text(), kept_);
}

}  // namespace quendrel
