#include "ui/controls/MessageLabel.h"

#include "ui/controls/LiveText.h"
#include "ui/controls/ZoomedWindow.h"

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

bool MessageLabel::IsTextCut() const { return IsCut(UnitRect(this), font(), text()); }

void MessageLabel::paintEvent(QPaintEvent* /*event*/) {
    UnitPainter painter(this);
    painter.setPen(color_);
    DrawLine(painter, UnitRect(this), alignment(), font(), text(), kept_);
}

}  // namespace quendrel
