#include "ui/main/Board.h"

#include "Raised.h"
#include "audio/Pause.h"
#include "audio/SoundEffects.h"
#include "ui/layout/BoardSheets.h"
#include "ui/main/MainView.h"

namespace quendrel {

namespace {

constexpr Point kPegMask{kPegSize.width * kPegMaskCell, 0};
constexpr Point kMarkMask{kMarkSize.width * kMarkMaskCell, 0};

}  // namespace

void Board::Draw(Point at, Size size, const Picture& sprite, Point spriteAt, const Picture& mask,
                 Point maskAt) {
    Picture& target = offscreenDrawing_ ? boardPicture_ : window_.Image();
    ComposeTransparent(target, at, size, sprite, spriteAt, mask, maskAt);
    if (!offscreenDrawing_) window_.ShowNow({at.x, at.y, size.width, size.height});
}

void Board::DrawPeg(int color, int column, int& row) {
    if (global_.CodeEntry) row = 0;
    const Point at = global_.CodeEntry ? CodePegAt(column) : PegAt(column, row);
    Draw(at, kPegSize, skin_.picColors, {kPegSize.width * color, 0}, skin_.picColors, kPegMask);
}

void Board::DrawScoreMark(int mark, int slot, int row) {
    if (!offscreenDrawing_)
        sounds_.PlaySoundFx(mark == 1 ? SoundSlot::kBlackMark : SoundSlot::kWhiteMark,
                            SoundMode::kOnce);
    Draw(MarkAt(slot, row), kMarkSize, skin_.picDots, {kMarkSize.width * mark, 0}, skin_.picDots,
         kMarkMask);
}

void Board::DrawCodeCell(int position, int color, int frame) {
    Draw(CodePegAt(position), kPegSize, skin_.picColorAnim,
         {kPegSize.width * (frame - 1), kPegSize.height * color}, skin_.picColors, kPegMask);
}

void Board::BuildBoard(int mode) {
    boardPicture_ = BoardOfMode(skin_.easyBoard, skin_.picModes, mode);
    if (global_.Settings.GameInProgress) {
        const Raised offscreen(offscreenDrawing_);
        DrawGameSoFar();
    }
    BitBlt(window_.Image(), {0, 0}, kBoardSize, boardPicture_, {0, 0});
}

void Board::DrawGameSoFar() {
    const int columns = global_.CurrentMode().columns;
    for (int column = 1; column <= columns; ++column) DrawCodeCell(column, 0, 10);
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
        for (int offset = 0; offset < 606; offset += 5) {
            const Rect line{kBoardLeft, offset + pass, kBoardSize.width, 1};
            BitBlt(window_.Image(), {line.left, line.top}, {line.width, line.height}, boardPicture_,
                   {line.left, line.top});
            window_.ShowNow(line);
        }
        Pause(clock_, 20, false);
    }
}

void Board::RevealCode(int style) {
    const int columns = global_.CurrentMode().columns;
    if (style == 1) {
        for (int position = 1; position <= columns; ++position) {
            sounds_.PlaySoundFx(SoundSlot::kShowCode, SoundMode::kOnce);
            for (int frame = 1; frame <= 10; ++frame) {
                DrawCodeCell(position, global_.SecretCode[position], frame);
                Pause(clock_, 40, true);
            }
            Pause(clock_, 250, true);
        }
    } else if (style == 2) {
        sounds_.PlaySoundFx(SoundSlot::kGotIt, SoundMode::kOnce);
        for (int frame = 1; frame <= 10; ++frame) {
            for (int position = 1; position <= columns; ++position) {
                DrawCodeCell(position, global_.SecretCode[position], frame);
            }
            Pause(clock_, 40, true);
        }
    }
}

}  // namespace quendrel
