// The tray icon, shown by the toolkit.
#pragma once

#include <memory>

#include "platform/Tray.h"

namespace quendrel {

/// Asks the desktop for nothing before the tray is first needed, which the first window is not to
/// wait for.
class QtTray : public Tray {
public:
    QtTray();
    ~QtTray() override;
    QtTray(const QtTray&) = delete;
    QtTray& operator=(const QtTray&) = delete;

    bool IsAvailable() const override;
    void Show(const std::string& tip, std::function<void()> onDoubleClick,
              std::function<void()> onVanished) override;
    void Remove() override;

private:
    class Icon;

    Icon& TheIcon() const;

    mutable std::unique_ptr<Icon> icon_;
};

}  // namespace quendrel
