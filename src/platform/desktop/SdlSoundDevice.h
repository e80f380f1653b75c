// The sound device on SDL's mixer.
#pragma once

#include <future>

#include "platform/SoundDevice.h"

namespace quendrel {

/// What the mixer of every device is given: samples of 16 bits in stereo.
constexpr int kSamplesPerSecond = 44100;
constexpr int kStereo = 2;

class SdlSoundDevice : public SoundDevice {
public:
    SdlSoundDevice();
    ~SdlSoundDevice() override { SdlSoundDevice::Close(); }
    SdlSoundDevice(const SdlSoundDevice&) = delete;
    SdlSoundDevice& operator=(const SdlSoundDevice&) = delete;

    void Open() override;
    void Close() override;
    bool IsOpen(std::chrono::milliseconds atMost) const override;
    bool IsLost() override;
    bool IsInUse() const override;

private:
    void DoNext(bool (*deed)(bool isOpen));

    /// The last of what was begun, each on a thread of its own: a device that is closed first
    /// plays what it still holds, and one that sleeps takes its time to open. Its answer is
    /// whether the device is open. The end of the program waits for it.
    std::shared_future<bool> last_;
};

}  // namespace quendrel
