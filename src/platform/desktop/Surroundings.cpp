#include "platform/desktop/Surroundings.h"

#include <algorithm>
#include <csignal>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace quendrel {

namespace {

/// The system gives the lowest number that is free.
void OpenStandardStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        while (::fcntl(stream, F_GETFD) < 0 && ::open("/dev/null", O_RDWR) >= 0) continue;
    }
}

/// A handler, unlike SIG_IGN, is not handed on to the programs that the game starts.
void DoNothing(int /*number*/) {}

}  // namespace

void PrepareSurroundings() {
    OpenStandardStreams();
    struct sigaction action {};
    action.sa_handler = DoNothing;
    action.sa_flags = SA_RESTART;
    for (const int number : {SIGPIPE, SIGXFSZ}) sigaction(number, &action, nullptr);
}

int FilesAtOnceWhereTooFew() {
    constexpr rlim_t kEnough = 64;
    rlimit limit{};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur >= kEnough) return 0;
    limit.rlim_cur = std::min(kEnough, limit.rlim_max);
    ::setrlimit(RLIMIT_NOFILE, &limit);
    return limit.rlim_cur < kEnough ? static_cast<int>(limit.rlim_cur) : 0;
}

}  // namespace quendrel
