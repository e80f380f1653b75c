#include "platform/SoundRest.h"

#include "platform/Clock.h"
#include "platform/SoundDevice.h"

namespace quendrel {

namespace {

using namespace std::chrono_literals;

constexpr int kSecondsOfSilence = 10;
/// A device is open in a few milliseconds. A window is not held up for a slower one.
constexpr auto kLatest = 50ms;

}  // namespace

SoundRest::SoundRest(Clock& clock, SoundDevice& device)
    : device_(device), second_(clock.MakeTimer(1000, [this] { Tick(); })) {}

SoundRest::~SoundRest() = default;

void SoundRest::Wake() {
    if (secondsLeft_ == 0) {
        device_.Open();
        second_->SwitchOn();
    } else if (!device_.IsOpen(0ms)) {
        return;
    }
    secondsLeft_ = kSecondsOfSilence;
}

bool SoundRest::IsAwake() {
    Wake();
    return device_.IsOpen(kLatest);
}

void SoundRest::Tick() {
    const bool isOpen = device_.IsOpen(0ms);
    if (isOpen && device_.IsLost()) {
        Close();
        return;
    }
    if (isOpen) onOpen();
    if (isOpen && device_.IsInUse()) {
        secondsLeft_ = kSecondsOfSilence;
    } else if (--secondsLeft_ == 0) {
        Close();
    }
}

void SoundRest::Close() {
    onClose();
    second_->SwitchOff();
    secondsLeft_ = 0;
    device_.Close();
}

}  // namespace quendrel
