// The drawing of the game board.
#include "ui/Board.h"

#include <array>

#include "Raised.h"
#include "audio/Pause.h"
#include "audio/SoundEffects.h"
#include "ui/MainWindow.h"

namespace quendrel {

namespace {

constexpr Point kPegMask{11 * 44, 0};
constexpr Point kMarkMask{3 * 11, 0};

/// A piece of the mode sheet and its place on the board.
struct Piece {
    Point target;
    Size size;
    Point source;
};

// clang-format off
/// Pasted over the Easy board for Medium, and for Hard too.
constexpr std::array<Piece, 7> kMediumPieces{{
    {{196, 172}, { 71,  66}, {134,  66}},
    {{267, 167}, { 50,  66}, {234, 132}},
    {{317, 162}, {100,  66}, {205,  66}},
    {{417,  45}, { 50,  33}, { 50, 446}},
    {{417, 167}, { 50, 413}, { 50,   0}},
    {{522, 175}, { 89,  54}, {134, 252}},
    {{594, 243}, { 17, 314}, {117,   0}},
}};

/// Pasted for Hard after the Medium pieces.
constexpr std::array<Piece, 8> kHardPieces{{
    {{196, 106}, { 71,  66}, {134,   0}},
    {{267, 101}, { 50,  66}, {134, 132}},
    {{317,  96}, {100,  66}, {205,   0}},
    {{417, 101}, { 50,  66}, {184, 132}},
    {{467,  50}, { 50,  33}, { 50, 413}},
    {{467, 106}, { 50, 479}, {  0,   0}},
    {{522, 109}, {107,  54}, {134, 198}},
    {{612, 179}, { 17, 380}, {100,   0}},
}};
// clang-format on

template <std::size_t N>
void Paste(Picture& board, const Picture& sheet, const std::array<Piece, N>& pieces) {
    for (const Piece& piece : pieces) {
        BitBlt(board, piece.target, piece.size, sheet, piece.source);
    }
}

bool Inside(const Picture& picture, Point at, Size size) {
    return at.x >= 0 && at.y >= 0 && at.x + size.width <= picture.width() &&
           at.y + size.height <= picture.height();
}

}  // namespace

void ComposeTransparent(Picture& target, Point to, Size size, const Picture& sprite, Point spriteAt,
                        const Picture& mask, Point maskAt) {
    if (!Inside(target, to, size) || !Inside(sprite, spriteAt, size) ||
        !Inside(mask, maskAt, size)) {
        Picture scratch(size.width, size.height);
        BitBlt(scratch, {0, 0}, size, target, to, RasterOp::SRCCOPY);
        BitBlt(scratch, {0, 0}, size, sprite, spriteAt, RasterOp::SRCINVERT);
        BitBlt(scratch, {0, 0}, size, mask, maskAt, RasterOp::SRCAND);
        BitBlt(scratch, {0, 0}, size, sprite, spriteAt, RasterOp::SRCINVERT);
        BitBlt(target, to, size, scratch, {0, 0}, RasterOp::SRCCOPY);
        return;
    }
    for (int row = 0; row < size.height; ++row) {
        Pixel* const pixels = target.Row(to.y + row) + to.x;
        const Pixel* const shown = sprite.Row(spriteAt.y + row) + spriteAt.x;
        const Pixel* const kept = mask.Row(maskAt.y + row) + maskAt.x;
        for (int i = 0; i < size.width; ++i) {
            pixels[i] = ((pixels[i] ^ shown[i]) & kept[i]) ^ shown[i];
        }
    }
}

Picture BoardOfMode(const Picture& easyBoard, const Picture& modeSheet, int mode) {
    Picture board = easyBoard;
    if (mode >= 1) Paste(board, modeSheet, kMediumPieces);
    if (mode >= 2) Paste(board, modeSheet, kHardPieces);
    return board;
}

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
    if (!offscreenDrawing_) sounds_.PlaySoundFx(mark == 1 ? kBlack : kWhite, kOnce);
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
            sounds_.PlaySoundFx(kShowCode, kOnce);
            for (int frame = 1; frame <= 10; ++frame) {
                DrawCodeCell(position, global_.SecretCode[position], frame);
                Pause(clock_, 40, true);
            }
            Pause(clock_, 250, true);
        }
    } else if (style == 2) {
        sounds_.PlaySoundFx(kGotIt, kOnce);
        for (int frame = 1; frame <= 10; ++frame) {
            for (int position = 1; position <= columns; ++position) {
                DrawCodeCell(position, global_.SecretCode[position], frame);
            }
            Pause(clock_, 40, true);
        }
    }
}

}  // namespace quendrel
