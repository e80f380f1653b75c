// A store of text values by section and key, kept as a file of "[Section]" and "Key=Value" lines.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quendrel {

/// What a line holds: where it says a section, its name alone; elsewhere the section that the line
/// stands in, empty before the first, its key, and its value as Read gives it. A line without '='
/// is a key of its own, which has no value.
struct IniLine {
    std::size_t number = 0;
    std::string section;
    std::optional<std::string> key;
    std::optional<std::string> value;

    bool operator==(const IniLine&) const = default;
};

/// Lines that it does not know, comments among them, survive unchanged.
class IniFile {
public:
    /// The values in `text`, the bytes of such a file.
    explicit IniFile(std::string_view text = {});

    /// The value, which is everything after the first '=' as it stands, or `missing` where the
    /// key is not there. Sections and keys are found without regard to case.
    std::string Read(std::string_view section, std::string_view key,
                     std::string_view missing) const;

    /// The number of the line, from 1, that the key stands on, or 0 where it is not there.
    std::size_t LineOf(std::string_view section, std::string_view key) const;

    /// Every line but blank ones and comments, which begin with ';' or '#'.
    std::vector<IniLine> Lines() const;

    /// Sets a value, as one line: control characters become blanks. A new key goes to the end of
    /// its section, a new section to the end of the file.
    void Write(std::string_view section, std::string_view key, std::string_view value);

    /// Takes a key away wherever it stands, and its section where nothing else is in it.
    void Remove(std::string_view section, std::string_view key);

    /// The bytes of the file.
    std::string Text() const;

private:
    std::vector<std::string> lines_;
};

}  // namespace quendrel
