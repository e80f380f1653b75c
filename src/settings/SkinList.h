// The installed skins and the choice among them.
#pragma once

#include <cstdint>
#include <string>

namespace quendrel {

class Random;
struct Global;

/// Fills SkinNames with the folders in the skin folder, sorted without regard to case, so that a
/// stored index means the same skin on every start. Files there are not skins.
/// Throws FileError when there is no skin at all.
void ListSkins(Global& global);

/// The name of the skin with this number.
const std::string& NameOfSkin(const Global& global, std::int16_t skin);

/// The number of a skin that is in the list, from 1.
std::int16_t NumberOfSkin(const Global& global, const std::string& name);

/// Puts a skin into the list, where it stands after the next start as well, unless it is there, and
/// returns its number. The skins in use keep being used.
std::int16_t AddSkin(Global& global, const std::string& name);

/// The player has chosen a skin by its number, be it one that only stood in for a damaged one. It
/// is still to be put on.
void ChooseSkin(Global& global, std::int16_t skin);

/// Picks a random skin where the setting RndSkin is on. Called at start-up.
void PickRandomSkin(Global& global, Random& random);

}  // namespace quendrel
