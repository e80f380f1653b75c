// Windows that are shown larger, and what they show.
#pragma once

#include <string>

#include <QApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>

#include "ui/controls/ZoomedWindow.h"
#include "ui/picture/Picture.h"
#include "ui/skin/WindowShape.h"

namespace quendrel::test {

/// A window whose zoom is set directly.
class Zoomed : public ZoomedWindow {
public:
    void ZoomTo(qreal zoom) { SetZoom(zoom, kUnits); }

    static constexpr QSize kUnits{301, 225};
};

/// Has keys go to the window of a control.
inline void BringToFront(QWidget* control) {
    control->window()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(control->window()));
}

/// Presses a key with Ctrl on a control of a window, which comes to the front for it.
inline void PressScaleKey(QWidget* on, Qt::Key key, int times = 1) {
    BringToFront(on);
    for (int i = 0; i < times; ++i) QTest::keyClick(on, key, Qt::ControlModifier);
}

/// What a window paints, without its controls; what is outside its outline has no opacity.
inline QImage PaintedBy(QWidget& window) {
    const qreal scale = window.devicePixelRatioF();
    QImage image(window.size() * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    window.render(&image, {}, {}, QWidget::IgnoreMask);
    image.setDevicePixelRatio(1);
    return image;
}

/// What the screen shows of a window now, black where it is transparent.
inline QImage OnScreen(const QWidget& window) {
    const QPixmap shown = window.screen()->grabWindow(window.winId());
    return shown.toImage().convertToFormat(QImage::Format_RGB32);
}

/// A picture without what a mask of its size has in the colour `cut`.
inline QImage CutBy(const QString& mask, QRgb cut, const QString& picture) {
    QImage image = QImage(picture).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage masked = QImage(mask).convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(image.size(), masked.size()) << picture.toStdString();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (masked.pixel(x, y) == cut) image.setPixel(x, y, 0);
        }
    }
    return image;
}

/// A mask of a window of so many units, with so many pixels a unit, of which `kept` is kept.
inline Picture MaskOf(Size units, int density, Rect kept) {
    Picture mask(units.width * density, units.height * density, kCutWhite);
    for (int y = kept.top; y < kept.bottom(); ++y) {
        for (int x = kept.left; x < kept.right(); ++x) mask.Set(x, y, 0);
    }
    return mask;
}

/// Names the first pixel that differs.
inline void ExpectSame(const QImage& image, const QImage& expected, const std::string& what) {
    ASSERT_EQ(image.size(), expected.size()) << what;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ASSERT_EQ(image.pixel(x, y), expected.pixel(x, y)) << what << ": " << x << ", " << y;
        }
    }
}

}  // namespace quendrel::test
