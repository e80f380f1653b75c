// The about window: what the game is and who made it, with two animated links.
#pragma once

#include <functional>
#include <memory>

#include <QMovie>

#include "Global.h"
#include "platform/Machine.h"
#include "ui/controls/ImageButton.h"
#include "ui/windows/SkinnedWindow.h"

namespace quendrel {

class BalloonHelp;
class SoundEffects;

class frmAbout : public SkinnedWindow {
public:
    /// Loads the about window of the skin SkinPtr. Throws FileError for a skin that lacks a
    /// picture of it.
    frmAbout(Global& global, const PictureReader& pictures, SoundEffects& sounds,
             LinkOpener openLink);

    /// Called once the window has been closed; whoever made it deletes it then.
    std::function<void()> onClosed = [] {};

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Close();
    void LoadAboutSkin(const PictureReader& pictures);
    void MakeLink(const QString& name, const QRect& place, const QString& movie,
                  const QString& caption, const QString& help, const std::string& address);
    void MakeTorch();
    QMovie* Play(const QString& movie);

    Global& global_;
    SoundEffects& sounds_;
    LinkOpener openLink_;
    Picture background_;
    ImageButton cmdOk_;
    BalloonHelp* popHelp_;
};

}  // namespace quendrel
