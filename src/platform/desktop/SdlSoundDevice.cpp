#include "platform/desktop/SdlSoundDevice.h"

#include <exception>

#include <SDL.h>
#include <SDL_mixer.h>

#include "platform/desktop/QuietLibraries.h"

namespace quendrel {

namespace {

/// Samples a buffer: 23 ms, so that a click is heard with the press, and a busy machine keeps up.
constexpr int kBufferSamples = 1024;
/// How many sounds may sound at once.
constexpr int kVoices = 16;
constexpr int kAnyChannel = -1;

/// Looks for the machine's sound system each time, since that may have been begun anew. No device
/// may have other samples than we give, so that the loaded sounds are right for every one.
bool OpenMixer(bool isOpen) {
    if (isOpen) return true;
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return false;
    constexpr int kAllowedChanges = 0;
    if (Mix_OpenAudioDevice(kSamplesPerSecond, AUDIO_S16SYS, kStereo, kBufferSamples, nullptr,
                            kAllowedChanges) != 0) {
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
        return false;
    }
    Mix_AllocateChannels(kVoices);
    return true;
}

bool CloseMixer(bool isOpen) {
    if (isOpen) {
        Mix_CloseAudio();
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
    }
    return false;
}

}  // namespace

SdlSoundDevice::SdlSoundDevice() {
    SilenceSoundLibrary();
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_APP_NAME, "Quendrel");
}

/// Each waits for the one before it, and then forgets it. Where the system has no thread or no
/// memory left, the device stays as it was.
void SdlSoundDevice::DoNext(bool (*deed)(bool isOpen)) {
    try {
        last_ = std::async(std::launch::async, [before = last_, deed]() mutable {
                    const bool wasOpen = before.valid() && before.get();
                    before = {};
                    const bool isOpen = deed(wasOpen);
                    SDL_TLSCleanup();  // what SDL keeps for this thread, which it does not see end
                    return isOpen;
                }).share();
    } catch (const std::exception&) {
        return;
    }
}

void SdlSoundDevice::Open() { DoNext(OpenMixer); }

/// From here on no sound is read any more.
void SdlSoundDevice::Close() {
    if (IsOpen(std::chrono::milliseconds(0))) Mix_HaltChannel(kAnyChannel);
    DoNext(CloseMixer);
}

bool SdlSoundDevice::IsOpen(std::chrono::milliseconds atMost) const {
    return last_.valid() && last_.wait_for(atMost) == std::future_status::ready && last_.get();
}

/// SDL says so in its queue of events, which nobody else reads.
bool SdlSoundDevice::IsLost() {
    SDL_Event event;
    while (SDL_PeepEvents(&event, 1, SDL_GETEVENT, SDL_AUDIODEVICEREMOVED,
                          SDL_AUDIODEVICEREMOVED) == 1) {
        const bool wasOpen = event.adevice.which != 0;
        if (wasOpen) return true;
    }
    return false;
}

bool SdlSoundDevice::IsInUse() const {
    return Mix_Playing(kAnyChannel) != 0 || Mix_PlayingMusic() != 0;
}

}  // namespace quendrel
