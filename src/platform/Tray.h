// The icon in the desktop's notification area.
#pragma once

#include <functional>
#include <string>

namespace quendrel {

class Tray {
public:
    virtual ~Tray() = default;

    /// Whether the desktop has a notification area at this moment.
    virtual bool IsAvailable() const = 0;

    /// Shows the icon with a tip. `onDoubleClick` is called when the player wants the game back,
    /// `onVanished` when the notification area goes away while the icon is shown.
    virtual void Show(const std::string& tip, std::function<void()> onDoubleClick,
                      std::function<void()> onVanished) = 0;

    /// Takes the icon away; nothing where it is not shown.
    virtual void Remove() = 0;
};

}  // namespace quendrel
