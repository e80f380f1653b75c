#include "ui/skin/SecondTreeCheck.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "Geometry.h"
#include "ui/layout/BoardSheets.h"
#include "ui/skin/CheckedTree.h"
#include "ui/skin/MaskCheck.h"
#include "ui/skin/PictureLooks.h"
#include "ui/skin/SkinFiles.h"

namespace quendrel {

namespace {

/// Two pictures are compared by their means over squares of so many units, which letters that are
/// hinted for each size, and edges, change little.
constexpr int kSquare = 8;
/// How far two means of the same may be apart in a channel.
constexpr double kOther = 40;

using Mean = std::array<double, 3>;

/// The mean of each channel over the square whose corner is at a place in units.
Mean MeanAt(const Picture& picture, Point corner) {
    const int left = corner.x * picture.density();
    const int top = corner.y * picture.density();
    const int side = kSquare * picture.density();
    std::array<int, 3> sums{};
    for (int y = top; y < top + side; ++y) {
        for (int x = left; x < left + side; ++x) {
            const std::array<int, 3> channels = Channels(picture.At(x, y));
            for (std::size_t i = 0; i < sums.size(); ++i) sums.at(i) += channels.at(i);
        }
    }
    Mean mean{};
    std::transform(sums.begin(), sums.end(), mean.begin(),
                   [side](int sum) { return static_cast<double>(sum) / (side * side); });
    return mean;
}

bool LookAlike(const Mean& a, const Mean& b) {
    return std::equal(a.begin(), a.end(), b.begin(),
                      [](double x, double y) { return std::abs(x - y) <= kOther; });
}

/// The corner of the first square, row by row, that looks otherwise. The last squares of a row and
/// of a column end with the picture.
bool FindOther(const Picture& first, const Picture& second, Size units, Point& corner) {
    for (int y = 0; y < units.height; y += kSquare) {
        for (int x = 0; x < units.width; x += kSquare) {
            corner = {std::min(x, units.width - kSquare), std::min(y, units.height - kSquare)};
            if (!LookAlike(MeanAt(first, corner), MeanAt(second, corner))) return true;
        }
    }
    return false;
}

std::string WithSlashes(std::string name) {
    std::replace(name.begin(), name.end(), '\\', '/');
    return name;
}

void CheckSame(const CheckedTree& first, CheckedTree& second, const std::string& name, Size units) {
    const Picture* const single = first.Find(name);
    const Picture* const doubled = second.Find(name);
    Point corner;
    if (single == nullptr || doubled == nullptr) return;
    if (!FindOther(*single, *doubled, units, corner)) return;
    const Point at{corner.x * second.density(), corner.y * second.density()};
    second.Say(name, "shows something else at " + Written(at) + " than " +
                         WithSlashes(name.substr(1)) + "; paint the same at twice the size");
}

}  // namespace

void CheckSecondTree(const CheckedTree& first, CheckedTree& second) {
    for (const MaskedPicture& window : kMaskedPictures) CheckWindowMask(second, window.mask);
    CheckMaskCell(second, kPegStrip, kPegSize, kPegMaskCell);
    CheckMaskCell(second, kMarkStrip, kMarkSize, kMarkMaskCell);
    for (const auto& [name, units] : AllSkinFiles()) CheckSame(first, second, name, units);
}

}  // namespace quendrel
