// The real MIDI device and sound player, on a sound device that writes what it plays into a file.
#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <SDL.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "TemporaryFolder.h"
#include "VirtualClock.h"
#include "platform/Errors.h"
#include "platform/SoundRest.h"
#include "platform/desktop/SdlMidiDevice.h"
#include "platform/desktop/SdlSoundDevice.h"
#include "platform/desktop/SdlSoundPlayer.h"

namespace quendrel::test {
namespace {

using namespace std::string_literals;
using Audio = std::vector<std::int16_t>;

/// Left and right are a sample each.
constexpr std::ptrdiff_t kSamplesPerSecond = 88200;

constexpr std::size_t kSamplesInABuffer = 2048;

bool Sounds(std::int16_t sample) { return sample != 0; }

/// Big-endian, as MIDI files count.
std::string Number(std::size_t number, int bytes) {
    std::string text;
    for (int i = bytes - 1; i >= 0; --i) text += static_cast<char>(number >> 8 * i & 0xFF);
    return text;
}

/// A MIDI file: `count` notes on the piano, upwards from middle C, two a second.
std::string Scale(int count) {
    std::string track;
    for (int i = 0; i < count; ++i) {
        const char pitch = static_cast<char>(60 + i);
        track += "\0\x90"s + pitch + "\x60";
        track += "\x60\x80"s + pitch + "\0"s;
    }
    track += "\0\xFF\x2F\0"s;
    return "MThd" + Number(6, 4) + Number(0, 2) + Number(1, 2) + Number(96, 2) + "MTrk" +
           Number(track.size(), 4) + track;
}

/// How far every sample of the click is from zero.
constexpr std::int16_t kClick = 8000;

/// A wave file of 0.1 s, with so many frames a second.
std::string Click(std::uint32_t rate = 44100, std::uint32_t channels = 2) {
    Audio samples(rate * channels / 10);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        samples[i] = static_cast<std::int16_t>(i / 100 % 2 == 0 ? kClick : -kClick);
    }
    std::string data(samples.size() * 2, '\0');
    std::memcpy(data.data(), samples.data(), data.size());
    const auto size = static_cast<std::uint32_t>(data.size());
    const auto little = [](std::uint32_t number) {
        std::string text(4, '\0');
        std::memcpy(text.data(), &number, 4);
        return text;
    };
    return "RIFF" + little(36 + size) + "WAVEfmt " + little(16) + little(1 | channels << 16) +
           little(rate) + little(2 * channels * rate) + little(2 * channels | 16 << 16) + "data" +
           little(size) + data;
}

class MidiDeviceTest : public ::testing::Test {
protected:
    /// `buffer` is how many milliseconds the device takes for a buffer of 23 ms. With fewer the
    /// recording runs faster than real time, but a test that the machine delays misses more of it.
    explicit MidiDeviceTest(const char* buffer = "8") {
        folder.Write("tune.mid", Scale(6));
        folder.Write("click.wav", Click());
        setenv("SDL_AUDIODRIVER", "disk", 1);
        setenv("SDL_DISKAUDIOFILE", (folder.path() + "/audio").c_str(), 1);
        setenv("SDL_DISKAUDIODELAY", buffer, 1);
        player = std::make_unique<SdlSoundPlayer>(rest);
        midi = std::make_unique<SdlMidiDevice>(rest);
        player->Initialise();
        if (!device.IsOpen(kSlowMachine)) throw std::runtime_error("no recording device");
        player->Load(folder.path() + "/click.wav", 0);
    }

    void Start(const std::string& file) {
        midi->Close();
        midi->SetFileName(folder.path() + "/" + file);
        midi->Open();
        midi->Play();
    }

    std::size_t Recorded() const {
        return std::filesystem::file_size(folder.path() + "/audio") / sizeof(std::int16_t);
    }

    /// Until the recording has grown by so many seconds.
    void Record(double seconds) const {
        const auto end = Recorded() + static_cast<std::size_t>(seconds * kSamplesPerSecond);
        while (Recorded() < end) Rest();
    }

    void RecordToTheEnd() const {
        while (midi->Mode() == MidiMode::kPlaying) Rest();
    }

    /// Much shorter than a buffer, and it leaves the processor to the device.
    static void Rest() { std::this_thread::sleep_for(std::chrono::milliseconds(1)); }

