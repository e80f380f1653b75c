// The system's requests to end, as they reach the game.
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <thread>

#include <QApplication>
#include <QWidget>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/desktop/EndSignals.h"

namespace quendrel::test {
namespace {

class EndSignalsTest : public ::testing::Test {
protected:
    void TearDown() override {
        for (const int number : {SIGTERM, SIGINT, SIGHUP}) Answer(number, SIG_DFL);
    }

    using Handler = void (*)(int);

    /// What answers the signal from now on; returns what has answered it until now.
    static Handler Answer(int number, Handler handler) { return std::signal(number, handler); }

    static void Send(int number) { ASSERT_EQ(std::raise(number), 0); }

    int RequestsAfter(int number) {
        EndSignals endSignals(*qApp, [this] { ++requests; });
        Send(number);
        QApplication::processEvents();
        return requests;
    }

    int requests = 0;
};

class EndingSignal : public EndSignalsTest, public ::testing::WithParamInterface<int> {};

TEST_P(EndingSignal, IsARequestToEnd) { EXPECT_EQ(RequestsAfter(GetParam()), 1); }

TEST_P(EndingSignal, IsIgnoredWhereTheGameWasStartedToIgnoreIt) {
    Answer(GetParam(), SIG_IGN);
    EXPECT_EQ(RequestsAfter(GetParam()), 0);
    EXPECT_EQ(Answer(GetParam(), SIG_DFL), SIG_IGN);
}

TEST_P(EndingSignal, LeavesTheErrorNumberOfWhatItInterrupts) {
    const EndSignals endSignals(*qApp, [] {});
    // Far more signals than fit into the pipe while nobody reads it.
    for (int i = 0; i < 100'000; ++i) {
        errno = 0;
        Send(GetParam());
        ASSERT_EQ(errno, 0) << i;
    }
}

INSTANTIATE_TEST_SUITE_P(Every, EndingSignal, ::testing::Values(SIGTERM, SIGINT, SIGHUP),
                         [](const auto& tested) -> std::string {
                             switch (tested.param) {
                                 case SIGTERM:
                                     return "SIGTERM";
                                 case SIGINT:
                                     return "SIGINT";
                                 default:
                                     return "SIGHUP";
                             }
                         });

TEST_P(EndingSignal, EndsAProgramThatHasNothingLeftToDoAtOnceWithItsCode) {
    EXPECT_EXIT(
        {
            {
                EndSignals endSignals(*qApp, [] {});
                endSignals.NothingIsLeft(3);
            }
            Send(GetParam());
            _exit(9);
        },
        ::testing::ExitedWithCode(3), "");
}

TEST_P(EndingSignal, EndsAProgramThatFailsAsItEndsAnyOther) {
    EXPECT_EXIT(
        {
            {
                const EndSignals endSignals(*qApp, [] {});
            }
            Send(GetParam());
            _exit(9);
        },
        ::testing::KilledBySignal(GetParam()), "");
}

TEST_P(EndingSignal, LetsAReadThatItInterruptsGoOn) {
    const EndSignals endSignals(*qApp, [] {});
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    std::thread other([&, reader = pthread_self()] {
        using namespace std::chrono_literals;
        std::this_thread::sleep_for(50ms);
        pthread_kill(reader, GetParam());
        std::this_thread::sleep_for(50ms);
        EXPECT_EQ(write(ends[1], "x", 1), 1);
    });
    char got = 0;
    EXPECT_EQ(read(ends[0], &got, 1), 1);
    other.join();
    for (const int end : ends) close(end);
}

/// The toolkit calls `exit` where the display has gone.
TEST_F(EndSignalsTest, TheEndOfTheDisplayIsARequestToEndOnlyWhileTheyLive) {
    constexpr int requested = 7;
    const auto request = [] { std::_Exit(requested); };
    EXPECT_EXIT(
        {
            const EndSignals endSignals(*qApp, request);
            std::exit(1);
        },
        ::testing::ExitedWithCode(requested), "");
    EXPECT_EXIT(
        {
            { const EndSignals endSignals(*qApp, request); }
            std::exit(1);
        },
        ::testing::ExitedWithCode(1), "");
}

/// The toolkit sends it where the desktop's session ends.
TEST_F(EndSignalsTest, TheEndOfTheSessionIsARequestToEndAndClosesNoWindow) {
    QWidget window;
    window.show();
    const EndSignals endSignals(*qApp, [this] { ++requests; });
    QEvent end(QEvent::Quit);
    QApplication::sendEvent(qApp, &end);
    EXPECT_EQ(requests, 1);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(EndSignalsTest, NoProgramThatTheGameStartsHasTheirPipe) {
    const auto inherited = [] {
        int count = 0;
        for (int number = 0; number < 256; ++number) {
            const int flags = fcntl(number, F_GETFD);
            if (flags >= 0 && (flags & FD_CLOEXEC) == 0) ++count;
        }
        return count;
    };
    const int before = inherited();
    const EndSignals endSignals(*qApp, [] {});
    EXPECT_EQ(inherited(), before);
}

}  // namespace
}  // namespace quendrel::test
