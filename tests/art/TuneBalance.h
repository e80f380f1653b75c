// Whether what has the melody is heard: how loud it is against the rest, and in its own bands.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "Tune.h"
#include "TuneChecks.h"
#include "TuneSound.h"

namespace quendrel::tunes {

/// How far, in dB, what must be heard may be below all other voices together while it sounds.
inline constexpr double kUnderTheRest = 4;

/// A note is masked if it is further than this, in dB, below the others in its strongest bands.
inline constexpr double kMasked = 6;
inline constexpr std::size_t kOwnBands = 3;

/// How many windows of a note are measured, from its beginning: some voices sound late.
inline constexpr std::size_t kListened = 4;

/// The largest share of a passage's notes that may be masked.
inline constexpr double kLost = 0.1;

/// How many bars of a passage are measured together: over a longer time a strong part would hide a
/// weak one.
inline constexpr std::size_t kStretch = 4;

/// Notes in a row that must be heard.
using Passage = std::vector<Note>;

/// A passage ends with its role, and where a rest is longer than a bar.
inline std::vector<Passage> PassagesOf(const Tune& tune, const Voice& voice) {
    const long bar = tune.bars.begin()->second;
    std::vector<Passage> passages;
    const Note* last = nullptr;
    for (const Note& note : voice.notes) {
        if (MustBeHeard(note.role)) {
            const bool goesOn = last && last->role == note.role && note.start - last->end <= bar;
            if (!goesOn) passages.emplace_back();
            passages.back().push_back(note);
        }
        last = &note;
    }
    return passages;
}

/// What begins in any four bars of a passage, or all of a shorter one.
inline std::vector<Passage> StretchesOf(const std::vector<long>& lines, const Passage& passage) {
    const auto barAt = [&lines](const Note& note) {
        return static_cast<std::size_t>(std::ranges::upper_bound(lines, note.start) -
                                        lines.begin());
    };
    const std::size_t last = barAt(passage.back());
    std::vector<Passage> stretches;
    for (std::size_t bar = barAt(passage.front());; ++bar) {
        Passage stretch;
        std::ranges::copy_if(passage, std::back_inserter(stretch), [&](const Note& note) {
            return barAt(note) >= bar && barAt(note) < bar + kStretch;
        });
        if (!stretch.empty()) stretches.push_back(stretch);
        if (bar + kStretch > last) return stretches;
    }
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

inline Faults HardToHearIn(const Tune& tune, const Sound& sound, const Voice& voice,
                           const Passage& stretch) {
    const std::string place = Place(tune, voice, stretch.front().start) + " to " +
                              std::to_string(BarOf(tune, stretch.back().start)) + ": ";
    Faults faults;
    const double against = AgainstTheRest(tune, sound, ChannelOf(voice), stretch);
    if (against < -kUnderTheRest) faults += place + Rounded(-against) + " dB under the rest\n";
    const double lost = ShareLost(tune, sound, ChannelOf(voice), stretch);
    if (lost > kLost) faults += place + Rounded(100 * lost) + " % of the notes masked\n";
    return faults;
}

/// What must be heard is loud enough and not masked, wherever one listens.
inline Faults HardToHear(const Tune& tune, const Sound& sound) {
    Faults faults;
    const std::vector<long> lines = BarLines(tune);
    for (const Voice& voice : tune.voices) {
        for (const Passage& passage : PassagesOf(tune, voice)) {
            for (const Passage& stretch : StretchesOf(lines, passage)) {
                faults += HardToHearIn(tune, sound, voice, stretch);
            }
        }
    }
    return faults;
}

}  // namespace quendrel::tunes
