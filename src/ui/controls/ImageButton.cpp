#include "ui/controls/ImageButton.h"

#include <algorithm>

#include <QCursor>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QMouseEvent>

#include "platform/Doors.h"
#include "ui/controls/MouseButton.h"
#include "ui/controls/ZoomedWindow.h"
#include "ui/picture/PaintImage.h"
#include "ui/picture/PictureImage.h"
#include "ui/skin/MainSkin.h"

namespace quendrel {

namespace {

void Take(QImage& target, const Picture& picture) {
    if (picture.width() > 0) target = Whole(ImageOf(picture).copy());
}

bool IsPress(const QEvent& event) {
    return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
}

QPoint NearestInside(QPoint at, const QRect& rect) {
    return {std::clamp(at.x(), rect.left(), rect.right()),
            std::clamp(at.y(), rect.top(), rect.bottom())};
}

void Tell(const std::function<void(MouseButton)>& handler, MouseButton button) {
    AtDoor([&] { handler(button); });
}

}  // namespace

MouseButton MouseButtonOf(Qt::MouseButton button) {
    switch (button) {
        case Qt::LeftButton:
            return MouseButton::kLeft;
        case Qt::RightButton:
            return MouseButton::kRight;
        default:
            return MouseButton::kOther;
    }
}

ImageButton::ImageButton(QWidget* parent) : QAbstractButton(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::TabFocus);
    // Keyboard and assistive technology come here; the mouse events are handled below.
    connect(this, &QAbstractButton::pressed, this, [this] { Tell(onPress, MouseButton::kLeft); });
    connect(this, &QAbstractButton::released, this, [this] {
        update();  // where the mouse held the button too, the toolkit does not
        Tell(onRelease, MouseButton::kLeft);
    });
    connect(this, &QAbstractButton::clicked, this, [this] { AtDoor(onClick); });
}

void ImageButton::SetPictures(const ButtonPictures& pictures) {
    Take(up_, pictures.up);
    Take(disabled_, pictures.disabled);
    Take(down_, pictures.down);
    Take(over_, pictures.over);
    Resize(this, up_.deviceIndependentSize().toSize());
    update();
}

void ImageButton::MakePicture() {
    picture_ = true;
    setFocusPolicy(Qt::NoFocus);
}

QAccessible::Role ImageButton::Role() const {
    if (picture_) return QAccessible::Graphic;
    if (choice_) return QAccessible::RadioButton;
    return isCheckable() ? QAccessible::CheckBox : QAccessible::Button;
}

void ImageButton::SetHeld(bool held) {
    const bool changes = held != held_;
    held_ = held;
    update();
    if (!changes || !choice_) return;
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

/// Disabled, passes presses on to the parent; the toolkit's buttons would swallow them.
bool ImageButton::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked) ForgetPress();
    if (!isEnabled() && IsPress(*event)) {
        event->ignore();
        return true;
    }
    return QAbstractButton::event(event);
}

void ImageButton::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    SetPointedAt(true);
}

void ImageButton::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    SetPointedAt(false);
}

void ImageButton::SetPointedAt(bool pointedAt) {
    pointedAt_ = pointedAt;
    update();
}

void ImageButton::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) setDown(true);
    Tell(onPress, MouseButtonOf(event->button()));
}

void ImageButton::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void ImageButton::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    if (confined_ && event->buttons() != Qt::NoButton && !rect().contains(at)) {
        QCursor::setPos(mapToGlobal(NearestInside(at, rect())));
        return;
    }
    if (event->buttons().testFlag(Qt::LeftButton)) setDown(rect().contains(at));
    SetPointedAt(rect().contains(at));
}

void ImageButton::mouseReleaseEvent(QMouseEvent* event) {
    const bool inside = confined_ || rect().contains(event->position().toPoint());
    const bool clicked = inside && event->button() == Qt::LeftButton && isDown();
    if (event->button() == Qt::LeftButton) setDown(false);
    confined_ = false;
    if (inside) Tell(onRelease, MouseButtonOf(event->button()));
    if (clicked) emit QAbstractButton::clicked();
}

/// A desktop may give the keyboard back to another window while the mouse holds the button down.
void ImageButton::focusOutEvent(QFocusEvent* event) {
    const bool heldByMouse = QGuiApplication::mouseButtons().testFlag(Qt::LeftButton);
    if (!heldByMouse) QAbstractButton::focusOutEvent(event);
    update();
}

void ImageButton::hideEvent(QHideEvent* event) {
    ForgetPress();
    SetPointedAt(false);
    QAbstractButton::hideEvent(event);
}

void ImageButton::PressAWhile() {
    constexpr int kPressMs = 100;
    setDown(true);
    if (!letGo_.isActive()) emit pressed();
    letGo_.start(kPressMs, this);
}

void ImageButton::timerEvent(QTimerEvent* event) {
    if (event->timerId() != letGo_.timerId()) return QAbstractButton::timerEvent(event);
    letGo_.stop();
    setDown(false);
    emit released();
    if (isEnabled()) emit clicked();
}

/// Called where the toolkit will not tell of the release: behind a modal window, or when hidden.
void ImageButton::ForgetPress() {
    letGo_.stop();
    confined_ = false;
    setDown(false);
}

void ImageButton::paintEvent(QPaintEvent* event) {
    UnitPainter painter(this);
    const QImage& shown = Shown();
    if (!shown.isNull()) PaintImage(painter, shown, event->region());
}

const QImage& ImageButton::Shown() const {
    const auto orUp = [this](const QImage& picture) -> const QImage& {
        return picture.isNull() ? up_ : picture;
    };
    if (held_) return orUp(down_);
    if (!isEnabled()) return orUp(disabled_);
    if (isDown() || isChecked()) return orUp(down_);
    if (pointedAt_) return orUp(over_);
    return up_;
}

}  // namespace quendrel
