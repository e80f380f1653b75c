#include "scores/HighscoreFlow.h"

#include "platform/Errors.h"
#include "scores/HighscoreStore.h"

namespace quendrel {

void HighscoreFlow::ShowHighscores() {
    view_.EnableDefault(store_.HasFile());
    if (global_.NewScorePending) newScorePosition_ = store_.InsertNewScore();
    for (int i = 1; i <= kHighscores; ++i) {
        const HighscoreEntry& entry = global_.HighscoreList[i];
        view_.ShowEntry(i, entry.Name, std::to_string(entry.Row), FormatGameTime(entry.Time));
    }
    if (global_.NewScorePending) view_.ShowNameEntry(newScorePosition_, NameToOffer());
}

/// In a match the name of the player on turn, otherwise an empty one.
std::string HighscoreFlow::NameToOffer() const {
    const SettingsRecord& settings = global_.Settings;
    return settings.MindDuel ? settings.PlayerNames[settings.PlrTrn == 1 ? 1 : 2] : "";
}

void HighscoreFlow::ClickOk() {
    if (global_.NewScorePending) {
        global_.NewScorePending = false;
        const std::string name = view_.EnteredName();
        view_.HideNameEntry();
        if (name.empty()) {
            store_.LoadHighscores();
        } else {
            global_.HighscoreList[newScorePosition_].Name = name;
            Save();
        }
    }
    view_.CloseWindow();
}

void HighscoreFlow::Save() {
    try {
        store_.SaveHighscores();
    } catch (const FileError& error) {
        view_.ShowTrouble(error.what());
    }
}

void HighscoreFlow::ClickDefault() {
    if (global_.NewScorePending) {
        view_.HideNameEntry();
        global_.NewScorePending = false;
    }
    try {
        store_.RestoreDefaults();
    } catch (const FileError& error) {
        view_.ShowTrouble(error.what());
    }
    ShowHighscores();
}

}  // namespace quendrel
