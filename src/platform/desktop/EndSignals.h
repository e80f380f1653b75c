// The system's requests to end: SIGTERM, SIGINT and SIGHUP, the end of the desktop session, and the
// end of the display.
#pragma once

#include <functional>

#include <QObject>
#include <QSocketNotifier>

class QGuiApplication;

namespace quendrel {

/// While it lives, a request to end calls `onEnd` from within the event loop. So does the end of
/// the display, after which the toolkit ends the program at once. There may be only one EndSignals
/// at a time.
class EndSignals : public QObject {
public:
    EndSignals(QGuiApplication& application, std::function<void()> onEnd);
    ~EndSignals() override;
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

    /// Everything is done: from now on a signal ends the program at once, with this exit code.
    void NothingIsLeft(int code);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void()> onEnd_;
    QSocketNotifier notifier_;
    bool nothingIsLeft_ = false;
};

}  // namespace quendrel
