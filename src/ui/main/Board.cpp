#include "ui/main/Board.h"

#include "Raised.h"
#include "audio/Pause.h"
#include "audio/SoundEffects.h"
#include "ui/layout/BoardSheets.h"
#include "ui/main/MainView.h"

namespace quendrel {

void Board::Draw(Point at, Size size, const Picture& sprite, Point spriteAt, const Picture& mask,
                 Point maskAt) {
    Picture& target = offscreenDrawing_ ? boardPicture_ : window_.Image();
    ComposeTransparent(target, at, size, sprite, spriteAt, mask, maskAt);
    if (!offscreenDrawing_) window_.ShowNow({at.x, at.y, size.width, size.height});
}

void Board::DrawPeg(int color, int column, int& row) {
    if (global_.CodeEntry) row = 0;
    const Point at = global_.CodeEntry ? CodePegAt(column) : PegAt(column, row);
    Draw(at, kPegSize, skin_.picColors, PegOnStrip(color), skin_.picColors,
         PegOnStrip(kPegMaskCell));
}

void Board::DrawScoreMark(int mark, int slot, int row) {
    if (!offscreenDrawing_)
        sounds_.PlaySoundFx(mark == 1 ? SoundSlot::kBlackMark : SoundSlot::kWhiteMark,
                            SoundMode::kOnce);
    Draw(MarkAt(slot, row), kMarkSize, skin_.picDots, MarkOnStrip(mark), skin_.picDots,
         MarkOnStrip(kMarkMaskCell));
}

void Board::DrawCodeCell(int position, int color, int frame) {
    Draw(CodePegAt(position), kPegSize, skin_.picColorAnim, CoverOnSheet(color, frame),
         skin_.picColors, PegOnStrip(kPegMaskCell));
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
