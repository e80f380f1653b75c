// The system's requests to end: SIGTERM, SIGINT and SIGHUP, and the end of the desktop session.
#pragma once

#include <functional>

#include <QSocketNotifier>

class QGuiApplication;

namespace quendrel {

/// While it lives, a request to end calls `onEnd` from within the event loop. There may be only one
/// EndSignals at a time.
class EndSignals {
public:
    EndSignals(QGuiApplication& application, std::function<void()> onEnd);
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

private:
    std::function<void()> onEnd_;
    QSocketNotifier notifier_;
};

}  // namespace quendrel
