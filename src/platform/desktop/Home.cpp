#include "platform/Home.h"

#include <array>
#include <cstdlib>
#include <optional>

#include <pwd.h>
#include <unistd.h>

namespace quendrel {

namespace {

std::optional<std::string> AbsolutePathIn(const char* variable) {
    const char* const path = std::getenv(variable);
    if (path == nullptr || path[0] != '/') return std::nullopt;
    return path;
}

/// Empty for a user whom nobody has entered.
std::string HomeOfUser() {
    passwd entry{};
    passwd* found = nullptr;
    std::array<char, 4096> texts{};
    getpwuid_r(getuid(), &entry, texts.data(), texts.size(), &found);
    return found == nullptr ? std::string() : found->pw_dir;
}

std::string Home() {
    const std::optional<std::string> home = AbsolutePathIn("HOME");
    return home ? *home : HomeOfUser();
}

}  // namespace

std::string FolderOfPlayer(const char* variable, const std::string& inHome) {
    const std::optional<std::string> folder = AbsolutePathIn(variable);
    return folder ? *folder : Home() + "/" + inHome;
}

}  // namespace quendrel
