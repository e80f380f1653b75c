// What a musician would find wrong in what is written: every check looks at a tune and says each
// fault that it finds, with its place.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "Tune.h"

namespace quendrel::tunes {

/// A line for every fault.
using Faults = std::string;

/// "voice 2, bar 11", both from 1.
inline std::string Place(const Tune& tune, const Voice& voice, long tick) {
    return "voice " + std::to_string(&voice - tune.voices.data() + 1) + ", bar " +
           std::to_string(BarOf(tune, tick));
}

inline std::string Rounded(double value) {
    std::ostringstream text;
    text.precision(1);
    text << std::fixed << value;
    return text.str();
}

// ---- Silence ----

/// No track ends more than a beat after the last note.
inline Faults LateEnds(const Tune& tune) {
    Faults faults;
    for (std::size_t i = 0; i < tune.track_ends.size(); ++i) {
        const long late = tune.track_ends[i] - LastTick(tune);
        if (late > tune.ticks_per_crotchet) {
            faults += "track " + std::to_string(i + 1) + " ends " + std::to_string(late) +
                      " ticks after the last note\n";
        }
    }
    return faults;
}

// ---- Dynamics ----

/// How far apart in dB places in the bar may be on an average, each against the notes around it.
inline constexpr double kAccent = 1.5;

/// A place in the bar counts if it has at least this many notes, or chance would decide.
inline constexpr std::size_t kEnough = 6;

/// The place in its bar, to a 48th of a crotchet, as the compiler begins notes a tick late.
inline long PlaceInBar(const Tune& tune, const std::vector<long>& lines, long tick) {
    const long line = *std::prev(std::upper_bound(lines.begin(), lines.end(), tick));
    return (tick - line) * 48 / tune.ticks_per_crotchet;
}

/// The mean level of the notes that begin in the bar in whose middle this one stands.
inline double LevelAround(const Voice& voice, const Note& note, long bar) {
    double sum = 0;
    int count = 0;
    for (const Note& other : voice.notes) {
        const long away = other.start - note.start;
        if (2 * away < -bar || 2 * away >= bar) continue;
        sum += other.level;
        ++count;
    }
    return sum / count;
}

/// Places in the bar that are louder or softer than others, apart from swells.
inline Faults AccidentalAccents(const Tune& tune) {
    Faults faults;
    const std::vector<long> lines = BarLines(tune);
    const long bar = lines.at(1) - lines.at(0);
    for (const Voice& voice : tune.voices) {
        std::map<long, std::vector<double>> accents;
        for (const Note& note : voice.notes) {
            accents[PlaceInBar(tune, lines, note.start)].push_back(note.level -
                                                                   LevelAround(voice, note, bar));
        }
        std::vector<std::pair<double, long>> means;
        for (const auto& [place, levels] : accents) {
            if (levels.size() < kEnough) continue;
            double sum = 0;
            for (double level : levels) sum += level;
            means.emplace_back(sum / static_cast<double>(levels.size()), place);
        }
        if (means.empty()) continue;
        const auto [least, most] = std::ranges::minmax(means);
        if (most.first - least.first > kAccent) {
            faults += Place(tune, voice, voice.notes.front().start) + " on: place " +
                      std::to_string(most.second) + " of the bar is " +
                      Rounded(most.first - least.first) + " dB louder than place " +
                      std::to_string(least.second) + "\n";
        }
    }
    return faults;
}

/// The least change of loudness, in dB, of a voice in every phrase, which is four bars with at
/// least four notes.
inline constexpr double kSwell = 1.5;
inline constexpr std::size_t kPhrase = 4;

inline std::vector<Note> NotesFrom(const Voice& voice, long from, long to) {
    std::vector<Note> notes;
    for (const Note& note : voice.notes) {
        if (note.start >= from && note.start < to) notes.push_back(note);
    }
    return notes;
}

/// How many notes are begun, those of a chord being one.
inline std::size_t Onsets(const std::vector<Note>& notes) {
    std::set<long> onsets;
    for (const Note& note : notes) onsets.insert(note.start);
    return onsets.size();
}

/// No voice stays at one loudness through any four bars.
inline Faults FlatPhrases(const Tune& tune) {
    Faults faults;
    const std::vector<long> lines = BarLines(tune);
    for (const Voice& voice : tune.voices) {
        for (std::size_t i = 0; i + kPhrase < lines.size(); ++i) {
            const std::vector<Note> notes = NotesFrom(voice, lines[i], lines[i + kPhrase]);
            if (Onsets(notes) < 4) continue;
            const auto [softest, loudest] = std::ranges::minmax(notes, {}, &Note::level);
            if (loudest.level - softest.level >= kSwell) continue;
            faults += Place(tune, voice, lines[i]) + ": four bars within " +
                      Rounded(loudest.level - softest.level) + " dB\n";
            // The next three overlap with it.
            i += kPhrase - 1;
        }
    }
    return faults;
}

// ---- Melody ----

/// How many bars there may be before the melody begins, or between two verses.
inline constexpr long kWithoutMelody = 4;

/// Some voice has the melody or an answer to it in any five bars.
inline Faults NoMelody(const Tune& tune) {
    std::set<long> bars{0, static_cast<long>(BarLines(tune).size())};
    for (const Note& note : AllNotes(tune)) {
        if (!Sings(note.role)) continue;
        for (long bar = BarOf(tune, note.start); bar <= BarOf(tune, note.end - 1); ++bar) {
            bars.insert(bar);
        }
    }
    Faults faults;
    for (auto bar = bars.begin(); std::next(bar) != bars.end(); ++bar) {
        const long without = *std::next(bar) - *bar - 1;
        if (without <= kWithoutMelody) continue;
        faults += "no voice has the melody for " + std::to_string(without) + " bars from bar " +
                  std::to_string(*bar + 1) + " on\n";
    }
    return faults;
}

// ---- Voice leading ----

/// The one note of a voice that sounds before a tick or is followed by it after a short breath;
/// none in a chord.
inline std::optional<Note> OnlyNoteBefore(const Tune& tune, const Voice& voice, long tick) {
    std::optional<Note> before;
    for (const Note& note : voice.notes) {
        if (note.start >= tick || note.end + tune.ticks_per_crotchet / 2 < tick) continue;
        if (before && before->end > note.start + 1) return {};
        before = note;
    }
    return before;
}

/// The one note that a voice begins at a tick, or so nearly that it is meant to.
inline std::optional<Note> OnlyNoteAt(const Voice& voice, long tick) {
    std::optional<Note> at;
    for (const Note& note : voice.notes) {
        if (std::abs(note.start - tick) > 2) continue;
        if (at) return {};
        at = note;
    }
    return at;
}

inline bool IsIndependent(const Note& note) {
    return note.role != Role::kFigure && note.role != Role::kMotif && note.role != Role::kDouble;
}

/// 0 is a unison or octave, 7 a fifth; everything else is free to go on as it is.
inline bool IsBarePair(int interval) { return interval == 0 || interval == 7; }

inline int IntervalOf(const Note& one, const Note& other) {
    return std::abs(one.key - other.key) % 12;
}

/// Whether two independent voices that both move go the same way in the same bare interval.
inline bool IsParallel(const Note& one, const Note& oneNext, const Note& other,
                       const Note& otherNext) {
    const int way = oneNext.key - one.key;
    const int otherWay = otherNext.key - other.key;
    return way * otherWay > 0 && IntervalOf(one, other) == IntervalOf(oneNext, otherNext) &&
           IsBarePair(IntervalOf(one, other)) && IsIndependent(oneNext) &&
           IsIndependent(otherNext) && IsIndependent(one) && IsIndependent(other);
}

inline Faults ParallelsOf(const Tune& tune, const Voice& voice, const Voice& other) {
    Faults faults;
    for (const Note& start : voice.notes) {
        const auto next = OnlyNoteAt(voice, start.start);
        const auto otherNext = OnlyNoteAt(other, start.start);
        if (!next || !otherNext) continue;
        const auto note = OnlyNoteBefore(tune, voice, next->start);
        const auto otherNote = OnlyNoteBefore(tune, other, otherNext->start);
        if (note && otherNote && IsParallel(*note, *next, *otherNote, *otherNext)) {
            faults += Place(tune, voice, start.start) + ", with " +
                      Place(tune, other, start.start) + ": parallel " +
                      (IntervalOf(*note, *otherNote) == 0 ? "octaves" : "fifths") + "\n";
        }
    }
    return faults;
}

/// Independent voices do not go in parallel fifths, octaves or unisons.
inline Faults Parallels(const Tune& tune) {
    Faults faults;
    for (std::size_t i = 0; i < tune.voices.size(); ++i) {
        for (std::size_t j = i + 1; j < tune.voices.size(); ++j) {
            faults += ParallelsOf(tune, tune.voices[i], tune.voices[j]);
        }
    }
    return faults;
}

// ---- Figures ----

/// For how many bars a figure may go on unchanged.
inline constexpr std::size_t kFigureLength = 8;

/// Where in a stretch notes begin, and whether the next is higher, as high or lower.
inline std::string FigureOf(const Tune& tune, const std::vector<Note>& notes, long from) {
    std::map<long, int> tops;
    for (const Note& note : notes) {
        int& top = tops[(note.start - from) * 48 / tune.ticks_per_crotchet];
        top = std::max(top, note.key);
    }
    if (tops.size() < 2 && notes.size() < 2) return {};
    std::string figure;
    int last = tops.begin()->second;
    for (const auto& [place, top] : tops) {
        figure += (top > last ? '/' : top < last ? '\\' : '-') + std::to_string(place);
        last = top;
    }
    return figure;
}

/// The figure of every bar of a voice that accompanies, the bar line being moved by so many ticks.
inline std::vector<std::string> FiguresOf(const Tune& tune, const Voice& voice, long moved) {
    std::vector<std::string> figures;
    const std::vector<long> lines = BarLines(tune);
    for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
        const std::vector<Note> notes = NotesFrom(voice, lines[i] + moved, lines[i + 1] + moved);
        const bool accompanies =
            std::ranges::none_of(notes, [](const Note& note) { return Sings(note.role); });
        figures.push_back(accompanies && !notes.empty() ? FigureOf(tune, notes, lines[i] + moved)
                                                        : "");
    }
    return figures;
}

