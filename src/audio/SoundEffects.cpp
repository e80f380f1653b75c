#include "audio/SoundEffects.h"

#include "platform/Files.h"
#include "platform/SoundPlayer.h"

namespace quendrel {

void SoundEffects::Load() {
    global_.SoundAvailable = player_.Initialise() < 1;
    if (!global_.SoundAvailable) return;

    int slot = 0;
    for (const std::string_view file : kSoundFiles) {
        player_.Load(MachinePath(global_.SoundFolder + std::string(file)), slot);
        ++slot;
    }
}

void SoundEffects::PlaySoundFx(SoundSlot slot, SoundMode mode) {
    if (!global_.SoundAvailable || !global_.Settings.SoundFx) return;
    const int number = static_cast<int>(slot);
    switch (mode) {
        case SoundMode::kLooping:
            player_.PlayLooping(number);
            break;
        case SoundMode::kAlone:
            player_.PlayAlone(number);
            break;
        default:
            player_.Play(number);
            break;
    }
}

}  // namespace quendrel
