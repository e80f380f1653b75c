#include "ui/skin/SkinFonts.h"

#include <charconv>
#include <set>
#include <string_view>
#include <system_error>
#include <utility>

#include "platform/Errors.h"
#include "platform/Files.h"
#include "platform/IniFile.h"
#include "platform/Text.h"

namespace quendrel {

namespace {

constexpr EnumArray<TextKind, std::string_view, kTextKinds> kSections{
    {"Messages", "Clock", "Highscores", "Config"}};
constexpr std::string_view kSectionList = "[Messages], [Clock], [Highscores] and [Config]";

std::optional<TextKind> KindOf(std::string_view section) {
    for (std::size_t i = 0; i < kTextKinds; ++i) {
        if (SameWithoutCase(kSections.values.at(i), section)) return static_cast<TextKind>(i);
    }
    return std::nullopt;
}

/// A whole number, without a sign, that is all of the text.
std::optional<int> NumberIn(std::string_view text, int base = 10) {
    int number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, base);
    if (error != std::errc{} || stop != end || text.front() == '-') return std::nullopt;
    return number;
}

std::optional<Pixel> ColorIn(std::string_view text) {
    constexpr std::size_t length = 7;
    if (text.size() != length || text.front() != '#') return std::nullopt;
    const std::optional<int> number = NumberIn(text.substr(1), 16);
    if (!number) return std::nullopt;
    return static_cast<Pixel>(*number);
}

std::string Quoted(std::string_view text) { return '"' + OneLine(text) + '"'; }

class FontsReader {
public:
    FontsReader(std::string path, const IniFile& file) : path_(std::move(path)), file_(file) {}

    SkinFonts Read(const FaceFinder& isInstalled) {
        for (const IniLine& line : file_.Lines()) {
            if (line.key) {
                ReadEntry(line);
            } else if (!KindOf(line.section)) {
                Say(line.number, "there is no section [" + OneLine(line.section) +
                                     "]; the sections are " + std::string(kSectionList));
            }
        }
        for (std::size_t i = 0; i < kTextKinds; ++i) {
            RequireFace(static_cast<TextKind>(i), isInstalled);
        }
        return std::move(read_);
    }

private:
    void Say(std::size_t line, const std::string& fault) {
        read_.faults.push_back(path_ + ": line " + std::to_string(line) + ": " + fault);
    }

    void ReadEntry(const IniLine& line) {
        const std::optional<TextKind> kind = KindOf(line.section);
        if (!line.value) {
            Say(line.number, "is neither \"[Section]\" nor \"Key=Value\"");
        } else if (line.section.empty()) {
            Say(line.number, "stands in no section; the sections are " + std::string(kSectionList));
        } else if (kind && !seen_.emplace(*kind, LowerCase(*line.key)).second) {
            Say(line.number, "[" + line.section + "] has this key already; the first one counts");
        } else if (kind) {
            ReadValue(line, *kind);
        }
    }

    void ReadValue(const IniLine& line, TextKind kind) {
        TextStyle& style = read_.styles[kind];
        const std::string key = LowerCase(*line.key);
        const std::string_view value = Trimmed(*line.value);
        if (key == "face") {
            ReadFace(line.number, value, style);
        } else if (key == "weight") {
            ReadNumber(line.number, value, {100, 900}, style.weight);
        } else if (key == "size") {
            ReadNumber(line.number, value, {50, 150}, style.size);
        } else if (key == "width") {
            ReadNumber(line.number, value, {50, 150}, style.width);
        } else if (key == "color" && kind == TextKind::kMessages) {
            Say(line.number, "[Messages] takes no Color; the game gives each message its own");
        } else if (key == "color") {
            style.color = ColorIn(value);
            if (!style.color) Say(line.number, Quoted(value) + " is no colour; write #RRGGBB");
        } else {
            Say(line.number, "there is no key " + Quoted(*line.key) +
                                 "; the keys are Face, Weight, Size, Width and Color");
        }
    }

    void ReadFace(std::size_t line, std::string_view value, TextStyle& style) {
        if (value.empty()) {
            Say(line, "Face is empty; write the name of a font family");
        } else {
            style.face = value;
        }
    }

    void ReadNumber(std::size_t line, std::string_view value, std::pair<int, int> range,
                    int& field) {
        const std::optional<int> number = NumberIn(value);
        if (number && *number >= range.first && *number <= range.second) {
            field = *number;
        } else {
            Say(line, Quoted(value) + " is no whole number from " + std::to_string(range.first) +
                          " to " + std::to_string(range.second));
        }
    }

    void RequireFace(TextKind kind, const FaceFinder& isInstalled) {
        TextStyle& style = read_.styles[kind];
        const TextStyle usual{.color = style.color};
        if (style.face == usual.face || isInstalled(style.face)) return;
        Say(file_.LineOf(kSections[kind], "Face"), "the face " + Quoted(style.face) +
                                                       " is not installed; " + usual.face +
                                                       " stands in for it");
        style = usual;
    }

    std::string path_;
    const IniFile& file_;
    std::set<std::pair<TextKind, std::string>> seen_;
    SkinFonts read_;
};

}  // namespace

SkinFonts ReadSkinFonts(const std::string& root, const FaceFinder& isInstalled) {
    const std::string path = MachinePath(root + std::string(kFontsFile));
    if (!PathExists(path)) return {};
    try {
        const IniFile file(ReadFile(path));
        return FontsReader(path, file).Read(isInstalled);
    } catch (const FileError& error) {
        return {{}, {error.what()}};
    }
}

}  // namespace quendrel
