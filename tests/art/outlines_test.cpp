// A window keeps the outline of the start when another skin is chosen: every skin's pictures in
// the outline of every other.
#include <filesystem>
#include <string>
#include <vector>

#include "Bitmap.h"
#include "ColorDifference.h"
#include "Skins.h"

namespace quendrel {
namespace {

namespace fs = std::filesystem;

struct WindowFiles {
    fs::path picture;
    fs::path mask;
};

const std::vector<WindowFiles> kWindows{
    {"Game/Board.bmp", "Game/Boardmask.bmp"},
    {"Config/Config.bmp", "Config/Configmask.bmp"},
    {"High/High.bmp", "High/Highmask.bmp"},
    {"About/About.bmp", "About/Aboutmask.bmp"},
};

constexpr int kTile = 4;

/// The body shows along the outline, beside the rim and before anything is let into it.
constexpr int kRim = 3;
constexpr int kEdge = 12;

/// How far from a tile outside its like within may stand, and what looks like it: stone, grain and
/// weave differ by so much from tile to tile.
constexpr int kNear = 80;
constexpr double kAlike = 12;

/// How many pixels lie between each pixel and the nearest one that `mask` has as `wanted`.
std::vector<int> DistanceTo(const Bitmap& mask, std::uint32_t wanted) {
    std::vector<int> distance(mask.pixels.size(), mask.width + mask.height);
    const auto relax = [&](int x, int y, int dx, int dy) {
        if (x + dx < 0 || y + dy < 0 || x + dx >= mask.width || y + dy >= mask.height) return;
        int& here = distance[mask.Index(x, y)];
        here = std::min(here, distance[mask.Index(x + dx, y + dy)] + 1);
    };
    for (std::size_t i = 0; i < mask.pixels.size(); ++i)
        if (mask.pixels[i] == wanted) distance[i] = 0;
    for (int y = 0; y < mask.height; ++y)
        for (int x = 0; x < mask.width; ++x)
            for (const auto& [dx, dy] : {Point{-1, 0}, {-1, -1}, {0, -1}, {1, -1}})
                relax(x, y, dx, dy);
    for (int y = mask.height - 1; y >= 0; --y)
        for (int x = mask.width - 1; x >= 0; --x)
            for (const auto& [dx, dy] : {Point{1, 0}, {1, 1}, {0, 1}, {-1, 1}}) relax(x, y, dx, dy);
    return distance;
}

struct Tile {
    Point at;
    Lab color;
};

/// The tiles all of whose pixels `wanted` accepts, every second pixel each way.
template <class Wanted>
std::vector<Tile> TilesOf(const Bitmap& picture, const Wanted& wanted) {
    std::vector<Tile> tiles;
    for (int y = 0; y + kTile <= picture.height; y += 2) {
        for (int x = 0; x + kTile <= picture.width; x += 2) {
            bool all = true;
            for (int i = 0; all && i < kTile * kTile; ++i)
                all = wanted(x + i % kTile, y + i / kTile);
            if (!all) continue;
            const Bitmap part = picture.Part({x, y, kTile, kTile});
            tiles.push_back({{x, y}, MeanColor(part, [](int, int) { return true; })});
        }
    }
    return tiles;
}

bool HasItsLike(const Tile& tile, const std::vector<Tile>& body) {
    return std::any_of(body.begin(), body.end(), [&tile](const Tile& other) {
        return std::abs(other.at.x - tile.at.x) <= kNear &&
               std::abs(other.at.y - tile.at.y) <= kNear &&
               DeltaE(other.color, tile.color) < kAlike;
    });
}

class InEachOthersOutline : public SkinTest {};

TEST_P(InEachOthersOutline, PicturesGoOnWithTheMaterialOfTheBody) {
    for (const WindowFiles& window : kWindows) {
        const Bitmap picture(skin_ / window.picture);
        const Bitmap own(skin_ / window.mask);
        const std::vector<int> within = DistanceTo(own, kWhite);
        const std::vector<int> beyond = DistanceTo(own, kBlack);
        const std::vector<Tile> body = TilesOf(picture, [&](int x, int y) {
            const int depth = within[picture.Index(x, y)];
            return depth > kRim && depth <= kEdge;
        });
        std::size_t shown = 0;
        for (const std::string& other : kSkins) {
            const Bitmap mask(skin_.parent_path() / other / window.mask);
            const std::vector<Tile> outside = TilesOf(picture, [&](int x, int y) {
                return mask.At(x, y) == kBlack && beyond[picture.Index(x, y)] > 1;
            });
            std::size_t strange = 0;
            for (const Tile& tile : outside) strange += HasItsLike(tile, body) ? 0 : 1;
            EXPECT_LE(strange, outside.size() / 50)
                << window.picture << " in the outline of " << other << ": " << outside.size();
            shown += outside.size();
        }
        EXPECT_GT(shown, 100U) << window.picture;
    }
}

INSTANTIATE_TEST_SUITE_P(Skins, InEachOthersOutline, kEverySkin, SkinName);

}  // namespace
}  // namespace quendrel
