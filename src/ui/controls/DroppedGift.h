// What may be a skin among what is dragged onto a window or copied elsewhere.
#pragma once

#include <string>

class QMimeData;

namespace quendrel {

/// The path of the only thing in `data`, a folder or a .zip file of this machine; empty where it is
/// anything else.
std::string GiftIn(const QMimeData& data);

}  // namespace quendrel
