#include "ui/skin/SkinCheck.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <utility>

#include "Global.h"
#include "platform/Errors.h"
#include "platform/Files.h"
#include "ui/layout/BoardGeometry.h"
#include "ui/layout/Control.h"
#include "ui/layout/MainLayout.h"
#include "ui/skin/SkinFiles.h"
#include "ui/skin/SkinFonts.h"
#include "ui/skin/WindowShape.h"

namespace quendrel {

namespace {

constexpr Pixel kBlackPixel = 0x000000;
constexpr Pixel kWhitePixel = 0xFFFFFF;
/// The ground of the about window's animations.
constexpr Pixel kNiche = 0x191512;
/// How far two pixels that should look the same may be apart in a channel.
constexpr int kSeen = 24;
/// The same for the grain of a well.
constexpr int kGrain = 16;
/// The text that stands on a well keeps this far from its edges.
constexpr int kWellMargin = 5;
/// The last pixel within an outline is at most this bright in any channel.
constexpr int kDarkRim = 64;
/// The grounds of live text: how bright, and how uneven, in any channel.
constexpr int kDarkGround = 100;
constexpr int kEvenGround = 48;

std::array<int, 3> Channels(Pixel pixel) {
    return {static_cast<int>(pixel >> 16 & 0xFF), static_cast<int>(pixel >> 8 & 0xFF),
            static_cast<int>(pixel & 0xFF)};
}

int Brightest(Pixel pixel) {
    const std::array<int, 3> channels = Channels(pixel);
    return *std::max_element(channels.begin(), channels.end());
}

/// The largest difference of two pixels in a channel.
int Step(Pixel a, Pixel b) {
    int largest = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        largest = std::max(largest, std::abs(Channels(a).at(i) - Channels(b).at(i)));
    }
    return largest;
}

std::string Hex(Pixel pixel) {
    std::array<char, 8> text{};
    static_cast<void>(
        std::snprintf(text.data(), text.size(), "#%06X", static_cast<unsigned>(pixel)));
    return text.data();
}

std::string Written(Point at) { return std::to_string(at.x) + ", " + std::to_string(at.y); }

std::string Written(const Rect& place) {
    return "the place " + Written(Point{place.left, place.top}) + " (" +
           std::to_string(place.width) + " x " + std::to_string(place.height) + ")";
}

Rect At(Point corner, Size size) { return {corner.x, corner.y, size.width, size.height}; }

Rect Within(const Rect& place, int margin) {
    return {place.left + margin, place.top + margin, place.width - 2 * margin,
            place.height - 2 * margin};
}

/// The first point of a place, row by row, of which `test` holds.
template <class Test>
bool FindPoint(const Rect& place, const Test& test, Point& found) {
    for (int y = place.top; y < place.bottom(); ++y) {
        for (int x = place.left; x < place.right(); ++x) {
            found = {x, y};
            if (test(found)) return true;
        }
    }
    return false;
}

Rect Whole(const Picture& picture) { return At({0, 0}, picture.size()); }

Pixel PixelAt(const Picture& picture, Point at) { return picture.At(at.x, at.y); }

Point Plus(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }

/// Whether a bitmap file says that its pixels have an opacity each: 32 bits with a mask for it.
bool HasOpacity(const std::string& path) {
    constexpr std::size_t infoSizeAt = 14;
    constexpr std::size_t bitsAt = 28;
    constexpr std::size_t opacityAt = 66;
    constexpr unsigned infoWithOpacity = 56;
    const std::string bytes = ReadFile(path);
    const auto byte = [&bytes](std::size_t at) {
        return static_cast<unsigned>(static_cast<unsigned char>(bytes[at]));
    };
    if (bytes.size() < opacityAt + 4 || byte(infoSizeAt) < infoWithOpacity) return false;
    return byte(bitsAt) == 32 &&
           (byte(opacityAt) | byte(opacityAt + 1) | byte(opacityAt + 2) | byte(opacityAt + 3)) != 0;
}

/// Collects the faults of one skin. A check rests where a picture that it needs is not there.
class SkinCheck {
public:
    SkinCheck(PictureReader reader, std::string root)
        : reader_(std::move(reader)), root_(std::move(root)) {}

