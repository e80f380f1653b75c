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

/// The folder in a skin's that has every picture at twice the size, under the same names.
inline constexpr std::string_view kSecondTree = "\\2x";

/// The pictures of a skin at one of their two sizes.
struct SkinTree {
    /// The skin's folder, without a trailing backslash.
    std::string root;
    /// The pixels of a unit: 1, or 2 for the second tree.
    int density = 1;

    /// The path of a file of the skin, on the machine.
    std::string PathOf(std::string_view name) const;
};

/// A picture of a skin: its file's name and its size in units.
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

/// A picture of a skin. Throws FileError where it is missing, no bitmap or of another size.
Picture ReadSkinPicture(const PictureReader& reader, const SkinTree& skin,
                        const SkinPicture& picture);

/// A button's pictures. Throws FileError as ReadSkinPicture does.
ButtonPictures ReadButton(const PictureReader& reader, const SkinTree& skin,
                          const ButtonFiles& button);

/// Whether a skin has the folder of a second tree.
bool HasSecondTree(const std::string& root);

/// What keeps a skin from being shown at twice the size: the first of the second tree's files that
/// is missing, no whole bitmap or of another size, and why. Nothing for one that can be shown.
/// Looks at the beginnings of the files only.
std::string FaultOfSecondTree(const std::string& root);

}  // namespace quendrel
