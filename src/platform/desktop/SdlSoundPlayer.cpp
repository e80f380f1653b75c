#include "platform/desktop/SdlSoundPlayer.h"

#include <utility>
#include <vector>

#include <SDL.h>
#include <SDL_mixer.h>

#include "platform/Errors.h"
#include "platform/Files.h"
#include "platform/SoundRest.h"
#include "platform/desktop/SdlSoundDevice.h"

namespace quendrel {

namespace {

constexpr int kNoChannel = -1;
constexpr int kOnce = 0;
constexpr int kForEver = -1;

using Samples = std::vector<Uint8>;

/// The samples of a wave file, as the device is given them; none where it is no wave file. The
/// mixer would do the same, but only while a device is open.
Samples Decode(const std::string& bytes) {
    SDL_RWops* const source = SDL_RWFromConstMem(bytes.data(), static_cast<int>(bytes.size()));
    constexpr int kCloseSource = 1;
    SDL_AudioSpec kind{};
    Uint8* read = nullptr;
    Uint32 size = 0;
    if (SDL_LoadWAV_RW(source, kCloseSource, &kind, &read, &size) == nullptr) return {};
    Samples samples(read, read + size);
    SDL_FreeWAV(read);

    SDL_AudioCVT conversion{};
    if (SDL_BuildAudioCVT(&conversion, kind.format, kind.channels, kind.freq, AUDIO_S16SYS, kStereo,
                          kSamplesPerSecond) < 0) {
        return {};
    }
    samples.resize(size * static_cast<std::size_t>(conversion.len_mult));
    conversion.len = static_cast<int>(size);
    conversion.buf = samples.data();
    SDL_ConvertAudio(&conversion);
    samples.resize(static_cast<std::size_t>(conversion.len_cvt));
    return samples;
}

}  // namespace

struct SdlSoundPlayer::Sound {
    explicit Sound(Samples decoded)
        : samples(std::move(decoded)),
          chunk{0, samples.data(), static_cast<Uint32>(samples.size()), MIX_MAX_VOLUME} {}

    Samples samples;
    Mix_Chunk chunk;
};

SdlSoundPlayer::SdlSoundPlayer(SoundRest& rest) : rest_(rest) {}

/// What sounds is ended before its samples go.
SdlSoundPlayer::~SdlSoundPlayer() { rest_.Close(); }

/// Always ready, since a device may come later.
int SdlSoundPlayer::Initialise() {
    rest_.Wake();
    return 0;
}

void SdlSoundPlayer::Load(const std::string& path, int slot) {
    Samples samples = Decode(ReadFile(path));
    if (samples.empty()) throw FileError(path, SDL_GetError());
    sounds_.at(static_cast<std::size_t>(slot)) = std::make_unique<Sound>(std::move(samples));
}

void SdlSoundPlayer::Play(int slot) {
    EndLoop();
    Begin(slot, kOnce);
}

void SdlSoundPlayer::PlayLooping(int slot) {
    EndLoop();
    loopingChannel_ = Begin(slot, kForEver);
}

void SdlSoundPlayer::PlayAlone(int slot) {
    constexpr int kAllChannels = -1;
    if (rest_.IsAwake()) Mix_HaltChannel(kAllChannels);
    loopingChannel_ = kNoChannel;
    Begin(slot, kOnce);
}

/// Returns the channel; none where there is no device.
int SdlSoundPlayer::Begin(int slot, int repeats) {
    Sound* const sound = sounds_.at(static_cast<std::size_t>(slot)).get();
    if (sound == nullptr || !rest_.IsAwake()) return kNoChannel;
    constexpr int kFreeChannel = -1;
    return Mix_PlayChannel(kFreeChannel, &sound->chunk, repeats);
}

void SdlSoundPlayer::EndLoop() {
    const int channel = std::exchange(loopingChannel_, kNoChannel);
    if (channel != kNoChannel && rest_.IsAwake()) Mix_HaltChannel(channel);
}

}  // namespace quendrel
