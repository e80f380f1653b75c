#include "platform/desktop/SdlSoundPlayer.h"

#include <utility>

#include <SDL.h>
#include <SDL_mixer.h>

#include "platform/Errors.h"
#include "platform/Files.h"
#include "platform/desktop/QuietLibraries.h"

namespace quendrel {

namespace {

constexpr int kSamplesPerSecond = 44100;
constexpr int kStereo = 2;
/// Samples a buffer: 23 ms, so that a click is heard with the press, and a busy machine keeps up.
constexpr int kBufferSamples = 1024;
/// How many sounds may sound at once.
constexpr int kVoices = 16;
constexpr int kAnyChannel = -1;

}  // namespace

SdlSoundPlayer::~SdlSoundPlayer() {
    if (!open_) return;
    Mix_HaltChannel(kAnyChannel);
    for (Mix_Chunk* sound : sounds_) Mix_FreeChunk(sound);
    Mix_CloseAudio();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

int SdlSoundPlayer::Initialise() {
    SilenceSoundLibrary();
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_APP_NAME, "Quendrel");
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return 1;
    if (Mix_OpenAudio(kSamplesPerSecond, AUDIO_S16SYS, kStereo, kBufferSamples) != 0) {
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
        return 1;
    }
    Mix_AllocateChannels(kVoices);
    open_ = true;
    return 0;
}

void SdlSoundPlayer::Load(const std::string& path, int slot) {
    const std::string bytes = ReadFile(path);
    SDL_RWops* const source = SDL_RWFromConstMem(bytes.data(), static_cast<int>(bytes.size()));
    constexpr int kCloseSource = 1;
    Mix_Chunk* const sound = Mix_LoadWAV_RW(source, kCloseSource);
    if (sound == nullptr) throw FileError(path, Mix_GetError());
    Mix_FreeChunk(std::exchange(sounds_.at(static_cast<std::size_t>(slot)), sound));
}

void SdlSoundPlayer::Play(int slot) {
    EndLoop();
    Mix_PlayChannel(kAnyChannel, Sound(slot), 0);
}

void SdlSoundPlayer::PlayLooping(int slot) {
    EndLoop();
    loopingChannel_ = Mix_PlayChannel(kAnyChannel, Sound(slot), -1);
}

void SdlSoundPlayer::PlayAlone(int slot) {
    Mix_HaltChannel(kAnyChannel);
    loopingChannel_ = -1;
    Mix_PlayChannel(kAnyChannel, Sound(slot), 0);
}

void SdlSoundPlayer::EndLoop() {
    if (loopingChannel_ >= 0) Mix_HaltChannel(std::exchange(loopingChannel_, -1));
}

}  // namespace quendrel
