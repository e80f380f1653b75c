// The highscore window.
#pragma once

#include <array>

#include <QLabel>

#include "Global.h"
#include "scores/HighscoreWindow.h"
#include "ui/ImageButton.h"
#include "ui/MainWindow.h"
#include "ui/NameBox.h"
#include "ui/SkinnedWindow.h"

namespace quendrel {

class BalloonHelp;
class MessageLabel;
class SoundEffects;

class frmHigh : public SkinnedWindow, private HighscoreView {
public:
    /// Loads the highscore window of the skin SkinPtr. Throws FileError for a skin that lacks a
    /// picture of it.
    frmHigh(Global& global, PictureReader& pictures, SoundEffects& sounds, HighscoreStore& store,
            MainWindow& mainWindow);

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

    void LoadHighSkin(PictureReader& pictures);
    void MakeLabels();
    void MakeNameEntry();
    void MakeButtons();

    Global& global_;
    SoundEffects& sounds_;
    MainWindow& mainWindow_;
    HighscoreWindow logic_;
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
