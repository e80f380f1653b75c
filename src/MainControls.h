// The controls of the main window: where they stand, what they are called, what their presses ask
// of the game, and how the tabulator goes through them.
#pragma once

#include <array>
#include <map>
#include <optional>
#include <string_view>

#include <QString>

#include "Geometry.h"
#include "Global.h"
#include "OneBased.h"
#include "game/Game.h"
#include "ui/layout/Control.h"
#include "ui/skin/SkinFonts.h"

class QObject;
class QWidget;

namespace quendrel {

class BalloonHelp;
class ClickTarget;
class ImageButton;
class MessageLabel;
class SpokenText;
class ZoomedWindow;

class MainControls {
public:
    /// Makes the controls, which belong to `window`; it also filters their events. The command
    /// buttons sound, but do nothing yet.
    MainControls(ZoomedWindow& window, const Global& global, Game& game, BalloonHelp& popHelp);
    MainControls(const MainControls&) = delete;
    MainControls& operator=(const MainControls&) = delete;

    QWidget* Widget(Control control) const;

    /// Throws std::logic_error for a control that is no button.
    ImageButton* Button(Control control) const;

    /// Which control the widget is; nothing for one that is none, or for null.
    std::optional<Control> Find(const QObject* widget) const;

    /// A line of the message panel, 1 to 4.
    MessageLabel* Line(int line) const { return lblDispRow_[line]; }

    MessageLabel* Clock() const { return lblGTimer_; }

    /// What a screen reader finds in a row of the board; row 0 is the code row.
    SpokenText* Row(int row) const { return spokenRows_.at(static_cast<std::size_t>(row)); }

    /// The control has the focus: of the holes, and of the strips, the tabulator stops at one
    /// alone, the last that had it.
    void FocusReached(Control control);

    void SetFonts(const TextStyles& styles);

private:
    void MakeHoles();
    void MakeCloneStrips();
    void MakeColorButtons();
    void MakeInputButtons();
    void MakeModeButtons();
    void MakeCommandButtons();
    void MakeSmallButtons();
    void MakeLabels();
    void MakeSpokenRows();
    void OrderTabs();
    ImageButton* MakeButton(Control control, const Rect& place, std::string_view caption);
    void Describe(Control control, QWidget* widget, const Rect& place, const QString& name);

    ZoomedWindow& window_;
    const Global& global_;
    Game& game_;
    BalloonHelp& popHelp_;

    std::array<ImageButton*, kCommandButtons> cmdMnuBtn_{};
    std::array<ImageButton*, kModes.size()> cmdModeBtn_{};
    std::array<ImageButton*, kColorCount> cmdColBtn_{};
    std::array<ClickTarget*, kColorCount> lblColorBackup_{};
    std::array<ImageButton*, kAnswers> cmdInput_{};
    OneBased<ClickTarget*, kMaxColumns> lblActiveRow_;
    std::array<ClickTarget*, kMaxRows - 1> lblCloneRow_{};
    OneBased<MessageLabel*, kPanelLines> lblDispRow_;
    ImageButton* cmdDuelBtn_ = nullptr;
    ImageButton* cmdTmrBtn_ = nullptr;
    ImageButton* cmdHideBtn_ = nullptr;
    MessageLabel* lblGTimer_ = nullptr;
    std::array<SpokenText*, kMaxRows + 1> spokenRows_{};
    std::map<const QObject*, Control> byWidget_;
};

}  // namespace quendrel
