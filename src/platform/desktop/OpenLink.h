// Opens addresses with the desktop's handlers.
#pragma once

#include <cstdint>
#include <string>

namespace quendrel {

/// The desktop's LinkOpener.
std::int32_t OpenLink(const std::string& address);

}  // namespace quendrel
