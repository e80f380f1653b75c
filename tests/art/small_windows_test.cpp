// The pictures of the about and highscore windows, and those that are built into the program: the
// splash, the animations and the icons.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <gif_lib.h>
#include <gtest/gtest.h>
#include <png.h>

#include "Bitmap.h"
#include "FinePictures.h"
#include "MadeAgain.h"
#include "Skins.h"
#include "WindowPictures.h"
#include "ui/layout/AboutLayout.h"
#include "ui/layout/HighLayout.h"

namespace quendrel {
namespace {

namespace fs = std::filesystem;

const fs::path kBuiltin = QUENDREL_BUILTIN_FOLDER;

constexpr std::uint32_t kYellow = 0xffff00;

/// The floor of the niches that the animations stand in.
constexpr std::uint32_t kNicheFloor = 0x191512;

// ---- About --------------------------------------------------------------------------------------

class AboutWindowPictures : public SkinTest {
protected:
    const fs::path about_ = skin_ / "About";
};

TEST_P(AboutWindowPictures, AreTheListedOnesInTheirSizes) {
    ExpectSizes(about_, {{"About.bmp", {464, 316}},
                         {"Aboutmask.bmp", {464, 316}},
                         {"Interface/Ok_Up.bmp", {70, 40}},
                         {"Interface/Ok_Over.bmp", {70, 40}},
                         {"Interface/Ok_Down.bmp", {70, 40}}});
}

TEST_P(AboutWindowPictures, HaveAHardMaskWithADarkRim) {
    ExpectMaskAndRim(Bitmap(about_ / "Aboutmask.bmp"), Bitmap(about_ / "About.bmp"));
}

TEST_P(AboutWindowPictures, KeepEveryControlWithinTheOutline) {
    const Bitmap mask(about_ / "Aboutmask.bmp");
    for (const Rect& place :
         {layout::kAboutOk, layout::kAboutEmail, layout::kAboutHome, layout::kAboutTorch})
        ExpectKept(mask, place, 10);
}

TEST_P(AboutWindowPictures, GiveEveryAnimationAnEvenFloor) {
    for (const int pixels : kPixelsAUnit) {
        const Bitmap window(InSize(skin_, pixels) / "About/About.bmp");
        for (const Rect& place : {layout::kAboutEmail, layout::kAboutHome, layout::kAboutTorch})
            for (const std::uint32_t pixel : window.Part(Times(place, pixels)).pixels)
                ASSERT_EQ(pixel, kNicheFloor) << pixels;
    }
}

TEST_P(AboutWindowPictures, OfTheButtonFitTheWindowAndDiffer) {
    const Bitmap window(about_ / "About.bmp");
    for (const std::string state : {"Up", "Over", "Down"})
        ExpectNoSeam(window, about_ / "Interface" / ("Ok_" + state + ".bmp"), layout::kAboutOk);
    const Bitmap up(about_ / "Interface/Ok_Up.bmp");
    EXPECT_GT(Differences(up, Bitmap(about_ / "Interface/Ok_Over.bmp")), 700);
    EXPECT_GT(Differences(up, Bitmap(about_ / "Interface/Ok_Down.bmp")), 700);
}

TEST_P(AboutWindowPictures, HaveTextsThatStandOut) {
    const Bitmap window(about_ / "About.bmp");
    for (const Rect& text : {Rect{182, 130, 220, 20}, Rect{214, 154, 156, 20},
                             Rect{176, 264, 40, 16}, Rect{268, 264, 60, 16}})
        EXPECT_GE(LetterContrast(window.Part(text)), 4.5) << text.left << ", " << text.top;
}

// ---- Highscores ---------------------------------------------------------------------------------

class HighWindowPictures : public SkinTest {
protected:
    const fs::path high_ = skin_ / "High";
};

TEST_P(HighWindowPictures, AreTheListedOnesInTheirSizes) {
    ExpectSizes(high_, {{"High.bmp", {460, 448}},
                        {"Highmask.bmp", {460, 448}},
                        {"Interface/Easy.bmp", {160, 28}},
                        {"Interface/Medium.bmp", {160, 28}},
                        {"Interface/Hard.bmp", {160, 28}},
                        {"Interface/Ok_Up.bmp", {92, 34}},
                        {"Interface/Ok_Over.bmp", {92, 34}},
                        {"Interface/Ok_Down.bmp", {92, 34}},
                        {"Interface/Default_Up.bmp", {92, 34}},
                        {"Interface/Default_Disabled.bmp", {92, 34}},
                        {"Interface/Default_Over.bmp", {92, 34}},
                        {"Interface/Default_Down.bmp", {92, 34}}});
}

TEST_P(HighWindowPictures, HaveAHardMaskWithADarkRim) {
    ExpectMaskAndRim(Bitmap(high_ / "Highmask.bmp"), Bitmap(high_ / "High.bmp"));
}

TEST_P(HighWindowPictures, KeepEveryControlWithinTheOutline) {
    const Bitmap mask(high_ / "Highmask.bmp");
    for (const Rect& place : {layout::kHighMode, layout::kHighDefault, layout::kHighOk})
        ExpectKept(mask, place, 8);
    for (int entry = 1; entry <= 10; ++entry)
        for (const Rect& place : {layout::HighRank(entry), layout::HighName(entry),
                                  layout::HighRow(entry), layout::HighTime(entry)})
            ExpectKept(mask, place, 10);
}

TEST_P(HighWindowPictures, GiveTheLiveTextSevenfoldContrastAtEveryPixel) {
    const Bitmap window(high_ / "High.bmp");
    for (int entry = 1; entry <= 10; ++entry)
        for (const Rect& place :
             {layout::HighName(entry), layout::HighRow(entry), layout::HighTime(entry)})
            for (const std::uint32_t pixel : window.Part(place).pixels)
                ASSERT_GE(Contrast(pixel, layout::kHighTextColor), 7) << entry;
    EXPECT_GE(Contrast(layout::kNameEntryGround, layout::kNameEntryInk), 7);
}

TEST_P(HighWindowPictures, EngraveAnotherNumberForEveryRank) {
    const Bitmap window(high_ / "High.bmp");
    for (int entry = 1; entry <= 10; ++entry) {
        for (int other = entry + 1; other <= 10; ++other) {
            const Bitmap a = window.Part(layout::HighRank(entry)).Part({8, 3, 28, 16});
            const Bitmap b = window.Part(layout::HighRank(other)).Part({8, 3, 28, 16});
            EXPECT_GT(LargestStep(a, b), 60) << entry << " and " << other;
        }
    }
}

TEST_P(HighWindowPictures, OfTheButtonsFitTheWindowAndDiffer) {
    const Bitmap window(high_ / "High.bmp");
    const fs::path buttons = high_ / "Interface";
    for (const std::string state : {"Up", "Over", "Down"}) {
        ExpectNoSeam(window, buttons / ("Ok_" + state + ".bmp"), layout::kHighOk);
        ExpectNoSeam(window, buttons / ("Default_" + state + ".bmp"), layout::kHighDefault);
    }
    ExpectNoSeam(window, buttons / "Default_Disabled.bmp", layout::kHighDefault);
    const Bitmap up(buttons / "Default_Up.bmp");
    for (const std::string state : {"Over", "Down", "Disabled"})
        EXPECT_GT(Differences(up, Bitmap(buttons / ("Default_" + state + ".bmp"))), 390) << state;
}

TEST_P(HighWindowPictures, OfTheModesFitTheWindowAndDiffer) {
    const Bitmap window(high_ / "High.bmp");
    const fs::path signs = high_ / "Interface";
    for (const std::string mode : {"Easy", "Medium", "Hard"})
        ExpectNoSeam(window, signs / (mode + ".bmp"), layout::kHighMode);
    const Bitmap easy(signs / "Easy.bmp");
    const Bitmap medium(signs / "Medium.bmp");
    const Bitmap hard(signs / "Hard.bmp");
    EXPECT_GT(Differences(easy, medium), 500);
    EXPECT_GT(Differences(easy, hard), 500);
    EXPECT_GT(Differences(medium, hard), 500);
}

INSTANTIATE_TEST_SUITE_P(Every, AboutWindowPictures, kEverySkin, SkinName);
INSTANTIATE_TEST_SUITE_P(Every, HighWindowPictures, kEverySkin, SkinName);

// ---- Splash and icons ---------------------------------------------------------------------------

/// The pixels of a PNG file, four bytes each: red, green, blue, alpha.
struct Png {
    explicit Png(const fs::path& path) {
        png_image image{};
        image.version = PNG_IMAGE_VERSION;
        if (png_image_begin_read_from_file(&image, path.c_str()) == 0)
            throw std::runtime_error("cannot read " + path.string());
        width = static_cast<int>(image.width);
        height = static_cast<int>(image.height);
        hasAlpha = (image.format & PNG_FORMAT_FLAG_ALPHA) != 0;
        image.format = PNG_FORMAT_RGBA;
        bytes.resize(PNG_IMAGE_SIZE(image));
        if (png_image_finish_read(&image, nullptr, bytes.data(), 0, nullptr) == 0)
            throw std::runtime_error("cannot read " + path.string());
    }

