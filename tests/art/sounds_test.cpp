// The eleven sounds as they lie beside the game: their format, how they begin and end, how loud
// they are, and which notes the two marks play. Every figure is measured here from the files.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <numbers>
#include <numeric>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace quendrel::sounds {
namespace {

constexpr double kRate = 44100;

constexpr std::array<std::string_view, 4> kClicks{"BigClick.wav", "MediumClick.wav",
                                                  "SmallClick.wav", "SelectColor.wav"};
constexpr std::array<std::string_view, 5> kPlacements{"PutColor.wav", "Black.wav", "White.wav",
                                                      "ShowCode.wav", "StartGame.wav"};
constexpr std::array<std::string_view, 2> kVerdicts{"GotIt.wav", "NoGood.wav"};

/// How alike the beginnings of two sounds may be at most (Likeness).
constexpr double kAlike = 0.75;

struct Wave {
    unsigned coding = 0;
    unsigned channels = 0;
    unsigned rate = 0;
    unsigned bits = 0;
    /// Both channels in turn, full scale being 1.
    std::vector<double> samples;
};

double Milliseconds(std::size_t sample) { return static_cast<double>(sample) / 2 / kRate * 1000; }

/// The place among the samples of both channels.
std::size_t PlaceAt(double milliseconds) {
    return 2 * static_cast<std::size_t>(milliseconds * kRate / 1000);
}

unsigned Number(std::string_view bytes, std::size_t at, std::size_t length) {
    if (at + length > bytes.size()) throw std::runtime_error("a wave file that is cut short");
    unsigned value = 0;
    for (std::size_t i = length; i-- > 0;) {
        value = value * 256 + static_cast<unsigned char>(bytes[at + i]);
    }
    return value;
}

void ReadChunk(std::string_view name, std::string_view body, Wave& wave) {
    if (name == "fmt ") {
        wave.coding = Number(body, 0, 2);
        wave.channels = Number(body, 2, 2);
        wave.rate = Number(body, 4, 4);
        wave.bits = Number(body, 14, 2);
    } else if (name == "data") {
        for (std::size_t at = 0; at < body.size(); at += 2) {
            const auto sample = static_cast<std::int16_t>(Number(body, at, 2));
            wave.samples.push_back(sample / 32768.0);
        }
    }
}

Wave Load(std::string_view name) {
    const auto path = std::filesystem::path(QUENDREL_SOUND_FOLDER) / name;
    std::ifstream stream(path, std::ios::binary);
    const std::string file{std::istreambuf_iterator<char>(stream), {}};
    const std::string_view bytes = file;
    if (bytes.substr(0, 4) != "RIFF" || bytes.size() != Number(bytes, 4, 4) + 8 ||
        bytes.substr(8, 4) != "WAVE") {
        throw std::runtime_error(path.string() + " is no wave file");
    }
    Wave wave;
    for (std::size_t at = 12; at < bytes.size();) {
        const std::size_t length = Number(bytes, at + 4, 4);
        ReadChunk(bytes.substr(at, 4), bytes.substr(at + 8, length), wave);
        at += 8 + length + length % 2;
    }
    return wave;
}

double Decibels(double amplitude) { return 20 * std::log10(amplitude); }

double Peak(std::span<const double> samples) {
    double peak = 0;
    for (double sample : samples) peak = std::max(peak, std::abs(sample));
    return peak;
}

double Energy(std::span<const double> samples) {
    double energy = 0;
    for (double sample : samples) energy += sample * sample;
    return energy;
}

/// The root of the mean square over the loudest 50 ms, taken every millisecond, in dB.
double Loudness(const Wave& wave) {
    const std::size_t window = PlaceAt(50);
    double loudest = 0;
    for (std::size_t at = 0; at + window <= wave.samples.size(); at += PlaceAt(1)) {
        loudest = std::max(loudest, Energy({wave.samples.data() + at, window}));
    }
    return Decibels(std::sqrt(loudest / static_cast<double>(window)));
}

/// When the sound was last within 40 dB of its peak, in milliseconds.
double HeardUntil(const Wave& wave) {
    const double audible = Peak(wave.samples) / 100;
    std::size_t at = wave.samples.size();
    while (at > 0 && std::abs(wave.samples[at - 1]) < audible) --at;
    return Milliseconds(at);
}

/// How strong a pitch is in a stretch of both channels: Goertzel's measure. `weight` tells how much
/// counts what comes after a share of the stretch.
double StrengthOf(double hertz, std::span<const double> samples, double (*weight)(double)) {
    const double factor = 2 * std::cos(2 * std::numbers::pi * hertz / kRate);
    double previous = 0;
    double before = 0;
    for (std::size_t at = 0; at + 1 < samples.size(); at += 2) {
        const double passed = static_cast<double>(at) / static_cast<double>(samples.size());
        const double sample = weight(passed) * (samples[at] + samples[at + 1]);
        const double now = sample + factor * previous - before;
        before = previous;
        previous = now;
    }
    return previous * previous + before * before - factor * previous * before;
}

/// Keeps neighbouring pitches apart.
double FadedInAndOut(double passed) { return 1 - std::cos(2 * std::numbers::pi * passed); }

/// Weights the beginning most, so that the blow counts.
double FadedOut(double passed) { return 1 + std::cos(std::numbers::pi * passed); }

/// The strongest pitch from 100 to 3000 Hz, to the nearest whole Hz, from 60 to 360 ms.
double StrongestPitch(const Wave& wave) {
    const auto ringing = std::span(wave.samples).subspan(PlaceAt(60), PlaceAt(300));
    double best = 0;
    double strongest = 0;
    for (int whole = 100; whole <= 3000; ++whole) {
        const double hertz = whole;
        const double strength = StrengthOf(hertz, ringing, FadedInAndOut);
        if (strength > strongest) {
            strongest = strength;
            best = hertz;
        }
    }
    return best;
}

/// Which pitches a sound begins with: the amplitudes of its first 150 ms at every quarter tone over
/// six octaves, their squares adding up to 1.
std::vector<double> BeginningOf(const Wave& wave) {
    const auto samples = std::span(wave.samples);
    const auto beginning = samples.first(std::min(samples.size(), PlaceAt(150)));
    std::vector<double> amplitudes;
    double sum = 0;
    for (int quarter = 0; quarter < 6 * 24; ++quarter) {
        const double strength = StrengthOf(110 * std::exp2(quarter / 24.0), beginning, FadedOut);
        amplitudes.push_back(std::sqrt(strength));
        sum += strength;
    }
    for (double& amplitude : amplitudes) amplitude /= std::sqrt(sum);
    return amplitudes;
}

/// 1 where two sounds begin in the same way, 0 where they have no pitch in common.
double Likeness(const std::vector<double>& one, const std::vector<double>& other) {
    return std::inner_product(one.begin(), one.end(), other.begin(), 0.0);
}

/// The energy above 8 kHz as a share of the whole, in dB: a sharp fourth-order high pass on the
/// left channel.
double ShareAboveEightKilohertz(const Wave& wave) {
    std::vector<double> left;
    for (std::size_t at = 0; at < wave.samples.size(); at += 2) left.push_back(wave.samples[at]);
    const double whole = Energy(left);
    const double angle = 2 * std::numbers::pi * 8000 / kRate;
    for (double quality : {0.5412, 1.3066}) {
        const double width = std::sin(angle) / (2 * quality);
        const double cosine = std::cos(angle);
        double in1 = 0;
        double in2 = 0;
        double out1 = 0;
        double out2 = 0;
        for (double& sample : left) {
            const double passed = (1 + cosine) / 2 * (sample - 2 * in1 + in2);
            const double out = (passed + 2 * cosine * out1 - (1 - width) * out2) / (1 + width);
            in2 = in1;
            in1 = sample;
            out2 = out1;
            out1 = out;
            sample = out;
        }
    }
    return 10 * std::log10(Energy(left) / whole);
}

void ExpectEqualLoudness(std::span<const std::string_view> names) {
    double quietest = 0;
    double loudest = -200;
    for (std::string_view name : names) {
        const double loudness = Loudness(Load(name));
        quietest = std::min(quietest, loudness);
        loudest = std::max(loudest, loudness);
    }
    EXPECT_GT(quietest, -30);
    EXPECT_LT(loudest - quietest, 3);
}

class EverySound : public testing::TestWithParam<std::string_view> {
protected:
    const Wave wave_ = Load(GetParam());
};

TEST_P(EverySound, IsStereoAt44100HzWith16Bits) {
    EXPECT_EQ(wave_.coding, 1U);
    EXPECT_EQ(wave_.channels, 2U);
    EXPECT_EQ(wave_.rate, 44100U);
    EXPECT_EQ(wave_.bits, 16U);
}

TEST_P(EverySound, IsHeardWithinFiveMilliseconds) {
    const double audible = Peak(wave_.samples) / 10;
    const auto heard = std::find_if(wave_.samples.begin(), wave_.samples.end(),
                                    [&](double sample) { return std::abs(sample) >= audible; });
    EXPECT_LT(Milliseconds(static_cast<std::size_t>(heard - wave_.samples.begin())), 5);
}

TEST_P(EverySound, PeaksBelowMinusThreeDecibels) {
    EXPECT_LT(Decibels(Peak(wave_.samples)), -3);
    EXPECT_GT(Decibels(Peak(wave_.samples)), -20);
}

TEST_P(EverySound, BeginsAndEndsInSilence) {
    const std::span<const double> samples = wave_.samples;
    EXPECT_LE(Peak(samples.first(2)), 0.002);
    EXPECT_LE(Peak(samples.last(PlaceAt(3))), 0.0005);
    EXPECT_LE(Peak(samples.last(2)), 0.00005);
}

TEST_P(EverySound, SwingsAboutZero) {
    double sum = 0;
    for (double sample : wave_.samples) sum += sample;
    EXPECT_NEAR(sum / static_cast<double>(wave_.samples.size()), 0, 0.001);
}

TEST_P(EverySound, HoldsNextToNothingAboveEightKilohertz) {
    EXPECT_LT(ShareAboveEightKilohertz(wave_), -40);
}

std::string NameWithoutEnding(const testing::TestParamInfo<std::string_view>& test) {
    return std::filesystem::path(test.param).stem().string();
}

INSTANTIATE_TEST_SUITE_P(Clicks, EverySound, testing::ValuesIn(kClicks), NameWithoutEnding);
INSTANTIATE_TEST_SUITE_P(Placements, EverySound, testing::ValuesIn(kPlacements), NameWithoutEnding);
INSTANTIATE_TEST_SUITE_P(Verdicts, EverySound, testing::ValuesIn(kVerdicts), NameWithoutEnding);

TEST(SoundFolder, HoldsTheElevenSoundsAndNothingElse) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(QUENDREL_SOUND_FOLDER)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{"BigClick.wav", "Black.wav", "GotIt.wav",
                                               "MediumClick.wav", "NoGood.wav", "PutColor.wav",
                                               "SelectColor.wav", "ShowCode.wav", "SmallClick.wav",
                                               "StartGame.wav", "White.wav"}));
}

