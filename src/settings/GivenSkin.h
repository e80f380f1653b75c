// A skin that the player is given while the game runs.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "ui/picture/Picture.h"

namespace quendrel {

class MainView;
struct Global;

/// Takes the skin at a path of the machine into the folder of skins and into the list, and returns
/// its number. Where it cannot be taken the player is told why.
std::optional<std::int16_t> TakeGivenSkin(Global& global, const PictureReader& pictures,
                                          MainView& window, const std::string& path);

}  // namespace quendrel
