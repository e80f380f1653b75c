// Where the files of a player are.
#pragma once

#include <string>

namespace quendrel {

/// The folder that an environment variable names, where that is an absolute path; otherwise the one
/// of this name in the player's home. That is $HOME, or what the list of the machine's users says.
std::string FolderOfPlayer(const char* variable, const std::string& inHome);

}  // namespace quendrel
