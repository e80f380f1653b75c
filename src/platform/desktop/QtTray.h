// The tray icon on the toolkit's.
#pragma once

#include <QMenu>
#include <QSystemTrayIcon>
#include <QTimer>

#include "platform/Tray.h"

namespace quendrel {

class QtTray : public Tray {
public:
    QtTray();

    bool IsAvailable() const override { return QSystemTrayIcon::isSystemTrayAvailable(); }
    void Show(const std::string& tip, std::function<void()> onDoubleClick,
              std::function<void()> onVanished) override;
    void Remove() override;

private:
    QSystemTrayIcon icon_;
    QMenu menu_;
    /// The icon is shown by a desktop that reports every click as one, double or not.
    bool anyClickCounts_ = false;
    /// Looks whether the notification area is still there; nothing tells us.
    QTimer watch_;
    std::function<void()> onDoubleClick_;
    std::function<void()> onVanished_;
};

}  // namespace quendrel
