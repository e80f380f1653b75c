// The files of a skin: every picture of every window, by name and size, and how a button's are
// read. Names begin with a backslash and are appended to the skin's root.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ui/MainSkin.h"
#include "ui/Picture.h"

namespace quendrel {

/// One of a button's pictures: the ending of its file's name, and where it is kept.
struct StatePicture {
    std::string_view ending;
    Picture ButtonPictures::*picture;
};

/// A button's pictures, in the order in which they are read.
struct ButtonFiles {
    std::string stem;
    std::vector<StatePicture> states;
    Size size;
};

/// The buttons of the windows beside the main one; the configuration window's are in the order of
/// layout::kConfigButtons and layout::kConfigSwitches.
ButtonFiles AboutOkFiles();
ButtonFiles HighOkFiles();
ButtonFiles HighDefaultFiles();
std::vector<ButtonFiles> ConfigButtonFiles();
std::vector<ButtonFiles> ConfigSwitchFiles();

/// The sign of a mode (0 to 2) in the highscore window.
std::string HighModeFile(std::size_t mode);

/// The main window's buttons by their control.
std::vector<std::pair<Control, ButtonFiles>> MainButtonFiles();

// The windows' pictures and their masks; the main window's picture is the board.
inline constexpr std::string_view kBoardMask = "\\Game\\Boardmask.bmp";
inline constexpr std::string_view kConfigPicture = "\\Config\\Config.bmp";
inline constexpr std::string_view kConfigMask = "\\Config\\Configmask.bmp";
inline constexpr std::string_view kHighPicture = "\\High\\High.bmp";
inline constexpr std::string_view kHighMask = "\\High\\Highmask.bmp";
inline constexpr std::string_view kAboutPicture = "\\About\\About.bmp";
inline constexpr std::string_view kAboutMask = "\\About\\Aboutmask.bmp";

/// The picture `name` of the skin at `root`. Throws FileError.
Picture ReadSkinPicture(PictureReader& reader, const std::string& root, std::string_view name);

/// A button's pictures. Throws FileError for the first that is missing or no bitmap.
ButtonPictures ReadButton(PictureReader& reader, const std::string& root,
                          const ButtonFiles& button);

/// Reads every file of the skin at `root` and keeps none: throws FileError for the first that is
/// missing or no bitmap, so that a skin which is in force is whole.
void RequireWholeSkin(PictureReader& reader, const std::string& root);

/// What is wrong with the skin at `root`, a line for each file that is missing, unreadable or of
/// the wrong size; nothing for a skin that is complete.
std::vector<std::string> FaultsOfSkin(PictureReader& reader, const std::string& root);

}  // namespace quendrel
