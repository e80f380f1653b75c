// Times music and effects on SDL's dummy sound device, which plays nothing, and prints one
// "name value" a line: milliseconds until a sound begins that the device has to be opened for,
// the median of ten; milliseconds to open a tune, the median of all tunes of the folder; and the
// processor share, in percent of one core, of a tune with five effects a second.
#include <algorithm>
#include <chrono>
#include <ctime>
#include <iostream>
#include <stdexcept>
#include <thread>
#include <vector>

#include <QCoreApplication>

#include "StartUp.h"
#include "audio/Playlist.h"
#include "audio/SoundEffects.h"
#include "platform/SoundRest.h"
#include "platform/desktop/QtClock.h"
#include "platform/desktop/SdlMidiDevice.h"
#include "platform/desktop/SdlSoundDevice.h"
#include "platform/desktop/SdlSoundPlayer.h"

namespace {

using namespace quendrel;
using Clock = std::chrono::steady_clock;

constexpr std::size_t kEffects = 60;
constexpr std::chrono::milliseconds kBetweenEffects(200);
constexpr int kRests = 10;
/// Longer than the device takes to close.
constexpr std::chrono::seconds kToClose(10);

double Milliseconds(Clock::duration time) {
    return std::chrono::duration<double, std::milli>(time).count();
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

double MedianMillisecondsToWake(SoundEffects& sounds, SoundRest& rest, const SoundDevice& device) {
    std::vector<double> times;
    for (int i = 0; i < kRests; ++i) {
        rest.Close();
        if (device.IsOpen(kToClose)) throw std::runtime_error("the device does not close");
        const auto start = Clock::now();
        sounds.PlaySoundFx(SoundSlot::kSmallClick, SoundMode::kOnce);
        times.push_back(Milliseconds(Clock::now() - start));
        if (!device.IsInUse()) throw std::runtime_error("nothing sounds");
    }
    return Median(times);
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
    return Median(times);
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

    const QCoreApplication application(argc, argv);
    QtClock clock;
    SdlSoundDevice device;
    SoundRest rest(clock, device);
    SdlSoundPlayer player(rest);
    SdlMidiDevice midi(rest);
    SoundEffects sounds(global, player);
    sounds.Load();
    std::cout << "WakeSound " << MedianMillisecondsToWake(sounds, rest, device) << '\n';
    std::cout << "OpenTune " << MedianMillisecondsToOpen(global, midi) << '\n';
    std::cout << "SoundShare " << PercentOfACore(sounds) << '\n';
    return midi.Mode() == MidiMode::kPlaying ? 0 : 1;
}
