// Plays one MIDI tune at a time.
#pragma once

#include <string>

namespace quendrel {

/// What the device is doing.
enum class MidiMode { kNotOpen, kStopped, kPlaying, kPaused };

/// A command that makes no sense at the moment does nothing. Nothing throws: a tune that cannot be
/// played is not open, or is over at once. Where there is no sound device, a tune plays unheard,
/// and begins anew once there is one.
class MidiDevice {
public:
    virtual ~MidiDevice() = default;

    /// The tune that Open opens: a path of the machine.
    virtual void SetFileName(const std::string& path) = 0;

    /// Opens the tune where none is open.
    virtual void Open() = 0;

    /// Plays the open tune from its first note, or from where it was paused. One that has ended or
    /// was stopped is not played again before it has been closed and opened.
    virtual void Play() = 0;

    /// Holds a playing tune where it is.
    virtual void Pause() = 0;

    /// Ends the tune; it stays open.
    virtual void Stop() = 0;

    /// Ends the tune, if there is one, and lets go of it.
    virtual void Close() = 0;

    /// kStopped when the open tune has not begun or has sounded to its end.
    virtual MidiMode Mode() const = 0;
};

}  // namespace quendrel
