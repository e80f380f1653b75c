#include "settings/GivenSkin.h"

#include <string_view>

#include "Global.h"
#include "platform/Errors.h"
#include "platform/Files.h"
#include "settings/SkinList.h"
#include "ui/main/MainView.h"
#include "ui/skin/SkinGift.h"

namespace quendrel {

namespace {

class Busy {
public:
    explicit Busy(MainView& window) : window_(window) { window_.ShowBusy(true); }
    ~Busy() { window_.ShowBusy(false); }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

private:
    MainView& window_;
};

/// Its name.
std::string TakeSkinInto(std::string_view skinFolder, const PictureReader& pictures,
                         MainView& window, const std::string& path) {
    const Busy busy(window);
    skinFolder.remove_suffix(1);
    return TakeSkin(pictures, path, MachinePath(skinFolder));
}

}  // namespace

std::optional<std::int16_t> TakeGivenSkin(Global& global, const PictureReader& pictures,
                                          MainView& window, const std::string& path) {
    try {
        return AddSkin(global, TakeSkinInto(global.SkinFolder, pictures, window, path));
    } catch (const FileError& error) {
        window.ShowTrouble(std::string("The skin cannot be taken: ") + error.what());
        return std::nullopt;
    }
}

}  // namespace quendrel
