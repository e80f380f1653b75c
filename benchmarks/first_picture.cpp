// A stopwatch: starts a program on an otherwise empty display, waits until a window of at least so
// many pixels' width shows a picture there, prints the milliseconds from the start, and ends it.
//   bench_first_picture WIDTH PROGRAM [ARGUMENT...]
#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <set>

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Milliseconds = std::chrono::duration<double, std::milli>;

/// How many different colours the middle row of a window shows, if it is shown and wide enough. No
/// plain background has more than a few.
std::size_t ColorsIn(Display* display, Window window, int leastWidth) {
    XWindowAttributes place;
    if (XGetWindowAttributes(display, window, &place) == 0 || place.map_state != IsViewable ||
        place.width < leastWidth) {
        return 0;
    }
    const int width = std::min(place.width, DisplayWidth(display, 0) - place.x);
    XImage* const row = XGetImage(display, window, 0, place.height / 2,
                                  static_cast<unsigned>(width), 1, AllPlanes, ZPixmap);
    if (row == nullptr) return 0;
    std::set<unsigned long> colors;
    for (int x = 0; x < width; ++x) colors.insert(XGetPixel(row, x, 0));
    XDestroyImage(row);
    return colors.size();
}

/// Whether a window that stands on the screen by itself shows a picture.
bool ShowsPicture(Display* display, int leastWidth) {
    constexpr std::size_t kColorsOfAPicture = 16;
    Window root = 0;
    Window parent = 0;
    Window* windows = nullptr;
    unsigned count = 0;
    XQueryTree(display, DefaultRootWindow(display), &root, &parent, &windows, &count);
    const bool shows = std::any_of(windows, windows + count, [&](Window window) {
        return ColorsIn(display, window, leastWidth) >= kColorsOfAPicture;
    });
    if (windows != nullptr) XFree(windows);
    return shows;
}

/// A window may go while it is looked at.
int Ignore(Display* /*display*/, XErrorEvent* /*error*/) { return 0; }

/// Starts the program and returns its process.
pid_t Start(char** command) {
    const pid_t child = fork();
    if (child != 0) return child;
    execvp(command[0], command);
    std::perror(command[0]);
    _exit(127);
}

}  // namespace

int main(int argc, char** argv) {
    constexpr Milliseconds kLongestWait{20000};
    constexpr useconds_t kBetweenLooks = 500;

    Display* const display = XOpenDisplay(nullptr);
    if (argc < 3 || display == nullptr) {
        std::cerr << "bench_first_picture: needs a width, a program, and a display\n";
        return 2;
    }
    XSetErrorHandler(Ignore);
    const int leastWidth = static_cast<int>(std::strtol(argv[1], nullptr, 10));
    // The windows of a program that has just ended may still be going.
    while (ShowsPicture(display, 1)) usleep(kBetweenLooks);
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = Start(argv + 2);
    Milliseconds elapsed{0};
    while (!ShowsPicture(display, leastWidth) && elapsed < kLongestWait) {
        usleep(kBetweenLooks);
        elapsed = std::chrono::steady_clock::now() - start;
    }
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    XCloseDisplay(display);
    if (elapsed >= kLongestWait) return 1;
    std::cout << elapsed.count() << '\n';
    return 0;
}
