// The outline of a window: kept from the masks of a skin, cut at the scale that the window is shown
// at.
#pragma once

#include <functional>

#include <QImage>
#include <QWidget>

#include "ui/picture/Outline.h"
#include "ui/skin/WindowShape.h"

class QPainter;

namespace quendrel {

/// What the desktop does for windows that have no frame and are no rectangles.
struct WindowEdges {
    /// Cuts a window to a region of device pixels. False where only the toolkit can, by its own.
    std::function<bool(WId, const QRegion&)> cut = [](WId, const QRegion&) { return false; };
    /// Whether what windows show is blended with what is beneath them, by its opacity.
    std::function<bool()> blends = [] { return false; };
    /// Whether windows are moved by the desktop alone, and with any button.
    std::function<bool()> movesAlone = [] { return false; };
};

class WindowOutline {
public:
    /// Gives `window` opacity where it can be blended. To be called before it is first shown.
    static void PrepareEdges(QWidget& window);

    void Take(const OutlineMasks& masks);
    void SetEdges(const WindowEdges& edges) { edges_ = edges; }
    const WindowEdges& Edges() const { return edges_; }

    /// Cuts `window`, which shows a unit as so many device pixels; nothing without masks.
    void Cut(QWidget& window, double scale);

    /// Whether all of a rectangle of device pixels is kept, none of it on a smooth edge.
    bool HasWithin(const QRect& pixels) const;

    /// Takes away what was painted outside the outline within `region`, in the pixels of the
    /// window.
    void ClearOutside(QPainter& painter, const QRegion& region) const;

private:
    Outline Make(const QWidget& window, double scale) const;

    WindowEdges edges_;
    /// What the masks keep, in both densities, a bit a pixel.
    QImage single_;
    QImage doubled_;
    Outline outline_;
};

}  // namespace quendrel
