#include "MainKeys.h"

#include <algorithm>
#include <optional>

#include "Modes.h"
#include "game/KeyPlay.h"
#include "platform/Doors.h"
#include "platform/desktop/NumberKeys.h"

namespace quendrel {

namespace {

struct NamedKey {
    Qt::Key onKeyboard;
    Key key;
    /// Whether it counts again and again while it is held.
    bool repeats = false;
};

constexpr std::array kNamedKeys{
    NamedKey{Qt::Key_Left, Key::kLeft, true},
    NamedKey{Qt::Key_Right, Key::kRight, true},
    NamedKey{Qt::Key_Home, Key::kHome},
    NamedKey{Qt::Key_End, Key::kEnd},
    NamedKey{Qt::Key_Up, Key::kUp, true},
    NamedKey{Qt::Key_Down, Key::kDown, true},
    NamedKey{Qt::Key_Space, Key::kSpace},
    NamedKey{Qt::Key_Return, Key::kEnter},
    NamedKey{Qt::Key_Enter, Key::kEnter},
    NamedKey{Qt::Key_Escape, Key::kEscape},
    NamedKey{Qt::Key_Delete, Key::kDelete, true},
    NamedKey{Qt::Key_Backspace, Key::kBackspace, true},
};

/// Shift, Ctrl and the like; the number pad is as good as the rest of the keyboard.
Qt::KeyboardModifiers HeldWith(const QKeyEvent& event) {
    return event.modifiers() & ~Qt::KeypadModifier;
}

}  // namespace

bool MainKeys::Obey(const QKeyEvent& event) {
    if (const std::optional<int> number = NumberOf(event)) {
        ObeyNumber(event, *number);
        return true;
    }
    const auto* const named =
        std::find_if(kNamedKeys.begin(), kNamedKeys.end(),
                     [&](const NamedKey& one) { return one.onKeyboard == event.key(); });
    if (named == kNamedKeys.end()) return false;
    if (event.isAutoRepeat() && !named->repeats) return true;
    const bool empties = named->key == Key::kDelete && HeldWith(event) == Qt::ShiftModifier;
    if (HeldWith(event) != Qt::NoModifier && !empties) return true;
    bool obeyed = true;
    AtDoor([&] { obeyed = play_.Press(empties ? Key::kShiftDelete : named->key); });
    return obeyed;
}

void MainKeys::ObeyNumber(const QKeyEvent& event, int number) {
    if (event.isAutoRepeat()) return;
    const Qt::KeyboardModifiers held = HeldWith(event);
    AtDoor([&] {
        if (held == Qt::NoModifier) play_.PressNumber(number);
        if (held == Qt::ShiftModifier) play_.PressShiftNumber(number);
        if (held == Qt::ControlModifier && number <= static_cast<int>(kModes.size())) {
            play_.PressLetter({Controls::cmdModeBtn, number - 1});
        }
    });
}

}  // namespace quendrel
