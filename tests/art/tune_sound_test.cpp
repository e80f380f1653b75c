// How the tunes sound: loudness, silence, and whether what has the melody is heard.
#include <filesystem>

#include <gtest/gtest.h>

#include "Tune.h"
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

class SoundOfEveryTune : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(SoundOfEveryTune, IsAsLoudAsAnyWithEveryVoiceHeardAndIsNeitherClippedNorBrokenOff) {
    const Tune tune = Load(GetParam());
    const Sound sound = Play(GetParam(), tune);
    EXPECT_LT(sound.peak, 0.9);
    const std::vector<double> power = PowerWhileItLasts(tune, sound);
    EXPECT_LE(LongestSilence(power), 3);
    EXPECT_NEAR(Decibels(Mean(power)), kLoudness, 2);
    EXPECT_LE(SilenceAfter(tune, sound), kSilence);
    for (const Voice& voice : tune.voices) {
        EXPECT_GT(LoudnessWhileNotesLast(tune, voice, sound), -60)
            << "channel " << *voice.channels.begin();
    }
}

std::string NameOfTuneOfSound(const testing::TestParamInfo<std::filesystem::path>& test) {
    return LettersOf(test.param);
}

INSTANTIATE_TEST_SUITE_P(Music, SoundOfEveryTune, testing::ValuesIn(Tunes()), NameOfTuneOfSound);

}  // namespace
}  // namespace quendrel::tunes
