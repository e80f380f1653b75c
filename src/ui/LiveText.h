// The font of the text that is drawn live over the pictures.
#pragma once

#include <QFont>

namespace quendrel {

/// The pictures' own family at a size in pixels.
QFont LiveFont(int pixels);

}  // namespace quendrel
