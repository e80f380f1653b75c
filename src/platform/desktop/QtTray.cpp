#include "platform/desktop/QtTray.h"

#include <utility>

#include <QApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusInterface>
#include <QMenu>
#include <QSystemTrayIcon>
#include <QTimer>

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

class QtTray::Icon {
public:
    Icon();

    bool IsAvailable() const;
    void Show(const std::string& tip, std::function<void()> onDoubleClick,
              std::function<void()> onVanished);
    void Remove();

private:
    QSystemTrayIcon icon_;
    QMenu menu_;
    /// The icon goes over the session bus, which the toolkit decides once, and into no other
    /// notification area. The bus reports double clicks as single ones, so a single click counts.
    bool isOnBus_;
    /// Checks again and again whether the notification area is still there; the toolkit does not
    /// say when it goes.
    QTimer watch_;
    std::function<void()> onDoubleClick_;
    std::function<void()> onVanished_;
};

QtTray::Icon::Icon() : isOnBus_(BusShowsIcons()) {
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

bool QtTray::Icon::IsAvailable() const {
    return isOnBus_ ? BusShowsIcons() : QSystemTrayIcon::isSystemTrayAvailable();
}

void QtTray::Icon::Show(const std::string& tip, std::function<void()> onDoubleClick,
                        std::function<void()> onVanished) {
    onDoubleClick_ = std::move(onDoubleClick);
    onVanished_ = std::move(onVanished);
    icon_.setIcon(QApplication::windowIcon());
    icon_.setToolTip(QString::fromStdString(tip));
    icon_.show();
    watch_.start();
}

void QtTray::Icon::Remove() {
    watch_.stop();
    icon_.hide();
}

QtTray::QtTray() = default;
QtTray::~QtTray() = default;

QtTray::Icon& QtTray::TheIcon() const {
    if (!icon_) icon_ = std::make_unique<Icon>();
    return *icon_;
}

bool QtTray::IsAvailable() const { return TheIcon().IsAvailable(); }

void QtTray::Show(const std::string& tip, std::function<void()> onDoubleClick,
                  std::function<void()> onVanished) {
    TheIcon().Show(tip, std::move(onDoubleClick), std::move(onVanished));
}

void QtTray::Remove() {
    if (icon_) icon_->Remove();
}

}  // namespace quendrel
