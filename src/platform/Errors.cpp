#include "platform/Errors.h"

#include <iostream>

namespace quendrel {

void ReportTrouble(const std::string& text) { std::cerr << "quendrel: " << text << '\n'; }

}  // namespace quendrel
