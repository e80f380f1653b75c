// What the program is asked to do by the words behind its name.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quendrel {

enum class Request : std::uint8_t { kPlay, kCheckSkin, kSayHelp, kSayVersion };

struct CommandLine {
    Request request = Request::kPlay;
    /// What is wrong with the words; where there is anything, nothing else is to be done.
    std::string complaint = {};
    /// The folder to play in; empty where none is named.
    std::string folder = {};
    /// The skin to check.
    std::string skin = {};
    /// The scale to play at, where one is given.
    std::optional<double> scale = {};
};

/// The first word is the program's name; each is any bytes.
CommandLine ReadCommandLine(const std::vector<std::string>& words);

}  // namespace quendrel
