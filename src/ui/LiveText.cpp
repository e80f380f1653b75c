// The font of the live text.
#include "ui/LiveText.h"

#include "ui/MainLayout.h"

namespace quendrel {

QFont LiveFont(int pixels) {
    QFont font(layout::kTextFamily);
    font.setPixelSize(pixels);
    font.setWeight(static_cast<QFont::Weight>(layout::kTextWeight));
    return font;
}

}  // namespace quendrel
