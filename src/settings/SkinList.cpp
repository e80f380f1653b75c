#include "settings/SkinList.h"

#include <algorithm>

#include "Global.h"
#include "platform/Errors.h"
#include "platform/Files.h"
#include "platform/Random.h"
#include "platform/Text.h"

namespace quendrel {

void ListSkins(Global& global) {
    const std::string folder = MachinePath(global.SkinFolder);
    global.SkinNames = ListFolders(folder);
    if (global.SkinNames.empty()) throw FileError(folder, "holds no skin");
}

const std::string& NameOfSkin(const Global& global, std::int16_t skin) {
    return global.SkinNames.at(static_cast<std::size_t>(skin - 1));
}

std::int16_t NumberOfSkin(const Global& global, const std::string& name) {
    const auto found = std::find(global.SkinNames.begin(), global.SkinNames.end(), name);
    return static_cast<std::int16_t>(found - global.SkinNames.begin() + 1);
}

std::int16_t AddSkin(Global& global, const std::string& name) {
    std::vector<std::string>& names = global.SkinNames;
    if (std::find(names.begin(), names.end(), name) == names.end()) {
        names.insert(std::upper_bound(names.begin(), names.end(), name, ComesBefore), name);
        const std::int16_t added = NumberOfSkin(global, name);
        std::int16_t& inUse = global.Settings.SkinPtr;
        std::optional<std::int16_t>& stored = global.StoredSkinPtr;
        if (inUse >= added) ++inUse;
        if (stored && *stored >= added) ++*stored;
    }
    return NumberOfSkin(global, name);
}

void ChooseSkin(Global& global, std::int16_t skin) {
    if (skin == global.Settings.SkinPtr) global.StoredSkinPtr.reset();
    global.Settings.SkinPtr = skin;
}

void PickRandomSkin(Global& global, Random& random) {
    if (!global.Settings.RndSkin) return;
    random.SeedFromClock();
    global.Settings.SkinPtr =
        static_cast<std::int16_t>(random.Draw(static_cast<int>(global.SkinNames.size())));
}

}  // namespace quendrel
