// The check of what a skin's windows look like: rims of outlines, grounds of texts and animations,
// corners of buttons.
#pragma once

namespace quendrel {

class CheckedTree;

/// The masks of the windows, and the rims of the pictures that they cut.
void CheckOutlines(CheckedTree& skin);

/// What live text and animations stand on.
void CheckGrounds(CheckedTree& skin);

/// Buttons are cut out of their window.
void CheckButtons(CheckedTree& skin);

}  // namespace quendrel
