// The file of the playlist, beside a folder with some tunes.
#include "audio/Playlist.h"

#include <algorithm>
#include <filesystem>
#include <string>

#include "Global.h"
#include "MemoryFiles.h"
#include "Promise.h"
#include "Readers.h"
#include "platform/Text.h"

namespace quendrel::fuzz {

namespace {

void LookAtList(const Global& global) {
    Promise(global.PlaylistUpper == static_cast<int>(global.Playlist.size()) - 1,
            "the last index is that of the last tune");
    for (const std::string& tune : global.Playlist) {
        Promise(!LeadsElsewhere(tune + ".mid"), "no tune leads elsewhere");
        const std::filesystem::path file = TuneFile(global, tune);
        Promise(file.lexically_normal().string().starts_with("/Music/"),
                "the file of a tune is in the folder of tunes");
    }
}

}  // namespace

void Playlist(std::string_view bytes) {
    for (const char* const tune : {"Air", "Why?", "Вечер", "Осень", "Été", "..A", "An\nAir"}) {
        Files()["/Music/" + std::string(tune) + ".mid"] = "x";
    }
    Files()["/Playlist.dat"] = bytes;
    Global global;
    global.AppFolder = "\\";
    global.MusicFolder = "\\Music\\";
    LoadPlaylist(global);
    LookAtList(global);

    const std::vector<std::string> tunes = global.Playlist;
    SavePlaylist(global);
    const std::string& saved = Files()["/Playlist.dat"];
    const std::size_t count = 2;
    Promise(saved.size() == std::max(bytes.size(), count),
            "saving cuts nothing off and adds nothing");
    Promise(saved.substr(0, count) != bytes.substr(0, count) || saved == bytes,
            "a list from which nothing was left out is written as it stood");
    LoadPlaylist(global);
    Promise(global.Playlist == tunes, "a list that was read and saved is read as the same");
}

}  // namespace quendrel::fuzz
