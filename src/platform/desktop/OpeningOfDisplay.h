// The making of the application, by which the toolkit opens the display.
#pragma once

namespace quendrel {

/// Lives from before the application is made. Where the toolkit cannot open the display, the game
/// says so in its own words and ends with 1; the toolkit would abort.
class OpeningOfDisplay {
public:
    OpeningOfDisplay();

    /// The application is made: passes on what the toolkit has said meanwhile.
    static void Succeeded();
};

}  // namespace quendrel
