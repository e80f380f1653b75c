// A game in which everything that a player, the desktop and time can do may be done at any moment.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "GameFixture.h"
#include "SecondTree.h"
#include "TemporaryFolder.h"
#include "audio/Playlist.h"
#include "settings/ConfigFlow.h"
#include "ui/main/LoadMainSkin.h"

namespace quendrel::test {

enum class Deed : std::uint8_t {
    kWait,
    kCommand,
    kMode,
    kColor,
    kColorOff,
    kHole,
    kEmpty,
    kEmptyRow,
    kStrip,
    kAnswer,
    kDuel,
    kHide,
    kRestore,
    kClose,
    kKey,
    kNumber,
    kShiftNumber,
    kDensity,
    kSwitch,
    kRounds,
    kSkin,
    kDefaults,
    kTake,
    kCancel,
    kEnd,
};

struct DeedDesign {
    Deed deed;
    std::string_view name;
    /// Its indices count from 0.
    int count = 1;
};

// clang-format off
inline constexpr std::array kDeeds{
    DeedDesign{Deed::kWait, "wait"},
    DeedDesign{Deed::kCommand, "command", 8},
    DeedDesign{Deed::kMode, "mode", 3},
    DeedDesign{Deed::kColor, "color", 10},
    DeedDesign{Deed::kColorOff, "switch color", 10},
    DeedDesign{Deed::kHole, "hole", 6},
    DeedDesign{Deed::kEmpty, "empty", 6},
    DeedDesign{Deed::kEmptyRow, "double click"},
    DeedDesign{Deed::kStrip, "strip", 13},
    DeedDesign{Deed::kAnswer, "answer", 3},
    DeedDesign{Deed::kDuel, "duel"},
    DeedDesign{Deed::kHide, "hide", 2},        // without a tray, with one
    DeedDesign{Deed::kRestore, "restore", 3},  // the icon, the tray that vanishes, the task bar
    DeedDesign{Deed::kClose, "close"},
    DeedDesign{Deed::kKey, "key", 12},
    DeedDesign{Deed::kNumber, "number", 10},
    DeedDesign{Deed::kShiftNumber, "shift number", 10},
    DeedDesign{Deed::kDensity, "density", 2},
    DeedDesign{Deed::kSwitch, "config: switch", 9},
    DeedDesign{Deed::kRounds, "config: rounds", 2},
    DeedDesign{Deed::kSkin, "config: skin", 2},
    DeedDesign{Deed::kDefaults, "config: default"},
    DeedDesign{Deed::kTake, "ok of a window"},
    DeedDesign{Deed::kCancel, "close a window"},
    DeedDesign{Deed::kEnd, "end of the session"},
};
// clang-format on

struct Happening {
    Deed deed = Deed::kWait;
    int index = 0;
    /// The milliseconds since the one before.
    int after = 0;

    bool operator==(const Happening&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Happening& happening) {
    return out << "after " << happening.after << " ms "
               << kDeeds.at(static_cast<std::size_t>(happening.deed)).name << ' '
               << happening.index;
}

/// Every deed with each of its indices, all at once.
inline std::vector<Happening> AllHappenings() {
    std::vector<Happening> all;
    for (const DeedDesign& design : kDeeds) {
        for (int index = 0; index < design.count; ++index) all.push_back({design.deed, index, 0});
    }
    return all;
}

class AnyGame : public GameFixture {
public:
    AnyGame(const PlayedMode& mode, bool duel) {
        Play(mode);
        global.Settings.MindDuel = duel;
        global.Settings.GTimer = true;
        global.Settings.BestOf = 2;
        global.DemoDelay = 15;
        global.SkinNames = {"Atelier", "Beacon"};
        global.SkinFolder = Skins().path() + "\\";
        global.MusicFolder = global.SkinFolder;
        SetPlaylist(global, {"Canon", "Air"});
        LetAnyTimeQualify();
        game.modes.ShowMode();
        window.SetEnabled({Controls::cmdHideBtn}, true);
        FollowSettings(game, reader, global.Settings.SkinPtr);
        game.table.board.BuildBoard(mode.number);
        window.screen = window.Image();
        window.press = [this](Control button) { Press(button); };
        window.showHighscores = [this] { ShowOver([] {}); };
        configure = [this] { Configure(); };
        game.idle.Start();
    }

