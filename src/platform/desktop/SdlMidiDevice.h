// The MIDI device on SDL's mixer and its synthesiser.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/MidiDevice.h"

// SDL_mixer's type of an open tune.
struct _Mix_Music;  // NOLINT(bugprone-reserved-identifier)

namespace quendrel {

/// Sounds through the device that the sound player opens, which must outlive this one; as long as
/// there is none, no tune can be opened.
class SdlMidiDevice : public MidiDevice {
public:
    /// Plays with the first of the sound fonts that is there; without one no tune can be opened.
    explicit SdlMidiDevice(std::vector<std::string> soundFonts = UsualSoundFonts())
        : soundFonts_(std::move(soundFonts)) {}
    ~SdlMidiDevice() override { LetGo(); }
    SdlMidiDevice(const SdlMidiDevice&) = delete;
    SdlMidiDevice& operator=(const SdlMidiDevice&) = delete;

    void SetFileName(const std::string& path) override { fileName_ = path; }
    void Open() override;
    void Play() override;
    void Pause() override;
    void Stop() override;
    void Close() override { LetGo(); }
    MidiMode Mode() const override;

    /// Where Debian keeps sound fonts: the one that the tunes are written for first, and last the
    /// compressed ones, with which the game stands still for seconds before each tune.
    static std::vector<std::string> UsualSoundFonts();

private:
    void LetGo();
    void SayThatThereIsNoSoundFont();

    std::vector<std::string> soundFonts_;
    bool saidThatThereIsNoSoundFont_ = false;
    std::string fileName_;
    _Mix_Music* tune_ = nullptr;
    /// The open tune has been played. It is not played twice: the mixer would not begin with its
    /// first note.
    bool begun_ = false;
};

}  // namespace quendrel
