#include "scores/HighscoreStore.h"

#include <optional>

#include "platform/AnsiText.h"
#include "platform/Errors.h"
#include "platform/Files.h"
#include "platform/Records.h"
#include "platform/Text.h"

namespace quendrel {

namespace {

/// The next record, or nothing where the bytes end before it does.
std::optional<HighscoreEntry> NextRecord(RecordReader& reader) {
    const auto name = reader.Name();
    const auto row = reader.Number();
    const auto time = reader.Number();
    if (!time) return std::nullopt;
    return HighscoreEntry{OneLine(FromAnsi(*name)), *row, *time};
}

}  // namespace

std::string NameAsStored(std::string_view name) { return FromAnsi(ToAnsi(OneLine(name))); }

std::string HighscoreFileName(const Global& global) {
    return global.HighFolder + std::string(ModeNames.at(global.Settings.GameMode)) + ".hsc";
}

HighscoreTable HighscoreStore::DefaultList() const {
    HighscoreTable list;
    for (int i = 1; i <= kHighscores; ++i) {
        const int time = global_.Settings.GameMode * 180 + 120 + i * 60;
        list[i] = {std::string(kAppName), 0, static_cast<std::int16_t>(time)};
    }
    return list;
}

void HighscoreStore::LoadHighscores() {
    const auto kept = kept_.find(global_.HighscoreFile);
    if (kept != kept_.end()) {
        global_.HighscoreList = kept->second;
        return;
    }
    HighscoreTable list = DefaultList();
    if (HasFile()) {
        const std::string bytes = ReadFile(MachinePath(global_.HighscoreFile));
        RecordReader reader(bytes);
        for (int i = 1; i <= kHighscores; ++i) {
            const auto entry = NextRecord(reader);
            if (!entry) break;
            list[i] = *entry;
        }
    }
    global_.HighscoreList = list;
}

void HighscoreStore::SaveHighscores() {
    kept_.erase(global_.HighscoreFile);
    SaveKeptLists();
    try {
        Write(global_.HighscoreFile, global_.HighscoreList);
    } catch (const FileError&) {
        kept_.emplace(global_.HighscoreFile, global_.HighscoreList);
        throw;
    }
}

std::vector<std::string> HighscoreStore::SaveKeptLists() {
    std::vector<std::string> troubles;
    std::erase_if(kept_, [&](const auto& kept) {
        try {
            Write(kept.first, kept.second);
            return true;
        } catch (const FileError& error) {
            troubles.emplace_back(error.what());
            return false;
        }
    });
    return troubles;
}

void HighscoreStore::Write(const std::string& file, const HighscoreTable& list) const {
    std::string bytes;
    for (int i = 1; i <= kHighscores; ++i) {
        const HighscoreEntry& entry = list[i];
        AppendName(bytes, ToAnsi(OneLine(entry.Name)));
        AppendNumber(bytes, entry.Row);
        AppendNumber(bytes, entry.Time);
    }
    MakeFolders(MachinePath(global_.HighFolder));
    WriteFileKeepingTail(MachinePath(file), bytes);
}

bool HighscoreStore::HasFile() const { return FileExists(MachinePath(global_.HighscoreFile)); }

void HighscoreStore::RestoreDefaults() {
    try {
        RemoveFile(MachinePath(global_.HighscoreFile));
    } catch (const FileError&) {
        LoadHighscores();
        throw;
    }
    kept_.erase(global_.HighscoreFile);
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