    /// Plays until the program ends.
    void Run() {
        try {
            game.idle.Run();
        } catch (const ProgramEnded&) {
            log.Clear();
        }
    }

    /// Whether the deed changes something now, or may: colours and keys have a say in that
    /// themselves.
    bool CanDo(const Happening& happening) {
        switch (happening.deed) {
            case Deed::kCommand:
                return IsFree({Controls::cmdMnuBtn, happening.index});
            case Deed::kMode:
                return IsFree({Controls::cmdModeBtn, happening.index});
            case Deed::kHole:
            case Deed::kEmpty:
            case Deed::kNumber:
            case Deed::kEmptyRow:
                return !game.pegs.HolesAreDeaf() && IsFree(Hole(1));
            case Deed::kStrip:
                return window.Of({Controls::lblCloneRow, happening.index}).visible;
            case Deed::kAnswer:
                return IsFree({Controls::cmdInput, happening.index});
            case Deed::kDuel:
                return IsFree({Controls::cmdDuelBtn});
            case Deed::kClose:
                return IsFree(ButtonOf(CommandButton::kExit));
            case Deed::kHide:
            case Deed::kKey:
                return !over_;
            case Deed::kDensity:
                return happening.index + 1 != window.density;
            case Deed::kSwitch:
            case Deed::kRounds:
            case Deed::kSkin:
            case Deed::kDefaults:
                return config_ != nullptr;
            case Deed::kTake:
            case Deed::kCancel:
                return over_;
            case Deed::kEnd:
                return true;
            default:
                return false;
        }
    }

    /// Does what can be done now, and nothing where it cannot.
    void Do(const Happening& happening) {
        log.Clear();
        const int index = happening.index;
        if (happening.deed == Deed::kEnd) clock.RequestEnd();
        if (happening.deed == Deed::kDensity) ShowOn(index + 1);
        if (happening.deed == Deed::kRestore) Restore(index);
        if (happening.deed == Deed::kClose && !over_) Press(ButtonOf(CommandButton::kExit));
        if (over_) {
            DoInWindow(happening.deed, index);
        } else if (!game.hiding.IsHidden()) {
            DoByMouse(happening.deed, index);
            DoByKey(happening.deed, index);
        }
    }

    void TestBody() override {}

protected:
    /// Until the game has followed it.
    bool WindowIsOver() const { return over_ || config_ != nullptr; }

private:
    class QuietConfigView : public ConfigView {
    public:
        explicit QuietConfigView(bool& open) : open_(open) {}
        void LoadConfigSkin(int /*skin*/) override {}
        void PreviewSkin(int /*skin*/) override {}
        void SwitchHelp(bool /*on*/) override {}
        void ShowAll() override {}
        void CloseWindow() override { open_ = false; }

    private:
        bool& open_;
    };

    /// Two skins with pictures at both sizes.
    static const TemporaryFolder& Skins() {
        static const TemporaryFolder folder;
        static const bool written = [] {
            for (const char* skin : {"Atelier", "Beacon"}) WriteSecondTree(folder, skin);
            return true;
        }();
        static_cast<void>(written);
        return folder;
    }

    bool IsFree(Control control) { return !over_ && CanPress(control); }

    bool CanPress(Control control) { return window.Of(control).enabled; }

    void Press(Control button) {
        if (!CanPress(button)) return;
        if (button.array == Controls::cmdMnuBtn) Click(static_cast<CommandButton>(button.index));
        if (button.array == Controls::cmdModeBtn) game.modes.ClickModeButton(button.index);
        if (button.array == Controls::cmdInput) {
            game.table.inputBar.Click(static_cast<Answer>(button.index));
        }
        if (button.array == Controls::cmdDuelBtn) game.round.ClickDuel();
        if (button.array == Controls::cmdHideBtn) game.hiding.HideToTray();
    }

