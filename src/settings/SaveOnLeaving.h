// What leaving the game saves.
#pragma once

namespace quendrel {

struct Global;
class SettingsStore;

/// Saves the settings and the playlist, each whatever became of the other. Throws NotSaved, which
/// names what could not be saved.
void SaveOnLeaving(const SettingsStore& store, const Global& global);

}  // namespace quendrel
