#include "ui/windows/frmSplash.h"

#include <algorithm>

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

/// The splash as it is painted. Where it is scaled, the pixels at its edge are mixed with those
/// that are cut away, so these are dark.
Picture FaceOf(Picture splash) {
    for (int y = 0; y < splash.height(); ++y) {
        std::replace(splash.Row(y), splash.Row(y) + splash.width(), kCutYellow, Pixel{0});
    }
    return splash;
}

}  // namespace

frmSplash::frmSplash(ViewScale& wanted)
    : SkinnedWindow("frmSplash", wanted, Qt::SplashScreen),
      picture_(FaceOf(ReadSplash(DensityWanted()))) {
    SetFace(picture_);
    ShapeFrom({ReadSplash(1), ReadSplash(2), kCutYellow});
    MoveToMiddle();
}

void frmSplash::FollowDensity() {
    picture_ = FaceOf(ReadSplash(DensityWanted()));
    update();
}

}  // namespace quendrel
