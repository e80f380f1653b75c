// What the highscore window does, without the window: filling, naming a new result, restoring the
// defaults.
#pragma once

#include <string>

#include "Global.h"

namespace quendrel {

class HighscoreStore;

/// The window as the flow sees it. frmHigh implements it; tests have one that records.
class HighscoreView {
public:
    virtual ~HighscoreView() = default;

    virtual void EnableDefault(bool enabled) = 0;

    /// The labels of position 1 to 10.
    virtual void ShowEntry(int position, const std::string& name, const std::string& row,
                           const std::string& time) = 0;

    /// Shows the name entry over the name of `position`, with `text`, all of it selected.
    virtual void ShowNameEntry(int position, const std::string& text) = 0;
    virtual void HideNameEntry() = 0;

    /// What stands in the name entry.
    virtual std::string EnteredName() const = 0;

    /// Tells the player what could not be done; returns when it has been read.
    virtual void ShowTrouble(const std::string& text) = 0;

    virtual void CloseWindow() = 0;
};

class HighscoreFlow {
public:
    HighscoreFlow(Global& global, HighscoreStore& store, HighscoreView& view)
        : global_(global), store_(store), view_(view) {}

    /// Fills the window; a pending result is inserted and its name asked for.
    void ShowHighscores();

    /// The click on "Ok": a pending result is saved under the entered name, or, under an empty
    /// one, dropped. A list that cannot be saved says so and stays in memory. Closes the window.
    void ClickOk();

    /// The click on "Default": gives a pending result up, deletes the mode's file and shows the
    /// default list; a file that cannot be deleted says so and shows. The window stays open.
    void ClickDefault();

private:
    std::string NameToOffer() const;
    void Save();

    Global& global_;
    HighscoreStore& store_;
    HighscoreView& view_;
    int newScorePosition_ = 0;
};

}  // namespace quendrel
