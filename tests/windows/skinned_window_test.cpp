// What the windows have in common: they are dragged by their background, but for the splash.
#include <QCoreApplication>
#include <QMouseEvent>
#include <gtest/gtest.h>

#include "ui/SkinnedWindow.h"
#include "ui/frmSplash.h"

namespace quendrel::test {
namespace {

class PlainWindow : public SkinnedWindow {
public:
    PlainWindow() : SkinnedWindow("plain") { SetFace(face_); }

private:
    Picture face_{460, 300};
};

void Send(QWidget& window, QEvent::Type type, QPoint at, QPoint on, Qt::MouseButton button,
          Qt::MouseButtons held) {
    QMouseEvent event(type, at, on, button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
}

/// How far a window goes with the pointer when that takes hold of its middle and moves on.
QPoint Dragged(SkinnedWindow& window, Qt::MouseButton button) {
    window.show();
    const QPoint before = window.pos();
    const QPoint hold = window.rect().center();
    const QPoint on = before + hold;
    Send(window, QEvent::MouseButtonPress, hold, on, button, button);
    for (const QPoint moved : {QPoint(20, 10), QPoint(60, 40)}) {
        Send(window, QEvent::MouseMove, on + moved - window.pos(), on + moved, Qt::NoButton,
             button);
    }
    Send(window, QEvent::MouseButtonRelease, on + QPoint(60, 40) - window.pos(),
         on + QPoint(60, 40), button, Qt::NoButton);
    return window.pos() - before;
}

TEST(SkinnedWindow, IsDraggedWithAnyButtonButForTheSplash) {
    PlainWindow plain;
    frmSplash splash;
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
        EXPECT_EQ(Dragged(plain, button), QPoint(60, 40));
        EXPECT_EQ(Dragged(splash, button), QPoint(0, 0));
    }
}

}  // namespace
}  // namespace quendrel::test
