// Bars that were wrong once, compared with the printed music: every note by its name, middle C
// being C4.
#include <algorithm>
#include <array>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Tune.h"
#include "TuneChecks.h"

namespace quendrel::tunes {
namespace {

Tune TuneCalled(const std::string& name) {
    return Load(std::filesystem::path(QUENDREL_MUSIC_FOLDER) / (name + ".mid"));
}

std::string NameOf(int key) {
    constexpr std::array kNames{"C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B"};
    return kNames.at(static_cast<std::size_t>(key % 12)) + std::to_string(key / 12 - 1);
}

/// Some quavers of a bar, from 1, the last one being among them.
struct Stretch {
    int bar = 0;
    int first = 0;
    int last = 0;
};

/// What a voice, counted from 1, begins there, a chord from below.
std::string NamesIn(const Tune& tune, std::size_t voice, const Stretch& stretch) {
    const long quaver = tune.ticks_per_crotchet / 2;
    const long line = BarLines(tune).at(static_cast<std::size_t>(stretch.bar - 1));
    std::vector<Note> notes =
        NotesFrom(tune.voices.at(voice - 1), line + (stretch.first - 1) * quaver,
                  line + stretch.last * quaver);
    std::ranges::sort(notes, {}, [](const Note& note) { return std::pair(note.start, note.key); });
    std::string names;
    for (const Note& note : notes) names += (names.empty() ? "" : " ") + NameOf(note.key);
    return names;
}

struct Printed {
    std::size_t voice = 0;
    Stretch stretch;
    std::string notes;
};

void ExpectThatItIsWritten(const Tune& tune, const std::vector<Printed>& printed) {
    for (const auto& [voice, stretch, notes] : printed) {
        EXPECT_EQ(NamesIn(tune, voice, stretch), notes)
            << "voice " << voice << ", bar " << stretch.bar << ", from quaver " << stretch.first;
    }
}

TEST(GymnopedieNo1, HasTheChordsOfThePrint) {
    const std::vector<Printed> printed{
        {3, {21, 1, 6}, "F3 A3 D4"},       {3, {38, 1, 6}, "F3 A3 D4"},
        {3, {41, 1, 6}, "D3 G3 B3 E4"},    {3, {42, 1, 6}, "C3 E3 A3 D4"},
        {3, {43, 1, 6}, "C3 F#3 A3 D4"},   {3, {45, 1, 6}, "A3 C4 E4"},
        {3, {47, 1, 6}, "C3 E3 A3 D4"},    {3, {48, 1, 6}, "C3 F#3 A3 D4"},
        {3, {53, 1, 6}, "A3 C#4 F#4 A4"},  {3, {54, 3, 4}, "B2 A3 D4"},
        {3, {54, 5, 6}, "E3 G3 B3 D4 G4"}, {3, {55, 1, 6}, "A2 G3 C4 E4 A4"}};
    ExpectThatItIsWritten(TuneCalled("Gymnopedie No. 1"), printed);
}

TEST(GymnopedieNo1, EndsOnAHighCNaturalAndAHighD) {
    ExpectThatItIsWritten(TuneCalled("Gymnopedie No. 1"),
                          {{1, {55, 1, 6}, "C5"}, {1, {56, 1, 6}, "D5"}});
}

TEST(LondonderryAir, HasThePickUpAndThePhraseOfThePrint) {
    const Tune tune = TuneCalled("Londonderry Air");
    ExpectThatItIsWritten(tune, {{1, {7, 6, 8}, "C#4 D4 E4"},
                                 {1, {8, 1, 8}, "F#4 G4 F#4 E4 B3 C#4"},
                                 {1, {9, 1, 4}, "D4"}});
    // The second verse is an octave lower.
    ExpectThatItIsWritten(tune, {{2, {23, 6, 8}, "C#3 D3 E3"},
                                 {2, {24, 1, 8}, "F#3 G3 F#3 E3 B2 C#3"},
                                 {2, {25, 1, 4}, "D3"}});
}

TEST(LondonderryAir, GoesFromTheTonicToTheDominantSeventhThere) {
    ExpectThatItIsWritten(TuneCalled("Londonderry Air"), {{3, {8, 1, 4}, "D3 A3 D4 F#4"},
                                                          {3, {8, 5, 8}, "A2 G3 C#4 E4"},
                                                          {3, {24, 1, 4}, "A3 D4 F#4"},
                                                          {3, {24, 5, 8}, "G3 C#4 E4"},
                                                          {5, {8, 1, 8}, "D3 A2"},
                                                          {5, {24, 1, 8}, "D3 A2"}});
}

}  // namespace
}  // namespace quendrel::tunes