    Audio Recording() const {
        const std::string bytes = folder.Read("audio");
        Audio samples(bytes.size() / 2);
        std::memcpy(samples.data(), bytes.data(), 2 * samples.size());
        return samples;
    }

    /// The recording from a place on, without the silence at both ends.
    Audio Sound(std::size_t from = 0) const {
        Audio audio = Recording();
        audio.erase(audio.begin(), audio.begin() + static_cast<std::ptrdiff_t>(from));
        const auto first = std::find_if(audio.begin(), audio.end(), Sounds);
        const auto last = std::find_if(audio.rbegin(), audio.rend(), Sounds).base();
        return first < last ? Audio(first, last) : Audio();
    }

    /// Far longer than opening or closing takes.
    static constexpr std::chrono::seconds kSlowMachine{10};

    TemporaryFolder folder;
    Log log;
    VirtualClock clock{log};
    SdlSoundDevice device;
    SoundRest rest{clock, device};
    std::unique_ptr<SdlSoundPlayer> player;
    std::unique_ptr<SdlMidiDevice> midi;
};

/// Whether both are the same to the sample. The synthesiser ends a tune in the one buffer or the
/// next, so the one may be a buffer longer.
bool IsSameTune(const Audio& one, const Audio& other) {
    const auto [shorter, longer] = std::minmax({one.size(), other.size()});
    return longer - shorter <= kSamplesInABuffer &&
           std::equal(one.begin(), one.begin() + static_cast<std::ptrdiff_t>(shorter),
                      other.begin());
}

TEST_F(MidiDeviceTest, ATuneSoundsFromItsFirstNoteEachTime) {
    Start("tune.mid");
    RecordToTheEnd();
    Record(0.5);
    const Audio once = Sound();
    ASSERT_GT(std::ssize(once), 3 * kSamplesPerSecond);
    const std::size_t again = Recorded();
    Start("tune.mid");
    Record(1.2);
    Start("tune.mid");
    RecordToTheEnd();
    Record(0.5);
    // The second start was cut off after a second and a bit; the third ran to the end.
    const Audio audio = Sound(again);
    ASSERT_GT(audio.size(), once.size());
    const auto firstNote = once.begin() + kSamplesPerSecond / 2;
    EXPECT_TRUE(std::equal(once.begin(), firstNote, audio.begin()));
    const auto third = std::find_end(audio.begin(), audio.end(), once.begin(), firstNote);
    EXPECT_GT(third - audio.begin(), kSamplesPerSecond);
    EXPECT_TRUE(IsSameTune(once, Audio(third, audio.end())));
}

TEST_F(MidiDeviceTest, PauseHoldsTheTuneAndPlayGoesOnAtTheSameSample) {
    Start("tune.mid");
    RecordToTheEnd();
    Record(0.5);
    const Audio whole = Sound();
    const std::size_t again = Recorded();
    Start("tune.mid");
    Record(1.3);
    midi->Pause();
    EXPECT_EQ(midi->Mode(), MidiMode::kPaused);
    Record(2);
    midi->Open();
    midi->Play();
    EXPECT_EQ(midi->Mode(), MidiMode::kPlaying);
    RecordToTheEnd();
    Record(0.5);
    Audio audio = Sound(again);
    // A silence of a second.
    const auto pause = std::search_n(audio.begin(), audio.end(), kSamplesPerSecond, 0);
    ASSERT_NE(pause, audio.end());
    audio.erase(pause, std::find_if(pause, audio.end(), Sounds));
    EXPECT_TRUE(IsSameTune(audio, whole));
}

class MidiDeviceInRealTime : public MidiDeviceTest {
protected:
    MidiDeviceInRealTime() : MidiDeviceTest("23") {}
};

TEST_F(MidiDeviceInRealTime, TheEndIsNoticedWithinHalfASecondOfTheLastSoundsDecay) {
    Start("tune.mid");
    RecordToTheEnd();
    EXPECT_EQ(midi->Mode(), MidiMode::kStopped);
    const Audio audio = Recording();
    const auto decayed = std::find_if(audio.rbegin(), audio.rend(), Sounds).base();
    EXPECT_LT(audio.end() - decayed, kSamplesPerSecond / 2);
    EXPECT_GT(decayed - audio.begin(), 3 * kSamplesPerSecond);
}

TEST_F(MidiDeviceTest, ATuneThatHasEndedSoundsAgainOnlyWhenItIsOpenedAnew) {
    Start("tune.mid");
    RecordToTheEnd();
    midi->Pause();
    midi->Open();
    midi->Play();
    EXPECT_EQ(midi->Mode(), MidiMode::kStopped);
    Start("tune.mid");
    EXPECT_EQ(midi->Mode(), MidiMode::kPlaying);
}

TEST_F(MidiDeviceTest, PausingTheMusicDoesNotPauseTheEffects) {
    Start("tune.mid");
    Record(1);
    midi->Pause();
    Record(0.5);
    const auto before = static_cast<std::ptrdiff_t>(Recorded());
    player->Play(0);
    Record(0.5);
    const Audio audio = Recording();
    const auto ofTheClick = [](std::int16_t sample) { return std::abs(sample) == kClick; };
    EXPECT_EQ(std::count_if(audio.begin() + before, audio.end(), ofTheClick),
              kSamplesPerSecond / 10);
    EXPECT_EQ(midi->Mode(), MidiMode::kPaused);
}

TEST_F(MidiDeviceTest, AStoppedTuneIsOpenAndSilent) {
    EXPECT_EQ(midi->Mode(), MidiMode::kNotOpen);
    Start("tune.mid");
    EXPECT_EQ(midi->Mode(), MidiMode::kPlaying);
    midi->Stop();
    EXPECT_EQ(midi->Mode(), MidiMode::kStopped);
    midi->Close();
    EXPECT_EQ(midi->Mode(), MidiMode::kNotOpen);
}

TEST_F(MidiDeviceTest, ATunePausedAndClosedIsFollowedByAnother) {
    Start("tune.mid");
    midi->Pause();
    Start("tune.mid");
    EXPECT_EQ(midi->Mode(), MidiMode::kPlaying);
    Record(1);
    EXPECT_GT(std::ssize(Sound()), kSamplesPerSecond / 2);
}

TEST_F(MidiDeviceTest, CommandsWithoutATuneDoNothing) {
    midi->Play();
    midi->Pause();
    midi->Stop();
    midi->Close();
    EXPECT_EQ(midi->Mode(), MidiMode::kNotOpen);
}

TEST_F(MidiDeviceTest, AMissingTuneIsNotOpen) {
    Start("missing.mid");
    EXPECT_EQ(midi->Mode(), MidiMode::kNotOpen);
}

TEST_F(MidiDeviceTest, APipeIsNoTuneAndIsNotWaitedFor) {
    ASSERT_EQ(mkfifo((folder.path() + "/pipe.mid").c_str(), 0600), 0);
    Start("pipe.mid");
    EXPECT_EQ(midi->Mode(), MidiMode::kNotOpen);
}

TEST_F(MidiDeviceTest, ADamagedTuneIsOverAtOnceAndNothingIsSaidOfIt) {
    testing::internal::CaptureStderr();
    const std::string whole = Scale(6);
    for (std::size_t size = 0; size < whole.size(); ++size) {
        folder.Write("damaged.mid", whole.substr(0, size));
        Start("damaged.mid");
        Record(0.03);
        EXPECT_NE(midi->Mode(), MidiMode::kPlaying) << size << " bytes";
    }
    folder.Write("damaged.mid", "This is no tune.\n");
    Start("damaged.mid");
    Record(0.03);
    EXPECT_NE(midi->Mode(), MidiMode::kPlaying);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(MidiDeviceTest, WithoutASoundFontNoTuneIsOpenWhichIsSaidOnce) {
    midi = std::make_unique<SdlMidiDevice>(rest,
                                           std::vector<std::string>{"/none/such.sf2", "/no.sf3"});
    testing::internal::CaptureStderr();
    for (int i = 0; i < 3; ++i) {
        Start("tune.mid");
        EXPECT_EQ(midi->Mode(), MidiMode::kNotOpen);
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "quendrel: no music: there is no sound font (looked for /none/such.sf2, /no.sf3)\n");
}

TEST(SoundFonts, CompressedOnesComeLastAndOursFirst) {
    const std::vector<std::string> fonts = SdlMidiDevice::UsualSoundFonts();
    EXPECT_TRUE(fonts.front().ends_with("/TimGM6mb.sf2"));
    EXPECT_TRUE(std::is_partitioned(fonts.begin(), fonts.end(), [](const std::string& font) {
        return font.ends_with(".sf2");
    }));
}

TEST_F(MidiDeviceTest, ASoundThatCannotBeLoadedIsNamedWithTheReason) {
    const auto failure = [this](const std::string& name) -> std::string {
        try {
            player->Load(folder.path() + "/" + name, 0);
        } catch (const FileError& error) {
            return error.what();
        }
        return "none";
    };
    folder.Write("text.wav", "This is no sound.\n");
    EXPECT_EQ(failure("none.wav"),
              folder.path() + "/none.wav: cannot be opened: No such file or directory");
    EXPECT_EQ(failure("."), folder.path() + "/.: cannot be read: it is no plain file");
    EXPECT_EQ(
        failure("text.wav"),
        folder.path() + "/text.wav: Could not find RIFF or WAVE identifiers (not a Waveform file)");
}

TEST_F(MidiDeviceTest, ASoundOfOneChannelAndHalfTheRateIsAsLongAndAsLoudAndInTheMiddle) {
    folder.Write("other.wav", Click(22050, 1));
    player->Load(folder.path() + "/other.wav", 0);
    player->Play(0);
    Record(0.5);
    const Audio audio = Sound();
    EXPECT_NEAR(static_cast<double>(audio.size()), 8820, 90);
    const auto [lowest, highest] = std::minmax_element(audio.begin(), audio.end());
    EXPECT_NEAR(*lowest, -kClick, 2000);
    EXPECT_NEAR(*highest, kClick, 2000);
    for (std::size_t i = 0; i + 1 < audio.size(); i += 2) ASSERT_EQ(audio[i], audio[i + 1]);
}

/// The recording begins anew with every opening of the device.
class DeviceThatRestsOrIsLost : public MidiDeviceTest {
protected:
    /// Whether the recorded sound is a click, whole.
    bool HasClicked() const {
        const Audio audio = Sound();
        return std::ssize(audio) == kSamplesPerSecond / 10 &&
               std::all_of(audio.begin(), audio.end(),
                           [](std::int16_t sample) { return std::abs(sample) == kClick; });
    }

    void LetTimeGoBy(int seconds) {
        const std::int64_t end = clock.Now() + std::int64_t{1000} * seconds;
        while (clock.Now() < end) clock.PumpEvents(static_cast<int>(end - clock.Now()));
    }

    void Require(bool isOpen) const {
        if (device.IsOpen(kSlowMachine) != isOpen) throw std::runtime_error("the device fails");
    }

    void LetDeviceRest() {
        LetTimeGoBy(10);
        Require(false);
    }

    /// As the sound system does that ends.
    void LoseDevice() {
        SDL_Event event{};
        event.adevice.type = SDL_AUDIODEVICEREMOVED;
        event.adevice.which = 2;
        if (SDL_PushEvent(&event) != 1) throw std::runtime_error(SDL_GetError());
        setenv("SDL_AUDIODRIVER", "none such", 1);
        LetTimeGoBy(1);
        Require(false);
    }

    void BringDevice() {
        setenv("SDL_AUDIODRIVER", "disk", 1);
        LetTimeGoBy(10);
        rest.Wake();
        Require(true);
        LetTimeGoBy(1);
    }
};

TEST_F(DeviceThatRestsOrIsLost, TheFirstSoundAfterARestIsWhole) {
    LetDeviceRest();
    player->Play(0);
    Require(true);
    Record(0.5);
    EXPECT_TRUE(HasClicked());
}

TEST_F(DeviceThatRestsOrIsLost, ATuneAfterARestSounds) {
    LetDeviceRest();
    Start("tune.mid");
    EXPECT_EQ(midi->Mode(), MidiMode::kPlaying);
    Record(1);
    EXPECT_GT(std::ssize(Sound()), kSamplesPerSecond / 2);
}

TEST_F(DeviceThatRestsOrIsLost, ATuneThatPlaysOrIsPausedKeepsTheDeviceOpen) {
    Start("tune.mid");
    midi->Pause();
    LetTimeGoBy(60);
    EXPECT_TRUE(device.IsOpen(kSlowMachine));
    midi->Play();
    EXPECT_EQ(midi->Mode(), MidiMode::kPlaying);
    LetTimeGoBy(60);
    EXPECT_TRUE(device.IsOpen(kSlowMachine));
}

TEST_F(DeviceThatRestsOrIsLost, ATuneThatHasEndedLetsItRest) {
    Start("tune.mid");
    midi->Stop();
    LetDeviceRest();
    EXPECT_NE(midi->Mode(), MidiMode::kPlaying);
}

TEST_F(DeviceThatRestsOrIsLost, ATuneWithoutADevicePlaysUnheardAndBeginsOnceThereIsOne) {
    LoseDevice();
    Start("tune.mid");
    EXPECT_EQ(midi->Mode(), MidiMode::kPlaying);
    LetTimeGoBy(60);
    EXPECT_EQ(midi->Mode(), MidiMode::kPlaying);
    BringDevice();
    Record(1);
    EXPECT_GT(std::ssize(Sound()), kSamplesPerSecond / 2);
}

/// Opens a moment after a tune has first waited for it.
class LateDevice : public SdlSoundDevice {
public:
    bool IsOpen(std::chrono::milliseconds atMost) const override {
        if (atMost.count() > 0 && std::exchange(isLate_, false)) return false;
        return SdlSoundDevice::IsOpen(std::chrono::seconds(10));
    }

private:
    mutable bool isLate_ = true;
};

TEST_F(DeviceThatRestsOrIsLost, ATuneWhoseDeviceOpensAMomentTooLateBeginsOnceItIsOpen) {
    rest.Close();
    Require(false);
    LateDevice late;
    SoundRest lateRest(clock, late);
    midi = std::make_unique<SdlMidiDevice>(lateRest);
    Start("tune.mid");
    EXPECT_EQ(midi->Mode(), MidiMode::kPlaying);
    LetTimeGoBy(2);
    EXPECT_EQ(midi->Mode(), MidiMode::kPlaying);
    Record(1);
    EXPECT_GT(std::ssize(Sound()), kSamplesPerSecond / 2);
    midi.reset();
    lateRest.Close();
    ASSERT_FALSE(late.IsOpen(kSlowMachine));
}

TEST_F(DeviceThatRestsOrIsLost, ATuneThatLosesItsDeviceBeginsAnewWithTheNextOne) {
    Start("tune.mid");
    LoseDevice();
    EXPECT_EQ(midi->Mode(), MidiMode::kPlaying);
    BringDevice();
    EXPECT_EQ(midi->Mode(), MidiMode::kPlaying);
    Record(1);
    EXPECT_GT(std::ssize(Sound()), kSamplesPerSecond / 2);
}

TEST_F(DeviceThatRestsOrIsLost, AMissingTuneDoesNotWaitForADevice) {
    LoseDevice();
    Start("missing.mid");
    EXPECT_EQ(midi->Mode(), MidiMode::kNotOpen);
}

TEST_F(DeviceThatRestsOrIsLost,
       ATunePausedStoppedOrClosedWithoutADeviceDoesNotBeginWithTheNextOne) {
    LoseDevice();
    for (void (MidiDevice::*const end)() :
         {&MidiDevice::Pause, &MidiDevice::Stop, &MidiDevice::Close}) {
        Start("tune.mid");
        (*midi.*end)();
        EXPECT_EQ(midi->Mode(), MidiMode::kNotOpen);
    }
    BringDevice();
    EXPECT_EQ(midi->Mode(), MidiMode::kNotOpen);
}

TEST_F(DeviceThatRestsOrIsLost, SoundsWithoutADeviceAreLeftOutAndHeardOnceThereIsOne) {
    LoseDevice();
    player->Play(0);
    player->PlayLooping(0);
    player->PlayAlone(0);
    BringDevice();
    Record(0.3);
    EXPECT_EQ(std::ssize(Sound()), 0);
    player->Play(0);
    Record(0.5);
    EXPECT_TRUE(HasClicked());
}

TEST_F(DeviceThatRestsOrIsLost, ALoopThatIsLostWithItsDeviceTakesNoLaterSoundAlong) {
    player->PlayLooping(0);
    LoseDevice();
    BringDevice();
    player->Play(0);
    constexpr int kEmptySlot = 1;
    player->Play(kEmptySlot);
    Record(0.5);
    EXPECT_TRUE(HasClicked());
}

TEST_F(DeviceThatRestsOrIsLost, WhereThereIsNoDeviceAtTheStartSoundsAreLoadedForALaterOne) {
    LoseDevice();
    player = nullptr;
    player = std::make_unique<SdlSoundPlayer>(rest);
    EXPECT_LE(player->Initialise(), 0);
    player->Load(folder.path() + "/click.wav", 0);
    BringDevice();
    player->Play(0);
    Record(0.5);
    EXPECT_TRUE(HasClicked());
}

}  // namespace
}  // namespace quendrel::test
