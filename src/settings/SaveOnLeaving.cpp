// What leaving the game saves.
#include "settings/SaveOnLeaving.h"

#include <string>

#include "audio/Playlist.h"
#include "platform/Errors.h"
#include "settings/SettingsStore.h"

namespace quendrel {

void SaveOnLeaving(const SettingsStore& store, const Global& global) {
    std::string troubles;
    const auto attempt = [&troubles](const auto& save) {
        try {
            save();
        } catch (const FileError& error) {
            troubles += (troubles.empty() ? "" : "\n") + std::string(error.what());
        }
    };
    attempt([&store] { store.SaveSettings(); });
    attempt([&global] { SavePlaylist(global); });
    if (!troubles.empty()) throw NotSaved(troubles);
}

}  // namespace quendrel
