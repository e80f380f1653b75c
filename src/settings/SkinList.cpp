#include "settings/SkinList.h"

#include "Global.h"
#include "platform/Errors.h"
#include "platform/Files.h"
#include "platform/Random.h"

namespace quendrel {

void ListSkins(Global& global) {
    const std::string folder = MachinePath(global.SkinFolder);
    global.SkinNames = ListFolders(folder);
    if (global.SkinNames.empty()) throw FileError(folder, "holds no skin");
}

void PickRandomSkin(Global& global, Random& random) {
    if (!global.Settings.RndSkin) return;
    random.SeedFromClock();
    global.Settings.SkinPtr =
        static_cast<std::int16_t>(random.Draw(static_cast<int>(global.SkinNames.size())));
}

}  // namespace quendrel
