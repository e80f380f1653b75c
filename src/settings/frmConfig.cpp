// The configuration window.
#include "settings/frmConfig.h"

#include <algorithm>

#include <QKeyEvent>

#include "platform/Doors.h"
#include "ui/controls/BalloonHelp.h"
#include "ui/controls/LiveText.h"
#include "ui/controls/NameBox.h"
#include "ui/controls/QtValues.h"
#include "ui/skin/SkinFiles.h"
#include "ui/skin/WindowShape.h"

namespace quendrel {

namespace {

/// Texts keep this far from the sides of their wells, and lists from top and bottom.
constexpr int kWellMargin = 5;
constexpr int kListMargin = 6;

constexpr QRgb kLightInk = 0xFFEBE6DA;
constexpr QRgb kDarkInk = 0xFF1C120A;
/// A ground that is lighter than this (of 255) is written on in dark.
constexpr int kLightGround = 110;

QRect LineInside(const Rect& well) {
    return ToQRect(well).adjusted(kWellMargin, 0, -kWellMargin, 0);
}

QRect ListInside(const Rect& well) {
    return LineInside(well).adjusted(0, kListMargin, 0, -kListMargin);
}

/// What a skin's picture has in the middle of a well.
QColor GroundOf(const Picture& background, const Rect& well) {
    const int x = well.left + well.width / 2;
    const int y = well.top + well.height / 2;
    if (x >= background.width() || y >= background.height()) return Qt::black;
    return QColor::fromRgb(static_cast<QRgb>(background.At(x, y)));
}

QColor InkOn(const QColor& ground) {
    return QColor::fromRgb(qGray(ground.rgb()) > kLightGround ? kDarkInk : kLightInk);
}

/// The box lets the picture of its well show through.
void ColorBox(NameBox& box, const QColor& ground) {
    box.SetColors(InkOn(ground), ground, Qt::transparent);
}

/// Not where a menu gives the focus back: the next key would wipe what the menu has pasted.
bool SelectsAll(Qt::FocusReason reason) {
    return reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason ||
           reason == Qt::BacktabFocusReason || reason == Qt::ActiveWindowFocusReason;
}

}  // namespace

frmConfig::frmConfig(Global& global, PictureReader& pictures, MainView& window, Duel& duel,
                     SoundEffects& sounds, Music& music)
    : SkinnedWindow("frmConfig"),
      global_(global),
      pictures_(pictures),
      logic_(global, window, duel, sounds, music, *this),
      lblSkin_(this, layout::kConfigTextPixels),
      lblBestOf_(this, layout::kConfigTextPixels),
      lstFileList_(this),
      lstPlayList_(this),
      popHelp_(new BalloonHelp(this)) {
    setFocusPolicy(Qt::StrongFocus);
    const std::string root = SkinRoot(global_);
    if (const auto mask = ReadMask(pictures, root, "Config")) ShapeFrom(*mask, kCutWhite);
    MakeSwitches();
    MakeButtons();
    MakeLabels();
    MakeNameBoxes();
    MakeLists();
    OrderTabs();
    onCloseRequest = [this] { logic_.ClickCancel(); };
    logic_.Load();
    setFocus();
}

void frmConfig::MakeSwitches() {
    for (std::size_t i = 0; i < switches_.size(); ++i) {
        const layout::ConfigPlace& design = layout::kConfigSwitches[i];
        auto* const button = new ImageButton(this);
        button->setObjectName(Text(kSwitchControls[i].name));
        button->setAccessibleName(Text(design.caption));
        button->setAccessibleDescription(Text(kSwitchControls[i].help));
        button->setCheckable(true);
        button->move(design.place.left, design.place.top);
        button->onPress = [this](MouseButton pressed) { logic_.PressSwitch(pressed); };
        button->onClick = [this, i] { logic_.ClickSwitch(static_cast<Switch>(i)); };
        // Assistive technology switches it without a press.
        connect(button, &QAbstractButton::toggled, this, [this, i, button](bool on) {
            if (on != logic_.IsOn(static_cast<Switch>(i))) button->click();
        });
        popHelp_->Watch(button);
        switches_[i] = button;
    }
}

void frmConfig::MakeButtons() {
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        const layout::ConfigPlace& design = layout::kConfigButtons[i];
        auto* const button = new ImageButton(this);
        button->setObjectName(Text(kButtonControls[i].name));
        const std::string_view spoken = kButtonControls[i].spoken;
        button->setAccessibleName(Text(spoken.empty() ? design.caption : spoken));
        button->setAccessibleDescription(Text(kButtonControls[i].help));
        button->move(design.place.left, design.place.top);
        popHelp_->Watch(button);
        buttons_[i] = button;
    }
    for (const char* const name : {"cmdOk", "cmdCancel", "cmdDefault"}) {
        OnPress(name, [this](MouseButton pressed) { logic_.PressLargeButton(pressed); });
    }
    OnClick("cmdOk", [this] { logic_.ClickOk(); });
    OnClick("cmdCancel", [this] { logic_.ClickCancel(); });
    OnClick("cmdDefault", [this] { logic_.ClickDefault(); });
    OnPress("cmdSkin(1)", [this](MouseButton pressed) { logic_.PressSkin(1, pressed); });
    OnPress("cmdSkin(2)", [this](MouseButton pressed) { logic_.PressSkin(2, pressed); });
    OnPress("cmdBestOf(1)", [this](MouseButton pressed) { logic_.PressBestOf(1, pressed); });
    OnPress("cmdBestOf(2)", [this](MouseButton pressed) { logic_.PressBestOf(2, pressed); });
    OnPlaylistPress("cmdAdd", [](PlaylistEditor& list) { list.PressAdd(); });
    OnPlaylistPress("cmdAddAll", [](PlaylistEditor& list) { list.PressAddAll(); });
    OnPlaylistPress("cmdRemove", [](PlaylistEditor& list) { list.PressRemove(); });
    OnPlaylistPress("cmdRemoveAll", [](PlaylistEditor& list) { list.PressRemoveAll(); });
    OnPlaylistPress("cmdMove(1)", [](PlaylistEditor& list) { list.PressMove(1); });
    OnPlaylistPress("cmdMove(2)", [](PlaylistEditor& list) { list.PressMove(2); });
    OnPlaylistPress("cmdListen", [](PlaylistEditor& list) { list.PressListen(); });
    OnClick("cmdListen",
            [this] { logic_.EditPlaylist([](PlaylistEditor& list) { list.ClickListen(); }); });
}

