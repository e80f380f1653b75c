// How a tune sounds when the synthesizer plays it, all voices together and each alone: one
// rendering gives both, as every voice has a channel of its own.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <filesystem>
#include <functional>
#include <memory>
#include <numbers>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <fluidsynth.h>

#include "Tune.h"

namespace quendrel::tunes {

inline constexpr const char* kSoundFont = "/usr/share/sounds/sf2/TimGM6mb.sf2";
inline constexpr double kSampleRate = 22050;
inline constexpr double kGain = 0.6;

/// About a tenth of a second, a power of two.
inline constexpr std::size_t kWindow = 2048;

/// The ear's critical bands, by their edges in Hz.
inline constexpr std::array<double, 24> kBandEdges{20,   100,  200,  300,  400,  510,  630,  770,
                                                   920,  1080, 1270, 1480, 1720, 2000, 2320, 2700,
                                                   3150, 3700, 4400, 5300, 6400, 7700, 9500, 11025};
inline constexpr std::size_t kBands = kBandEdges.size() - 1;

/// The mean square of a window, band by band.
using Bands = std::array<double, kBands>;

struct Sound {
    double peak = 0;
    /// The mean square of both sides, for every window.
    std::vector<double> power;
    /// The same for each channel alone, in bands, before the room answers.
    std::vector<std::vector<Bands>> channels;

