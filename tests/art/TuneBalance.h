// Whether what has the melody is heard: how loud it is against the rest, and in its own bands.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "Tune.h"
#include "TuneChecks.h"
#include "TuneSound.h"

namespace quendrel::tunes {

/// So far in dB a melody or an answer may be under all other voices together while it sounds.
inline constexpr double kUnderTheRest = 4;

/// A note is masked that is further in dB under the others in its strongest bands.
inline constexpr double kMasked = 6;
inline constexpr std::size_t kOwnBands = 3;

/// A note is listened to from its beginning on for so many windows: some voices speak late.
inline constexpr std::size_t kListened = 4;

/// So large a share of a passage may be lost.
inline constexpr double kLost = 0.1;

/// Notes in a row that must be heard, no rest between them being longer than a bar.
using Passage = std::vector<Note>;

inline std::vector<Passage> PassagesOf(const Tune& tune, const Voice& voice) {
    std::vector<Passage> passages;
    bool goesOn = false;
    for (const Note& note : voice.notes) {
        if (!MustBeHeard(note.role)) {
            goesOn = false;
            continue;
        }
        const long bar = tune.bars.begin()->second;
        if (!goesOn || note.start - passages.back().back().end > bar) passages.emplace_back();
        passages.back().push_back(note);
        goesOn = true;
    }
    return passages;
}

/// The other channels at a window.
inline Bands RestAt(const Sound& sound, std::size_t channel, std::size_t window) {
    Bands rest{};
    for (std::size_t other = 0; other < sound.channels.size(); ++other) {
        if (other == channel) continue;
        const Bands& bands = sound.channels[other].at(window);
        for (std::size_t i = 0; i < kBands; ++i) rest[i] += bands[i];
    }
    return rest;
}

/// How much louder a passage is than the rest while it sounds, in dB.
inline double AgainstTheRest(const Tune& tune, const Sound& sound, std::size_t channel,
                             const Passage& passage) {
    double own = 0;
    double rest = 0;
    for (std::size_t window : WindowsOf(tune, passage, sound)) {
        own += Sum(sound.channels.at(channel).at(window));
        rest += Sum(RestAt(sound, channel, window));
    }
    return Decibels(own) - Decibels(rest);
}

/// The windows in which a note is listened to: not that in which the one before it dies away, where
/// it has more.
inline std::vector<std::size_t> Listened(const Tune& tune, const Sound& sound, const Note& note) {
    std::vector<std::size_t> windows;
    const std::size_t begin = WindowOf(tune, note.start);
    const std::size_t last = std::max(WindowOf(tune, note.end), begin + 1);
    const std::size_t first = std::min(begin + 1, last - 1);
    for (std::size_t i = first; i < std::min({last, first + kListened, sound.power.size()}); ++i) {
        windows.push_back(i);
    }
    return windows;
}

/// How much louder a note is than the rest in those bands where it is strongest, in dB.
inline double AgainstTheRestInOwnBands(const Tune& tune, const Sound& sound, std::size_t channel,
                                       const Note& note) {
    Bands own{};
    Bands rest{};
    for (std::size_t window : Listened(tune, sound, note)) {
        const Bands& ownNow = sound.channels.at(channel).at(window);
        const Bands restNow = RestAt(sound, channel, window);
        std::ranges::transform(own, ownNow, own.begin(), std::plus<>());
        std::ranges::transform(rest, restNow, rest.begin(), std::plus<>());
    }
    std::vector<std::size_t> bands(kBands);
    for (std::size_t i = 0; i < kBands; ++i) bands[i] = i;
    std::ranges::sort(bands, std::greater<>(), [&own](std::size_t band) { return own[band]; });
    double ownSum = 0;
    double restSum = 0;
    for (std::size_t i = 0; i < kOwnBands; ++i) {
        ownSum += own[bands[i]];
        restSum += rest[bands[i]];
    }
    return Decibels(ownSum) - Decibels(restSum);
}

/// The share of a passage's notes that are masked.
inline double ShareLost(const Tune& tune, const Sound& sound, std::size_t channel,
                        const Passage& passage) {
    const auto lost = std::ranges::count_if(passage, [&](const Note& note) {
        return AgainstTheRestInOwnBands(tune, sound, channel, note) < -kMasked;
    });
    return static_cast<double>(lost) / static_cast<double>(passage.size());
}

/// Every melody and every answer is loud enough and not masked.
inline Faults HardToHear(const Tune& tune, const Sound& sound) {
    Faults faults;
    for (const Voice& voice : tune.voices) {
        const std::size_t channel = ChannelOf(voice);
        for (const Passage& passage : PassagesOf(tune, voice)) {
            const std::string place = Place(tune, voice, passage.front().start) + " to " +
                                      std::to_string(BarOf(tune, passage.back().start)) + ": ";
            const double against = AgainstTheRest(tune, sound, channel, passage);
            if (against < -kUnderTheRest) {
                faults += place + Rounded(-against) + " dB under the rest\n";
            }
            const double lost = ShareLost(tune, sound, channel, passage);
            if (lost > kLost) faults += place + Rounded(100 * lost) + " % of the notes masked\n";
        }
    }
    return faults;
}

}  // namespace quendrel::tunes
