// The folder of each player: his scores, his playlist, and his own skins and tunes beside links to
// what the system has.
#pragma once

#include <string>

namespace quendrel {

/// $XDG_DATA_HOME/quendrel; ~/.local/share/quendrel where that variable is unset.
std::string PlayersFolder();

/// The folder that the executable is in.
std::string FolderOfProgram();

/// Brings the folder of a player, which is made where it is missing, up to date with that of the
/// system, an absolute path: every skin, sound and tune there has a link here, unless the player
/// has something of that name, and links to what is there no longer are taken away. Nothing of the
/// player's is touched. A folder that is newly made takes over the scores and the playlist of the
/// system's. Called once, at the start. Throws FileError, with what could be done already done.
void FollowSystem(const std::string& player, const std::string& system);

/// The folder that the program plays in: the one that is `asked` for (an absolute path), or, where
/// that is empty, the player's, which follows the system's. The system's is `programFolder`,
/// FolderOfProgram, where the game's skins are there, as after a build; otherwise the one that it
/// is installed with. A folder that is asked for and cannot be written is a system's too. Where the
/// player's cannot be made the system's is used, and standard error says why. Called once, at the
/// start.
std::string FolderToPlayIn(const std::string& asked, const std::string& programFolder);

}  // namespace quendrel
