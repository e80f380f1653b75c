// Files in memory alone, which take the place of the machine's: they come and go a hundred thousand
// times a second, and a reader that leads astray harms nothing.
#pragma once

#include <map>
#include <string>

namespace quendrel::fuzz {

/// All files by their paths, which have slashes. The folders above a file are there with it.
std::map<std::string, std::string>& Files();

/// Also the folders.
void RemoveAllFiles();

}  // namespace quendrel::fuzz
