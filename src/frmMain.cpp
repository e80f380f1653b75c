#include "frmMain.h"

#include <stdexcept>
#include <utility>

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QScreen>

#include "StartUp.h"
#include "audio/Pause.h"
#include "game/FollowSettings.h"
#include "platform/Clock.h"
#include "platform/Doors.h"
#include "platform/Errors.h"
#include "platform/desktop/Display.h"
#include "scores/frmHigh.h"
#include "settings/SaveOnLeaving.h"
#include "settings/SettingsStore.h"
#include "settings/frmConfig.h"
#include "ui/controls/BalloonHelp.h"
#include "ui/controls/BoxLines.h"
#include "ui/controls/ClickTarget.h"
#include "ui/controls/ImageButton.h"
#include "ui/controls/LiveText.h"
#include "ui/controls/MessageLabel.h"
#include "ui/controls/MouseButton.h"
#include "ui/controls/QtValues.h"
#include "ui/layout/BoardGeometry.h"
#include "ui/layout/MainLayout.h"
#include "ui/main/CheckScreen.h"
#include "ui/main/HelpTexts.h"
#include "ui/main/LoadMainSkin.h"
#include "ui/skin/WindowShape.h"
#include "ui/windows/frmAbout.h"
#include "ui/windows/frmSplash.h"

