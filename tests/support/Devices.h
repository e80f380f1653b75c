// A sound player that writes down and a random generator that follows a script.
#pragma once

#include <deque>
#include <string>

#include "Log.h"
#include "platform/Random.h"
#include "platform/SoundPlayer.h"

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

class ScriptedRandom : public Random {
public:
    explicit ScriptedRandom(Log& log) : log_(log) {}

    /// The numbers in [0, 1) that come next; after them it is 0.
    std::deque<double> script;

    void SeedFromClock() override { log_.Add("seed"); }
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
