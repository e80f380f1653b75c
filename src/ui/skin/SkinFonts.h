// How the live text of a skin is lettered. A skin may say it in its file Fonts.ini; what it does
// not say is as TextStyle has it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "EnumArray.h"
#include "ui/layout/MainLayout.h"
#include "ui/picture/Picture.h"

namespace quendrel {

/// The file, in the skin's folder.
inline constexpr std::string_view kFontsFile = "\\Fonts.ini";

/// The kinds of live text; each has a section in the file. The entries are the highscores.
enum class TextKind : std::uint8_t { kMessages, kClock, kEntries, kConfig };

inline constexpr std::size_t kTextKinds = 4;
static_assert(kTextKinds == static_cast<std::size_t>(TextKind::kConfig) + 1);

struct TextStyle {
    std::string face = layout::kTextFamily;
    /// As fonts count: 400 is regular.
    int weight = layout::kTextWeight;
    /// In percent of the text's usual size, and of the width that the face itself has.
    int size = 100;
    int width = 100;
    /// Where there is none, the text has the colour that it has in any skin.
    std::optional<Pixel> color = {};

    bool operator==(const TextStyle&) const = default;
};

using TextStyles = EnumArray<TextKind, TextStyle, kTextKinds>;

struct SkinFonts {
    TextStyles styles;
    /// A line for everything in the file that cannot be used.
    std::vector<std::string> faults;
};

/// Whether the machine has the face.
using FaceFinder = std::function<bool(const std::string& face)>;

/// What the skin in the folder `root` says, if it says anything. For what cannot be used the
/// default stands in; for a face that is not installed, with the weight, size and width that were
/// meant for it.
SkinFonts ReadSkinFonts(const std::string& root, const FaceFinder& isInstalled);

}  // namespace quendrel
