// What leaving the game saves.
#pragma once

namespace quendrel {

struct Global;
class HighscoreStore;
class SettingsStore;

/// Saves the settings, the playlist and the highscores that could not be saved before, each
/// whatever became of the others. Throws NotSaved, which names what could not be saved.
void SaveOnLeaving(const SettingsStore& store, HighscoreStore& highscores, const Global& global);

}  // namespace quendrel
