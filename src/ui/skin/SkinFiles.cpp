#include "ui/skin/SkinFiles.h"

#include "EnumArray.h"
#include "Global.h"
#include "platform/Errors.h"
#include "platform/Files.h"
#include "ui/layout/MainLayout.h"
#include "ui/picture/BitmapHeader.h"

namespace quendrel {

namespace {

/// Where the picture of a state is kept.
constexpr EnumArray<ButtonState, Picture ButtonPictures::*, kButtonStates> kKeptIn{
    {&ButtonPictures::up, &ButtonPictures::disabled, &ButtonPictures::down, &ButtonPictures::over}};

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

constexpr Size SizeOf(const Rect& place) { return {place.width, place.height}; }

std::string Stem(std::string_view window, std::string_view button) {
    std::string stem(1, '\\');
    stem.append(window).append("\\Interface\\").append(button);
    return stem;
}

/// The size in pixels that a picture of the tree has.
Size SizeIn(int density, const SkinPicture& picture) {
    return {picture.size.width * density, picture.size.height * density};
}

bool Fits(const SkinPicture& picture, int density, Size size) {
    const Size wanted = SizeIn(density, picture);
    if (picture.name != kModeSheet.name) return size == wanted;
    return size.width >= wanted.width && size.height >= wanted.height;
}

std::string InPixels(Size size) {
    return std::to_string(size.width) + " x " + std::to_string(size.height) + " pixels";
}

void RequireFit(const std::string& path, const SkinPicture& picture, int density, Size size) {
    if (Fits(picture, density, size)) return;
    throw FileError(path,
                    "has " + InPixels(size) + " instead of " + InPixels(SizeIn(density, picture)));
}

}  // namespace

std::vector<std::pair<Control, ButtonFiles>> MainButtonFiles() {
    std::vector<std::pair<Control, ButtonFiles>> buttons{
        {{Controls::cmdHideBtn},
         {Stem("Game", "Hide"), layout::kHidePictures, SizeOf(layout::kHideButton)}},
        {{Controls::cmdDuelBtn},
         {Stem("Game", "Duel"), layout::kDuelPictures, SizeOf(layout::kDuelButton)}},
        {{Controls::cmdTmrBtn},
         {Stem("Game", "Timer"), layout::kClockPictures, SizeOf(layout::kClockButton)}},
    };
    const auto append = [&buttons](Controls array, const auto& names, StatePictures pictures,
                                   const auto& sizeOf) {
        int index = 0;
        for (const std::string_view name : names) {
            const Size size = sizeOf(static_cast<std::size_t>(index));
            buttons.push_back({{array, index}, {Stem("Game", name), pictures, size}});
            ++index;
        }
    };
    append(Controls::cmdMnuBtn, ButtonNames, layout::kMenuPictures,
           [](std::size_t i) { return SizeOf(layout::kMenuButtons.at(i)); });
    append(Controls::cmdModeBtn, ModeNames, layout::kModePictures,
           [](std::size_t i) { return SizeOf(layout::kModeButtons.at(i)); });
    append(Controls::cmdInput, AnswerNames, layout::kAnswerPictures,
           [](std::size_t) { return layout::kInputButton; });
    append(Controls::cmdColBtn, ColorNames, layout::kColorPictures,
           [](std::size_t i) { return SizeOf(layout::kColorButtons.at(i)); });
    return buttons;
}

ButtonFiles AboutOkFiles() {
    return {Stem("About", "Ok"), layout::kAboutOkPictures, SizeOf(layout::kAboutOk)};
}

ButtonFiles HighOkFiles() {
    return {Stem("High", "Ok"), layout::kHighOkPictures, SizeOf(layout::kHighOk)};
}

ButtonFiles HighDefaultFiles() {
    return {Stem("High", "Default"), layout::kHighDefaultPictures, SizeOf(layout::kHighDefault)};
}

std::string HighModeFile(std::size_t mode) { return Stem("High", ModeNames.at(mode)) + ".bmp"; }

ButtonFiles ConfigButtonFiles(const ButtonDesign& button) {
    return {Stem("Config", button.picture()), layout::kConfigButtonPictures, SizeOf(button.place)};
}

ButtonFiles ConfigSwitchFiles(const SwitchDesign& lever) {
    return {Stem("Config", lever.picture), lever.pictures(), SizeOf(lever.place)};
}

std::vector<std::pair<std::string, Size>> AllSkinFiles() {
    std::vector<std::pair<std::string, Size>> files;
    files.reserve(kPictures.size());
    for (const SkinPicture& picture : kPictures) files.emplace_back(picture.name, picture.size);
    const auto append = [&files](const ButtonFiles& button) {
        for (const StatePicture& picture : button.pictures) {
            files.emplace_back(button.stem + std::string(picture.ending), button.size);
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

std::string SkinTree::PathOf(std::string_view name) const {
    std::string path = root;
    if (density > 1) path += kSecondTree;
    return MachinePath(path.append(name));
}

Picture ReadSkinPicture(const PictureReader& reader, const SkinTree& skin,
                        const SkinPicture& picture) {
    const std::string path = skin.PathOf(picture.name);
    Picture read = reader(path);
    RequireFit(path, picture, skin.density, read.size());
    read.SetDensity(skin.density);
    return read;
}

ButtonPictures ReadButton(const PictureReader& reader, const SkinTree& skin,
                          const ButtonFiles& button) {
    ButtonPictures pictures;
    for (const auto& [state, ending] : button.pictures) {
        pictures.*kKeptIn[state] =
            ReadSkinPicture(reader, skin, {button.stem + std::string(ending), button.size});
    }
    return pictures;
}

bool HasSecondTree(const std::string& root) {
    return PathExists(MachinePath(root + std::string(kSecondTree)));
}

std::string FaultOfSecondTree(const std::string& root) {
    const SkinTree second{root, 2};
    try {
        for (const auto& [name, size] : AllSkinFiles()) {
            const std::string path = second.PathOf(name);
            RequireFit(path, {name, size}, second.density, SizeOfBitmap(path));
        }
        return {};
    } catch (const FileError& error) {
        return error.what();
    }
}

}  // namespace quendrel
