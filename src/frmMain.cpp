#include "frmMain.h"

#include <new>
#include <utility>

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QScreen>

#include "StartUp.h"
#include "audio/Pause.h"
#include "game/FollowSettings.h"
#include "platform/Clock.h"
#include "platform/Doors.h"
#include "platform/Errors.h"
#include "platform/Files.h"
#include "platform/FolderNames.h"
#include "platform/desktop/Display.h"
#include "platform/desktop/OpenLink.h"
#include "platform/desktop/SpareMemory.h"
#include "scores/frmHigh.h"
#include "settings/GivenSkin.h"
#include "settings/SaveOnLeaving.h"
#include "settings/SettingsStore.h"
#include "settings/SkinList.h"
#include "settings/frmConfig.h"
#include "ui/controls/Announcer.h"
#include "ui/controls/BalloonHelp.h"
#include "ui/controls/BoxLines.h"
#include "ui/controls/ImageButton.h"
#include "ui/controls/LiveText.h"
#include "ui/controls/MessageLabel.h"
#include "ui/controls/QtValues.h"
#include "ui/controls/SpokenText.h"
#include "ui/layout/BoardGeometry.h"
#include "ui/main/CheckScreen.h"
#include "ui/main/LoadMainSkin.h"
#include "ui/skin/WindowShape.h"
#include "ui/windows/ProgramIcon.h"
#include "ui/windows/Screens.h"
#include "ui/windows/frmAbout.h"
#include "ui/windows/frmSplash.h"

