// The pointer that tries to drag a window.
#pragma once

#include <QTest>
#include <QWidget>
#include <QWindow>

namespace quendrel::test {

/// How far the window goes with the pointer that is moved by (0, 40) on it, a button down.
inline QPoint DraggedBy(const QWidget& window, QPoint from,
                        Qt::MouseButton button = Qt::RightButton) {
    const QPoint before = window.pos();
    const auto onWindow = [&](int down) { return before + from + QPoint(0, down) - window.pos(); };
    QTest::mousePress(window.windowHandle(), button, {}, onWindow(0));
    QTest::mouseMove(window.windowHandle(), onWindow(39));
    QTest::mouseMove(window.windowHandle(), onWindow(40));
    QTest::mouseRelease(window.windowHandle(), button, {}, onWindow(40));
    return window.pos() - before;
}

}  // namespace quendrel::test
