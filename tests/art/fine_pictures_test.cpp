// The skins' pictures at double size: their files, how they agree with those of single size, and
// that they show more than a stretched picture would.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Bitmap.h"
#include "FinePictures.h"
#include "Skins.h"

namespace quendrel {
namespace {

namespace fs = std::filesystem;

/// The pictures below `root` by their names in it; those at double size are none of them.
std::set<std::string> NamesBelow(const fs::path& root) {
    std::set<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        const std::string name = fs::relative(entry.path(), root).string();
        if (entry.path().extension() == ".bmp" && !name.starts_with("2x/")) names.insert(name);
    }
    return names;
}

class FinePictures : public SkinTest {
protected:
    Bitmap Single(const std::string& name) const { return Bitmap(skin_ / name); }
    Bitmap Fine(const std::string& name) const { return Bitmap(InSize(skin_, 2) / name); }
};

TEST_P(FinePictures, HaveTheNamesOfTheOthersAndTwiceTheirSizes) {
    const std::set<std::string> names = NamesBelow(skin_);
    EXPECT_EQ(names.size(), 190U);
    EXPECT_EQ(NamesBelow(InSize(skin_, 2)), names);
    for (const std::string& name : names) {
        const Bitmap single = Single(name);
        const Bitmap fine = Fine(name);
        EXPECT_EQ(fine.width, 2 * single.width) << name;
        EXPECT_EQ(fine.height, 2 * single.height) << name;
    }
}

// ---- Both sizes show the same -------------------------------------------------------------------

/// The four pixels of `fine` that pixel (x, y) of the single size stands for.
std::vector<std::uint32_t> BlockOf(const Bitmap& fine, int x, int y) {
    return {fine.At(2 * x, 2 * y), fine.At(2 * x + 1, 2 * y), fine.At(2 * x, 2 * y + 1),
            fine.At(2 * x + 1, 2 * y + 1)};
}

void ExpectMasksAgree(const Bitmap& single, const Bitmap& fine, const std::string& name) {
    for (int y = 0; y < single.height; ++y) {
        for (int x = 0; x < single.width; ++x) {
            const std::vector<std::uint32_t> block = BlockOf(fine, x, y);
            if (block == std::vector<std::uint32_t>(4, block.front())) {
                ASSERT_EQ(single.At(x, y), block.front()) << name << ' ' << x << ", " << y;
            }
        }
    }
    EXPECT_EQ(PixelsOtherThanBlackAndWhite(fine), 0) << name;
}

TEST_P(FinePictures, KeepWhatTheMasksOfTheOthersKeep) {
    for (const std::string name : {"Game/Boardmask.bmp", "About/Aboutmask.bmp", "High/Highmask.bmp",
                                   "Config/Configmask.bmp"})
        ExpectMasksAgree(Single(name), Fine(name), name);
    constexpr Rect kPegMask{44 * 11, 0, 44, 27};
    ExpectMasksAgree(Single("Game/Colors.bmp").Part(kPegMask),
                     Fine("Game/Colors.bmp").Part(Times(kPegMask, 2)), "peg");
    constexpr Rect kMarkMask{11 * 3, 0, 11, 11};
    ExpectMasksAgree(Single("Game/Dots.bmp").Part(kMarkMask),
                     Fine("Game/Dots.bmp").Part(Times(kMarkMask, 2)), "mark");
}

TEST_P(FinePictures, HaveDarkRimsAlongTheirOutlines) {
    for (const std::string name : {"Game/Board", "About/About", "High/High", "Config/Config"})
        ExpectDarkRim(Fine(name + "mask.bmp"), Fine(name + ".bmp"));
}

/// Brighter light is compressed, so that a mean of such pixels says nothing.
constexpr double kCompressed = 0.7;

/// How far at most a channel of a pixel lies from the mean light of its four fine pixels.
int LargestStepFromMean(const Bitmap& single, const Bitmap& fine) {
    int largest = 0;
    for (int y = 0; y < single.height; ++y) {
        for (int x = 0; x < single.width; ++x) {
            const std::vector<std::uint32_t> block = BlockOf(fine, x, y);
            for (const int shift : {0, 8, 16}) {
                double sum = 0;
                bool compressed = false;
                for (const std::uint32_t pixel : block) {
                    const double light = Linear(pixel >> shift & 255);
                    compressed = compressed || light > kCompressed;
                    sum += light;
                }
                if (compressed) continue;
                const double mean = sum / 4;
                const double level =
                    255 *
                    (mean <= 0.0031308 ? mean * 12.92 : 1.055 * std::pow(mean, 1 / 2.4) - 0.055);
                const int step = std::abs(static_cast<int>(std::lround(level)) -
                                          static_cast<int>(single.At(x, y) >> shift & 255));
                largest = std::max(largest, step);
            }
        }
    }
    return largest;
}

TEST_P(FinePictures, HaveTheLightOfTheOthersAsTheirMean) {
    for (const std::string name :
         {"About/About.bmp", "High/High.bmp", "Config/Config.bmp", "Game/Interface/Start_Up.bmp",
          "Game/Interface/Red_Disabled.bmp", "Game/Numbers.bmp"})
        EXPECT_LE(LargestStepFromMean(Single(name), Fine(name)), 1) << name;
}

// ---- Detail -------------------------------------------------------------------------------------

double GreyOf(std::uint32_t pixel) {
    return 0.299 * (pixel >> 16 & 255) + 0.587 * (pixel >> 8 & 255) + 0.114 * (pixel & 255);
}

/// How much the four pixels that stand for one of single size differ: the mean step in grey from
/// their mean.
double DetailOf(const Bitmap& fine) {
    double sum = 0;
    for (int y = 0; y < fine.height / 2; ++y) {
        for (int x = 0; x < fine.width / 2; ++x) {
            const std::vector<std::uint32_t> block = BlockOf(fine, x, y);
            double mean = 0;
            for (const std::uint32_t pixel : block) mean += GreyOf(pixel) / 4;
            for (const std::uint32_t pixel : block) sum += std::abs(GreyOf(pixel) - mean);
        }
    }
    return sum / static_cast<double>(fine.pixels.size());
}

/// How abruptly the picture changes: how far, in grey, a pixel lies on average from the middle
/// between its neighbours on both sides.
double SharpnessOf(const Bitmap& picture) {
    double sum = 0;
    for (int y = 1; y < picture.height - 1; ++y) {
        for (int x = 1; x < picture.width - 1; ++x) {
            const auto grey = [&](int dx, int dy) { return GreyOf(picture.At(x + dx, y + dy)); };
            sum += std::abs(grey(0, 0) - (grey(-1, 0) + grey(1, 0)) / 2) +
                   std::abs(grey(0, 0) - (grey(0, -1) + grey(0, 1)) / 2);
        }
    }
    return sum / static_cast<double>(picture.pixels.size());
}

/// The picture at double size, smoothed between its pixels.
Bitmap Stretched(const Bitmap& single) {
    Bitmap fine(Times(Size{single.width, single.height}, 2));
    for (int y = 0; y < fine.height; ++y) {
        for (int x = 0; x < fine.width; ++x) {
            const int besideX = std::clamp(x / 2 + (x % 2 == 0 ? -1 : 1), 0, single.width - 1);
            const int besideY = std::clamp(y / 2 + (y % 2 == 0 ? -1 : 1), 0, single.height - 1);
            for (const int shift : {0, 8, 16}) {
                const auto level = [&](int column, int row) {
                    return single.At(column, row) >> shift & 255;
                };
                const std::uint32_t sum = 9 * level(x / 2, y / 2) + 3 * level(besideX, y / 2) +
                                          3 * level(x / 2, besideY) + level(besideX, besideY);
                fine.At(x, y) |= (sum + 8) / 16 << shift;
            }
        }
    }
    return fine;
}

/// Pictures full of grain, edges and lettering.
const std::vector<std::string> kDetailed{"Game/Board.bmp",
                                         "Game/Colors.bmp",
                                         "Game/Interface/Start_Up.bmp",
                                         "Game/Interface/Config_Up.bmp",
                                         "About/About.bmp",
                                         "High/High.bmp",
                                         "Config/Config.bmp"};

TEST_P(FinePictures, DifferWithinTheSpaceOfOneSinglePixel) {
    for (const std::string& name : kDetailed) EXPECT_GT(DetailOf(Fine(name)), 1.2) << name;
}

TEST_P(FinePictures, AreSharperThanTheOthersStretched) {
    for (const std::string& name : kDetailed)
        EXPECT_GT(SharpnessOf(Fine(name)), 1.6 * SharpnessOf(Stretched(Single(name)))) << name;
}

INSTANTIATE_TEST_SUITE_P(Every, FinePictures, kEverySkin, SkinName);

}  // namespace
}  // namespace quendrel
