// The pictures of the main window, built by a craft: boards, sprite sheets, mode pieces,
// outline and buttons.
#pragma once

#include <filesystem>

#include "kit/Bitmap.h"
#include "skins/Workshop.h"

namespace quendrel::art {

class MainWindowPictures {
public:
    /// `craft` must outlive the pictures.
    explicit MainWindowPictures(const Craft& craft);

    /// Writes Game/ and Game/Interface/ below the skin's root.
    void WriteSkin(const std::filesystem::path& root) const;

    /// Writes the board of each mode whole: Easy.bmp, Medium.bmp and Hard.bmp.
    void WriteBoards(const std::filesystem::path& folder) const;

private:
    Bitmap Board(int mode) const;
    Bitmap Modes() const;
    Bitmap Colors() const;
    Bitmap CoverFrames() const;
    Bitmap Numbers() const;
    Bitmap Dots() const;
    Canvas Peg(int color) const;
    Bitmap PegCell(Canvas peg, double coverOpen) const;
    Bitmap MarkCell(int mark) const;
    Bitmap ButtonPicture(const Button& button, ButtonState state) const;
    void WriteButtons(const std::filesystem::path& folder) const;

    const Craft& craft_;
    BareWindow window_;
    /// The board with all holes and numbers: those of the hardest mode, which include the others'.
    Canvas full_;
    Bitmap pegMask_;
    Bitmap markMask_;
};

}  // namespace quendrel::art
