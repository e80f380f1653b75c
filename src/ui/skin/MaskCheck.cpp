#include "ui/skin/MaskCheck.h"

#include "ui/skin/CheckedTree.h"
#include "ui/skin/PictureLooks.h"
#include "ui/skin/WindowShape.h"

namespace quendrel {

bool CheckWindowMask(CheckedTree& skin, const SkinPicture& file) {
    const Picture* const mask = skin.Find(file.name);
    if (mask == nullptr) return false;
    Point at;
    const auto isKept = [mask](Point p) { return PixelAt(*mask, p) != kCutWhite; };
    const auto isCut = [mask](Point p) { return PixelAt(*mask, p) == kCutWhite; };
    if (!FindPoint(Whole(*mask), isCut, at)) {
        skin.Say(file.name,
                 "has no pixel that is exactly white (255, 255, 255); paint white what is to be "
                 "cut away");
        return false;
    }
    if (FindPoint(Whole(*mask), isKept, at)) return true;
    skin.Say(file.name, "is all white; paint black what is to be kept of the window");
    return false;
}

bool CheckMaskCell(CheckedTree& skin, const SkinPicture& strip, Size size, int cell) {
    const Picture* const picture = skin.Find(strip.name);
    if (picture == nullptr) return false;
    const Size pixels{size.width * skin.density(), size.height * skin.density()};
    const Rect place = At({pixels.width * cell, 0}, pixels);
    const auto isImpure = [picture](Point p) {
        return PixelAt(*picture, p) != kBlackPixel && PixelAt(*picture, p) != kWhitePixel;
    };
    Point at;
    if (FindPoint(place, isImpure, at)) {
        skin.Say(strip.name, "has " + Hex(PixelAt(*picture, at)) + " at " + Written(at) +
                                 ", in its mask; paint " + Written(place) +
                                 " in nothing but pure black and pure white");
        return false;
    }
    if (HasBlack(*picture, place)) return true;
    skin.Say(strip.name, "has no black in its mask, so nothing of it would be drawn; paint in " +
                             Written(place) + " black what is to be drawn");
    return false;
}

}  // namespace quendrel
