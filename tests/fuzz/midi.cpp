// A tune, played by the real synthesiser on a sound device that throws away what it plays, as fast
// as it can.
#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include <sys/mman.h>
#include <unistd.h>

#include "MemoryFiles.h"
#include "Promise.h"
#include "Readers.h"
#include "VirtualClock.h"
#include "platform/SoundRest.h"
#include "platform/desktop/SdlMidiDevice.h"
#include "platform/desktop/SdlSoundDevice.h"

namespace quendrel::fuzz {

namespace {

/// The mixer opens a tune by its path, so it lies in a file that only this process has.
class TuneFileInMemory {
public:
    TuneFileInMemory() : number_(memfd_create("tune", MFD_CLOEXEC)) {
        if (number_ < 0) throw std::runtime_error("no file in memory");
    }
    ~TuneFileInMemory() { close(number_); }
    TuneFileInMemory(const TuneFileInMemory&) = delete;
    TuneFileInMemory& operator=(const TuneFileInMemory&) = delete;

    std::string path() const { return "/proc/self/fd/" + std::to_string(number_); }

    void Fill(std::string_view bytes) const {
        const auto size = static_cast<ssize_t>(bytes.size());
        if (ftruncate(number_, 0) != 0 || pwrite(number_, bytes.data(), bytes.size(), 0) != size) {
            throw std::runtime_error("the file in memory cannot be written");
        }
    }

private:
    int number_;
};

/// Stays awake, since its clock stands still.
struct QuickDevice {
    QuickDevice() {
        setenv("SDL_AUDIODRIVER", "disk", 1);
        setenv("SDL_DISKAUDIOFILE", "/dev/null", 1);
        setenv("SDL_DISKAUDIODELAY", "0", 1);
        rest.Wake();
        if (!device.IsOpen(std::chrono::seconds(10))) throw std::runtime_error("no sound device");
    }

    test::Log log;
    test::VirtualClock clock{log};
    SdlSoundDevice device;
    SoundRest rest{clock, device};
};

bool IsIn(const MidiDevice& device, MidiMode mode) {
    return device.Mode() == mode || device.Mode() == MidiMode::kStopped;
}

/// Every command once, in an order that makes sense. A tune may be over at any moment.
void PlayThrough(MidiDevice& device) {
    Promise(device.Mode() == MidiMode::kStopped, "a tune that is open has not begun");
    device.Play();
    Promise(IsIn(device, MidiMode::kPlaying), "a tune plays, or is over");
    usleep(1000);
    device.Pause();
    Promise(IsIn(device, MidiMode::kPaused), "a tune is paused, or was over");
    device.Play();
    Promise(IsIn(device, MidiMode::kPlaying), "a tune goes on, or was over");
    device.Stop();
    Promise(device.Mode() == MidiMode::kStopped, "a tune that was stopped is over");
}

}  // namespace

void Midi(std::string_view bytes) {
    static QuickDevice sound;
    static const TuneFileInMemory file;
    const std::string font = SdlMidiDevice::UsualSoundFonts().front();
    Files()[font] = "is read by the synthesiser";
    Files()[file.path()] = "is read by the mixer";
    file.Fill(bytes);

    SdlMidiDevice device(sound.rest, {font});
    device.SetFileName(file.path());
    device.Open();
    if (device.Mode() != MidiMode::kNotOpen) PlayThrough(device);
    device.Close();
    Promise(device.Mode() == MidiMode::kNotOpen, "a tune that is closed is not open");
}

}  // namespace quendrel::fuzz
