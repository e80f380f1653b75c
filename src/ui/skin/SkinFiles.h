// The files of a skin: every picture of every window, by name and size, and how a button's are
// read. Names begin with a backslash and are appended to the skin's root.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ui/layout/AboutLayout.h"
#include "ui/layout/BoardSheets.h"
#include "ui/layout/ConfigControls.h"
#include "ui/layout/ConfigLayout.h"
#include "ui/layout/Control.h"
#include "ui/layout/HighLayout.h"
#include "ui/layout/StatePictures.h"
#include "ui/picture/Picture.h"
#include "ui/skin/MainSkin.h"

namespace quendrel {

/// A picture of a skin: its file's name and its size.
struct SkinPicture {
    std::string_view name;
    Size size;
};

/// A button's pictures: how the names of their files begin, and their size.
struct ButtonFiles {
    std::string stem;
    StatePictures pictures;
    Size size;
};

/// The buttons of the windows beside the main one.
ButtonFiles AboutOkFiles();
ButtonFiles HighOkFiles();
ButtonFiles HighDefaultFiles();
ButtonFiles ConfigButtonFiles(const ButtonDesign& button);
ButtonFiles ConfigSwitchFiles(const SwitchDesign& lever);

/// The sign of a mode (0 to 2) in the highscore window.
std::string HighModeFile(std::size_t mode);

/// The main window's buttons by their control.
std::vector<std::pair<Control, ButtonFiles>> MainButtonFiles();

// The windows' pictures and their masks; the main window's picture is the board.
inline constexpr SkinPicture kBoardPicture{"\\Game\\Board.bmp", kBoardSize};
inline constexpr SkinPicture kBoardMask{"\\Game\\Boardmask.bmp", kBoardSize};
inline constexpr SkinPicture kConfigPicture{"\\Config\\Config.bmp", layout::kConfigWindow};
inline constexpr SkinPicture kConfigMask{"\\Config\\Configmask.bmp", layout::kConfigWindow};
inline constexpr SkinPicture kHighPicture{"\\High\\High.bmp", layout::kHighWindow};
inline constexpr SkinPicture kHighMask{"\\High\\Highmask.bmp", layout::kHighWindow};
inline constexpr SkinPicture kAboutPicture{"\\About\\About.bmp", layout::kAboutWindow};
inline constexpr SkinPicture kAboutMask{"\\About\\Aboutmask.bmp", layout::kAboutWindow};

// What the board is drawn with. The mode sheet may be larger than the pieces on it.
inline constexpr SkinPicture kPegStrip{"\\Game\\Colors.bmp", kPegStripSize};
inline constexpr SkinPicture kCoverSheet{"\\Game\\Coloranim.bmp", kCoverSheetSize};
inline constexpr SkinPicture kNumberStrip{"\\Game\\Numbers.bmp", kNumberStripSize};
inline constexpr SkinPicture kMarkStrip{"\\Game\\Dots.bmp", kMarkStripSize};
inline constexpr SkinPicture kModeSheet{"\\Game\\Modes.bmp", kModeSheetSize};

/// Every file of a skin and its size.
std::vector<std::pair<std::string, Size>> AllSkinFiles();

/// The picture of the skin at `root`. Throws FileError where it is missing, no bitmap or of another
/// size.
Picture ReadSkinPicture(const PictureReader& reader, const std::string& root,
                        const SkinPicture& picture);

/// A button's pictures. Throws FileError as ReadSkinPicture does.
ButtonPictures ReadButton(const PictureReader& reader, const std::string& root,
                          const ButtonFiles& button);

}  // namespace quendrel