/// How many bars from one on are as the one `length` bars before.
inline std::size_t BarsAlike(const std::vector<std::string>& figures, std::size_t first,
                             std::size_t length) {
    std::size_t next = first;
    while (next < figures.size() && !figures[next].empty() &&
           (next < first + length || figures[next] == figures[next - length])) {
        ++next;
    }
    return next - first;
}

/// Figures of one bar and of two that go on too long.
inline Faults LongFiguresIn(const Tune& tune, const Voice& voice, long moved) {
    Faults faults;
    const std::vector<std::string> figures = FiguresOf(tune, voice, moved);
    const std::vector<long> lines = BarLines(tune);
    for (std::size_t first = 0; first < figures.size(); ++first) {
        const std::size_t bars =
            std::max(BarsAlike(figures, first, 1), BarsAlike(figures, first, 2));
        if (bars <= kFigureLength) continue;
        faults += Place(tune, voice, lines[first]) + ": " + std::to_string(bars) +
                  " bars with one figure\n";
        first += bars - 1;
    }
    return faults;
}

/// No accompaniment goes on with one figure for more than eight bars, wherever the figure begins.
inline Faults LongFigures(const Tune& tune) {
    Faults faults;
    const long quaver = tune.ticks_per_crotchet / 2;
    const std::vector<long> lines = BarLines(tune);
    for (const Voice& voice : tune.voices) {
        Faults found;
        for (long moved = 0; moved < lines[1] - lines[0] && found.empty(); moved += quaver) {
            found = LongFiguresIn(tune, voice, moved);
        }
        faults += found;
    }
    return faults;
}