    /// How long it is until the synthesizer says that the tune is over.
    double seconds() const { return static_cast<double>(power.size() * kWindow) / kSampleRate; }
};

template <typename T>
using Owned = std::unique_ptr<T, void (*)(T*)>;

inline Owned<fluid_settings_t> SynthSettings(std::size_t channels) {
    for (int level : {FLUID_WARN, FLUID_INFO}) fluid_set_log_function(level, nullptr, nullptr);
    Owned<fluid_settings_t> settings(new_fluid_settings(), delete_fluid_settings);
    fluid_settings_setnum(settings.get(), "synth.gain", kGain);
    fluid_settings_setnum(settings.get(), "synth.sample-rate", kSampleRate);
    fluid_settings_setint(settings.get(), "synth.audio-channels", static_cast<int>(channels));
    fluid_settings_setint(settings.get(), "synth.audio-groups", static_cast<int>(channels));
    fluid_settings_setint(settings.get(), "synth.lock-memory", 0);
    fluid_settings_setstr(settings.get(), "player.timing-source", "sample");
    return settings;
}

using Side = std::vector<float>;

inline double MeanSquare(const Side& left, const Side& right) {
    double sum = 0;
    for (std::size_t i = 0; i < kWindow; ++i) sum += left[i] * left[i] + right[i] * right[i];
    return sum / (2 * kWindow);
}

inline double Peak(const Side& side) {
    const auto [lowest, highest] = std::ranges::minmax(side);
    return std::max(-lowest, highest);
}

using Spectrum = std::vector<std::complex<float>>;

/// Fourier's transform of a window, in place.
inline void Transform(Spectrum& values) {
    for (std::size_t i = 1, j = 0; i < kWindow; ++i) {
        std::size_t bit = kWindow / 2;
        for (; (j & bit) != 0; bit /= 2) j ^= bit;
        j ^= bit;
        if (i < j) std::swap(values[i], values[j]);
    }
    static const Spectrum kTurns = [] {
        Spectrum turns(kWindow / 2);
        for (std::size_t i = 0; i < turns.size(); ++i) {
            const double turn = static_cast<double>(i) / static_cast<double>(kWindow);
            turns[i] = std::polar(1.0F, static_cast<float>(-2 * std::numbers::pi * turn));
        }
        return turns;
    }();
    for (std::size_t half = 1; half < kWindow; half *= 2) {
        for (std::size_t start = 0; start < kWindow; start += 2 * half) {
            for (std::size_t i = 0; i < half; ++i) {
                const std::complex<float> turn = kTurns[i * kWindow / (2 * half)];
                const std::complex<float> a = values[start + i];
                const std::complex<float> b = values[start + i + half];
                // Written out, as the operator would look for infinities.
                const std::complex<float> turned(b.real() * turn.real() - b.imag() * turn.imag(),
                                                 b.real() * turn.imag() + b.imag() * turn.real());
                values[start + i] = a + turned;
                values[start + i + half] = a - turned;
            }
        }
    }
}

/// Both sides at once: one is the transform's real input, the other its imaginary one.
inline Bands BandsOf(const Side& left, const Side& right) {
    static const std::vector<float> kHann = [] {
        std::vector<float> hann(kWindow);
        for (std::size_t i = 0; i < kWindow; ++i) {
            const double turn = static_cast<double>(i) / static_cast<double>(kWindow);
            hann[i] = static_cast<float>(std::sqrt(2.0 / 3) *
                                         (1 - std::cos(2 * std::numbers::pi * turn)));
        }
        return hann;
    }();
    Spectrum values(kWindow);
    for (std::size_t i = 0; i < kWindow; ++i) {
        values[i] = {left[i] * kHann[i], right[i] * kHann[i]};
    }
    Transform(values);
    Bands bands{};
    std::size_t band = 0;
    for (std::size_t i = 2; i < kWindow / 2; ++i) {
        const double hertz = static_cast<double>(i) * kSampleRate / static_cast<double>(kWindow);
        while (band + 1 < kBands && hertz >= kBandEdges[band + 1]) ++band;
        bands[band] +=
            (std::norm(values[i]) + std::norm(values[kWindow - i])) / (2.0 * kWindow * kWindow);
    }
    return bands;
}

/// Plays the next window, each channel into two sides of its own, the room into the last two.
inline void PlayWindow(fluid_synth_t* synth, std::vector<Side>& sides, Sound& sound) {
    std::vector<float*> dry;
    for (Side& side : sides) {
        side.assign(kWindow, 0);
        dry.push_back(side.data());
    }
    // Echo and chorus, left and right of each, are added up.
    const std::size_t channels = sound.channels.size();
    std::array<float*, 4> wet{dry[2 * channels], dry[2 * channels + 1], dry[2 * channels],
                              dry[2 * channels + 1]};
    if (fluid_synth_process(synth, kWindow, 4, wet.data(), static_cast<int>(2 * channels),
                            dry.data()) != FLUID_OK) {
        throw std::runtime_error("the synthesizer does not play");
    }
    std::array<Side, 2> mix{Side(kWindow), Side(kWindow)};
    for (std::size_t i = 0; i < sides.size(); ++i) {
        std::ranges::transform(mix[i % 2], sides[i], mix[i % 2].begin(), std::plus<>());
    }
    for (std::size_t i = 0; i < channels; ++i) {
        sound.channels[i].push_back(BandsOf(sides[2 * i], sides[2 * i + 1]));
    }
    sound.power.push_back(MeanSquare(mix[0], mix[1]));
    sound.peak = std::max({sound.peak, Peak(mix[0]), Peak(mix[1])});
}

inline std::size_t ChannelOf(const Voice& voice) {
    return static_cast<std::size_t>(*voice.channels.begin());
}

inline Sound Play(const std::filesystem::path& path, const Tune& tune) {
    std::size_t channels = 0;
    for (const Voice& voice : tune.voices) channels = std::max(channels, ChannelOf(voice) + 1);
    const auto settings = SynthSettings(channels);
    const Owned<fluid_synth_t> synth(new_fluid_synth(settings.get()), delete_fluid_synth);
    if (fluid_synth_sfload(synth.get(), kSoundFont, 1) == FLUID_FAILED) {
        throw std::runtime_error("no sound font");
    }
    const Owned<fluid_player_t> player(new_fluid_player(synth.get()), delete_fluid_player);
    if (fluid_player_add(player.get(), path.c_str()) != FLUID_OK ||
        fluid_player_play(player.get()) != FLUID_OK) {
        throw std::runtime_error("cannot play " + path.string());
    }
    Sound sound;
    sound.channels.resize(channels);
    std::vector<Side> sides(2 * channels + 2);
    while (fluid_player_get_status(player.get()) == FLUID_PLAYER_PLAYING) {
        PlayWindow(synth.get(), sides, sound);
    }
    return sound;
}

inline double Decibels(double power) { return 10 * std::log10(std::max(power, 1e-12)); }

inline double Mean(const std::vector<double>& power) {
    double sum = 0;
    for (double one : power) sum += one;
    return sum / static_cast<double>(power.size());
}

inline double Sum(const Bands& bands) {
    double sum = 0;
    for (double band : bands) sum += band;
    return sum;
}

inline std::size_t WindowOf(const Tune& tune, long tick) {
    return static_cast<std::size_t>(Seconds(tune, tick) * kSampleRate / kWindow);
}

/// The windows in which notes last.
inline std::set<std::size_t> WindowsOf(const Tune& tune, const std::vector<Note>& notes,
                                       const Sound& sound) {
    std::set<std::size_t> windows;
    for (const Note& note : notes) {
        const std::size_t end = std::min(WindowOf(tune, note.end) + 1, sound.power.size());
        for (std::size_t i = WindowOf(tune, note.start); i < end; ++i) windows.insert(i);
    }
    return windows;
}

}  // namespace quendrel::tunes