namespace quendrel {

namespace {

/// In the folder of the rules.
constexpr const char* kRulesPage = "Rules.html";

bool CanTakeFocus(const QWidget* widget) {
    return widget->isEnabled() && widget->isVisibleTo(widget->window());
}

WindowEdges DesktopEdges() { return {CutWindow, CompositorRuns, DesktopMovesAlone}; }

}  // namespace

frmMain::frmMain(Global& global, const Machine& machine, SettingsStore& store,
                 PictureReader pictures)
    : SkinnedWindow("frmMain", global.View),
      global_(global),
      store_(store),
      pictures_(std::move(pictures)),
      machine_(machine),
      image_(kBoardSize.width, kBoardSize.height),
      game_(global, machine, *this, *this),
      keys_(game_.keys),
      popHelp_(new BalloonHelp(this)),
      controls_(*this, global, game_, *popHelp_),
      announcer_(new Announcer(this)) {
    SetEdges(DesktopEdges());
    SetFace(image_);

    for (const Answer answer : {Answer::kYes, Answer::kNo, Answer::kOk}) {
        game_.table.inputBar.PutAway(answer);
    }
    TieCommands();
    BindLetters();
    Button(ButtonOf(CommandButton::kStart))->setFocus();

    onHelp = [this] { ShowRules(); };
    // A request to close the window counts as a click on "Exit". It comes while the toolkit handles
    // an event, so the click is queued: its question waits for events itself.
    onCloseRequest = [this] {
        QMetaObject::invokeMethod(Button(ButtonOf(CommandButton::kExit)), &QAbstractButton::click,
                                  Qt::QueuedConnection);
    };
    TakeGifts({[this] { return game_.round.Obeys(CommandButton::kConfig); },
               [this](const std::string& path) {
                   game_.round.Obey(CommandButton::kConfig, [this, path] { PutOnGift(path); });
               }});
}

frmMain::~frmMain() = default;

/// What only the main window needs waits until the splash is there, which so comes earlier.
void frmMain::Load(std::int16_t splashMs) {
    RequireScreen();
    store_.LoadView();
    frmSplash_ = std::make_unique<frmSplash>(global_.View);
    frmSplash_->SetEdges(DesktopEdges());
    frmSplash_->show();
    game_.table.Wait(splashMs);
    QApplication::setWindowIcon(ProgramIcon());
    LoadMainWindow(global_, game_, store_, pictures_);
    loaded_ = true;
    MoveToMiddle();
}

/// Checks the primary screen, panels included.
void frmMain::RequireScreen() {
    const QScreen* const screen = QGuiApplication::primaryScreen();
    const QSize pixels = screen->size() * screen->devicePixelRatio();
    try {
        CheckScreen({pixels.width(), pixels.height(), screen->depth()});
    } catch (const ScreenTooSmall& trouble) {
        QMessageBox box(QMessageBox::Critical, Text(trouble.title), Text(trouble.text),
                        QMessageBox::Ok);
        box.setWindowIcon(ProgramIcon());
        KeepLines(box, screen->availableSize().width());
        ShowBox(box);
        throw;
    }
}

void frmMain::Run() {
    show();
    activateWindow();
    machine_.clock.PumpEvents(0);
    ActivateFirst(game_, [this] { frmSplash_.reset(); });
    GiveBackSpareMemory();
    game_.idle.Run();
}

/// Raises the splash, the main window and a modal window over it, in this order.
void frmMain::ComeToFront() {
    game_.hiding.RestoreFromTray();
    if (isMinimized()) showNormal();
    for (QWidget* const window : {static_cast<QWidget*>(frmSplash_.get()),
                                  static_cast<QWidget*>(this), QApplication::activeModalWidget()}) {
        if (window == nullptr || !window->isVisible()) continue;
        window->raise();
        window->activateWindow();
    }
}

bool frmMain::EndAtOnce() {
    machine_.clock.RequestEnd();
    try {
        if (loaded_) SaveOnLeaving();
    } catch (const NotSaved& error) {
        ReportTrouble(error.what());
        return false;
    }
    return true;
}

void frmMain::SaveOnLeaving() { quendrel::SaveOnLeaving(store_, game_.highscores, global_); }

/// Makes a window in the skin in use. Where one of its pictures can no longer be read, or memory
/// does not suffice, the player is told, and the game goes on without the window.
template <class Window, class... Parts>
std::unique_ptr<Window> frmMain::Make(Parts&... parts) {
    const auto refuse = [this](const std::exception& error) {
        const std::string loss = global_.NewScorePending ? "\nYour time is lost." : "";
        ShowTrouble("This window cannot be opened: " + ReasonOf(error) + loss);
        return nullptr;
    };
    try {
        auto window = std::make_unique<Window>(parts...);
        window->SetEdges(DesktopEdges());
        window->onHelp = onHelp;
        window->BelongTo(*this);
        return window;
    } catch (const FileError& error) {
        return refuse(error);
    } catch (const std::bad_alloc& error) {
        return refuse(error);
    }
}

/// The game goes on behind it; asked for again, the same window comes to the front. Where the game
/// is hidden, the window comes when the game does.
void frmMain::ShowAbout() {
    if (!frmAbout_) {
        frmAbout_ = Make<frmAbout>(global_, pictures_, game_.table.sounds, machine_.openLink);
        if (!frmAbout_) return;
        // Deleted later, since onClosed is called while the toolkit still handles the window's
        // button.
        frmAbout_->onClosed = [this] { frmAbout_.release()->deleteLater(); };
        frmAbout_->MoveOver(geometry());
    }
    if (game_.hiding.IsHidden()) return;
    frmAbout_->show();
    frmAbout_->raise();
    frmAbout_->activateWindow();
}

/// Shows the page of the rules with the desktop's own viewer.
void frmMain::ShowRules() {
    const std::string page = MachinePath(global_.AppFolder + kRulesFolder + "\\" + kRulesPage);
    if (!FileExists(page)) {
        ShowTrouble("The rules cannot be shown: " + page + " is missing.");
    } else if (machine_.openLink(AddressOfFile(page)) == 0) {
        ShowTrouble("Nothing here shows the rules, which are in " + page);
    }
}

/// What was pressed before the game was hidden opens no window without it.
void frmMain::WaitUntilShown() {
    while (game_.hiding.IsHidden()) machine_.clock.PumpEvents(kLongestSleep);
}

void frmMain::ShowConfig() {
    WaitUntilShown();
    const std::string oldSkin = NameOfSkin(global_, global_.Settings.SkinPtr);
    const auto config = Make<frmConfig>(global_, pictures_, *this, game_.duel, game_.table.sounds,
                                        game_.table.music);
    if (!config) return;
    config->MoveOver(geometry());
    config->ShowModal(machine_.clock);
    FollowSettings(game_, pictures_, NumberOfSkin(global_, oldSkin));
    GiveBackSpareMemory();
}

/// Puts it on as the configuration's "Ok" does.
void frmMain::PutOnGift(const std::string& path) {
    const auto skin = TakeGivenSkin(global_, pictures_, *this, path);
    if (!skin) return;
    const std::int16_t oldSkin = global_.Settings.SkinPtr;
    ChooseSkin(global_, *skin);
    FollowSettings(game_, pictures_, oldSkin);
    if (global_.Settings.SkinPtr == *skin) Announce("Skin: " + NameOfSkin(global_, *skin));
}

void frmMain::ShowHighscores() {
    WaitUntilShown();
    // Over the board, so that the message panel beside it can be read.
    const QRect board = geometry().adjusted(qRound(kBoardLeft * Zoom()), 0, 0, 0);
    const auto high =
        Make<frmHigh>(global_, pictures_, game_.table.sounds, game_.highscores, *this);
    if (!high) return;
    high->MoveOver(board);
    high->ShowModal(machine_.clock);
}

void frmMain::ShowTrouble(const std::string& text) {
    ReportTrouble(text);
    QMessageBox box(QMessageBox::Warning, Text(kAppName), Text(text), QMessageBox::Ok,
                    OwnerOfBox());
    ShowBox(box);
}

void frmMain::ShowBusy(bool busy) {
    if (busy) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QGuiApplication::restoreOverrideCursor();
    }
}

