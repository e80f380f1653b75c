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

    /// Called when the window manager or the desktop asks to close the window, which stays open.
    std::function<void()> onCloseRequest = [] {};

    /// Shows the window and handles events until it is hidden again. The other windows take no
    /// input meanwhile. Throws what Clock::PumpEvents throws.
    void ShowModal(Clock& clock);

    /// Centres the window over a place (global pixels) and keeps all of it on its screen.
    void MoveOver(const QRect& place);

    /// Puts the window in the middle of the screen that the pointer is on.
    void MoveToMiddle();

protected:
    /// Makes the window's region from a mask, once: what is exactly `cut` there is cut away.
    void ShapeFrom(const Picture& mask, Pixel cut);

    /// Sets the picture that the window shows; the window takes its size. It must live as long as
    /// it is shown.
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
