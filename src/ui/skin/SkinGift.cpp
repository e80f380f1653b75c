#include "ui/skin/SkinGift.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <map>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Errors.h"
#include "platform/Files.h"
#include "platform/NewFolder.h"
#include "platform/Package.h"
#include "platform/Text.h"
#include "ui/skin/SkinCheck.h"
#include "ui/skin/SkinFiles.h"
#include "ui/skin/SkinFonts.h"

namespace quendrel {

namespace fs = std::filesystem;

namespace {

/// A skin of 24 bits a pixel with its second tree has 42 MiB in 381 files, one of 32 bits 55. The
/// rest is room for what lies beside them.
constexpr std::uint64_t kMostBytes = 128 << 20;
constexpr PackageLimits kGiftLimits{kMostBytes, 4000};

constexpr std::size_t kFaultsSaid = 5;

using Names = std::map<std::string, std::string>;

/// The files of both trees and the fonts' as this system writes them, with slashes, by the same in
/// lower case.
Names MakeNames() {
    Names names;
    const auto add = [&names](std::string name) {
        std::replace(name.begin(), name.end(), '\\', '/');
        name.erase(0, 1);
        names.emplace(LowerCase(name), name);
    };
    for (const auto& [name, size] : AllSkinFiles()) {
        add(name);
        add(std::string(kSecondTree) + name);
    }
    add(std::string(kFontsFile));
    return names;
}

const Names& NamesOfSkin() {
    static const Names names = MakeNames();
    return names;
}

bool IsNameOfSkin(const std::string& name) { return NamesOfSkin().contains(LowerCase(name)); }

/// What its maker says of a skin, and under which terms it is given.
bool IsNote(const std::string& name) {
    const std::string lower = LowerCase(name);
    const std::string ending = fs::path(lower).extension().string();
    if (lower.find('/') != std::string::npos) return false;
    if (!ending.empty() && ending != ".txt" && ending != ".md") return false;
    return lower.starts_with("readme") || lower.starts_with("licen") ||
           lower.starts_with("copying");
}

/// A name that could lead out of the skin's folder, on this system or on another one.
bool LeadsAstray(const std::string& name) {
    const fs::path path(name);
    return name.find('\\') != std::string::npos || OneLine(name) != name || path.is_absolute() ||
           std::find(path.begin(), path.end(), "..") != path.end();
}

/// What systems leave in every folder.
bool IsLitter(const std::string& name) {
    const fs::path path(name);
    return std::any_of(path.begin(), path.end(), [](const fs::path& part) {
        const std::string lower = LowerCase(part.string());
        return lower.starts_with('.') || lower == "__macosx" || lower == "thumbs.db" ||
               lower == "desktop.ini";
    });
}

/// Files of a package: their names, and their index in it.
using Listed = std::vector<std::pair<std::string, std::size_t>>;

/// The files of the skin in a package.
class Gift {
public:
    Gift(std::string path, const PackageLimits& limits)
        : path_(std::move(path)), package_(OpenPackage(path_, limits)) {
        const Listed all = FilesOfUse();
        const std::string top = TopOf(all);
        name_ = top.empty() ? NameOfPackage() : top.substr(0, top.size() - 1);
        RequireName();
        for (const auto& [name, index] : all) {
            if (name.starts_with(top)) Take(name.substr(top.size()), index);
        }
        RequireSize();
    }

    const std::string& name() const { return name_; }

    void WriteTo(const NewFolder& folder) const {
        for (const auto& [lower, file] : files_)
            folder.Write(file.name, package_->Read(file.index));
    }

    /// Whether the skin in a folder is this one.
    bool Equals(const std::string& folder) const {
        const Names& known = NamesOfSkin();
        return std::all_of(known.begin(), known.end(), [&](const auto& name) {
            const std::string path = MachinePath(folder + "/" + name.second);
            const auto file = files_.find(name.first);
            if (file == files_.end()) return !PathExists(path);
            return FileExists(path) && ReadFile(path) == package_->Read(file->second.index);
        });
    }

    [[noreturn]] void Refuse(const std::string& reason) const { throw FileError(path_, reason); }

private:
    struct File {
        std::string name;
        std::size_t index = 0;
    };

