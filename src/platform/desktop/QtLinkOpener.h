// Opens addresses with the desktop's handlers.
#pragma once

#include "platform/LinkOpener.h"

namespace quendrel {

class QtLinkOpener : public LinkOpener {
public:
    std::int32_t Open(const std::string& address) override;
};

}  // namespace quendrel
