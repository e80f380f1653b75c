#include "ui/main/Board.h"

#include <algorithm>
#include <utility>

#include "Raised.h"
#include "audio/Pause.h"
#include "audio/SoundEffects.h"
#include "ui/layout/BoardSheets.h"
#include "ui/main/MainView.h"

namespace quendrel {

namespace {

constexpr auto kPegs = &BoardSkin::picColors;
constexpr auto kCovers = &BoardSkin::picColorAnim;
constexpr auto kMarks = &BoardSkin::picDots;

/// Sprites in one place have one mask, so the last covers what lies under it.
template <class Sprites, class Sprite>
void PutOnTop(Sprites& sprites, const Sprite& sprite) {
    const auto same = std::find_if(sprites.begin(), sprites.end(),
                                   [&](const Sprite& other) { return other.at == sprite.at; });
    if (same != sprites.end()) sprites.erase(same);
    sprites.push_back(sprite);
}

}  // namespace

void Board::SetSkin(BoardSkin skin) { skin_ = std::move(skin); }

void Board::Redress(BoardSkin skin) {
    SetSkin(std::move(skin));
    MakeBoardOfMode(boardPicture_, skin_.easyBoard, skin_.picModes, boardMode_);
    for (const Sprite& sprite : onBoard_) Compose(boardPicture_, sprite);
    window_.Image() = boardPicture_;
    for (const Sprite& sprite : onWindow_) Compose(window_.Image(), sprite);
}

void Board::Compose(Picture& target, const Sprite& sprite) const {
    ComposeTransparent(target, sprite.at, sprite.size, skin_.*sprite.sheet, sprite.cell,
                       skin_.*sprite.maskSheet, sprite.maskCell);
}

void Board::Draw(const Sprite& sprite) {
    PutOnTop(offscreenDrawing_ ? onBoard_ : onWindow_, sprite);
    Compose(offscreenDrawing_ ? boardPicture_ : window_.Image(), sprite);
    if (offscreenDrawing_) return;
    window_.ShowNow({sprite.at.x, sprite.at.y, sprite.size.width, sprite.size.height});
}

void Board::DrawPeg(int color, int column, int& row) {
    if (global_.CodeEntry) row = 0;
    const Point at = global_.CodeEntry ? CodePegAt(column) : PegAt(column, row);
    Draw({at, kPegSize, kPegs, PegOnStrip(color), kPegs, PegOnStrip(kPegMaskCell)});
}

void Board::DrawScoreMark(int mark, int slot, int row) {
    if (!offscreenDrawing_)
        sounds_.PlaySoundFx(mark == 1 ? SoundSlot::kBlackMark : SoundSlot::kWhiteMark,
                            SoundMode::kOnce);
    Draw({MarkAt(slot, row), kMarkSize, kMarks, MarkOnStrip(mark), kMarks,
          MarkOnStrip(kMarkMaskCell)});
}

void Board::DrawCodeCell(int position, int color, int frame) {
    Draw({CodePegAt(position), kPegSize, kCovers, CoverOnSheet(color, frame), kPegs,
          PegOnStrip(kPegMaskCell)});
}

void Board::BuildBoard(int mode) {
    MakeBoardOfMode(boardPicture_, skin_.easyBoard, skin_.picModes, mode);
    boardMode_ = mode;
    onBoard_.clear();
    onWindow_.clear();
    if (global_.Settings.GameInProgress) {
        const Raised offscreen(offscreenDrawing_);
        DrawGameSoFar();
    }
    window_.Image() = boardPicture_;
}

void Board::DrawGameSoFar() {
    const int columns = global_.CurrentMode().columns;
    for (int column = 1; column <= columns; ++column) DrawCodeCell(column, 0, kCoverFrames);
    for (int row = 1; row < global_.ActiveRow; ++row) {
        for (int column = 1; column <= columns; ++column) {
            int at = row;
            DrawPeg(global_.GuessRows[row][column], column, at);
        }
    }
    for (int column = 1; column <= columns; ++column) {
        int at = global_.ActiveRow;
        const int color = global_.ActiveRowColors[column];
        if (color > 0) DrawPeg(color, column, at);
    }
    for (int row = 1; row < global_.ActiveRow; ++row) {
        for (int slot = 1; slot <= columns; ++slot) {
            DrawScoreMark(global_.ScoreMarks[row][slot], slot, row);
        }
    }
}

void Board::RevealBoard() {
    for (int pass = 0; pass < 5; ++pass) {
        for (int offset = 0; offset <= kBoardSize.height; offset += 5) {
            const Rect line{kBoardLeft, offset + pass, kBoardSize.width, 1};
            BitBlt(window_.Image(), {line.left, line.top}, {line.width, line.height}, boardPicture_,
                   {line.left, line.top});
            window_.ShowLineNow(line);
        }
        Pause(clock_, 20, false);
    }
    onWindow_.clear();
}

void Board::RevealCode(int style) {
    const int columns = global_.CurrentMode().columns;
    if (style == 1) {
        for (int position = 1; position <= columns; ++position) {
            sounds_.PlaySoundFx(SoundSlot::kShowCode, SoundMode::kOnce);
            for (int frame = 1; frame <= kCoverFrames; ++frame) {
                DrawCodeCell(position, global_.SecretCode[position], frame);
                Pause(clock_, 40, true);
            }
            Pause(clock_, 250, true);
        }
    } else if (style == 2) {
        sounds_.PlaySoundFx(SoundSlot::kGotIt, SoundMode::kOnce);
        for (int frame = 1; frame <= kCoverFrames; ++frame) {
            for (int position = 1; position <= columns; ++position) {
                DrawCodeCell(position, global_.SecretCode[position], frame);
            }
            Pause(clock_, 40, true);
        }
    }
}

}  // namespace quendrel
