// How the tunes sound: how loud they are, how soon they are over, and whether what has the melody
// is heard.
#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Passed.h"
#include "Tune.h"
#include "TuneBalance.h"
#include "TuneSound.h"

namespace quendrel::tunes {
namespace {

/// What all tunes keep to within 2 dB, so that no two are more than 4 dB apart.
constexpr double kLoudness = -28;

/// From the end of the last note until the tune is over, in seconds: nearly all of it is decay.
constexpr double kSilence = 3;

/// From the first note to the end of the last.
std::vector<double> PowerWhileItLasts(const Tune& tune, const Sound& sound) {
    const std::size_t first = WindowOf(tune, FirstTick(tune));
    const std::size_t last = std::min(WindowOf(tune, LastTick(tune)), sound.power.size());
    return {sound.power.begin() + static_cast<std::ptrdiff_t>(first),
            sound.power.begin() + static_cast<std::ptrdiff_t>(last)};
}

double LongestSilence(const std::vector<double>& power) {
    int longest = 0;
    int silent = 0;
    for (double one : power) {
        silent = Decibels(one) < -60 ? silent + 1 : 0;
        longest = std::max(longest, silent);
    }
    return longest * static_cast<double>(kWindow) / kSampleRate;
}

/// How long a tune goes on after its last note has ended.
double SilenceAfter(const Tune& tune, const Sound& sound) {
    return sound.seconds() - Seconds(tune, LastTick(tune));
}

/// The loudness of one voice alone over the time in which its notes last, in dB.
double LoudnessWhileNotesLast(const Tune& tune, const Voice& voice, const Sound& sound) {
    std::vector<double> lasting;
    for (std::size_t i : WindowsOf(tune, voice.notes, sound)) {
        lasting.push_back(Sum(sound.channels.at(ChannelOf(voice)).at(i)));
    }
    return Decibels(Mean(lasting));
}

/// A tune of a test, and how it sounds.
struct Heard {
    explicit Heard(const std::string& written) {
        const Folder folder;
        WriteTune(folder / "Trial.mid", written);
        tune = Load(folder / "Trial.mid");
        sound = Play(folder / "Trial.mid", tune);
    }

