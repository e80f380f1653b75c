// The making of the application, by which the toolkit opens the display.
#pragma once

#include <optional>
#include <string>

namespace quendrel {

/// Lives from before the application is made. Where the toolkit cannot open the display, the game
/// says so in its own words and ends with 1; the toolkit would abort.
class OpeningOfDisplay {
public:
    OpeningOfDisplay();

    /// The application is made: passes on what the toolkit has said meanwhile, and takes back what
    /// the toolkit alone was told, so that no program is that the game starts.
    void Succeeded() const;

private:
    std::optional<std::string> asked_;
};

}  // namespace quendrel
