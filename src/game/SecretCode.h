// The hidden code of a new game: drawn by the computer, or set by a player.
#pragma once

namespace quendrel {

struct Table;

/// Fills SecretCode for a new game and closes the covers over it. With `playerSetsCode` the
/// player places it in the code row and confirms with "Ok"; this waits for it. The command
/// buttons then go back to the game-started pattern.
void SetSecretCode(Table& table, bool playerSetsCode);

}  // namespace quendrel
