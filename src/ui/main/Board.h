// The game board: its picture for every mode, the pegs, the score marks, the hidden code's row
// with its covers, and the sweep that shows a new board.
#pragma once

#include <vector>

#include "Global.h"
#include "ui/picture/Picture.h"
#include "ui/skin/MainSkin.h"

namespace quendrel {

class Clock;
class MainView;
class SoundEffects;

class Board {
public:
    Board(Global& global, MainView& window, Clock& clock, SoundEffects& sounds)
        : global_(global), window_(window), clock_(clock), sounds_(sounds) {}

    /// From now on draws with the pictures of `skin`.
    void SetSkin(BoardSkin skin);
    BoardSkin& Skin() { return skin_; }

    /// The same, and what the persistent image shows is drawn again, in the other density.
    void Redress(BoardSkin skin);

    /// The board as it was at the last BuildBoard, without what has been drawn since.
    const Picture& BoardPicture() const { return boardPicture_; }

    /// The peg of `color` (0 the empty hole, 1 to 10) in the hole at (`column` 1 to 6, `row` 1 to
    /// 14). While CodeEntry the hole of the code row is used instead and `row` becomes 0.
    void DrawPeg(int color, int column, int& row);

    /// Score mark 0 (none), 1 or 2 at (`slot` 1 to 6, `row` 1 to 14), with its sound.
    void DrawScoreMark(int mark, int slot, int row);

    /// Frame 1 to 10 of `color` (0 to 10) in the code row at `position` (1 to 6). Frame 1 of a
    /// colour is the closed cover, frame 10 shows it; of colour 0, frame 10 is the closed cover.
    void DrawCodeCell(int position, int color, int frame);

    /// Rebuilds the board picture for `mode` (0 to 2), with the game so far where one is in
    /// progress, and copies it to the window's persistent image. The screen keeps its picture
    /// until RevealBoard or a repaint.
    void BuildBoard(int mode);

    /// Shows the board picture in five interlaced sweeps of 20 ms, in which the program stands
    /// still. The console, left of x = 195, is left alone.
    void RevealBoard();

    /// Uncovers the hidden code: style 1 one peg after the other, style 2 all together; any
    /// other does nothing. Handles events meanwhile.
    void RevealCode(int style);

private:
    /// A sprite in its place: a cell of a sheet, and the cell that is its mask.
    struct Sprite {
        Point at;
        Size size;
        Picture BoardSkin::*sheet;
        Point cell;
        Picture BoardSkin::*maskSheet;
        Point maskCell;
    };
    using Sprites = std::vector<Sprite>;

    void Draw(const Sprite& sprite);
    void Compose(Picture& target, const Sprite& sprite) const;
    void DrawGameSoFar();

    Global& global_;
    MainView& window_;
    Clock& clock_;
    SoundEffects& sounds_;
    BoardSkin skin_;
    Picture boardPicture_;
    int boardMode_ = 0;
    bool offscreenDrawing_ = false;
    /// What lies on the board picture, and what has been drawn on the window since; of several
    /// sprites in one place, the last.
    Sprites onBoard_;
    Sprites onWindow_;
};

}  // namespace quendrel
