// A clock whose time moves only when somebody waits: timers and scripted actions happen at the
// exact tick, the same every time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

#include "Log.h"
#include "platform/Clock.h"
#include "platform/Errors.h"

namespace quendrel::test {

class VirtualClock : public Clock {
public:
    explicit VirtualClock(Log& log, std::int32_t start = 0) : log_(log), now_(start) {}

    /// Does `action` when `milliseconds` from now have gone by in pumping waits.
    void In(int milliseconds, std::function<void()> action) {
        agenda_.emplace(now_ + milliseconds, [this, action = std::move(action)] {
            quiet_ = 0;
            action();
        });
    }

    std::int64_t Now() const { return now_; }

    /// How many actions and ticks of timers are still to come.
    std::size_t Pending() const { return agenda_.size(); }

    /// More than three readings with nothing in between are a loop that waits without handling
    /// events, so each further one moves the time on by a millisecond.
    std::int32_t TickCount() override {
        if (log_.Revision() != seen_) readings_ = 0;
        if (++readings_ > 3) {
            ++now_;
            log_.StandStill(1);
        }
        seen_ = log_.Revision();
        return static_cast<std::int32_t>(now_);
    }

    /// Goes to the next thing that is due, at most `atMostMs` from now, and lets it happen.
    void PumpEvents(int atMostMs) override {
        if (endRequested_) throw ProgramEnded{};
        onWait();
        if (endRequested_) throw ProgramEnded{};
        const std::int64_t horizon = now_ + atMostMs;
        if (agenda_.empty() || agenda_.begin()->first > horizon) {
            MoveTo(horizon);
        } else {
            auto next = agenda_.extract(agenda_.begin());
            MoveTo(next.key());
            next.mapped()();
        }
        readings_ = 0;
        if (endRequested_) throw ProgramEnded{};
    }

    void RequestEnd() override { endRequested_ = true; }

    /// Whether a timer is on, of those that there are in the order in which they were made.
    bool IsOn(std::size_t timer) const { return timers_.at(timer)->IsOn(); }

    /// Happens when somebody begins to wait.
    std::function<void()> onWait = [] {};

    std::unique_ptr<Timer> MakeTimer(int intervalMs, std::function<void()> onTick) override {
        return std::make_unique<VirtualTimer>(*this, intervalMs, std::move(onTick));
    }

private:
    /// An hour in which nothing happens but the ticks of timers.
    static constexpr std::int64_t kHangs = 3'600'000;

    class VirtualTimer : public Timer {
    public:
        VirtualTimer(VirtualClock& clock, int intervalMs, std::function<void()> onTick)
            : clock_(clock), interval_(intervalMs), onTick_(std::move(onTick)) {
            clock_.timers_.push_back(this);
        }
        ~VirtualTimer() override { std::erase(clock_.timers_, this); }
        VirtualTimer(const VirtualTimer&) = delete;
        VirtualTimer& operator=(const VirtualTimer&) = delete;

        void SwitchOn() override {
            on_ = true;
            Schedule(++run_);
        }
        void SwitchOff() override { on_ = false; }
        bool IsOn() const override { return on_; }

    private:
        void Schedule(int run) {
            clock_.agenda_.emplace(clock_.now_ + interval_, [this, run] {
                if (!on_ || run != run_) return;
                Schedule(run);
                onTick_();
            });
        }

        VirtualClock& clock_;
        int interval_;
        std::function<void()> onTick_;
        bool on_ = false;
        int run_ = 0;
    };

    void MoveTo(std::int64_t time) {
        if (time <= now_) return;
        log_.Wait(static_cast<int>(time - now_));
        quiet_ += time - now_;
        now_ = time;
        if (quiet_ > kHangs) throw std::runtime_error("this waits for ever");
    }

    Log& log_;
    std::int64_t now_;
    std::multimap<std::int64_t, std::function<void()>> agenda_;
    std::vector<const Timer*> timers_;
    std::int64_t quiet_ = 0;
    int readings_ = 0;
    int seen_ = 0;
    bool endRequested_ = false;
};

}  // namespace quendrel::test
