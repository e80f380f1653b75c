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
#include "platform/AnsiText.h"
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

/// The code page has '?' for what it lacks, and so the first of those that are written alike comes
/// back.
std::string WhatComesBack(const std::string& tune, const std::vector<std::string>& tunes) {
    if (ToAnsi(tune).find('?') == std::string::npos) return tune;
    return *std::find_if(tunes.begin(), tunes.end(), [&tune](const std::string& other) {
        return ToAnsi(other) == ToAnsi(tune);
    });
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
    Promise(global.Playlist.size() == count, "every tune comes back");
    for (std::size_t i = 0; i < count; ++i) {
        Promise(global.Playlist[i] == WhatComesBack(tunes[i], tunes),
                "a tune comes back as itself");
    }
}

}  // namespace quendrel::fuzz
