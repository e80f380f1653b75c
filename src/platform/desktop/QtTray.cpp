#include "platform/desktop/QtTray.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusInterface>

#include "platform/Doors.h"

namespace quendrel {

namespace {

constexpr const char* kWatcher = "org.kde.StatusNotifierWatcher";

/// Whether the desktop shows tray icons over the session bus now, as the toolkit asks it.
bool BusShowsIcons() {
    const QDBusConnection session = QDBusConnection::sessionBus();
    const QDBusConnectionInterface* const bus = session.interface();
    if (bus == nullptr || !bus->isServiceRegistered(kWatcher)) return false;
    const QDBusInterface watcher(kWatcher, "/StatusNotifierWatcher", kWatcher, session);
    return watcher.property("IsStatusNotifierHostRegistered").toBool();
}

}  // namespace

QtTray::QtTray() : isOnBus_(BusShowsIcons()) {
    constexpr int kWatchMs = 500;
    watch_.setInterval(kWatchMs);
    QObject::connect(&watch_, &QTimer::timeout, &icon_, [this] {
        if (!IsAvailable()) AtDoor(onVanished_);
    });
    QObject::connect(&icon_, &QSystemTrayIcon::activated, &icon_,
                     [this](QSystemTrayIcon::ActivationReason reason) {
                         const bool counts = reason == QSystemTrayIcon::DoubleClick ||
                                             (isOnBus_ && reason == QSystemTrayIcon::Trigger);
                         if (counts) AtDoor(onDoubleClick_);
                     });
    menu_.addAction("Resume game", [this] { AtDoor(onDoubleClick_); });
    icon_.setContextMenu(&menu_);
}

bool QtTray::IsAvailable() const {
    return isOnBus_ ? BusShowsIcons() : QSystemTrayIcon::isSystemTrayAvailable();
}

void QtTray::Show(const std::string& tip, std::function<void()> onDoubleClick,
                  std::function<void()> onVanished) {
    onDoubleClick_ = std::move(onDoubleClick);
    onVanished_ = std::move(onVanished);
    icon_.setIcon(QApplication::windowIcon());
    icon_.setToolTip(QString::fromStdString(tip));
    icon_.show();
    watch_.start();
}

void QtTray::Remove() {
    watch_.stop();
    icon_.hide();
}

}  // namespace quendrel
