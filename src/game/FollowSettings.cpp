#include "game/FollowSettings.h"

#include "game/Game.h"
#include "ui/layout/Control.h"
#include "ui/main/LoadMainSkin.h"

namespace quendrel {

void FollowSettings(Game& game, const PictureReader& pictures, std::int16_t oldSkin) {
    Table& table = game.table;
    const SettingsRecord& settings = table.global.Settings;
    table.window.SetEnabled({Controls::cmdDuelBtn}, settings.MindDuel);
    table.buttons.SetButtonState(CommandButton::kHigh, settings.GTimer);
    game.clock.ApplySetting();
    if (settings.SkinPtr == oldSkin) return;
    ChangeSkin(table.global, pictures, table.window, table.board, table.rowMarker, oldSkin);
    if (!settings.GameInProgress) table.PrepareBoard();
}

}  // namespace quendrel
