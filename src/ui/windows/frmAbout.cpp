#include "ui/windows/frmAbout.h"

#include <utility>

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>

#include "audio/SoundEffects.h"
#include "platform/Doors.h"
#include "ui/controls/BalloonHelp.h"
#include "ui/controls/MouseButton.h"
#include "ui/controls/QtValues.h"
#include "ui/layout/AboutLayout.h"
#include "ui/skin/SkinFiles.h"
#include "ui/skin/WindowShape.h"

namespace quendrel {

namespace {

constexpr const char* kEmailAddress = "mailto:games@brimwell.example";
constexpr const char* kHomeAddress = "https://www.brimwell.example/";

/// An animated picture that is a link.
class LinkButton : public QAbstractButton {
public:
    LinkButton(QWidget* parent, QMovie* movie) : QAbstractButton(parent), movie_(movie) {
        setCursor(Qt::PointingHandCursor);
        connect(movie_, &QMovie::frameChanged, this, [this] { update(); });
    }

protected:
    /// Does not pass the move on, or the window would be dragged.
    void mouseMoveEvent(QMouseEvent* event) override {
        QAbstractButton::mouseMoveEvent(event);
        event->accept();
    }
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter(this).drawPixmap(0, 0, movie_->currentPixmap());
    }

private:
    QMovie* movie_;
};

}  // namespace

frmAbout::frmAbout(Global& global, const PictureReader& pictures, SoundEffects& sounds,
                   LinkOpener openLink)
    : SkinnedWindow("frmAbout"),
      global_(global),
      sounds_(sounds),
      openLink_(std::move(openLink)),
      cmdOk_(this),
      popHelp_(new BalloonHelp(this)) {
    LoadAboutSkin(pictures);

    MakeLink("agifEmail", ToQRect(layout::kAboutEmail), "agifEmail.gif", "E-mail",
             "Click here to send us an Email", kEmailAddress);
    MakeLink("agifHome", ToQRect(layout::kAboutHome), "agifHome.gif", "Homepage",
             "Click here to visit the Brimwell homepage", kHomeAddress);
    MakeTorch();

    cmdOk_.setObjectName("cmdOk");
    cmdOk_.setAccessibleName("Ok");
    cmdOk_.setAccessibleDescription("Press here to continue.");
    cmdOk_.onPress = [this](MouseButton pressed) {
        if (pressed == MouseButton::kLeft) {
            sounds_.PlaySoundFx(SoundSlot::kMediumClick, SoundMode::kOnce);
        }
    };
    cmdOk_.onClick = [this] { Close(); };
    onCloseRequest = [this] { Close(); };

    popHelp_->Watch(&cmdOk_);
    popHelp_->SwitchOn(global_.Settings.ToolTips);
}

void frmAbout::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        AtDoor([this] { Close(); });
    } else {
        SkinnedWindow::keyPressEvent(event);
    }
}

void frmAbout::Close() {
    hide();
    onClosed();
}

void frmAbout::LoadAboutSkin(const PictureReader& pictures) {
    const std::string root = SkinRoot(global_);
    if (const auto mask = ReadMask(pictures, root, "About")) ShapeFrom(*mask, kCutWhite);
    background_ = ReadSkinPicture(pictures, root, kAboutPicture);
    SetFace(background_);
    cmdOk_.SetPictures(ReadButton(pictures, root, AboutOkFiles()));
    cmdOk_.move(layout::kAboutOk.left, layout::kAboutOk.top);
}

void frmAbout::MakeLink(const QString& name, const QRect& place, const QString& movie,
                        const QString& caption, const QString& help, const std::string& address) {
    auto* const link = new LinkButton(this, Play(movie));
    link->setObjectName(name);
    link->setGeometry(place);
    link->setAccessibleName(caption);
    link->setAccessibleDescription(help);
    connect(link, &QAbstractButton::clicked, this,
            [this, address] { AtDoor([&] { global_.ShellResult = openLink_(address); }); });
    popHelp_->Watch(link);
}

void frmAbout::MakeTorch() {
    auto* const torch = new QLabel(this);
    torch->setObjectName("agifTorch");
    torch->setGeometry(ToQRect(layout::kAboutTorch));
    torch->setMovie(Play("agifTorch.gif"));
    torch->setAttribute(Qt::WA_TransparentForMouseEvents);
}

QMovie* frmAbout::Play(const QString& movie) {
    auto* const playing = new QMovie(":/builtin/" + movie, QByteArray(), this);
    playing->start();
    return playing;
}

}  // namespace quendrel
