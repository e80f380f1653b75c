// What a musician would find wrong in the tunes as they are written. Every check is shown a tune
// without its fault and one with it first.
#include <filesystem>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Tune.h"
#include "TuneChecks.h"

namespace quendrel::tunes {
namespace {

namespace fs = std::filesystem;

constexpr const char* kQuietly = "%%MIDI nobeataccents\n";

/// A tune in 4/4 and C whose voices stand one below the other.
Tune InFour(const std::string& voices) { return Written("M:4/4\nL:1/4\nK:C\n" + voices); }

TEST(CheckOfEnds, FindsATrackThatEndsLate) {
    Tune tune = InFour("C D E F | C4 |]\n");
    EXPECT_EQ(LateEnds(tune), "");
    tune.track_ends.back() = LastTick(tune) + 481;
    EXPECT_EQ(LateEnds(tune), "track 1 ends 481 ticks after the last note\n");
}

TEST(CheckOfAccents, FindsTheCompilersOwn) {
    const std::string bars = "C D E F | G F E D | C D E F | G F E D | C D E F | G F E D |]\n";
    EXPECT_EQ(AccidentalAccents(InFour(kQuietly + bars)), "");
    // 75 on the first beat and 65 on the others are 2.5 dB; the tune's first note has none before
    // it.
    EXPECT_EQ(AccidentalAccents(InFour("!mp!" + bars)),
              "voice 1, bar 1 on: place 0 of the bar is 2.4 dB louder than place 48\n");
}

TEST(CheckOfAccents, LeavesALongSwellAlone) {
    std::string bars = kQuietly;
    for (int beat = 0; beat < 28; ++beat) {
        bars += "%%MIDI control 11 " + std::to_string(30 + 3 * beat) + "\n";
        bars += beat % 4 == 3 ? "D |\n" : "C\n";
    }
    EXPECT_EQ(AccidentalAccents(InFour(bars)), "");
}

TEST(CheckOfPhrases, FindsOneThatStandsStill) {
    EXPECT_EQ(FlatPhrases(InFour("%%MIDI nobeataccents\n!p! C D E F | !mp! G F E D | "
                                 "!mf! C D E F | !mp! G4 |]\n")),
              "");
    EXPECT_EQ(FlatPhrases(InFour("%%MIDI nobeataccents\n!p! C D E F | !mp! G F E D | C D E F | "
                                 "G F E D | C D E F | !p! G4 |]\n")),
              "voice 1, bar 2: four bars within 0.0 dB\n");
}

TEST(CheckOfPhrases, HearsTheControllersToo) {
    EXPECT_EQ(FlatPhrases(InFour("%%MIDI nobeataccents\nC D E F |\n%%MIDI control 11 100\n"
                                 "G F E D |\n%%MIDI control 11 127\nC D E F | G4 |]\n")),
              "");
}

TEST(CheckOfMelodies, FindsFiveBarsWithoutOne) {
    const std::string bars = "C4 | C4 | C4 | C4 |";
    EXPECT_EQ(NoMelody(InFour(bars + "[r:melody] C D E F | [r:inner] " + bars)), "");
    EXPECT_EQ(NoMelody(InFour(bars + "C4 | [r:answer] C D E F | [r:bass] " + bars + "C4 |")),
              "no voice has the melody for 5 bars from bar 1 on\n"
              "no voice has the melody for 5 bars from bar 7 on\n");
    EXPECT_EQ(NoMelody(InFour("[r:motif] C4 | " + bars)),
              "no voice has the melody for 5 bars from bar 1 on\n");
}

TEST(CheckOfParallels, FindsFifths) {
    EXPECT_EQ(Parallels(InFour("V:1\nG A G2 |\nV:2\nC E E2 |\n")), "");
    EXPECT_EQ(Parallels(InFour("V:1\nG A G2 |\nV:2\nC D E2 |\n")),
              "voice 1, bar 1, with voice 2, bar 1: parallel fifths\n");
}

TEST(CheckOfParallels, FindsOctavesAndUnisonsAcrossABarLine) {
    EXPECT_EQ(Parallels(InFour("V:1\nz2 G2 | A4 |\nV:2\nE E G,,2 | A,,4 |\n")),
              "voice 1, bar 2, with voice 2, bar 2: parallel octaves\n");
    EXPECT_EQ(Parallels(InFour("V:1\nz2 G2 | A4 |\nV:2\nz2 G2 | A4 |\n")),
              "voice 1, bar 2, with voice 2, bar 2: parallel octaves\n");
}

TEST(CheckOfParallels, LeavesAloneWhatStandsOrGoesApartOrIsAChord) {
    EXPECT_EQ(Parallels(InFour("V:1\nG G c2 |\nV:2\nC C C,2 |\n")), "");
    EXPECT_EQ(Parallels(InFour("V:1\n[EG] [FA] G2 |\nV:2\nC D E2 |\n")), "");
    EXPECT_EQ(Parallels(InFour("V:1\nG z A2 |\nV:2\nC z D2 |\n")), "");
}

TEST(CheckOfParallels, LeavesAloneWhatDoublesOrOnlyAccompanies) {
    for (const std::string role : {"double", "figure", "motif"}) {
        EXPECT_EQ(Parallels(InFour("V:1\nG A G2 |\nV:2\n[r:" + role + "] C D E2 |\n")), "");
    }
}

std::string Times(int count, const std::string& bar) {
    std::string bars;
    for (int i = 0; i < count; ++i) bars += bar;
    return bars;
}

TEST(CheckOfFigures, FindsOneOfNineBarsWhateverItsChords) {
    const std::string chords = Times(4, "C E G E | F, A, C A, | ");
    EXPECT_EQ(LongFigures(InFour(chords + "C G E c | C4 |]\n")), "");
    EXPECT_EQ(LongFigures(InFour(chords + "G, B, D B, | C4 |]\n")),
              "voice 1, bar 1: 9 bars with one figure\n");
}

TEST(CheckOfFigures, FindsOneOfTwoBarsAndOneAcrossTheBarLine) {
    EXPECT_EQ(LongFigures(InFour(Times(5, "C E G2 | G E C2 | ") + "C4 |]\n")),
              "voice 1, bar 1: 10 bars with one figure\n");
    std::string bars = "z3 C | ";
    for (char first : std::string("FFCFCCFFFC")) bars += std::string("G B E ") + first + " | ";
    EXPECT_EQ(LongFigures(InFour(bars + "C4 |]\n")), "voice 1, bar 1: 10 bars with one figure\n");
}

TEST(CheckOfFigures, FindsOneThatMustBeHeard) {
    EXPECT_EQ(LongFigures(InFour("[r:motif] " + Times(9, "C E G E | ") + "C4 |]\n")),
              "voice 1, bar 1: 9 bars with one figure\n");
}

TEST(CheckOfFigures, LeavesTheMelodyAndABassOfWholeBarsAlone) {
    EXPECT_EQ(LongFigures(InFour("[r:melody] " + Times(9, "C E G E | ") + "C4 |]\n")), "");
    EXPECT_EQ(LongFigures(InFour(Times(10, "C4 | "))), "");
}

TEST(CheckOfWhatIsShared, FindsFourTunesWithTheSame) {
    std::map<std::string, std::string> keys{
        {"One", "D"}, {"Two", "D"}, {"Three", "D"}, {"Four", "G"}};
    EXPECT_EQ(SharedTooOften(keys), "");
    keys["Four"] = "D";
    EXPECT_EQ(SharedTooOften(keys), "D: Four, One, Three, Two\n");
}

TEST(CheckOfLineUps, CountsEveryProgramOnceWhateverTheirOrder) {
    EXPECT_EQ(LineUpOf(InFour("V:1\n%%MIDI program 73\nC4 |\nV:2\n%%MIDI program 42\nC4 |\n"
                              "V:3\n%%MIDI program 73\nE4 |\n")),
              "42 73");
}

TEST(CheckOfSources, FindsALineThatIsMissingOrSaysTooLittle) {
    EXPECT_EQ(SourceNotSaid("X:1\nS:first printed in Edinburgh, 1792; form: AABB\nK:C\n"), "");
    EXPECT_EQ(SourceNotSaid("S:our own; form: ABA\n"), "");
    EXPECT_EQ(SourceNotSaid("X:1\nK:C\n"), "there is no line S:\n");
    EXPECT_EQ(SourceNotSaid("S:noted in 1947; form: AABB\n"),
              "S: neither has a year before 1928 nor says \"our own\"\n");
    EXPECT_EQ(SourceNotSaid("S:our own\n"), "S: has no \"form: ...\"\n");
}

TEST(RemarksOnVoices, HoldUntilTheNextOne) {
    const Tune tune = InFour("V:1\nC [r:melody] D E [r:answer] F | G4 |\nV:2\nC4 | C4 |\n");
    std::vector<Role> roles;
    for (const Note& note : tune.voices.at(0).notes) roles.push_back(note.role);
    EXPECT_EQ(roles, (std::vector<Role>{Role::kInner, Role::kMelody, Role::kMelody, Role::kAnswer,
                                        Role::kAnswer}));
    EXPECT_EQ(tune.voices.at(1).notes.front().role, Role::kInner);
    EXPECT_THROW(InFour("C [r:melodi] D E F |\n"), std::runtime_error);
}

class NotesOfEveryTune : public testing::TestWithParam<fs::path> {
protected:
    const Tune tune_ = Load(GetParam());
};

TEST_P(NotesOfEveryTune, AreFollowedByNoMoreThanABeatOfSilence) { EXPECT_EQ(LateEnds(tune_), ""); }

TEST_P(NotesOfEveryTune, HaveNoAccentsByAccident) { EXPECT_EQ(AccidentalAccents(tune_), ""); }

TEST_P(NotesOfEveryTune, SwellInEveryPhrase) { EXPECT_EQ(FlatPhrases(tune_), ""); }

TEST_P(NotesOfEveryTune, LeadNoIndependentVoicesInParallels) { EXPECT_EQ(Parallels(tune_), ""); }

TEST_P(NotesOfEveryTune, KeepNoFigureForMoreThanEightBars) {
    // In these two the figure is the piece.
    for (const char* name : {"Prelude in C", "Gymnopedie No. 1"}) {
        if (GetParam().stem() == name) return;
    }
    EXPECT_EQ(LongFigures(tune_), "");
}

TEST_P(NotesOfEveryTune, AreTheMelodyOfSomeVoiceAtAnyTime) { EXPECT_EQ(NoMelody(tune_), ""); }

TEST_P(NotesOfEveryTune, ComeFromASourceThatIsSaid) {
    EXPECT_EQ(SourceNotSaid(Contents(SourceOf(GetParam()))), "");
}

INSTANTIATE_TEST_SUITE_P(Music, NotesOfEveryTune, testing::ValuesIn(Tunes()), NameOfTune);

TEST(MusicFolder, SharesNoLineUpAmongMoreThanThreeTunes) {
    std::map<std::string, std::string> lineUps;
    for (const fs::path& tune : Tunes()) lineUps[tune.stem()] = LineUpOf(Load(tune));
    EXPECT_EQ(SharedTooOften(lineUps), "");
}

TEST(MusicFolder, SharesNoKeyAmongMoreThanThreeTunes) {
    std::map<std::string, std::string> keys;
    for (const fs::path& tune : Tunes()) keys[tune.stem()] = FieldOf(Contents(SourceOf(tune)), 'K');
    EXPECT_EQ(SharedTooOften(keys), "");
}

}  // namespace
}  // namespace quendrel::tunes
