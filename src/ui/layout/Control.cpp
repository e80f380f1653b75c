#include "ui/layout/Control.h"

#include <array>
#include <string_view>

namespace quendrel {

namespace {

struct Name {
    std::string_view name;
    bool indexed = true;
};

// clang-format off
/// In the order of Controls.
constexpr std::array<Name, kControlArrays> kNames{{
    {"cmdMnuBtn"},
    {"cmdModeBtn"},
    {"cmdColBtn"},
    {"lblColorBackup"},
    {"cmdInput"},
    {"lblActiveRow"},
    {"lblCloneRow"},
    {"lblDispRow"},
    {"cmdDuelBtn", false},
    {"cmdTmrBtn",  false},
    {"cmdHideBtn", false},
    {"lblGTimer",  false},
}};
// clang-format on

}  // namespace

std::string NameOf(Control control) {
    const auto& [name, indexed] = kNames.at(static_cast<std::size_t>(control.array));
    return std::string(name) + (indexed ? "(" + std::to_string(control.index) + ")" : "");
}

}  // namespace quendrel
