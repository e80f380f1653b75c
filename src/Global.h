// The shared module: the state that all windows and flows share. One Global is made in main and
// handed down by reference; a test makes its own.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Modes.h"
#include "OneBased.h"
#include "SettingsRecord.h"
#include "ViewScale.h"

namespace quendrel {

inline constexpr std::string_view kAppName = "Quendrel v" QUENDREL_VERSION;

/// What the desktop's lists of windows call the game.
inline constexpr std::string_view kGameName = "Quendrel";

/// One value per column, 1 to 6; a colour is 1 to the mode's colours, 0 an empty hole.
using RowOfPegs = OneBased<std::int16_t, kMaxColumns>;

/// Rows 1 to 14, counted from the bottom of the board.
using BoardOfPegs = OneBased<RowOfPegs, kMaxRows>;

/// One row of a highscore list.
struct HighscoreEntry {
    std::string Name;
    /// The row on which the code was cracked; 0 in a default row.
    std::int16_t Row = 0;
    /// Whole seconds.
    std::int16_t Time = 0;

    bool operator==(const HighscoreEntry&) const = default;
};

/// Ten entries, the shortest time first.
inline constexpr int kHighscores = 10;
using HighscoreTable = OneBased<HighscoreEntry, kHighscores>;

/// What the music does.
enum class PlayStates : std::uint8_t { kStopped = 0, kPlaying = 1, kPaused = 2 };

/// Where the music stands.
struct MusicStateRecord {
    /// A "Pause" command paused the music, and none has resumed it.
    bool Paused = false;
    /// The current tune: an index of Playlist.
    std::int16_t Current = 0;
    /// The last filled place of Played.
    std::int16_t PlayedCount = 0;
    /// The tunes of the current shuffle cycle, in the order in which they were played; places 0
    /// to PlaylistUpper.
    std::vector<std::int16_t> Played;
};

struct Global {
    SettingsRecord Settings;

    /// How large the windows are shown.
    ViewScale View;

    // Folders, each ending in a backslash; set once at start-up.
    std::string AppFolder;
    std::string SoundFolder;
    std::string MusicFolder;
    std::string HighFolder;
    std::string SkinFolder;

    /// The installed skins; SkinNames[SkinPtr - 1] is the one in use.
    std::vector<std::string> SkinNames;
    /// The SkinPtr that the settings file keeps while its skin is damaged and another one is used.
    std::optional<std::int16_t> StoredSkinPtr;

    /// The highscore file of the mode in force.
    std::string HighscoreFile;
    HighscoreTable HighscoreList;
    /// A qualifying result waits for its name.
    bool NewScorePending = false;

    // The board. Rows and columns count from 1; a mode uses the first ones.
    std::int16_t ActiveRow = 1;
    std::int16_t SelectedColor = 0;
    RowOfPegs ActiveRowColors;
    RowOfPegs SecretCode;
    BoardOfPegs GuessRows;
    /// 1 = right colour and place, 2 = right colour elsewhere, 0 = none; packed from slot 1.
    BoardOfPegs ScoreMarks;

    /// Whole seconds of the current game.
    std::int16_t ElapsedSeconds = 0;

    /// No pegs can be placed: a guess is scored, a finished game ends, or a question waits.
    bool GameBusy = false;
    /// The player sets the hidden code; clicks and pegs go to the code row.
    bool CodeEntry = false;
    /// Tells the idle animation to end.
    bool DemoStop = false;
    /// Milliseconds between two pegs of the idle animation.
    std::int16_t DemoDelay = 0;
    /// The mode that the last switch, or the start, has put in force.
    std::uint8_t LastMode = 2;

    /// What the LinkOpener returned last; nothing reads it.
    std::int32_t ShellResult = 0;

    /// Whether the sound player is ready; set once at the first activation.
    bool SoundAvailable = false;

    /// Tune names without ".mid", in the order in which they are played.
    std::vector<std::string> Playlist;
    /// The last index of Playlist; -1 when it is empty.
    std::int16_t PlaylistUpper = -1;
    PlayStates PlayState = PlayStates::kStopped;
    MusicStateRecord MusicState;

    const Mode& CurrentMode() const { return kModes.at(Settings.GameMode); }
};

/// A game's time as minutes and seconds with two digits each, "01:15" for 75; "--:--" from 3600
/// seconds on. Used by the clock label and the highscore window.
std::string FormatGameTime(int seconds);

}  // namespace quendrel
