// What happened, in order: draws, sounds, waits, texts and control states of one test.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quendrel::test {

class Log {
public:
    /// Appends a line of its own.
    void Add(const std::string& line) {
        lines_.push_back(line);
        topic_.clear();
        ++revision_;
    }

    /// Appends a line about a topic; the next one about the same topic replaces it.
    void State(const std::string& topic, const std::string& line) {
        if (topic_ == topic) lines_.pop_back();
        lines_.push_back(line);
        topic_ = topic;
        ++revision_;
    }

    /// Time that went by; what follows directly is added to the same line.
    void Wait(int milliseconds) { Count("wait ", milliseconds); }
    void StandStill(int milliseconds) { Count("stand still ", milliseconds); }
    void SweepLine() { Count("sweep lines ", 1); }

    void Clear() {
        lines_.clear();
        topic_.clear();
    }

    /// Grows with every line and replacement.
    int Revision() const { return revision_; }

    /// All lines, each ended by a line feed.
    std::string Text() const { return LinesFrom({}); }

    /// The lines that begin with `beginning`, each ended by a line feed.
    std::string LinesFrom(std::string_view beginning) const {
        std::string text;
        for (const std::string& line : lines_) {
            if (line.starts_with(beginning)) text += line + "\n";
        }
        return text;
    }

private:
    void Count(const std::string& what, int amount) {
        if (amount == 0) return;
        count_ = topic_ == what ? count_ + amount : amount;
        State(what, what + std::to_string(count_));
    }

    std::vector<std::string> lines_;
    std::string topic_;
    int count_ = 0;
    int revision_ = 0;
};

}  // namespace quendrel::test
