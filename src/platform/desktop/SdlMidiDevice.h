// The MIDI device on SDL's mixer and its synthesiser.
#pragma once

#include <string>
#include <vector>

#include "platform/MidiDevice.h"

// SDL_mixer's type of an open tune.
struct _Mix_Music;  // NOLINT(bugprone-reserved-identifier)

namespace quendrel {

class SoundRest;

class SdlMidiDevice : public MidiDevice {
public:
    /// Plays on the device that `rest` wakes, with the first of the sound fonts that is there;
    /// without one no tune can be opened.
    explicit SdlMidiDevice(SoundRest& rest,
                           std::vector<std::string> soundFonts = UsualSoundFonts());
    ~SdlMidiDevice() override;
    SdlMidiDevice(const SdlMidiDevice&) = delete;
    SdlMidiDevice& operator=(const SdlMidiDevice&) = delete;

    void SetFileName(const std::string& path) override { fileName_ = path; }
    void Open() override;
    void Play() override;
    void Pause() override;
    void Stop() override;
    void Close() override;
    MidiMode Mode() const override;

    /// Where Debian keeps sound fonts: the one that the tunes are written for first, and last the
    /// compressed ones, with which the game stands still for seconds before each tune.
    static std::vector<std::string> UsualSoundFonts();

private:
    void LetGo();
    void LoseDevice();
    void MeetDevice();
    void SayThatThereIsNoSoundFont();

    SoundRest& rest_;
    std::vector<std::string> soundFonts_;
    bool saidThatThereIsNoSoundFont_ = false;
    std::string fileName_;
    _Mix_Music* tune_ = nullptr;
    /// The open tune has been played. It is not played twice: the mixer would not begin with its
    /// first note.
    bool begun_ = false;
    /// The tune could not be opened, since there was no device.
    bool lacksDevice_ = false;
    /// There is no device. The tune plays unheard, and begins anew once there is one.
    bool waits_ = false;
};

}  // namespace quendrel
