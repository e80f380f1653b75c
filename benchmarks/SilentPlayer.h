// A sound player without a device.
#pragma once

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

}  // namespace quendrel::bench
