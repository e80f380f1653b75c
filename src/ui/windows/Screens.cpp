#include "ui/windows/Screens.h"

#include <algorithm>

#include <QApplication>
#include <QScreen>
#include <QWidget>

#include "platform/Doors.h"

namespace quendrel {

QScreen* ScreenOf(const QRect& place) {
    QScreen* most = QApplication::primaryScreen();
    int shown = 0;
    for (QScreen* const screen : QApplication::screens()) {
        const QSize part = screen->geometry().intersected(place).size();
        if (!part.isEmpty() && part.width() * part.height() > shown) {
            most = screen;
            shown = part.width() * part.height();
        }
    }
    return most;
}

QPoint CornerOver(const QRect& place, QSize size, const QScreen& screen) {
    const QRect room = screen.availableGeometry();
    const QPoint corner = place.center() - QRect({}, size).center();
    return {
        std::clamp(corner.x(), room.left(), std::max(room.left(), room.right() + 1 - size.width())),
        std::clamp(corner.y(), room.top(),
                   std::max(room.top(), room.bottom() + 1 - size.height()))};
}

void WatchScreens(QObject* receiver, const std::function<void()>& onChange) {
    const auto changed = [onChange] { AtDoor(onChange); };
    const auto watch = [receiver, changed](const QScreen* screen) {
        QObject::connect(screen, &QScreen::geometryChanged, receiver, changed,
                         Qt::QueuedConnection);
    };
    for (const QScreen* const screen : QApplication::screens()) watch(screen);
    QObject::connect(qApp, &QGuiApplication::screenAdded, receiver, watch);
    QObject::connect(qApp, &QGuiApplication::screenRemoved, receiver, changed,
                     Qt::QueuedConnection);
}

void KeepOnScreens(QWidget& window) {
    WatchScreens(&window, [&window] {
        const QRect place = window.frameGeometry();
        const QScreen& nearest = *ScreenOf(place);
        if (nearest.geometry().contains(place)) return;
        window.move(CornerOver(place, place.size(), nearest));
    });
}

}  // namespace quendrel
