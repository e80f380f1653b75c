// The ways in which the program ends from deep inside a flow.
#include "platform/Errors.h"

#include <iostream>

namespace quendrel {

void ReportTrouble(const std::exception& error) {
    std::cerr << "quendrel: " << error.what() << '\n';
}

}  // namespace quendrel
