// The main window as the flows see it: its picture, and its controls by name. frmMain implements
// it; tests have one that records.
#pragma once

#include <optional>
#include <string>

#include "Geometry.h"
#include "ui/layout/Control.h"
#include "ui/main/MessageLine.h"

namespace quendrel {

class Picture;
struct ButtonPictures;
struct OutlineMasks;

/// The number of the code row, below which the rows of the board count from 1.
inline constexpr int kCodeRowNumber = 0;

class MainView {
public:
    virtual ~MainView() = default;

    /// The persistent image, 655 x 605 units: every repaint shows it.
    virtual Picture& Image() = 0;

    /// The pixels of a unit (1 or 2) that pictures should have on the screen that the window is on.
    virtual int Density() const = 0;

    /// Tells the player of a problem that does not end the game: on standard error, and in a box
    /// with one OK button. Returns when the box is closed. Throws what Clock::PumpEvents throws.
    virtual void ShowTrouble(const std::string& text) = 0;

    /// Shows by the pointer that the game is busy for a moment and answers nothing, or no longer.
    virtual void ShowBusy(bool busy) = 0;

    /// Cuts the window to an outline.
    virtual void Shape(const OutlineMasks& masks) = 0;

    /// Switches the balloon help of the controls on or off.
    virtual void SwitchHelp(bool on) = 0;

    /// Keeps the mouse pointer inside a mode or colour button, or lets it go again.
    virtual void ConfineCursor(Control control) = 0;
    virtual void FreeCursor() = 0;

    /// Puts a rectangle of the persistent image on the screen at once, without waiting for
    /// events.
    virtual void ShowNow(const Rect& rect) = 0;

    /// The same for a line of the sweep, which comes to the screen alone: what changed beside it is
    /// still to be swept.
    virtual void ShowLineNow(const Rect& line) = 0;

    /// Puts the whole window, controls included, on the screen at once.
    virtual void RepaintAll() = 0;

    virtual void SetEnabled(Control control, bool enabled) = 0;
    virtual bool IsEnabled(Control control) const = 0;
    virtual void SetVisible(Control control, bool visible) = 0;
    /// The place where keys act: the control that has the keyboard's focus, or nothing where none
    /// has it. A control that cannot take it leaves it to the one that KeyPlay::Home names.
    virtual void SetPlace(Control control) = 0;
    virtual std::optional<Control> Place() const = 0;

    /// A key presses a button, which sounds as under the pointer; nothing where it is switched off.
    virtual void Press(Control button) = 0;

    virtual void SetLeft(Control control, int left) = 0;
    virtual void SetTop(Control control, int top) = 0;
    virtual void SetWidth(Control control, int width) = 0;

    /// Gives a button its pictures; a state without one keeps what it had.
    virtual void SetPictures(Control control, const ButtonPictures& pictures) = 0;

    /// Letters the live text as the skin in the folder `root` has it.
    virtual void SetFonts(const std::string& root) = 0;

    /// Holds a mode or colour button in its Down picture, or lets it go.
    virtual void SetHeld(Control control, bool held) = 0;

    /// The text of lblGTimer.
    virtual void SetClock(const std::string& time) = 0;

    /// Line 1 to 4 of the message panel. An empty text hides the line and keeps its colour.
    virtual void SetMessageLine(int line, const MessageLine& content) = 0;

    /// What a screen reader calls a hole or a strip.
    virtual void SetSpokenName(Control control, const std::string& name) = 0;

    /// What a screen reader finds in a row (1 to 14) of the board, or in the code row; nothing
    /// where the text is empty.
    virtual void SetSpokenRow(int row, const std::string& text) = 0;

    /// Lets a screen reader say something at once.
    virtual void Announce(const std::string& text) = 0;
};

}  // namespace quendrel
