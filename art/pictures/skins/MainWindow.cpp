#include "skins/MainWindow.h"

#include <array>
#include <cmath>
#include <span>
#include <string>
#include <vector>

#include "Modes.h"
#include "kit/Png.h"
#include "ui/layout/BoardSheets.h"
#include "ui/layout/MainLayout.h"

namespace quendrel::art {

namespace {

// The cells that the sprites are painted in.
constexpr Rect kPegCell = WholeOf(kPegSize);
constexpr Rect kMarkCell = WholeOf(kMarkSize);
constexpr Rect kNumberCell = WholeOf(kNumberSize);

/// The part of the board that a hole may change; the pieces of the modes are cut between these.
constexpr Rect PegTile(Point cell) { return {cell.x - 1, cell.y - 1, kColumnPitch, kRowPitch}; }
constexpr Rect MarkTile(Point cell) { return {cell.x - 2, cell.y - 2, 17, 17}; }

/// Paints within `tile` only.
template <class Painter>
void PaintWithin(Canvas& canvas, Rect tile, const Painter& painter) {
    Canvas part = canvas.Cut(tile);
    painter(part);
    canvas.Paste(part, tile);
}

/// How far a cover has opened after a number of steps: fast at first.
double Opened(int steps) { return std::pow(steps / (kCoverFrames - 1.0), 0.75); }

template <class Visitor>
void ForEachPegHole(const Mode& mode, const Visitor& visit) {
    for (int column = 1; column <= mode.columns; ++column) {
        visit(CodePegAt(column));
        for (int row = 1; row <= mode.rows; ++row) visit(PegAt(column, row));
    }
}

template <class Visitor>
void ForEachMarkHole(const Mode& mode, const Visitor& visit) {
    for (int slot = 1; slot <= mode.columns; ++slot) {
        for (int row = 1; row <= mode.rows; ++row) visit(MarkAt(slot, row));
    }
}

template <class Visitor>
void ForEachNumber(const Mode& mode, const Visitor& visit) {
    visit(CodeNumberAt(0), 0);
    for (int row = 1; row <= mode.rows; ++row) visit(NumberAt(row), row);
}

std::vector<ButtonSet> AllButtons() {
    using enum ButtonKind;
    std::vector<ButtonSet> sets{
        {{kHide, layout::kHideButton, "Hide"}, layout::kHidePictures},
        {{kDuel, layout::kDuelButton, "Duel"}, layout::kDuelPictures},
        {{kTimer, layout::kClockButton, "Timer"}, layout::kClockPictures},
    };
    for (std::size_t i = 0; i < ButtonNames.size(); ++i) {
        const bool inviting = ButtonNames[i] == "Start" || ButtonNames[i] == "Check";
        sets.push_back(
            {{inviting ? kInviting : kMenu, layout::kMenuButtons[i], std::string(ButtonNames[i])},
             layout::kMenuPictures});
    }
    for (std::size_t i = 0; i < ModeNames.size(); ++i) {
        sets.push_back(
            {{kMode, layout::kModeButtons[i], std::string(ModeNames[i])}, layout::kModePictures});
    }
    for (std::size_t i = 0; i < AnswerNames.size(); ++i) {
        sets.push_back({{kAnswer, CellAt(layout::kInputShownAt[i], layout::kInputButton),
                         std::string(AnswerNames[i])},
                        layout::kAnswerPictures});
    }
    for (std::size_t i = 0; i < ColorNames.size(); ++i) {
        sets.push_back(
            {{kPeg, layout::kColorButtons[i], std::string(ColorNames[i]), static_cast<int>(i) + 1},
             layout::kColorPictures});
    }
    return sets;
}

/// Opaque where the mask keeps, which is black there.
Bitmap CoverageOf(const Bitmap& mask) {
    Bitmap coverage(mask.Extent(), 0xff);
    for (int y = 0; y < mask.Extent().height; ++y) {
        for (int x = 0; x < mask.Extent().width; ++x) {
            if (mask.At(x, y) != kBlack) coverage.At(x, y) = 0;
        }
    }
    return coverage;
}

}  // namespace

MainWindowPictures::MainWindowPictures(const Craft& craft)
    : craft_(craft),
      window_(BuildWindow(craft, Window::kMain)),
      full_(window_.canvas),
      pegMask_(HardMask(craft.PegMask(kPegCell), kPegSize)),
      markMask_(HardMask(craft.MarkMask(kMarkCell), kMarkSize)) {
    const Mode& all = kModes.back();
    ForEachPegHole(all, [&](Point at) {
        PaintWithin(full_, PegTile(at),
                    [&](Canvas& part) { craft_.PaintPegHole(part, CellAt(at, kPegSize)); });
    });
    ForEachMarkHole(all, [&](Point at) {
        PaintWithin(full_, MarkTile(at),
                    [&](Canvas& part) { craft_.PaintMarkHole(part, CellAt(at, kMarkSize)); });
    });
    ForEachNumber(all, [&](Point at, int row) {
        const Rect cell = CellAt(at, kNumberSize);
        PaintWithin(full_, cell, [&](Canvas& part) { craft_.PaintNumber(part, cell, row, false); });
    });
}

void MainWindowPictures::WriteSkin(const std::filesystem::path& root) const {
    const auto write = [&root](const char* name, const Picture& picture) {
        WriteBmp(root, std::filesystem::path("Game") / name, picture);
    };
    write("Board.bmp", Board(0));
    write("Modes.bmp", Modes());
    write("Colors.bmp", Colors());
    write("Coloranim.bmp", CoverFrames());
    write("Numbers.bmp", Numbers());
    write("Dots.bmp", Dots());
    write("Boardmask.bmp", HardMask(window_.outline, kBoardSize));
    WriteButtons(root);
}

void MainWindowPictures::WriteBoards(const std::filesystem::path& folder) const {
    for (std::size_t mode = 0; mode < kModes.size(); ++mode) {
        WriteBmp(folder, std::string(ModeNames[mode]) + ".bmp", Board(static_cast<int>(mode)));
    }
}

void MainWindowPictures::WritePieces(const std::filesystem::path& folder) const {
    std::filesystem::create_directories(folder);
    const auto write = [&folder](std::string_view name, const Picture& piece, const Picture& mask) {
        const Bitmap coverage = CoverageOf(mask.fine);
        WritePng(folder / (std::string(name) + ".png"), piece.fine, &coverage);
    };
    for (int color = 1; color <= kColorCount; ++color) {
        write(ColorNames[static_cast<std::size_t>(color - 1)], PegCell(Peg(color), 1), pegMask_);
    }
    write("MarkBlack", MarkCell(1), markMask_);
    write("MarkWhite", MarkCell(2), markMask_);
}

Picture MainWindowPictures::Board(int mode) const {
    const Mode& size = kModes[static_cast<std::size_t>(mode)];
    Canvas canvas = window_.canvas;
    ForEachPegHole(size, [&](Point at) { canvas.Paste(full_, PegTile(at)); });
    ForEachMarkHole(size, [&](Point at) { canvas.Paste(full_, MarkTile(at)); });
    ForEachNumber(size, [&](Point at, int) { canvas.Paste(full_, CellAt(at, kNumberSize)); });
    // The empty cells of the sprite strips erase pegs and marks, so the board has exactly their
    // pixels.
    Picture board = Develop(canvas);
    const Picture emptyPeg = PegCell(Peg(0), 1);
    const Picture emptyMark = MarkCell(0);
    ForEachPegHole(size, [&](Point at) { board.PasteMasked(emptyPeg, pegMask_, at); });
    ForEachMarkHole(size, [&](Point at) { board.PasteMasked(emptyMark, markMask_, at); });
    return board;
}

Picture MainWindowPictures::Modes() const {
    Picture sheet(kModeSheetSize);
    const auto cut = [&sheet](const Picture& board, std::span<const ModePiece> pieces) {
        for (const ModePiece& piece : pieces) sheet.Paste(board, piece.board, piece.sheet);
    };
    cut(Board(1), kMediumPieces);
    cut(Board(2), kHardPieces);
    return sheet;
}

Canvas MainWindowPictures::Peg(int color) const {
    Canvas canvas(kPegCell);
    craft_.PaintPegHole(canvas, kPegCell);
    if (color > 0) craft_.PaintPeg(canvas, kPegCell, color);
    return canvas;
}

Picture MainWindowPictures::PegCell(Canvas peg, double coverOpen) const {
    if (coverOpen < 1) craft_.PaintCover(peg, kPegCell, coverOpen);
    Picture cell(kPegSize);
    cell.PasteMasked(Develop(peg), pegMask_, {0, 0});
    return cell;
}

Picture MainWindowPictures::MarkCell(int mark) const {
    Canvas canvas(kMarkCell);
    craft_.PaintMarkHole(canvas, kMarkCell);
    if (mark > 0) craft_.PaintMark(canvas, kMarkCell, mark);
    Picture cell(kMarkSize);
    cell.PasteMasked(Develop(canvas), markMask_, {0, 0});
    return cell;
}

Picture MainWindowPictures::Colors() const {
    Picture strip(kPegStripSize);
    for (int color = 0; color <= kColorCount; ++color) {
        strip.Paste(PegCell(Peg(color), 1), PegOnStrip(color));
    }
    strip.Paste(pegMask_, PegOnStrip(kPegMaskCell));
    return strip;
}

Picture MainWindowPictures::CoverFrames() const {
    Picture sheet(kCoverSheetSize);
    for (int color = 0; color <= kColorCount; ++color) {
        const Canvas peg = Peg(color);
        for (int frame = 1; frame <= kCoverFrames; ++frame) {
            // Colour 0 is the cover over the hidden code, which closes from frame to frame; it is
            // never quite open.
            const double open =
                color == 0 ? 0.94 * Opened(kCoverFrames - frame) : Opened(frame - 1);
            sheet.Paste(PegCell(peg, open), CoverOnSheet(color, frame));
        }
    }
    return sheet;
}

Picture MainWindowPictures::Numbers() const {
    Picture strip(kNumberStripSize);
    for (int row = 0; row <= kMaxRows; ++row) {
        Canvas canvas(kNumberCell);
        craft_.PaintNumber(canvas, kNumberCell, row, true);
        strip.Paste(Develop(canvas), NumberOnStrip(row));
    }
    return strip;
}

Picture MainWindowPictures::Dots() const {
    Picture strip(kMarkStripSize);
    for (int mark = 0; mark < kMarkMaskCell; ++mark) {
        strip.Paste(MarkCell(mark), MarkOnStrip(mark));
    }
    strip.Paste(markMask_, MarkOnStrip(kMarkMaskCell));
    return strip;
}

Picture MainWindowPictures::ButtonPicture(const Button& button, ButtonState state) const {
    Canvas canvas = window_.canvas.Cut(button.place);
    craft_.PaintKey(canvas, button, state);
    return Develop(canvas);
}

void MainWindowPictures::WriteButtons(const std::filesystem::path& root) const {
    const std::filesystem::path folder = "Game/Interface";
    for (const ButtonSet& set : AllButtons()) {
        for (const auto& [state, ending] : set.pictures) {
            WriteBmp(root, folder / (set.button.caption + std::string(ending)),
                     ButtonPicture(set.button, state));
        }
    }
}

}  // namespace quendrel::art
