// The lines of a message box.
#pragma once

class QMessageBox;

namespace quendrel {

/// Keeps the toolkit from breaking the lines of the box's text on a small screen. Where they do not
/// fit into `room`, a width in pixels, the letters become smaller. To be called before the box is
/// shown.
void KeepLines(QMessageBox& box, int room);

}  // namespace quendrel
