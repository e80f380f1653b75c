#include "ui/controls/ClickTarget.h"

#include <utility>

#include <QMouseEvent>

#include "platform/Doors.h"
#include "ui/controls/ImageButton.h"
#include "ui/controls/ZoomedWindow.h"

namespace quendrel {

ClickTarget::ClickTarget(QWidget* parent, Look look) : QWidget(parent), look_(look) {
    setAttribute(Qt::WA_NoSystemBackground);
}

void ClickTarget::Press() {
    AtDoor([this] {
        onPress(MouseButton::kLeft);
        onClick();
    });
}

void ClickTarget::changeEvent(QEvent* event) {
    if (event->type() == QEvent::EnabledChange) {
        setAttribute(Qt::WA_TransparentForMouseEvents, !isEnabled());
    }
    QWidget::changeEvent(event);
}

void ClickTarget::enterEvent(QEnterEvent* event) {
    QWidget::enterEvent(event);
    if (look_ == Look::kFramed) update();
}

void ClickTarget::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
    if (look_ == Look::kFramed) update();
}

void ClickTarget::mousePressEvent(QMouseEvent* event) {
    pressed_ = true;
    AtDoor([&] { onPress(MouseButtonOf(event->button())); });
}

void ClickTarget::mouseDoubleClickEvent(QMouseEvent* event) {
    if (onDoubleClick) {
        AtDoor(onDoubleClick);
    } else {
        mousePressEvent(event);
    }
}

void ClickTarget::mouseReleaseEvent(QMouseEvent* event) {
    const bool inside = rect().contains(event->position().toPoint());
    if (std::exchange(pressed_, false) && inside) AtDoor(onClick);
}

void ClickTarget::paintEvent(QPaintEvent* /*event*/) {
    if (look_ == Look::kInvisible) return;
    const QColor frame(255, 236, 190, underMouse() ? 230 : 110);
    const QColor fill(255, 236, 190, underMouse() ? 46 : 14);
    UnitPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(frame, 1.5));
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(UnitRect(this)).adjusted(1, 1, -1, -1), 10, 10);
}

}  // namespace quendrel
