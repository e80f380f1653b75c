#include "platform/desktop/EndSignals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <system_error>

#include <QEvent>
#include <QGuiApplication>
#include <fcntl.h>
#include <unistd.h>

#include "platform/Doors.h"

namespace quendrel {

namespace {

constexpr std::array<int, 3> kEndingSignals{SIGTERM, SIGINT, SIGHUP};

/// A signal handler may call only a few functions, so it writes into a pipe that the event loop
/// reads.
std::array<int, 2> signalPipe{-1, -1};

void OnSignal(int /*number*/) {
    const int errorOfWhatIsInterrupted = errno;
    const char anything = 1;
    [[maybe_unused]] const ssize_t written = ::write(signalPipe[1], &anything, 1);
    errno = errorOfWhatIsInterrupted;
}

volatile std::sig_atomic_t exitCode = 0;

void EndNow(int /*number*/) { ::_exit(exitCode); }

/// What the end of the display calls, or null. The toolkit answers that by `exit`.
const std::function<void()>* onExit = nullptr;

void CallOnExit() {
    if (onExit != nullptr) AtDoor(*onExit);
}

/// A signal that was ignored when the program started, as under `nohup`, stays ignored. A call that
/// a signal interrupts goes on.
void Handle(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int number : kEndingSignals) {
        struct sigaction before {};
        sigaction(number, nullptr, &before);
        if (before.sa_handler != SIG_IGN) sigaction(number, &action, nullptr);
    }
}

int OpenPipe() {
    if (::pipe2(signalPipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        throw std::system_error(errno, std::generic_category(), "the pipe for signals");
    }
    return signalPipe[0];
}

}  // namespace

EndSignals::EndSignals(QGuiApplication& application, std::function<void()> onEnd)
    : onEnd_(std::move(onEnd)), notifier_(OpenPipe(), QSocketNotifier::Read) {
    QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this] {
        notifier_.setEnabled(false);
        AtDoor(onEnd_);
    });
    QObject::connect(
        &application, &QGuiApplication::commitDataRequest, &notifier_,
        [this](QSessionManager&) { AtDoor(onEnd_); }, Qt::DirectConnection);
    application.installEventFilter(this);
    Handle(OnSignal);
    static const int registered = std::atexit(CallOnExit);
    if (registered == 0) onExit = &onEnd_;
}

EndSignals::~EndSignals() {
    onExit = nullptr;
    if (!nothingIsLeft_) Handle(SIG_DFL);
    notifier_.setEnabled(false);
    for (const int end : signalPipe) ::close(end);
}

/// The toolkit takes the end of the session, where nobody has asked to save, for the wish to close
/// every window.
bool EndSignals::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Quit) return QObject::eventFilter(watched, event);
    AtDoor(onEnd_);
    return true;
}

void EndSignals::NothingIsLeft(int code) {
    nothingIsLeft_ = true;
    exitCode = code;
    Handle(EndNow);
}

}  // namespace quendrel
