// The sound player on SDL's mixer.
#pragma once

#include <array>
#include <memory>

#include "platform/SoundPlayer.h"

namespace quendrel {

class SoundRest;

class SdlSoundPlayer : public SoundPlayer {
public:
    /// Plays on the device that `rest` wakes.
    explicit SdlSoundPlayer(SoundRest& rest);
    ~SdlSoundPlayer() override;
    SdlSoundPlayer(const SdlSoundPlayer&) = delete;
    SdlSoundPlayer& operator=(const SdlSoundPlayer&) = delete;

    int Initialise() override;
    void Load(const std::string& path, int slot) override;
    void Play(int slot) override;
    void PlayLooping(int slot) override;
    void PlayAlone(int slot) override;

private:
    struct Sound;

    int Begin(int slot, int repeats);
    void EndLoop();

    SoundRest& rest_;
    std::array<std::unique_ptr<Sound>, 11> sounds_;
    int loopingChannel_ = -1;
};

}  // namespace quendrel
