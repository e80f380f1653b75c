#include "ui/windows/frmSplash.h"

#include "ui/picture/PictureImage.h"
#include "ui/skin/WindowShape.h"

namespace quendrel {

frmSplash::frmSplash()
    : SkinnedWindow("frmSplash"), picture_(PictureOf(QImage(":/builtin/splash.png"))) {
    SetFace(picture_);
    ShapeFrom(picture_, kCutYellow);
    MoveToMiddle();
}

}  // namespace quendrel
