#include "platform/IniFile.h"

#include <algorithm>
#include <optional>

#include "platform/Text.h"

namespace quendrel {

namespace {

bool IsSection(std::string_view line) {
    const std::string_view trimmed = Trimmed(line);
    return trimmed.size() >= 2 && trimmed.front() == '[' && trimmed.back() == ']';
}

/// The name in a line that is a section.
std::string_view SectionIn(std::string_view line) {
    const std::string_view trimmed = Trimmed(line);
    return trimmed.substr(1, trimmed.size() - 2);
}

bool IsSection(std::string_view line, std::string_view section) {
    return IsSection(line) && SameWithoutCase(SectionIn(line), section);
}

bool IsBlankOrComment(std::string_view line) {
    const std::string_view trimmed = Trimmed(line);
    return trimmed.empty() || trimmed.front() == ';' || trimmed.front() == '#';
}

bool IsKey(std::string_view line, std::string_view key) {
    const std::size_t equals = line.find('=');
    return equals != std::string_view::npos &&
           SameWithoutCase(Trimmed(line.substr(0, equals)), key);
}

/// The line without what other systems put around one, however often: carriage returns behind it,
/// and byte order marks before it, as where two files have become one.
std::string_view WithoutMarks(std::string_view line) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    while (line.starts_with(byteOrderMark)) line.remove_prefix(byteOrderMark.size());
    while (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

/// Where a key is, or where it would go: after the last line of its section that is not blank.
struct Place {
    std::optional<std::size_t> section;
    std::optional<std::size_t> key;
    std::size_t end = 0;
};

Place Find(const std::vector<std::string>& lines, std::string_view section, std::string_view key) {
    Place place;
    bool inSection = false;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (IsSection(lines[i])) {
            inSection = IsSection(lines[i], section);
            if (inSection) place.section = i;
        } else if (inSection && !place.key && IsKey(lines[i], key)) {
            place.key = i;
        }
        if (inSection && !Trimmed(lines[i]).empty()) place.end = i + 1;
    }
    return place;
}

}  // namespace

IniFile::IniFile(std::string_view text) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines_.emplace_back(WithoutMarks(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

std::string IniFile::Read(std::string_view section, std::string_view key,
                          std::string_view missing) const {
    const Place place = Find(lines_, section, key);
    if (!place.key) return std::string(missing);
    const std::string& line = lines_[*place.key];
    return line.substr(line.find('=') + 1);
}

std::size_t IniFile::LineOf(std::string_view section, std::string_view key) const {
    const Place place = Find(lines_, section, key);
    return place.key ? *place.key + 1 : 0;
}

std::vector<IniLine> IniFile::Lines() const {
    std::vector<IniLine> found;
    std::string section;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        const std::string& line = lines_[i];
        if (IsBlankOrComment(line)) continue;
        if (IsSection(line)) section = SectionIn(line);
        IniLine& one = found.emplace_back(IniLine{i + 1, section, {}, {}});
        if (IsSection(line)) continue;
        const std::size_t equals = line.find('=');
        one.key = Trimmed(std::string_view(line).substr(0, equals));
        if (equals != std::string::npos) one.value = line.substr(equals + 1);
    }
    return found;
}

void IniFile::Write(std::string_view section, std::string_view key, std::string_view value) {
    const std::string line = std::string(key).append("=").append(OneLine(value));
    const Place place = Find(lines_, section, key);
    if (place.key) {
        lines_[*place.key] = line;
    } else if (place.section) {
        lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(place.end), line);
    } else {
        if (!lines_.empty()) lines_.emplace_back();
        lines_.push_back(std::string("[").append(section).append("]"));
        lines_.push_back(line);
    }
}

void IniFile::Remove(std::string_view section, std::string_view key) {
    Place left = Find(lines_, section, key);
    if (!left.key) return;
    // The key may stand more than once: the next one would come into force.
    while (left.key) {
        lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(*left.key));
        left = Find(lines_, section, key);
    }
    if (left.end != *left.section + 1) return;
    // The heading alone, with the blank line that sets it apart.
    auto first = lines_.begin() + static_cast<std::ptrdiff_t>(*left.section);
    auto last = first + 1;
    if (first == lines_.begin()) {
        if (last != lines_.end() && Trimmed(*last).empty()) ++last;
    } else if (Trimmed(*(first - 1)).empty()) {
        --first;
    }
    lines_.erase(first, last);
}

std::string IniFile::Text() const {
    std::string text;
    for (const std::string& line : lines_) text += line + "\n";
    return text;
}

}  // namespace quendrel
