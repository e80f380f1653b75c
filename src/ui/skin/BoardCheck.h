// The check of what a skin's board is drawn with: pegs, marks, numbers, covers and holes.
#pragma once

namespace quendrel {

class CheckedTree;

/// The strips and the sheet of covers: their masks, and that what they show is told apart.
void CheckSheets(CheckedTree& skin);

/// The boards of the three modes: their holes and numbers.
void CheckBoards(CheckedTree& skin);

}  // namespace quendrel
