// A button that is a picture per state.
#pragma once

#include <functional>

#include <QAbstractButton>
#include <QAccessible>
#include <QBasicTimer>
#include <QImage>

#include "ui/controls/MouseButton.h"

namespace quendrel {

struct ButtonPictures;

/// Shows Down (held), Disabled, Down (pressed or checked), Over or Up, in this order of precedence;
/// a state without a picture shows Up. Disabled, it passes its presses on to its parent.
class ImageButton : public QAbstractButton {
public:
    explicit ImageButton(QWidget* parent);

    /// onPress and onRelease: any mouse button goes down on it, or is let go there after that.
    /// onClick: a click with the left one.
    /// A press by keyboard or assistive technology counts as one with the left button.
    std::function<void(MouseButton)> onPress = [](MouseButton) {};
    std::function<void(MouseButton)> onRelease = [](MouseButton) {};
    std::function<void()> onClick = [] {};

    /// What else assistive technology can do with it, and what that is called now: nothing where
    /// the name is empty.
    struct OtherAction {
        std::function<QString()> name = [] { return QString(); };
        std::function<void()> act = [] {};
    };
    OtherAction otherAction;

    /// It is one of several choices, of which the held one is in force.
    void MakeChoice() { choice_ = true; }
    bool IsChoice() const { return choice_; }

    /// It only shows something.
    void MakePicture();

    /// What a screen reader takes it for.
    QAccessible::Role Role() const;

    /// Takes the pictures that are there; their size becomes the button's. Throws std::bad_alloc
    /// where there is no memory for one.
    void SetPictures(const ButtonPictures& pictures);

    /// Keeps the mouse pointer inside the button until it is let go: where it leaves while a mouse
    /// button is down it is put back. This ends with the press, and when the button is hidden or a
    /// modal window opens.
    void ConfineCursor(bool confined) { confined_ = confined; }

    /// A press by assistive technology, which ends like one with the mouse, a tenth of a second
    /// later. It is forgotten where the button cannot be pressed any more by then.
    void PressAWhile();

    /// Held, the button shows its Down picture, pressed or not, enabled or not.
    void SetHeld(bool held);
    bool IsHeld() const { return held_; }

protected:
    bool event(QEvent* event) override;
    /// A click does not change what it shows: SetHeld and setChecked do.
    void nextCheckState() override {}
    void enterEvent(QEnterEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    const QImage& Shown() const;
    void SetPointedAt(bool pointedAt);
    void ForgetPress();

    QImage up_;
    QImage disabled_;
    QImage down_;
    QImage over_;
    bool held_ = false;
    bool choice_ = false;
    bool picture_ = false;
    /// underMouse() stays true while a pressed button holds the mouse.
    bool pointedAt_ = false;
    bool confined_ = false;
    /// The end of a press by assistive technology.
    QBasicTimer letGo_;
};

/// The toolkit's mouse button as the flows know it.
MouseButton MouseButtonOf(Qt::MouseButton button);

}  // namespace quendrel
