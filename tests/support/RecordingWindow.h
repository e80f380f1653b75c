// A MainView and a Host that write down what the flows ask of them.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>

#include "Global.h"
#include "Log.h"
#include "TestSkin.h"
#include "ui/layout/Control.h"
#include "ui/main/Host.h"
#include "ui/main/MainView.h"
#include "ui/picture/Picture.h"
#include "ui/skin/WindowShape.h"

namespace quendrel::test {

class RecordingWindow : public MainView, public Host {
public:
    explicit RecordingWindow(Log& log) : log_(log) {}

    struct State {
        bool enabled = false;
        bool visible = false;
        bool held = false;
        int left = 0;
        int top = 0;
        int width = 0;
        std::string spokenName;
    };

    /// The control's state; one that was never touched is disabled and hidden.
    const State& Of(Control control) { return controls_[control]; }

    /// Lines 1 to 4 as they stand.
    const MessageLine& Line(int line) { return lines_[line]; }

    /// Happens when a control is shown or hidden.
    std::function<void()> onSetVisible = [] {};
    /// Happen when a line of the sweep, and when the whole window, is shown.
    std::function<void()> onSweepLine = [] {};
    std::function<void()> onRepaint = [] {};
    /// Happens when the player has been told of trouble.
    std::function<void()> onTrouble = [] {};
    /// The pixels of a unit that the screen asks for.
    int density = 1;
    /// The folder of the skin whose fonts the live text has.
    std::string fontsOf;
    /// Whether the window manager minimises.
    bool minimises = true;

    /// What stands on the screen, where a test puts a picture here, and whether somebody has
    /// reached for the image since a test last looked.
    std::optional<Picture> screen;
    bool imageTouched = false;

    /// Where keys act, and whether it is written down where they are sent.
    std::optional<Control> place;
    bool writesPlaces = false;
    /// What a button does that a key presses.
    std::function<void(Control)> press = [](Control) {};
    /// What a screen reader was given to say, each text ended by a line feed, and what it finds in
    /// the rows of the board.
    std::string said;
    std::map<int, std::string> spokenRows;

    /// What the window of the highscores does.
    std::function<void()> showHighscores = [] {};

    void ShowHighscores() override { showHighscores(); }
    void SaveOnLeaving() override { log_.Add("save"); }
    void ShowTrouble(const std::string& text) override {
        log_.Add("trouble: " + text);
        onTrouble();
    }
    void ShowBusy(bool busy) override { log_.Add(busy ? "busy" : "ready"); }
    void Shape(const OutlineMasks& masks) override {
        log_.Add("shape from a mask of " + std::to_string(masks.single.width()) + " x " +
                 std::to_string(masks.single.height()));
    }
    void SwitchHelp(bool on) override { log_.Add(on ? "help on" : "help off"); }
    bool HideWindow(bool toTray) override {
        log_.Add(toTray ? "hide" : "minimise");
        return toTray || minimises;
    }
    void RestoreWindow() override { log_.Add("restore"); }
    void ConfineCursor(Control control) override {
        log_.Add("hold the pointer in " + NameOf(control));
    }
    void FreeCursor() override { log_.Add("let the pointer go"); }

    Picture& Image() override {
        imageTouched = true;
        return image_;
    }
    int Density() const override { return density; }

    void ShowLineNow(const Rect& line) override {
        PutOnScreen(line);
        log_.SweepLine();
        onSweepLine();
    }

    void ShowNow(const Rect& rect) override {
        PutOnScreen(rect);
        const int pixels = image_.density();
        const Pixel middle =
            image_.At((rect.left + rect.width / 2) * pixels, (rect.top + rect.height / 2) * pixels);
        std::ostringstream line;
        line << Describe(middle) << " at " << rect.left << "," << rect.top;
        log_.Add(line.str());
    }

    void RepaintAll() override {
        if (screen) screen = image_;
        log_.Add("repaint the window");
        onRepaint();
    }

