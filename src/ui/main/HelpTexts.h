// The help texts of the main window's controls, for the balloons and for screen readers.
#pragma once

#include <string>

#include "ui/layout/Control.h"

namespace quendrel {

/// The text, or an empty one for a control without help.
std::string HelpText(Control control);

}  // namespace quendrel