    std::uint32_t Channel(int x, int y, int channel) const {
        const int index = (y * width + x) * 4 + channel;
        return bytes.at(static_cast<std::size_t>(index));
    }
    std::uint32_t Color(int x, int y) const {
        return Channel(x, y, 0) << 16 | Channel(x, y, 1) << 8 | Channel(x, y, 2);
    }
    std::uint32_t Alpha(int x, int y) const { return Channel(x, y, 3); }

    int width = 0;
    int height = 0;
    bool hasAlpha = false;
    std::vector<png_byte> bytes;
};

/// Black where the splash is kept, white where it is yellow.
Bitmap SplashMask(const Png& splash) {
    Bitmap mask(Size{splash.width, splash.height});
    for (int y = 0; y < splash.height; ++y)
        for (int x = 0; x < splash.width; ++x)
            mask.At(x, y) = splash.Color(x, y) == kYellow ? kWhite : kBlack;
    return mask;
}

/// Turns the white pixels that are joined to the picture's border black.
void FillFromBorder(Bitmap& mask) {
    std::vector<Point> open;
    for (int x = 0; x < mask.width; ++x) open.insert(open.end(), {{x, 0}, {x, mask.height - 1}});
    for (int y = 0; y < mask.height; ++y) open.insert(open.end(), {{0, y}, {mask.width - 1, y}});
    while (!open.empty()) {
        const Point at = open.back();
        open.pop_back();
        if (at.x < 0 || at.y < 0 || at.x >= mask.width || at.y >= mask.height) continue;
        if (mask.At(at.x, at.y) != kWhite) continue;
        mask.At(at.x, at.y) = kBlack;
        open.insert(open.end(),
                    {{at.x - 1, at.y}, {at.x + 1, at.y}, {at.x, at.y - 1}, {at.x, at.y + 1}});
    }
}

TEST(Splash, StandsOnPureYellowThatIsNowhereWithinIt) {
    for (const int pixels : kPixelsAUnit) {
        const Png splash(InSize(kBuiltin, pixels) / "splash.png");
        EXPECT_EQ(splash.width, 460 * pixels);
        EXPECT_EQ(splash.height, 300 * pixels);
        EXPECT_FALSE(splash.hasAlpha);
        Bitmap mask = SplashMask(splash);
        for (const int x : {0, splash.width - 1})
            for (const int y : {0, splash.height - 1}) EXPECT_EQ(mask.At(x, y), kWhite);
        EXPECT_EQ(mask.At(splash.width / 2, splash.height / 2), kBlack);
        FillFromBorder(mask);
        EXPECT_EQ(std::count(mask.pixels.begin(), mask.pixels.end(), kWhite), 0) << pixels;
    }
}

TEST(Splash, HasADarkRimSoThatItsHardEdgeLooksClean) {
    for (const int pixels : kPixelsAUnit) {
        const Png splash(InSize(kBuiltin, pixels) / "splash.png");
        const Bitmap mask = SplashMask(splash);
        Bitmap picture = mask;
        for (int y = 0; y < splash.height; ++y)
            for (int x = 0; x < splash.width; ++x) picture.At(x, y) = splash.Color(x, y);
        ExpectDarkRim(mask, picture);
    }
}

TEST(Splash, HasAMaskThatIsWhiteWhereItIsYellow) {
    for (const int pixels : kPixelsAUnit) {
        const Bitmap expected = SplashMask(Png(InSize(kBuiltin, pixels) / "splash.png"));
        const Png mask(InSize(kBuiltin, pixels) / "splash-mask.png");
        ASSERT_EQ(mask.width, expected.width);
        ASSERT_EQ(mask.height, expected.height);
        int others = 0;
        for (int y = 0; y < mask.height; ++y)
            for (int x = 0; x < mask.width; ++x) others += mask.Color(x, y) != expected.At(x, y);
        EXPECT_EQ(others, 0) << pixels;
    }
}

TEST(Icons, AreClearInTheCornersAndSolidInTheMiddle) {
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
        const Png icon(kBuiltin / ("icon-" + std::to_string(size) + ".png"));
        EXPECT_EQ(icon.width, size);
        EXPECT_EQ(icon.height, size);
        EXPECT_TRUE(icon.hasAlpha) << size;
        for (const Point corner :
             {Point{0, 0}, Point{size - 1, 0}, Point{0, size - 1}, Point{size - 1, size - 1}})
            EXPECT_EQ(icon.Alpha(corner.x, corner.y), 0U) << size;
        EXPECT_EQ(icon.Alpha(size / 2, size / 2), 255U) << size;
    }
}

TEST(Icons, ShowARedAYellowAndABluePegInEverySize) {
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
        const Png icon(kBuiltin / ("icon-" + std::to_string(size) + ".png"));
        const int near = size * 35 / 100;
        const int far = size * 70 / 100;
        const auto channels = [&icon](int x, int y) {
            return std::array<std::uint32_t, 3>{icon.Channel(x, y, 0), icon.Channel(x, y, 1),
                                                icon.Channel(x, y, 2)};
        };
        const auto red = channels(near, near);
        EXPECT_GT(red[0], 2 * std::max(red[1], red[2])) << size;
        const auto yellow = channels(far, near);
        EXPECT_GT(std::min(yellow[0], yellow[1]), 2 * yellow[2]) << size;
        const auto blue = channels(near, far);
        EXPECT_GT(blue[2] * 2, 3 * std::max(blue[0], blue[1])) << size;
    }
}

