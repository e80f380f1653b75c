#include "settings/frmConfig.h"

#include <utility>

#include <QKeyEvent>

#include "platform/Doors.h"
#include "platform/Errors.h"
#include "settings/GivenSkin.h"
#include "ui/controls/BalloonHelp.h"
#include "ui/controls/LiveText.h"
#include "ui/controls/NameBox.h"
#include "ui/controls/PlaceMarker.h"
#include "ui/controls/QtValues.h"
#include "ui/layout/ConfigLayout.h"
#include "ui/skin/ShownTree.h"
#include "ui/skin/SkinFiles.h"
#include "ui/skin/WindowShape.h"

namespace quendrel {

namespace {

/// How far texts and lists keep from the edges of their wells.
constexpr QMargins kLineMargins{5, 0, 5, 0};
constexpr QMargins kListMargins{5, 6, 5, 6};

constexpr QRgb kLightInk = 0xFFEBE6DA;
constexpr QRgb kDarkInk = 0xFF1C120A;
/// A ground that is lighter than this (of 255) is written on in dark.
constexpr int kLightGround = 110;

QRect LineInside(const Rect& well) { return ToQRect(well) - kLineMargins; }

QRect ListInside(const Rect& well) { return ToQRect(well) - kListMargins; }

/// What a skin's picture has in the middle of a well.
QColor GroundOf(const Picture& background, const Rect& well) {
    const int x = (well.left + well.width / 2) * background.density();
    const int y = (well.top + well.height / 2) * background.density();
    if (x >= background.width() || y >= background.height()) return Qt::black;
    return QColor::fromRgb(static_cast<QRgb>(background.At(x, y)));
}

QColor InkOn(const QColor& ground) {
    return QColor::fromRgb(qGray(ground.rgb()) > kLightGround ? kDarkInk : kLightInk);
}

/// Not where a menu gives the focus back: the next key would wipe what the menu has pasted.
bool SelectsAll(Qt::FocusReason reason) {
    return reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason ||
           reason == Qt::BacktabFocusReason || reason == Qt::ActiveWindowFocusReason;
}

}  // namespace

frmConfig::frmConfig(Global& global, PictureReader pictures, MainView& window, Duel& duel,
                     SoundEffects& sounds, Music& music)
    : SkinnedWindow("frmConfig", global.View, Qt::Dialog),
      global_(global),
      pictures_(std::move(pictures)),
      logic_(global, window, duel, sounds, music, *this),
      lblSkin_(this),
      lblBestOf_(this),
      lstFileList_(this),
      lstPlayList_(this),
      popHelp_(new BalloonHelp(this)) {
    setWindowTitle("Quendrel: Configuration");
    setFocusPolicy(Qt::StrongFocus);
    ShapeFrom(ReadMasks(pictures_, global_, global_.Settings.SkinPtr, kConfigMask));
    MakeSwitches();
    MakeButtons();
    MakeLabels();
    MakeNameBoxes();
    MakeLists();
    SetTabs();
    onCloseRequest = [this] { logic_.ClickCancel(); };
    TakeGifts({[] { return true; },
               [this, &window](const std::string& path) {
                   const auto skin = TakeGivenSkin(global_, pictures_, window, path);
                   if (skin) logic_.BrowseTo(*skin);
               }});
    logic_.Load();
    setFocus();
}

ImageButton* frmConfig::MakeButton(const ConfigControl& design, std::string_view spoken) {
    auto* const button = new ImageButton(this);
    button->setObjectName(Text(design.name));
    button->setAccessibleName(Text(spoken));
    button->setAccessibleDescription(Text(design.help));
    Place(button, ToQRect(design.place));
    popHelp_->Watch(button);
    return button;
}

void frmConfig::MakeSwitches() {
    for (const SwitchDesign& design : kConfigSwitches) {
        const Switch which = design.which;
        ImageButton* const button = MakeButton(design, design.caption);
        button->setCheckable(true);
        button->onPress = [this](MouseButton pressed) { logic_.PressSwitch(pressed); };
        button->onClick = [this, which] { logic_.ClickSwitch(which); };
        // Assistive technology switches it without a press.
        connect(button, &QAbstractButton::toggled, this, [this, which, button](bool on) {
            if (on != logic_.IsOn(which)) button->click();
        });
        switches_[which] = button;
    }
}

void frmConfig::MakeButtons() {
    using enum ConfigButton;
    for (const ButtonDesign& design : kConfigButtons) {
        buttons_[design.which] =
            MakeButton(design, design.spoken.empty() ? design.caption : design.spoken);
    }
    for (const ConfigButton which : {cmdOk, cmdCancel, cmdDefault}) {
        OnPress(which, [this](MouseButton pressed) { logic_.PressLargeButton(pressed); });
    }
    OnClick(cmdOk, [this] {
        TakeNames();
        logic_.ClickOk();
    });
    OnClick(cmdCancel, [this] { logic_.ClickCancel(); });
    OnClick(cmdDefault, [this] { logic_.ClickDefault(); });
    OnPress(cmdSkin1, [this](MouseButton pressed) { logic_.PressSkin(1, pressed); });
    OnPress(cmdSkin2, [this](MouseButton pressed) { logic_.PressSkin(2, pressed); });
    OnPress(cmdBestOf1, [this](MouseButton pressed) { logic_.PressBestOf(1, pressed); });
    OnPress(cmdBestOf2, [this](MouseButton pressed) { logic_.PressBestOf(2, pressed); });
    OnPlaylistPress(cmdAdd, [](PlaylistEditor& list) { list.PressAdd(); });
    OnPlaylistPress(cmdAddAll, [](PlaylistEditor& list) { list.PressAddAll(); });
    OnPlaylistPress(cmdRemove, [](PlaylistEditor& list) { list.PressRemove(); });
    OnPlaylistPress(cmdRemoveAll, [](PlaylistEditor& list) { list.PressRemoveAll(); });
    OnPlaylistPress(cmdMove1, [](PlaylistEditor& list) { list.PressMove(1); });
    OnPlaylistPress(cmdMove2, [](PlaylistEditor& list) { list.PressMove(2); });
    OnPlaylistPress(cmdListen, [](PlaylistEditor& list) { list.PressListen(); });
    OnClick(cmdListen,
            [this] { logic_.EditPlaylist([](PlaylistEditor& list) { list.ClickListen(); }); });
}

void frmConfig::OnPress(ConfigButton which, const std::function<void(MouseButton)>& act) {
    buttons_[which]->onPress = act;
}

void frmConfig::OnClick(ConfigButton which, const std::function<void()>& act) {
    buttons_[which]->onClick = act;
}

void frmConfig::OnPlaylistPress(ConfigButton which,
                                const std::function<void(PlaylistEditor&)>& act) {
    OnPress(which, [this, act](MouseButton pressed) {
        if (pressed == MouseButton::kLeft) logic_.EditPlaylist(act);
    });
}

void frmConfig::MakeLabels() {
    const auto place = [this](QLabel& label, const char* name, const char* spoken,
                              const Rect& well) {
        label.setObjectName(name);
        label.setAccessibleName(spoken);
        Place(&label, LineInside(well));
        label.setAlignment(Qt::AlignCenter);
    };
    place(lblSkin_, "lblSkin", "Skin", layout::kConfigSkin);
    place(lblBestOf_, "lblBestOf", "Rounds", layout::kConfigBestOf);
    popHelp_->WatchLine(&lblSkin_);
}

void frmConfig::MakeNameBoxes() {
    for (int player = 1; player <= 2; ++player) {
        auto* const box = new NameBox(this, LiveFont({}, layout::kConfigTextPixels), AsOneLine);
        box->setObjectName(QString("txtPlayer(%1)").arg(player));
        box->setAccessibleName(QString("Player %1").arg(player));
        Place(box, LineInside(layout::kConfigPlayers.at(static_cast<std::size_t>(player - 1))));
        KeepSignOff(box, kLineMargins);
        box->installEventFilter(this);
        connect(box, &QLineEdit::textChanged, this, [this, player](const QString& text) {
            AtDoor([&] { logic_.EditPlayer(player, text.toStdString()); });
        });
        txtPlayer_[player] = box;
    }
}

/// As they are shown: a name that an input method composes is not in its box yet.
void frmConfig::TakeNames() {
    for (int player = 1; player <= 2; ++player) {
        logic_.EditPlayer(player, txtPlayer_[player]->Name().toStdString());
    }
}

void frmConfig::MakeLists() {
    lstFileList_.setObjectName("lstFileList");
    lstFileList_.setAccessibleName("Tunes");
    Place(&lstFileList_, ListInside(layout::kConfigFileList));
    lstFileList_.onPress = [this](int item) {
        logic_.EditPlaylist([item](PlaylistEditor& list) { list.PressFileList(item); });
    };
    lstPlayList_.setObjectName("lstPlayList");
    lstPlayList_.setAccessibleName("Playlist");
    Place(&lstPlayList_, ListInside(layout::kConfigPlayList));
    lstPlayList_.onPress = [this](int item) {
        logic_.EditPlaylist([item](PlaylistEditor& list) { list.PressPlayList(item); });
    };
    for (TuneListBox* const list : {&lstFileList_, &lstPlayList_}) {
        KeepSignOff(list, kListMargins);
        popHelp_->WatchText(list->viewport(), [list](QPoint at) { return list->CutTuneAt(at); });
    }
}

/// The way that the window is read.
void frmConfig::SetTabs() {
    using enum Switch;
    using enum ConfigButton;
    // clang-format off
    OrderTabs({
        switches_[chkToolTips], switches_[chkSoundFx],  buttons_[cmdSkin1], buttons_[cmdSkin2],
        switches_[chkSetColor], switches_[chkMusic],    switches_[chkPrvSkin],
        switches_[chkGTimer],   switches_[chkRndMusic], switches_[chkRndSkin],
        switches_[chkMindDuel], txtPlayer_[1],          txtPlayer_[2],
        buttons_[cmdBestOf1],   buttons_[cmdBestOf2],
        &lstFileList_,          buttons_[cmdAdd],       buttons_[cmdAddAll], buttons_[cmdRemove],
        buttons_[cmdRemoveAll], buttons_[cmdListen],
        &lstPlayList_,          buttons_[cmdMove1],     buttons_[cmdMove2],
        buttons_[cmdDefault],   buttons_[cmdCancel],    buttons_[cmdOk],
    });
    // clang-format on
}

SkinFonts frmConfig::PutOn(int skin) {
    skin_ = ReadTree(pictures_, TreeOf(global_, skin, DensityWanted()), kConfigMask,
                     [this](const SkinTree& tree) { return ReadConfigSkin(pictures_, tree); });
    shownSkin_ = NameOfSkin(global_, static_cast<std::int16_t>(skin));
    SetFace(skin_.background);
    for (const ButtonDesign& design : kConfigButtons) {
        buttons_[design.which]->SetPictures(skin_.buttons[design.which]);
    }
    for (const SwitchDesign& design : kConfigSwitches) {
        switches_[design.which]->SetPictures(skin_.switches[design.which]);
    }
    SkinFonts fonts = FontsOfSkin(SkinRoot(global_, skin));
    DressTexts(fonts.styles[TextKind::kConfig]);
    DressPlace(fonts.styles);
    update();
    return fonts;
}

/// The skin in use: what is wrong with its fonts was said when it came into use.
void frmConfig::LoadConfigSkin(int skin) { PutOn(skin); }

void frmConfig::PreviewSkin(int skin) {
    ReadWholeSkin(pictures_, global_, skin, DensityWanted());
    const SkinFonts fonts = PutOn(skin);
    for (const std::string& fault : fonts.faults) ReportTrouble(fault);
}

/// The texts take their ground from the wells of the skin's picture, and ink that stands out where
/// the skin says none.
void frmConfig::DressTexts(const TextStyle& style) {
    const auto inkOn = [&style](const QColor& ground) {
        return style.color ? QColor::fromRgb(*style.color) : InkOn(ground);
    };
    const QFont letters = LiveFont(style, layout::kConfigTextPixels);
    const auto dressLabel = [&](MessageLabel& label, const Rect& well) {
        label.setFont(letters);
        label.SetColor(inkOn(GroundOf(skin_.background, well)));
    };
    dressLabel(lblSkin_, layout::kConfigSkin);
    dressLabel(lblBestOf_, layout::kConfigBestOf);
    // The boxes let the pictures of their wells show through.
    for (int player = 1; player <= 2; ++player) {
        const Rect& well = layout::kConfigPlayers.at(static_cast<std::size_t>(player - 1));
        const QColor ground = GroundOf(skin_.background, well);
        txtPlayer_[player]->SetLetters(letters);
        txtPlayer_[player]->SetColors(inkOn(ground), ground, Qt::transparent);
    }
    const auto dressList = [&](TuneListBox& list, const Rect& well) {
        const QColor ground = GroundOf(skin_.background, well);
        list.setFont(letters);
        list.SetColors(ground, inkOn(ground));
    };
    dressList(lstFileList_, layout::kConfigFileList);
    dressList(lstPlayList_, layout::kConfigPlayList);
}

void frmConfig::SwitchHelp(bool on) { popHelp_->SwitchOn(on); }

void frmConfig::ShowAll() {
    for (const SwitchDesign& design : kConfigSwitches) {
        switches_[design.which]->setChecked(logic_.IsOn(design.which));
        switches_[design.which]->setEnabled(!logic_.IsLocked(design.which));
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
    } else if (!PressedByEnter(*event)) {
        SkinnedWindow::keyPressEvent(event);
    }
}

}  // namespace quendrel
