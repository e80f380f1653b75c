// A skin's folder: one of the game's own, some of whose pictures are missing, of another size or
// painted over. The input is a row of such changes, each of nine bytes.
#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "Global.h"
#include "MemoryFiles.h"
#include "Promise.h"
#include "Readers.h"
#include "platform/Errors.h"
#include "platform/Text.h"
#include "ui/picture/PictureFile.h"
#include "ui/skin/MainSkin.h"
#include "ui/skin/SkinCheck.h"
#include "ui/skin/SkinFiles.h"

namespace quendrel::fuzz {

namespace {

const std::string kSkinRoot = "/Skin/Mine";

using Pictures = std::map<std::string, Picture>;

/// The pictures of the skin as it was made, by their paths.
Pictures ReadPictures() {
    Pictures pictures;
    for (const auto& [name, size] : AllSkinFiles()) {
        std::string slashed = name;
        std::replace(slashed.begin(), slashed.end(), '\\', '/');
        std::ifstream file(QUENDREL_WHOLE_SKIN + slashed, std::ios::binary);
        if (!file) throw std::runtime_error("there is no " QUENDREL_WHOLE_SKIN + slashed);
        const std::string path = kSkinRoot + slashed;
        Files()[path].assign(std::istreambuf_iterator<char>(file), {});
        pictures.emplace(path, ReadPictureFile(path));
    }
    RemoveAllFiles();
    return pictures;
}

const Pictures& WholeSkin() {
    static const Pictures pictures = ReadPictures();
    return pictures;
}

/// What differs from the whole skin, by its path; nothing for a file that is not there.
using Changes = std::map<std::string, std::optional<Picture>>;

constexpr std::size_t kChangeLength = 9;

void PaintOver(Picture& picture, Rect place, Pixel pixel) {
    for (int y = place.top; y < std::min(place.bottom(), picture.height()); ++y) {
        for (int x = place.left; x < std::min(place.right(), picture.width()); ++x) {
            picture.Set(x, y, pixel);
        }
    }
}

void AddChange(Changes& changes, std::string_view bytes) {
    const auto byte = [bytes](std::size_t at) { return static_cast<unsigned char>(bytes[at]); };
    const Pictures& whole = WholeSkin();
    const auto& [path, picture] =
        *std::next(whole.begin(), static_cast<std::ptrdiff_t>(byte(0) % whole.size()));
    const auto pixel = static_cast<Pixel>(byte(6) << 16 | byte(7) << 8 | byte(8));
    std::optional<Picture>& changed = changes.try_emplace(path, picture).first->second;
    // Of large pictures, places all over.
    const int step = std::max(1, std::max(picture.width(), picture.height()) / 256);
    switch (byte(1) % 4) {
        case 0:
            changed.reset();
            break;
        case 1:
            changed = Picture(byte(2) * step, byte(3) * step, pixel);
            break;
        default:
            if (!changed) break;
            PaintOver(*changed, {byte(2) * step, byte(3) * step, byte(4) * step, byte(5) * step},
                      pixel);
    }
}

Changes ChangesIn(std::string_view bytes) {
    Changes changes;
    for (; bytes.size() >= kChangeLength; bytes.remove_prefix(kChangeLength)) {
        AddChange(changes, bytes.substr(0, kChangeLength));
    }
    return changes;
}

/// The pictures with their changes.
class ChangedSkin {
public:
    explicit ChangedSkin(const Changes& changes) : changes_(changes) {
        for (const auto& [path, picture] : WholeSkin()) {
            if (!IsMissing(path)) Files()[path] = "is read as a picture";
        }
    }

    Picture Read(const std::string& path) const {
        if (IsMissing(path)) throw FileError(path, "is not there");
        const auto change = changes_.find(path);
        return change == changes_.end() ? WholeSkin().at(path) : *change->second;
    }

private:
    bool IsMissing(const std::string& path) const {
        const auto change = changes_.find(path);
        return change != changes_.end() && !change->second;
    }

    const Changes& changes_;
};

bool IsNamed(const std::vector<std::string>& faults, const std::string& path) {
    return std::any_of(faults.begin(), faults.end(), [&path](const std::string& fault) {
        return fault.starts_with(path + ": ");
    });
}

/// Whether the game can be played with the skin.
bool IsPlayable(const PictureReader& reader) {
    Global global;
    global.SkinFolder = "/Skin/";
    global.SkinNames = {"Mine"};
    try {
        ReadWholeSkin(reader, global, 1, 1);
        return true;
    } catch (const FileError& error) {
        const std::string said = error.what();
        Promise(said.starts_with("The skin \"Mine\" is damaged: " + kSkinRoot + "/"),
                "words name the skin and a file of it");
        return false;
    }
}

/// The sheet of the modes may be larger.
bool IsOfAnotherSize(const std::string& path, const Picture& changed) {
    const Size whole = WholeSkin().at(path).size();
    if (!path.ends_with("/Modes.bmp")) return changed.size() != whole;
    return changed.width() < kModeSheet.size.width || changed.height() < kModeSheet.size.height;
}

}  // namespace

void Skin(std::string_view bytes) {
    const Changes changes = ChangesIn(bytes);
    const ChangedSkin skin(changes);
    const PictureReader reader = [&skin](const std::string& path) { return skin.Read(path); };
    const std::vector<std::string> faults = FaultsOfSkin(reader, kSkinRoot);
    Promise(!changes.empty() || faults.empty(), "a whole skin has no faults");
    for (const std::string& fault : faults) {
        Promise(fault.starts_with(kSkinRoot + "/") && OneLine(fault) == fault,
                "a fault is one line that names a file of the skin");
    }
    bool isDamaged = false;
    for (const auto& [path, changed] : changes) {
        if (changed && !IsOfAnotherSize(path, *changed)) continue;
        isDamaged = true;
        Promise(IsNamed(faults, path), "a picture that is missing or of another size is named");
    }
    Promise(IsPlayable(reader) != isDamaged, "the game is played with whole skins alone");
}

}  // namespace quendrel::fuzz
