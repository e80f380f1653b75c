#include "platform/desktop/SdlMidiDevice.h"

#include <algorithm>
#include <utility>

#include <SDL_mixer.h>

#include "platform/Errors.h"
#include "platform/Files.h"
#include "platform/SoundRest.h"
#include "platform/desktop/QuietLibraries.h"

namespace quendrel {

namespace {

/// Half the full volume of 128, so that the sound effects are heard over the music.
constexpr int kVolume = 64;

}  // namespace

SdlMidiDevice::SdlMidiDevice(SoundRest& rest, std::vector<std::string> soundFonts)
    : rest_(rest), soundFonts_(std::move(soundFonts)) {
    rest_.onOpen = [this] { MeetDevice(); };
    rest_.onClose = [this] { LoseDevice(); };
}

SdlMidiDevice::~SdlMidiDevice() {
    rest_.onOpen = rest_.onClose = [] {};
    LetGo();
}

std::vector<std::string> SdlMidiDevice::UsualSoundFonts() {
    return {
        QUENDREL_SOUND_FONT,
        "/usr/share/sounds/sf2/default-GM.sf2",
        "/usr/share/sounds/sf2/FluidR3_GM.sf2",
        "/usr/share/sounds/sf3/default-GM.sf3",
    };
}

void SdlMidiDevice::Open() {
    lacksDevice_ = false;
    // The mixer would wait at a pipe in the tune's place.
    if (tune_ != nullptr || !FileExists(fileName_)) return;
    lacksDevice_ = !rest_.IsAwake();
    if (lacksDevice_) return;
    const auto font = std::find_if(soundFonts_.begin(), soundFonts_.end(), FileExists);
    if (font == soundFonts_.end()) {
        SayThatThereIsNoSoundFont();
        return;
    }
    SilenceSynthesiser();
    Mix_SetSoundFonts(font->c_str());
    tune_ = Mix_LoadMUS(fileName_.c_str());
    Mix_VolumeMusic(kVolume);
    begun_ = false;
}

void SdlMidiDevice::SayThatThereIsNoSoundFont() {
    if (std::exchange(saidThatThereIsNoSoundFont_, true)) return;
    std::string places;
    for (const std::string& font : soundFonts_) places += (places.empty() ? "" : ", ") + font;
    ReportTrouble("no music: there is no sound font (looked for " + places + ")");
}

void SdlMidiDevice::Play() {
    const MidiMode mode = Mode();
    if (mode == MidiMode::kNotOpen) waits_ = lacksDevice_;
    if (mode == MidiMode::kPaused) Mix_ResumeMusic();
    if (mode == MidiMode::kStopped && !begun_) begun_ = Mix_PlayMusic(tune_, 1) == 0;
}

void SdlMidiDevice::Pause() {
    waits_ = false;
    if (Mode() == MidiMode::kPlaying) Mix_PauseMusic();
}

void SdlMidiDevice::Stop() {
    waits_ = false;
    if (tune_ != nullptr) Mix_HaltMusic();
}

void SdlMidiDevice::Close() {
    waits_ = lacksDevice_ = false;
    LetGo();
}

void SdlMidiDevice::LetGo() {
    if (tune_ == nullptr) return;
    Mix_HaltMusic();
    Mix_FreeMusic(std::exchange(tune_, nullptr));
}

/// The mixer forgets what it has decoded.
void SdlMidiDevice::LoseDevice() {
    waits_ = Mode() == MidiMode::kPlaying;
    LetGo();
}

void SdlMidiDevice::MeetDevice() {
    if (!std::exchange(waits_, false)) return;
    Open();
    Play();
}

MidiMode SdlMidiDevice::Mode() const {
    if (waits_) return MidiMode::kPlaying;
    if (tune_ == nullptr) return MidiMode::kNotOpen;
    if (Mix_PlayingMusic() == 0) return MidiMode::kStopped;
    return Mix_PausedMusic() != 0 ? MidiMode::kPaused : MidiMode::kPlaying;
}

}  // namespace quendrel