// ---- All tunes together ----

/// How many tunes may have the same thing in common.
inline constexpr int kShared = 3;

/// Says what more than three tunes have in common.
inline Faults SharedTooOften(const std::map<std::string, std::string>& ofTunes) {
    std::map<std::string, std::vector<std::string>> tunes;
    for (const auto& [tune, what] : ofTunes) tunes[what].push_back(tune);
    Faults faults;
    for (const auto& [what, names] : tunes) {
        if (names.size() <= kShared) continue;
        faults += what + ":";
        for (const std::string& name : names) faults += " " + name + ",";
        faults.back() = '\n';
    }
    return faults;
}

/// Its programs, each once.
inline std::string LineUpOf(const Tune& tune) {
    std::set<int> programs;
    for (const Voice& voice : tune.voices) {
        programs.insert(voice.programs.begin(), voice.programs.end());
    }
    std::string lineUp;
    for (int program : programs) lineUp += (lineUp.empty() ? "" : " ") + std::to_string(program);
    return lineUp;
}

// ---- Sources ----

/// What a field of the source's header says, the last time that it is there.
inline std::string FieldOf(const std::string& source, char field) {
    std::istringstream lines("\n" + source);
    std::string value;
    for (std::string line; std::getline(lines, line);) {
        if (line.size() < 2 || line[0] != field || line[1] != ':') continue;
        value = line.substr(std::min(line.find_first_not_of(' ', 2), line.size()));
    }
    return value;
}

/// The header says in one line where and when the tune was printed first and which form it has:
/// "S:first printed in Edinburgh, 1792; form: AABB" or "S:our own; form: ABA".
inline Faults SourceNotSaid(const std::string& source) {
    const std::string said = FieldOf(source, 'S');
    if (said.empty()) return "there is no line S:\n";
    Faults faults;
    std::smatch year;
    const bool old = std::regex_search(said, year, std::regex("\\b1[5-9][0-9]{2}\\b")) &&
                     std::stoi(year.str()) < 1928;
    if (!old && said.find("our own") == std::string::npos) {
        faults += "S: neither has a year before 1928 nor says \"our own\"\n";
    }
    if (!std::regex_search(said, std::regex("form: \\S"))) faults += "S: has no \"form: ...\"\n";
    return faults;
}

}  // namespace quendrel::tunes
