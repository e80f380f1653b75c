// Choosing a colour and placing it: the colour buttons, and the holes of the active row or, while
// the player sets the code, of the code row.
#pragma once

#include "Global.h"
#include "ui/controls/MouseButton.h"

namespace quendrel {

struct Table;

class PegPlacing {
public:
    explicit PegPlacing(Table& table) : table_(table) {}

    /// A press on the button of colour `color` (1 to 10): the left button selects it, another
    /// switches it off unless it is the selected one, which is held down.
    void PressColorButton(int color, MouseButton button);

    /// Selects a colour, whose button is held down.
    void ChooseColor(int color);

    /// Any mouse button is let go over a colour button.
    void ReleaseColorButton();

    /// A press on the label behind a switched-off colour button: the right button switches the
    /// colour on again.
    void PressColorBackup(int color, MouseButton button);

    /// Switches a colour off, or on again, as a press with the right button does.
    void SwitchColor(int color);

    /// A press on the hole of `column` (1 to 6): the left button places the selected colour,
    /// another empties the hole.
    void PressHole(int column, MouseButton button);

    /// A double click on any hole empties the whole row.
    void DoubleClickRow();

    /// Whether a press on a hole does nothing, since a row is scored or a question waits.
    bool HolesAreDeaf() const;

    /// Whether the hole of `column` (1 to 6) has no peg.
    bool IsEmpty(int column) { return RowBeingFilled()[column] == 0; }

    /// Draws the colours of the row being filled after they were set all at once.
    void DrawActiveRow();

private:
    RowOfPegs& RowBeingFilled();
    void PutPeg(int column, std::int16_t color);
    bool RowIsFull();
    void EnableConfirmation(bool enabled);

    Table& table_;
};

}  // namespace quendrel
