// Small operations on text, the same on every machine.
#pragma once

#include <string>
#include <string_view>

namespace quendrel {

/// ASCII letters in lower case, everything else as it stands.
std::string LowerCase(std::string_view text);

/// Without the spaces and tabs at both ends.
std::string_view Trimmed(std::string_view text);

}  // namespace quendrel
