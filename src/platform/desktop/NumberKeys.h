// The keys of the numbers, wherever a keyboard's layout puts them.
#pragma once

#include <optional>

class QKeyEvent;

namespace quendrel {

/// 1 to 9, or 10 for the key of 0: in the row above the letters by the key's place, whatever it
/// types, and on the keypad. Nothing for another key.
std::optional<int> NumberOf(const QKeyEvent& event);

}  // namespace quendrel
