// Opens an address with the desktop's own program for it.
#pragma once

#include <cstdint>
#include <string>

namespace quendrel {

class LinkOpener {
public:
    virtual ~LinkOpener() = default;

    /// Opens "mailto:..." or "https://...". Returns 1 where the desktop has taken it, 0 where it
    /// has not. Does not wait for the program.
    virtual std::int32_t Open(const std::string& address) = 0;
};

}  // namespace quendrel
