#include "ui/windows/frmSplash.h"

#include "ui/picture/PictureImage.h"
#include "ui/skin/WindowShape.h"

namespace quendrel {

namespace {

/// The splash with so many pixels a unit.
Picture ReadSplash(int density) {
    Picture splash =
        PictureOf(QImage(density > 1 ? ":/builtin/2x/splash.png" : ":/builtin/splash.png"));
    splash.SetDensity(density);
    return splash;
}

}  // namespace

frmSplash::frmSplash(ViewScale& wanted)
    : SkinnedWindow("frmSplash", wanted), picture_(ReadSplash(DensityWanted())) {
    SetFace(picture_);
    ShapeFrom({ReadSplash(1), ReadSplash(2), kCutYellow});
    MoveToMiddle();
}

void frmSplash::FollowDensity() {
    picture_ = ReadSplash(DensityWanted());
    update();
}

}  // namespace quendrel
