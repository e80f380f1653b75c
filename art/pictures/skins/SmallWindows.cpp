#include "skins/SmallWindows.h"

#include <array>
#include <string>
#include <string_view>

#include "Modes.h"
#include "kit/Bitmap.h"
#include "skins/Workshop.h"
#include "ui/layout/AboutLayout.h"
#include "ui/layout/ConfigControls.h"
#include "ui/layout/HighLayout.h"

namespace quendrel::art {

namespace {

/// One window and the folder that its pictures go to.
class WindowPictures {
public:
    /// Writes the window and its mask, which have the folder's name.
    WindowPictures(const Craft& craft, Window window, const std::filesystem::path& root,
                   const std::string& name)
        : craft_(craft), bare_(BuildWindow(craft, window)), buttons_(root / name / "Interface") {
        std::filesystem::create_directories(buttons_);
        const Rect area = bare_.canvas.Area();
        WriteBmp(root / name / (name + ".bmp"), Develop(bare_.canvas));
        WriteBmp(root / name / (name + "mask.bmp"),
                 HardMask(bare_.outline, {area.width, area.height}));
    }

    /// Writes what `painter` makes of the window's part `place`.
    template <class Painter>
    void Write(const std::string& name, Rect place, const Painter& painter) const {
        Canvas canvas = bare_.canvas.Cut(place);
        painter(canvas);
        WriteBmp(buttons_ / (name + ".bmp"), Develop(canvas));
    }

    void WriteButton(const std::string& name, const ButtonSet& set) const {
        for (const ButtonState state : set.states) {
            Write(name + "_" + StateName(state), set.button.place,
                  [&](Canvas& canvas) { craft_.PaintKey(canvas, set.button, state); });
        }
    }

private:
    const Craft& craft_;
    BareWindow bare_;
    std::filesystem::path buttons_;
};

void WriteAbout(const Craft& craft, const std::filesystem::path& root) {
    using enum ButtonState;
    const WindowPictures about(craft, Window::kAbout, root, "About");
    about.WriteButton("Ok", {{ButtonKind::kInviting, layout::kAboutOk, "Ok"}, {kUp, kOver, kDown}});
}

void WriteHigh(const Craft& craft, const std::filesystem::path& root) {
    using enum ButtonState;
    const WindowPictures high(craft, Window::kHigh, root, "High");
    high.WriteButton("Ok", {{ButtonKind::kInviting, layout::kHighOk, "Ok"}, {kUp, kOver, kDown}});
    high.WriteButton("Default", {{ButtonKind::kMenu, layout::kHighDefault, "Default"},
                                 {kUp, kDisabled, kOver, kDown}});
    for (std::size_t mode = 0; mode < ModeNames.size(); ++mode) {
        const std::string name(ModeNames[mode]);
        high.Write(name, layout::kHighMode, [&](Canvas& canvas) {
            craft.PaintModeSign(canvas, layout::kHighMode, name, static_cast<int>(mode));
        });
    }
}

Button ButtonOf(const ButtonDesign& button) {
    ButtonKind kind = ButtonKind::kMenu;
    if (button.which == ConfigButton::cmdOk) kind = ButtonKind::kInviting;
    if (button.caption.size() == 1) kind = ButtonKind::kSign;
    return {kind, button.place, std::string(button.caption)};
}

void WriteSwitch(const WindowPictures& config, const Craft& craft, const SwitchDesign& lever) {
    const Button button{ButtonKind::kMenu, lever.place, std::string(lever.caption)};
    constexpr std::array<std::string_view, 3> kNames{"_Off", "_On", "_Disabled"};
    for (const SwitchState state : {SwitchState::kOff, SwitchState::kOn, SwitchState::kDisabled}) {
        if (state == SwitchState::kDisabled && !lever.lockable) continue;
        const std::string_view ending = kNames.at(static_cast<std::size_t>(state));
        config.Write(std::string(lever.picture) + std::string(ending), lever.place,
                     [&](Canvas& canvas) { PaintSwitch(canvas, craft, button, state); });
    }
}

void WriteConfig(const Craft& craft, const std::filesystem::path& root) {
    using enum ButtonState;
    const WindowPictures config(craft, Window::kConfig, root, "Config");
    for (const ButtonDesign& button : kConfigButtons) {
        config.WriteButton(std::string(button.picture()), {ButtonOf(button), {kUp, kOver, kDown}});
    }
    for (const SwitchDesign& lever : kConfigSwitches) WriteSwitch(config, craft, lever);
}

}  // namespace

void WriteSmallWindows(const Craft& craft, const std::filesystem::path& root) {
    WriteAbout(craft, root);
    WriteHigh(craft, root);
    WriteConfig(craft, root);
}

}  // namespace quendrel::art
