#include "platform/desktop/NumberKeys.h"

#include <algorithm>
#include <array>

#include <QKeyEvent>

namespace quendrel {

namespace {

/// The places of keys as X and Wayland count them; elsewhere a key has place 0.
constexpr quint32 kFirstOfRow = 10;
constexpr quint32 kLastOfRow = 19;
constexpr std::array<quint32, 10> kKeypad{87, 88, 89, 83, 84, 85, 79, 80, 81, 90};

}  // namespace

std::optional<int> NumberOf(const QKeyEvent& event) {
    const quint32 place = event.nativeScanCode();
    if (place >= kFirstOfRow && place <= kLastOfRow) {
        return static_cast<int>(place - kFirstOfRow) + 1;
    }
    // Shift turns the keypad's numbers into arrows.
    const auto* const pad = std::find(kKeypad.begin(), kKeypad.end(), place);
    if (pad != kKeypad.end() && event.modifiers().testFlag(Qt::ShiftModifier)) {
        return static_cast<int>(pad - kKeypad.begin()) + 1;
    }
    const int digit = event.key() - Qt::Key_0;
    if (digit < 0 || digit > 9) return std::nullopt;
    return digit == 0 ? 10 : digit;
}

}  // namespace quendrel
