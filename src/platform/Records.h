// The parts of which the game's binary files are made: little-endian 16-bit numbers, and names in
// the ANSI code page after their lengths.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quendrel {

/// Reads from the bytes of a file, front to back. Once a number or name was missing, every later
/// one is missing too.
class RecordReader {
public:
    explicit RecordReader(std::string_view bytes) : rest_(bytes) {}

    /// The next number, or nothing where the bytes end before it does.
    std::optional<std::int16_t> Number();

    /// The next name, its bytes as they stand, or nothing where the bytes end before it does.
    std::optional<std::string> Name();

private:
    std::nullopt_t End();

    std::string_view rest_;
};

void AppendNumber(std::string& bytes, std::int16_t number);

/// Appends a name, cut at the 65535 bytes that its length can say.
void AppendName(std::string& bytes, std::string_view name);

}  // namespace quendrel
