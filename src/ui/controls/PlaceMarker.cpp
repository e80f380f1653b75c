#include "ui/controls/PlaceMarker.h"

#include <algorithm>

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QVariant>

#include "ui/controls/ZoomedWindow.h"

namespace quendrel {

namespace {

/// All in units. The middle of the ribbon runs along the edge of the control.
constexpr qreal kRibbon = 5;
constexpr qreal kThread = 2.8;
constexpr int kReach = 3;
constexpr qreal kRounding = 10;
/// From one stitch to the next, about, and a stitch without its round ends.
constexpr qreal kPitch = 10;
constexpr qreal kStitch = 4.8;

constexpr QRgb kRibbonColor = 0xFF0E0E16;
constexpr Pixel kUsualThread = 0xEBE6DA;

/// The toolkit's property that keeps how far from its control a sign stands.
constexpr const char* kMargins = "sign";

/// Whether the key does something at the place. With Ctrl, Alt or Meta it speaks to the window or
/// the desktop.
bool ActsAtPlace(const QKeyEvent& event) {
    if ((event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0) {
        return false;
    }
    switch (event.key()) {
        case Qt::Key_Shift:
        case Qt::Key_Control:
        case Qt::Key_Alt:
        case Qt::Key_AltGr:
        case Qt::Key_Meta:
        case Qt::Key_Super_L:
        case Qt::Key_Super_R:
        case Qt::Key_CapsLock:
        case Qt::Key_NumLock:
        case Qt::Key_ScrollLock:
            return false;
        default:
            return true;
    }
}

/// Halfway to white, so that it stands out from a rim of its own colour.
QColor Bleached(const QColor& color) {
    constexpr int white = 255;
    return {(color.red() + white) / 2, (color.green() + white) / 2, (color.blue() + white) / 2};
}

QPen Stitches(const QColor& thread, qreal way) {
    const qreal pitch = way / std::max(1, qRound(way / kPitch));
    QPen pen(thread, kThread, Qt::CustomDashLine, Qt::RoundCap);
    pen.setDashPattern({kStitch / kThread, (pitch - kStitch) / kThread});
    return pen;
}

}  // namespace

void KeepSignOff(QWidget* control, const QMargins& units) {
    control->setProperty(kMargins, QVariant::fromValue(units));
}

PlaceMarker::PlaceMarker(ZoomedWindow* window) : QFocusFrame(window), window_(window) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    SetThread({});
    hide();
    QCoreApplication::instance()->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [this] { Follow(); });
}

void PlaceMarker::SetThread(std::optional<Pixel> color) {
    thread_ = Bleached(QColor::fromRgb(color.value_or(kUsualThread)));
    update();
}

bool PlaceMarker::IsOfWindow(const QObject* object) const {
    return object->isWidgetType() && static_cast<const QWidget*>(object)->window() == window_;
}

/// A key that is a shortcut comes as an override only.
bool PlaceMarker::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::ShortcutOverride:
        case QEvent::KeyPress:
            if (IsOfWindow(watched) && ActsAtPlace(*static_cast<QKeyEvent*>(event))) UseKeys(true);
            break;
        case QEvent::MouseButtonPress:
            if (IsOfWindow(watched)) UseKeys(false);
            break;
        case QEvent::Move:
        case QEvent::Resize:
            if (watched == marked_) Follow();
            break;
        default:
            break;
    }
    return false;
}

void PlaceMarker::UseKeys(bool used) {
    keysUsed_ = used;
    Follow();
}

void PlaceMarker::Follow() {
    QWidget* const focus = QApplication::focusWidget();
    const bool marks = keysUsed_ && focus != nullptr && focus != window_ && IsOfWindow(focus);
    marked_ = marks ? focus : nullptr;
    if (marks) {
        const auto margins = focus->property(kMargins).value<QMargins>();
        window_->Place(this, PlaceOf(focus) + (margins + kReach));
    }
    setVisible(marks);
}

void PlaceMarker::paintEvent(QPaintEvent* /*event*/) {
    const QRectF edge = QRectF(UnitRect(this)).adjusted(kReach, kReach, -kReach, -kReach);
    const qreal rounding = std::min(kRounding, std::min(edge.width(), edge.height()) / 2);
    QPainterPath way;
    way.addRoundedRect(edge, rounding, rounding);
    UnitPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(way, QPen(QColor::fromRgb(kRibbonColor), kRibbon));
    painter.strokePath(way, Stitches(thread_, way.length()));
}

}  // namespace quendrel