namespace quendrel {

namespace {

WindowEdges DesktopEdges() { return {CutWindow, CompositorRuns}; }

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
      popHelp_(new BalloonHelp(this)) {
    SetEdges(DesktopEdges());
    SetFace(image_);
    setFocusPolicy(Qt::StrongFocus);

    MakeHoles();
    MakeCloneStrips();
    MakeColorButtons();
    MakeInputButtons();
    MakeModeButtons();
    MakeCommandButtons();
    MakeSmallButtons();
    MakeLabels();
    setFocus();

    // A request to close the window counts as a click on "Exit". It comes while the toolkit handles
    // an event, so the click is queued: its question waits for events itself.
    onCloseRequest = [this] {
        QMetaObject::invokeMethod(Button(ButtonOf(CommandButton::kExit)), &QAbstractButton::click,
                                  Qt::QueuedConnection);
    };
}

frmMain::~frmMain() = default;

void frmMain::Load(std::int16_t splashMs) {
    RequireScreen();
    store_.LoadView();
    frmSplash_ = std::make_unique<frmSplash>(global_.View);
    frmSplash_->SetEdges(DesktopEdges());
    frmSplash_->show();
    game_.table.Wait(splashMs);
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
        KeepLines(box, screen->availableSize().width());
        ShowBox(box);
        throw;
    }
}

void frmMain::Run() {
    show();
    machine_.clock.PumpEvents(0);
    ActivateFirst(game_, [this] { frmSplash_.reset(); });
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

/// Makes a window in the skin in use. Where one of its pictures can no longer be read, the player
/// is told, and the game goes on without the window.
template <class Window, class... Parts>
std::unique_ptr<Window> frmMain::Make(Parts&... parts) {
    try {
        auto window = std::make_unique<Window>(parts...);
        window->SetEdges(DesktopEdges());
        return window;
    } catch (const FileError& error) {
        ShowTrouble(std::string("This window cannot be opened: ") + error.what());
        return nullptr;
    }
}

/// The game goes on behind it; asked for again, the same window comes to the front.
void frmMain::ShowAbout() {
    if (!frmAbout_) {
        frmAbout_ = Make<frmAbout>(global_, pictures_, game_.table.sounds, machine_.openLink);
        if (!frmAbout_) return;
        // Deleted later, since onClosed is called while the toolkit still handles the window's
        // button.
        frmAbout_->onClosed = [this] { frmAbout_.release()->deleteLater(); };
        frmAbout_->MoveOver(geometry());
        frmAbout_->show();
    }
    frmAbout_->raise();
    frmAbout_->activateWindow();
}

void frmMain::ShowConfig() {
    const std::int16_t oldSkin = global_.Settings.SkinPtr;
    const auto config = Make<frmConfig>(global_, pictures_, *this, game_.duel, game_.table.sounds,
                                        game_.table.music);
    if (!config) return;
    config->MoveOver(geometry());
    config->ShowModal(machine_.clock);
    FollowSettings(game_, pictures_, oldSkin);
}

void frmMain::ShowHighscores() {
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
                    QApplication::activeWindow());
    ShowBox(box);
}

/// Plain text, since the box shows names of files and players, which are no markup.
void frmMain::ShowBox(QMessageBox& box) {
    box.setTextFormat(Qt::PlainText);
    box.setWindowModality(Qt::ApplicationModal);
    box.show();
    while (box.isVisible()) machine_.clock.PumpEvents(1000);
}

void frmMain::FollowDensity() {
    if (loaded_) {
        quendrel::FollowDensity(global_, pictures_, *this, game_.table.board,
                                game_.table.rowMarker);
    }
}

void frmMain::SwitchHelp(bool on) { popHelp_->SwitchOn(on); }

bool frmMain::HideWindow(bool toTray) {
    if (!toTray) return Minimise();
    hide();
    return true;
}

/// Waits until the window manager has minimised the window, half a second at most: some never do.
/// No events are handled meanwhile, so that "Hide" is not pressed again.
bool frmMain::Minimise() {
    constexpr int kMostMs = 500;
    constexpr int kLookEveryMs = 10;
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

void frmMain::ConfineCursor(Control control) {
    FreeCursor();
    confining_ = Button(control);
    confining_->ConfineCursor(true);
}

void frmMain::FreeCursor() {
    if (confining_ != nullptr) confining_->ConfineCursor(false);
    confining_ = nullptr;
}

void frmMain::Describe(Control control, QWidget* widget, const Rect& place, const QString& name) {
    widget->setObjectName(Text(NameOf(control)));
    widget->setAccessibleName(name);
    widget->setAccessibleDescription(Text(HelpText(control)));
    Place(widget, ToQRect(place));
    popHelp_->Watch(widget);
}

ImageButton* frmMain::MakeButton(Control control, const Rect& place, std::string_view caption) {
    auto* const button = new ImageButton(this);
    Describe(control, button, place, Text(caption));
    return button;
}

void frmMain::MakeCommandButtons() {
    for (std::size_t i = 0; i < cmdMnuBtn_.size(); ++i) {
        const auto command = static_cast<CommandButton>(i);
        cmdMnuBtn_[i] = MakeButton(ButtonOf(command), layout::kMenuButtons[i], ButtonNames[i]);
        cmdMnuBtn_[i]->setEnabled(command != CommandButton::kHigh && kIdle[command] == 1);
        cmdMnuBtn_[i]->onPress = [this](MouseButton pressed) {
            if (pressed == MouseButton::kLeft) game_.table.Play(SoundSlot::kBigClick);
        };
    }
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

void frmMain::MakeModeButtons() {
    for (std::size_t at = 0; at < cmdModeBtn_.size(); ++at) {
        const int i = static_cast<int>(at);
        ImageButton* const button = cmdModeBtn_[at] =
            MakeButton({Controls::cmdModeBtn, i}, layout::kModeButtons[at], ModeNames[at]);
        button->onPress = [this, i](MouseButton pressed) {
            game_.modes.PressModeButton(i, pressed);
        };
        button->onRelease = [this](MouseButton) { game_.modes.ReleaseModeButton(); };
        button->onClick = [this, i] { game_.modes.ClickModeButton(i); };
    }
}

void frmMain::MakeColorButtons() {
    for (std::size_t at = 0; at < cmdColBtn_.size(); ++at) {
        const int i = static_cast<int>(at);
        auto* const backup = lblColorBackup_[at] =
            new ClickTarget(this, ClickTarget::Look::kInvisible);
        Describe({Controls::lblColorBackup, i}, backup, layout::kColorButtons[at],
                 Text("Behind " + std::string(ColorNames[at])));
        backup->onPress = [this, i](MouseButton pressed) {
            game_.pegs.PressColorBackup(i + 1, pressed);
        };

        ImageButton* const button = cmdColBtn_[at] =
            MakeButton({Controls::cmdColBtn, i}, layout::kColorButtons[at], ColorNames[at]);
        button->onPress = [this, i](MouseButton pressed) {
            game_.pegs.PressColorButton(i + 1, pressed);
        };
        button->onRelease = [this](MouseButton) { game_.pegs.ReleaseColorButton(); };
        // The label is its parent, since a disabled button passes its presses on to its parent.
        button->setParent(backup);
        Place(button, ToQRect(layout::kColorButtons[at]));
    }
}

void frmMain::MakeInputButtons() {
    for (std::size_t i = 0; i < cmdInput_.size(); ++i) {
        const auto answer = static_cast<Answer>(i);
        const Rect place{0, 0, layout::kInputButton.width, layout::kInputButton.height};
        cmdInput_[i] = MakeButton(ButtonOf(answer), place, AnswerNames[i]);
        cmdInput_[i]->onPress = [this](MouseButton pressed) {
            if (pressed == MouseButton::kLeft) game_.table.Play(SoundSlot::kSmallClick);
        };
        cmdInput_[i]->onClick = [this, answer] { game_.table.inputBar.Click(answer); };
        game_.table.inputBar.PutAway(answer);
    }
}

void frmMain::MakeSmallButtons() {
    const auto clickOnPress = [this](MouseButton pressed) {
        if (pressed == MouseButton::kLeft) game_.table.Play(SoundSlot::kSmallClick);
    };
    cmdDuelBtn_ = MakeButton({Controls::cmdDuelBtn}, layout::kDuelButton, "Mind Duel");
    cmdDuelBtn_->onPress = clickOnPress;
    cmdDuelBtn_->onClick = [this] { game_.round.ClickDuel(); };
    cmdTmrBtn_ = MakeButton({Controls::cmdTmrBtn}, layout::kClockButton, "Clock");
    cmdTmrBtn_->setFocusPolicy(Qt::NoFocus);
    cmdHideBtn_ = MakeButton({Controls::cmdHideBtn}, layout::kHideButton, "Hide");
    cmdHideBtn_->onPress = clickOnPress;
    cmdHideBtn_->onClick = [this] { game_.hiding.HideToTray(); };
}

void frmMain::MakeHoles() {
    for (int column = 1; column <= kMaxColumns; ++column) {
        const Point at = PegAt(column, 1);
        auto* const hole = lblActiveRow_[column] =
            new ClickTarget(this, ClickTarget::Look::kInvisible);
        hole->setEnabled(false);
        Describe({Controls::lblActiveRow, column}, hole,
                 {at.x, at.y, kPegSize.width, kPegSize.height}, QString("Hole %1").arg(column));
        hole->onPress = [this, column](MouseButton pressed) {
            game_.pegs.PressHole(column, pressed);
        };
        hole->onDoubleClick = [this] { game_.pegs.DoubleClickRow(); };
    }
}

void frmMain::MakeCloneStrips() {
    for (std::size_t at = 0; at < lblCloneRow_.size(); ++at) {
        const int i = static_cast<int>(at);
        auto* const strip = lblCloneRow_[at] = new ClickTarget(this, ClickTarget::Look::kFramed);
        strip->hide();
        Describe({Controls::lblCloneRow, i}, strip, RowStrip(i + 1, kMaxColumns),
                 QString("Row %1").arg(i + 1));
        strip->onClick = [this, i] { game_.round.ChooseRow(i); };
    }
}

void frmMain::MakeLabels() {
    for (int line = 1; line <= kPanelLines; ++line) {
        auto* const label = lblDispRow_[line] = new MessageLabel(this);
        label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
        Describe({Controls::lblDispRow, line}, label,
                 layout::kMessageLines[static_cast<std::size_t>(line - 1)], {});
        popHelp_->WatchLine(label);
    }
    lblGTimer_ = new MessageLabel(this);
    lblGTimer_->setText(Text(FormatGameTime(0)));
    lblGTimer_->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    Describe({Controls::lblGTimer}, lblGTimer_, layout::kClockLabel, {});
    DressTexts({});
}

void frmMain::DressTexts(const TextStyles& styles) {
    const QFont letters = LiveFont(styles[TextKind::kMessages], layout::kMessagePixels);
    for (int line = 1; line <= kPanelLines; ++line) {
        const Rect& place = layout::kMessageLines[static_cast<std::size_t>(line - 1)];
        lblDispRow_[line]->setFont(letters);
        Place(lblDispRow_[line], WholeLine(ToQRect(place), letters));
    }
    DressPlace(styles);
    const TextStyle& clock = styles[TextKind::kClock];
    lblGTimer_->setFont(LiveFont(clock, layout::kClockPixels));
    lblGTimer_->SetColor(QColor::fromRgb(clock.color.value_or(kLightGreyInk)));
}

void frmMain::SetFonts(const std::string& root) {
    const SkinFonts fonts = FontsOfSkin(root);
    for (const std::string& fault : fonts.faults) ReportTrouble(fault);
    DressTexts(fonts.styles);
}

QWidget* frmMain::Widget(Control control) const {
    const auto at = static_cast<std::size_t>(control.index);
    switch (control.array) {
        case Controls::lblColorBackup:
            return lblColorBackup_.at(at);
        case Controls::lblActiveRow:
            return lblActiveRow_[control.index];
        case Controls::lblCloneRow:
            return lblCloneRow_.at(at);
        case Controls::lblDispRow:
            return lblDispRow_[control.index];
        case Controls::lblGTimer:
            return lblGTimer_;
        default:
            return Button(control);
    }
}

ImageButton* frmMain::Button(Control control) const {
    const auto at = static_cast<std::size_t>(control.index);
    switch (control.array) {
        case Controls::cmdMnuBtn:
            return cmdMnuBtn_.at(at);
        case Controls::cmdModeBtn:
            return cmdModeBtn_.at(at);
        case Controls::cmdColBtn:
            return cmdColBtn_.at(at);
        case Controls::cmdInput:
            return cmdInput_.at(at);
        case Controls::cmdDuelBtn:
            return cmdDuelBtn_;
        case Controls::cmdTmrBtn:
            return cmdTmrBtn_;
        case Controls::cmdHideBtn:
            return cmdHideBtn_;
        default:
            throw std::logic_error(NameOf(control) + " is no button");
    }
}

void frmMain::ShowNow(const Rect& rect) { RepaintNow(ToQRect(rect)); }

void frmMain::ShowLineNow(const Rect& line) { RepaintLineNow(ToQRect(line)); }

void frmMain::RepaintAll() { repaint(); }

void frmMain::SetEnabled(Control control, bool enabled) { Widget(control)->setEnabled(enabled); }

bool frmMain::IsEnabled(Control control) const { return Widget(control)->isEnabled(); }

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

void frmMain::SetClock(const std::string& time) { lblGTimer_->setText(Text(time)); }

void frmMain::SetMessageLine(int line, const MessageLine& content) {
    MessageLabel* const label = lblDispRow_[line];
    label->setEnabled(!content.text.empty());
    label->setVisible(!content.text.empty());
    label->SetColor(QColor::fromRgb(content.ink));
    const std::string_view end =
        std::string_view(content.text).substr(content.text.size() - content.kept);
    label->ShowText(Text(content.text), Text(end).size());
}

}  // namespace quendrel
