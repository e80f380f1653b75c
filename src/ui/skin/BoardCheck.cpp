#include "ui/skin/BoardCheck.h"

#include <string>
#include <string_view>

#include "Global.h"
#include "ui/layout/BoardGeometry.h"
#include "ui/layout/BoardSheets.h"
#include "ui/layout/Control.h"
#include "ui/skin/CheckedTree.h"
#include "ui/skin/MainSkin.h"
#include "ui/skin/MaskCheck.h"
#include "ui/skin/PictureLooks.h"
#include "ui/skin/SkinFiles.h"

namespace quendrel {

namespace {

/// Whether two cells look alike where the mask cell of a strip lets them through.
bool LookAlike(const Picture& mask, Point maskAt, Size size, const Picture& a, Point aAt,
               const Picture& b, Point bAt) {
    Point at;
    const auto differs = [&](Point p) {
        return PixelAt(mask, Plus(maskAt, p)) == kBlackPixel &&
               Step(PixelAt(a, Plus(aAt, p)), PixelAt(b, Plus(bAt, p))) > kSeen;
    };
    return !FindPoint(At({0, 0}, size), differs, at);
}

template <class Alike>
void CheckCellsDiffer(CheckedTree& skin, std::string_view name, int first, int last,
                      const Alike& alike) {
    for (int a = first; a <= last; ++a) {
        for (int b = a + 1; b <= last; ++b) {
            if (!alike(a, b)) continue;
            skin.Say(name, "shows the same in cells " + std::to_string(a + 1) + " and " +
                               std::to_string(b + 1) + "; paint in each what belongs there");
        }
    }
}

/// The hole and the pieces before the mask cell of a strip are told apart by their looks.
void CheckPieces(CheckedTree& skin, const SkinPicture& file, Size size, int maskCell) {
    if (!CheckMaskCell(skin, file, size, maskCell)) return;
    const Picture& strip = *skin.Find(file.name);
    const Point mask{size.width * maskCell, 0};
    CheckCellsDiffer(skin, file.name, 0, maskCell - 1, [&](int a, int b) {
        return LookAlike(strip, mask, size, strip, {size.width * a, 0}, strip, {size.width * b, 0});
    });
}

/// All channels of a mark's cell, where its mask draws it.
int LightOf(const Picture& marks, int cell) {
    int light = 0;
    for (int y = 0; y < kMarkSize.height; ++y) {
        for (int x = 0; x < kMarkSize.width; ++x) {
            if (marks.At(MarkOnStrip(kMarkMaskCell).x + x, y) != kBlackPixel) continue;
            for (const int channel : Channels(marks.At(MarkOnStrip(cell).x + x, y))) {
                light += channel;
            }
        }
    }
    return light;
}

void CheckMarkOrder(CheckedTree& skin) {
    const Picture* const marks = skin.Find(kMarkStrip.name);
    if (marks == nullptr || LightOf(*marks, 1) <= LightOf(*marks, 2)) return;
    skin.Say(kMarkStrip.name,
             "has a black mark that is lighter than the white one; paint the black mark in cell 2 "
             "and the white one in cell 3");
}

/// Whether two numbers look alike; their strip has no mask.
bool NumbersAlike(const Picture& a, Point aAt, const Picture& b, Point bAt) {
    Point at;
    const auto differs = [&](Point p) {
        return Step(PixelAt(a, Plus(aAt, p)), PixelAt(b, Plus(bAt, p))) > kSeen;
    };
    return !FindPoint(At({0, 0}, kNumberSize), differs, at);
}

void CheckNumbers(CheckedTree& skin) {
    const Picture* const numbers = skin.Find(kNumberStrip.name);
    if (numbers == nullptr) return;
    CheckCellsDiffer(skin, kNumberStrip.name, 1, kMaxRows, [numbers](int a, int b) {
        return NumbersAlike(*numbers, NumberOnStrip(a), *numbers, NumberOnStrip(b));
    });
}

/// A number that looks like the board beneath it would not be seen to blink. Each mode adds its
/// rows to the board of the one before.
void CheckNumbersOn(CheckedTree& skin, const Picture& board, std::size_t mode) {
    const Picture* const numbers = skin.Find(kNumberStrip.name);
    if (numbers == nullptr) return;
    const int first = mode == 0 ? 0 : kModes.at(mode - 1).rows + 1;
    for (int row = first; row <= kModes.at(mode).rows; ++row) {
        const Point at = row == 0 ? CodeNumberAt(row) : NumberAt(row);
        if (!NumbersAlike(*numbers, NumberOnStrip(row), board, at)) continue;
        skin.Say(kNumberStrip.name, "shows in cell " + std::to_string(row + 1) + " what the " +
                                        std::string(ModeNames.at(mode)) + " board has at " +
                                        Written(at) + "; paint it lit");
    }
}

/// The first and the last cell of a colour's row.
void CheckEnds(CheckedTree& skin, const Picture& pegs, const Picture& covers, int color,
               const std::string& name) {
    const Point mask = PegOnStrip(kPegMaskCell);
    const std::string row = std::to_string(color + 1) + " (" + name + ")";
    if (!LookAlike(pegs, mask, kPegSize, covers, CoverOnSheet(color, 1), covers,
                   CoverOnSheet(0, kCoverFrames))) {
        skin.Say(kCoverSheet.name, "is not closed in cell 1 of row " + row +
                                       "; paint there what cell 10 of row 1 shows");
    }
    if (!LookAlike(pegs, mask, kPegSize, covers, CoverOnSheet(color, kCoverFrames), pegs,
                   PegOnStrip(color))) {
        skin.Say(kCoverSheet.name, "does not show the peg in cell 10 of row " + row +
                                       "; paint there the peg of Colors.bmp");
    }
}

void CheckLid(CheckedTree& skin, const Picture& pegs, const Picture& covers, int row,
              const std::string& name) {
    const Point mask = PegOnStrip(kPegMaskCell);
    for (int cell = 1; cell < kCoverFrames; ++cell) {
        if (!LookAlike(pegs, mask, kPegSize, covers, CoverOnSheet(row, cell), covers,
                       CoverOnSheet(row, cell + 1))) {
            continue;
        }
        skin.Say(kCoverSheet.name, "shows the same in cells " + std::to_string(cell) + " and " +
                                       std::to_string(cell + 1) + " of row " +
                                       std::to_string(row + 1) + " (" + name +
                                       "); draw a lid that moves");
    }
}

void CheckCovers(CheckedTree& skin) {
    const Picture* const pegs = skin.Find(kPegStrip.name);
    const Picture* const covers = skin.Find(kCoverSheet.name);
    if (pegs == nullptr || covers == nullptr) return;
    if (!HasBlack(*pegs, At(PegOnStrip(kPegMaskCell), kPegSize))) return;
    CheckLid(skin, *pegs, *covers, 0, "the hidden code");
    for (int color = 1; color <= kColorCount; ++color) {
        const std::string name(ColorNames.at(static_cast<std::size_t>(color - 1)));
        CheckEnds(skin, *pegs, *covers, color, name);
        CheckLid(skin, *pegs, *covers, color, name);
    }
}

/// The empty hole erases a peg only where the board shows the same hole.
void CheckHolesOf(CheckedTree& skin, const Picture& board, std::size_t mode, const Picture& pegs,
                  const Picture& marks) {
    const Point pegMask = PegOnStrip(kPegMaskCell);
    const Point markMask = MarkOnStrip(kMarkMaskCell);
    const auto check = [&](const char* what, Size size, const Picture& strip, Point mask,
                           Point at) {
        if (LookAlike(strip, mask, size, board, at, strip, {0, 0})) return;
        skin.Say(mode == 0 ? kBoardPicture.name : kModeSheet.name,
                 std::string("shows another ") + what + " than the first cell of " +
                     (size == kPegSize ? "Colors.bmp" : "Dots.bmp") + " at " + Written(at) +
                     " on the " + std::string(ModeNames.at(mode)) +
                     " board; paint the same hole in every place");
    };
    for (int column = 1; column <= kModes.at(mode).columns; ++column) {
        check("peg hole", kPegSize, pegs, pegMask, CodePegAt(column));
        for (int row = 1; row <= kModes.at(mode).rows; ++row) {
            check("peg hole", kPegSize, pegs, pegMask, PegAt(column, row));
            check("mark hole", kMarkSize, marks, markMask, MarkAt(column, row));
        }
    }
}

}  // namespace

void CheckSheets(CheckedTree& skin) {
    CheckPieces(skin, kPegStrip, kPegSize, kPegMaskCell);
    CheckPieces(skin, kMarkStrip, kMarkSize, kMarkMaskCell);
    CheckMarkOrder(skin);
    CheckNumbers(skin);
    CheckCovers(skin);
}

void CheckBoards(CheckedTree& skin) {
    const Picture* const pegs = skin.Find(kPegStrip.name);
    const Picture* const marks = skin.Find(kMarkStrip.name);
    const Picture* const sheet = skin.Find(kModeSheet.name);
    const Picture* const easy = skin.Find(kBoardPicture.name);
    if (sheet == nullptr || easy == nullptr) return;
    for (std::size_t mode = 0; mode < kModes.size(); ++mode) {
        Picture board;
        MakeBoardOfMode(board, *easy, *sheet, static_cast<int>(mode));
        if (pegs != nullptr && marks != nullptr) CheckHolesOf(skin, board, mode, *pegs, *marks);
        CheckNumbersOn(skin, board, mode);
    }
}

}  // namespace quendrel
