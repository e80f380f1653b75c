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

    /// Draws the colours of the row being filled after they were set all at once.
    void DrawActiveRow();

private:
    bool HolesAreDeaf() const;
    RowOfPegs& RowBeingFilled();
    void PutPeg(int column, std::int16_t color);
    bool RowIsFull();
    void EnableConfirmation(bool enabled);

    Table& table_;
};

}  // namespace quendrel
