#include "ui/windows/frmAbout.h"

#include <utility>

#include <QKeyEvent>
#include <QMovie>

#include "audio/SoundEffects.h"
#include "platform/Doors.h"
#include "ui/controls/BalloonHelp.h"
#include "ui/controls/LiveText.h"
#include "ui/controls/MouseButton.h"
#include "ui/controls/QtValues.h"
#include "ui/controls/SpokenText.h"
#include "ui/layout/AboutLayout.h"
#include "ui/picture/PaintImage.h"
#include "ui/picture/PictureImage.h"
#include "ui/skin/ShownTree.h"
#include "ui/skin/SkinFiles.h"
#include "ui/skin/WindowShape.h"

namespace quendrel {

/// A built-in animation, which goes on where it is when it is loaded in another density.
class Movie : public QMovie {
public:
    Movie(QObject* parent, QString file) : QMovie(parent), file_(std::move(file)) {}

    void Load(int density) {
        const int frame = currentFrameNumber();
        stop();
        setFileName((density > 1 ? ":/builtin/2x/" : ":/builtin/") + file_);
        density_ = density;
        // Each frame is made from the one before, and the start goes on to the next.
        while (currentFrameNumber() + 1 < frame && jumpToNextFrame()) continue;
        start();
    }

    /// On the floor of its niche. Throws std::bad_alloc where there is no memory for it.
    QImage Frame() const {
        QImage frame = OnGround(currentImage(), layout::kNicheFloor);
        frame.setDevicePixelRatio(density_);
        return frame;
    }

private:
    QString file_;
    int density_ = 1;
};

namespace {

constexpr const char* kEmailAddress = "mailto:games@brimwell.example";
/// Where the skins' pictures say what the game is.
constexpr Rect kLettering{150, 70, 280, 110};

constexpr const char* kHomeAddress = "https://www.brimwell.example/";

/// A control that shows an animation.
template <class Control>
class Animated : public Control {
public:
    Animated(QWidget* parent, Movie* movie) : Control(parent), movie_(movie) {
        QObject::connect(movie_, &QMovie::frameChanged, this, [this] { this->update(); });
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        UnitPainter painter(this);
        // A frame takes memory, which may not be there.
        AtDoor([&] { PaintImage(painter, movie_->Frame(), event->region()); });
    }

private:
    Movie* movie_;
};

/// An animated picture that is a link.
class LinkButton : public Animated<QAbstractButton> {
public:
    LinkButton(QWidget* parent, Movie* movie) : Animated(parent, movie) {
        setCursor(Qt::PointingHandCursor);
    }

protected:
    /// Does not pass the move on, or the window would be dragged.
    void mouseMoveEvent(QMouseEvent* event) override {
        QAbstractButton::mouseMoveEvent(event);
        event->accept();
    }
};

}  // namespace

frmAbout::frmAbout(Global& global, PictureReader pictures, SoundEffects& sounds,
                   LinkOpener openLink)
    : SkinnedWindow("frmAbout", global.View, Qt::Dialog),
      global_(global),
      pictures_(std::move(pictures)),
      sounds_(sounds),
      openLink_(std::move(openLink)),
      cmdOk_(this),
      popHelp_(new BalloonHelp(this)) {
    setWindowTitle("About Quendrel");
    MakeLink("agifEmail", layout::kAboutEmail, "E-mail", "Click here to send us an Email",
             kEmailAddress);
    MakeLink("agifHome", layout::kAboutHome, "Homepage",
             "Click here to visit the Brimwell homepage", kHomeAddress);
    auto* const torch = new Animated<QWidget>(this, Play("agifTorch"));
    torch->setObjectName("agifTorch");
    torch->setAttribute(Qt::WA_TransparentForMouseEvents);
    Place(torch, ToQRect(layout::kAboutTorch));
    Place(&cmdOk_, ToQRect(layout::kAboutOk));
    new SpokenText(this, ToQRect(kLettering),
                   Text(kAppName) + ". A code-breaking game with colours. Made by Brimwell.");
    ShapeFrom(ReadMasks(pictures_, global_, global_.Settings.SkinPtr, kAboutMask));
    LoadAboutSkin();

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

    OrderTabs({findChild<QWidget*>("agifEmail"), findChild<QWidget*>("agifHome"), &cmdOk_});
    cmdOk_.setFocus();
    popHelp_->Watch(&cmdOk_);
    popHelp_->SwitchOn(global_.Settings.ToolTips);
}

void frmAbout::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        AtDoor([this] { Close(); });
    } else if (!PressedByEnter(*event)) {
        SkinnedWindow::keyPressEvent(event);
    }
}

/// A second click that was on its way finds the window closed.
void frmAbout::Close() {
    if (isHidden()) return;
    hide();
    onClosed();
}

void frmAbout::LoadAboutSkin() {
    auto [background, ok] =
        ReadTree(pictures_, TreeOf(global_, global_.Settings.SkinPtr, DensityWanted()), kAboutMask,
                 [this](const SkinTree& tree) {
                     return std::pair{ReadSkinPicture(pictures_, tree, kAboutPicture),
                                      ReadButton(pictures_, tree, AboutOkFiles())};
                 });
    cmdOk_.SetPictures(ok);
    DressPlace(FontsOfSkin(SkinRoot(global_)).styles);
    background_ = std::move(background);
    SetFace(background_);
    for (Movie* const movie : movies_) movie->Load(DensityWanted());
}

void frmAbout::MakeLink(const char* name, const Rect& place, const QString& caption,
                        const QString& help, const std::string& address) {
    auto* const link = new LinkButton(this, Play(name));
    link->setObjectName(name);
    Place(link, ToQRect(place));
    link->setAccessibleName(caption);
    link->setAccessibleDescription(help);
    connect(link, &QAbstractButton::clicked, this,
            [this, address] { AtDoor([&] { global_.ShellResult = openLink_(address); }); });
    popHelp_->Watch(link);
}

/// An animation that is loaded with the skin.
Movie* frmAbout::Play(const QString& name) {
    movies_.push_back(new Movie(this, name + ".gif"));
    return movies_.back();
}

}  // namespace quendrel
