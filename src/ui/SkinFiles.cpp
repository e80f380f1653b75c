// The files of a skin.
#include "ui/SkinFiles.h"

#include "Global.h"
#include "platform/Errors.h"
#include "platform/Files.h"
#include "ui/AboutLayout.h"
#include "ui/ConfigLayout.h"
#include "ui/HighLayout.h"
#include "ui/MainLayout.h"

namespace quendrel {

namespace {

constexpr StatePicture kUp{"_Up.bmp", &ButtonPictures::up};
constexpr StatePicture kDisabled{"_Disabled.bmp", &ButtonPictures::disabled};
constexpr StatePicture kDown{"_Down.bmp", &ButtonPictures::down};
constexpr StatePicture kOver{"_Over.bmp", &ButtonPictures::over};
/// A switch shows its Up picture when it is off and its Down picture when it is on.
constexpr StatePicture kOff{"_Off.bmp", &ButtonPictures::up};
constexpr StatePicture kOn{"_On.bmp", &ButtonPictures::down};

struct SkinPicture {
    std::string_view name;
    Size size;
};

/// The pictures that are no button's. The mode sheet may be larger than the pieces on it.
constexpr std::string_view kModeSheet = "\\Game\\Modes.bmp";
constexpr std::array<SkinPicture, 13> kPictures{{
    {"\\Game\\Board.bmp", {655, 605}},
    {"\\Game\\Colors.bmp", {528, 27}},
    {"\\Game\\Coloranim.bmp", {440, 297}},
    {"\\Game\\Numbers.bmp", {304, 16}},
    {"\\Game\\Dots.bmp", {44, 11}},
    {kModeSheet, {305, 479}},
    {kBoardMask, {655, 605}},
    {kConfigPicture, layout::kConfigWindow},
    {kConfigMask, layout::kConfigWindow},
    {kHighPicture, layout::kHighWindow},
    {kHighMask, layout::kHighWindow},
    {kAboutPicture, layout::kAboutWindow},
    {kAboutMask, layout::kAboutWindow},
}};

/// How many files a skin has.
constexpr std::size_t kFiles = 190;

constexpr Size SizeOf(const Rect& place) { return {place.width, place.height}; }

std::string Stem(std::string_view window, std::string_view button) {
    std::string stem(1, '\\');
    stem.append(window).append("\\Interface\\").append(button);
    return stem;
}

/// Every file of a skin and its size.
std::vector<std::pair<std::string, Size>> AllFiles() {
    std::vector<std::pair<std::string, Size>> files;
    files.reserve(kFiles);
    for (const SkinPicture& picture : kPictures) files.emplace_back(picture.name, picture.size);
    const auto append = [&files](const ButtonFiles& button) {
        for (const StatePicture& state : button.states) {
            files.emplace_back(button.stem + std::string(state.ending), button.size);
        }
    };
    for (const auto& [control, button] : MainButtonFiles()) append(button);
    for (const ButtonFiles& button : ConfigButtonFiles()) append(button);
    for (const ButtonFiles& button : ConfigSwitchFiles()) append(button);
    for (std::size_t mode = 0; mode < ModeNames.size(); ++mode) {
        files.emplace_back(HighModeFile(mode), SizeOf(layout::kHighMode));
    }
    append(HighOkFiles());
    append(HighDefaultFiles());
    append(AboutOkFiles());
    return files;
}

bool Fits(const std::string& name, const Picture& picture, Size size) {
    if (name == kModeSheet) return picture.width() >= size.width && picture.height() >= size.height;
    return picture.width() == size.width && picture.height() == size.height;
}

std::string InPixels(int width, int height) {
    return std::to_string(width) + " x " + std::to_string(height) + " pixels";
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

std::vector<ButtonFiles> ConfigButtonFiles() {
    std::vector<ButtonFiles> buttons;
    buttons.reserve(layout::kConfigButtons.size());
    for (const layout::ConfigPlace& button : layout::kConfigButtons) {
        buttons.push_back(
            {Stem("Config", button.picture), {kUp, kOver, kDown}, SizeOf(button.place)});
    }
    return buttons;
}

std::vector<ButtonFiles> ConfigSwitchFiles() {
    std::vector<ButtonFiles> switches;
    switches.reserve(layout::kConfigSwitches.size());
    for (const layout::ConfigPlace& button : layout::kConfigSwitches) {
        switches.push_back({Stem("Config", button.picture), {kOff, kOn}, SizeOf(button.place)});
        // A running game locks these.
        if (button.picture == "GTimer" || button.picture == "MindDuel") {
            switches.back().states.push_back(kDisabled);
        }
    }
    return switches;
}

Picture ReadSkinPicture(PictureReader& reader, const std::string& root, std::string_view name) {
    return reader.Read(MachinePath(root + std::string(name)));
}

ButtonPictures ReadButton(PictureReader& reader, const std::string& root,
                          const ButtonFiles& button) {
    ButtonPictures pictures;
    for (const StatePicture& state : button.states) {
        pictures.*state.picture =
            ReadSkinPicture(reader, root, button.stem + std::string(state.ending));
    }
    return pictures;
}

void RequireWholeSkin(PictureReader& reader, const std::string& root) {
    for (const auto& [name, size] : AllFiles()) ReadSkinPicture(reader, root, name);
}

std::vector<std::string> FaultsOfSkin(PictureReader& reader, const std::string& root) {
    std::vector<std::string> faults;
    for (const auto& [name, size] : AllFiles()) {
        const std::string path = MachinePath(root + name);
        try {
            const Picture picture = reader.Read(path);
            if (Fits(name, picture, size)) continue;
            faults.push_back(path + ": has " + InPixels(picture.width(), picture.height()) +
                             " instead of " + InPixels(size.width, size.height));
        } catch (const FileError& error) {
            faults.emplace_back(error.what());
        }
    }
    return faults;
}

}  // namespace quendrel
