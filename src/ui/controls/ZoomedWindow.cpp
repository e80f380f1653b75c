#include "ui/controls/ZoomedWindow.h"

#include <QVariant>

namespace quendrel {

namespace {

/// The toolkit's property that keeps a control's place.
constexpr const char* kPlace = "place";

}  // namespace

void ZoomedWindow::Place(QWidget* control, const QRect& units) {
    control->setProperty(kPlace, units);
    Fit(control);
    // The controls within it keep their places of the window.
    for (QWidget* const inner : control->findChildren<QWidget*>()) Fit(inner);
}

void ZoomedWindow::SetZoom(qreal zoom, QSize units) {
    zoom_ = zoom;
    setFixedSize(qRound(units.width() * zoom), qRound(units.height() * zoom));
    // The toolkit lists a control before those within it.
    for (QWidget* const control : findChildren<QWidget*>()) Fit(control);
    update();
}

QRect ZoomedWindow::OnScreen(const QRect& units) const {
    return Pixels(units).translated(mapToGlobal(QPoint(0, 0)));
}

/// Both edges are rounded, so that what lies edge to edge in units does so on the screen.
QRect ZoomedWindow::Pixels(const QRect& units) const {
    const QPoint topLeft(qRound(units.left() * zoom_), qRound(units.top() * zoom_));
    const QPoint end(qRound((units.left() + units.width()) * zoom_),
                     qRound((units.top() + units.height()) * zoom_));
    return {topLeft, QSize(end.x() - topLeft.x(), end.y() - topLeft.y())};
}

void ZoomedWindow::Fit(QWidget* control) const {
    const QVariant place = control->property(kPlace);
    if (!place.isValid()) return;
    const QPoint parent = control->parentWidget()->mapTo(this, QPoint(0, 0));
    control->setGeometry(Pixels(place.toRect()).translated(-parent));
}

void Resize(QWidget* control, QSize units) {
    if (auto* const window = dynamic_cast<ZoomedWindow*>(control->window())) {
        window->Place(control, {PlaceOf(control).topLeft(), units});
    } else {
        control->resize(units);
    }
}

QRect PlaceOf(const QWidget* control) {
    const QVariant place = control->property(kPlace);
    if (place.isValid()) return place.toRect();
    return {control->mapTo(control->window(), QPoint(0, 0)), control->size()};
}

QRect UnitRect(const QWidget* control) { return {QPoint(0, 0), PlaceOf(control).size()}; }

qreal ZoomOf(const QWidget* control) {
    const auto* const window = dynamic_cast<const ZoomedWindow*>(control->window());
    return window == nullptr ? 1 : window->Zoom();
}

UnitPainter::UnitPainter(QWidget* control) : QPainter(control) {
    const qreal zoom = ZoomOf(control);
    const QPointF corner = QPointF(PlaceOf(control).topLeft()) * zoom;
    translate(corner - control->mapTo(control->window(), QPointF(0, 0)));
    scale(zoom, zoom);
}

}  // namespace quendrel
