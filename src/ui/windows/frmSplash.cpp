#include "ui/windows/frmSplash.h"

#include <algorithm>

#include "ui/picture/PictureImage.h"
#include "ui/skin/WindowShape.h"

namespace quendrel {

namespace {

/// What the splash has where its mask is white.
constexpr Pixel kCutYellow = 0xFFFF00;

/// A picture with so many pixels a unit. The format is named, so that the toolkit looks for no
/// other.
Picture Read(const QString& name, int density) {
    const QString folder = density > 1 ? ":/builtin/2x/" : ":/builtin/";
    Picture picture = PictureOf(QImage(folder + name, "PNG"));
    picture.SetDensity(density);
    return picture;
}

Picture ReadMask(int density) { return Read("splash-mask.png", density); }

/// The splash as it is painted. Where it is scaled, the pixels at its edge are mixed with those
/// that are cut away, so these are dark.
Picture ReadFace(int density) {
    Picture splash = Read("splash.png", density);
    for (int y = 0; y < splash.height(); ++y) {
        std::replace(splash.Row(y), splash.Row(y) + splash.width(), kCutYellow, Pixel{0});
    }
    return splash;
}

}  // namespace

frmSplash::frmSplash(ViewScale& wanted)
    : SkinnedWindow("frmSplash", wanted, Qt::SplashScreen), picture_(ReadFace(DensityWanted())) {
    SetFace(picture_);
    ShapeFrom({ReadMask(1), ReadMask(2)});
    MoveToMiddle();
}

void frmSplash::FollowDensity() {
    picture_ = ReadFace(DensityWanted());
    update();
}

}  // namespace quendrel
