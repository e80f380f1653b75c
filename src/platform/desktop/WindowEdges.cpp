#include "platform/desktop/WindowEdges.h"

#include <cstring>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <QGuiApplication>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/extensions/Xfixes.h>
#include <X11/extensions/shape.h>
#include <xcb/xcb.h>

#include "platform/Doors.h"

namespace quendrel {

namespace {

/// The toolkit's own connection, so that what we ask for comes in order with what it asks for.
/// Null on another platform than X.
::Display* ToolkitConnection() {
    const auto* const x = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x != nullptr ? x->display() : nullptr;
}

/// The selection that a compositor owns while it runs.
Atom CompositorSelection(::Display* connection) {
    const std::string name = "_NET_WM_CM_S" + std::to_string(DefaultScreen(connection));
    return XInternAtom(connection, name.c_str(), False);
}

/// A property of at most that many units, as bytes; empty where there is none.
std::string Property(::Display* connection, ::Window window, const char* name, Atom type) {
    constexpr long most = 64;
    Atom found = None;
    int bits = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* value = nullptr;
    XGetWindowProperty(connection, window, XInternAtom(connection, name, False), 0, most, False,
                       type, &found, &bits, &count, &rest, &value);
    const std::unique_ptr<unsigned char, decltype(&XFree)> owned(value, XFree);
    const std::size_t unit = bits == 32 ? sizeof(long) : 1;
    return value == nullptr ? "" : std::string(reinterpret_cast<char*>(value), count * unit);
}

/// What the window manager calls itself.
std::string WindowManager(::Display* connection) {
    constexpr const char* check = "_NET_SUPPORTING_WM_CHECK";
    const std::string bytes = Property(connection, DefaultRootWindow(connection), check, XA_WINDOW);
    ::Window window = None;
    if (bytes.size() != sizeof window) return "";
    std::memcpy(&window, bytes.data(), sizeof window);
    return Property(connection, window, "_NET_WM_NAME",
                    XInternAtom(connection, "UTF8_STRING", False));
}

/// What picom reads of a window that stands on the screen by itself: 0 for no shadow. The others
/// draw none around a window that is cut or has opacity.
constexpr const char* kShadow = "_COMPTON_SHADOW";

void AskForNoShadow(::Display* connection, Window window) {
    constexpr int bits = 32;
    const unsigned long none = 0;
    XChangeProperty(connection, window, XInternAtom(connection, kShadow, False), XA_CARDINAL, bits,
                    PropModeReplace, reinterpret_cast<const unsigned char*>(&none), 1);
}

/// A frame asks for no shadow where the window in it does.
void LeaveOutShadowOf(Window window, Window frame) {
    ::Display* const connection = ToolkitConnection();
    if (frame == DefaultRootWindow(connection)) return;
    if (!Property(connection, window, kShadow, XA_CARDINAL).empty()) {
        AskForNoShadow(connection, frame);
    }
}

constexpr unsigned long kAnyChange = XFixesSetSelectionOwnerNotifyMask |
                                     XFixesSelectionWindowDestroyNotifyMask |
                                     XFixesSelectionClientCloseNotifyMask;

}  // namespace

bool CutWindow(WId window, const QRegion& devicePixels) {
    ::Display* const connection = ToolkitConnection();
    if (connection == nullptr) return false;
    if (devicePixels.isEmpty()) {
        XShapeCombineMask(connection, window, ShapeBounding, 0, 0, None, ShapeSet);
    } else {
        std::vector<XRectangle> rects;
        for (const QRect& rect : devicePixels) {
            rects.push_back({static_cast<short>(rect.x()), static_cast<short>(rect.y()),
                             static_cast<unsigned short>(rect.width()),
                             static_cast<unsigned short>(rect.height())});
        }
        XShapeCombineRectangles(connection, window, ShapeBounding, 0, 0, rects.data(),
                                static_cast<int>(rects.size()), ShapeSet, YXBanded);
        AskForNoShadow(connection, window);
    }
    XFlush(connection);
    return true;
}

bool CompositorRuns() {
    ::Display* const connection = ToolkitConnection();
    if (connection == nullptr) return QGuiApplication::platformName().startsWith("wayland");
    return XGetSelectionOwner(connection, CompositorSelection(connection)) != None;
}

bool DesktopMovesAlone() {
    ::Display* const connection = ToolkitConnection();
    if (connection == nullptr) return QGuiApplication::platformName().startsWith("wayland");
    const std::string manager = WindowManager(connection);
    return manager == "Weston WM" || manager == "wlroots wm";
}

CompositorWatch::CompositorWatch(std::function<void()> onChange) : onChange_(std::move(onChange)) {
    ::Display* const connection = ToolkitConnection();
    int firstEvent = 0;
    int firstError = 0;
    if (connection == nullptr || !XFixesQueryExtension(connection, &firstEvent, &firstError)) {
        return;
    }
    ownerChanged_ = firstEvent + XFixesSelectionNotify;
    listener_ = XCreateWindow(connection, DefaultRootWindow(connection), -1, -1, 1, 1, 0, 0,
                              InputOnly, nullptr, 0, nullptr);
    XFixesSelectSelectionInput(connection, listener_, CompositorSelection(connection), kAnyChange);
    runs_ = CompositorRuns();
    qGuiApp->installNativeEventFilter(this);
}

CompositorWatch::~CompositorWatch() {
    if (ownerChanged_ == 0) return;
    qGuiApp->removeNativeEventFilter(this);
    XDestroyWindow(ToolkitConnection(), listener_);
}

bool CompositorWatch::nativeEventFilter(const QByteArray& /*eventType*/, void* message,
                                        qintptr* /*result*/) {
    constexpr int numberBits = 0x7F;
    const auto* const event = static_cast<const xcb_generic_event_t*>(message);
    const int number = event->response_type & numberBits;
    if (number == XCB_REPARENT_NOTIFY) {
        const auto* const framed = static_cast<const xcb_reparent_notify_event_t*>(message);
        LeaveOutShadowOf(framed->window, framed->parent);
    }
    if (number != ownerChanged_) return false;
    // The toolkit hears of the same selection, and of others.
    const bool ran = std::exchange(runs_, CompositorRuns());
    if (runs_ != ran) AtDoor(onChange_);
    return false;
}

}  // namespace quendrel
