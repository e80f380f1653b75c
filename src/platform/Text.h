// Small operations on text, the same on every machine.
#pragma once

#include <string>
#include <string_view>

namespace quendrel {

/// ASCII letters in lower case, everything else as it stands.
std::string LowerCase(std::string_view text);

/// Whether the texts are the same in lower case.
bool SameWithoutCase(std::string_view text, std::string_view other);

/// Whether a name stands before another one in a list: sorted without regard to case, and then by
/// its bytes.
bool ComesBefore(std::string_view name, std::string_view other);

/// Without the spaces and tabs at both ends.
std::string_view Trimmed(std::string_view text);

/// The text as one line: a line break or another control character becomes a blank. Bytes that are
/// no valid UTF-8 stay as they stand.
std::string OneLine(std::string_view text);

/// Whether the name of one file, if it were followed as a path with slashes or backslashes, could
/// lead out of the folder that it stands for.
bool LeadsElsewhere(std::string_view name);

}  // namespace quendrel
