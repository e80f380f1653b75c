// Sound and music without a device.
#pragma once

#include "platform/MidiDevice.h"
#include "platform/SoundPlayer.h"

namespace quendrel::bench {

class SilentPlayer : public SoundPlayer {
public:
    int Initialise() override { return 1; }
    void Load(const std::string& /*path*/, int /*slot*/) override {}
    void Play(int /*slot*/) override {}
    void PlayLooping(int /*slot*/) override {}
    void PlayAlone(int /*slot*/) override {}
};

class SilentMidiDevice : public MidiDevice {
public:
    void SetFileName(const std::string& /*path*/) override {}
    void Open() override {}
    void Play() override {}
    void Pause() override {}
    void Stop() override {}
    void Close() override {}
    MidiMode Mode() const override { return MidiMode::kNotOpen; }
};

}  // namespace quendrel::bench
