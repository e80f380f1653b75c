// The machine's devices for tests: they write down what they are told, or follow a script.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <set>
#include <string>
#include <utility>

#include "Log.h"
#include "platform/MidiDevice.h"
#include "platform/Random.h"
#include "platform/SoundPlayer.h"
#include "platform/Tray.h"

namespace quendrel::test {

class RecordingSoundPlayer : public SoundPlayer {
public:
    explicit RecordingSoundPlayer(Log& log) : log_(log) {}

    /// What Initialise answers.
    int answer = 0;

    int Initialise() override {
        log_.Add("open the sound device");
        return answer;
    }
    void Load(const std::string& path, int slot) override {
        log_.Add("slot " + std::to_string(slot) + " is " + path);
    }
    void Play(int slot) override { log_.Add("sound " + std::to_string(slot)); }
    void PlayLooping(int slot) override { log_.Add("sound " + std::to_string(slot) + " looping"); }
    void PlayAlone(int slot) override { log_.Add("sound " + std::to_string(slot) + " alone"); }

private:
    Log& log_;
};

/// Plays whatever tune is not in `damaged`, until a test sets another mode.
class RecordingMidiDevice : public MidiDevice {
public:
    explicit RecordingMidiDevice(Log& log) : log_(log) {}

    /// What the device is found doing.
    MidiMode mode = MidiMode::kNotOpen;
    /// Files that cannot be opened.
    std::set<std::string> damaged;

    void SetFileName(const std::string& path) override {
        fileName_ = path;
        log_.Add("midi: " + path);
    }
    void Open() override {
        log_.Add("midi: open");
        if (mode == MidiMode::kNotOpen && !damaged.contains(fileName_)) mode = MidiMode::kStopped;
    }
    void Play() override {
        log_.Add("midi: play");
        if (mode != MidiMode::kNotOpen) mode = MidiMode::kPlaying;
    }
    void Pause() override {
        log_.Add("midi: pause");
        mode = MidiMode::kPaused;
    }
    void Stop() override {
        log_.Add("midi: stop");
        if (mode != MidiMode::kNotOpen) mode = MidiMode::kStopped;
    }
    void Close() override {
        log_.Add("midi: close");
        mode = MidiMode::kNotOpen;
    }
    MidiMode Mode() const override { return mode; }

private:
    Log& log_;
    std::string fileName_;
};

class RecordingTray : public Tray {
public:
    explicit RecordingTray(Log& log) : log_(log) {}

    bool available = true;
    /// What the player or the desktop does while the icon is shown.
    std::function<void()> doubleClick;
    std::function<void()> vanish;

    bool IsAvailable() const override { return available; }
    void Show(const std::string& tip, std::function<void()> onDoubleClick,
              std::function<void()> onVanished) override {
        log_.Add("tray icon \"" + tip + "\"");
        doubleClick = std::move(onDoubleClick);
        vanish = std::move(onVanished);
    }
    void Remove() override { log_.Add("no tray icon"); }

private:
    Log& log_;
};

class RecordingLinkOpener {
public:
    explicit RecordingLinkOpener(Log& log) : log_(log) {}

    /// What the desktop answers.
    std::int32_t answer = 1;

    std::int32_t operator()(const std::string& address) {
        log_.Add("open " + address);
        return answer;
    }

private:
    Log& log_;
};

class ScriptedRandom : public Random {
public:
    explicit ScriptedRandom(Log& log) : log_(log) {}

    /// The numbers in [0, 1) that come next; after them it is 0.
    std::deque<double> script;
    /// Happens when the generator is seeded.
    std::function<void()> onSeed = [] {};

    void SeedFromClock() override {
        log_.Add("seed");
        onSeed();
    }
    double Next() override {
        if (script.empty()) return 0;
        const double next = script.front();
        script.pop_front();
        return next;
    }

private:
    Log& log_;
};

}  // namespace quendrel::test
