// The tunes as they lie beside the game: their notes, their lengths and endings, and the compiler
// that makes them of their sources.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "Tune.h"

namespace quendrel::tunes {
namespace {

namespace fs = std::filesystem;

/// The loudest notes of every five seconds, which are the melody's, whichever voice has it.
std::set<int> LoudnessesOfMelody(const Tune& tune) {
    std::map<int, int> loudest;
    for (const Note& note : AllNotes(tune)) {
        int& velocity = loudest[static_cast<int>(Seconds(tune, note.start) / 5)];
        velocity = std::max(velocity, note.velocity);
    }
    std::set<int> loudnesses;
    for (const auto& [when, velocity] : loudest) loudnesses.insert(velocity);
    return loudnesses;
}

/// The lowest note that sounds in the last quarter of a second.
int LowestNoteOfTheLastChord(const Tune& tune) {
    const double end = Seconds(tune, LastTick(tune)) - 0.25;
    int lowest = 127;
    for (const Note& note : AllNotes(tune)) {
        if (Seconds(tune, note.end) > end) lowest = std::min(lowest, note.key);
    }
    return lowest;
}

/// The tonic that the source of a tune states, in semitones above C.
int TonicIn(const std::string& source) {
    const std::map<char, int> naturals{{'C', 0}, {'D', 2}, {'E', 4}, {'F', 5},
                                       {'G', 7}, {'A', 9}, {'B', 11}};
    const std::size_t key = source.find("\nK:") + 3;
    const char accidental = source.at(key + 1);
    return naturals.at(source.at(key)) + (accidental == '#' ? 1 : accidental == 'b' ? -1 : 0);
}

class EveryTune : public testing::TestWithParam<fs::path> {
protected:
    const Tune tune_ = Load(GetParam());
};

TEST_P(EveryTune, LastsOneToThreeMinutes) {
    const double seconds = Seconds(tune_, LastTick(tune_)) - Seconds(tune_, FirstTick(tune_));
    EXPECT_GE(seconds, 60);
    EXPECT_LE(seconds, 180);
}

TEST_P(EveryTune, HasThreeVoicesOrMoreEachOnAChannelOfItsOwn) {
    EXPECT_GE(tune_.voices.size(), 3U);
    std::set<int> taken;
    for (const Voice& voice : tune_.voices) {
        ASSERT_EQ(voice.channels.size(), 1U);
        EXPECT_TRUE(taken.insert(*voice.channels.begin()).second) << "a channel is shared";
        EXPECT_NE(*voice.channels.begin(), 9) << "there are drums";
        EXPECT_TRUE(voice.program_comes_first);
    }
    EXPECT_EQ(tune_.stray_controllers, 0);
}

TEST_P(EveryTune, EndsEveryNoteBeforeItComesAgain) {
    for (const Voice& voice : tune_.voices) {
        EXPECT_EQ(voice.unended, 0);
        EXPECT_EQ(voice.overlapping, 0);
        for (const Note& note : voice.notes) EXPECT_LT(note.start, note.end);
    }
}

TEST_P(EveryTune, ShapesItsMelodyInThreeLoudnessesOrMore) {
    EXPECT_GE(LoudnessesOfMelody(tune_).size(), 3U);
}

TEST_P(EveryTune, IsSlowerAtItsEndThanAtItsStart) {
    ASSERT_GE(tune_.tempos.size(), 2U);
    EXPECT_EQ(tune_.tempos.begin()->first, 0);
    EXPECT_LT(tune_.tempos.rbegin()->first, LastTick(tune_));
    EXPECT_GT(tune_.tempos.rbegin()->second, tune_.tempos.begin()->second);
}

TEST_P(EveryTune, EndsOnTheTonicOfItsKey) {
    EXPECT_EQ(LowestNoteOfTheLastChord(tune_) % 12, TonicIn(Contents(SourceOf(GetParam()))));
}

TEST_P(EveryTune, CompilesToTheSameBytesAgain) {
    const Folder folder;
    ASSERT_EQ(RunCompiler(SourceOf(GetParam()), folder / "Again.mid", folder / "complaint"), 0);
    EXPECT_TRUE(Contents(folder / "Again.mid") == Contents(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Music, EveryTune, testing::ValuesIn(Tunes()), NameOfTune);

TEST(MusicFolder, HoldsTheTwelveTunesAndNothingElse) {
    std::vector<std::string> names;
    for (const fs::path& tune : Tunes()) names.push_back(tune.filename().string());
    EXPECT_EQ(names, (std::vector<std::string>{
                         "Canon in D.mid", "Greensleeves.mid", "Gymnopedie No. 1.mid",
                         "La Folia.mid", "Lamplight.mid", "Londonderry Air.mid", "Lullaby.mid",
                         "Minuet in G.mid", "Prelude in C.mid", "Salley Gardens.mid",
                         "Si Bheag, Si Mhor.mid", "Walnut and Brass.mid"}));
}

class CompileTune : public testing::Test {
protected:
    int Compile(std::string_view secondBar) {
        return CompileBars("C D E | " + std::string(secondBar) + " | C3 |]");
    }

    int CompileBars(std::string_view bars) {
        std::ofstream(source_) << "X:1\nT:Trial\nM:3/4\nL:1/4\nK:C\n" << bars << "\n";
        std::ofstream(target_) << "an older tune";
        return RunCompiler(source_, target_, complaint_);
    }

    const Folder folder_;
    const fs::path source_ = folder_ / "A Trial, Short.abc";
    const fs::path target_ = folder_ / "A Trial, Short.mid";
    const fs::path complaint_ = folder_ / "complaint";
};

TEST_F(CompileTune, TakesATuneWhoseBarsAreFull) {
    EXPECT_EQ(Compile("E D C"), 0);
    EXPECT_EQ(Contents(target_).substr(0, 4), "MThd");
    EXPECT_EQ(Contents(complaint_), "");
}

TEST_F(CompileTune, RefusesABarThatIsTooLongAndLeavesNoFile) {
    EXPECT_NE(Compile("E D C D"), 0);
    EXPECT_FALSE(fs::exists(target_));
    EXPECT_TRUE(Contents(complaint_).starts_with(source_.string() + ": not compiled\n"));
    EXPECT_NE(Contents(complaint_).find("/A Trial, Short.abc:6:16: Track 0 Bar 1 has 4 time units"),
              std::string::npos);
}

TEST_F(CompileTune, RefusesWhatIsNoNoteAndLeavesNoFile) {
    EXPECT_NE(Compile("E ? C"), 0);
    EXPECT_FALSE(fs::exists(target_));
}

TEST_F(CompileTune, RefusesATuneWithoutANoteAndLeavesNoFile) {
    EXPECT_NE(CompileBars("z3 |]"), 0);
    EXPECT_FALSE(fs::exists(target_));
    EXPECT_EQ(Contents(complaint_),
              source_.string() + ": not compiled\n" + target_.string() + ": has no note\n");
}

TEST_F(CompileTune, EndsEveryTrackABeatAfterTheLastNoteAtTheLatest) {
    ASSERT_EQ(CompileBars("V:1\nC3 | C2 z | z3 |\n[Q:1/4=60] z3 |]\nV:2\nC3 | z3 | z3 | z3 |]"), 0);
    const Tune tune = Load(target_);
    EXPECT_EQ(LastTick(tune), 5 * tune.ticks_per_crotchet);
    ASSERT_EQ(tune.track_ends.size(), 3U);
    for (long end : tune.track_ends) EXPECT_LE(end, 6 * tune.ticks_per_crotchet);
}

TEST_F(CompileTune, LeavesNoControllerInATrackWithoutNotesWhereItWouldComeTooEarly) {
    ASSERT_EQ(CompileBars("V:1\nC3 |\n%%MIDI control 11 50\nC3 |]\nV:2\nE3 | E3 |]"), 0);
    const Tune tune = Load(target_);
    EXPECT_EQ(tune.stray_controllers, 0);
    ASSERT_EQ(tune.voices.at(0).notes.size(), 2U);
    // 50 of 127 takes 16.2 dB away.
    EXPECT_NEAR(tune.voices[0].notes[1].level - tune.voices[0].notes[0].level, -16.2, 0.1);
}

}  // namespace
}  // namespace quendrel::tunes