    Tune tune;
    Sound sound;
};

/// How loud the flute is from there on.
constexpr const char* kSoft = "%%MIDI control 7 50\n";
constexpr const char* kLoud = "%%MIDI control 7 127\n";

/// So many bars of the flute over a harp, after what the flute is told first.
Heard FluteOverHarp(int bars, const std::string& told, const std::string& melody) {
    std::string harp;
    for (int bar = 0; bar < bars; ++bar) harp += "C/E/G/E/ C/E/G/E/ | ";
    return Heard(
        "M:4/4\nL:1/4\nQ:1/4=90\nK:C\n"
        "V:1\n%%MIDI program 73\n" +
        told + "[r:melody] " + melody + "V:2\n%%MIDI program 46\n" + harp + "\n");
}

TEST(CheckOfSilence, FindsATuneThatIsNotOver) {
    Heard box("M:4/4\nL:1/4\nK:C\n%%MIDI program 10\nC D E F | C4 |]\n");
    EXPECT_LE(SilenceAfter(box.tune, box.sound), kSilence);
    EXPECT_GT(SilenceAfter(box.tune, box.sound), 2);
    box.sound.power.resize(box.sound.power.size() + 20);
    EXPECT_GT(SilenceAfter(box.tune, box.sound), kSilence);
}

TEST(CheckOfBalance, FindsAMelodyUnderTheRest) {
    const Heard loud = FluteOverHarp(2, "", "c e g e | f e d c |\n");
    EXPECT_EQ(HardToHear(loud.tune, loud.sound), "");
    const Heard soft = FluteOverHarp(2, kSoft, "c e g e | f e d c |\n");
    const Faults faults = HardToHear(soft.tune, soft.sound);
    EXPECT_TRUE(faults.starts_with("voice 1, bar 1 to 2: ")) << faults;
    EXPECT_NE(faults.find(" dB under the rest\n"), Faults::npos) << faults;
}

TEST(CheckOfBalance, FindsAnAnswerUnderTheRestBeforeALoudMelody) {
    const std::string bars = "c e g e | f e d c |\n";
    const Heard heard =
        FluteOverHarp(4, kSoft, "[r:answer] " + bars + kLoud + "[r:melody] " + bars);
    const Faults faults = HardToHear(heard.tune, heard.sound);
    EXPECT_TRUE(faults.starts_with("voice 1, bar 1 to 2: ")) << faults;
    EXPECT_EQ(faults.find("bar 3"), Faults::npos) << faults;
}

TEST(CheckOfBalance, FindsFourBarsUnderTheRestInALongMelody) {
    const std::string bars = "c e g e | f e d c | e g c e | d c e g |\n";
    const Heard heard = FluteOverHarp(16, kLoud, bars + kSoft + bars + kLoud + bars + bars);
    const Faults faults = HardToHear(heard.tune, heard.sound);
    EXPECT_NE(faults.find("voice 1, bar 5 to 8: "), Faults::npos) << faults;
    EXPECT_EQ(faults.find("bar 1 to 4: "), Faults::npos) << faults;
    EXPECT_EQ(faults.find("bar 9 to 12: "), Faults::npos) << faults;
}

TEST(CheckOfBalance, FindsAMotifUnderTheRest) {
    const Heard heard = FluteOverHarp(2, kSoft, "[r:motif] c e g e | f e d c |\n");
    EXPECT_TRUE(HardToHear(heard.tune, heard.sound).starts_with("voice 1, bar 1 to 2: "));
}

TEST(CheckOfBalance, FindsNotesThatAreMaskedWhereTheOthersAreLoud) {
    const Heard heard = FluteOverHarp(2, kLoud, "c e g e |\n%%MIDI control 11 30\n F E D C |\n");
    EXPECT_EQ(HardToHear(heard.tune, heard.sound),
              "voice 1, bar 1 to 2: 50.0 % of the notes masked\n");
}

TEST(CheckOfBalance, LeavesTheOtherVoicesAlone) {
    const Heard heard = FluteOverHarp(2, kSoft, "[r:inner] c e g e | f e d c |\n");
    EXPECT_EQ(HardToHear(heard.tune, heard.sound), "");
}

void ExpectThatItSoundsRight(const std::filesystem::path& path) {
    const Tune tune = Load(path);
    const Sound sound = Play(path, tune);
    EXPECT_LT(sound.peak, 0.9);
    const std::vector<double> power = PowerWhileItLasts(tune, sound);
    EXPECT_LE(LongestSilence(power), 3);
    EXPECT_NEAR(Decibels(Mean(power)), kLoudness, 2);
    EXPECT_LE(SilenceAfter(tune, sound), kSilence);
    for (const Voice& voice : tune.voices) {
        EXPECT_GT(LoudnessWhileNotesLast(tune, voice, sound), -60)
            << "channel " << *voice.channels.begin();
    }
    EXPECT_EQ(HardToHear(tune, sound), "");
}

class SoundOfEveryTune : public testing::TestWithParam<std::filesystem::path> {};

// One test, as playing a tune takes a second.
TEST_P(SoundOfEveryTune,
       IsAsLoudAsAnyWithEveryVoiceHeardAndIsNeitherClippedNorBrokenOffNorLateToEnd) {
    const Passed passed(Contents("/proc/self/exe") + fluid_version_str(),
                        {{"tune", Contents(GetParam())}, {"font", Contents(kSoundFont)}});
    if (passed.before()) {
        std::cout << GetParam().filename() << " has passed before with these very bits\n";
        return;
    }
    ExpectThatItSoundsRight(GetParam());
    if (!HasFailure()) passed.Remember();
}

INSTANTIATE_TEST_SUITE_P(Music, SoundOfEveryTune, testing::ValuesIn(Tunes()), NameOfTune);

}  // namespace
}  // namespace quendrel::tunes
