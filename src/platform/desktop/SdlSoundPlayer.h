// The sound player on SDL's mixer.
#pragma once

#include <array>

#include "platform/SoundPlayer.h"

struct Mix_Chunk;

namespace quendrel {

class SdlSoundPlayer : public SoundPlayer {
public:
    SdlSoundPlayer() = default;
    ~SdlSoundPlayer() override;
    SdlSoundPlayer(const SdlSoundPlayer&) = delete;
    SdlSoundPlayer& operator=(const SdlSoundPlayer&) = delete;

    int Initialise() override;
    void Load(const std::string& path, int slot) override;
    void Play(int slot) override;
    void PlayLooping(int slot) override;
    void PlayAlone(int slot) override;

private:
    Mix_Chunk* Sound(int slot) const { return sounds_.at(static_cast<std::size_t>(slot)); }
    void EndLoop();

    std::array<Mix_Chunk*, 11> sounds_{};
    int loopingChannel_ = -1;
    bool open_ = false;
};

}  // namespace quendrel
