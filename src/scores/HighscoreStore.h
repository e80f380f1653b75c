// The list of the ten best results of the mode in force, and its file.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "Global.h"

namespace quendrel {

/// A player's name as it is after saving and loading: one line, with '?' for each character that
/// the code page lacks.
std::string NameAsStored(std::string_view name);

/// The highscore file of the mode in force.
std::string HighscoreFileName(const Global& global);

class HighscoreStore {
public:
    explicit HighscoreStore(Global& global) : global_(global) {}

    /// Fills HighscoreList with the mode's list that could not be saved, where there is one; else
    /// from HighscoreFile, or with the mode's default list where there is no such file. Records
    /// that a short file lacks are the default rows of their positions. Throws FileError for a file
    /// that is there and cannot be read.
    void LoadHighscores();

    /// Writes HighscoreList, making HighFolder where it is missing. Bytes of a longer old file
    /// stay behind the ten records. Throws FileError; the old file then stands untouched, and the
    /// list is kept for the rest of the run.
    void SaveHighscores();

    /// Tries again to save the lists that could not be saved. Returns a message for each that still
    /// cannot; these lists are kept.
    std::vector<std::string> SaveKeptLists();

    /// Whether the mode in force has a highscore file.
    bool HasFile() const;

    /// Deletes the file of the mode in force and loads the default list. Throws FileError where it
    /// cannot be deleted; the list is then loaded like any other.
    void RestoreDefaults();

    /// Whether ElapsedSeconds is strictly better than the tenth entry's time.
    bool Qualifies() const;

    /// Inserts ActiveRow and ElapsedSeconds under an empty name before the first entry whose time
    /// is not better; the tenth drops out. Returns the position, 1 to 10, or 0 where it has none.
    int InsertNewScore();

private:
    HighscoreTable DefaultList() const;
    void Write(const std::string& file, const HighscoreTable& list) const;

    Global& global_;
    /// The lists that could not be saved, by their files.
    std::map<std::string, HighscoreTable> kept_;
};

}  // namespace quendrel
