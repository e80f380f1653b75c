// Times music and effects on SDL's dummy sound device, which plays nothing, and prints one
// "name value" a line: milliseconds to open a tune, the median of all tunes of the folder, and
// the processor share, in percent of one core, of a tune with five effects a second.
#include <algorithm>
#include <chrono>
#include <ctime>
#include <iostream>
#include <thread>
#include <vector>

#include "StartUp.h"
#include "audio/Playlist.h"
#include "audio/SoundEffects.h"
#include "platform/desktop/SdlMidiDevice.h"
#include "platform/desktop/SdlSoundPlayer.h"

namespace {

using namespace quendrel;
using Clock = std::chrono::steady_clock;

constexpr std::size_t kEffects = 60;
constexpr std::chrono::milliseconds kBetweenEffects(200);

double Milliseconds(Clock::duration time) {
    return std::chrono::duration<double, std::milli>(time).count();
}

double MedianMillisecondsToOpen(const Global& global, MidiDevice& midi) {
    std::vector<double> times;
    for (const std::string& tune : global.Playlist) {
        midi.Close();
        midi.SetFileName(TuneFile(global, tune));
        const auto start = Clock::now();
        midi.Open();
        midi.Play();
        times.push_back(Milliseconds(Clock::now() - start));
    }
    std::sort(times.begin(), times.end());
    return times.at(times.size() / 2);
}

double PercentOfACore(SoundEffects& sounds) {
    const std::clock_t used = std::clock();
    const auto start = Clock::now();
    for (std::size_t i = 0; i < kEffects; ++i) {
        sounds.PlaySoundFx(static_cast<SoundSlot>(i % kSoundSlots), SoundMode::kOnce);
        std::this_thread::sleep_for(kBetweenEffects);
    }
    const double usedMs = 1000.0 * static_cast<double>(std::clock() - used) / CLOCKS_PER_SEC;
    return 100 * usedMs / Milliseconds(Clock::now() - start);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    Global global;
    SetFolders(global, argv[1]);
    SetPlaylist(global, ListTunes(global));

    SdlSoundPlayer player;
    SdlMidiDevice midi;
    SoundEffects sounds(global, player);
    sounds.Load();
    std::cout << "OpenTune " << MedianMillisecondsToOpen(global, midi) << '\n';
    std::cout << "SoundShare " << PercentOfACore(sounds) << '\n';
    return midi.Mode() == MidiMode::kPlaying ? 0 : 1;
}