ImageButton& frmConfig::ButtonCalled(const char* name) {
    const auto* const found =
        std::find_if(kButtonControls.begin(), kButtonControls.end(),
                     [name](const ConfigControl& control) { return control.name == name; });
    return *buttons_.at(static_cast<std::size_t>(found - kButtonControls.begin()));
}

void frmConfig::OnPress(const char* name, const std::function<void(MouseButton)>& act) {
    ButtonCalled(name).onPress = act;
}

void frmConfig::OnClick(const char* name, const std::function<void()>& act) {
    ButtonCalled(name).onClick = act;
}

void frmConfig::OnPlaylistPress(const char* name, const std::function<void(PlaylistEditor&)>& act) {
    OnPress(name, [this, act](MouseButton pressed) {
        if (pressed == MouseButton::kLeft) logic_.EditPlaylist(act);
    });
}

void frmConfig::MakeLabels() {
    const auto place = [](QLabel& label, const char* name, const Rect& well) {
        label.setObjectName(name);
        label.setGeometry(LineInside(well));
        label.setAlignment(Qt::AlignCenter);
    };
    place(lblSkin_, "lblSkin", layout::kConfigSkin);
    place(lblBestOf_, "lblBestOf", layout::kConfigBestOf);
    popHelp_->WatchLine(&lblSkin_);
}

void frmConfig::MakeNameBoxes() {
    for (int player = 1; player <= 2; ++player) {
        auto* const box = new NameBox(this, layout::kConfigTextPixels, AsOneLine);
        box->setObjectName(QString("txtPlayer(%1)").arg(player));
        box->setAccessibleName(QString("Player %1").arg(player));
        box->setGeometry(
            LineInside(layout::kConfigPlayers.at(static_cast<std::size_t>(player - 1))));
        box->installEventFilter(this);
        connect(box, &QLineEdit::textChanged, this, [this, player](const QString& text) {
            AtDoor([&] { logic_.EditPlayer(player, text.toStdString()); });
        });
        txtPlayer_[player] = box;
    }
}