TEST(SoundFolder, HoldsNoTwoSoundsThatBeginAlike) {
    std::map<std::string, std::vector<double>> beginnings;
    for (const auto& entry : std::filesystem::directory_iterator(QUENDREL_SOUND_FOLDER)) {
        const std::string name = entry.path().filename();
        beginnings[name] = BeginningOf(Load(name));
    }
    for (auto one = beginnings.begin(); one != beginnings.end(); ++one) {
        for (auto other = std::next(one); other != beginnings.end(); ++other) {
            const double likeness = Likeness(one->second, other->second);
            EXPECT_LT(likeness, kAlike) << one->first << " and " << other->first;
        }
    }
}

TEST(Clicks, LastUnder150Milliseconds) {
    for (std::string_view name : kClicks) {
        EXPECT_LT(Milliseconds(Load(name).samples.size()), 150) << name;
    }
}

TEST(Clicks, AreEquallyLoudWithinThreeDecibels) { ExpectEqualLoudness(kClicks); }

TEST(Placements, AreEquallyLoudWithinThreeDecibels) { ExpectEqualLoudness(kPlacements); }

TEST(Verdicts, AreEquallyLoudWithinThreeDecibels) { ExpectEqualLoudness(kVerdicts); }

TEST(GotIt, LastsAboutTwoSeconds) {
    const Wave wave = Load("GotIt.wav");
    EXPECT_LT(Milliseconds(wave.samples.size()), 2600);
    EXPECT_GT(HeardUntil(wave), 1600);
}

TEST(ShowCode, HasDiedAwayBeforeTheNextLidOpens) {
    EXPECT_LT(HeardUntil(Load("ShowCode.wav")), 650);
}

TEST(StartGame, CoversTheHalfSecondInWhichTheCoversClose) {
    EXPECT_GT(HeardUntil(Load("StartGame.wav")), 500);
}

TEST(Black, PlaysD5) { EXPECT_NEAR(StrongestPitch(Load("Black.wav")), 587.33, 1.5); }

TEST(White, PlaysA4WhichIsAFourthBelowBlack) {
    EXPECT_NEAR(StrongestPitch(Load("White.wav")), 440.00, 1.5);
}

TEST(Black, RingsLongerThanWhite) {
    EXPECT_GT(HeardUntil(Load("Black.wav")), HeardUntil(Load("White.wav")) + 50);
}

}  // namespace
}  // namespace quendrel::sounds
