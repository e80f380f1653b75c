// The states of the eight command buttons, set all at once.
#pragma once

#include <cstddef>
#include <cstdint>

#include "EnumArray.h"
#include "Modes.h"
#include "ui/layout/Control.h"

namespace quendrel {

class MainView;
struct Global;

/// In the order of ButtonNames.
enum class CommandButton : std::uint8_t {
    kExit,
    kAbout,
    kConfig,
    kHigh,
    kShow,
    kClone,
    kStart,
    kCheck,
};

inline constexpr std::size_t kCommandButtons = 8;
static_assert(ButtonNames.size() == kCommandButtons);

constexpr Control ButtonOf(CommandButton button) {
    return {Controls::cmdMnuBtn, static_cast<int>(button)};
}

/// One value per command button: 1 = enabled, 2 = disabled, 0 = leave as it is.
using ButtonStates = EnumArray<CommandButton, std::uint8_t, kCommandButtons>;

// clang-format off
//                                   Exit About Config High Show Clone Start Check
inline constexpr ButtonStates kIdle    {{1,   1,    1,    1,   2,   2,    1,    2}};
inline constexpr ButtonStates kStarted {{1,   1,    1,    1,   1,   2,    2,    2}};
inline constexpr ButtonStates kStartedWithOwnCode
                                       {{1,   1,    1,    1,   2,   2,    2,    2}};
inline constexpr ButtonStates kAllOff  {{2,   2,    2,    2,   2,   2,    2,    2}};
// clang-format on

class CommandButtons {
public:
    CommandButtons(const Global& global, MainView& window) : global_(global), window_(window) {}

    /// Applies the states. "High" is enabled only while the clock setting is on; with the clock
    /// off a 1 leaves it as it is.
    void SetButtonStates(const ButtonStates& states);

    /// Sets one button and leaves the other seven.
    void SetButtonState(CommandButton button, bool enabled);

    /// The states in force, 1 or 2 each, to be restored later.
    ButtonStates States() const;

private:
    const Global& global_;
    MainView& window_;
};

}  // namespace quendrel
