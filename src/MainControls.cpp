#include "MainControls.h"

#include <stdexcept>
#include <vector>

#include "ui/controls/BalloonHelp.h"
#include "ui/controls/ClickTarget.h"
#include "ui/controls/ImageButton.h"
#include "ui/controls/LiveText.h"
#include "ui/controls/MessageLabel.h"
#include "ui/controls/MouseButton.h"
#include "ui/controls/QtValues.h"
#include "ui/controls/SpokenText.h"
#include "ui/controls/ZoomedWindow.h"
#include "ui/layout/BoardGeometry.h"
#include "ui/layout/MainLayout.h"
#include "ui/main/HelpTexts.h"
#include "ui/main/Spoken.h"

namespace quendrel {

namespace {

/// The command buttons as they are read, row by row.
constexpr std::array kReadingOrder{
    CommandButton::kStart, CommandButton::kCheck,  CommandButton::kShow,  CommandButton::kClone,
    CommandButton::kHigh,  CommandButton::kConfig, CommandButton::kAbout, CommandButton::kExit,
};

/// The tabulator stops at one of the targets only.
template <class Targets>
void StopAt(QWidget* stop, const Targets& targets) {
    for (QWidget* const target : targets) {
        target->setFocusPolicy(target == stop ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

/// What can be done with a colour: the one in force cannot be switched off.
QString SwitchingOf(const ImageButton& color) {
    if (!color.isVisible() || color.IsHeld()) return {};
    return color.isEnabled() ? "Switch off" : "Switch on";
}

Rect PlaceOfRow(int row) {
    if (row != kCodeRowNumber) return RowStrip(row, kMaxColumns);
    const int arc = PegArc(3);
    const Point first = CodePegAt(1);
    return {first.x, first.y - arc, kColumnPitch * kMaxColumns, kPegSize.height + arc};
}

}  // namespace

MainControls::MainControls(ZoomedWindow& window, const Global& global, Game& game,
                           BalloonHelp& popHelp)
    : window_(window), global_(global), game_(game), popHelp_(popHelp) {
    MakeHoles();
    MakeCloneStrips();
    MakeColorButtons();
    MakeInputButtons();
    MakeModeButtons();
    MakeCommandButtons();
    MakeSmallButtons();
    MakeLabels();
    MakeSpokenRows();
    OrderTabs();
}

QWidget* MainControls::Widget(Control control) const {
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

ImageButton* MainControls::Button(Control control) const {
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

std::optional<Control> MainControls::Find(const QObject* widget) const {
    const auto found = byWidget_.find(widget);
    if (found == byWidget_.end()) return std::nullopt;
    return found->second;
}

void MainControls::FocusReached(Control control) {
    if (control.array == Controls::lblActiveRow) {
        game_.keys.HoleReached(control.index);
        StopAt(Widget(control), lblActiveRow_);
    } else if (control.array == Controls::lblCloneRow) {
        StopAt(Widget(control), lblCloneRow_);
    }
}

void MainControls::SetFonts(const TextStyles& styles) {
    const QFont letters = LiveFont(styles[TextKind::kMessages], layout::kMessagePixels);
    for (int line = 1; line <= kPanelLines; ++line) {
        const Rect& place = layout::kMessageLines[static_cast<std::size_t>(line - 1)];
        lblDispRow_[line]->setFont(letters);
        window_.Place(lblDispRow_[line], WholeLine(ToQRect(place), letters));
    }
    const TextStyle& clock = styles[TextKind::kClock];
    lblGTimer_->setFont(LiveFont(clock, layout::kClockPixels));
    lblGTimer_->SetColor(QColor::fromRgb(clock.color.value_or(kLightGreyInk)));
}

void MainControls::MakeHoles() {
    for (int column = 1; column <= kMaxColumns; ++column) {
        const Point at = PegAt(column, 1);
        auto* const hole = lblActiveRow_[column] =
            new ClickTarget(&window_, ClickTarget::Look::kInvisible);
        hole->setEnabled(false);
        Describe({Controls::lblActiveRow, column}, hole,
                 {at.x, at.y, kPegSize.width, kPegSize.height}, Text(SpokenHole(global_, column)));
        hole->onPress = [this, column](MouseButton pressed) {
            game_.pegs.PressHole(column, pressed);
        };
        hole->onDoubleClick = [this] { game_.pegs.DoubleClickRow(); };
    }
    StopAt(lblActiveRow_[1], lblActiveRow_);
}

void MainControls::MakeCloneStrips() {
    for (std::size_t at = 0; at < lblCloneRow_.size(); ++at) {
        const int i = static_cast<int>(at);
        auto* const strip = lblCloneRow_[at] =
            new ClickTarget(&window_, ClickTarget::Look::kFramed);
        strip->hide();
        Describe({Controls::lblCloneRow, i}, strip, RowStrip(i + 1, kMaxColumns),
                 QString("Row %1").arg(i + 1));
        strip->onClick = [this, i] { game_.round.ChooseRow(i); };
    }
    StopAt(lblCloneRow_.front(), lblCloneRow_);
}

void MainControls::MakeColorButtons() {
    for (std::size_t at = 0; at < cmdColBtn_.size(); ++at) {
        const int i = static_cast<int>(at);
        auto* const backup = lblColorBackup_[at] =
            new ClickTarget(&window_, ClickTarget::Look::kInvisible);
        Describe({Controls::lblColorBackup, i}, backup, layout::kColorButtons[at], {});
        backup->onPress = [this, i](MouseButton pressed) {
            game_.pegs.PressColorBackup(i + 1, pressed);
        };

        ImageButton* const button = cmdColBtn_[at] =
            MakeButton({Controls::cmdColBtn, i}, layout::kColorButtons[at], ColorNames[at]);
        button->onPress = [this, i](MouseButton pressed) {
            game_.pegs.PressColorButton(i + 1, pressed);
        };
        button->onRelease = [this](MouseButton) { game_.pegs.ReleaseColorButton(); };
        button->MakeChoice();
        button->otherAction = {[button] { return SwitchingOf(*button); },
                               [this, i] { game_.pegs.SwitchColor(i + 1); }};
        // The label is its parent, since a disabled button passes its presses on to its parent.
        button->setParent(backup);
        window_.Place(button, ToQRect(layout::kColorButtons[at]));
    }
}

void MainControls::MakeInputButtons() {
    for (std::size_t i = 0; i < cmdInput_.size(); ++i) {
        const auto answer = static_cast<Answer>(i);
        const Rect place{0, 0, layout::kInputButton.width, layout::kInputButton.height};
        cmdInput_[i] = MakeButton(ButtonOf(answer), place, AnswerNames[i]);
        cmdInput_[i]->onPress = [this](MouseButton pressed) {
            if (pressed == MouseButton::kLeft) game_.table.Play(SoundSlot::kSmallClick);
        };
        cmdInput_[i]->onClick = [this, answer] { game_.table.inputBar.Click(answer); };
    }
}

void MainControls::MakeModeButtons() {
    for (std::size_t at = 0; at < cmdModeBtn_.size(); ++at) {
        const int i = static_cast<int>(at);
        ImageButton* const button = cmdModeBtn_[at] =
            MakeButton({Controls::cmdModeBtn, i}, layout::kModeButtons[at], ModeNames[at]);
        button->onPress = [this, i](MouseButton pressed) {
            game_.modes.PressModeButton(i, pressed);
        };
        button->onRelease = [this](MouseButton) { game_.modes.ReleaseModeButton(); };
        button->onClick = [this, i] { game_.modes.ClickModeButton(i); };
        button->MakeChoice();
    }
}

void MainControls::MakeCommandButtons() {
    for (std::size_t i = 0; i < cmdMnuBtn_.size(); ++i) {
        const auto command = static_cast<CommandButton>(i);
        cmdMnuBtn_[i] = MakeButton(ButtonOf(command), layout::kMenuButtons[i], ButtonNames[i]);
        cmdMnuBtn_[i]->setEnabled(command != CommandButton::kHigh && kIdle[command] == 1);
        cmdMnuBtn_[i]->onPress = [this](MouseButton pressed) {
            if (pressed == MouseButton::kLeft) game_.table.Play(SoundSlot::kBigClick);
        };
    }
}

void MainControls::MakeSmallButtons() {
    const auto clickOnPress = [this](MouseButton pressed) {
        if (pressed == MouseButton::kLeft) game_.table.Play(SoundSlot::kSmallClick);
    };
    cmdDuelBtn_ = MakeButton({Controls::cmdDuelBtn}, layout::kDuelButton, "Mind Duel");
    cmdDuelBtn_->onPress = clickOnPress;
    cmdDuelBtn_->onClick = [this] { game_.round.ClickDuel(); };
    cmdTmrBtn_ = MakeButton({Controls::cmdTmrBtn}, layout::kClockButton, "Clock");
    cmdTmrBtn_->MakePicture();
    cmdHideBtn_ = MakeButton({Controls::cmdHideBtn}, layout::kHideButton, "Hide");
    cmdHideBtn_->onPress = clickOnPress;
    cmdHideBtn_->onClick = [this] { game_.hiding.HideToTray(); };
}

void MainControls::MakeLabels() {
    for (int line = 1; line <= kPanelLines; ++line) {
        auto* const label = lblDispRow_[line] = new MessageLabel(&window_);
        label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
        Describe({Controls::lblDispRow, line}, label,
                 layout::kMessageLines[static_cast<std::size_t>(line - 1)], {});
        popHelp_.WatchLine(label);
    }
    lblGTimer_ = new MessageLabel(&window_);
    lblGTimer_->setText(Text(FormatGameTime(0)));
    lblGTimer_->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    Describe({Controls::lblGTimer}, lblGTimer_, layout::kClockLabel, "Clock");
}

/// Row 1 is the lowest on the board, and is read first.
void MainControls::MakeSpokenRows() {
    for (int row = 0; row <= kMaxRows; ++row) {
        spokenRows_[static_cast<std::size_t>(row)] =
            new SpokenText(&window_, ToQRect(PlaceOfRow(row)));
    }
}

/// The tabulator goes as the window is read: questions, small buttons, modes, the row, colours,
/// commands.
void MainControls::OrderTabs() {
    std::vector<QWidget*> order(cmdInput_.begin(), cmdInput_.end());
    order.insert(order.end(), {cmdDuelBtn_, cmdHideBtn_});
    order.insert(order.end(), cmdModeBtn_.begin(), cmdModeBtn_.end());
    order.insert(order.end(), lblActiveRow_.begin(), lblActiveRow_.end());
    order.insert(order.end(), lblCloneRow_.rbegin(), lblCloneRow_.rend());
    order.insert(order.end(), cmdColBtn_.begin(), cmdColBtn_.end());
    for (const CommandButton button : kReadingOrder) order.push_back(Button(ButtonOf(button)));
    for (std::size_t i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

ImageButton* MainControls::MakeButton(Control control, const Rect& place,
                                      std::string_view caption) {
    auto* const button = new ImageButton(&window_);
    Describe(control, button, place, Text(caption));
    return button;
}

void MainControls::Describe(Control control, QWidget* widget, const Rect& place,
                            const QString& name) {
    widget->setObjectName(Text(NameOf(control)));
    widget->setAccessibleName(name);
    widget->setAccessibleDescription(Text(HelpText(control)));
    window_.Place(widget, ToQRect(place));
    popHelp_.Watch(widget);
    byWidget_[widget] = control;
    widget->installEventFilter(&window_);
}

}  // namespace quendrel
