#include "skins/SmallWindows.h"

#include <string>
#include <utility>

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
    WindowPictures(const Craft& craft, Window window, std::filesystem::path root,
                   const std::string& name)
        : craft_(craft), bare_(BuildWindow(craft, window)), root_(std::move(root)), folder_(name) {
        const Rect area = bare_.canvas.Area();
        WriteBmp(root_, folder_ / (name + ".bmp"), Develop(bare_.canvas));
        WriteBmp(root_, folder_ / (name + "mask.bmp"),
                 HardMask(bare_.outline, {area.width, area.height}));
    }

    /// Writes what `painter` makes of the window's part `place`.
    template <class Painter>
    void Write(const std::string& file, Rect place, const Painter& painter) const {
        Canvas canvas = bare_.canvas.Cut(place);
        painter(canvas);
        WriteBmp(root_, folder_ / "Interface" / file, Develop(canvas));
    }

    void WriteButton(const std::string& name, const ButtonSet& set) const {
        for (const StatePicture& picture : set.pictures) {
            Write(name + std::string(picture.ending), set.button.place,
                  [&](Canvas& canvas) { craft_.PaintKey(canvas, set.button, picture.state); });
        }
    }

private:
    const Craft& craft_;
    BareWindow bare_;
    std::filesystem::path root_;
    std::filesystem::path folder_;
};

void WriteAbout(const Craft& craft, const std::filesystem::path& root) {
    const WindowPictures about(craft, Window::kAbout, root, "About");
    about.WriteButton("Ok",
                      {{ButtonKind::kInviting, layout::kAboutOk, "Ok"}, layout::kAboutOkPictures});
}

void WriteHigh(const Craft& craft, const std::filesystem::path& root) {
    const WindowPictures high(craft, Window::kHigh, root, "High");
    high.WriteButton("Ok",
                     {{ButtonKind::kInviting, layout::kHighOk, "Ok"}, layout::kHighOkPictures});
    high.WriteButton("Default", {{ButtonKind::kMenu, layout::kHighDefault, "Default"},
                                 layout::kHighDefaultPictures});
    for (std::size_t mode = 0; mode < ModeNames.size(); ++mode) {
        const std::string name(ModeNames[mode]);
        high.Write(name + ".bmp", layout::kHighMode, [&](Canvas& canvas) {
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

SwitchState SwitchStateOf(ButtonState state) {
    if (state == ButtonState::kDisabled) return SwitchState::kDisabled;
    return state == ButtonState::kDown ? SwitchState::kOn : SwitchState::kOff;
}

void WriteSwitch(const WindowPictures& config, const Craft& craft, const SwitchDesign& lever) {
    const Button button{ButtonKind::kMenu, lever.place, std::string(lever.caption)};
    for (const StatePicture& picture : lever.pictures()) {
        const SwitchState state = SwitchStateOf(picture.state);
        config.Write(std::string(lever.picture) + std::string(picture.ending), lever.place,
                     [&](Canvas& canvas) { PaintSwitch(canvas, craft, button, state); });
    }
}

void WriteConfig(const Craft& craft, const std::filesystem::path& root) {
    const WindowPictures config(craft, Window::kConfig, root, "Config");
    for (const ButtonDesign& button : kConfigButtons) {
        config.WriteButton(std::string(button.picture()),
                           {ButtonOf(button), layout::kConfigButtonPictures});
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
