#include "ui/skin/WindowCheck.h"

#include <optional>
#include <string>
#include <string_view>

#include "ui/layout/Control.h"
#include "ui/layout/MainLayout.h"
#include "ui/skin/CheckedTree.h"
#include "ui/skin/MaskCheck.h"
#include "ui/skin/PictureLooks.h"
#include "ui/skin/SkinFiles.h"
#include "ui/skin/WindowShape.h"

namespace quendrel {

namespace {

/// How far the grain of a well may be from its middle in a channel.
constexpr int kGrain = 16;
/// The text that stands on a well keeps this far from its edges.
constexpr int kWellMargin = 5;
/// The last pixel within an outline is at most this bright in any channel.
constexpr int kDarkRim = 64;
/// The grounds of live text: how bright, and how uneven, in any channel.
constexpr int kDarkGround = 100;
constexpr int kEvenGround = 48;

Rect Within(const Rect& place, int margin) {
    return {place.left + margin, place.top + margin, place.width - 2 * margin,
            place.height - 2 * margin};
}

void CheckRim(CheckedTree& skin, const Picture& mask, const Picture& face, std::string_view name) {
    const auto isCut = [&mask](Point p) {
        return p.x < 0 || p.y < 0 || p.x >= mask.width() || p.y >= mask.height() ||
               PixelAt(mask, p) == kCutWhite;
    };
    const auto isBright = [&](Point p) {
        if (isCut(p) || Brightest(PixelAt(face, p)) <= kDarkRim) return false;
        return isCut(Plus(p, {-1, 0})) || isCut(Plus(p, {1, 0})) || isCut(Plus(p, {0, -1})) ||
               isCut(Plus(p, {0, 1}));
    };
    Point at;
    if (!FindPoint(Whole(mask), isBright, at)) return;
    skin.Say(name,
             "is " + Hex(PixelAt(face, at)) + " at " + Written(at) +
                 ", on the edge of the outline; paint the last pixel within the outline dark, "
                 "no channel above " +
                 std::to_string(kDarkRim));
}

void CheckGround(CheckedTree& skin, const Picture& window, const SkinPicture& file,
                 const Rect& place) {
    Point at;
    const auto isBright = [&window](Point p) {
        return Brightest(PixelAt(window, p)) > kDarkGround;
    };
    const Pixel middle = window.At(place.left + place.width / 2, place.top + place.height / 2);
    const auto isUneven = [&window, middle](Point p) {
        return Step(PixelAt(window, p), middle) > kEvenGround;
    };
    if (FindPoint(place, isBright, at) || FindPoint(place, isUneven, at)) {
        skin.Say(file.name, "has " + Hex(PixelAt(window, at)) + " at " + Written(at) +
                                ", under live text; paint " + Written(place) +
                                " dark and even, no channel above " + std::to_string(kDarkGround) +
                                " or more than " + std::to_string(kEvenGround) +
                                " from the middle of the place");
    }
}

void CheckWell(CheckedTree& skin, const Picture& window, const Rect& well) {
    const Pixel middle = window.At(well.left + well.width / 2, well.top + well.height / 2);
    const auto isOther = [&window, middle](Point p) {
        return Step(PixelAt(window, p), middle) > kGrain;
    };
    Point at;
    if (!FindPoint(Within(well, kWellMargin), isOther, at)) return;
    skin.Say(kConfigPicture.name,
             "has " + Hex(PixelAt(window, at)) + " at " + Written(at) + " in a well that is " +
                 Hex(middle) + " in its middle; paint the well at " + Written(well) +
                 " in one colour, but for a rim of " + std::to_string(kWellMargin) + " pixels");
}

void CheckNiche(CheckedTree& skin, const Picture& window, const Rect& niche) {
    const auto isOther = [&window](Point p) { return PixelAt(window, p) != layout::kNicheFloor; };
    Point at;
    if (!FindPoint(niche, isOther, at)) return;
    skin.Say(kAboutPicture.name, "has " + Hex(PixelAt(window, at)) + " at " + Written(at) +
                                     ", under an animation; paint " + Written(niche) +
                                     " in exactly " + Hex(layout::kNicheFloor));
}

/// Where a button of the main window stands in a state: the clock's lights up beside the time, and
/// is dark where it stands alone. Nothing for what is no button.
std::optional<Point> MainButtonPlace(Control control, ButtonState state) {
    const auto corner = [](const Rect& place) { return Point{place.left, place.top}; };
    const auto index = static_cast<std::size_t>(control.index);
    switch (control.array) {
        case Controls::cmdMnuBtn:
            return corner(layout::kMenuButtons.at(index));
        case Controls::cmdModeBtn:
            return corner(layout::kModeButtons.at(index));
        case Controls::cmdColBtn:
            return corner(layout::kColorButtons.at(index));
        case Controls::cmdInput:
            return layout::kInputShownAt.at(index);
        case Controls::cmdTmrBtn:
            if (state == ButtonState::kDisabled) return corner(layout::kClockButton);
            return Point{layout::kClockButtonBesideLabel, layout::kClockButton.top};
        case Controls::cmdDuelBtn:
            return corner(layout::kDuelButton);
        case Controls::cmdHideBtn:
            return corner(layout::kHideButton);
        default:
            return std::nullopt;
    }
}

void CheckCornersOf(CheckedTree& skin, const SkinPicture& window, const std::string& name,
                    const Rect& place) {
    const Picture* const face = skin.Find(window.name);
    const Picture* const picture = skin.Find(name);
    if (face == nullptr || picture == nullptr) return;
    const int right = place.width - 1;
    const int bottom = place.height - 1;
    for (const Point corner :
         {Point{0, 0}, Point{right, 0}, Point{0, bottom}, Point{right, bottom}}) {
        const Pixel ground = PixelAt(*face, {place.left + corner.x, place.top + corner.y});
        if (Step(PixelAt(*picture, corner), ground) <= kSeen) continue;
        skin.Say(name, "is " + Hex(PixelAt(*picture, corner)) + " in its corner " +
                           Written(corner) + " where the window is " + Hex(ground) +
                           "; cut its corners out of the window");
        break;
    }
}

void CheckPictureOf(CheckedTree& skin, const SkinPicture& window, const ButtonFiles& button,
                    const StatePicture& picture, Point at) {
    CheckCornersOf(skin, window, button.stem + std::string(picture.ending), At(at, button.size));
}

void CheckCorners(CheckedTree& skin, const SkinPicture& window, const ButtonFiles& button,
                  Point at) {
    for (const StatePicture& picture : button.pictures) {
        CheckPictureOf(skin, window, button, picture, at);
    }
}

}  // namespace

void CheckOutlines(CheckedTree& skin) {
    for (const MaskedPicture& window : kMaskedPictures) {
        const Picture* const face = skin.Find(window.face.name);
        if (!CheckWindowMask(skin, window.mask) || face == nullptr) continue;
        CheckRim(skin, *skin.Find(window.mask.name), *face, window.face.name);
    }
}

void CheckGrounds(CheckedTree& skin) {
    if (const Picture* const board = skin.Find(kBoardPicture.name)) {
        for (const Rect& line : layout::kMessageLines)
            CheckGround(skin, *board, kBoardPicture, line);
        CheckGround(skin, *board, kBoardPicture, layout::kClockLabel);
    }
    if (const Picture* const high = skin.Find(kHighPicture.name)) {
        for (int entry = 1; entry <= layout::kHighEntries; ++entry) {
            CheckGround(skin, *high, kHighPicture, layout::HighName(entry));
            CheckGround(skin, *high, kHighPicture, layout::HighRow(entry));
            CheckGround(skin, *high, kHighPicture, layout::HighTime(entry));
        }
    }
    if (const Picture* const config = skin.Find(kConfigPicture.name)) {
        for (const Rect& well : layout::kConfigWells) CheckWell(skin, *config, well);
    }
    if (const Picture* const about = skin.Find(kAboutPicture.name)) {
        for (const Rect& niche : {layout::kAboutEmail, layout::kAboutHome, layout::kAboutTorch}) {
            CheckNiche(skin, *about, niche);
        }
    }
}

void CheckButtons(CheckedTree& skin) {
    for (const auto& [control, button] : MainButtonFiles()) {
        for (const StatePicture& picture : button.pictures) {
            const std::optional<Point> at = MainButtonPlace(control, picture.state);
            if (at) CheckPictureOf(skin, kBoardPicture, button, picture, *at);
        }
    }
    for (const ButtonDesign& button : kConfigButtons) {
        CheckCorners(skin, kConfigPicture, ConfigButtonFiles(button),
                     {button.place.left, button.place.top});
    }
    for (const SwitchDesign& lever : kConfigSwitches) {
        CheckCorners(skin, kConfigPicture, ConfigSwitchFiles(lever),
                     {lever.place.left, lever.place.top});
    }
    CheckCorners(skin, kHighPicture, HighOkFiles(), {layout::kHighOk.left, layout::kHighOk.top});
    CheckCorners(skin, kHighPicture, HighDefaultFiles(),
                 {layout::kHighDefault.left, layout::kHighDefault.top});
    for (std::size_t mode = 0; mode < ModeNames.size(); ++mode) {
        const Rect& sign = layout::kHighMode;
        CheckCornersOf(skin, kHighPicture, HighModeFile(mode), sign);
    }
    CheckCorners(skin, kAboutPicture, AboutOkFiles(),
                 {layout::kAboutOk.left, layout::kAboutOk.top});
}

}  // namespace quendrel
