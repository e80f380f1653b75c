#include "audio/Playlist.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

#include "Global.h"
#include "platform/AnsiText.h"
#include "platform/Files.h"
#include "platform/Records.h"
#include "platform/Text.h"

namespace quendrel {

namespace {

constexpr std::string_view kExtension = ".mid";
constexpr std::int16_t kLastUpper = std::numeric_limits<std::int16_t>::max();

std::string PlaylistFile(const Global& global) {
    return MachinePath(global.AppFolder + "Playlist.dat");
}

std::string FileOf(const std::string& tune) { return tune + std::string(kExtension); }

bool IsTune(const std::string& file) {
    return file.size() > kExtension.size() &&
           SameWithoutCase(file.substr(file.size() - kExtension.size()), kExtension);
}

/// The tune that is stored under `name`. The file has '?' for each character that the code page
/// lacks; such a name stands for the tune of the folder that would be written in the same way.
std::string StoredTune(const std::string& name, const std::vector<std::string>& tunes) {
    if (name.find('?') == std::string::npos) return FromAnsi(name);
    const auto found = std::find_if(tunes.begin(), tunes.end(), [&name](const std::string& tune) {
        return ToAnsi(tune) == name;
    });
    return found == tunes.end() ? FromAnsi(name) : *found;
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
    std::vector<std::string> tunes = ListTunes(global);
    if (FileExists(path)) {
        const std::string bytes = ReadFile(path);
        RecordReader reader(bytes);
        std::vector<std::string> stored;
        for (int left = reader.Number().value_or(-1); left >= 0; --left) {
            const auto name = reader.Name();
            if (!name) break;
            if (!LeadsElsewhere(FileOf(*name))) stored.push_back(StoredTune(*name, tunes));
        }
        tunes = std::move(stored);
    }
    SetPlaylist(global, std::move(tunes));
}

void SavePlaylist(const Global& global) {
    std::string bytes;
    AppendNumber(bytes, global.PlaylistUpper);
    for (const std::string& tune : global.Playlist) AppendName(bytes, ToAnsi(tune));
    WriteFileKeepingTail(PlaylistFile(global), bytes);
}

}  // namespace quendrel
