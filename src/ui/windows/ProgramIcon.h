// The program's icon, for the task bar and the titles of boxes.
#pragma once

#include <QIcon>

namespace quendrel {

/// In all sizes that are built in. They are read anew, which takes some milliseconds.
QIcon ProgramIcon();

}  // namespace quendrel
