// The lines of a message box.
#pragma once

class QMessageBox;

namespace quendrel {

/// Lets the box show its text in the lines in which it is written, where the toolkit would break
/// them on a small screen; in smaller letters where they are wider than `room`, in pixels, has for
/// them. Before the box is shown.
void KeepLines(QMessageBox& box, int room);

}  // namespace quendrel
