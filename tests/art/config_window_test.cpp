// The pictures of the configuration window: files and sizes, wells that live text can be read in,
// switches whose states can be told apart, captions and headings.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Bitmap.h"
#include "ColorDifference.h"
#include "Skins.h"
#include "WindowPictures.h"
#include "ui/layout/ConfigControls.h"
#include "ui/layout/ConfigLayout.h"

namespace quendrel {
namespace {

namespace fs = std::filesystem;

/// The inks of live text: on dark wells and on light ones.
constexpr std::uint32_t kIvory = 0xebe6da;
constexpr std::uint32_t kBlackBrown = 0x1c120a;

const std::vector<std::string> kSwitchNames{"Music",  "RndMusic", "Sound",   "ToolTips", "SetColor",
                                            "GTimer", "RndSkin",  "PrvSkin", "MindDuel"};
const std::vector<std::string> kLockableSwitches{"GTimer", "MindDuel"};

const std::map<std::string, Size> kButtonSizes{
    {"Ok", {110, 34}},     {"Cancel", {110, 34}},    {"Default", {110, 34}},  {"Skin(1)", {28, 28}},
    {"Skin(2)", {28, 28}}, {"BestOf(1)", {28, 28}},  {"BestOf(2)", {28, 28}}, {"Add", {100, 26}},
    {"AddAll", {100, 26}}, {"RemoveAll", {100, 26}}, {"Remove", {100, 26}},   {"Move(1)", {32, 32}},
    {"Move(2)", {32, 32}}, {"Listen", {100, 26}},
};

class ConfigWindowPictures : public SkinTest {
protected:
    Bitmap Interface(const std::string& name, const std::string& state) const {
        return Bitmap(config_ / "Interface" / (name + "_" + state + ".bmp"));
    }