    /// All but folders and litter.
    Listed FilesOfUse() const {
        Listed files;
        const std::vector<Packed>& contents = package_->Contents();
        for (std::size_t index = 0; index < contents.size(); ++index) {
            const auto& [raw, kind, length] = contents[index];
            const std::string quoted = '"' + OneLine(raw) + '"';
            if (LeadsAstray(raw)) Refuse("holds " + quoted + ", a name that no skin may hold");
            const std::string name = fs::path(raw).lexically_normal().generic_string();
            if (IsLitter(name)) continue;
            if (kind == Packed::Kind::kLinkOrDevice) {
                Refuse("holds " + quoted + ", which is a link or a device; a skin has files alone");
            }
            if (kind == Packed::Kind::kFile) files.emplace_back(name, index);
        }
        return files;
    }

    /// The folder that the skin is in, with a slash; empty where the package itself is it.
    std::string TopOf(const Listed& files) const {
        std::set<std::string> tops;
        for (const auto& [name, index] : files) {
            const std::size_t below = name.find('/') + 1;
            if (IsNameOfSkin(name)) return {};
            if (below > 0 && IsNameOfSkin(name.substr(below))) tops.insert(name.substr(0, below));
        }
        if (tops.empty()) Refuse("holds no skin, neither at its top nor in a folder there");
        if (tops.size() > 1) Refuse("holds more than one skin; give one at a time");
        return *tops.begin();
    }

    std::string NameOfPackage() const {
        const fs::path path = fs::path(path_ + "/").lexically_normal().parent_path().filename();
        return SameWithoutCase(path.extension().string(), ".zip") && !FolderExists(path_)
                   ? path.stem().string()
                   : path.string();
    }

    void RequireName() const {
        if (!name_.empty() && !IsLitter(name_) && !LeadsAstray(name_)) return;
        Refuse("would be a skin called \"" + OneLine(name_) + "\", which is no name for one");
    }

    void Take(const std::string& name, std::size_t index) {
        const Names& known = NamesOfSkin();
        const std::string lower = LowerCase(name);
        const auto found = known.find(lower);
        if (found == known.end() && !IsNote(name)) return;
        const File file{found == known.end() ? name : found->second, index};
        if (!files_.emplace(lower, file).second) Refuse("holds \"" + name + "\" twice");
    }

    void RequireSize() const {
        std::uint64_t left = kMostBytes;
        for (const auto& [lower, file] : files_) {
            const std::uint64_t length = package_->Contents().at(file.index).length;
            if (length > left) {
                Refuse("is larger than " + std::to_string(kMostBytes >> 20) + " MiB");
            }
            left -= length;
        }
    }

    std::string path_;
    std::unique_ptr<Package> package_;
    std::string name_;
    std::map<std::string, File> files_;
};

/// The first faults, without the folder that the skin has only meanwhile.
std::string Said(std::vector<std::string> faults, const std::string& folder) {
    std::string said;
    for (std::size_t i = 0; i < std::min(faults.size(), kFaultsSaid); ++i) {
        std::string& fault = faults[i];
        const std::size_t at = fault.find(folder + "/");
        if (at != std::string::npos) fault.erase(at, folder.size() + 1);
        said += "\n" + fault;
    }
    if (faults.size() > kFaultsSaid) {
        said += "\nand " + std::to_string(faults.size() - kFaultsSaid) + " more";
    }
    return said;
}

}  // namespace

std::string TakeSkin(const PictureReader& reader, const std::string& path,
                     const std::string& skins) {
    const Gift gift(path, kGiftLimits);
    const std::string place = skins + "/" + gift.name();
    if (PathExists(place)) {
        if (gift.Equals(place)) return gift.name();
        gift.Refuse("another skin is called \"" + gift.name() +
                    "\" already, and is left as it is; give this one another name");
    }
    const NewFolder made(skins, gift.name());
    gift.WriteTo(made);
    const std::vector<std::string> faults = FaultsOfSkin(reader, made.path());
    if (!faults.empty()) gift.Refuse("is no whole skin:" + Said(faults, made.path()));
    made.Appear();
    return gift.name();
}

}  // namespace quendrel
