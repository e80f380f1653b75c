#include "platform/Text.h"

#include <algorithm>

namespace quendrel {

namespace {

/// How many bytes the control character or the line break at the front takes, 0 where none is.
std::size_t ControlLength(std::string_view text) {
    const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    switch (byte(0)) {
        case '\r':
            return text.starts_with("\r\n") ? 2 : 1;
        case 0xC2:
            return text.size() >= 2 && byte(1) >= 0x80 && byte(1) < 0xA0 ? 2 : 0;
        case 0xE2:
            return text.starts_with("\u2028") || text.starts_with("\u2029") ? 3 : 0;
        default:
            return byte(0) < 0x20 || byte(0) == 0x7F ? 1 : 0;
    }
}

char LowerLetter(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

}  // namespace

std::string LowerCase(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), LowerLetter);
    return lower;
}

bool SameWithoutCase(std::string_view text, std::string_view other) {
    return std::equal(text.begin(), text.end(), other.begin(), other.end(),
                      [](char a, char b) { return LowerLetter(a) == LowerLetter(b); });
}

bool ComesBefore(std::string_view name, std::string_view other) {
    const std::string lower = LowerCase(name);
    const std::string lowerOther = LowerCase(other);
    return lower != lowerOther ? lower < lowerOther : name < other;
}

std::string_view Trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string OneLine(std::string_view text) {
    std::string line;
    while (!text.empty()) {
        const std::size_t control = ControlLength(text);
        line += control > 0 ? ' ' : text[0];
        text.remove_prefix(std::max<std::size_t>(control, 1));
    }
    return line;
}

bool LeadsElsewhere(std::string_view name) {
    if (name.find('/') != std::string_view::npos || name.starts_with('\\')) return true;
    while (true) {
        const std::size_t end = name.find('\\');
        if (name.substr(0, end) == "..") return true;
        if (end == std::string_view::npos) return false;
        name.remove_prefix(end + 1);
    }
}

}  // namespace quendrel
