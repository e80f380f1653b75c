// The sign of the place where keys act: a stitched border around the control that has the focus.
#pragma once

#include <optional>

#include <QColor>
#include <QFocusFrame>
#include <QMargins>
#include <QPointer>

#include "ui/picture/Picture.h"

namespace quendrel {

class ZoomedWindow;

/// Has the sign of a control stand this far outside its edge, in units: a text begins there.
void KeepSignOff(QWidget* control, const QMargins& units);

/// Comes with the first key that is used in its window, and goes when a mouse button is pressed
/// there. The focus that a window gives on opening is not marked. Assistive technology, which is
/// told of the focus itself, is not told of the toolkit's focus frames.
class PlaceMarker : public QFocusFrame {
public:
    explicit PlaceMarker(ZoomedWindow* window);

    /// The thread is a lighter shade of this colour; the ribbon under it is dark in any skin.
    void SetThread(std::optional<Pixel> color);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool IsOfWindow(const QObject* object) const;
    void UseKeys(bool used);
    void Follow();

    ZoomedWindow* window_;
    QPointer<QWidget> marked_;
    QColor thread_;
    bool keysUsed_ = false;
};

}  // namespace quendrel
