#include "SmallWindows.h"

#include <span>
#include <string>
#include <vector>

#include "Global.h"
#include "ui/AboutLayout.h"
#include "ui/HighLayout.h"

namespace quendrel::art {

namespace {

constexpr Rect WindowArea(Size size) { return {0, 0, size.width, size.height}; }

/// A button and the states it has pictures for.
struct ButtonSet {
    Button button;
    std::vector<ButtonState> states;
};

/// The buttons' pictures, cut out of the window that they stand in.
void WriteButtons(const WindowLook& look, const Canvas& window, std::span<const ButtonSet> sets,
                  const std::filesystem::path& folder) {
    for (const ButtonSet& set : sets) {
        for (const ButtonState state : set.states) {
            Canvas canvas = window.Cut(set.button.place);
            look.PaintPushButton(canvas, set.button, state);
            WriteBmp(folder / (set.button.caption + "_" + StateName(state) + ".bmp"),
                     Develop(canvas));
        }
    }
}

}  // namespace

void WriteAboutWindow(const WindowLook& look, const std::filesystem::path& root) {
    using enum ButtonState;
    const std::filesystem::path folder = root / "About";
    std::filesystem::create_directories(folder / "Interface");
    Canvas window(WindowArea(layout::kAboutWindow));
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
    Canvas window(WindowArea(layout::kHighWindow));
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

}  // namespace quendrel::art
