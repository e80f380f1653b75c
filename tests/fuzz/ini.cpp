// The store of text values: the bytes of the file, with a value that is written into it before them
// where a zero byte ends one.
#include <algorithm>
#include <string>
#include <vector>

#include "Promise.h"
#include "Readers.h"
#include "platform/IniFile.h"
#include "platform/Text.h"

namespace quendrel::fuzz {

namespace {

constexpr const char* kSection = "Duel";
constexpr const char* kKey = "Player1";
constexpr const char* kMissing = "missing";

bool IsOurs(const IniLine& line) {
    return SameWithoutCase(line.section, "duel") && line.key &&
           SameWithoutCase(*line.key, "player1");
}

/// All lines but those of the key, without their numbers.
std::vector<IniLine> Others(const IniFile& file) {
    std::vector<IniLine> lines = file.Lines();
    std::erase_if(lines, IsOurs);
    for (IniLine& line : lines) line.number = 0;
    return lines;
}

void LookAtLines(const IniFile& file) {
    std::size_t last = 0;
    for (const IniLine& line : file.Lines()) {
        Promise(line.number > last, "lines are numbered upwards");
        last = line.number;
        if (!line.key || !line.value || line.section.empty()) continue;
        const std::size_t first = file.LineOf(line.section, *line.key);
        Promise(first > 0 && first <= line.number, "every key is found, or one like it before");
        if (first < line.number) continue;
        Promise(file.Read(line.section, *line.key, kMissing) == *line.value,
                "a value is read as its line has it");
    }
}

void Write(IniFile file, std::string_view value) {
    const std::vector<IniLine> others = Others(file);
    const bool hadSection = std::any_of(others.begin(), others.end(), [](const IniLine& line) {
        return !line.key && SameWithoutCase(line.section, "duel");
    });
    file.Write(kSection, kKey, value);
    const IniFile again(file.Text());
    Promise(again.Read(kSection, kKey, kMissing) == OneLine(value),
            "a value that was written is read");
    if (hadSection) Promise(Others(again) == others, "writing a value changes no other line");
}

void Remove(IniFile file) {
    const bool wasThere = file.LineOf(kSection, kKey) != 0;
    const std::string text = file.Text();
    const std::vector<IniLine> others = Others(file);
    file.Remove(kSection, kKey);
    Promise(wasThere || file.Text() == text, "removing what is not there changes nothing");
    const IniFile again(file.Text());
    Promise(again.LineOf(kSection, kKey) == 0, "a key that was removed is gone");
    std::vector<IniLine> left = others;
    std::vector<IniLine> now = Others(again);
    const auto isHeading = [](const IniLine& line) { return !line.key; };
    std::erase_if(left, isHeading);
    std::erase_if(now, isHeading);
    Promise(now == left, "removing a key changes no other value");
}

}  // namespace

void Ini(std::string_view bytes) {
    const std::size_t end = bytes.find('\0');
    const std::string_view value = end == std::string_view::npos ? "" : bytes.substr(0, end);
    const IniFile file(end == std::string_view::npos ? bytes : bytes.substr(end + 1));
    Promise(IniFile(file.Text()).Text() == file.Text(),
            "a file that was saved is read as the same");
    LookAtLines(file);
    Write(file, value);
    Remove(file);
}

}  // namespace quendrel::fuzz
