// A folder of tunes, whose names stand one behind the other, each ended by a zero byte. All of them
// are the playlist.
#include <algorithm>
#include <string>
#include <vector>

#include "Global.h"
#include "MemoryFiles.h"
#include "Promise.h"
#include "Readers.h"
#include "audio/Playlist.h"
#include "platform/Text.h"

namespace quendrel::fuzz {

namespace {

/// What a file can be called without the ending of a tune.
bool CanBeName(std::string_view name) {
    constexpr std::size_t longest = 251;
    return name.size() <= longest && name.find('/') == std::string_view::npos;
}

std::size_t PutTunes(std::string_view names) {
    std::size_t count = 0;
    while (!names.empty()) {
        const std::string_view name = names.substr(0, names.find('\0'));
        names.remove_prefix(std::min(name.size() + 1, names.size()));
        if (!CanBeName(name)) continue;
        const std::string file = std::string(name) + ".mid";
        const bool isListed = !file.starts_with('.') && !LeadsElsewhere(file);
        const bool isNew = Files().emplace("/Music/" + file, "").second;
        if (isNew && isListed) ++count;
    }
    return count;
}

}  // namespace

void Tunes(std::string_view bytes) {
    const std::size_t count = PutTunes(bytes);
    Global global;
    global.AppFolder = "\\";
    global.MusicFolder = "\\Music\\";
    LoadPlaylist(global);
    const std::vector<std::string> tunes = global.Playlist;
    Promise(tunes.size() == count, "every tune is in the list once");
    Promise(std::is_sorted(tunes.begin(), tunes.end(), ComesBefore), "the list is in order");

    SavePlaylist(global);
    LoadPlaylist(global);
    Promise(global.Playlist == tunes, "every tune comes back as itself");
}

}  // namespace quendrel::fuzz
