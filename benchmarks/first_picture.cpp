// A stopwatch: starts a program on an otherwise empty display, waits until it shows a picture
// there, prints the milliseconds from its start, and ends it.
//   bench_first_picture PROGRAM [ARGUMENT...]
#include <chrono>
#include <csignal>
#include <iostream>
#include <memory>
#include <set>

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Milliseconds = std::chrono::duration<double, std::milli>;

/// How many different colours the middle row of the screen shows: a window larger than half the
/// screen cannot miss it, and no plain background has more than a few.
std::size_t ColorsOnScreen(Display* display) {
    const int screen = DefaultScreen(display);
    const int width = DisplayWidth(display, screen);
    const std::unique_ptr<XImage, void (*)(XImage*)> row(
        XGetImage(display, DefaultRootWindow(display), 0, DisplayHeight(display, screen) / 2,
                  static_cast<unsigned>(width), 1, AllPlanes, ZPixmap),
        [](XImage* image) { XDestroyImage(image); });
    std::set<unsigned long> colors;
    for (int x = 0; x < width; ++x) colors.insert(XGetPixel(row.get(), x, 0));
    return colors.size();
}

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
    constexpr std::size_t kColorsOfAPicture = 16;
    constexpr Milliseconds kLongestWait{20000};
    constexpr useconds_t kBetweenLooks = 500;

    Display* const display = XOpenDisplay(nullptr);
    if (argc < 2 || display == nullptr) {
        std::cerr << "bench_first_picture: needs a program, and a display\n";
        return 2;
    }
    // The windows of a program that has just ended may still be going.
    while (ColorsOnScreen(display) >= kColorsOfAPicture) usleep(kBetweenLooks);
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = Start(argv + 1);
    Milliseconds elapsed{0};
    while (ColorsOnScreen(display) < kColorsOfAPicture && elapsed < kLongestWait) {
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
