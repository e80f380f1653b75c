// The eleven numbered sound effects.
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

void SoundEffects::PlaySoundFx(std::uint8_t slot, std::uint8_t mode) {
    if (!global_.SoundAvailable || !global_.Settings.SoundFx) return;
    switch (mode) {
        case kLooping:
            player_.PlayLooping(slot);
            break;
        case kAlone:
            player_.PlayAlone(slot);
            break;
        default:
            player_.Play(slot);
            break;
    }
}

}  // namespace quendrel
