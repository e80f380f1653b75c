// What the highscore window does.
#include "scores/HighscoreWindow.h"

#include "scores/HighscoreStore.h"

namespace quendrel {

void HighscoreWindow::ShowHighscores() {
    view_.EnableDefault(store_.HasFile());
    if (global_.NewScorePending) newScorePosition_ = store_.InsertNewScore();
    for (int i = 1; i <= kHighscores; ++i) {
        const HighscoreEntry& entry = global_.HighscoreList[i];
        view_.ShowEntry(i, entry.Name, std::to_string(entry.Row), FormatGameTime(entry.Time));
    }
    if (global_.NewScorePending) view_.ShowNameEntry(newScorePosition_, NameToOffer());
}

/// In a match of two the name of the player on turn.
std::string HighscoreWindow::NameToOffer() const {
    const SettingsRecord& settings = global_.Settings;
    return settings.MindDuel ? settings.PlayerNames[settings.PlrTrn == 1 ? 1 : 2] : "";
}

void HighscoreWindow::ClickOk() {
    if (global_.NewScorePending) {
        const std::string name = view_.EnteredName();
        if (name.empty()) {
            store_.LoadHighscores();
        } else {
            global_.HighscoreList[newScorePosition_].Name = name;
            store_.SaveHighscores();
        }
        global_.NewScorePending = false;
        view_.HideNameEntry();
    }
    view_.CloseWindow();
}

void HighscoreWindow::ClickDefault() {
    if (global_.NewScorePending) {
        view_.HideNameEntry();
        global_.NewScorePending = false;
    }
    store_.RestoreDefaults();
    ShowHighscores();
}

}  // namespace quendrel