// ---- Animations ---------------------------------------------------------------------------------

/// A GIF file as it is seen on the floor of its niche.
struct Gif {
    explicit Gif(const fs::path& path) {
        int error = 0;
        GifFileType* const file = DGifOpenFileName(path.c_str(), &error);
        if (file == nullptr || DGifSlurp(file) != GIF_OK)
            throw std::runtime_error("cannot read " + path.string());
        size = {file->SWidth, file->SHeight};
        for (int i = 0; i < file->ImageCount; ++i) Add(*file, i);
        DGifCloseFile(file, nullptr);
    }

    void Add(GifFileType& file, int index) {
        const SavedImage& image = file.SavedImages[index];
        EXPECT_EQ(image.ImageDesc.Left, 0);
        EXPECT_EQ(image.ImageDesc.Top, 0);
        EXPECT_EQ(image.ImageDesc.Width, size.width);
        EXPECT_EQ(image.ImageDesc.Height, size.height);
        GraphicsControlBlock control{};
        EXPECT_EQ(DGifSavedExtensionToGCB(&file, index, &control), GIF_OK);
        EXPECT_EQ(control.DisposalMode, DISPOSE_BACKGROUND);
        delays.push_back(control.DelayTime);
        for (int i = 0; i < image.ExtensionBlockCount; ++i) {
            const ExtensionBlock& block = image.ExtensionBlocks[i];
            const std::string text(block.Bytes, block.Bytes + block.ByteCount);
            loops = loops || text == "NETSCAPE2.0";
            endless = endless || text == std::string("\1\0\0", 3);
        }
        std::vector<std::uint32_t> frame;
        for (int i = 0; i < size.width * size.height; ++i) {
            const int entry = image.RasterBits[i];
            const GifColorType color = file.SColorMap->Colors[entry];
            frame.push_back(
                entry == control.TransparentColor
                    ? kNicheFloor
                    : static_cast<std::uint32_t>(color.Red << 16 | color.Green << 8 | color.Blue));
        }
        frames.push_back(std::move(frame));
    }

