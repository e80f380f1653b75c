#include "platform/Errors.h"

#include <iostream>
#include <new>
#include <sstream>

#include "platform/Text.h"

namespace quendrel {

std::string ReasonOf(const std::exception& error) {
    const bool noMemory = dynamic_cast<const std::bad_alloc*>(&error) != nullptr;
    return noMemory ? "There is not enough memory left." : error.what();
}

void ReportTrouble(const std::string& text) {
    std::istringstream lines(text);
    std::string said;
    for (std::string line; std::getline(lines, line);) said += OneLine(line) + '\n';
    std::cerr << "quendrel: " << said;
}

}  // namespace quendrel
