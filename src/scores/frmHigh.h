// The highscore window.
#pragma once

#include <array>

#include <QLabel>

#include "Global.h"
#include "scores/HighscoreFlow.h"
#include "ui/controls/ImageButton.h"
#include "ui/controls/NameBox.h"
#include "ui/main/MainView.h"
#include "ui/skin/SkinFonts.h"
#include "ui/windows/SkinnedWindow.h"

namespace quendrel {

class BalloonHelp;
class MessageLabel;
class SoundEffects;

class frmHigh : public SkinnedWindow, private HighscoreView {
public:
    /// Loads the highscore window of the skin SkinPtr. Throws FileError for a skin that lacks a
    /// picture of it.
    frmHigh(Global& global, PictureReader pictures, SoundEffects& sounds, HighscoreStore& store,
            MainView& mainWindow);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void EnableDefault(bool enabled) override;
    void ShowEntry(int position, const std::string& name, const std::string& row,
                   const std::string& time) override;
    void ShowNameEntry(int position, const std::string& text) override;
    void HideNameEntry() override;
    std::string EnteredName() const override;
    void ShowTrouble(const std::string& text) override { mainWindow_.ShowTrouble(text); }
    void CloseWindow() override { hide(); }

    void FollowDensity() override { LoadHighSkin(); }
    QFont Letters() const;
    void LoadHighSkin();
    void MakeLabels();
    void MakeNameEntry();
    void MakeButtons();

    Global& global_;
    const PictureReader pictures_;
    SoundEffects& sounds_;
    MainView& mainWindow_;
    HighscoreFlow logic_;
    const TextStyles styles_;
    Picture background_;
    ImageButton cmdMode_;
    ImageButton cmdOk_;
    ImageButton cmdDefault_;
    OneBased<MessageLabel*, kHighscores> lblHighName_;
    OneBased<MessageLabel*, kHighscores> lblHighRow_;
    OneBased<MessageLabel*, kHighscores> lblHighTime_;
    NameBox txtEnterName_;
    BalloonHelp* popHelp_;
};

}  // namespace quendrel
