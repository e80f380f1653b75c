// The playlist and its file.
#pragma once

#include <string>
#include <vector>

namespace quendrel {

struct Global;

/// The names of the tunes in MusicFolder without ".mid", sorted without regard to case; none
/// where there is no such folder.
std::vector<std::string> ListTunes(const Global& global);

/// The tune's file, a path of the machine.
std::string TuneFile(const Global& global, const std::string& tune);

/// Replaces Playlist and PlaylistUpper. Tunes beyond the 32768 that PlaylistUpper can count are
/// left out.
void SetPlaylist(Global& global, std::vector<std::string> tunes);

/// Fills Playlist from the file beside the program, or with all tunes where there is none. Called
/// at start-up. Of a list cut short the names that are whole are kept. Tunes whose names the code
/// page writes alike come back in the order of the folder, whatever their order was.
/// Throws FileError for a file that is there and cannot be read, and, where there is none, for a
/// folder that cannot be listed.
void LoadPlaylist(Global& global);

/// Writes Playlist, on leaving. Bytes of a longer old file stay behind it. Throws FileError; the
/// old file then stands untouched.
void SavePlaylist(const Global& global);

}  // namespace quendrel
