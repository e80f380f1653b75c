// trim_tune FILE.mid: makes a compiled tune end soon after its last note. The compiler writes
// changes of tempo long after it, which a player would play as silence. A player would also wait
// until the longest sound has died away, so all channels are faded out.
#include <algorithm>
#include <cstddef>
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace quendrel::music {
namespace {

constexpr int kEndOfTrack = 0x2F;
constexpr int kTempo = 0x51;
constexpr int kExpression = 11;
constexpr int kAllSoundOff = 120;

/// The fade takes one beat, but no longer than this, in microseconds.
constexpr std::size_t kLongestDamping = 700000;

/// The number of steps of the fade.
constexpr std::size_t kSteps = 24;

class Bytes {
public:
    explicit Bytes(std::string bytes) : bytes_(std::move(bytes)) {}

    bool AtEnd() const { return at_ == bytes_.size(); }
    std::size_t at() const { return at_; }

    std::string Take(std::size_t length) {
        if (length > bytes_.size() - at_) throw std::runtime_error("is cut short");
        at_ += length;
        return bytes_.substr(at_ - length, length);
    }
    int Byte() { return static_cast<unsigned char>(Take(1)[0]); }
    bool StatusIsNext() const { return !AtEnd() && static_cast<unsigned char>(bytes_[at_]) >= 128; }

    std::size_t Number(int length) {
        std::size_t value = 0;
        while (length-- > 0) value = value * 256 + static_cast<std::size_t>(Byte());
        return value;
    }

    /// A number with seven bits in each byte; the last byte is below 128.
    std::size_t Quantity() {
        std::size_t value = 0;
        int byte = 128;
        while (byte >= 128) {
            byte = Byte();
            value = value * 128 + static_cast<std::size_t>(byte % 128);
        }
        return value;
    }

private:
    std::string bytes_;
    std::size_t at_ = 0;
};

struct Event {
    std::size_t tick = 0;
    /// Where the event begins in the track, after its time, and where it ends.
    std::size_t begin = 0;
    std::size_t end = 0;
    bool is_meta = false;
    bool ends_note = false;
    bool ends_track = false;
    /// Microseconds to a crotchet from here on; 0 where the event does not set them.
    std::size_t tempo = 0;
    /// The channel, or -1 where the event has none.
    int channel = -1;
    /// The channel's expression (relative volume) from here on, or -1 where the event does not set
    /// it.
    int expression = -1;
};

void ReadMeta(Bytes& track, Event& event) {
    const int type = track.Byte();
    Bytes body(track.Take(track.Quantity()));
    event.is_meta = true;
    event.ends_track = type == kEndOfTrack;
    if (type == kTempo) event.tempo = body.Number(3);
}

void ReadMessage(Bytes& track, int status, Event& event) {
    const int kind = status / 16;
    const int first = track.Byte();
    if (kind == 0xC || kind == 0xD) return;
    const int second = track.Byte();
    if (kind == 8 || kind == 9) event.channel = status % 16;
    event.ends_note = kind == 8 || (kind == 9 && second == 0);
    if (kind == 0xB && first == kExpression) event.expression = second;
}

/// Reads an event. One without a status byte of its own has the `status` of the one before.
Event ReadEvent(Bytes& track, int& status) {
    if (track.StatusIsNext()) status = track.Byte();
    Event event;
    if (status == 0xFF) {
        ReadMeta(track, event);
    } else if (status >= 0xF0) {
        track.Take(track.Quantity());
    } else {
        ReadMessage(track, status, event);
    }
    return event;
}

std::vector<Event> EventsOf(const std::string& body) {
    std::vector<Event> events;
    Bytes track(body);
    std::size_t tick = 0;
    int status = 0;
    while (!track.AtEnd()) {
        tick += track.Quantity();
        const std::size_t begin = track.at();
        events.push_back(ReadEvent(track, status));
        events.back().tick = tick;
        events.back().begin = begin;
        events.back().end = track.at();
    }
    if (events.empty() || !events.back().ends_track) throw std::runtime_error("has an open track");
    return events;
}

std::string AsQuantity(std::size_t value) {
    std::string bytes(1, static_cast<char>(value % 128));
    while ((value /= 128) > 0) bytes.insert(bytes.begin(), static_cast<char>(value % 128 + 128));
    return bytes;
}

std::string AsNumber(std::size_t value) {
    std::string bytes;
    for (int shift = 24; shift >= 0; shift -= 8) {
        bytes += static_cast<char>(value >> shift & 0xFF);
    }
    return bytes;
}

/// The ticks at which the last note of a tune ends and at which its fade ends.
struct Ending {
    std::size_t last = 0;
    std::size_t damped = 0;
};

Ending EndingOf(const std::vector<std::string>& tracks, std::size_t division) {
    Ending ending;
    std::map<std::size_t, std::size_t> tempos{{0, 500000}};
    for (const std::string& track : tracks) {
        for (const Event& event : EventsOf(track)) {
            if (event.ends_note) ending.last = std::max(ending.last, event.tick);
            if (event.tempo > 0) tempos[event.tick] = event.tempo;
        }
    }
    if (ending.last == 0) throw std::runtime_error("has no note");
    const std::size_t tempo = std::prev(tempos.upper_bound(ending.last))->second;
    ending.damped = ending.last + std::min(division, kLongestDamping * division / tempo);
    return ending;
}

std::string Controller(std::size_t delta, int channel, int number, std::size_t value) {
    return AsQuantity(delta) + static_cast<char>(0xB0 + channel) + static_cast<char>(number) +
           static_cast<char>(value);
}

/// The events that fade a channel out, the first one counted from `tick`.
std::string Damping(const Ending& ending, std::size_t tick, int channel, std::size_t expression) {
    std::string damping;
    for (std::size_t step = 1; step <= kSteps; ++step) {
        const std::size_t at = ending.last + (ending.damped - ending.last) * step / kSteps;
        const std::size_t value = expression * (kSteps - step) / kSteps;
        damping += Controller(at - tick, channel, kExpression, value);
        tick = at;
    }
    return damping + Controller(0, channel, kAllSoundOff, 0);
}

/// A track without notes, cut where the last note of the tune ends; only its meta events are kept.
std::string Silent(const Ending& ending, const std::string& body) {
    std::string silent;
    std::size_t tick = 0;
    for (const Event& event : EventsOf(body)) {
        if (event.tick > ending.last || event.ends_track) break;
        if (!event.is_meta) continue;
        silent += AsQuantity(event.tick - tick) + body.substr(event.begin, event.end - event.begin);
        tick = event.tick;
    }
    return silent;
}

/// A track, cut where the last note of the tune ends, with its fade.
std::string Ended(const Ending& ending, const std::string& body) {
    Event kept;
    int channel = -1;
    int expression = 127;
    for (const Event& event : EventsOf(body)) {
        if (event.tick > ending.last || event.ends_track) break;
        kept = event;
        channel = std::max(channel, event.channel);
        if (event.expression >= 0) expression = event.expression;
    }
    if (channel < 0) return Silent(ending, body);
    return body.substr(0, kept.end) +
           Damping(ending, kept.tick, channel, static_cast<std::size_t>(expression));
}

std::string Trimmed(Bytes file) {
    const std::string header = file.Take(14);
    if (header.substr(0, 4) != "MThd") throw std::runtime_error("is no MIDI file");
    std::vector<std::string> tracks;
    while (!file.AtEnd()) {
        if (file.Take(4) != "MTrk") throw std::runtime_error("has something between its tracks");
        tracks.push_back(file.Take(file.Number(4)));
    }
    const Ending ending = EndingOf(tracks, Bytes(header.substr(12)).Number(2));
    std::string trimmed = header;
    for (const std::string& track : tracks) {
        const std::string body = Ended(ending, track) + AsQuantity(0) + "\xFF\x2F" + '\0';
        trimmed += "MTrk" + AsNumber(body.size()) + body;
    }
    return trimmed;
}

void Trim(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) throw std::runtime_error("cannot be read");
    const std::string trimmed = Trimmed(Bytes({std::istreambuf_iterator<char>(in), {}}));
    std::ofstream out(path, std::ios::binary);
    if (!(out << trimmed).flush()) throw std::runtime_error("cannot be written");
}

}  // namespace
}  // namespace quendrel::music

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: trim_tune FILE.mid\n";
        return 2;
    }
    try {
        quendrel::music::Trim(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << argv[1] << ": " << error.what() << '\n';
        return 1;
    }
    return 0;
}