    Size size;
    bool loops = false;
    bool endless = false;
    std::vector<int> delays;
    std::vector<std::vector<std::uint32_t>> frames;
};

/// The mean step in a channel from one frame to another.
double Movement(const std::vector<std::uint32_t>& a, const std::vector<std::uint32_t>& b) {
    double sum = 0;
    for (std::size_t i = 0; i < a.size(); ++i)
        for (const int shift : {0, 8, 16})
            sum += std::abs(static_cast<int>(a[i] >> shift & 255) -
                            static_cast<int>(b.at(i) >> shift & 255));
    return sum / (3.0 * static_cast<double>(a.size()));
}

const std::vector<std::pair<std::string, Size>> kAnimations{
    {"agifEmail.gif", {72, 60}},     {"agifHome.gif", {72, 60}},
    {"agifTorch.gif", {52, 168}},    {"2x/agifEmail.gif", {144, 120}},
    {"2x/agifHome.gif", {144, 120}}, {"2x/agifTorch.gif", {104, 336}}};

TEST(Animations, HaveTheSizesOfTheirPlacesAndLoopForEver) {
    for (const auto& [name, size] : kAnimations) {
        const Gif gif(kBuiltin / name);
        EXPECT_EQ(gif.size, size) << name;
        EXPECT_TRUE(gif.loops && gif.endless) << name;
        EXPECT_GE(gif.frames.size(), 24U) << name;
    }
    EXPECT_EQ((Size{layout::kAboutEmail.width, layout::kAboutEmail.height}), (Size{72, 60}));
    EXPECT_EQ((Size{layout::kAboutHome.width, layout::kAboutHome.height}), (Size{72, 60}));
    EXPECT_EQ((Size{layout::kAboutTorch.width, layout::kAboutTorch.height}), (Size{52, 168}));
}

