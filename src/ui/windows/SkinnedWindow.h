// A borderless window, shaped by a mask picture, that shows one picture and is dragged by it.
#pragma once

#include <cstdint>
#include <functional>

#include <QWidget>

#include "ui/picture/Picture.h"

namespace quendrel {

class Clock;

class SkinnedWindow : public QWidget {
public:
    /// `name` is the window's object name; its title is the game's.
    explicit SkinnedWindow(const QString& name);

    /// Called when the window manager or the desktop wishes to close the window. It stays open.
    std::function<void()> onCloseRequest = [] {};

    /// Shows the window and handles events until it is hidden again. The other windows are dead
    /// meanwhile. Throws what Clock::PumpEvents throws.
    void ShowModal(Clock& clock);

    /// Puts the window over the middle of a place (global pixels), whole on its screen.
    void MoveOver(const QRect& place);

    /// Puts the window in the middle of the screen that the pointer is on.
    void MoveToMiddle();

protected:
    /// Makes the window's region from a mask, once: what is exactly `cut` there is cut away.
    void ShapeFrom(const Picture& mask, Pixel cut);

    /// Takes a picture as the window's face and its size. It must live as long as it is shown.
    void SetFace(const Picture& face);

    /// Paints a rectangle of the window at once, every device pixel that it touches.
    void RepaintNow(const QRect& rect);

    void closeEvent(QCloseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    enum class Drag : std::uint8_t { kNone, kMayBegin, kUnderWay };

    bool IsBackground(QPoint at) const;

    const Picture* face_ = nullptr;
    /// Where in the window the pointer took hold of it.
    QPoint hold_;
    Drag drag_ = Drag::kNone;
};

}  // namespace quendrel