    std::vector<std::string> Faults() {
        for (const auto& [name, size] : AllSkinFiles()) Load(name, size);
        CheckOutline(kBoardMask, kBoardPicture);
        CheckOutline(kConfigMask, kConfigPicture);
        CheckOutline(kHighMask, kHighPicture);
        CheckOutline(kAboutMask, kAboutPicture);
        CheckGrounds();
        CheckStrips();
        CheckNumbers();
        CheckCovers();
        CheckBoards();
        CheckButtons();
        CheckFonts();
        return std::move(faults_);
    }

private:
    void Load(const std::string& name, Size size) {
        const std::string path = MachinePath(root_ + name);
        if (!PathExists(path)) {
            Say(name, "is missing; it is a picture of " + std::to_string(size.width) + " x " +
                          std::to_string(size.height) + " pixels");
            return;
        }
        try {
            pictures_.emplace(name, ReadSkinPicture(reader_, {root_}, {name, size}));
            if (HasOpacity(path)) Say(name, "is transparent; save it with 24 bits a pixel");
        } catch (const FileError& error) {
            faults_.emplace_back(error.what());
        }
    }

    const Picture* Find(std::string_view name) const {
        const auto found = pictures_.find(std::string(name));
        return found == pictures_.end() ? nullptr : &found->second;
    }

    void Say(std::string_view name, const std::string& fault) {
        faults_.push_back(MachinePath(root_ + std::string(name)) + ": " + fault);
    }

    void CheckOutline(const SkinPicture& maskFile, const SkinPicture& faceFile) {
        const Picture* const mask = Find(maskFile.name);
        const Picture* const face = Find(faceFile.name);
        if (mask == nullptr) return;
        Point at;
        const auto isKept = [mask](Point p) { return PixelAt(*mask, p) != kCutWhite; };
        const auto isCut = [mask](Point p) { return PixelAt(*mask, p) == kCutWhite; };
        if (!FindPoint(Whole(*mask), isCut, at)) {
            Say(maskFile.name,
                "has no pixel that is exactly white (255, 255, 255); paint white what is to be "
                "cut away");
        } else if (!FindPoint(Whole(*mask), isKept, at)) {
            Say(maskFile.name, "is all white; paint black what is to be kept of the window");
        } else if (face != nullptr) {
            CheckRim(*mask, *face, faceFile.name);
        }
    }

    void CheckRim(const Picture& mask, const Picture& face, std::string_view name) {
        const auto isCut = [&mask](Point p) {
            return p.x < 0 || p.y < 0 || p.x >= mask.width() || p.y >= mask.height() ||
                   PixelAt(mask, p) == kCutWhite;
        };
        const auto isBright = [&](Point p) {
            if (isCut(p) || Brightest(PixelAt(face, p)) <= kDarkRim) return false;
            return isCut(Plus(p, {-1, 0})) || isCut(Plus(p, {1, 0})) || isCut(Plus(p, {0, -1})) ||
                   isCut(Plus(p, {0, 1}));
        };
        Point at;
        if (!FindPoint(Whole(mask), isBright, at)) return;
        Say(name, "is " + Hex(PixelAt(face, at)) + " at " + Written(at) +
                      ", on the edge of the outline; paint the last pixel within the outline dark, "
                      "no channel above 64");
    }

    void CheckGrounds() {
        if (const Picture* const board = Find(kBoardPicture.name)) {
            for (const Rect& line : layout::kMessageLines) CheckGround(*board, kBoardPicture, line);
            CheckGround(*board, kBoardPicture, layout::kClockLabel);
        }
        if (const Picture* const high = Find(kHighPicture.name)) {
            for (int entry = 1; entry <= layout::kHighEntries; ++entry) {
                CheckGround(*high, kHighPicture, layout::HighName(entry));
                CheckGround(*high, kHighPicture, layout::HighRow(entry));
                CheckGround(*high, kHighPicture, layout::HighTime(entry));
            }
        }
        if (const Picture* const config = Find(kConfigPicture.name)) {
            for (const Rect& well : layout::kConfigWells) CheckWell(*config, well);
        }
        if (const Picture* const about = Find(kAboutPicture.name)) {
            for (const Rect& niche :
                 {layout::kAboutEmail, layout::kAboutHome, layout::kAboutTorch}) {
                CheckNiche(*about, niche);
            }
        }
    }

    void CheckGround(const Picture& window, const SkinPicture& file, const Rect& place) {
        Point at;
        const auto isBright = [&window](Point p) {
            return Brightest(PixelAt(window, p)) > kDarkGround;
        };
        const Pixel middle = window.At(place.left + place.width / 2, place.top + place.height / 2);
        const auto isUneven = [&window, middle](Point p) {
            return Step(PixelAt(window, p), middle) > kEvenGround;
        };
        if (FindPoint(place, isBright, at) || FindPoint(place, isUneven, at)) {
            Say(file.name, "has " + Hex(PixelAt(window, at)) + " at " + Written(at) +
                               ", under live text; paint " + Written(place) +
                               " dark and even, no channel above 100 or more than 48 from the "
                               "middle of the place");
        }
    }