/// Where a skin was dropped, the active window is another program's.
QWidget* frmMain::OwnerOfBox() {
    for (QWidget* const window :
         {QApplication::activeWindow(), QApplication::activeModalWidget()}) {
        if (window != nullptr) return window;
    }
    return isVisible() ? this : nullptr;
}

/// Plain text, since the box shows names of files and players, which are no markup.
void frmMain::ShowBox(QMessageBox& box) {
    box.setTextFormat(Qt::PlainText);
    box.setWindowModality(Qt::ApplicationModal);
    KeepOnScreens(box);
    box.show();
    while (box.isVisible()) machine_.clock.PumpEvents(kLongestSleep);
}

void frmMain::FollowDensity() {
    if (loaded_) {
        quendrel::FollowDensity(global_, pictures_, *this, game_.table.board,
                                game_.table.rowMarker);
    }
}

void frmMain::SwitchHelp(bool on) { popHelp_->SwitchOn(on); }

/// The about window goes with it.
bool frmMain::HideWindow(bool toTray) {
    if (!toTray && !Minimise()) return false;
    if (toTray) hide();
    if (frmAbout_) frmAbout_->hide();
    return true;
}

/// Waits until the window manager has minimised the window, half a second at most: some never do.
/// No events are handled meanwhile, so that "Hide" is not pressed again.
bool frmMain::Minimise() {
    constexpr int kMostMs = 500;
    constexpr int kLookEveryMs = 10;
    if (!MinimisingIsTold()) return false;
    showMinimized();
    for (int waited = 0; waited < kMostMs; waited += kLookEveryMs) {
        Pause(machine_.clock, kLookEveryMs, false);
        if (WindowIsMinimised(winId())) return true;
    }
    showNormal();
    return false;
}

void frmMain::RestoreWindow() {
    showNormal();
    if (frmAbout_) frmAbout_->show();
    raise();
    activateWindow();
}

/// When the player restores the minimised window from the taskbar, the game comes back.
void frmMain::changeEvent(QEvent* event) {
    SkinnedWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && !isMinimized() && game_.hiding.IsHidden()) {
        AtDoor([this] { game_.hiding.RestoreFromTray(); });
    }
}

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && keys_.Obey(*static_cast<QKeyEvent*>(event))) {
        return true;
    }
    if (event->type() == QEvent::FocusIn) controls_.FocusReached(controls_.Find(watched).value());
    return SkinnedWindow::eventFilter(watched, event);
}

void frmMain::keyPressEvent(QKeyEvent* event) {
    if (!keys_.Obey(*event)) SkinnedWindow::keyPressEvent(event);
}

/// The toolkit asks this also where the control that has the focus is switched off or hidden.
bool frmMain::focusNextPrevChild(bool next) {
    const QWidget* const at = focusWidget();
    if (at == nullptr || CanTakeFocus(at)) return SkinnedWindow::focusNextPrevChild(next);
    FocusHome();
    return true;
}

void frmMain::FocusHome() {
    const std::optional<Control> home = game_.keys.Home();
    QWidget* const widget = home ? Widget(*home) : this;
    (CanTakeFocus(widget) ? widget : this)->setFocus();
}

void frmMain::ConfineCursor(Control control) {
    FreeCursor();
    confining_ = Button(control);
    confining_->ConfineCursor(true);
}

