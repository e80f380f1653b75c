// The skin Beacon as eyes see it that lack one of the three kinds of cones: its pegs stay apart,
// and its captions are as clear as can be.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Bitmap.h"
#include "ColorDifference.h"
#include "ui/layout/MainLayout.h"

namespace quendrel {
namespace {

namespace fs = std::filesystem;

const fs::path kGame = fs::path(QUENDREL_SKIN_FOLDER) / "Beacon" / "Game";

/// What an eye without one kind of cones sees of linear light: Machado, Oliveira and Fernandes,
/// "A Physiologically-based Model for Simulation of Color Vision Deficiency" (2009), severity 1.
struct Eye {
    std::string name;
    std::array<Rgb, 3> rows;                ///< what red, green and blue are made of
    std::array<std::uint32_t, 2> confused;  ///< two colours that it can hardly tell apart

    friend std::ostream& operator<<(std::ostream& out, const Eye& eye) { return out << eye.name; }
};

const std::vector<Eye> kEyes{
    {"Protanopia",
     {{{0.152286, 1.052583, -0.204868},
       {0.114503, 0.786281, 0.099216},
       {-0.003882, -0.048116, 1.051998}}},
     {0xb0483a, 0x5f6b35}},
    {"Deuteranopia",
     {{{0.367322, 0.860646, -0.227968},
       {0.280085, 0.672501, 0.047413},
       {-0.011820, 0.042940, 0.968881}}},
     {0xb05a3a, 0x7a7636}},
    {"Tritanopia",
     {{{1.255528, -0.076749, -0.178779},
       {-0.078411, 0.930809, 0.147602},
       {0.004733, 0.691367, 0.303900}}},
     {0xf48117, 0xfc737d}},
};

Lab Seen(std::uint32_t pixel, const Eye& eye) {
    const Rgb light = LinearOf(pixel);
    const auto channel = [&light](const Rgb& row) {
        return std::clamp(row.r * light.r + row.g * light.g + row.b * light.b, 0.0, 1.0);
    };
    return LabOf({channel(eye.rows[0]), channel(eye.rows[1]), channel(eye.rows[2])});
}

/// The mean difference of two pegs, pixel by pixel where `mask` shows them: colours count, and so
/// do the signs on the pegs.
double DifferenceSeen(const Bitmap& a, const Bitmap& b, const Bitmap& mask, const Eye& eye) {
    double sum = 0;
    double count = 0;
    for (std::size_t i = 0; i < mask.pixels.size(); ++i) {
        if (mask.pixels[i] != kBlack) continue;
        sum += DeltaE(Seen(a.pixels.at(i), eye), Seen(b.pixels.at(i), eye));
        ++count;
    }
    return sum / count;
}

constexpr double kToldApart = 10;

Bitmap PegCell(int cell) { return Bitmap(kGame / "Colors.bmp").Part({44 * cell, 0, 44, 27}); }

/// A plain peg of one colour and the shape of `mask`.
Bitmap PlainPeg(const Bitmap& mask, std::uint32_t color) {
    Bitmap peg = mask;
    for (std::uint32_t& pixel : peg.pixels) pixel = pixel == kBlack ? color : pixel;
    return peg;
}

class ColorVision : public testing::TestWithParam<Eye> {};

TEST_P(ColorVision, TellsAnyTwoPegsApart) {
    const Bitmap mask = PegCell(11);
    for (int color = 1; color <= 10; ++color)
        for (int other = color + 1; other <= 10; ++other)
            EXPECT_GE(DifferenceSeen(PegCell(color), PegCell(other), mask, GetParam()), kToldApart)
                << color << " and " << other;
}

TEST_P(ColorVision, WouldConfusePegsOfTheSameShapeInItsColors) {
    const Bitmap mask = PegCell(11);
    const auto [first, second] = GetParam().confused;
    EXPECT_GE(DeltaE(LabOf(LinearOf(first)), LabOf(LinearOf(second))), 20);
    EXPECT_LT(DifferenceSeen(PlainPeg(mask, first), PlainPeg(mask, second), mask, GetParam()),
              kToldApart);
}

INSTANTIATE_TEST_SUITE_P(Beacon, ColorVision, testing::ValuesIn(kEyes),
                         [](const auto& test) { return test.param.name; });

// ---- Captions -----------------------------------------------------------------------------------

/// The contrast of a key's face, which is most of its middle, and of its caption's strokes.
double CaptionContrast(const Bitmap& key) {
    const Bitmap middle = key.Part({key.width / 4, key.height / 4, key.width / 2, key.height / 2});
    std::vector<double> lights;
    for (const std::uint32_t pixel : middle.pixels) lights.push_back(LuminanceOf(pixel) + 0.05);
    std::sort(lights.begin(), lights.end());
    const std::size_t count = lights.size();
    return lights[count * 11 / 12] / lights[count / 12];
}

void ExpectClearCaption(const std::string& key) {
    EXPECT_GE(CaptionContrast(Bitmap(kGame / "Interface" / (key + ".bmp"))), 7) << key;
}

TEST(BeaconCaptions, StandOutSevenfoldOnEveryKeyThatCanBePressed) {
    for (const std::string name :
         {"Exit", "About", "Config", "High", "Show", "Clone", "Start", "Check", "Yes", "No", "Ok"})
        for (const std::string state : {"_Up", "_Over", "_Down"}) ExpectClearCaption(name + state);
    for (const std::string name : {"Easy", "Medium", "Hard"})
        for (const std::string state : {"_Up", "_Down"}) ExpectClearCaption(name + state);
}

TEST(BeaconSigns, StandOutThreefoldOnColorButtonsThatAreOff) {
    for (const std::string color : {"Yellow", "Blue", "Red", "Green", "White", "Black", "Brown",
                                    "Orange", "Purple", "Pink"}) {
        const Bitmap key(kGame / "Interface" / (color + "_Disabled.bmp"));
        std::vector<double> lights;
        for (const std::uint32_t pixel : key.Part({29, 8, 24, 14}).pixels)
            lights.push_back(LuminanceOf(pixel) + 0.05);
        std::sort(lights.begin(), lights.end());
        // The sign covers less than half of what is around it, and more than a twentieth.
        EXPECT_GE(lights[lights.size() * 19 / 20] / lights[lights.size() / 2], 3) << color;
    }
}

}  // namespace
}  // namespace quendrel
