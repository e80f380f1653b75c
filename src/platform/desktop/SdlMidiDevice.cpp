#include "platform/desktop/SdlMidiDevice.h"

#include <algorithm>
#include <utility>

#include <SDL_mixer.h>

#include "platform/Errors.h"
#include "platform/Files.h"
#include "platform/desktop/QuietLibraries.h"

namespace quendrel {

namespace {

/// Half the full volume of 128, so that the sound effects are heard over the music.
constexpr int kVolume = 64;

bool HasSound() { return Mix_QuerySpec(nullptr, nullptr, nullptr) != 0; }

}  // namespace

std::vector<std::string> SdlMidiDevice::UsualSoundFonts() {
    return {
        QUENDREL_SOUND_FONT,
        "/usr/share/sounds/sf2/default-GM.sf2",
        "/usr/share/sounds/sf2/FluidR3_GM.sf2",
        "/usr/share/sounds/sf3/default-GM.sf3",
    };
}

void SdlMidiDevice::Open() {
    // The mixer would wait at a pipe in the tune's place.
    if (tune_ != nullptr || !HasSound() || !FileExists(fileName_)) return;
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
    if (mode == MidiMode::kPaused) Mix_ResumeMusic();
    if (mode == MidiMode::kStopped && !begun_) begun_ = Mix_PlayMusic(tune_, 1) == 0;
}

void SdlMidiDevice::Pause() {
    if (Mode() == MidiMode::kPlaying) Mix_PauseMusic();
}

void SdlMidiDevice::Stop() {
    if (tune_ != nullptr) Mix_HaltMusic();
}

void SdlMidiDevice::LetGo() {
    if (tune_ == nullptr) return;
    Mix_HaltMusic();
    Mix_FreeMusic(std::exchange(tune_, nullptr));
}

MidiMode SdlMidiDevice::Mode() const {
    if (tune_ == nullptr) return MidiMode::kNotOpen;
    if (Mix_PlayingMusic() == 0) return MidiMode::kStopped;
    return Mix_PausedMusic() != 0 ? MidiMode::kPaused : MidiMode::kPlaying;
}

}  // namespace quendrel
