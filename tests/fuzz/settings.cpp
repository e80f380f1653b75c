// The settings file.
#include <algorithm>
#include <cstdlib>
#include <string>

#include "Global.h"
#include "MemoryFiles.h"
#include "Promise.h"
#include "Readers.h"
#include "platform/Errors.h"
#include "platform/IniFile.h"
#include "platform/Text.h"
#include "settings/SettingsStore.h"

namespace quendrel::fuzz {

namespace {

const std::string kSettingsFile = "/home/settings.ini";

/// Whether everything could be read. Where it could not, the words name a line of the file.
bool IsLoaded(SettingsStore& store) {
    try {
        store.LoadView();
        store.LoadSettings();
        return true;
    } catch (const ConversionError& error) {
        const std::string said = error.what();
        Promise(said.starts_with(kSettingsFile + ": line "), "words name the file and a line");
        const std::size_t line = std::stoul(said.substr(kSettingsFile.size() + 7));
        const std::string& text = Files()[kSettingsFile];
        const auto lines = std::count(text.begin(), text.end(), '\n') + 1;
        Promise(line >= 1 && line <= static_cast<std::size_t>(lines),
                "the line is one of the file");
        Promise(OneLine(said) == said, "words are one line");
        return false;
    }
}

void LookAtValues(const Global& global) {
    for (const std::string& name : global.Settings.PlayerNames) {
        Promise(OneLine(name) == name, "a player's name is one line");
    }
    const std::optional<double> scale = global.View.chosen;
    Promise(!scale || (*scale >= kLeastScale && *scale <= kMostScale), "a scale is one of ours");
}

void LookAtNumber(const IniFile& file, const char* section, const char* key, int read) {
    const std::string text = file.Read(section, key, "");
    if (file.LineOf(section, key) == 0) return;
    Promise(std::strtol(text.c_str(), nullptr, 10) == read, "a number is read as it stands");
}

void LookAtNumbers(const IniFile& file, const SettingsRecord& settings) {
    LookAtNumber(file, "Game", "GameMode", settings.GameMode);
    LookAtNumber(file, "Skin", "SkinPtr", settings.SkinPtr);
    LookAtNumber(file, "Duel", "BestOf", settings.BestOf);
    LookAtNumber(file, "Duel", "Round", settings.Round);
    LookAtNumber(file, "Duel", "PlrTrn", settings.PlrTrn);
    LookAtNumber(file, "Duel", "PlrPos1", settings.PlrPos[1]);
    LookAtNumber(file, "Duel", "PlrPos2", settings.PlrPos[2]);
}

/// What the file has for the game after the settings have been saved.
std::string Saved(const SettingsStore& store) {
    store.SaveSettings();
    return Files()[kSettingsFile];
}

}  // namespace

void Settings(std::string_view bytes) {
    Files()[kSettingsFile] = bytes;
    Global global;
    SettingsStore store(global, kSettingsFile);
    if (!IsLoaded(store)) return;
    LookAtValues(global);
    LookAtNumbers(IniFile(bytes), global.Settings);

    const std::string saved = Saved(store);
    const std::optional<double> scale = global.View.chosen;
    Global second;
    SettingsStore again(second, kSettingsFile);
    Promise(IsLoaded(again), "settings that were saved can be read");
    Promise(Saved(again) == saved, "settings that were saved are read as the same");
    Promise(second.View.chosen == scale, "a scale that was saved is read as the same");

    second.Settings.PlayerNames[1] = bytes;
    again.SaveSettings();
    Promise(IsLoaded(store), "any name can be saved and read");
    Promise(global.Settings.PlayerNames[1] == OneLine(bytes), "a name comes back as one line");
    Promise(global.Settings.PlayerNames[2] == second.Settings.PlayerNames[2],
            "a name changes no other one");
}

}  // namespace quendrel::fuzz
