#include "settings/SettingsStore.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <concepts>
#include <limits>

#include "Global.h"
#include "platform/Errors.h"
#include "platform/Files.h"
#include "platform/Home.h"
#include "platform/IniFile.h"
#include "platform/Text.h"

namespace quendrel {

namespace {

/// It keeps its name, so that a later version finds the choices of an earlier one.
constexpr const char* kFile = "Quendrel v1.0.ini";

/// Visits the player's choices with their sections and keys, in the order of reading and writing.
template <typename Record, typename Visitor>
void VisitChoices(Record& settings, Visitor&& visit) {
    visit("Game", "GameMode", settings.GameMode);
    visit("Sound", "SoundFx", settings.SoundFx);
    visit("Sound", "Music", settings.Music);
    visit("Sound", "RndMusic", settings.RndMusic);
    visit("Misc", "ToolTips", settings.ToolTips);
    visit("Misc", "SetColor", settings.SetColor);
    visit("Misc", "GTimer", settings.GTimer);
    visit("Skin", "RndSkin", settings.RndSkin);
    visit("Skin", "PrvSkin", settings.PrvSkin);
    visit("Skin", "SkinPtr", settings.SkinPtr);
    visit("Duel", "MindDuel", settings.MindDuel);
    visit("Duel", "Player1", settings.PlayerNames[1]);
    visit("Duel", "Player2", settings.PlayerNames[2]);
    visit("Duel", "BestOf", settings.BestOf);
}

/// The same for the state of a match, which is stored only between rounds.
template <typename Record, typename Visitor>
void VisitMatch(Record& settings, Visitor&& visit) {
    visit("Duel", "Round", settings.Round);
    visit("Duel", "PlrTrn", settings.PlrTrn);
    visit("Duel", "PlrPos1", settings.PlrPos[1]);
    visit("Duel", "PlrPos2", settings.PlrPos[2]);
}

std::string ToText(bool value) { return value ? "True" : "False"; }
std::string ToText(const std::string& value) { return value; }
std::string ToText(std::integral auto value) { return std::to_string(value); }

bool AreDigits(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// Whether the text is digits, with one sign before them at most.
bool IsNumber(std::string_view text) {
    if (text.starts_with('+') || text.starts_with('-')) text.remove_prefix(1);
    return AreDigits(text);
}

/// Each gives false where the text cannot be converted to the field's type.
bool FromText(std::string_view text, std::string& field) {
    field = OneLine(text);
    return true;
}

template <std::integral Number>
bool FromText(std::string_view text, Number& field) {
    std::string_view digits = Trimmed(text);
    if (!IsNumber(digits)) return false;
    if (digits.starts_with('+')) digits.remove_prefix(1);
    int number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc{} || number < std::numeric_limits<Number>::min() ||
        number > std::numeric_limits<Number>::max()) {
        return false;
    }
    field = static_cast<Number>(number);
    return true;
}

/// "True" or "False", or a number, whose decimals are allowed; 0 is false.
bool FromText(std::string_view text, bool& field) {
    const std::string word = LowerCase(Trimmed(text));
    if (word == "true" || word == "false") {
        field = word == "true";
        return true;
    }
    const std::size_t point = std::min(word.find('.'), word.size());
    const bool hasDecimals = point < word.size();
    if (!IsNumber(word.substr(0, point))) return false;
    if (hasDecimals && !AreDigits(word.substr(point + 1))) return false;
    field = word.find_first_of("123456789") != std::string::npos;
    return true;
}

constexpr const char* kView = "View";
constexpr const char* kScale = "Scale";

/// The scale with as many decimals as it needs.
std::string ScaleText(double scale) {
    std::array<char, 32> digits{};
    char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), scale).ptr;
    return {digits.data(), end};
}

}  // namespace

void SettingsStore::LoadView() {
    const std::string value = IniFile(StoredText()).Read(kView, kScale, {});
    global_.View.chosen.reset();
    if (Trimmed(value).empty()) return;
    global_.View.chosen = ScaleOf(Trimmed(value));
    if (global_.View.chosen) return;
    throw ConversionError(Complaint(
        kView, kScale, "\"" + OneLine(value) + "\" is no scale; it is a number from 1 to 3"));
}

void SettingsStore::LoadSettings() {
    const IniFile stored(StoredText());
    SettingsRecord settings;
    const auto read = [&](const char* section, const char* key, auto& field) {
        const std::string value = stored.Read(section, key, ToText(field));
        if (!FromText(value, field)) {
            throw ConversionError(
                Complaint(section, key, "\"" + OneLine(value) + "\" cannot be converted"));
        }
    };
    VisitChoices(settings, read);
    VisitMatch(settings, read);
    global_.Settings = settings;
}

void SettingsStore::SaveSettings() const {
    IniFile stored(StoredText());
    const auto write = [&](const char* section, const char* key, const auto& field) {
        stored.Write(section, key, ToText(field));
    };
    SettingsRecord choices = global_.Settings;
    choices.SkinPtr = global_.StoredSkinPtr.value_or(choices.SkinPtr);
    VisitChoices(choices, write);
    if (!global_.Settings.GameInProgress) VisitMatch(global_.Settings, write);
    if (global_.View.chosen) {
        stored.Write(kView, kScale, ScaleText(*global_.View.chosen));
    } else {
        stored.Remove(kView, kScale);
    }

    MakeFolders(path_.substr(0, path_.find_last_of('/')));
    WriteFileAtomically(path_, stored.Text());
}

std::string SettingsStore::Complaint(const std::string& section, const std::string& key,
                                     const std::string& reason) const {
    const std::size_t line = IniFile(StoredText()).LineOf(section, key);
    return path_ + ": line " + std::to_string(line) + ", section [" + section + "], key " + key +
           ": " + reason + ". Mend this line, or delete the file to begin with the defaults.";
}

std::string SettingsStore::StoredText() const {
    return PathExists(path_) ? ReadFile(path_) : std::string();
}

std::string SettingsPath() {
    return FolderOfPlayer("XDG_CONFIG_HOME", ".config") + "/quendrel/" + kFile;
}

}  // namespace quendrel
