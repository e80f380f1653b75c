// Names of files and of players.
#include <algorithm>
#include <filesystem>
#include <string>

#include "Promise.h"
#include "Readers.h"
#include "platform/Text.h"

namespace quendrel::fuzz {

namespace {

/// Whether the name, followed with slashes, ends outside of the folder that it begins in.
bool EndsOutside(std::string name) {
    std::replace(name.begin(), name.end(), '\\', '/');
    const std::string end = (std::filesystem::path("/inside") / name).lexically_normal().string();
    return end != "/inside" && !end.starts_with("/inside/");
}

void LookAtOrder(std::string_view name, std::string_view other) {
    Promise(!ComesBefore(name, name), "no name comes before itself");
    Promise(name == other || ComesBefore(name, other) != ComesBefore(other, name),
            "of two names one comes first");
}

}  // namespace

void Names(std::string_view bytes) {
    const std::string name(bytes);
    Promise(LeadsElsewhere(name) || !EndsOutside(name), "a name that stays stays in its folder");

    const std::string line = OneLine(name);
    Promise(OneLine(line) == line, "a line is one line");
    Promise(std::none_of(line.begin(), line.end(),
                         [](char byte) { return (byte >= 0 && byte < ' ') || byte == 0x7F; }),
            "a line has no control characters");
    Promise(line.find("\u2028") == std::string::npos && line.find("\u2029") == std::string::npos,
            "a line has no separators");

    const std::string_view trimmed = Trimmed(bytes);
    Promise(trimmed.empty() || (trimmed.find_first_of(" \t") != 0 &&
                                trimmed.find_last_of(" \t") != trimmed.size() - 1),
            "a trimmed text has no blanks at its ends");
    Promise(Trimmed(trimmed) == trimmed, "what was trimmed stays");

    Promise(LowerCase(LowerCase(name)) == LowerCase(name), "lower case is lower case");
    LookAtOrder(bytes.substr(0, bytes.size() / 2), bytes.substr(bytes.size() / 2));
}

}  // namespace quendrel::fuzz
