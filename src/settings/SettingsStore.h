// The settings between runs: eighteen keys in the player's own settings file, and one more once he
// has chosen how large he sees the game.
#pragma once

#include <string>

namespace quendrel {

struct Global;

class SettingsStore {
public:
    /// `path` is the settings file, a path of the machine.
    SettingsStore(Global& global, std::string path) : global_(global), path_(std::move(path)) {}

    const std::string& path() const { return path_; }

    /// Fills Global's Settings at start-up. A missing file or key gives the default.
    /// Throws ConversionError for a value that cannot be converted to its type, and FileError when
    /// the file is there and cannot be read.
    void LoadSettings();

    /// Fills Global's View with the stored scale, which is needed before the first window is shown.
    /// Throws as LoadSettings does.
    void LoadView();

    /// Writes the settings on leaving. Round, PlrTrn, PlrPos1 and PlrPos2 keep their stored
    /// values while a game is in progress. What else the file holds is kept. Throws FileError;
    /// the old file then stands untouched.
    void SaveSettings() const;

    /// What to say of a stored value that stops the start: where it stands, the reason, and what
    /// the player can do.
    std::string Complaint(const std::string& section, const std::string& key,
                          const std::string& reason) const;

private:
    std::string StoredText() const;

    Global& global_;
    std::string path_;
};

/// $XDG_CONFIG_HOME/quendrel/Quendrel v<version>.ini, or the same under ~/.config.
std::string SettingsPath();

}  // namespace quendrel
