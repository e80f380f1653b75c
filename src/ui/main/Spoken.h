// What a screen reader says of the game.
#pragma once

#include <string>

#include "Global.h"
#include "ui/main/MessagePanel.h"

namespace quendrel {

/// A hole of the row that is filled: "Row 3, hole 2: Red", or "Code, hole 2: empty" while the
/// player sets the code.
std::string SpokenHole(const Global& global, int column);

/// A row (1 to 14) with its marks: "Row 2: Red, Blue, Blue, Green; 1 black, 2 white".
std::string SpokenCheckedRow(const Global& global, int row);

/// The row that is filled: "Row 3: Red, Blue, Blue, Green".
std::string SpokenActiveRow(const Global& global);

/// The colours of the hidden code: "Red, Blue, Blue, Green".
std::string SpokenCode(const Global& global);

/// The panel's lines as one text, without the signs that only please the eye.
std::string SpokenMessage(const Message& message);

/// "1 guess", "2 guesses".
std::string SpokenGuesses(int guesses);

/// The game clock: "1 minute 15 seconds".
std::string SpokenTime(int seconds);

}  // namespace quendrel
