#include "settings/GivenSkin.h"

#include <string_view>

#include "Global.h"
#include "platform/Errors.h"
#include "platform/Files.h"
#include "settings/SkinList.h"
#include "ui/main/MainView.h"
#include "ui/skin/SkinGift.h"

namespace quendrel {

std::optional<std::int16_t> TakeGivenSkin(Global& global, const PictureReader& pictures,
                                          MainView& window, const std::string& path) {
    std::string_view skins = global.SkinFolder;
    skins.remove_suffix(1);
    try {
        return AddSkin(global, TakeSkin(pictures, path, MachinePath(skins)));
    } catch (const FileError& error) {
        window.ShowTrouble(std::string("The skin cannot be taken: ") + error.what());
        return std::nullopt;
    }
}

}  // namespace quendrel
