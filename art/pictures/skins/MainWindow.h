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

    /// Writes each peg and mark alone at double size, clear around it, under its name:
    /// Yellow.png and so on, MarkBlack.png, MarkWhite.png.
    void WritePieces(const std::filesystem::path& folder) const;

private:
    Picture Board(int mode) const;
    Picture Modes() const;
    Picture Colors() const;
    Picture CoverFrames() const;
    Picture Numbers() const;
    Picture Dots() const;
    Canvas Peg(int color) const;
    Picture PegCell(Canvas peg, double coverOpen) const;
    Picture MarkCell(int mark) const;
    Picture ButtonPicture(const Button& button, ButtonState state) const;
    void WriteButtons(const std::filesystem::path& root) const;

    const Craft& craft_;
    BareWindow window_;
    /// The board with all holes and numbers: those of the hardest mode, which include the others'.
    Canvas full_;
    Picture pegMask_;
    Picture markMask_;
};

}  // namespace quendrel::art
