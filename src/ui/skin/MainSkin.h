// The pictures of the main window, read from a skin's folder by the table of their names.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "ui/layout/Control.h"
#include "ui/picture/Picture.h"

namespace quendrel {

struct Global;
struct SkinTree;

/// A button's picture per state; a state without a picture is empty (0 x 0).
struct ButtonPictures {
    Picture up;
    Picture disabled;
    Picture down;
    Picture over;
};

/// The pictures that the board is drawn with.
struct BoardSkin {
    Picture picColors;     // 12 cells of 44 x 27: the empty hole, ten colours, the peg mask
    Picture picColorAnim;  // column f - 1 is frame f (1 to 10), row c is colour c (0 to 10)
    Picture picNumbers;    // 16 cells of 19 x 16: the code row's marker, 14 rows, a spare cell
    Picture picDots;       // 4 cells of 11 x 11: no mark, marks 1 and 2, the mark mask
    Picture picModes;      // the pieces that turn the Easy board into the other two
    Picture easyBoard;     // 655 x 605
};

struct MainSkin {
    BoardSkin board;
    std::map<Control, ButtonPictures> buttons;
};

/// Makes `board` the empty board of `mode` (0 to 2): the Easy board with the pieces of the mode
/// sheet.
void MakeBoardOfMode(Picture& board, const Picture& easyBoard, const Picture& modeSheet, int mode);

/// The folder of the skin in use, or of a skin by its index (from 1), without a trailing backslash.
/// Throws std::out_of_range, naming the index and the number of skins, for one outside the list.
std::string SkinRoot(const Global& global);
std::string SkinRoot(const Global& global, int skin);

/// The tree that a skin is shown with where the screen asks for `density` (1 or 2): the second one
/// if it is asked for and whole, otherwise the first.
SkinTree TreeOf(const Global& global, int skin, int density);

/// Says on standard error what is wrong with a skin's second tree, if that is there and not whole.
void ReportFaultOfSecondTree(const std::string& root);

/// Reads every picture of the main window from a skin, whole or not at all. Throws FileError for
/// the first file that is missing, no bitmap or of another size.
MainSkin ReadMainSkin(const PictureReader& reader, const SkinTree& tree);

/// The same of the second tree of the skin in the folder `root`, where that and the window's mask
/// can be read; otherwise says why not on standard error.
std::optional<MainSkin> ReadSecondMainSkin(const PictureReader& reader, const std::string& root);

/// The same of the skin with the index `skin` (from 1), as TreeOf finds it, which must be whole:
/// every file of the first tree is read, also of the other windows. Throws FileError, naming the
/// skin and a file that is missing, no bitmap or of another size. What is wrong with a second tree
/// that is there is said on standard error.
MainSkin ReadWholeSkin(const PictureReader& reader, const Global& global, int skin, int density);

}  // namespace quendrel
