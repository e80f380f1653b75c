#include "skins/Craft.h"

namespace quendrel::art {

void Craft::PaintKey(Canvas& canvas, const Button& button, ButtonState state) const {
    if (button.kind == ButtonKind::kTimer) {
        PaintClock(canvas, button.place, state != ButtonState::kDisabled);
        return;
    }
    PaintBlank(canvas, button, state);
    if (button.kind == ButtonKind::kPeg) {
        PaintKeyPeg(canvas, button, state);
    } else {
        PaintCaption(canvas, button, state);
    }
}

}  // namespace quendrel::art
