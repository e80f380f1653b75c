// How large the windows are shown. Layout, rules and pictures count in units; a window shows a unit
// as some number of the toolkit's pixels, its zoom, and its controls keep to their places in units.
#pragma once

#include <QPainter>
#include <QRect>
#include <QWidget>

namespace quendrel {

class ZoomedWindow : public QWidget {
public:
    using QWidget::QWidget;

    /// The toolkit's pixels for a unit.
    qreal Zoom() const { return zoom_; }

    /// Puts a control of the window, or of one of its controls, at a place of the window in units.
    void Place(QWidget* control, const QRect& units);

    /// Where a place of the window in units is on the screen.
    QRect OnScreen(const QRect& units) const;

protected:
    /// Shows the window, which is `units` large, and all its controls at a zoom.
    void SetZoom(qreal zoom, QSize units);

private:
    QRect Pixels(const QRect& units) const;
    void Fit(QWidget* control) const;

    qreal zoom_ = 1;
};

/// Gives a control a size in units; its corner stays.
void Resize(QWidget* control, QSize units);

/// Where a control stands in its window, in units. One that was never placed stands where it is.
QRect PlaceOf(const QWidget* control);

/// The control itself in units, its corner at the origin.
QRect UnitRect(const QWidget* control);

/// The zoom of the control's window; 1 for a window of another kind.
qreal ZoomOf(const QWidget* control);

/// Paints a control in units, its exact corner at the origin.
class UnitPainter : public QPainter {
public:
    explicit UnitPainter(QWidget* control);
};

}  // namespace quendrel
