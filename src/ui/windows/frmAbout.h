// The about window: what the game is and who made it, with two animated links.
#pragma once

#include <functional>
#include <vector>

#include "Global.h"
#include "platform/Machine.h"
#include "ui/controls/ImageButton.h"
#include "ui/windows/SkinnedWindow.h"

namespace quendrel {

class BalloonHelp;
class Movie;
class SoundEffects;

class frmAbout : public SkinnedWindow {
public:
    /// Loads the about window of the skin SkinPtr. Throws FileError for a skin that lacks a
    /// picture of it.
    frmAbout(Global& global, PictureReader pictures, SoundEffects& sounds, LinkOpener openLink);

    /// Called once the window has been closed; whoever made it deletes it then.
    std::function<void()> onClosed = [] {};

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Close();
    void FollowDensity() override { LoadAboutSkin(); }
    void LoadAboutSkin();
    void MakeLink(const char* name, const Rect& place, const QString& caption, const QString& help,
                  const std::string& address);
    Movie* Play(const QString& name);

    Global& global_;
    const PictureReader pictures_;
    SoundEffects& sounds_;
    LinkOpener openLink_;
    Picture background_;
    ImageButton cmdOk_;
    /// The animations; each belongs to the window.
    std::vector<Movie*> movies_;
    BalloonHelp* popHelp_;
};

}  // namespace quendrel
