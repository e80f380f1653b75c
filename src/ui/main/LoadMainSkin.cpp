#include "ui/main/LoadMainSkin.h"

#include <optional>
#include <utility>

#include "Global.h"
#include "platform/Errors.h"
#include "ui/main/Board.h"
#include "ui/main/MainView.h"
#include "ui/main/RowMarker.h"
#include "ui/skin/MainSkin.h"
#include "ui/skin/SkinFiles.h"

namespace quendrel {

void LoadMainSkin(const Global& global, MainSkin skin, MainView& window, Board& board,
                  RowMarker& rowMarker) {
    // The marker restores the background that it saved, which belongs to the old skin.
    const bool inGame = global.Settings.GameInProgress;
    if (inGame) rowMarker.StopBlinking(global.ActiveRow);
    board.SetSkin(std::move(skin.board));
    board.BuildBoard(global.Settings.GameMode);
    for (const auto& [control, pictures] : skin.buttons) window.SetPictures(control, pictures);
    window.SetFonts(SkinRoot(global));
    if (inGame) rowMarker.StartBlinking(global.ActiveRow);
    window.RepaintAll();
}

void FollowDensity(const Global& global, const PictureReader& reader, MainView& window,
                   Board& board, RowMarker& rowMarker) {
    const int skinInUse = global.Settings.SkinPtr;
    const SkinTree tree = TreeOf(global, skinInUse, window.Density());
    if (tree.density < window.Density()) ReportFaultOfSecondTree(tree.root);
    if (tree.density == board.Skin().easyBoard.density()) return;
    try {
        std::optional<MainSkin> skin =
            tree.density > 1 ? ReadSecondMainSkin(reader, tree.root) : ReadMainSkin(reader, tree);
        // The window keeps the pictures that it has.
        if (!skin) return;
        board.Redress(std::move(skin->board));
        rowMarker.Redraw();
        for (const auto& [control, pictures] : skin->buttons) window.SetPictures(control, pictures);
    } catch (const FileError& error) {
        ReportTrouble(error.what());
    }
}

void ChangeSkin(Global& global, const PictureReader& reader, MainView& window, Board& board,
                RowMarker& rowMarker, std::int16_t oldSkin) {
    try {
        MainSkin skin = ReadWholeSkin(reader, global, global.Settings.SkinPtr, window.Density());
        LoadMainSkin(global, std::move(skin), window, board, rowMarker);
        global.StoredSkinPtr.reset();
    } catch (const FileError& error) {
        global.Settings.SkinPtr = oldSkin;
        window.ShowTrouble(error.what());
    }
}

}  // namespace quendrel
