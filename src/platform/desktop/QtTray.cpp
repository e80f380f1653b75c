// The tray icon.
#include "platform/desktop/QtTray.h"

#include <QApplication>

namespace quendrel {

QtTray::QtTray() {
    constexpr int kWatchMs = 500;
    watch_.setInterval(kWatchMs);
    QObject::connect(&watch_, &QTimer::timeout, &icon_, [this] {
        if (!IsAvailable()) onVanished_();
    });
    QObject::connect(&icon_, &QSystemTrayIcon::activated, &icon_,
                     [this](QSystemTrayIcon::ActivationReason reason) {
                         if (reason == QSystemTrayIcon::DoubleClick) onDoubleClick_();
                     });
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
