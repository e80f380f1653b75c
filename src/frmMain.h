// The main window: the game board with its console. It shows what the flows of the game say, and
// opens the other windows.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "Global.h"
#include "MainControls.h"
#include "MainKeys.h"
#include "game/Game.h"
#include "platform/desktop/WindowEdges.h"
#include "ui/layout/Control.h"
#include "ui/main/Host.h"
#include "ui/main/MainView.h"
#include "ui/picture/Picture.h"
#include "ui/skin/SkinFonts.h"
#include "ui/windows/SkinnedWindow.h"

class QKeyEvent;
class QMessageBox;

namespace quendrel {

class Announcer;
class BalloonHelp;
class frmAbout;
class frmSplash;
class ImageButton;
class SettingsStore;

class frmMain : public SkinnedWindow, public MainView, private Host {
public:
    frmMain(Global& global, const Machine& machine, SettingsStore& store, PictureReader pictures);
    ~frmMain() override;
    frmMain(const frmMain&) = delete;
    frmMain& operator=(const frmMain&) = delete;

    /// Checks the screen, shows the splash for `splashMs` and fills the window before it is shown.
    /// Throws ScreenTooSmall once the player has read why, and what LoadMainWindow throws.
    void Load(std::int16_t splashMs);

    /// Shows the window and plays until the program ends, which it does by throwing.
    [[noreturn]] void Run();

    /// "Exit" has been confirmed: the game shows its farewell and ends.
    bool IsLeaving() const { return game_.round.IsLeaving(); }

    /// The player has started the game once more: shows it in front of all other windows.
    void ComeToFront();

    /// The system wants the program to end: saves what leaving saves and ends, without a question
    /// or a box. Says on standard error what could not be saved, and returns whether everything
    /// was.
    bool EndAtOnce();

    void ShowTrouble(const std::string& text) override;
    void ShowBusy(bool busy) override;
    void Shape(const OutlineMasks& masks) override { ShapeFrom(masks); }
    void SwitchHelp(bool on) override;
    void ConfineCursor(Control control) override;
    void FreeCursor() override;
    Picture& Image() override { return image_; }
    int Density() const override { return DensityWanted(); }
    void ShowNow(const Rect& rect) override;
    void ShowLineNow(const Rect& line) override;
    void RepaintAll() override;
    void SetEnabled(Control control, bool enabled) override;
    bool IsEnabled(Control control) const override;
    void SetVisible(Control control, bool visible) override;
    void SetPlace(Control control) override;
    using SkinnedWindow::Place;
    std::optional<Control> Place() const override;
    void Press(Control button) override;
    void SetLeft(Control control, int left) override;
    void SetTop(Control control, int top) override;
    void SetWidth(Control control, int width) override;
    void SetPictures(Control control, const ButtonPictures& pictures) override;
    void SetFonts(const std::string& root) override;
    void SetHeld(Control control, bool held) override;
    void SetClock(const std::string& time) override;
    void SetMessageLine(int line, const MessageLine& content) override;
    void SetSpokenName(Control control, const std::string& name) override;
    void SetSpokenRow(int row, const std::string& text) override;
    void Announce(const std::string& text) override;

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void FollowDensity() override;

private:
    void ShowHighscores() override;
    void SaveOnLeaving() override;
    bool HideWindow(bool toTray) override;
    void RestoreWindow() override;
    void RequireScreen();
    bool Minimise();
    void WaitUntilShown();
    void ShowAbout();
    void ShowRules();
    void ShowConfig();
    void PutOnGift(const std::string& path);
    QWidget* OwnerOfBox();
    void ShowBox(QMessageBox& box);
    template <class Window, class... Parts>
    std::unique_ptr<Window> Make(Parts&... parts);

    void TieCommands();
    void OnCommand(CommandButton button, const std::function<void()>& command);
    void BindLetters();
    void FocusHome();
    QWidget* Widget(Control control) const { return controls_.Widget(control); }
    ImageButton* Button(Control control) const { return controls_.Button(control); }

    Global& global_;
    SettingsStore& store_;
    const PictureReader pictures_;
    const Machine machine_;
    Picture image_;
    Game game_;
    MainKeys keys_;
    /// Belongs to the window.
    BalloonHelp* popHelp_;
    MainControls controls_;
    /// Belongs to the window.
    Announcer* announcer_;
    CompositorWatch compositor_{SkinnedWindow::CutAllOutlines};
    std::unique_ptr<frmSplash> frmSplash_;
    std::unique_ptr<frmAbout> frmAbout_;
    /// The button that the pointer is confined to.
    ImageButton* confining_ = nullptr;
    bool loaded_ = false;
};

}  // namespace quendrel
