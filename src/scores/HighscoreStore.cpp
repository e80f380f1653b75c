// The list of the ten best results and its file.
#include "scores/HighscoreStore.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <string_view>

#include "platform/AnsiText.h"
#include "platform/Files.h"

namespace quendrel {

namespace {

/// Reads little-endian records from the bytes of a file.
class RecordReader {
public:
    explicit RecordReader(std::string_view bytes) : rest_(bytes) {}

    /// The next record, or nothing where the bytes end before it does.
    std::optional<HighscoreEntry> Next() {
        const auto length = Number();
        if (!length || rest_.size() < *length + 2 * sizeof(std::uint16_t)) return std::nullopt;
        HighscoreEntry entry;
        entry.Name = FromAnsi(rest_.substr(0, *length));
        rest_.remove_prefix(*length);
        entry.Row = static_cast<std::int16_t>(*Number());
        entry.Time = static_cast<std::int16_t>(*Number());
        return entry;
    }

private:
    std::optional<std::uint16_t> Number() {
        if (rest_.size() < sizeof(std::uint16_t)) return std::nullopt;
        const auto low = static_cast<unsigned char>(rest_[0]);
        const auto high = static_cast<unsigned char>(rest_[1]);
        rest_.remove_prefix(sizeof(std::uint16_t));
        return static_cast<std::uint16_t>(low | high << 8);
    }

    std::string_view rest_;
};

void AppendNumber(std::string& bytes, int number) {
    bytes += static_cast<char>(number & 0xFF);
    bytes += static_cast<char>(number >> 8 & 0xFF);
}

void AppendRecord(std::string& bytes, const HighscoreEntry& entry) {
    constexpr std::size_t longest = std::numeric_limits<std::uint16_t>::max();
    const std::string name = ToAnsi(entry.Name).substr(0, longest);
    AppendNumber(bytes, static_cast<int>(name.size()));
    bytes += name;
    AppendNumber(bytes, entry.Row);
    AppendNumber(bytes, entry.Time);
}

}  // namespace

HighscoreTable HighscoreStore::DefaultList() const {
    HighscoreTable list;
    for (int i = 1; i <= kHighscores; ++i) {
        const int time = global_.Settings.GameMode * 180 + 120 + i * 60;
        list[i] = {std::string(kAppName), 0, static_cast<std::int16_t>(time)};
    }
    return list;
}

void HighscoreStore::LoadHighscores() {
    HighscoreTable list = DefaultList();
    if (HasFile()) {
        const std::string bytes = ReadFile(MachinePath(global_.HighscoreFile));
        RecordReader reader(bytes);
        for (int i = 1; i <= kHighscores; ++i) {
            const auto entry = reader.Next();
            if (!entry) break;
            list[i] = *entry;
        }
    }
    global_.HighscoreList = list;
}

void HighscoreStore::SaveHighscores() const {
    std::string bytes;
    for (int i = 1; i <= kHighscores; ++i) AppendRecord(bytes, global_.HighscoreList[i]);

    const std::string path = MachinePath(global_.HighscoreFile);
    if (HasFile()) {
        const std::string old = ReadFile(path);
        if (old.size() > bytes.size()) bytes += old.substr(bytes.size());
    }
    MakeFolders(MachinePath(global_.HighFolder));
    WriteFileAtomically(path, bytes);
}

bool HighscoreStore::HasFile() const { return FileExists(MachinePath(global_.HighscoreFile)); }

void HighscoreStore::RestoreDefaults() {
    RemoveFile(MachinePath(global_.HighscoreFile));
    LoadHighscores();
}

bool HighscoreStore::Qualifies() const {
    return global_.ElapsedSeconds < global_.HighscoreList[kHighscores].Time;
}

int HighscoreStore::InsertNewScore() {
    HighscoreTable& list = global_.HighscoreList;
    for (int i = 1; i <= kHighscores; ++i) {
        if (global_.ElapsedSeconds > list[i].Time) continue;
        for (int j = kHighscores; j > i; --j) list[j] = list[j - 1];
        list[i] = {"", global_.ActiveRow, global_.ElapsedSeconds};
        return i;
    }
    return 0;
}

}  // namespace quendrel
