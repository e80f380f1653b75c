#include "game/Hiding.h"

#include "game/GameClock.h"
#include "game/Table.h"
#include "platform/Tray.h"
#include "ui/main/Host.h"

namespace quendrel {

void Hiding::HideToTray() {
    Tray& tray = table_.machine.tray;
    const bool toTray = tray.IsAvailable();
    if (hidden_ || !host_.HideWindow(toTray)) return;
    hidden_ = true;
    clock_.Pause();
    table_.music.MusicCommand("Pause");
    if (toTray) {
        tray.Show(
            std::string(kAppName), [this] { RestoreFromTray(); }, [this] { RestoreFromTray(); });
    }
}

void Hiding::RestoreFromTray() {
    if (!hidden_) return;
    hidden_ = false;
    host_.RestoreWindow();
    clock_.Resume();
    table_.music.MusicCommand("Pause");
    table_.machine.tray.Remove();
}

}  // namespace quendrel
