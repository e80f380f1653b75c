#include "kit/Animation.h"

namespace quendrel::art {

Canvas EmptyFrame(Rect place) {
    Canvas canvas(place);
    canvas.Paint(place, [floor = NicheFloor()](Vec2) { return Sample{floor, 1}; });
    return canvas;
}

}  // namespace quendrel::art
