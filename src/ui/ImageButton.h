// A button that is a picture per state.
#pragma once

#include <functional>

#include <QAbstractButton>
#include <QPixmap>

#include "ui/MainWindow.h"

namespace quendrel {

struct ButtonPictures;

/// Shows Disabled, Down (pressed or held), Over or Up, in this order of precedence; a state
/// without a picture shows Up. Disabled, it lets the mouse through to what lies behind it.
class ImageButton : public QAbstractButton {
public:
    explicit ImageButton(QWidget* parent);

    /// Any mouse button goes down on it, or is let go after that; and a click with the left one,
    /// or a press by keyboard or assistive technology.
    std::function<void(MouseButton)> onPress = [](MouseButton) {};
    std::function<void(MouseButton)> onRelease = [](MouseButton) {};
    std::function<void()> onClick = [] {};

    /// Takes the pictures that are there; their size becomes the button's.
    void SetPictures(const ButtonPictures& pictures);

    /// Keeps the mouse pointer inside the button until it is let go: where it leaves while a mouse
    /// button is down it is put back. Nothing of it outlives the button or its press.
    void ConfineCursor(bool confined) { confined_ = confined; }

    /// Keeps the Down picture while the button is not pressed.
    void SetHeld(bool held);

protected:
    void changeEvent(QEvent* event) override;
    /// What it holds is told to it by SetHeld and setChecked alone.
    void nextCheckState() override {}
    void enterEvent(QEnterEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    const QPixmap& Shown() const;

    QPixmap up_;
    QPixmap disabled_;
    QPixmap down_;
    QPixmap over_;
    bool held_ = false;
    bool confined_ = false;
};

/// The toolkit's mouse button as the flows know it.
MouseButton MouseButtonOf(Qt::MouseButton button);

}  // namespace quendrel
