// The Mind Duel: two players take turns at breaking a code, and after a number of rounds the one
// who needed fewer guesses has won. The match lives in the settings, so it goes on another day.
#pragma once

#include <string>

#include "ui/main/InputBar.h"
#include "ui/main/SetAside.h"

namespace quendrel {

class Clock;
class MainView;
struct Global;

/// The round controller calls it at the moments that the functions are named after. Without the
/// setting MindDuel GuessChecked, LetCountBeRead, GivenUp and RoundEnded do nothing; the others are
/// for a duel alone.
class Duel {
public:
    Duel(Global& global, MainView& window, MessagePanel& panel, CommandButtons& buttons,
         InputBar& inputBar, Clock& clock)
        : global_(global),
          window_(window),
          panel_(panel),
          inputBar_(inputBar),
          clock_(clock),
          saved_(window, panel, buttons, inputBar) {}

    bool IsOn() const;

    /// The code is set: player 2's turn raises Round, so that both turns of a round show the same
    /// number, and the panel shows how the match stands.
    void RoundStarted();

    /// Counts a guess for the player on turn and shows it.
    void GuessChecked();

    /// How many guesses the player on turn has made, as a screen reader says it.
    std::string SpokenCount() const;

    /// Waits half a second, so that the last count can be read before a won or lost round goes on.
    void LetCountBeRead();

    /// Charges the player on turn with every row not yet used.
    /// Throws std::out_of_range where a stored PlrTrn is neither 1 nor 2.
    void GivenUp();

    /// Gives the turn to the other player; after the last round says who has won, waits for "Ok"
    /// and starts a new match.
    void RoundEnded();

    /// Shows how the match stands. Called when the configuration window has changed the names or
    /// the number of rounds.
    void ShowDuelStatus();

    /// The duel button: starts the match anew after a "Yes"; during play says that it cannot.
    void ResetDialogue();

    /// Whether ResetDialogue waits for an answer.
    bool IsAsking() const { return asking_; }

private:
    int RoundShown() const;
    void SayStatus();
    void ShowVerdict();
    void StartMatch();
    Answer AskForReset();

    Global& global_;
    MainView& window_;
    MessagePanel& panel_;
    InputBar& inputBar_;
    Clock& clock_;
    SetAside saved_;
    bool asking_ = false;
};

}  // namespace quendrel
