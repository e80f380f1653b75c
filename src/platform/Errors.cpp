#include "platform/Errors.h"

#include <iostream>
#include <sstream>

#include "platform/Text.h"

namespace quendrel {

void ReportTrouble(const std::string& text) {
    std::istringstream lines(text);
    std::string said;
    for (std::string line; std::getline(lines, line);) said += OneLine(line) + '\n';
    std::cerr << "quendrel: " << said;
}

}  // namespace quendrel
