// The pointer over a control, and the balloon that comes of it.
#pragma once

#include <QTest>
#include <QWidget>

namespace quendrel::test {

/// The pointer comes from beside the window to a place of the widget and rests there.
inline void PointAt(QWidget* widget, QPoint at) {
    QWidget* const window = widget->window();
    QTest::mouseMove(window, window->rect().bottomRight() + QPoint(20, 20));
    QTest::mouseMove(widget, at);
}

/// Whether a balloon with these words comes, 1000 ms being more than the rest it waits for.
inline bool BalloonSays(const QWidget& window, const QString& words) {
    const auto* const balloon = window.findChild<QWidget*>("popHelp");
    const bool shown = QTest::qWaitFor([&] { return balloon->isVisible(); }, 1000);
    return shown && balloon->accessibleName() == words;
}

}  // namespace quendrel::test
