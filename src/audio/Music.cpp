#include "audio/Music.h"

#include <algorithm>

#include "audio/Playlist.h"
#include "platform/Clock.h"
#include "platform/MidiDevice.h"
#include "platform/Random.h"

namespace quendrel {

namespace {

constexpr int kCheckIntervalMs = 500;

}  // namespace

Music::Music(Global& global, MidiDevice& mmcMidi, Random& random, Clock& clock)
    : global_(global),
      mmcMidi_(mmcMidi),
      random_(random),
      tmrCheckMusic_(clock.MakeTimer(kCheckIntervalMs, [this] { MusicCommand("Check"); })) {}

Music::~Music() = default;

void Music::MusicCommand(std::string_view command) {
    if (!global_.SoundAvailable) return;
    random_.SeedFromClock();
    if (command == "Play") Play();
    if (command == "Check") Check();
    if (command == "Pause") Pause();
    if (command == "Stop") Stop();
}

void Music::Play() {
    if (global_.PlaylistUpper < 0) return;
    MusicStateRecord& state = global_.MusicState;
    state.Current = 0;
    if (global_.Settings.RndMusic && global_.PlaylistUpper >= 1) {
        state.Current = DrawTune();
        state.Played.assign(global_.Playlist.size(), 0);
        state.Played.front() = state.Current;
        state.PlayedCount = 0;
    }
    unheard_.clear();
    StartTune();
}

void Music::StartTune() {
    const auto current = static_cast<std::size_t>(global_.MusicState.Current);
    mmcMidi_.Close();
    mmcMidi_.SetFileName(TuneFile(global_, global_.Playlist.at(current)));
    mmcMidi_.Open();
    mmcMidi_.Play();
    heard_ = false;
    tmrCheckMusic_->SwitchOn();
    global_.PlayState = PlayStates::kPlaying;
    global_.MusicState.Paused = false;
}

/// A tune that cannot be opened is skipped. Once every tune of the playlist was over before it was
/// heard, the music stops; otherwise it would go through the list for ever. Music that was paused
/// between two tunes does not go on here.
void Music::Check() {
    if (global_.MusicState.Paused) return;
    const MidiMode mode = mmcMidi_.Mode();
    if (mode == MidiMode::kPlaying || mode == MidiMode::kPaused) {
        heard_ = true;
        unheard_.clear();
        return;
    }
    if (!heard_) unheard_.insert(global_.MusicState.Current);
    if (unheard_.size() >= global_.Playlist.size()) {
        Stop();
    } else {
        ChooseNext();
        StartTune();
    }
}

void Music::ChooseNext() {
    MusicStateRecord& state = global_.MusicState;
    const std::int16_t last = global_.PlaylistUpper;
    if (!global_.Settings.RndMusic) {
        const int next = state.Current < last ? state.Current + 1 : 0;
        state.Current = static_cast<std::int16_t>(next);
    } else if (last >= 1 && state.PlayedCount != last) {
        DrawUnplayed();
    } else if (last >= 1) {
        // A new cycle may begin with the tune that ended the old one.
        state.Current = DrawTune();
        state.PlayedCount = 0;
        state.Played.front() = state.Current;
    }
}

/// Draws until it finds a tune that was not played in this cycle.
void Music::DrawUnplayed() {
    MusicStateRecord& state = global_.MusicState;
    std::vector<bool> played(global_.Playlist.size());
    for (std::size_t i = 0; i <= static_cast<std::size_t>(state.PlayedCount); ++i) {
        played.at(static_cast<std::size_t>(state.Played.at(i))) = true;
    }
    do {
        state.Current = DrawTune();
    } while (played.at(static_cast<std::size_t>(state.Current)));
    ++state.PlayedCount;
    state.Played.at(static_cast<std::size_t>(state.PlayedCount)) = state.Current;
}

/// A random index of the playlist, each as likely as the others.
std::int16_t Music::DrawTune() {
    return static_cast<std::int16_t>(random_.Draw(global_.PlaylistUpper + 1) - 1);
}

void Music::Pause() {
    if (global_.MusicState.Paused) {
        if (global_.PlayState != PlayStates::kPaused) return;
        mmcMidi_.Open();
        mmcMidi_.Play();
        global_.PlayState = PlayStates::kPlaying;
        global_.MusicState.Paused = false;
    } else if (global_.PlayState == PlayStates::kPlaying) {
        mmcMidi_.Pause();
        global_.PlayState = PlayStates::kPaused;
        global_.MusicState.Paused = true;
    }
}

void Music::EndTune() {
    mmcMidi_.Stop();
    mmcMidi_.Close();
}

void Music::Stop() {
    EndTune();
    tmrCheckMusic_->SwitchOff();
    global_.PlayState = PlayStates::kStopped;
}

void Music::Listen(const std::optional<std::string>& tune) {
    if (global_.PlayState == PlayStates::kPlaying) {
        MusicCommand("Stop");
    } else {
        mmcMidi_.Close();
    }
    if (tune) mmcMidi_.SetFileName(TuneFile(global_, *tune));
    mmcMidi_.Open();
    mmcMidi_.Play();
}

bool Music::EndListening() {
    const bool listening =
        global_.PlayState == PlayStates::kStopped && mmcMidi_.Mode() == MidiMode::kPlaying;
    if (listening) EndTune();
    return listening;
}

}  // namespace quendrel
