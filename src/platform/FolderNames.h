// What lies in the program's folder, by name.
#pragma once

namespace quendrel {

inline constexpr const char* kSkinFolder = "Skin";
inline constexpr const char* kSoundFolder = "Sound";
inline constexpr const char* kMusicFolder = "Music";
inline constexpr const char* kRulesFolder = "Rules";
inline constexpr const char* kHighFolder = "High";
inline constexpr const char* kPlaylistFile = "Playlist.dat";

}  // namespace quendrel
