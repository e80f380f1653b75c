// What a skin says of its lettering.
#include <algorithm>
#include <array>
#include <iomanip>
#include <sstream>
#include <string>

#include "MemoryFiles.h"
#include "Promise.h"
#include "Readers.h"
#include "platform/Text.h"
#include "ui/skin/SkinFonts.h"

namespace quendrel::fuzz {

namespace {

const std::string kSkin = "/Skin/Mine";
const std::string kFile = kSkin + "/Fonts.ini";

/// As everywhere, no face has a control character in its name.
bool IsInstalled(const std::string& face) { return face.size() % 2 == 0 && OneLine(face) == face; }

void LookAtStyle(const TextStyle& style) {
    const TextStyle usual;
    Promise(style.face == usual.face || IsInstalled(style.face), "a face is installed");
    Promise(!style.face.empty() && Trimmed(style.face) == style.face, "a face has a name");
    Promise(style.weight >= 100 && style.weight <= 900, "a weight is one of fonts");
    Promise(style.size >= 50 && style.size <= 150, "a size is from 50 to 150");
    Promise(style.width >= 50 && style.width <= 150, "a width is from 50 to 150");
    Promise(!style.color || *style.color <= 0xFFFFFF, "a colour has three bytes");
}

void LookAtFault(const std::string& fault, std::size_t lines) {
    Promise(fault.starts_with(kFile + ": line "), "a fault names the file and a line");
    const std::size_t line = std::stoul(fault.substr(kFile.size() + 7));
    Promise(line >= 1 && line <= lines, "the line is one of the file");
    Promise(OneLine(fault) == fault, "a fault is one line");
}

/// The file that says the same without a fault.
std::string Written(const TextStyles& styles) {
    constexpr std::array<const char*, kTextKinds> sections{"messages", "CLOCK", "Highscores",
                                                           "Config"};
    std::string text;
    for (std::size_t i = 0; i < kTextKinds; ++i) {
        const TextStyle& style = styles.values.at(i);
        text.append("[").append(sections.at(i)).append("]\nFACE = ").append(style.face);
        text += "\nweight=" + std::to_string(style.weight);
        text += "\nSize=" + std::to_string(style.size) + "\nWidth=" + std::to_string(style.width);
        if (style.color) {
            std::ostringstream color;
            color << std::hex << std::setw(6) << std::setfill('0') << *style.color;
            text += "\nColor=#" + color.str();
        }
        text += "\n";
    }
    return text;
}

}  // namespace

void Fonts(std::string_view bytes) {
    Files()[kFile] = bytes;
    const SkinFonts read = ReadSkinFonts(kSkin, IsInstalled);
    for (const TextStyle& style : read.styles) LookAtStyle(style);
    Promise(!read.styles[TextKind::kMessages].color, "messages have colours of their own");
    const auto breaks = std::count(bytes.begin(), bytes.end(), '\n');
    for (const std::string& fault : read.faults) {
        LookAtFault(fault, static_cast<std::size_t>(breaks) + 1);
    }
    Files()[kFile] = Written(read.styles);
    const SkinFonts again = ReadSkinFonts(kSkin, IsInstalled);
    Promise(again.faults.empty(), "what was understood can be written without a fault");
    Promise(again.styles == read.styles, "styles that are written are read as the same");
}

}  // namespace quendrel::fuzz
