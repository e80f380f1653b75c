// What is written in a tune: its compiled file as the tests read it, by a reader of their own.
//
// What a voice has to do stands in its source as a remark, `[r:melody]`, and holds until the
// voice's next one. The compiler hands it on as a text of the voice's track. The remarks are
//   melody   the tune itself
//   answer   what answers the melody, imitates it or stands against it and must be heard
//   motif    accompaniment that is the piece's own idea and must be heard
//   inner    one of the parts between, which is where every voice begins
//   bass     the lowest part
//   figure   accompaniment in a repeated pattern
//   double   doubles another voice on purpose, in unison, octaves or thirds
#pragma once

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace quendrel::tunes {

enum class Role { kMelody, kAnswer, kMotif, kInner, kBass, kFigure, kDouble };

inline Role RoleNamed(std::string_view name) {
    static const std::map<std::string_view, Role> kRoles{
        {"melody", Role::kMelody}, {"answer", Role::kAnswer}, {"motif", Role::kMotif},
        {"inner", Role::kInner},   {"bass", Role::kBass},     {"figure", Role::kFigure},
        {"double", Role::kDouble}};
    const auto role = kRoles.find(name);
    if (role == kRoles.end()) throw std::runtime_error("no voice can be " + std::string(name));
    return role->second;
}

inline bool Sings(Role role) { return role == Role::kMelody || role == Role::kAnswer; }

inline bool MustBeHeard(Role role) { return Sings(role) || role == Role::kMotif; }

struct Note {
    int key = 0;
    int velocity = 0;
    long start = 0;
    long end = 0;
    Role role = Role::kInner;
    /// How loud it is meant to begin, by its velocity and the voice's controllers, in dB.
    double level = 0;
};

/// A track that has notes.
struct Voice {
    std::set<int> channels;
    std::set<int> programs;
    bool program_comes_first = false;
    int overlapping = 0;
    int unended = 0;
    std::vector<Note> notes;
};

struct Tune {
    long ticks_per_crotchet = 0;
    /// Microseconds to a crotchet, by the tick from which they hold.
    std::map<long, long> tempos;
    /// Ticks to a bar, likewise.
    std::map<long, long> bars;
    /// The last tick of every track, of those without notes too.
    std::vector<long> track_ends;
    /// Controllers in tracks without notes.
    int stray_controllers = 0;
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
        tune_.track_ends.push_back(tick_);
        if (voice_.notes.empty()) {
            tune_.stray_controllers += controllers_;
        } else {
            tune_.voices.push_back(voice_);
        }
    }

private:
    static constexpr int kVolume = 7;
    static constexpr int kExpression = 11;

    void ReadEvent() {
        // Where the status byte is missing, the last one still holds.
        if (bytes_.Peek() >= 0x80) status_ = bytes_.Byte();
        if (status_ == 0xFF) {
            const int type = bytes_.Byte();
            ReadMeta(type, bytes_.Take(static_cast<std::size_t>(bytes_.Quantity())));
        } else if (status_ >= 0xF0) {
            bytes_.Take(static_cast<std::size_t>(bytes_.Quantity()));
        } else if (status_ / 16 == 0xC) {
            voice_.programs.insert(bytes_.Byte());
            voice_.program_comes_first = voice_.program_comes_first || voice_.channels.empty();
        } else if (status_ / 16 == 0xD) {
            bytes_.Byte();
        } else {
            const int first = bytes_.Byte();
            ReadMessage(status_ / 16, first, bytes_.Byte());
        }
    }

    void ReadMeta(int type, std::string_view body) {
        if (type == 0x51) tune_.tempos[tick_] = Bytes(body).Number(3);
        if (type == 0x58) {
            const long crotchets = 4L * body.at(0);
            tune_.bars[tick_] = tune_.ticks_per_crotchet * crotchets / (1L << body.at(1));
        }
        if (type == 0x01 && body.starts_with("r:")) role_ = RoleNamed(body.substr(2));
    }

    void ReadMessage(int kind, int first, int second) {
        if (kind == 11) ++controllers_;
        if (kind == 11 && first == kVolume) volume_ = second;
        if (kind == 11 && first == kExpression) expression_ = second;
        if (kind == 8 || kind == 9) ReadNote(kind, first, second);
    }

    void ReadNote(int kind, int key, int velocity) {
        const auto note = sounding_.find(key);
        if (kind == 9 && velocity > 0) {
            voice_.channels.insert(status_ % 16);
            if (note != sounding_.end()) ++voice_.overlapping;
            sounding_[key] = voice_.notes.size();
            voice_.notes.push_back({key, velocity, tick_, -1, role_, Level(velocity)});
        } else if (note != sounding_.end()) {
            voice_.notes[note->second].end = tick_;
            sounding_.erase(note);
        }
    }

    /// Each of the three is squared on its way to the amplitude.
    double Level(int velocity) const {
        return 40 * std::log10(velocity * std::max(volume_, 1) * std::max(expression_, 1) /
                               std::pow(127.0, 3));
    }

    Bytes bytes_;
    Tune& tune_;
    long tick_ = 0;
    int status_ = 0;
    int controllers_ = 0;
    int volume_ = 100;
    int expression_ = 127;
    Role role_ = Role::kInner;
    Voice voice_;
    std::map<int, std::size_t> sounding_;
};

