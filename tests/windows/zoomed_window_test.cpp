// How large the windows are shown: where controls stand at a zoom, and what they are painted by.
#include <array>

#include <gtest/gtest.h>

#include "ScaledWindows.h"
#include "ui/controls/ZoomedWindow.h"

namespace quendrel::test {
namespace {

/// Keeps how it was painted last.
class Painted : public QWidget {
public:
    using QWidget::QWidget;

    QTransform painted;

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        painted = UnitPainter(this).worldTransform();
    }
};

class ZoomedWindowTest : public ::testing::Test {
protected:
    /// Where a unit begins in the control, of what the control paints.
    QPointF PaintedOrigin() {
        control.grab();
        return control.painted.map(QPointF(0, 0));
    }

    static constexpr QRect kPlace{3, 5, 7, 9};

    Zoomed window;
    Painted control{&window};
    Painted inner{&control};
};

TEST_F(ZoomedWindowTest, BothEdgesOfAControlAreRounded) {
    window.Place(&control, kPlace);
    EXPECT_EQ(control.geometry(), QRect(3, 5, 7, 9));
    // From 3.75, 6.25 to 12.5, 17.5.
    window.ZoomTo(1.25);
    EXPECT_EQ(control.geometry(), QRect(4, 6, 9, 12));
    // From 4.5, 7.5 to 15, 21.
    window.ZoomTo(1.5);
    EXPECT_EQ(control.geometry(), QRect(5, 8, 10, 13));
    // From 5.25, 8.75 to 17.5, 24.5.
    window.ZoomTo(1.75);
    EXPECT_EQ(control.geometry(), QRect(5, 9, 13, 16));
    window.ZoomTo(1);
    EXPECT_EQ(control.geometry(), QRect(3, 5, 7, 9));
}

TEST_F(ZoomedWindowTest, IsAsLargeAsItsUnitsRounded) {
    window.ZoomTo(1.25);
    EXPECT_EQ(window.size(), QSize(376, 281));
    window.ZoomTo(1.5);
    EXPECT_EQ(window.size(), QSize(452, 338));
}

TEST_F(ZoomedWindowTest, NeighboursStayEdgeToEdge) {
    std::array<QWidget, 9> row;
    int left = 0;
    for (std::size_t i = 0; i < row.size(); ++i) {
        const int width = static_cast<int>(i) + 3;
        row.at(i).setParent(&window);
        window.Place(&row.at(i), {left, left, width, width});
        left += width;
    }
    for (const qreal zoom : {1.25, 1.5, 1.75, 0.75, 1.0}) {
        window.ZoomTo(zoom);
        for (std::size_t i = 1; i < row.size(); ++i) {
            const QPoint before = row.at(i - 1).geometry().bottomRight();
            EXPECT_EQ(row.at(i).pos(), before + QPoint(1, 1)) << i << " at " << zoom;
        }
        EXPECT_EQ(row.back().geometry().right() + 1, qRound(63 * zoom)) << zoom;
    }
}

TEST_F(ZoomedWindowTest, AControlInAnotherKeepsItsPlaceOfTheWindow) {
    window.Place(&inner, {4, 6, 3, 3});
    window.Place(&control, kPlace);
    EXPECT_EQ(inner.geometry(), QRect(1, 1, 3, 3));
    // From 6, 9 to 10.5, 13.5 of the window; the outer one begins at 5, 8.
    window.ZoomTo(1.5);
    EXPECT_EQ(inner.geometry(), QRect(1, 1, 5, 5));
    window.Place(&control, {0, 0, 20, 20});
    EXPECT_EQ(inner.geometry(), QRect(6, 9, 5, 5));
}

TEST_F(ZoomedWindowTest, WhatIsPlacedWhileItIsZoomedStandsThereAtOnce) {
    window.ZoomTo(1.5);
    window.Place(&control, kPlace);
    EXPECT_EQ(control.geometry(), QRect(5, 8, 10, 13));
    window.Place(&inner, {4, 6, 3, 3});
    EXPECT_EQ(inner.geometry(), QRect(1, 1, 5, 5));
}

TEST_F(ZoomedWindowTest, AControlIsResizedInUnitsAndItsCornerStays) {
    window.Place(&control, kPlace);
    window.ZoomTo(1.5);
    Resize(&control, {10, 4});
    // From 4.5, 7.5 to 19.5, 13.5.
    EXPECT_EQ(control.geometry(), QRect(5, 8, 15, 6));
    EXPECT_EQ(PlaceOf(&control), QRect(3, 5, 10, 4));
}

TEST_F(ZoomedWindowTest, AControlOfAnotherWindowIsResizedInPixels) {
    QWidget other;
    QWidget plain(&other);
    plain.setGeometry(3, 5, 7, 9);
    Resize(&plain, {10, 4});
    EXPECT_EQ(plain.geometry(), QRect(3, 5, 10, 4));
    EXPECT_EQ(ZoomOf(&plain), 1);
}

TEST_F(ZoomedWindowTest, APlaceIsInUnitsAtEveryZoom) {
    window.Place(&control, kPlace);
    window.ZoomTo(1.75);
    EXPECT_EQ(PlaceOf(&control), kPlace);
    EXPECT_EQ(UnitRect(&control), QRect(0, 0, 7, 9));
    EXPECT_EQ(ZoomOf(&control), 1.75);
}

TEST_F(ZoomedWindowTest, AControlThatWasNeverPlacedStandsWhereItIs) {
    window.Place(&control, kPlace);
    inner.setGeometry(1, 2, 3, 4);
    window.ZoomTo(1.5);
    EXPECT_EQ(inner.geometry(), QRect(1, 2, 3, 4));
    EXPECT_EQ(PlaceOf(&inner), QRect(6, 10, 3, 4));
}

TEST_F(ZoomedWindowTest, PaintsFromTheExactCornerOfAControl) {
    window.Place(&control, kPlace);
    EXPECT_EQ(PaintedOrigin(), QPointF(0, 0));
    // The corner is at 3.75, 6.25, but the control at 4, 6.
    window.ZoomTo(1.25);
    EXPECT_EQ(PaintedOrigin(), QPointF(-0.25, 0.25));
    EXPECT_EQ(control.painted.m11(), 1.25);
    EXPECT_EQ(control.painted.m22(), 1.25);
    // It is at 4.5, 7.5, but the control at 5, 8.
    window.ZoomTo(1.5);
    EXPECT_EQ(PaintedOrigin(), QPointF(-0.5, -0.5));
}

TEST_F(ZoomedWindowTest, PaintsFromTheExactCornerOfAControlWithinAnother) {
    window.Place(&control, kPlace);
    window.Place(&inner, {5, 7, 3, 3});
    window.ZoomTo(1.5);
    inner.grab();
    // The corner is at 7.5, 10.5, but the control at 8, 11.
    EXPECT_EQ(inner.painted.map(QPointF(0, 0)), QPointF(-0.5, -0.5));
}

}  // namespace
}  // namespace quendrel::test