    void SetEnabled(Control control, bool enabled) override {
        controls_[control].enabled = enabled;
        if (control.array == Controls::cmdMnuBtn) {
            log_.State("buttons", "buttons:" + Enabled(Controls::cmdMnuBtn, 0, ButtonNames));
        } else if (control.array == Controls::cmdModeBtn) {
            log_.State("modes", "modes:" + Enabled(Controls::cmdModeBtn, 0, ModeNames));
        } else if (control.array == Controls::lblActiveRow) {
            constexpr std::array<std::string_view, 6> columns{"1", "2", "3", "4", "5", "6"};
            log_.State("holes", "holes:" + Enabled(Controls::lblActiveRow, 1, columns));
        } else {
            Record(control);
        }
    }

    bool IsEnabled(Control control) const override {
        const auto found = controls_.find(control);
        return found != controls_.end() && found->second.enabled;
    }

    void SetPlace(Control control) override {
        place = control;
        if (writesPlaces) log_.Add("place at " + NameOf(control));
    }
    std::optional<Control> Place() const override { return place; }
    void Press(Control button) override {
        if (IsEnabled(button)) press(button);
    }

    void SetVisible(Control control, bool visible) override {
        controls_[control].visible = visible;
        onSetVisible();
        Record(control);
    }
    void SetLeft(Control control, int left) override {
        controls_[control].left = left;
        Record(control);
    }
    void SetTop(Control control, int top) override {
        controls_[control].top = top;
        if (control.array != Controls::lblActiveRow) {
            Record(control);
            return;
        }
        std::string line = "hole tops:";
        for (int column = 1; column <= 6; ++column) {
            line += " " + std::to_string(controls_[{Controls::lblActiveRow, column}].top);
        }
        log_.State("hole tops", line);
    }
    void SetWidth(Control control, int width) override {
        controls_[control].width = width;
        Record(control);
    }

    void SetPictures(Control control, const ButtonPictures& /*pictures*/) override {
        log_.Add("pictures of " + NameOf(control));
    }

    void SetFonts(const std::string& root) override { fontsOf = root; }

    void SetHeld(Control control, bool held) override {
        controls_[control].held = held;
        log_.Add((held ? "hold " : "let go ") + NameOf(control));
    }

    void SetClock(const std::string& time) override { log_.Add("lblGTimer \"" + time + "\""); }

    void SetMessageLine(int line, const MessageLine& content) override {
        lines_[line] = content;
        if (line < 4) return;
        std::string text = "text:";
        for (int k = 1; k <= 4; ++k) text += " " + Written(lines_[k]);
        log_.Add(text);
    }

    void SetSpokenName(Control control, const std::string& name) override {
        controls_[control].spokenName = name;
    }

    void SetSpokenRow(int row, const std::string& text) override {
        spokenRows.erase(row);
        if (!text.empty()) spokenRows[row] = text;
    }

    void Announce(const std::string& text) override { said += text + "\n"; }

private:
    void PutOnScreen(const Rect& rect) {
        if (!screen) return;
        if (screen->density() != image_.density()) screen = image_;
        const Point at{rect.left, rect.top};
        BitBlt(*screen, at, {rect.width, rect.height}, image_, at);
    }

    static std::string Written(const MessageLine& line) {
        if (line.text.empty()) return "-";
        const std::string quoted = "\"" + line.text + "\"";
        if (line.ink == 0xEBEBEB) return "grey " + quoted;
        if (line.ink == 0xFFFF00) return "yellow " + quoted;
        throw std::logic_error("a colour outside the panel's palette");
    }

    template <typename Names>
    std::string Enabled(Controls array, int first, const Names& names) {
        std::string enabled;
        int index = first;
        for (const std::string_view name : names) {
            if (controls_[{array, index}].enabled) enabled += " " + std::string(name);
            ++index;
        }
        return enabled.empty() ? " none" : enabled;
    }

    void Record(Control control) {
        const State& state = controls_[control];
        std::ostringstream line;
        line << NameOf(control);
        if (!state.visible) {
            line << " hidden";
        } else {
            line << " at " << state.left << "," << state.top;
            if (state.width > 0) line << " width " << state.width;
            line << (state.enabled ? " enabled" : " disabled");
        }
        log_.State(NameOf(control), line.str());
    }

    Log& log_;
    Picture image_{655, 605};
    std::map<Control, State> controls_;
    OneBased<MessageLine, 4> lines_;
};

}  // namespace quendrel::test