inline std::string Contents(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    if (!stream) throw std::runtime_error("cannot read " + path.string());
    return {std::istreambuf_iterator<char>(stream), {}};
}

inline Tune Load(const std::filesystem::path& path) {
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

inline std::vector<Note> AllNotes(const Tune& tune) {
    std::vector<Note> notes;
    for (const Voice& voice : tune.voices) {
        notes.insert(notes.end(), voice.notes.begin(), voice.notes.end());
    }
    return notes;
}

inline long FirstTick(const Tune& tune) {
    return std::ranges::min(AllNotes(tune), {}, &Note::start).start;
}

inline long LastTick(const Tune& tune) {
    return std::ranges::max(AllNotes(tune), {}, &Note::end).end;
}

/// When a tick comes, by the tempos that hold up to it.
inline double Seconds(const Tune& tune, long tick) {
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

/// Where every bar begins, and where the last one ends. The compiler begins notes a tick late, and
/// a bar has room for that.
inline std::vector<long> BarLines(const Tune& tune) {
    std::vector<long> lines;
    long at = 0;
    const long last = LastTick(tune);
    while (at < last) {
        lines.push_back(at);
        const auto length = tune.bars.upper_bound(at);
        if (length == tune.bars.begin()) throw std::runtime_error("a tune without a time");
        at += std::prev(length)->second;
    }
    lines.push_back(at);
    return lines;
}

/// The bar that a tick is in, from 1.
inline long BarOf(const Tune& tune, long tick) {
    const std::vector<long> lines = BarLines(tune);
    return std::upper_bound(lines.begin(), lines.end(), tick) - lines.begin();
}

// ---- The tunes and the compiler ----

inline std::filesystem::path SourceOf(const std::filesystem::path& tune) {
    return std::filesystem::path(QUENDREL_TUNES_FOLDER) / tune.stem().concat(".abc");
}

inline std::vector<std::filesystem::path> Tunes() {
    std::vector<std::filesystem::path> tunes;
    for (const auto& entry : std::filesystem::directory_iterator(QUENDREL_MUSIC_FOLDER)) {
        tunes.push_back(entry.path());
    }
    std::sort(tunes.begin(), tunes.end());
    return tunes;
}

inline int RunCompiler(const std::filesystem::path& source, const std::filesystem::path& target,
                       const std::filesystem::path& complaint) {
    const auto quoted = [](const std::filesystem::path& path) {
        return " '" + path.string() + "'";
    };
    const std::string command = quoted(QUENDREL_COMPILE_TUNE) + quoted(source) + quoted(target) +
                                quoted(QUENDREL_TRIM_TUNE) + " 2>" + quoted(complaint);
    return std::system(command.c_str());
}

/// A folder that is there for one test.
class Folder {
public:
    Folder() {
        std::string name = (std::filesystem::temp_directory_path() / "tunes-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
        path_ = name;
    }
    ~Folder() { std::filesystem::remove_all(path_); }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    std::filesystem::path operator/(std::string_view name) const { return path_ / name; }

private:
    std::filesystem::path path_;
};

/// Compiles a tune that a test has written: what stands from its time on.
inline void WriteTune(const std::filesystem::path& target, std::string_view written) {
    const std::filesystem::path source = std::filesystem::path(target).replace_extension("abc");
    const std::filesystem::path complaint = std::filesystem::path(target).replace_extension("said");
    std::ofstream(source) << "X:1\nT:Trial\n" << written;
    if (RunCompiler(source, target, complaint) != 0) throw std::runtime_error(Contents(complaint));
}

inline Tune Written(std::string_view written) {
    const Folder folder;
    WriteTune(folder / "Trial.mid", written);
    return Load(folder / "Trial.mid");
}

/// The tests of a tune are named by it.
inline std::string NameOfTune(const testing::TestParamInfo<std::filesystem::path>& test) {
    std::string name = test.param.stem().string();
    std::erase_if(name, [](unsigned char letter) { return std::isalnum(letter) == 0; });
    return name;
}

}  // namespace quendrel::tunes
