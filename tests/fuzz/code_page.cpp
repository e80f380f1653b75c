// Text in the code page, from any bytes and from any UTF-8.
#include <string>

#include "Promise.h"
#include "Readers.h"
#include "platform/AnsiText.h"

namespace quendrel::fuzz {

void CodePage(std::string_view bytes) {
    const std::string letters = FromAnsi(bytes);
    Promise(ToAnsi(letters) == bytes, "every byte is a character that is written as that byte");

    const std::string stored = ToAnsi(bytes);
    Promise(stored.size() <= bytes.size(), "no byte becomes two characters");
    Promise(ToAnsi(FromAnsi(stored)) == stored, "what was written once is written the same again");
    const auto isAscii = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
    std::string ascii;
    for (const char byte : bytes) {
        if (isAscii(byte)) ascii += byte;
    }
    std::string storedAscii;
    for (const char byte : stored) {
        if (isAscii(byte) && byte != '?') storedAscii += byte;
    }
    std::erase(ascii, '?');
    Promise(storedAscii == ascii,
            "letters of ASCII are written as they stand, and no others become them");
}

}  // namespace quendrel::fuzz
