// The tunes as they lie beside the game: what is written in their MIDI files, and how they sound
// when the synthesizer plays them. The reader of MIDI files here is the test's own.
#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <fluidsynth.h>
#include <gtest/gtest.h>

namespace quendrel::tunes {
namespace {

namespace fs = std::filesystem;

constexpr const char* kSoundFont = "/usr/share/sounds/sf2/TimGM6mb.sf2";
constexpr double kRate = 44100;
constexpr double kGain = 0.6;

// ---- What is written in a MIDI file ----

struct Note {
    int key = 0;
    int velocity = 0;
    long start = 0;
    long end = 0;
};

/// A track that has notes.
struct Voice {
    std::set<int> channels;
    bool program_comes_first = false;
    int overlapping = 0;
    int unended = 0;
    std::vector<Note> notes;
};

struct Tune {
    long ticks_per_crotchet = 0;
    /// Microseconds to a crotchet, by the tick from which they hold.
    std::map<long, long> tempos;
    std::vector<Voice> voices;
};

class Bytes {
public:
    explicit Bytes(std::string_view bytes) : bytes_(bytes) {}

    bool AtEnd() const { return at_ == bytes_.size(); }

    std::string_view Take(std::size_t length) {
        if (length > bytes_.size() - at_) throw std::runtime_error("a MIDI file that is cut short");
        at_ += length;
        return bytes_.substr(at_ - length, length);
    }
    int Byte() { return static_cast<unsigned char>(Take(1)[0]); }
    int Peek() const { return static_cast<unsigned char>(bytes_.at(at_)); }

    long Number(std::size_t length) {
        long value = 0;
        while (length-- > 0) value = value * 256 + Byte();
        return value;
    }

    /// A number of seven bits to a byte, the last byte being below 128.
    long Quantity() {
        long value = 0;
        int byte = 128;
        while (byte >= 128) {
            byte = Byte();
            value = value * 128 + byte % 128;
        }
        return value;
    }

private:
    std::string_view bytes_;
    std::size_t at_ = 0;
};

/// Reads one track into the tune.
class Track {
public:
    Track(std::string_view bytes, Tune& tune) : bytes_(bytes), tune_(tune) {
        while (!bytes_.AtEnd()) {
            tick_ += bytes_.Quantity();
            ReadEvent();
        }
        voice_.unended = static_cast<int>(sounding_.size());
        if (!voice_.notes.empty()) tune_.voices.push_back(voice_);
    }

private:
    void ReadEvent() {
        // Where the status byte is missing, the last one still holds.
        if (bytes_.Peek() >= 0x80) status_ = bytes_.Byte();
        if (status_ == 0xFF) {
            const int type = bytes_.Byte();
            ReadMeta(type, bytes_.Take(static_cast<std::size_t>(bytes_.Quantity())));
        } else if (status_ >= 0xF0) {
            bytes_.Take(static_cast<std::size_t>(bytes_.Quantity()));
        } else if (status_ / 16 == 0xC) {
            bytes_.Byte();
            voice_.program_comes_first = voice_.program_comes_first || voice_.channels.empty();
        } else if (status_ / 16 == 0xD) {
            bytes_.Byte();
        } else {
            const int first = bytes_.Byte();
            ReadNote(status_ / 16, first, bytes_.Byte());
        }
    }

    void ReadMeta(int type, std::string_view body) {
        if (type == 0x51) tune_.tempos[tick_] = Bytes(body).Number(3);
    }

    void ReadNote(int kind, int key, int velocity) {
        const auto note = sounding_.find(key);
        if (kind == 9 && velocity > 0) {
            voice_.channels.insert(status_ % 16);
            if (note != sounding_.end()) ++voice_.overlapping;
            sounding_[key] = voice_.notes.size();
            voice_.notes.push_back({key, velocity, tick_, -1});
        } else if ((kind == 8 || kind == 9) && note != sounding_.end()) {
            voice_.notes[note->second].end = tick_;
            sounding_.erase(note);
        }
    }

