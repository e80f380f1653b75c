// A borderless window, shaped by a mask picture.
#include "ui/SkinnedWindow.h"

#include <algorithm>

#include <QAbstractButton>
#include <QBitmap>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>

#include "Global.h"
#include "platform/Clock.h"
#include "ui/PictureImage.h"

namespace quendrel {

namespace {

/// How many pixels the pointer moves before a press becomes a drag.
constexpr int kFirstMove = 3;

/// What the desktop leaves free of the screen around a point.
QRect RoomAround(QPoint at) {
    const QScreen* const screen = QGuiApplication::screenAt(at);
    return (screen != nullptr ? screen : QGuiApplication::primaryScreen())->availableGeometry();
}

}  // namespace

SkinnedWindow::SkinnedWindow(const QString& name)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint) {
    setObjectName(name);
    setWindowTitle(QString::fromUtf8(kAppName.data(), static_cast<qsizetype>(kAppName.size())));
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void SkinnedWindow::ShapeFrom(const Picture& mask, Pixel cut) {
    constexpr QRgb opaque = 0xFF000000;
    const QImage pixels = ImageOf(mask).convertToFormat(QImage::Format_ARGB32);
    const QImage kept = pixels.createMaskFromColor(opaque | cut, Qt::MaskInColor);
    setMask(QBitmap::fromImage(kept));
}

void SkinnedWindow::SetFace(const Picture& face) {
    face_ = &face;
    setFixedSize(face.width(), face.height());
}

void SkinnedWindow::ShowModal(Clock& clock) {
    constexpr int kLongestSleep = 1000;
    setWindowModality(Qt::ApplicationModal);
    show();
    activateWindow();
    while (isVisible()) clock.PumpEvents(kLongestSleep);
}

void SkinnedWindow::MoveOver(const QRect& place) {
    const QRect room = RoomAround(place.center());
    const QPoint corner = place.center() - rect().center();
    move(std::clamp(corner.x(), room.left(), std::max(room.left(), room.right() + 1 - width())),
         std::clamp(corner.y(), room.top(), std::max(room.top(), room.bottom() + 1 - height())));
}

void SkinnedWindow::MoveToMiddle() { MoveOver(RoomAround(QCursor::pos())); }

void SkinnedWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    onCloseRequest();
}

/// A disabled button lets the mouse through, but it is no part of the background.
bool SkinnedWindow::IsBackground(QPoint at) const {
    const auto buttons = findChildren<QAbstractButton*>(Qt::FindDirectChildrenOnly);
    return std::none_of(buttons.begin(), buttons.end(), [at](const QAbstractButton* button) {
        return button->isVisible() && button->geometry().contains(at);
    });
}

void SkinnedWindow::mousePressEvent(QMouseEvent* event) {
    hold_ = event->position().toPoint();
    drag_ = IsBackground(hold_) ? Drag::kMayBegin : Drag::kNone;
}

/// The drag begins with the first real move: a window manager that is asked after a mere click,
/// when the button is up again, would let the window stick to the pointer. With the left button it
/// moves the window from then on. With any other, whose release it would wait for in vain, and
/// where there is no window manager, the moves go on arriving here.
void SkinnedWindow::mouseMoveEvent(QMouseEvent* event) {
    if (drag_ == Drag::kNone || event->buttons() == Qt::NoButton) return;
    const QPoint moved = event->position().toPoint() - hold_;
    if (drag_ == Drag::kMayBegin && moved.manhattanLength() < kFirstMove) return;
    move(event->globalPosition().toPoint() - hold_);
    if (drag_ == Drag::kMayBegin && event->buttons() == Qt::LeftButton) {
        windowHandle()->startSystemMove();
    }
    drag_ = Drag::kUnderWay;
}

void SkinnedWindow::paintEvent(QPaintEvent* event) {
    if (face_ == nullptr) return;
    QPainter painter(this);
    const QImage image = ImageOf(*face_);
    for (const QRect& rect : event->region()) painter.drawImage(rect, image, rect);
}

}  // namespace quendrel