void frmMain::FreeCursor() {
    if (confining_ != nullptr) confining_->ConfineCursor(false);
    confining_ = nullptr;
}

void frmMain::TieCommands() {
    OnCommand(CommandButton::kExit, [this] { game_.round.ExitGame(); });
    OnCommand(CommandButton::kAbout, [this] { ShowAbout(); });
    OnCommand(CommandButton::kConfig, [this] { ShowConfig(); });
    OnCommand(CommandButton::kHigh, [this] { ShowHighscores(); });
    OnCommand(CommandButton::kShow, [this] { game_.round.ShowCode(); });
    OnCommand(CommandButton::kClone, [this] { game_.round.BeginClone(); });
    OnCommand(CommandButton::kStart, [this] { game_.round.StartRound(); });
    OnCommand(CommandButton::kCheck, [this] { game_.round.CheckGuess(); });
}

void frmMain::OnCommand(CommandButton button, const std::function<void()>& command) {
    Button(ButtonOf(button))->onClick = [this, button, command] {
        game_.round.Obey(button, command);
    };
}

/// The letters that press buttons, and the one that has the clock said; the toolkit finds them on
/// any layout.
void frmMain::BindLetters() {
    for (const auto& [key, button] : kLetters) {
        Bind({key}, [this, button = button] {
            game_.keys.PressLetter(button);
        })->setAutoRepeat(false);
    }
    Bind({Qt::Key_T}, [this] { game_.clock.SayTime(); })->setAutoRepeat(false);
}

void frmMain::SetFonts(const std::string& root) {
    const auto [styles, faults] = FontsOfSkin(root);
    for (const std::string& fault : faults) ReportTrouble(fault);
    controls_.SetFonts(styles);
    DressPlace(styles);
}

void frmMain::ShowNow(const Rect& rect) { RepaintNow(ToQRect(rect)); }

void frmMain::ShowLineNow(const Rect& line) { RepaintLineNow(ToQRect(line)); }

void frmMain::RepaintAll() { repaint(); }

void frmMain::SetEnabled(Control control, bool enabled) { Widget(control)->setEnabled(enabled); }

bool frmMain::IsEnabled(Control control) const { return Widget(control)->isEnabled(); }

void frmMain::SetPlace(Control control) {
    QWidget* const widget = Widget(control);
    if (CanTakeFocus(widget)) {
        widget->setFocus();
    } else {
        FocusHome();
    }
}

std::optional<Control> frmMain::Place() const { return controls_.Find(focusWidget()); }

void frmMain::Press(Control button) { Button(button)->click(); }

void frmMain::SetVisible(Control control, bool visible) { Widget(control)->setVisible(visible); }

void frmMain::SetLeft(Control control, int left) {
    QRect place = PlaceOf(Widget(control));
    place.moveLeft(left);
    Place(Widget(control), place);
}

void frmMain::SetTop(Control control, int top) {
    QRect place = PlaceOf(Widget(control));
    place.moveTop(top);
    Place(Widget(control), place);
}

void frmMain::SetWidth(Control control, int width) {
    QRect place = PlaceOf(Widget(control));
    place.setWidth(width);
    Place(Widget(control), place);
}

void frmMain::SetPictures(Control control, const ButtonPictures& pictures) {
    Button(control)->SetPictures(pictures);
}

void frmMain::SetHeld(Control control, bool held) { Button(control)->SetHeld(held); }

void frmMain::SetClock(const std::string& time) { controls_.Clock()->setText(Text(time)); }

void frmMain::SetMessageLine(int line, const MessageLine& content) {
    MessageLabel* const label = controls_.Line(line);
    label->setEnabled(!content.text.empty());
    label->setVisible(!content.text.empty());
    label->SetColor(QColor::fromRgb(content.ink));
    const std::string_view end =
        std::string_view(content.text).substr(content.text.size() - content.kept);
    label->ShowText(Text(content.text), Text(end).size());
}

void frmMain::SetSpokenName(Control control, const std::string& name) {
    QWidget* const widget = Widget(control);
    if (widget->accessibleName() != Text(name)) widget->setAccessibleName(Text(name));
}

void frmMain::SetSpokenRow(int row, const std::string& text) {
    controls_.Row(row)->SetText(Text(text));
}

void frmMain::Announce(const std::string& text) { announcer_->Say(Text(text)); }

}  // namespace quendrel
