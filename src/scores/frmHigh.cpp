#include "scores/frmHigh.h"

#include <utility>

#include <QKeyEvent>

#include "audio/SoundEffects.h"
#include "platform/Doors.h"
#include "scores/HighscoreStore.h"
#include "ui/controls/BalloonHelp.h"
#include "ui/controls/LiveText.h"
#include "ui/controls/MessageLabel.h"
#include "ui/controls/MouseButton.h"
#include "ui/controls/PlaceMarker.h"
#include "ui/controls/QtValues.h"
#include "ui/layout/HighLayout.h"
#include "ui/skin/ShownTree.h"
#include "ui/skin/SkinFiles.h"
#include "ui/skin/WindowShape.h"

namespace quendrel {

namespace {

/// The pictures of the window.
struct HighSkin {
    Picture background;
    ButtonPictures mode;
    ButtonPictures ok;
    ButtonPictures restore;
};

HighSkin ReadHighSkin(const PictureReader& reader, const SkinTree& tree, std::size_t mode) {
    HighSkin skin;
    skin.background = ReadSkinPicture(reader, tree, kHighPicture);
    skin.mode.up = ReadSkinPicture(
        reader, tree, {HighModeFile(mode), {layout::kHighMode.width, layout::kHighMode.height}});
    skin.ok = ReadButton(reader, tree, HighOkFiles());
    skin.restore = ReadButton(reader, tree, HighDefaultFiles());
    return skin;
}

/// The code page has letters with accents as single characters only, so they are joined first.
QString AsStored(const QString& text) {
    const QString joined = text.normalized(QString::NormalizationForm_C);
    return QString::fromStdString(NameAsStored(joined.toStdString()));
}

}  // namespace

frmHigh::frmHigh(Global& global, PictureReader pictures, SoundEffects& sounds,
                 HighscoreStore& store, MainView& mainWindow)
    : SkinnedWindow("frmHigh", global.View, Qt::Dialog),
      global_(global),
      pictures_(std::move(pictures)),
      sounds_(sounds),
      mainWindow_(mainWindow),
      logic_(global, store, *this),
      styles_(FontsOfSkin(SkinRoot(global)).styles),
      cmdMode_(this),
      cmdOk_(this),
      cmdDefault_(this),
      txtEnterName_(this, Letters(), AsStored),
      popHelp_(new BalloonHelp(this)) {
    setWindowTitle("Quendrel: Highscores");
    ShapeFrom(ReadMasks(pictures_, global_, global_.Settings.SkinPtr, kHighMask));
    MakeLabels();
    MakeNameEntry();
    MakeButtons();
    LoadHighSkin();
    DressPlace(styles_);
    popHelp_->SwitchOn(global_.Settings.ToolTips);
    onCloseRequest = [this] { logic_.ClickOk(); };
    logic_.ShowHighscores();
}

/// Everything is read before anything is shown.
void frmHigh::LoadHighSkin() {
    HighSkin skin = ReadTree(pictures_, TreeOf(global_, global_.Settings.SkinPtr, DensityWanted()),
                             kHighMask, [this](const SkinTree& tree) {
                                 return ReadHighSkin(pictures_, tree, global_.Settings.GameMode);
                             });
    background_ = std::move(skin.background);
    SetFace(background_);
    cmdMode_.SetPictures(skin.mode);
    cmdOk_.SetPictures(skin.ok);
    cmdDefault_.SetPictures(skin.restore);
}

QFont frmHigh::Letters() const {
    return LiveFont(styles_[TextKind::kEntries], layout::kHighTextPixels);
}

void frmHigh::MakeLabels() {
    const QFont letters = Letters();
    const auto ink = styles_[TextKind::kEntries].color;
    const QColor color = QColor::fromRgb(ink.value_or(layout::kHighTextColor));
    const auto make = [&](const char* name, int i, const QString& spoken, const Rect& place,
                          Qt::Alignment side) {
        auto* const label = new MessageLabel(this);
        label->setAccessibleName(spoken);
        label->setObjectName(QString("%1(%2)").arg(name).arg(i));
        label->setFont(letters);
        Place(label, WholeLine(ToQRect(place), letters));
        label->setAlignment(side | Qt::AlignVCenter);
        label->SetColor(color);
        return label;
    };
    for (int i = 1; i <= kHighscores; ++i) {
        lblHighName_[i] = make("lblHighName", i, {}, layout::HighName(i), Qt::AlignLeft);
        popHelp_->WatchLine(lblHighName_[i]);
        lblHighRow_[i] = make("lblHighRow", i, "Row", layout::HighRow(i), Qt::AlignHCenter);
        lblHighTime_[i] = make("lblHighTime", i, "Time", layout::HighTime(i), Qt::AlignHCenter);
    }
}

void frmHigh::MakeNameEntry() {
    txtEnterName_.setObjectName("txtEnterName");
    txtEnterName_.setAccessibleName("Name");
    Place(&txtEnterName_, PlaceOf(lblHighName_[1]));
    const QColor ground(QRgb{layout::kNameEntryGround});
    txtEnterName_.SetColors(QColor(QRgb{layout::kNameEntryInk}), ground, ground);
    KeepSignOff(&txtEnterName_, {4, 1, 4, 1});
    txtEnterName_.hide();
    connect(&txtEnterName_, &QLineEdit::returnPressed, this,
            [this] { AtDoor([this] { logic_.ClickOk(); }); });
}

void frmHigh::MakeButtons() {
    const auto place = [this](ImageButton& button, const char* name, const char* caption,
                              const Rect& at) {
        button.setObjectName(name);
        button.setAccessibleName(caption);
        Place(&button, ToQRect(at));
        button.onPress = [this](MouseButton pressed) {
            if (pressed == MouseButton::kLeft) {
                sounds_.PlaySoundFx(SoundSlot::kMediumClick, SoundMode::kOnce);
            }
        };
    };
    place(cmdOk_, "cmdOk", "Ok", layout::kHighOk);
    cmdOk_.setAccessibleDescription("Press here when you are ready to continue.");
    cmdOk_.onClick = [this] { logic_.ClickOk(); };
    place(cmdDefault_, "cmdDefault", "Default", layout::kHighDefault);
    cmdDefault_.setAccessibleDescription(
        "Press here to restore Brimwell® Settings. This will clear the highscore list to it's "
        "default state, so be careful.");
    cmdDefault_.onClick = [this] { logic_.ClickDefault(); };
    place(cmdMode_, "cmdMode", ModeNames.at(global_.Settings.GameMode).data(), layout::kHighMode);
    cmdMode_.onPress = [](MouseButton) {};
    cmdMode_.MakePicture();
    OrderTabs({&txtEnterName_, &cmdDefault_, &cmdOk_});
    cmdOk_.setFocus();
    popHelp_->Watch(&cmdOk_);
    popHelp_->Watch(&cmdDefault_);
}

void frmHigh::EnableDefault(bool enabled) { cmdDefault_.setEnabled(enabled); }

void frmHigh::ShowEntry(int position, const std::string& name, const std::string& row,
                        const std::string& time) {
    lblHighName_[position]->setText(QString::fromStdString(name));
    lblHighRow_[position]->setText(QString::fromStdString(row));
    lblHighTime_[position]->setText(QString::fromStdString(time));
}

void frmHigh::ShowNameEntry(int position, const std::string& text) {
    Place(&txtEnterName_, PlaceOf(lblHighName_[position]));
    txtEnterName_.setText(QString::fromStdString(text));
    txtEnterName_.selectAll();
    txtEnterName_.show();
    txtEnterName_.setFocus();
}

/// Escape does what "Ok" does, except while a name is entered: the win would be lost.
void frmHigh::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) {
        if (!PressedByEnter(*event)) SkinnedWindow::keyPressEvent(event);
    } else if (!global_.NewScorePending) {
        AtDoor([this] { logic_.ClickOk(); });
    }
}

void frmHigh::HideNameEntry() {
    cmdOk_.setFocus();
    txtEnterName_.hide();
}

std::string frmHigh::EnteredName() const { return txtEnterName_.Name().toStdString(); }

}  // namespace quendrel
