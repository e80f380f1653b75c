// The music: the tunes of the playlist, one after the other, in order or shuffled.
#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "Global.h"

namespace quendrel {

class Clock;
class MidiDevice;
class Random;
class Timer;

class Music {
public:
    Music(Global& global, MidiDevice& mmcMidi, Random& random, Clock& clock);
    ~Music();
    Music(const Music&) = delete;
    Music& operator=(const Music&) = delete;

    /// The one entry to the music, for every window: "Play" starts the playlist, "Pause" pauses
    /// what plays and, called again, resumes it, "Stop" ends it, and "Check" goes on to the next
    /// tune when one has ended. Another word does nothing, and so does every word without a
    /// sound device.
    void MusicCommand(std::string_view command);

    /// Plays one tune alone, as a preview, in place of whatever sounds; nothing follows it.
    /// Without a tune the last one is played again. Called by the configuration window.
    void Listen(const std::optional<std::string>& tune);

    /// Ends a preview that sounds while the music is stopped. Returns whether there was one.
    bool EndListening();

private:
    void Play();
    void Check();
    void Pause();
    void Stop();

    void ChooseNext();
    void DrawUnplayed();
    void StartTune();
    void EndTune();
    std::int16_t DrawTune();

    Global& global_;
    MidiDevice& mmcMidi_;
    Random& random_;
    std::unique_ptr<Timer> tmrCheckMusic_;

    /// The tunes that ended before a check found them playing; emptied once one is found playing.
    std::set<std::int16_t> unheard_;
    /// Whether a check has found the current tune playing.
    bool heard_ = false;
};

}  // namespace quendrel
