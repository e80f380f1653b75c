// The picture of the splash window.
#pragma once

#include "kit/Bitmap.h"
#include "skins/Atelier.h"

namespace quendrel::art::splash {

/// The name on a walnut plaque with a row of pegs. It stands on pure yellow, which no pixel of the
/// plaque has: the window's shape cuts the yellow away.
Picture Draw(const atelier::Atelier& atelier);

/// White where `splash` is yellow, and black elsewhere, as the masks of the skins are.
Bitmap MaskOf(const Bitmap& splash);

}  // namespace quendrel::art::splash
