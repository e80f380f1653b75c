#include "platform/desktop/QtClock.h"

#include <utility>

#include <QAbstractEventDispatcher>
#include <QTimer>

#include "platform/Doors.h"
#include "platform/Errors.h"

namespace quendrel {

namespace {

class QtTimer : public Timer {
public:
    QtTimer(int intervalMs, std::function<void()> onTick) {
        timer_.setInterval(intervalMs);
        timer_.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer_, &QTimer::timeout,
                         [onTick = std::move(onTick)] { AtDoor(onTick); });
    }

    void SwitchOn() override { timer_.start(); }
    void SwitchOff() override { timer_.stop(); }
    bool IsOn() const override { return timer_.isActive(); }

private:
    QTimer timer_;
};

}  // namespace

std::int32_t QtClock::TickCount() {
    const auto elapsed = std::chrono::steady_clock::now() - start_;
    return static_cast<std::int32_t>(
        std::chrono::duration_cast<std::chrono::milliseconds>(elapsed).count());
}

void QtClock::PumpEvents(int atMostMs) {
    ThrowWhatIsPending();
    // First without waiting: on Wayland the waiting call alone keeps a screen reader waiting for
    // seconds while the board is idle.
    QAbstractEventDispatcher* const dispatcher = QAbstractEventDispatcher::instance();
    if (!dispatcher->processEvents(QEventLoop::AllEvents) && atMostMs > 0) {
        QTimer alarm;
        alarm.setSingleShot(true);
        alarm.setTimerType(Qt::PreciseTimer);
        alarm.start(atMostMs);
        dispatcher->processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
    ThrowWhatIsPending();
}

std::unique_ptr<Timer> QtClock::MakeTimer(int intervalMs, std::function<void()> onTick) {
    return std::make_unique<QtTimer>(intervalMs, std::move(onTick));
}

void QtClock::ThrowWhatIsPending() const {
    ThrowKept();
    if (endRequested_) throw ProgramEnded{};
}

}  // namespace quendrel
