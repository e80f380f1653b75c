// The borderless window: what drags it.
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

#include "Drag.h"
#include "ui/controls/ClickTarget.h"
#include "ui/controls/ImageButton.h"
#include "ui/controls/MouseButton.h"
#include "ui/windows/SkinnedWindow.h"
#include "ui/windows/frmSplash.h"

namespace quendrel::test {
namespace {

constexpr QPoint kOnButton(20, 15);
constexpr QPoint kOnBackground(150, 150);

class SkinnedWindowTest : public ::testing::Test {
protected:
    SkinnedWindowTest() {
        window.setGeometry(100, 100, 200, 200);
        button.setGeometry(10, 10, 20, 10);
        window.show();
    }

    ViewScale scale;
    SkinnedWindow window{"window", scale};
    ImageButton button{&window};
};

TEST_F(SkinnedWindowTest, IsDraggedWithAnyButtonButForTheSplash) {
    frmSplash splash(scale);
    splash.show();
    for (const Qt::MouseButton with : {Qt::LeftButton, Qt::RightButton}) {
        EXPECT_EQ(DraggedBy(window, kOnBackground, with), QPoint(0, 40));
        EXPECT_EQ(DraggedBy(splash, splash.rect().center(), with), QPoint(0, 0));
    }
}

TEST_F(SkinnedWindowTest, TheDesktopIsToldThatTheSplashIsOne) {
    const frmSplash splash(scale);
    EXPECT_EQ(splash.windowType(), Qt::SplashScreen);
    EXPECT_EQ(window.windowType(), Qt::Window);
}

/// When the second one goes down, the window may not have caught up with the pointer.
TEST_F(SkinnedWindowTest, HangsWhereTheFirstOfSeveralButtonsTookHoldOfIt) {
    const QPoint before = window.pos();
    QWindow* const target = window.windowHandle();
    const auto onWindow = [&](QPoint by) { return before + kOnBackground + by - window.pos(); };
    QTest::mousePress(target, Qt::RightButton, {}, kOnBackground);
    QTest::mouseMove(target, onWindow({0, 40}));
    QTest::mousePress(target, Qt::MiddleButton, {}, onWindow({0, -60}));
    QTest::mouseMove(target, onWindow({10, 30}));
    QTest::mouseMove(target, onWindow({10, 20}));
    EXPECT_EQ(window.pos() - before, QPoint(10, 20));
    QTest::mouseRelease(target, Qt::MiddleButton, {}, onWindow({10, 20}));
    QTest::mouseRelease(target, Qt::RightButton, {}, onWindow({10, 20}));
    EXPECT_EQ(window.pos() - before, QPoint(10, 20));
}

TEST_F(SkinnedWindowTest, IsDraggedByItsBackgroundButNotByADisabledButton) {
    button.setEnabled(false);
    EXPECT_EQ(DraggedBy(window, kOnBackground), QPoint(0, 40));
    EXPECT_EQ(DraggedBy(window, kOnButton), QPoint(0, 0));
}

TEST_F(SkinnedWindowTest, IsNotDraggedByAButtonThatAPressDisables) {
    button.onPress = [this](MouseButton) { button.setEnabled(false); };
    EXPECT_EQ(DraggedBy(window, kOnBackground), QPoint(0, 40));
    EXPECT_EQ(DraggedBy(window, kOnButton), QPoint(0, 0));
    EXPECT_FALSE(button.isEnabled());
}

TEST_F(SkinnedWindowTest, IsNotDraggedByAButtonThatLeavesThePressAlone) {
    QPushButton plain(&window);
    plain.setGeometry(100, 100, 20, 10);
    plain.show();
    EXPECT_EQ(DraggedBy(window, plain.geometry().center()), QPoint(0, 0));
}

TEST_F(SkinnedWindowTest, IsNotDraggedByATarget) {
    ClickTarget target(&window, ClickTarget::Look::kInvisible);
    target.setGeometry(100, 100, 44, 27);
    target.show();
    EXPECT_EQ(DraggedBy(window, kOnBackground), QPoint(0, 40));
    EXPECT_EQ(DraggedBy(window, target.geometry().center()), QPoint(0, 0));
}

}  // namespace
}  // namespace quendrel::test