    void CheckWell(const Picture& window, const Rect& well) {
        const Pixel middle = window.At(well.left + well.width / 2, well.top + well.height / 2);
        const auto isOther = [&window, middle](Point p) {
            return Step(PixelAt(window, p), middle) > kGrain;
        };
        Point at;
        if (!FindPoint(Within(well, kWellMargin), isOther, at)) return;
        Say(kConfigPicture.name, "has " + Hex(PixelAt(window, at)) + " at " + Written(at) +
                                     " in a well that is " + Hex(middle) +
                                     " in its middle; paint the well at " + Written(well) +
                                     " in one colour, but for a rim of 5 pixels");
    }

    void CheckNiche(const Picture& window, const Rect& niche) {
        const auto isOther = [&window](Point p) { return PixelAt(window, p) != kNiche; };
        Point at;
        if (!FindPoint(niche, isOther, at)) return;
        Say(kAboutPicture.name, "has " + Hex(PixelAt(window, at)) + " at " + Written(at) +
                                    ", under an animation; paint " + Written(niche) +
                                    " in exactly " + Hex(kNiche));
    }

    void CheckStrips() {
        CheckMaskCell(kPegStrip, kPegSize, kPegMaskCell);
        CheckMaskCell(kMarkStrip, kMarkSize, kMarkMaskCell);
        CheckMarkOrder();
    }

    void CheckMaskCell(const SkinPicture& file, Size size, int cell) {
        const Picture* const strip = Find(file.name);
        if (strip == nullptr) return;
        const Rect place = At({size.width * cell, 0}, size);
        const auto isImpure = [strip](Point p) {
            return PixelAt(*strip, p) != kBlackPixel && PixelAt(*strip, p) != kWhitePixel;
        };
        Point at;
        if (FindPoint(place, isImpure, at)) {
            Say(file.name, "has " + Hex(PixelAt(*strip, at)) + " at " + Written(at) +
                               ", in its mask; paint " + Written(place) +
                               " in nothing but pure black and pure white");
        } else if (!HasBlack(*strip, place)) {
            Say(file.name, "has no black in its mask, so nothing of it would be drawn; paint in " +
                               Written(place) + " black what is to be drawn");
        } else {
            CheckPieces(*strip, file.name, size, cell);
        }
    }

    static bool HasBlack(const Picture& picture, const Rect& place) {
        Point at;
        return FindPoint(
            place, [&picture](Point p) { return PixelAt(picture, p) == kBlackPixel; }, at);
    }

    /// Whether two cells look alike where the mask cell of a strip lets them through.
    static bool LookAlike(const Picture& mask, Point maskAt, Size size, const Picture& a, Point aAt,
                          const Picture& b, Point bAt) {
        Point at;
        const auto differs = [&](Point p) {
            return PixelAt(mask, Plus(maskAt, p)) == kBlackPixel &&
                   Step(PixelAt(a, Plus(aAt, p)), PixelAt(b, Plus(bAt, p))) > kSeen;
        };
        return !FindPoint(At({0, 0}, size), differs, at);
    }

    /// The hole and the pieces before the mask cell of a strip are told apart by their looks.
    void CheckPieces(const Picture& strip, std::string_view name, Size size, int maskCell) {
        const Point mask{size.width * maskCell, 0};
        CheckCellsDiffer(name, 0, maskCell - 1, [&](int a, int b) {
            return LookAlike(strip, mask, size, strip, {size.width * a, 0}, strip,
                             {size.width * b, 0});
        });
    }

    template <class Alike>
    void CheckCellsDiffer(std::string_view name, int first, int last, const Alike& alike) {
        for (int a = first; a <= last; ++a) {
            for (int b = a + 1; b <= last; ++b) {
                if (!alike(a, b)) continue;
                Say(name, "shows the same in cells " + std::to_string(a + 1) + " and " +
                              std::to_string(b + 1) + "; paint in each what belongs there");
            }
        }
    }

    void CheckMarkOrder() {
        const Picture* const marks = Find(kMarkStrip.name);
        if (marks == nullptr || LightOf(*marks, 1) <= LightOf(*marks, 2)) return;
        Say(kMarkStrip.name,
            "has a black mark that is lighter than the white one; paint the black mark in cell 2 "
            "and the white one in cell 3");
    }

