// Text in the ANSI code page of the game's files, Windows-1252, and as the program holds it, UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace quendrel {

/// One byte per character; what the code page does not hold becomes '?', and so does each byte
/// that is no valid UTF-8.
std::string ToAnsi(std::string_view utf8);

/// Every byte is a character. The five bytes that the code page leaves undefined stand for the
/// control characters of the same number, so that they survive being read and written.
std::string FromAnsi(std::string_view ansi);

}  // namespace quendrel