void frmConfig::MakeLists() {
    lstFileList_.setObjectName("lstFileList");
    lstFileList_.setAccessibleName("Tunes");
    lstFileList_.setGeometry(ListInside(layout::kConfigFileList));
    lstFileList_.onPress = [this](int item) {
        logic_.EditPlaylist([item](PlaylistEditor& list) { list.PressFileList(item); });
    };
    lstPlayList_.setObjectName("lstPlayList");
    lstPlayList_.setAccessibleName("Playlist");
    lstPlayList_.setGeometry(ListInside(layout::kConfigPlayList));
    lstPlayList_.onPress = [this](int item) {
        logic_.EditPlaylist([item](PlaylistEditor& list) { list.PressPlayList(item); });
    };
    for (TuneListBox* const list : {&lstFileList_, &lstPlayList_}) {
        popHelp_->WatchText(list->viewport(), [list](QPoint at) { return list->CutTuneAt(at); });
    }
}

/// The tabulator goes the way that the window is read.
void frmConfig::OrderTabs() {
    // clang-format off
    constexpr std::array kOrder{
        "chkToolTips", "chkSoundFx",   "cmdSkin(1)",   "cmdSkin(2)",
        "chkSetColor", "chkMusic",     "chkPrvSkin",
        "chkGTimer",   "chkRndMusic",  "chkRndSkin",
        "chkMindDuel", "txtPlayer(1)", "txtPlayer(2)", "cmdBestOf(1)", "cmdBestOf(2)",
        "lstFileList", "cmdAdd",       "cmdAddAll",    "cmdRemove",    "cmdRemoveAll", "cmdListen",
        "lstPlayList", "cmdMove(1)",   "cmdMove(2)",
        "cmdDefault",  "cmdCancel",    "cmdOk",
    };
    // clang-format on
    QWidget* before = this;
    for (const char* const name : kOrder) {
        auto* const control = findChild<QWidget*>(name);
        setTabOrder(before, control);
        before = control;
    }
}

void frmConfig::LoadConfigSkin(int skin) {
    skin_ = ReadConfigSkin(pictures_, SkinRoot(global_, skin));
    SetFace(skin_.background);
    for (std::size_t i = 0; i < buttons_.size(); ++i) buttons_[i]->SetPictures(skin_.buttons[i]);
    for (std::size_t i = 0; i < switches_.size(); ++i) {
        switches_[i]->SetPictures(skin_.switches[i]);
    }
    ColorTexts();
    update();
}

void frmConfig::PreviewSkin(int skin) {
    ReadWholeSkin(pictures_, global_, skin);
    LoadConfigSkin(skin);
}

/// The texts take their ground from the wells of the skin's picture, and the ink that stands out.
void frmConfig::ColorTexts() {
    const Picture& background = skin_.background;
    lblSkin_.SetColor(InkOn(GroundOf(background, layout::kConfigSkin)));
    lblBestOf_.SetColor(InkOn(GroundOf(background, layout::kConfigBestOf)));
    ColorBox(*txtPlayer_[1], GroundOf(background, layout::kConfigPlayers[0]));
    ColorBox(*txtPlayer_[2], GroundOf(background, layout::kConfigPlayers[1]));
    const QColor files = GroundOf(background, layout::kConfigFileList);
    lstFileList_.SetColors(files, InkOn(files));
    const QColor tunes = GroundOf(background, layout::kConfigPlayList);
    lstPlayList_.SetColors(tunes, InkOn(tunes));
}

void frmConfig::SwitchHelp(bool on) { popHelp_->SwitchOn(on); }

void frmConfig::ShowAll() {
    for (std::size_t i = 0; i < switches_.size(); ++i) {
        const auto which = static_cast<Switch>(i);
        switches_[i]->setChecked(logic_.IsOn(which));
        switches_[i]->setEnabled(!logic_.IsLocked(which));
    }
    for (int player = 1; player <= 2; ++player) {
        const QString name = QString::fromStdString(logic_.PlayerName(player));
        if (txtPlayer_[player]->text() != name) txtPlayer_[player]->setText(name);
    }
    lblSkin_.setText(QString::fromStdString(logic_.SkinName()));
    lblBestOf_.setText(QString::number(logic_.BestOf()));
    lstFileList_.ShowTunes(logic_.playlist().FileList());
    lstPlayList_.ShowTunes(logic_.playlist().PlayList());
}

/// A name box that gets the focus selects its whole text, once the press that gave it is through.
bool frmConfig::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn &&
        SelectsAll(static_cast<const QFocusEvent*>(event)->reason())) {
        QMetaObject::invokeMethod(watched, "selectAll", Qt::QueuedConnection);
    }
    return SkinnedWindow::eventFilter(watched, event);
}

void frmConfig::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        AtDoor([this] { logic_.ClickCancel(); });
    } else {
        SkinnedWindow::keyPressEvent(event);
    }
}

}  // namespace quendrel
