// The splash window.
#include "ui/frmSplash.h"

#include "ui/PictureImage.h"
#include "ui/WindowShape.h"

namespace quendrel {

frmSplash::frmSplash()
    : SkinnedWindow("frmSplash"), picture_(PictureOf(QImage(":/builtin/splash.png"))) {
    SetFace(picture_);
    ShapeFrom(picture_, kCutYellow);
    MoveToMiddle();
}

}  // namespace quendrel
