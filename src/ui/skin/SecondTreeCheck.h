// The check of a skin's pictures at twice the size.
#pragma once

namespace quendrel {

class CheckedTree;

/// The masks of the second tree, and whether each of its pictures shows what that of the first one
/// shows.
void CheckSecondTree(const CheckedTree& first, CheckedTree& second);

}  // namespace quendrel
