// The pictures of the main window.
#include "ui/MainSkin.h"

#include <stdexcept>
#include <string_view>
#include <vector>

#include "Global.h"
#include "platform/Files.h"

namespace quendrel {

namespace {

/// A button, the name of its pictures, and the states that a skin has pictures for.
struct ButtonEntry {
    Control control;
    std::string_view name;
    bool disabled;
    bool down;
    bool over;
};

std::vector<ButtonEntry> ButtonTable() {
    std::vector<ButtonEntry> table{
        {{Controls::cmdHideBtn}, "Hide", false, true, true},
        {{Controls::cmdDuelBtn}, "Duel", true, true, true},
        {{Controls::cmdTmrBtn}, "Timer", true, false, false},
    };
    const auto append = [&table](Controls array, const auto& names, bool over) {
        int index = 0;
        for (const std::string_view name : names) {
            table.push_back({{array, index}, name, true, true, over});
            ++index;
        }
    };
    append(Controls::cmdMnuBtn, ButtonNames, true);
    append(Controls::cmdModeBtn, ModeNames, false);
    append(Controls::cmdInput, AnswerNames, true);
    append(Controls::cmdColBtn, ColorNames, true);
    return table;
}

/// Reads the pictures of one skin, named from its root.
class SkinFolderReader {
public:
    SkinFolderReader(PictureReader& reader, const std::string& root)
        : reader_(reader), root_(root) {}

    Picture Read(const std::string& name) const { return reader_.Read(MachinePath(root_ + name)); }

    ButtonPictures ReadButton(const ButtonEntry& button) const {
        const std::string stem = "\\Game\\Interface\\" + std::string(button.name);
        ButtonPictures pictures;
        pictures.up = Read(stem + "_Up.bmp");
        if (button.disabled) pictures.disabled = Read(stem + "_Disabled.bmp");
        if (button.down) pictures.down = Read(stem + "_Down.bmp");
        if (button.over) pictures.over = Read(stem + "_Over.bmp");
        return pictures;
    }

private:
    PictureReader& reader_;
    const std::string& root_;
};

}  // namespace

std::string SkinRoot(const Global& global) {
    const int skin = global.Settings.SkinPtr;
    const int count = static_cast<int>(global.SkinNames.size());
    if (skin < 1 || skin > count) {
        throw std::out_of_range("there is no skin " + std::to_string(skin) +
                                "; the number of skins is " + std::to_string(count));
    }
    return global.SkinFolder + global.SkinNames[static_cast<std::size_t>(skin - 1)];
}

MainSkin ReadMainSkin(PictureReader& reader, const std::string& root) {
    const SkinFolderReader folder(reader, root);
    MainSkin skin;
    skin.board.picColors = folder.Read("\\Game\\Colors.bmp");
    skin.board.picColorAnim = folder.Read("\\Game\\Coloranim.bmp");
    skin.board.picNumbers = folder.Read("\\Game\\Numbers.bmp");
    skin.board.picDots = folder.Read("\\Game\\Dots.bmp");
    skin.board.picModes = folder.Read("\\Game\\Modes.bmp");
    skin.board.easyBoard = folder.Read("\\Game\\Board.bmp");
    for (const ButtonEntry& button : ButtonTable()) {
        skin.buttons.emplace(button.control, folder.ReadButton(button));
    }
    return skin;
}

}  // namespace quendrel
