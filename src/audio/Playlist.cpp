#include "audio/Playlist.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <unordered_map>
#include <utility>

#include "Global.h"
#include "platform/AnsiText.h"
#include "platform/Errors.h"
#include "platform/Files.h"
#include "platform/FolderNames.h"
#include "platform/Records.h"
#include "platform/Text.h"

namespace quendrel {

namespace {

constexpr std::string_view kExtension = ".mid";
constexpr std::int16_t kLastUpper = std::numeric_limits<std::int16_t>::max();

std::string PlaylistFile(const Global& global) {
    return MachinePath(global.AppFolder + kPlaylistFile);
}

std::string FileOf(const std::string& tune) { return tune + std::string(kExtension); }

bool IsTune(const std::string& file) {
    return file.size() > kExtension.size() &&
           SameWithoutCase(file.substr(file.size() - kExtension.size()), kExtension);
}

bool HasQuestionMark(const std::string& name) { return name.find('?') != std::string::npos; }

/// The tunes of the folder; none where it cannot be listed.
std::vector<std::string> ListTunesIfPossible(const Global& global) {
    try {
        return ListTunes(global);
    } catch (const FileError&) {
        return {};
    }
}

/// What stored names with '?' stand for. The file has '?' for each character that the code page
/// lacks; such a name stands for a tune of the folder that would be written in the same way.
class WrittenAlike {
public:
    explicit WrittenAlike(const std::vector<std::string>& tunes) {
        for (const std::string& tune : tunes) {
            const std::string written = ToAnsi(tune);
            if (HasQuestionMark(written)) alike_[written].tunes.push_back(tune);
        }
    }

    /// Each time the next of the tunes that are written so, and after the last the first again.
    std::string Next(const std::string& name) {
        const auto found = alike_.find(name);
        if (found == alike_.end()) return FromAnsi(name);
        auto& [tunes, given] = found->second;
        return tunes[given++ % tunes.size()];
    }

private:
    struct Alike {
        std::vector<std::string> tunes;
        std::size_t given = 0;
    };
    std::unordered_map<std::string, Alike> alike_;
};

/// The names as they stand in the file, without those that lead elsewhere.
std::vector<std::string> StoredNames(const std::string& bytes) {
    RecordReader reader(bytes);
    std::vector<std::string> names;
    for (int left = reader.Number().value_or(-1); left >= 0; --left) {
        const auto name = reader.Name();
        if (!name) break;
        if (!LeadsElsewhere(FileOf(*name))) names.push_back(*name);
    }
    return names;
}

/// The tunes that are stored under these names. The folder is asked only where it has to be.
std::vector<std::string> TunesStoredAs(const std::vector<std::string>& names,
                                       const Global& global) {
    const bool asks = std::any_of(names.begin(), names.end(), HasQuestionMark);
    WrittenAlike alike(asks ? ListTunesIfPossible(global) : std::vector<std::string>());
    std::vector<std::string> tunes;
    tunes.reserve(names.size());
    for (const std::string& name : names) tunes.push_back(alike.Next(name));
    return tunes;
}

}  // namespace

std::vector<std::string> ListTunes(const Global& global) {
    const std::string folder = MachinePath(global.MusicFolder);
    std::vector<std::string> lstTemp;
    if (!FolderExists(folder)) return lstTemp;
    for (const std::string& file : ListFiles(folder)) {
        if (IsTune(file)) lstTemp.push_back(file.substr(0, file.size() - kExtension.size()));
    }
    // The files are in another order, since some letters come before the dot of the ending.
    std::sort(lstTemp.begin(), lstTemp.end(), ComesBefore);
    return lstTemp;
}

std::string TuneFile(const Global& global, const std::string& tune) {
    return MachinePath(global.MusicFolder + FileOf(tune));
}

void SetPlaylist(Global& global, std::vector<std::string> tunes) {
    if (tunes.size() > kLastUpper + std::size_t{1}) tunes.resize(kLastUpper + std::size_t{1});
    global.Playlist = std::move(tunes);
    global.PlaylistUpper = static_cast<std::int16_t>(static_cast<int>(global.Playlist.size()) - 1);
}

void LoadPlaylist(Global& global) {
    const std::string path = PlaylistFile(global);
    SetPlaylist(global, FileExists(path) ? TunesStoredAs(StoredNames(ReadFile(path)), global)
                                         : ListTunes(global));
}

void SavePlaylist(const Global& global) {
    std::string bytes;
    AppendNumber(bytes, global.PlaylistUpper);
    for (const std::string& tune : global.Playlist) AppendName(bytes, ToAnsi(tune));
    WriteFileKeepingTail(PlaylistFile(global), bytes);
}

}  // namespace quendrel