    void DoByMouse(Deed deed, int index) {
        const int number = index + 1;
        if (deed == Deed::kCommand) Press({Controls::cmdMnuBtn, index});
        if (deed == Deed::kMode) PressMode(index);
        if (deed == Deed::kColor && ColorIsSeen(number) && CanPress(ColorButton(number))) {
            game.pegs.PressColorButton(number, MouseButton::kLeft);
            game.pegs.ReleaseColorButton();
        }
        if (deed == Deed::kColorOff && ColorIsSeen(number)) game.pegs.SwitchColor(number);
        if (CanPress(Hole(number))) {
            if (deed == Deed::kHole) game.pegs.PressHole(number, MouseButton::kLeft);
            if (deed == Deed::kEmpty) game.pegs.PressHole(number, MouseButton::kRight);
            if (deed == Deed::kEmptyRow) game.pegs.DoubleClickRow();
        }
        const Control strip{Controls::lblCloneRow, index};
        if (deed == Deed::kStrip && window.Of(strip).visible) game.round.ChooseRow(index);
        if (deed == Deed::kAnswer) Press({Controls::cmdInput, index});
        if (deed == Deed::kDuel) Press({Controls::cmdDuelBtn});
        if (deed == Deed::kHide) {
            tray.available = index == 1;
            Press({Controls::cmdHideBtn});
        }
    }

    bool ColorIsSeen(int color) { return window.Of(ColorButton(color)).visible; }

    void PressMode(int mode) {
        const Control button{Controls::cmdModeBtn, mode};
        if (!CanPress(button)) return;
        game.modes.PressModeButton(mode, MouseButton::kLeft);
        game.modes.ReleaseModeButton();
        Press(button);
    }

    void DoByKey(Deed deed, int index) {
        if (deed == Deed::kKey) game.keys.Press(static_cast<Key>(index));
        if (deed == Deed::kNumber) game.keys.PressNumber(index + 1);
        if (deed == Deed::kShiftNumber) game.keys.PressShiftNumber(index + 1);
    }

    void Restore(int how) {
        if (!game.hiding.IsHidden()) return;
        if (how == 0 && tray.available) tray.doubleClick();
        if (how == 1 && tray.available) tray.vanish();
        if (how == 2 && !tray.available) game.hiding.RestoreFromTray();
    }

    /// The window has come to a screen of another density, where it is painted anew.
    void ShowOn(int density) {
        window.density = density;
        FollowDensity(global, reader, window, game.table.board, game.table.rowMarker);
        window.screen = window.Image();
    }

    /// Another window stands over the game until it is closed.
    void ShowOver(const std::function<void()>& atClose) {
        while (game.hiding.IsHidden()) clock.PumpEvents(1000);
        over_ = true;
        while (over_) clock.PumpEvents(1000);
        atClose();
    }

    void Configure() {
        QuietConfigView view(over_);
        ConfigFlow flow(global, window, game.duel, game.table.sounds, game.table.music, view);
        flow.Load();
        config_ = &flow;
        ShowOver([this] { config_ = nullptr; });
    }

    void DoInWindow(Deed deed, int index) {
        if (config_ == nullptr) {
            if (deed == Deed::kTake || deed == Deed::kCancel) over_ = false;
            return;
        }
        const auto lever = static_cast<Switch>(index);
        if (deed == Deed::kSwitch && !config_->IsLocked(lever)) config_->ClickSwitch(lever);
        if (deed == Deed::kRounds) config_->PressBestOf(index + 1, MouseButton::kLeft);
        if (deed == Deed::kSkin) config_->PressSkin(index + 1, MouseButton::kLeft);
        if (deed == Deed::kDefaults) config_->ClickDefault();
        if (deed == Deed::kTake) config_->ClickOk();
        if (deed == Deed::kCancel) config_->ClickCancel();
    }

    bool over_ = false;
    ConfigFlow* config_ = nullptr;
};

}  // namespace quendrel::test
