// The sound device of the machine, which whatever sounds needs open.
#pragma once

#include <chrono>

namespace quendrel {

/// Opens and closes beside the game, which goes on meanwhile; of several requests each is obeyed
/// when the one before it is done.
class SoundDevice {
public:
    virtual ~SoundDevice() = default;

    /// Begins to open it. Where there is none, that is done without success.
    virtual void Open() = 0;

    /// Begins to close it, and ends whatever sounds.
    virtual void Close() = 0;

    /// Whether it is open. What has begun is waited for, at most so long.
    virtual bool IsOpen(std::chrono::milliseconds atMost) const = 0;

    /// Whether the device, which must be open, is gone from the machine; it sounds no more, until
    /// it is opened anew.
    virtual bool IsLost() = 0;

    /// Whether a sound, or a tune, plays or is paused on the device, which must be open.
    virtual bool IsInUse() const = 0;
};

}  // namespace quendrel
