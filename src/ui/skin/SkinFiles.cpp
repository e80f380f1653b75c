// The files of a skin.
#include "ui/skin/SkinFiles.h"

#include "Global.h"
#include "platform/Errors.h"
#include "platform/Files.h"
#include "ui/layout/MainLayout.h"

namespace quendrel {

namespace {

constexpr StatePicture kUp{"_Up.bmp", &ButtonPictures::up};
constexpr StatePicture kDisabled{"_Disabled.bmp", &ButtonPictures::disabled};
constexpr StatePicture kDown{"_Down.bmp", &ButtonPictures::down};
constexpr StatePicture kOver{"_Over.bmp", &ButtonPictures::over};
/// A switch shows its Up picture when it is off and its Down picture when it is on.
constexpr StatePicture kOff{"_Off.bmp", &ButtonPictures::up};
constexpr StatePicture kOn{"_On.bmp", &ButtonPictures::down};

/// The pictures that are no button's.
constexpr std::array<SkinPicture, 13> kPictures{{
    kBoardPicture,
    kPegStrip,
    kCoverSheet,
    kNumberStrip,
    kMarkStrip,
    kModeSheet,
    kBoardMask,
    kConfigPicture,
    kConfigMask,
    kHighPicture,
    kHighMask,
    kAboutPicture,
    kAboutMask,
}};

/// How many files a skin has.
constexpr std::size_t kFiles = 190;

constexpr Size SizeOf(const Rect& place) { return {place.width, place.height}; }

std::string Stem(std::string_view window, std::string_view button) {
    std::string stem(1, '\\');
    stem.append(window).append("\\Interface\\").append(button);
    return stem;
}

bool Fits(const SkinPicture& picture, Size size) {
    if (picture.name != kModeSheet.name) return size == picture.size;
    return size.width >= picture.size.width && size.height >= picture.size.height;
}

std::string InPixels(Size size) {
    return std::to_string(size.width) + " x " + std::to_string(size.height) + " pixels";
}

}  // namespace

std::vector<std::pair<Control, ButtonFiles>> MainButtonFiles() {
    std::vector<std::pair<Control, ButtonFiles>> buttons{
        {{Controls::cmdHideBtn},
         {Stem("Game", "Hide"), {kUp, kDown, kOver}, SizeOf(layout::kHideButton)}},
        {{Controls::cmdDuelBtn},
         {Stem("Game", "Duel"), {kUp, kDisabled, kDown, kOver}, SizeOf(layout::kDuelButton)}},
        {{Controls::cmdTmrBtn},
         {Stem("Game", "Timer"), {kUp, kDisabled}, SizeOf(layout::kClockButton)}},
    };
    const auto append = [&buttons](Controls array, const auto& names,
                                   const std::vector<StatePicture>& states, const auto& sizeOf) {
        int index = 0;
        for (const std::string_view name : names) {
            const Size size = sizeOf(static_cast<std::size_t>(index));
            buttons.push_back({{array, index}, {Stem("Game", name), states, size}});
            ++index;
        }
    };
    const std::vector<StatePicture> all{kUp, kDisabled, kDown, kOver};
    append(Controls::cmdMnuBtn, ButtonNames, all,
           [](std::size_t i) { return SizeOf(layout::kMenuButtons.at(i)); });
    append(Controls::cmdModeBtn, ModeNames, {kUp, kDisabled, kDown},
           [](std::size_t i) { return SizeOf(layout::kModeButtons.at(i)); });
    append(Controls::cmdInput, AnswerNames, all, [](std::size_t) { return layout::kInputButton; });
    append(Controls::cmdColBtn, ColorNames, all,
           [](std::size_t i) { return SizeOf(layout::kColorButtons.at(i)); });
    return buttons;
}

ButtonFiles AboutOkFiles() {
    return {Stem("About", "Ok"), {kUp, kOver, kDown}, SizeOf(layout::kAboutOk)};
}

ButtonFiles HighOkFiles() {
    return {Stem("High", "Ok"), {kUp, kOver, kDown}, SizeOf(layout::kHighOk)};
}

ButtonFiles HighDefaultFiles() {
    return {Stem("High", "Default"), {kUp, kDisabled, kOver, kDown}, SizeOf(layout::kHighDefault)};
}

std::string HighModeFile(std::size_t mode) { return Stem("High", ModeNames.at(mode)) + ".bmp"; }

ButtonFiles ConfigButtonFiles(const ButtonDesign& button) {
    return {Stem("Config", button.picture()), {kUp, kOver, kDown}, SizeOf(button.place)};
}

ButtonFiles ConfigSwitchFiles(const SwitchDesign& lever) {
    ButtonFiles files{Stem("Config", lever.picture), {kOff, kOn}, SizeOf(lever.place)};
    if (lever.lockable) files.states.push_back(kDisabled);
    return files;
}

std::vector<std::pair<std::string, Size>> AllSkinFiles() {
    std::vector<std::pair<std::string, Size>> files;
    files.reserve(kFiles);
    for (const SkinPicture& picture : kPictures) files.emplace_back(picture.name, picture.size);
    const auto append = [&files](const ButtonFiles& button) {
        for (const StatePicture& state : button.states) {
            files.emplace_back(button.stem + std::string(state.ending), button.size);
        }
    };
    for (const auto& [control, button] : MainButtonFiles()) append(button);
    for (const ButtonDesign& button : kConfigButtons) append(ConfigButtonFiles(button));
    for (const SwitchDesign& lever : kConfigSwitches) append(ConfigSwitchFiles(lever));
    for (std::size_t mode = 0; mode < ModeNames.size(); ++mode) {
        files.emplace_back(HighModeFile(mode), SizeOf(layout::kHighMode));
    }
    append(HighOkFiles());
    append(HighDefaultFiles());
    append(AboutOkFiles());
    return files;
}

Picture ReadSkinPicture(PictureReader& reader, const std::string& root,
                        const SkinPicture& picture) {
    const std::string path = MachinePath(root + std::string(picture.name));
    Picture read = reader.Read(path);
    if (Fits(picture, read.size())) return read;
    throw FileError(path, "has " + InPixels(read.size()) + " instead of " + InPixels(picture.size));
}

ButtonPictures ReadButton(PictureReader& reader, const std::string& root,
                          const ButtonFiles& button) {
    ButtonPictures pictures;
    for (const StatePicture& state : button.states) {
        pictures.*state.picture =
            ReadSkinPicture(reader, root, {button.stem + std::string(state.ending), button.size});
    }
    return pictures;
}

void RequireWholeSkin(PictureReader& reader, const Global& global, int skin) {
    const std::string root = SkinRoot(global, skin);
    try {
        for (const auto& [name, size] : AllSkinFiles()) ReadSkinPicture(reader, root, {name, size});
    } catch (const FileError& error) {
        const std::string& name = global.SkinNames.at(static_cast<std::size_t>(skin - 1));
        throw FileError("The skin \"" + name + "\" is damaged", error.what());
    }
}

}  // namespace quendrel
