#include "StartUp.h"

#include <optional>
#include <stdexcept>
#include <utility>

#include "audio/Playlist.h"
#include "game/Game.h"
#include "platform/Errors.h"
#include "platform/Files.h"
#include "platform/FolderNames.h"
#include "platform/NewFolder.h"
#include "platform/Random.h"
#include "settings/SettingsStore.h"
#include "settings/SkinList.h"
#include "ui/layout/Control.h"
#include "ui/main/LoadMainSkin.h"
#include "ui/skin/MainSkin.h"
#include "ui/skin/SkinFiles.h"
#include "ui/skin/WindowShape.h"

namespace quendrel {

namespace {

/// Applies the settings that have just been loaded.
void ApplyLoadedSettings(Global& global, Game& game) {
    global.HighscoreFile = HighscoreFileName(global);
    game.highscores.LoadHighscores();
    LoadPlaylist(global);
    PickRandomSkin(global, game.table.machine.random);
    game.table.window.SwitchHelp(global.Settings.ToolTips);
    global.LastMode = global.Settings.GameMode;
}

/// Throws for a stored mode that does not exist; the text says where it is stored and how to mend
/// it.
void CheckMode(const Global& global, const SettingsStore& store) {
    if (global.Settings.GameMode < kModes.size()) return;
    throw std::out_of_range(store.Complaint(
        "Game", "GameMode", "there is no game mode " + std::to_string(global.Settings.GameMode)));
}

void CheckSkin(const Global& global, const SettingsStore& store) {
    try {
        SkinRoot(global);
    } catch (const std::out_of_range& error) {
        throw std::out_of_range(store.Complaint("Skin", "SkinPtr", error.what()));
    }
}

/// Its pictures, and the index of the first whole skin of the list; nothing where none is whole.
std::optional<std::pair<int, MainSkin>> FirstWholeSkin(const Global& global,
                                                       const PictureReader& pictures, int density) {
    for (int skin = 1; skin <= static_cast<int>(global.SkinNames.size()); ++skin) {
        try {
            return std::pair{skin, ReadWholeSkin(pictures, global, skin, density)};
        } catch (const FileError&) {
            continue;
        }
    }
    return std::nullopt;
}

/// Where the skin in use is damaged, takes the first whole skin of the list instead. The settings
/// file keeps the player's choice.
MainSkin TakeWholeSkin(Global& global, std::int16_t stored, const PictureReader& pictures,
                       MainView& window) {
    std::string trouble;
    try {
        return ReadWholeSkin(pictures, global, global.Settings.SkinPtr, window.Density());
    } catch (const FileError& error) {
        trouble = error.what();
    }
    auto found = FirstWholeSkin(global, pictures, window.Density());
    if (!found) throw std::runtime_error(trouble + "; no other skin is whole");

    auto& [skin, read] = *found;
    global.Settings.SkinPtr = static_cast<std::int16_t>(skin);
    global.StoredSkinPtr = stored;
    window.ShowTrouble(trouble + "; \"" + global.SkinNames.at(static_cast<std::size_t>(skin - 1)) +
                       "\" is used instead");
    return std::move(read);
}

}  // namespace

void SetFolders(Global& global, const std::string& programFolder) {
    global.AppFolder = programFolder + "\\";
    global.SoundFolder = global.AppFolder + kSoundFolder + "\\";
    global.MusicFolder = global.AppFolder + kMusicFolder + "\\";
    global.HighFolder = global.AppFolder + kHighFolder + "\\";
    global.SkinFolder = global.AppFolder + kSkinFolder + "\\";
}

void LoadMainWindow(Global& global, Game& game, SettingsStore& store,
                    const PictureReader& pictures) {
    Table& table = game.table;
    RemoveLeftFolders(MachinePath(global.SkinFolder));
    ListSkins(global);
    store.LoadSettings();
    CheckMode(global, store);
    const std::int16_t storedSkin = global.Settings.SkinPtr;
    ApplyLoadedSettings(global, game);
    CheckSkin(global, store);
    MainSkin skin = TakeWholeSkin(global, storedSkin, pictures, table.window);

    game.modes.ShowMode();
    global.DemoDelay = static_cast<std::int16_t>(15 - 5 * global.Settings.GameMode);
    global.ActiveRow = 1;
    table.buttons.SetButtonStates(kIdle);
    table.window.Shape(ReadMasks(pictures, global, global.Settings.SkinPtr, kBoardMask));
    LoadMainSkin(global, std::move(skin), table.window, table.board, table.rowMarker);
    table.window.SetEnabled({Controls::cmdDuelBtn}, global.Settings.MindDuel);
    game.clock.ApplySetting();
    table.ShowWelcome();
}

void ActivateFirst(Game& game, const std::function<void()>& closeSplash) {
    game.table.sounds.Load();
    closeSplash();
    if (game.table.global.Settings.Music) game.table.music.MusicCommand("Play");
    game.idle.Start();
}

}  // namespace quendrel
