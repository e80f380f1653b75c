// What the desktop makes of windows that are no rectangles: asked and told by the X server
// directly, since the toolkit counts in units of its own and says nothing of a compositor.
#pragma once

#include <functional>

#include <QAbstractNativeEventFilter>
#include <QRegion>
#include <QWidget>

namespace quendrel {

/// Cuts a window that stands by itself to a region of device pixels, whatever the scale of the
/// desktop; an empty region makes it whole again. Beside it the pointer reaches what is beneath,
/// and compositors are asked for no shadow, which would be that of the whole window.
/// False on another platform than X, where nothing is done.
bool CutWindow(WId window, const QRegion& devicePixels);

/// Whether the desktop blends what windows show with what is beneath them, by their opacity.
bool CompositorRuns();

/// Whether the desktop ignores where a window wants to be, and moves it with any button when it is
/// asked to: so Wayland does, and of the X servers on it those of Weston and of wlroots.
bool DesktopMovesAlone();

/// While it lives, the start and the end of a compositor call `onChange` from within the event
/// loop. What a window manager frames a cut window with asks for no shadow either.
class CompositorWatch : QAbstractNativeEventFilter {
public:
    explicit CompositorWatch(std::function<void()> onChange);
    ~CompositorWatch() override;
    CompositorWatch(const CompositorWatch&) = delete;
    CompositorWatch& operator=(const CompositorWatch&) = delete;

private:
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

    std::function<void()> onChange_;
    /// The number of the event that a selection has changed its owner; 0 where there is none.
    int ownerChanged_ = 0;
    /// A window of ours, which the events are sent to.
    unsigned long listener_ = 0;
    bool runs_ = false;
};

}  // namespace quendrel
