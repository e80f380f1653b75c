// The clock and event pump.
#include "platform/desktop/QtClock.h"

#include <QAbstractEventDispatcher>
#include <QTimer>

#include "platform/Doors.h"
#include "platform/Errors.h"

namespace quendrel {

std::int32_t QtClock::TickCount() {
    const auto elapsed = std::chrono::steady_clock::now() - start_;
    return static_cast<std::int32_t>(
        std::chrono::duration_cast<std::chrono::milliseconds>(elapsed).count());
}

void QtClock::PumpEvents(int atMostMs) {
    ThrowWhatIsPending();
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

void QtClock::ThrowWhatIsPending() {
    ThrowKept();
    if (endRequested_) throw ProgramEnded{};
}

}  // namespace quendrel
