// An area of the main window that is pressed: a hole of the active row, a strip over a checked
// row, the place behind a colour button.
#pragma once

#include <functional>

#include <QWidget>

#include "ui/controls/MouseButton.h"

namespace quendrel {

/// Disabled, it lets the mouse through to what lies behind it.
class ClickTarget : public QWidget {
public:
    /// Whether the area itself can be seen.
    enum class Look { kInvisible, kFramed };

    ClickTarget(QWidget* parent, Look look);

    /// onPress: any mouse button goes down on it. onClick: the button is let go inside it after
    /// that.
    std::function<void(MouseButton)> onPress = [](MouseButton) {};
    std::function<void()> onClick = [] {};
    /// The second press of a double click; where it is not set, that press calls onPress.
    std::function<void()> onDoubleClick;

    /// What a click with the left button does.
    void Press();

protected:
    void changeEvent(QEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    /// Does not pass the move on, or the window would be dragged.
    void mouseMoveEvent(QMouseEvent* /*event*/) override {}
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    Look look_;
    bool pressed_ = false;
};

}  // namespace quendrel
