#include "skins/SmallWindows.h"

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Modes.h"
#include "ui/AboutLayout.h"
#include "ui/ConfigLayout.h"
#include "ui/HighLayout.h"

namespace quendrel::art {

namespace {

/// A button's pictures, cut out of the window that it stands in.
void WriteButton(const WindowLook& look, const Canvas& window, const ButtonSet& set,
                 const std::filesystem::path& folder, const std::string& name) {
    for (const ButtonState state : set.states) {
        Canvas canvas = window.Cut(set.button.place);
        look.PaintPushButton(canvas, set.button, state);
        WriteBmp(folder / (name + "_" + StateName(state) + ".bmp"), Develop(canvas));
    }
}

void WriteButtons(const WindowLook& look, const Canvas& window, std::span<const ButtonSet> sets,
                  const std::filesystem::path& folder) {
    for (const ButtonSet& set : sets) WriteButton(look, window, set, folder, set.button.caption);
}

Button ConfigButton(const layout::ConfigPlace& place) {
    ButtonKind kind = ButtonKind::Menu;
    if (place.picture == "Ok") kind = ButtonKind::Inviting;
    if (place.caption.size() == 1) kind = ButtonKind::Sign;
    return {kind, place.place, std::string(place.caption)};
}

/// The switches that a running game locks.
bool IsLockable(const layout::ConfigPlace& place) {
    return place.picture == "GTimer" || place.picture == "MindDuel";
}

void WriteSwitch(const WindowLook& look, const Canvas& window, const layout::ConfigPlace& place,
                 const std::filesystem::path& folder) {
    constexpr std::array<std::string_view, 3> kNames{"_Off.bmp", "_On.bmp", "_Disabled.bmp"};
    for (const SwitchState state : {SwitchState::Off, SwitchState::On, SwitchState::Disabled}) {
        if (state == SwitchState::Disabled && !IsLockable(place)) continue;
        Canvas canvas = window.Cut(place.place);
        look.PaintSwitch(canvas, ConfigButton(place), state);
        const std::string_view ending = kNames.at(static_cast<std::size_t>(state));
        WriteBmp(folder / (std::string(place.picture) + std::string(ending)), Develop(canvas));
    }
}

}  // namespace

void WriteAboutWindow(const WindowLook& look, const std::filesystem::path& root) {
    using enum ButtonState;
    const std::filesystem::path folder = root / "About";
    std::filesystem::create_directories(folder / "Interface");
    Canvas window(WholeOf(layout::kAboutWindow));
    look.PaintAbout(window);
    WriteBmp(folder / "About.bmp", Develop(window));
    WriteBmp(folder / "Aboutmask.bmp", HardMask(look.AboutOutline(), layout::kAboutWindow));
    const std::vector<ButtonSet> sets{
        {{ButtonKind::Inviting, layout::kAboutOk, "Ok"}, {Up, Over, Down}},
    };
    WriteButtons(look, window, sets, folder / "Interface");
}

void WriteHighWindow(const WindowLook& look, const std::filesystem::path& root) {
    using enum ButtonState;
    const std::filesystem::path folder = root / "High";
    std::filesystem::create_directories(folder / "Interface");
    Canvas window(WholeOf(layout::kHighWindow));
    look.PaintHigh(window);
    WriteBmp(folder / "High.bmp", Develop(window));
    WriteBmp(folder / "Highmask.bmp", HardMask(look.HighOutline(), layout::kHighWindow));
    const std::vector<ButtonSet> sets{
        {{ButtonKind::Inviting, layout::kHighOk, "Ok"}, {Up, Over, Down}},
        {{ButtonKind::Menu, layout::kHighDefault, "Default"}, {Up, Disabled, Over, Down}},
    };
    WriteButtons(look, window, sets, folder / "Interface");
    for (std::size_t mode = 0; mode < ModeNames.size(); ++mode) {
        Canvas sign = window.Cut(layout::kHighMode);
        look.PaintModeSign(sign, layout::kHighMode, static_cast<int>(mode));
        WriteBmp(folder / "Interface" / (std::string(ModeNames[mode]) + ".bmp"), Develop(sign));
    }
}

void WriteConfigWindow(const WindowLook& look, const std::filesystem::path& root) {
    using enum ButtonState;
    const std::filesystem::path folder = root / "Config";
    std::filesystem::create_directories(folder / "Interface");
    Canvas window(WholeOf(layout::kConfigWindow));
    look.PaintConfig(window);
    WriteBmp(folder / "Config.bmp", Develop(window));
    WriteBmp(folder / "Configmask.bmp", HardMask(look.ConfigOutline(), layout::kConfigWindow));
    for (const layout::ConfigPlace& place : layout::kConfigButtons) {
        WriteButton(look, window, {ConfigButton(place), {Up, Over, Down}}, folder / "Interface",
                    std::string(place.picture));
    }
    for (const layout::ConfigPlace& place : layout::kConfigSwitches) {
        WriteSwitch(look, window, place, folder / "Interface");
    }
}

}  // namespace quendrel::art
