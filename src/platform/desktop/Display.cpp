#include "platform/desktop/Display.h"

#include <algorithm>
#include <cstdlib>
#include <memory>

#include <QGuiApplication>
#include <QString>
#include <QStringList>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace quendrel {

namespace {

bool OnX() { return QGuiApplication::platformName() == "xcb"; }

bool IsX(const QString& platform) { return platform.section(':', 0, 0) == "xcb"; }

using Connection = std::unique_ptr<::Display, decltype(&XCloseDisplay)>;

Connection Connect() { return {XOpenDisplay(nullptr), XCloseDisplay}; }

}  // namespace

/// A borderless window of its own shape needs X, which Wayland desktops offer as well.
std::string PlatformAskedFor() {
    const char* const platform = std::getenv("QT_QPA_PLATFORM");
    return platform == nullptr || platform[0] == '\0' ? "xcb" : platform;
}

bool OnlyXIsAskedFor() {
    const QString asked = QString::fromStdString(PlatformAskedFor());
    const QStringList platforms = asked.split(';', Qt::SkipEmptyParts);
    return std::all_of(platforms.begin(), platforms.end(), IsX);
}

bool DisplayReachable() { return !OnlyXIsAskedFor() || Connect() != nullptr; }

bool WindowIsMinimised(std::uintptr_t window) {
    if (!OnX()) return true;
    const Connection connection = Connect();
    if (!connection) return false;
    const Atom state = XInternAtom(connection.get(), "WM_STATE", False);
    Atom type = None;
    int bits = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* value = nullptr;
    XGetWindowProperty(connection.get(), window, state, 0, 1, False, state, &type, &bits, &count,
                       &rest, &value);
    const std::unique_ptr<unsigned char, decltype(&XFree)> owned(value, XFree);
    return count == 1 && *reinterpret_cast<const long*>(value) == IconicState;
}

bool MinimisingIsTold() { return !QGuiApplication::platformName().startsWith("wayland"); }

}  // namespace quendrel
