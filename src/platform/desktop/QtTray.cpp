#include "platform/desktop/QtTray.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>

#include "platform/Doors.h"

namespace quendrel {

namespace {

/// Whether the desktop shows tray icons over the session bus, which reports a double click as a
/// single one.
bool IconsGoOverTheBus() {
    const QDBusConnectionInterface* const bus = QDBusConnection::sessionBus().interface();
    return bus != nullptr && bus->isServiceRegistered("org.kde.StatusNotifierWatcher");
}

}  // namespace

QtTray::QtTray() {
    constexpr int kWatchMs = 500;
    watch_.setInterval(kWatchMs);
    QObject::connect(&watch_, &QTimer::timeout, &icon_, [this] {
        if (!IsAvailable()) AtDoor(onVanished_);
    });
    QObject::connect(&icon_, &QSystemTrayIcon::activated, &icon_,
                     [this](QSystemTrayIcon::ActivationReason reason) {
                         const bool counts =
                             reason == QSystemTrayIcon::DoubleClick ||
                             (anyClickCounts_ && reason == QSystemTrayIcon::Trigger);
                         if (counts) AtDoor(onDoubleClick_);
                     });
    menu_.addAction("Resume game", [this] { AtDoor(onDoubleClick_); });
    icon_.setContextMenu(&menu_);
}

void QtTray::Show(const std::string& tip, std::function<void()> onDoubleClick,
                  std::function<void()> onVanished) {
    onDoubleClick_ = std::move(onDoubleClick);
    onVanished_ = std::move(onVanished);
    anyClickCounts_ = IconsGoOverTheBus();
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
