// The main window.
#include "frmMain.h"

#include <QCloseEvent>
#include <QPainter>

#include "StartUp.h"
#include "platform/Clock.h"
#include "settings/SettingsStore.h"
#include "ui/ClickTarget.h"
#include "ui/HelpTexts.h"
#include "ui/ImageButton.h"
#include "ui/MainLayout.h"
#include "ui/MessageLabel.h"
#include "ui/PictureImage.h"

namespace quendrel {

namespace {

QString Text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QFont LiveFont(int pixels) {
    QFont font(Text(layout::kTextFamily));
    font.setPixelSize(pixels);
    return font;
}

}  // namespace

frmMain::frmMain(Global& global, const Machine& machine, SettingsStore& store,
                 PictureReader& pictures)
    : global_(global),
      store_(store),
      pictures_(pictures),
      systemClock_(machine.clock),
      image_(kBoardSize.width, kBoardSize.height),
      hooks_(Hooks()),
      game_(global, machine, *this, hooks_) {
    setObjectName("frmMain");
    setWindowTitle(Text(kAppName));
    setFixedSize(kBoardSize.width, kBoardSize.height);
    setAttribute(Qt::WA_OpaquePaintEvent);
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
}

void frmMain::Load() { LoadMainWindow(global_, game_, store_, pictures_); }

void frmMain::Run() {
    show();
    systemClock_.PumpEvents(0);
    ActivateFirst(game_);
    game_.idle.Run();
}

RoundHooks frmMain::Hooks() {
    RoundHooks hooks;
    hooks.saveOnLeaving = [this] { store_.SaveSettings(); };
    return hooks;
}

/// A control whose window or dialogue is not there yet stays disabled.
bool frmMain::HasNothingBehind(Control control) const {
    switch (control.array) {
        case Controls::cmdMnuBtn:
            return (control.index == kAbout && !hooks_.showAbout) ||
                   (control.index == kConfig && !hooks_.showConfig) ||
                   (control.index == kHigh && !hooks_.showHighscores);
        case Controls::cmdDuelBtn:
        case Controls::cmdHideBtn: return true;
        default: return false;
    }
}

void frmMain::Add(Control control, QWidget* widget, const Rect& place, const QString& name) {
    widget->setObjectName(Text(NameOf(control)));
    widget->setAccessibleName(name);
    widget->setAccessibleDescription(Text(HelpText(control)));
    widget->setGeometry(place.left, place.top, place.width, place.height);
    controls_.emplace(control, widget);
}

ImageButton* frmMain::MakeButton(Control control, const Rect& place, std::string_view caption) {
    auto* const button = new ImageButton(this);
    Add(control, button, place, Text(caption));
    return button;
}

void frmMain::MakeCommandButtons() {
    for (int i = 0; i < 8; ++i) {
        const auto at = static_cast<std::size_t>(i);
        ImageButton* const button =
            MakeButton({Controls::cmdMnuBtn, i}, layout::kMenuButtons[at], ButtonNames[at]);
        button->setEnabled(i != kHigh && kIdle[at] == 1 &&
                           !HasNothingBehind({Controls::cmdMnuBtn, i}));
        button->onPress = [this](MouseButton pressed) {
            if (pressed == MouseButton::kLeft) game_.table.Play(kBigClick);
        };
        button->onClick = [this, i] { game_.round.Click(static_cast<CommandButton>(i)); };
    }
}

void frmMain::MakeModeButtons() {
    for (int i = 0; i < 3; ++i) {
        const auto at = static_cast<std::size_t>(i);
        ImageButton* const button =
            MakeButton({Controls::cmdModeBtn, i}, layout::kModeButtons[at], ModeNames[at]);
        button->onPress = [this, i](MouseButton pressed) {
            game_.modes.PressModeButton(i, pressed);
        };
        button->onRelease = [this, i](MouseButton released) {
            game_.modes.ReleaseModeButton(i, released);
        };
    }
}

void frmMain::MakeColorButtons() {
    for (int i = 0; i < kColorCount; ++i) {
        const auto at = static_cast<std::size_t>(i);
        auto* const backup = new ClickTarget(this, ClickTarget::Look::kInvisible);
        Add({Controls::lblColorBackup, i}, backup, layout::kColorButtons[at],
            Text("Behind " + std::string(ColorNames[at])));
        backup->onPress = [this, i](MouseButton pressed) {
            game_.pegs.PressColorBackup(i + 1, pressed);
        };

        ImageButton* const button =
            MakeButton({Controls::cmdColBtn, i}, layout::kColorButtons[at], ColorNames[at]);
        button->onPress = [this, i](MouseButton pressed) {
            game_.pegs.PressColorButton(i + 1, pressed);
        };
    }
}

void frmMain::MakeInputButtons() {
    for (int i = 0; i < 3; ++i) {
        const Rect place{0, 0, layout::kInputButton.width, layout::kInputButton.height};
        ImageButton* const button = MakeButton({Controls::cmdInput, i}, place,
                                               AnswerNames[static_cast<std::size_t>(i)]);
        button->onPress = [this](MouseButton pressed) {
            if (pressed == MouseButton::kLeft) game_.table.Play(kSmallClick);
        };
        button->onClick = [this, i] { game_.table.inputBar.Click(static_cast<Answer>(i)); };
        game_.table.inputBar.PutAway(static_cast<Answer>(i));
    }
}

void frmMain::MakeSmallButtons() {
    for (const auto& [control, place, caption] :
         {std::tuple{Control{Controls::cmdDuelBtn}, layout::kDuelButton, "Mind Duel"},
          std::tuple{Control{Controls::cmdTmrBtn}, layout::kClockButton, "Clock"},
          std::tuple{Control{Controls::cmdHideBtn}, layout::kHideButton, "Hide"}}) {
        MakeButton(control, place, caption)->setEnabled(!HasNothingBehind(control));
    }
}

void frmMain::MakeHoles() {
    for (int column = 1; column <= kMaxColumns; ++column) {
        const Point at = PegAt(column, 1);
        auto* const hole = new ClickTarget(this, ClickTarget::Look::kInvisible);
        hole->setEnabled(false);
        Add({Controls::lblActiveRow, column}, hole,
            {at.x, at.y, kPegSize.width, kPegSize.height}, QString("Hole %1").arg(column));
        hole->onPress = [this, column](MouseButton pressed) {
            game_.pegs.PressHole(column, pressed);
        };
        hole->onDoubleClick = [this] { game_.pegs.DoubleClickRow(); };
    }
}

void frmMain::MakeCloneStrips() {
    for (int i = 0; i < kMaxRows - 1; ++i) {
        auto* const strip = new ClickTarget(this, ClickTarget::Look::kFramed);
        strip->hide();
        Add({Controls::lblCloneRow, i}, strip, {0, 0, 0, kRowPitch}, QString("Row %1").arg(i + 1));
        strip->onPress = [this, i](MouseButton) { game_.round.ChooseRow(i); };
    }
}

void frmMain::MakeLabels() {
    for (int line = 1; line <= 4; ++line) {
        auto* const label = new MessageLabel(this);
        label->setFont(LiveFont(layout::kMessagePixels));
        label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
        Add({Controls::lblDispRow, line}, label,
            layout::kMessageLines[static_cast<std::size_t>(line - 1)], {});
    }
    auto* const clock = new MessageLabel(Text(FormatGameTime(0)), this);
    clock->setFont(LiveFont(layout::kClockPixels));
    clock->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    clock->SetColor(QColor(235, 235, 235));
    Add({Controls::lblGTimer}, clock, layout::kClockLabel, {});
}

void frmMain::ShowNow(const Rect& rect) {
    repaint(rect.left, rect.top, rect.width, rect.height);
}

void frmMain::RepaintAll() { repaint(); }

void frmMain::SetEnabled(Control control, bool enabled) {
    Widget(control)->setEnabled(enabled && !HasNothingBehind(control));
}

bool frmMain::IsEnabled(Control control) const { return Widget(control)->isEnabled(); }

void frmMain::SetVisible(Control control, bool visible) { Widget(control)->setVisible(visible); }

void frmMain::SetLeft(Control control, int left) {
    Widget(control)->move(left, Widget(control)->y());
}

void frmMain::SetTop(Control control, int top) {
    Widget(control)->move(Widget(control)->x(), top);
}

void frmMain::SetWidth(Control control, int width) {
    Widget(control)->resize(width, Widget(control)->height());
}

void frmMain::SetPictures(Control control, const ButtonPictures& pictures) {
    static_cast<ImageButton*>(Widget(control))->SetPictures(pictures);
}

void frmMain::SetHeld(Control control, bool held) {
    static_cast<ImageButton*>(Widget(control))->SetHeld(held);
}

void frmMain::SetCaption(Control control, const std::string& caption) {
    static_cast<QLabel*>(Widget(control))->setText(Text(caption));
}

void frmMain::SetMessageLine(int line, const MessageLine& content) {
    auto* const label = static_cast<MessageLabel*>(Widget({Controls::lblDispRow, line}));
    label->setEnabled(!content.text.empty());
    label->setVisible(!content.text.empty());
    label->SetColor(QColor(static_cast<int>(content.rgb & 0xFF),
                           static_cast<int>(content.rgb >> 8 & 0xFF),
                           static_cast<int>(content.rgb >> 16 & 0xFF)));
    label->setText(Text(content.text));
}

/// The window manager's wish to close the window is a click on "Exit".
void frmMain::closeEvent(QCloseEvent* event) {
    event->ignore();
    auto* const exit = static_cast<ImageButton*>(Widget({Controls::cmdMnuBtn, kExit}));
    QMetaObject::invokeMethod(exit, &QAbstractButton::click, Qt::QueuedConnection);
}

void frmMain::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const QImage image = ImageOf(image_);
    for (const QRect& rect : event->region()) painter.drawImage(rect, image, rect);
}

}  // namespace quendrel
