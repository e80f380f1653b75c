// Timers on the toolkit's event loop.
#include "platform/desktop/QtTimers.h"

#include <QTimer>

#include "platform/Doors.h"

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

std::unique_ptr<Timer> QtTimers::MakeTimer(int intervalMs, std::function<void()> onTick) {
    return std::make_unique<QtTimer>(intervalMs, std::move(onTick));
}

}  // namespace quendrel
