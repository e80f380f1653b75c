// The game by keys: what each key does in the main window. The place where keys act is the control
// that has the keyboard's focus.
#pragma once

#include <cstdint>
#include <optional>

#include "ui/layout/Control.h"
#include "ui/main/CommandButtons.h"

namespace quendrel {

class PegPlacing;
class RoundController;
struct Table;

/// The keys that have no letter and no number.
enum class Key : std::uint8_t {
    kLeft,
    kRight,
    kHome,
    kEnd,
    kUp,
    kDown,
    kSpace,
    kEnter,
    kEscape,
    kDelete,
    kShiftDelete,
    kBackspace,
};

class KeyPlay {
public:
    KeyPlay(Table& table, PegPlacing& pegs, RoundController& round)
        : table_(table), pegs_(pegs), round_(round) {}

    /// False where the key is not the game's but that of the control at the place: Space on a
    /// button.
    bool Press(Key key);

    /// Number 1 to 10 chooses that colour and puts it into the marked hole; without a hole to fill
    /// it chooses only.
    void PressNumber(int number);

    /// Shift with a number 1 to 10 switches that colour off, or on again.
    void PressShiftNumber(int number);

    /// The letter of a button.
    void PressLetter(Control button);

    /// The place has come to the hole of `column` (1 to 6), which stays the marked one while the
    /// place is elsewhere.
    void HoleReached(int column) { column_ = column; }

    /// Where the place belongs when the control that had it is switched off or hidden; nothing
    /// where no control can take it.
    std::optional<Control> Home();

private:
    Control MarkedHole();
    bool HolesTakeKeys();
    bool ColorIsOffered(int color) const;
    /// Of the row at the place that "Clone" offers.
    std::optional<int> StripAtPlace() const;
    void MoveToColumn(int column);
    void MoveToRow(int step);
    void Fill();
    void Empty();
    void EmptyBackwards();
    void EmptyRow();
    bool PressSpace();
    void PressEnter();

    Table& table_;
    PegPlacing& pegs_;
    RoundController& round_;
    int column_ = 1;
};

}  // namespace quendrel
