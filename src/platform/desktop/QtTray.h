// The tray icon, shown by the toolkit.
#pragma once

#include <QMenu>
#include <QSystemTrayIcon>
#include <QTimer>

#include "platform/Tray.h"

namespace quendrel {

class QtTray : public Tray {
public:
    QtTray();

    bool IsAvailable() const override;
    void Show(const std::string& tip, std::function<void()> onDoubleClick,
              std::function<void()> onVanished) override;
    void Remove() override;

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

}  // namespace quendrel
