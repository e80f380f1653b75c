// The command line: its words stand one behind the other, each ended by a zero byte.
#include <algorithm>
#include <array>
#include <charconv>
#include <string>
#include <vector>

#include "CommandLine.h"
#include "Promise.h"
#include "Readers.h"
#include "ViewScale.h"

namespace quendrel::fuzz {

namespace {

std::vector<std::string> WordsIn(std::string_view bytes) {
    std::vector<std::string> words{"quendrel"};
    while (!bytes.empty()) {
        words.emplace_back(bytes.substr(0, bytes.find('\0')));
        bytes.remove_prefix(std::min(words.back().size() + 1, bytes.size()));
    }
    return words;
}

/// The words that ask for the same, in another way.
std::vector<std::string> WordsFor(const CommandLine& asked) {
    std::vector<std::string> words{"game"};
    if (asked.request == Request::kSayHelp) words.emplace_back("--help");
    if (asked.request == Request::kSayVersion) words.emplace_back("--version");
    if (asked.request == Request::kCheckSkin) words.push_back("--check-skin=" + asked.skin);
    if (!asked.folder.empty()) words.push_back("--folder=" + asked.folder);
    if (asked.scale) {
        std::array<char, 32> digits{};
        char* const end = std::to_chars(digits.begin(), digits.end(), *asked.scale).ptr;
        words.push_back("--scale=" + std::string(digits.data(), end));
    }
    return words;
}

}  // namespace

void Arguments(std::string_view bytes) {
    const std::vector<std::string> words = WordsIn(bytes);
    const CommandLine asked = ReadCommandLine(words);
    if (!asked.complaint.empty()) {
        Promise(asked.complaint.size() > 1 && asked.complaint.ends_with('.'),
                "what is refused is refused in words");
        return;
    }
    Promise(!asked.scale || (*asked.scale >= kLeastScale && *asked.scale <= kMostScale),
            "a scale is one of ours");
    const bool mayPlay = asked.request == Request::kPlay || asked.request == Request::kCheckSkin;
    Promise(asked.scale || !mayPlay || words.size() == 1 || !words[1].starts_with("--scale"),
            "a scale that is asked for is understood or refused");
    Promise((asked.request == Request::kCheckSkin) == !asked.skin.empty(),
            "a skin that is checked is named");

    const CommandLine again = ReadCommandLine(WordsFor(asked));
    Promise(again.complaint.empty(), "what was understood can be said again");
    Promise(again.request == asked.request && again.skin == asked.skin &&
                again.folder == asked.folder && again.scale == asked.scale,
            "what is said again is understood as the same");
}

}  // namespace quendrel::fuzz