TEST(Animations, EndWithoutASeamInTheFloorOfTheirNiche) {
    for (const auto& [name, size] : kAnimations) {
        const Gif gif(kBuiltin / name);
        for (const auto& frame : gif.frames) {
            for (int i = 0; i < size.width * size.height; ++i) {
                const int x = i % size.width;
                const int y = i / size.width;
                if (x > 0 && y > 0 && x < size.width - 1 && y < size.height - 1) continue;
                const std::uint32_t pixel = frame[static_cast<std::size_t>(i)];
                for (const int shift : {0, 8, 16})
                    ASSERT_LE(std::abs(static_cast<int>(pixel >> shift & 255) -
                                       static_cast<int>(kNicheFloor >> shift & 255)),
                              6)
                        << name << ' ' << x << ", " << y;
            }
        }
    }
}

TEST(Animations, LeadFromTheLastFrameToTheFirstAsSmoothlyAsBetweenAnyTwo) {
    for (const auto& [name, size] : kAnimations) {
        const Gif gif(kBuiltin / name);
        double largest = 0;
        for (std::size_t i = 1; i < gif.frames.size(); ++i) {
            const double step = Movement(gif.frames[i - 1], gif.frames[i]);
            EXPECT_GT(step, 0) << name << " frame " << i;
            largest = std::max(largest, step);
        }
        EXPECT_LE(Movement(gif.frames.back(), gif.frames.front()), largest) << name;
    }
}

TEST(Animations, OfTheTorchAndTheHouseRunEvenlyAtSixteenFramesASecondOrMore) {
    for (const std::string name : {"agifTorch.gif", "agifHome.gif"}) {
        const Gif gif(kBuiltin / name);
        for (const int delay : gif.delays) {
            EXPECT_EQ(delay, gif.delays.front()) << name;
            EXPECT_LE(delay, 6) << name;
        }
    }
}

TEST(Animations, RunInBothSizesAtTheSamePace) {
    for (const std::string name : {"agifEmail.gif", "agifHome.gif", "agifTorch.gif"})
        EXPECT_EQ(Gif(InSize(kBuiltin, 2) / name).delays, Gif(kBuiltin / name).delays) << name;
}

TEST(Animations, OfTheTorchBurnOnlyAboveItsHandle) {
    const Gif gif(kBuiltin / "agifTorch.gif");
    const auto part = [&gif](std::size_t frame, std::ptrdiff_t from, std::ptrdiff_t to) {
        const auto start = gif.frames[frame].begin();
        return std::vector<std::uint32_t>(start + from * 52, start + to * 52);
    };
    for (std::size_t i = 1; i < gif.frames.size(); ++i) {
        EXPECT_GT(Movement(part(i - 1, 20, 90), part(i, 20, 90)), 2) << i;
        EXPECT_EQ(Movement(part(i - 1, 155, 168), part(i, 155, 168)), 0) << i;
    }
}

TEST(BuiltinPictures, ComeOutTheSameBitForBitWhenMadeAgain) {
    ExpectTheSameWhenMadeAgain(kBuiltin, 19, QUENDREL_BUILTIN_MAKER,
                               "\"%/builtin\" 16 22 24 32 48 64 128 256 512");
}

}  // namespace
}  // namespace quendrel
