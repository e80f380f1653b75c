// Opens addresses with the desktop's handlers.
#pragma once

#include <cstdint>
#include <string>

namespace quendrel {

/// The desktop's LinkOpener.
std::int32_t OpenLink(const std::string& address);

/// The address of a file of the machine, for a LinkOpener. `path` is absolute.
std::string AddressOfFile(const std::string& path);

}  // namespace quendrel