    const fs::path config_ = skin_ / "Config";
};

TEST_P(ConfigWindowPictures, AreTheListedOnesInTheirSizes) {
    std::map<std::string, Size> sizes{{"Config.bmp", {640, 490}}, {"Configmask.bmp", {640, 490}}};
    const auto add = [&sizes](const std::string& name, const std::string& state, Size size) {
        sizes.insert({std::string("Interface/").append(name).append(state).append(".bmp"), size});
    };
    for (const auto& [name, size] : kButtonSizes)
        for (const std::string state : {"_Up", "_Over", "_Down"}) add(name, state, size);
    for (const std::string& name : kSwitchNames)
        for (const std::string state : {"_Off", "_On"}) add(name, state, {180, 28});
    for (const std::string& name : kLockableSwitches) add(name, "_Disabled", {180, 28});
    ExpectSizes(config_, sizes);
}

TEST_P(ConfigWindowPictures, HaveAHardMaskWithADarkRim) {
    ExpectMaskAndRim(Bitmap(config_ / "Configmask.bmp"), Bitmap(config_ / "Config.bmp"));
}

TEST_P(ConfigWindowPictures, KeepEveryControlWithinTheOutline) {
    const Bitmap mask(config_ / "Configmask.bmp");
    for (const ButtonDesign& button : kConfigButtons) ExpectKept(mask, button.place, 8);
    for (const SwitchDesign& lever : kConfigSwitches) ExpectKept(mask, lever.place, 8);
    for (const Rect& well : layout::kConfigWells) ExpectKept(mask, well, 8);
}

// ---- Wells --------------------------------------------------------------------------------------

/// The part of a well that its rim does not shade.
Rect FloorOf(Rect well) { return {well.left + 4, well.top + 4, well.width - 8, well.height - 8}; }

/// How many levels a floor's grain may lie off its median. Leather that one sees has 3.
constexpr int kGrain = 8;

/// The pixel of middle luminance.
std::uint32_t Median(const Bitmap& picture) {
    std::vector<std::uint32_t> pixels = picture.pixels;
    const auto middle = pixels.begin() + static_cast<std::ptrdiff_t>(pixels.size() / 2);
    std::nth_element(pixels.begin(), middle, pixels.end(), [](std::uint32_t a, std::uint32_t b) {
        return LuminanceOf(a) < LuminanceOf(b);
    });
    return *middle;
}

TEST_P(ConfigWindowPictures, HaveWellsWithAnEvenFloor) {
    const Bitmap window(config_ / "Config.bmp");
    for (const Rect& well : layout::kConfigWells) {
        const Bitmap floor = window.Part(FloorOf(well));
        Bitmap even = floor;
        std::fill(even.pixels.begin(), even.pixels.end(), Median(floor));
        EXPECT_LE(LargestStep(floor, even), kGrain) << well.left << ", " << well.top;
    }
}

TEST_P(ConfigWindowPictures, GiveTheLiveTextOfAWellSevenfoldContrast) {
    const Bitmap window(config_ / "Config.bmp");
    for (const Rect& well : layout::kConfigWells) {
        const Bitmap floor = window.Part(FloorOf(well));
        const std::uint32_t median = Median(floor);
        const bool dark = Contrast(median, kIvory) > Contrast(median, kBlackBrown);
        for (const std::uint32_t pixel : floor.pixels)
            ASSERT_GE(Contrast(pixel, dark ? kIvory : kBlackBrown), 7)
                << well.left << ", " << well.top;
    }
}

// ---- Buttons ------------------------------------------------------------------------------------

TEST_P(ConfigWindowPictures, OfTheButtonsFitTheWindowAndDiffer) {
    const Bitmap window(config_ / "Config.bmp");
    for (const ButtonDesign& button : kConfigButtons) {
        const std::string name(button.picture());
        const Bitmap up = Interface(name, "Up");
        for (const std::string state : {"Up", "Over", "Down"}) {
            ExpectNoSeam(window, config_ / "Interface" / (name + "_" + state + ".bmp"),
                         button.place);
            if (state == "Up") continue;
            EXPECT_GE(Differences(up, Interface(name, state)) * 8,
                      button.place.width * button.place.height)
                << name << ' ' << state;
        }
        EXPECT_NE(Differences(Interface(name, "Over"), Interface(name, "Down")), 0) << name;
    }
}

/// How far a button's picture is from its mirror image on the other side of the upright middle, or
/// of the level one.
int Lopsidedness(const Bitmap& picture, bool level) {
    Bitmap mirrored = picture;
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
            mirrored.At(x, y) = level ? picture.At(x, picture.height - 1 - y)
                                      : picture.At(picture.width - 1 - x, y);
    const Rect sign{6, 6, picture.width - 12, picture.height - 12};
    return LargestStep(picture.Part(sign), mirrored.Part(sign));
}

TEST_P(ConfigWindowPictures, OfTheArrowsPointToTheirSides) {
    for (const std::string name : {"Skin(1)", "Skin(2)"}) {
        const Bitmap up = Interface(name, "Up");
        EXPECT_GT(Lopsidedness(up, false), 60) << name;
    }
    for (const std::string name : {"Move(1)", "Move(2)"}) {
        const Bitmap up = Interface(name, "Up");
        EXPECT_GT(Lopsidedness(up, true), 60) << name;
    }
}

// ---- Switches -----------------------------------------------------------------------------------

/// Where a switch shows its state; its caption is to the right of it.
constexpr Rect kLever{0, 0, 56, 28};

double Lightness(std::uint32_t pixel) { return LabOf(LinearOf(pixel)).l; }

/// How many pixels differ by 15 or more in lightness alone.
int LightnessDifferences(const Bitmap& a, const Bitmap& b) {
    int count = 0;
    for (std::size_t i = 0; i < a.pixels.size(); ++i)
        count += std::abs(Lightness(a.pixels[i]) - Lightness(b.pixels.at(i))) >= 15 ? 1 : 0;
    return count;
}

TEST_P(ConfigWindowPictures, OfSwitchesFitTheWindow) {
    const Bitmap window(config_ / "Config.bmp");
    for (const SwitchDesign& lever : kConfigSwitches) {
        const std::string name(lever.picture);
        for (const std::string state : {"_Off.bmp", "_On.bmp"})
            ExpectNoSeam(window, config_ / "Interface" / (name + state), lever.place);
    }
    for (const std::string& name : kLockableSwitches) {
        const auto* const lever =
            std::find_if(kConfigSwitches.begin(), kConfigSwitches.end(),
                         [&name](const auto& design) { return design.picture == name; });
        ExpectNoSeam(window, config_ / "Interface" / (name + "_Disabled.bmp"), lever->place);
    }
}

TEST_P(ConfigWindowPictures, OfSwitchesTellOnFromOffWithAndWithoutColor) {
    for (const std::string& name : kSwitchNames) {
        const Bitmap off = Interface(name, "Off").Part(kLever);
        const Bitmap on = Interface(name, "On").Part(kLever);
        EXPECT_GE(MeanDifference(off, on), 8) << name;
        EXPECT_GE(LightnessDifferences(off, on), 350) << name;
    }
}

/// The middle of the lever's way, where it stands when locked.
constexpr Rect kLeverMiddle{16, 8, 24, 12};

TEST_P(ConfigWindowPictures, OfLockedSwitchesShowNeitherStateAndNoColor) {
    for (const std::string& name : kLockableSwitches) {
        const Bitmap locked = Interface(name, "Disabled").Part(kLever);
        for (const std::string state : {"Off", "On"})
            EXPECT_GE(LightnessDifferences(locked, Interface(name, state).Part(kLever)), 250)
                << name << ' ' << state;
        EXPECT_LT(MeanChroma(locked.Part(kLeverMiddle)), kGreyChroma) << name;
    }
}

// ---- Lettering ----------------------------------------------------------------------------------

/// Within the first letters of a switch's caption.
constexpr Rect kCaption{64, 5, 36, 18};

double MeanLuminance(const std::vector<std::uint32_t>& pixels) {
    double sum = 0;
    for (const std::uint32_t pixel : pixels) sum += LuminanceOf(pixel);
    return sum / static_cast<double>(pixels.size());
}

/// How well a caption stands out from the bare ground, whatever grain that has: the letters are
/// where `picture` differs most from `ground`.
double CaptionContrast(const Bitmap& picture, const Bitmap& ground) {
    std::vector<std::pair<double, std::uint32_t>> changes;
    for (std::size_t i = 0; i < picture.pixels.size(); ++i) {
        const std::uint32_t pixel = picture.pixels[i];
        changes.emplace_back(std::abs(LuminanceOf(pixel) - LuminanceOf(ground.pixels.at(i))),
                             pixel);
    }
    std::sort(changes.rbegin(), changes.rend());
    std::vector<std::uint32_t> letters;
    for (std::size_t i = 0; i < changes.size() / 20; ++i) letters.push_back(changes[i].second);
    const double ink = MeanLuminance(letters) + 0.05;
    const double floor = MeanLuminance(ground.pixels) + 0.05;
    return std::max(ink, floor) / std::min(ink, floor);
}

TEST_P(ConfigWindowPictures, OfSwitchesHaveCaptionsThatStandOutUnlessLocked) {
    const Bitmap window(config_ / "Config.bmp");
    for (const SwitchDesign& lever : kConfigSwitches) {
        const std::string name(lever.picture);
        const Bitmap ground = window.Part(lever.place).Part(kCaption);
        const auto contrast = [&](const std::string& state) {
            return CaptionContrast(Interface(name, state).Part(kCaption), ground);
        };
        EXPECT_GE(contrast("Off"), 4.5) << name;
        EXPECT_GE(contrast("On"), 4.5) << name;
        if (std::find(kLockableSwitches.begin(), kLockableSwitches.end(), name) ==
            kLockableSwitches.end())
            continue;
        EXPECT_GE(contrast("Disabled"), 2) << name;
        EXPECT_LT(contrast("Disabled"), 0.75 * contrast("Off")) << name;
    }
}

void ExpectReadable(const Bitmap& window, const layout::ConfigHeading& heading, Size letters) {
    const Rect place{heading.middle.x - letters.width / 2, heading.middle.y - letters.height / 2,
                     letters.width, letters.height};
    EXPECT_GE(LetterContrast(window.Part(place)), 4.5) << heading.text;
}

TEST_P(ConfigWindowPictures, HaveHeadingsThatStandOut) {
    const Bitmap window(config_ / "Config.bmp");
    ExpectReadable(window, layout::kConfigTitle, {120, 18});
    for (const layout::ConfigHeading& group : layout::kConfigGroups)
        ExpectReadable(window, group, {26, 14});
    for (const layout::ConfigHeading& head : layout::kConfigHeads)
        ExpectReadable(window, head, {28, 13});
}

INSTANTIATE_TEST_SUITE_P(Every, ConfigWindowPictures, kEverySkin, SkinName);

}  // namespace
}  // namespace quendrel
