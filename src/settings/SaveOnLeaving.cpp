#include "settings/SaveOnLeaving.h"

#include <string>

#include "audio/Playlist.h"
#include "platform/Errors.h"
#include "scores/HighscoreStore.h"
#include "settings/SettingsStore.h"

namespace quendrel {

void SaveOnLeaving(const SettingsStore& store, HighscoreStore& highscores, const Global& global) {
    std::string troubles;
    const auto say = [&troubles](const std::string& trouble) {
        troubles += (troubles.empty() ? "" : "\n") + trouble;
    };
    const auto attempt = [&say](const auto& save) {
        try {
            save();
        } catch (const FileError& error) {
            say(error.what());
        }
    };
    attempt([&store] { store.SaveSettings(); });
    attempt([&global] { SavePlaylist(global); });
    for (const std::string& trouble : highscores.SaveKeptLists()) say(trouble);
    if (!troubles.empty()) throw NotSaved(troubles);
}

}  // namespace quendrel
