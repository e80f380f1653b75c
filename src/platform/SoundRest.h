// The rest of the sound device: an open one wakes the processor forty times a second, also when
// nothing sounds.
#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace quendrel {

class Clock;
class SoundDevice;
class Timer;

/// Closes the device after ten seconds in which it was not in use and the player did nothing, and
/// opens it for what the player does next, so early that a press is heard at once. A device that is
/// lost, or was not there, is looked for in the same way.
class SoundRest {
public:
    SoundRest(Clock& clock, SoundDevice& device);
    ~SoundRest();
    SoundRest(const SoundRest&) = delete;
    SoundRest& operator=(const SoundRest&) = delete;

    /// Begins to open the device where it rests, and lets another ten seconds begin. Where it could
    /// not be opened, it is not tried again before they have passed. Called for everything that the
    /// player does in a window.
    void Wake();

    /// Wakes the device and waits until it is open, though no longer than a sound may be late.
    /// Returns whether it is open. Called before every sound and tune.
    bool IsAwake();

    /// Closes the device at once, until it is woken.
    void Close();

    /// Called within a second when the device has been opened, and every second while it is open.
    std::function<void()> onOpen = [] {};
    /// Called before the device is closed.
    std::function<void()> onClose = [] {};

private:
    void Tick();

    SoundDevice& device_;
    std::unique_ptr<Timer> second_;
    /// Until the device is closed; 0 while it rests.
    int secondsLeft_ = 0;
};

}  // namespace quendrel