    /// All channels of a mark's cell, where its mask draws it.
    static int LightOf(const Picture& marks, int cell) {
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

    /// The same for cells of the strip that has no mask.
    static bool NumbersAlike(const Picture& a, Point aAt, const Picture& b, Point bAt) {
        Point at;
        const auto differs = [&](Point p) {
            return Step(PixelAt(a, Plus(aAt, p)), PixelAt(b, Plus(bAt, p))) > kSeen;
        };
        return !FindPoint(At({0, 0}, kNumberSize), differs, at);
    }

    void CheckNumbers() {
        const Picture* const numbers = Find(kNumberStrip.name);
        if (numbers == nullptr) return;
        CheckCellsDiffer(kNumberStrip.name, 1, kMaxRows, [numbers](int a, int b) {
            return NumbersAlike(*numbers, NumberOnStrip(a), *numbers, NumberOnStrip(b));
        });
    }

    /// A number that looks like the board beneath it would not be seen to blink. Each mode adds its
    /// rows to the board of the one before.
    void CheckNumbersOn(const Picture& board, std::size_t mode) {
        const Picture* const numbers = Find(kNumberStrip.name);
        if (numbers == nullptr) return;
        const int first = mode == 0 ? 0 : kModes.at(mode - 1).rows + 1;
        for (int row = first; row <= kModes.at(mode).rows; ++row) {
            const Point at = row == 0 ? CodeNumberAt(row) : NumberAt(row);
            if (!NumbersAlike(*numbers, NumberOnStrip(row), board, at)) continue;
            Say(kNumberStrip.name, "shows in cell " + std::to_string(row + 1) + " what the " +
                                       std::string(ModeNames.at(mode)) + " board has at " +
                                       Written(at) + "; paint it lit");
        }
    }

    void CheckCovers() {
        const Picture* const pegs = Find(kPegStrip.name);
        const Picture* const covers = Find(kCoverSheet.name);
        if (pegs == nullptr || covers == nullptr) return;
        if (!HasBlack(*pegs, At(PegOnStrip(kPegMaskCell), kPegSize))) return;
        CheckLid(*pegs, *covers, 0, "the hidden code");
        for (int color = 1; color <= kColorCount; ++color) {
            const std::string name(ColorNames.at(static_cast<std::size_t>(color - 1)));
            CheckEnds(*pegs, *covers, color, name);
            CheckLid(*pegs, *covers, color, name);
        }
    }

    /// The first and the last cell of a colour's row.
    void CheckEnds(const Picture& pegs, const Picture& covers, int color, const std::string& name) {
        const Point mask = PegOnStrip(kPegMaskCell);
        const std::string row = std::to_string(color + 1) + " (" + name + ")";
        if (!LookAlike(pegs, mask, kPegSize, covers, CoverOnSheet(color, 1), covers,
                       CoverOnSheet(0, kCoverFrames))) {
            Say(kCoverSheet.name, "is not closed in cell 1 of row " + row +
                                      "; paint there what cell 10 of row 1 shows");
        }
        if (!LookAlike(pegs, mask, kPegSize, covers, CoverOnSheet(color, kCoverFrames), pegs,
                       PegOnStrip(color))) {
            Say(kCoverSheet.name, "does not show the peg in cell 10 of row " + row +
                                      "; paint there the peg of Colors.bmp");
        }
    }

    void CheckLid(const Picture& pegs, const Picture& covers, int row, const std::string& name) {
        const Point mask = PegOnStrip(kPegMaskCell);
        for (int cell = 1; cell < kCoverFrames; ++cell) {
            if (!LookAlike(pegs, mask, kPegSize, covers, CoverOnSheet(row, cell), covers,
                           CoverOnSheet(row, cell + 1))) {
                continue;
            }
            Say(kCoverSheet.name, "shows the same in cells " + std::to_string(cell) + " and " +
                                      std::to_string(cell + 1) + " of row " +
                                      std::to_string(row + 1) + " (" + name +
                                      "); draw a lid that moves");
        }
    }

    void CheckBoards() {
        const Picture* const pegs = Find(kPegStrip.name);
        const Picture* const marks = Find(kMarkStrip.name);
        const Picture* const sheet = Find(kModeSheet.name);
        const Picture* const easy = Find(kBoardPicture.name);
        if (sheet == nullptr || easy == nullptr) return;
        for (std::size_t mode = 0; mode < kModes.size(); ++mode) {
            Picture board;
            MakeBoardOfMode(board, *easy, *sheet, static_cast<int>(mode));
            if (pegs != nullptr && marks != nullptr) CheckHolesOf(board, mode, *pegs, *marks);
            CheckNumbersOn(board, mode);
        }
    }

    /// The empty hole erases a peg only where the board shows the same hole.
    void CheckHolesOf(const Picture& board, std::size_t mode, const Picture& pegs,
                      const Picture& marks) {
        const Point pegMask = PegOnStrip(kPegMaskCell);
        const Point markMask = MarkOnStrip(kMarkMaskCell);
        const auto check = [&](const char* what, Size size, const Picture& strip, Point mask,
                               Point at) {
            if (LookAlike(strip, mask, size, board, at, strip, {0, 0})) return;
            Say(mode == 0 ? kBoardPicture.name : kModeSheet.name,
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

    void CheckButtons() {
        for (const auto& [control, button] : MainButtonFiles()) {
            for (const Point at : MainButtonPlaces(control))
                CheckCorners(kBoardPicture, button, at);
        }
        for (const ButtonDesign& button : kConfigButtons) {
            CheckCorners(kConfigPicture, ConfigButtonFiles(button),
                         {button.place.left, button.place.top});
        }
        for (const SwitchDesign& lever : kConfigSwitches) {
            CheckCorners(kConfigPicture, ConfigSwitchFiles(lever),
                         {lever.place.left, lever.place.top});
        }
        CheckCorners(kHighPicture, HighOkFiles(), {layout::kHighOk.left, layout::kHighOk.top});
        CheckCorners(kHighPicture, HighDefaultFiles(),
                     {layout::kHighDefault.left, layout::kHighDefault.top});
        for (std::size_t mode = 0; mode < ModeNames.size(); ++mode) {
            const Rect& sign = layout::kHighMode;
            CheckCornersOf(kHighPicture, HighModeFile(mode), sign);
        }
        CheckCorners(kAboutPicture, AboutOkFiles(), {layout::kAboutOk.left, layout::kAboutOk.top});
    }

    /// Where a button of the main window stands; the answers and the clock have several places.
    static std::vector<Point> MainButtonPlaces(Control control) {
        const auto corner = [](const Rect& place) { return Point{place.left, place.top}; };
        const auto index = static_cast<std::size_t>(control.index);
        switch (control.array) {
            case Controls::cmdMnuBtn:
                return {corner(layout::kMenuButtons.at(index))};
            case Controls::cmdModeBtn:
                return {corner(layout::kModeButtons.at(index))};
            case Controls::cmdColBtn:
                return {corner(layout::kColorButtons.at(index))};
            case Controls::cmdInput:
                return {layout::kInputShownAt.at(index)};
            case Controls::cmdTmrBtn:
                return {corner(layout::kClockButton)};
            case Controls::cmdDuelBtn:
                return {corner(layout::kDuelButton)};
            case Controls::cmdHideBtn:
                return {corner(layout::kHideButton)};
            default:
                return {};
        }
    }

    void CheckCorners(const SkinPicture& window, const ButtonFiles& button, Point at) {
        for (const StatePicture& picture : button.pictures) {
            CheckCornersOf(window, button.stem + std::string(picture.ending), At(at, button.size));
        }
    }

    void CheckCornersOf(const SkinPicture& window, const std::string& name, const Rect& place) {
        const Picture* const face = Find(window.name);
        const Picture* const picture = Find(name);
        if (face == nullptr || picture == nullptr) return;
        const int right = place.width - 1;
        const int bottom = place.height - 1;
        for (const Point corner :
             {Point{0, 0}, Point{right, 0}, Point{0, bottom}, Point{right, bottom}}) {
            const Pixel ground = PixelAt(*face, {place.left + corner.x, place.top + corner.y});
            if (Step(PixelAt(*picture, corner), ground) <= kSeen) continue;
            Say(name, "is " + Hex(PixelAt(*picture, corner)) + " in its corner " + Written(corner) +
                          " where the window is " + Hex(ground) +
                          "; cut its corners out of the window");
            break;
        }
    }

    /// What other machines have is not known here: any face may be one.
    void CheckFonts() {
        const SkinFonts fonts = ReadSkinFonts(root_, [](const std::string&) { return true; });
        faults_.insert(faults_.end(), fonts.faults.begin(), fonts.faults.end());
    }

    const PictureReader reader_;
    std::string root_;
    std::map<std::string, Picture> pictures_;
    std::vector<std::string> faults_;
};

}  // namespace

std::vector<std::string> FaultsOfSkin(const PictureReader& reader, const std::string& root) {
    return SkinCheck(reader, root).Faults();
}

}  // namespace quendrel
