#include "platform/AnsiText.h"

#include <algorithm>
#include <array>

namespace quendrel {

namespace {

/// The characters of the bytes 0x80 to 0x9F; every other byte is the character of the same number.
constexpr std::array<char32_t, 32> kUpperControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char ToAnsiByte(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) {
        return static_cast<char>(character);
    }
    const auto* const found = std::find(kUpperControls.begin(), kUpperControls.end(), character);
    return found == kUpperControls.end()
               ? '?'
               : static_cast<char>(0x80 + (found - kUpperControls.begin()));
}

/// The length of the UTF-8 sequence that begins with this byte, 1 to 4, or 0 where none does.
std::size_t SequenceLength(unsigned char first) {
    if (first < 0x80) return 1;
    if (first >= 0xC2 && first < 0xE0) return 2;
    if (first >= 0xE0 && first < 0xF0) return 3;
    if (first >= 0xF0 && first < 0xF5) return 4;
    return 0;
}

bool IsContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

void AppendUtf8(std::string& text, char32_t character) {
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0 | character >> 6);
        text += static_cast<char>(0x80 | (character & 0x3F));
    } else {
        text += static_cast<char>(0xE0 | character >> 12);
        text += static_cast<char>(0x80 | (character >> 6 & 0x3F));
        text += static_cast<char>(0x80 | (character & 0x3F));
    }
}

}  // namespace

std::string ToAnsi(std::string_view utf8) {
    std::string ansi;
    while (!utf8.empty()) {
        const auto first = static_cast<unsigned char>(utf8[0]);
        const std::size_t length = SequenceLength(first);
        if (length == 0 || length > utf8.size() ||
            !std::all_of(utf8.begin() + 1, utf8.begin() + static_cast<std::ptrdiff_t>(length),
                         IsContinuation)) {
            ansi += '?';
            utf8.remove_prefix(1);
            continue;
        }
        constexpr std::array<unsigned char, 5> firstBits{0, 0x7F, 0x1F, 0x0F, 0x07};
        char32_t character = first & firstBits.at(length);
        for (std::size_t i = 1; i < length; ++i) {
            character = character << 6 | (static_cast<unsigned char>(utf8[i]) & 0x3F);
        }
        constexpr std::array<char32_t, 5> smallest{0, 0, 0x80, 0x800, 0x10000};
        if (character < smallest.at(length)) {
            ansi.append(length, '?');
        } else {
            ansi += ToAnsiByte(character);
        }
        utf8.remove_prefix(length);
    }
    return ansi;
}

std::string FromAnsi(std::string_view ansi) {
    std::string utf8;
    for (const char byte : ansi) {
        const auto number = static_cast<unsigned char>(byte);
        const bool upperControl = number >= 0x80 && number < 0xA0;
        AppendUtf8(utf8, upperControl ? kUpperControls.at(number - 0x80U) : number);
    }
    return utf8;
}

}  // namespace quendrel
