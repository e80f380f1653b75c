// An archive that is given as a skin.
#include <algorithm>
#include <filesystem>
#include <string>

#include "MemoryFiles.h"
#include "Promise.h"
#include "Readers.h"
#include "platform/Errors.h"
#include "platform/Files.h"
#include "platform/Package.h"
#include "platform/Text.h"
#include "ui/skin/SkinGift.h"

namespace quendrel::fuzz {

namespace {

const std::string kGift = "/Downloads/Mine.zip";
const std::string kSkins = "/player/Skin";
constexpr PackageLimits kFuzzLimits{1 << 20, 20};

void LookAtRefusal(const FileError& error) {
    const std::string said = error.what();
    Promise(said.starts_with(kGift + ": ") && said.size() > kGift.size() + 2,
            "words name the archive and say what is wrong with it");
}

/// The files of an archive may say that they are of any length.
void LookAtFile(const Package& package, std::size_t index) {
    const std::uint64_t length = package.Contents()[index].length;
    if (length > kFuzzLimits.bytes) return;
    try {
        Promise(package.Read(index).size() == length, "a file is as long as the archive says");
    } catch (const FileError& error) {
        LookAtRefusal(error);
    }
}

void LookIn() {
    try {
        const auto package = OpenPackage(kGift, kFuzzLimits);
        const std::size_t count = package->Contents().size();
        Promise(count <= kFuzzLimits.things, "no package has more than it may");
        for (std::size_t index = 0; index < count; ++index) LookAtFile(*package, index);
    } catch (const FileError& error) {
        LookAtRefusal(error);
    }
}

/// Of every file, which makes no skin whole.
Picture BlackPicture(const std::string& path) {
    ReadFile(path);
    return {1, 1};
}

void Take() {
    const auto before = Files();
    try {
        Promise(TakeSkin(BlackPicture, kGift, kSkins) == "Theirs", "only what is there is taken");
    } catch (const FileError& error) {
        LookAtRefusal(error);
    }
    Promise(Files() == before, "a skin that is not whole leaves nothing behind");
}

}  // namespace

void Gift(std::string_view bytes) {
    Files()[kGift] = bytes;
    Files()[kSkins + "/Theirs/Game/Board.bmp"] = "x";
    LookIn();
    Take();
}

}  // namespace quendrel::fuzz
