// The installed skins and the choice among them.
#pragma once

namespace quendrel {

class Random;
struct Global;

/// Fills SkinNames with the folders in the skin folder, sorted without regard to case, so that a
/// stored index means the same skin on every start. Files there are not skins.
/// Throws FileError when there is no skin at all.
void ListSkins(Global& global);

/// Picks a random skin where the setting RndSkin is on. Called at start-up.
void PickRandomSkin(Global& global, Random& random);

}  // namespace quendrel