    Bytes bytes_;
    Tune& tune_;
    long tick_ = 0;
    int status_ = 0;
    Voice voice_;
    std::map<int, std::size_t> sounding_;
};

std::string Contents(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    if (!stream) throw std::runtime_error("cannot read " + path.string());
    return {std::istreambuf_iterator<char>(stream), {}};
}

Tune Load(const fs::path& path) {
    const std::string file = Contents(path);
    Bytes bytes(file);
    if (bytes.Take(4) != "MThd" || bytes.Number(4) != 6) {
        throw std::runtime_error(path.string() + " is no MIDI file");
    }
    Tune tune;
    bytes.Number(2);
    const long tracks = bytes.Number(2);
    tune.ticks_per_crotchet = bytes.Number(2);
    for (long i = 0; i < tracks; ++i) {
        if (bytes.Take(4) != "MTrk") throw std::runtime_error(path.string() + " lacks a track");
        const auto length = static_cast<std::size_t>(bytes.Number(4));
        Track(bytes.Take(length), tune);
    }
    return tune;
}

std::vector<Note> AllNotes(const Tune& tune) {
    std::vector<Note> notes;
    for (const Voice& voice : tune.voices) {
        notes.insert(notes.end(), voice.notes.begin(), voice.notes.end());
    }
    return notes;
}

long FirstTick(const Tune& tune) {
    return std::ranges::min(AllNotes(tune), {}, &Note::start).start;
}

long LastTick(const Tune& tune) { return std::ranges::max(AllNotes(tune), {}, &Note::end).end; }

/// When a tick comes, by the tempos that hold up to it.
double Seconds(const Tune& tune, long tick) {
    double microseconds = 0;
    long since = 0;
    long tempo = 500000;
    const auto ticks = static_cast<double>(tune.ticks_per_crotchet);
    for (const auto& [from, next] : tune.tempos) {
        if (from >= tick) break;
        microseconds += static_cast<double>((from - since) * tempo) / ticks;
        since = from;
        tempo = next;
    }
    return (microseconds + static_cast<double>((tick - since) * tempo) / ticks) / 1e6;
}

// ---- How a tune sounds ----

/// A tenth of a second.
constexpr std::size_t kWindow = 4410;
constexpr std::size_t kChannels = 16;

struct Sound {
    double peak = 0;
    /// The mean square of both sides, for every tenth of a second.
    std::vector<double> power;
    /// The same for each channel alone, before the room answers.
    std::array<std::vector<double>, kChannels> channel_power;
};

template <typename T>
using Owned = std::unique_ptr<T, void (*)(T*)>;

Owned<fluid_settings_t> Settings() {
    for (int level : {FLUID_WARN, FLUID_INFO}) fluid_set_log_function(level, nullptr, nullptr);
    Owned<fluid_settings_t> settings(new_fluid_settings(), delete_fluid_settings);
    fluid_settings_setnum(settings.get(), "synth.gain", kGain);
    fluid_settings_setnum(settings.get(), "synth.sample-rate", kRate);
    fluid_settings_setint(settings.get(), "synth.audio-channels", kChannels);
    fluid_settings_setint(settings.get(), "synth.audio-groups", kChannels);
    fluid_settings_setint(settings.get(), "synth.lock-memory", 0);
    fluid_settings_setstr(settings.get(), "player.timing-source", "sample");
    return settings;
}

using Side = std::vector<float>;

double MeanSquare(const Side& left, const Side& right) {
    double sum = 0;
    for (std::size_t i = 0; i < kWindow; ++i) sum += left[i] * left[i] + right[i] * right[i];
    return sum / (2 * kWindow);
}

double Peak(const Side& side) {
    const auto [lowest, highest] = std::ranges::minmax(side);
    return std::max(-lowest, highest);
}

/// Plays the next tenth of a second, each channel into two sides of its own, the room into the
/// last two.
void PlayWindow(fluid_synth_t* synth, std::vector<Side>& sides, Sound& sound) {
    std::vector<float*> dry;
    for (Side& side : sides) {
        side.assign(kWindow, 0);
        dry.push_back(side.data());
    }
    // Echo and chorus, left and right of each, are added up.
    std::array<float*, 4> wet{dry[2 * kChannels], dry[2 * kChannels + 1], dry[2 * kChannels],
                              dry[2 * kChannels + 1]};
    if (fluid_synth_process(synth, kWindow, 4, wet.data(), 2 * kChannels, dry.data()) != FLUID_OK) {
        throw std::runtime_error("the synthesizer does not play");
    }
    std::array<Side, 2> mix{Side(kWindow), Side(kWindow)};
    for (std::size_t i = 0; i < sides.size(); ++i) {
        std::ranges::transform(mix[i % 2], sides[i], mix[i % 2].begin(), std::plus<>());
    }
    for (std::size_t i = 0; i < kChannels; ++i) {
        sound.channel_power[i].push_back(MeanSquare(sides[2 * i], sides[2 * i + 1]));
    }
    sound.power.push_back(MeanSquare(mix[0], mix[1]));
    sound.peak = std::max({sound.peak, Peak(mix[0]), Peak(mix[1])});
}

Sound Play(const fs::path& path) {
    const auto settings = Settings();
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
    std::vector<Side> sides(2 * kChannels + 2);
    while (fluid_player_get_status(player.get()) == FLUID_PLAYER_PLAYING) {
        PlayWindow(synth.get(), sides, sound);
    }
    return sound;
}

double Decibels(double power) { return 10 * std::log10(std::max(power, 1e-12)); }

double Mean(const std::vector<double>& power) {
    double sum = 0;
    for (double one : power) sum += one;
    return sum / static_cast<double>(power.size());
}

std::size_t WindowOf(const Tune& tune, long tick) {
    return static_cast<std::size_t>(Seconds(tune, tick) * kRate / kWindow);
}

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
    return longest * static_cast<double>(kWindow) / kRate;
}

/// The loudness of one voice alone over the time in which its notes last, in dB.
double LoudnessWhileNotesLast(const Tune& tune, const Voice& voice, const Sound& sound) {
    const auto& power = sound.channel_power.at(static_cast<std::size_t>(*voice.channels.begin()));
    std::set<std::size_t> windows;
    for (const Note& note : voice.notes) {
        const std::size_t end = std::min(WindowOf(tune, note.end) + 1, power.size());
        for (std::size_t i = WindowOf(tune, note.start); i < end; ++i) windows.insert(i);
    }
    std::vector<double> lasting;
    lasting.reserve(windows.size());
    for (std::size_t i : windows) lasting.push_back(power[i]);
    return Decibels(Mean(lasting));
}

// ---- The tests ----

std::vector<fs::path> Tunes() {
    std::vector<fs::path> tunes;
    for (const auto& entry : fs::directory_iterator(QUENDREL_MUSIC_FOLDER)) {
        tunes.push_back(entry.path());
    }
    std::sort(tunes.begin(), tunes.end());
    return tunes;
}

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

fs::path SourceOf(const fs::path& tune) {
    return fs::path(QUENDREL_TUNES_FOLDER) / tune.stem().concat(".abc");
}

/// The tonic that the source of a tune states, in semitones above C.
int TonicIn(const std::string& source) {
    const std::map<char, int> naturals{{'C', 0}, {'D', 2}, {'E', 4}, {'F', 5},
                                       {'G', 7}, {'A', 9}, {'B', 11}};
    const std::size_t key = source.find("\nK:") + 3;
    const char accidental = source.at(key + 1);
    return naturals.at(source.at(key)) + (accidental == '#' ? 1 : accidental == 'b' ? -1 : 0);
}

int RunCompiler(const fs::path& source, const fs::path& target, const fs::path& complaint) {
    const auto quoted = [](const fs::path& path) { return " '" + path.string() + "'"; };
    const std::string command =
        quoted(QUENDREL_COMPILE_TUNE) + quoted(source) + quoted(target) + " 2>" + quoted(complaint);
    return std::system(command.c_str());
}

/// A folder that is there for one test.
class Folder {
public:
    Folder() {
        std::string name = testing::TempDir() + "tunes-XXXXXX";
        if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
        path_ = name;
    }
    ~Folder() { fs::remove_all(path_); }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    fs::path operator/(std::string_view name) const { return path_ / name; }

private:
    fs::path path_;
};

/// What all tunes keep to within 2 dB, so that no two are more than 4 dB apart.
constexpr double kLoudness = -28;

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

TEST_P(EveryTune, IsAsLoudAsAnyWithEveryVoiceHeardAndIsNeitherClippedNorBrokenOff) {
    const Sound sound = Play(GetParam());
    EXPECT_LT(sound.peak, 0.9);
    const std::vector<double> power = PowerWhileItLasts(tune_, sound);
    EXPECT_LE(LongestSilence(power), 3);
    EXPECT_NEAR(Decibels(Mean(power)), kLoudness, 2);
    for (const Voice& voice : tune_.voices) {
        EXPECT_GT(LoudnessWhileNotesLast(tune_, voice, sound), -60)
            << "channel " << *voice.channels.begin();
    }
}

TEST_P(EveryTune, CompilesToTheSameBytesAgain) {
    const Folder folder;
    ASSERT_EQ(RunCompiler(SourceOf(GetParam()), folder / "Again.mid", folder / "complaint"), 0);
    EXPECT_TRUE(Contents(folder / "Again.mid") == Contents(GetParam()));
}

std::string NameOfTune(const testing::TestParamInfo<fs::path>& test) {
    std::string name = test.param.stem().string();
    std::erase_if(name, [](unsigned char letter) { return std::isalnum(letter) == 0; });
    return name;
}

INSTANTIATE_TEST_SUITE_P(Music, EveryTune, testing::ValuesIn(Tunes()), NameOfTune);

TEST(MusicFolder, HoldsTheTwelveTunesAndNothingElse) {
    std::vector<std::string> names;
    for (const fs::path& tune : Tunes()) names.push_back(tune.filename().string());
    EXPECT_EQ(names, (std::vector<std::string>{
                         "Canon in D.mid", "Greensleeves.mid", "Gymnopedie No. 1.mid",
                         "Lamplight.mid", "Londonderry Air.mid", "Lullaby.mid", "Minuet in G.mid",
                         "Prelude in C.mid", "Salley Gardens.mid", "Scarborough Fair.mid",
                         "Si Bheag, Si Mhor.mid", "Walnut and Brass.mid"}));
}

class CompileTune : public testing::Test {
protected:
    int Compile(std::string_view secondBar) {
        std::ofstream(source_) << "X:1\nT:Trial\nM:3/4\nL:1/4\nK:C\nC D E | " << secondBar
                               << " | C3 |]\n";
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
    EXPECT_NE(Contents(complaint_).find("A Trial, Short.abc"), std::string::npos);
    EXPECT_NE(Contents(complaint_).find("Bar 1 has 4"), std::string::npos);
}

TEST_F(CompileTune, RefusesWhatIsNoNoteAndLeavesNoFile) {
    EXPECT_NE(Compile("E ? C"), 0);
    EXPECT_FALSE(fs::exists(target_));
}

}  // namespace
}  // namespace quendrel::tunes
