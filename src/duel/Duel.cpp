#include "duel/Duel.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>

#include "Global.h"
#include "Raised.h"
#include "audio/Pause.h"
#include "ui/main/MainView.h"
#include "ui/main/Spoken.h"

namespace quendrel {

namespace {

/// Any stored turn but 1 counts as player 2's.
int PlayerOnTurn(const SettingsRecord& settings) { return settings.PlrTrn == 1 ? 1 : 2; }

/// A count goes no further than a settings file can keep it.
void Raise(std::uint8_t& count, int by) {
    constexpr int most = std::numeric_limits<std::uint8_t>::max();
    count = static_cast<std::uint8_t>(std::min(count + by, most));
}

std::string GuessesOf(const SettingsRecord& settings, int player) {
    return settings.PlayerNames[player] + ", " + SpokenGuesses(settings.PlrPos[player]);
}

}  // namespace

bool Duel::IsOn() const { return global_.Settings.MindDuel; }

void Duel::ShowDuelStatus() {
    const SettingsRecord& settings = global_.Settings;
    const int onTurn = PlayerOnTurn(settings);
    const auto player = [&](int number) {
        const std::string count = ": Guess=" + std::to_string(settings.PlrPos[number]);
        const std::string text = settings.PlayerNames[number] + count;
        MessageLine line = number == onTurn ? Yellow(text) : Grey(text);
        line.kept = count.size();
        return line;
    };
    panel_.DisplayText(
        Yellow("- Mind Duel -"),
        Grey("Round: " + std::to_string(RoundShown()) + "/" + std::to_string(settings.BestOf)),
        player(1), player(2));
}

int Duel::RoundShown() const {
    const SettingsRecord& settings = global_.Settings;
    return PlayerOnTurn(settings) == 1 ? settings.Round + 1 : settings.Round;
}

std::string Duel::SpokenCount() const {
    return GuessesOf(global_.Settings, PlayerOnTurn(global_.Settings));
}

/// The player on turn comes first: the colour of the line is not heard.
void Duel::SayStatus() {
    const SettingsRecord& settings = global_.Settings;
    const int onTurn = PlayerOnTurn(settings);
    window_.Announce("Mind Duel. Round " + std::to_string(RoundShown()) + " of " +
                     std::to_string(settings.BestOf) + ". On turn: " + GuessesOf(settings, onTurn) +
                     ". " + GuessesOf(settings, 3 - onTurn));
}

void Duel::RoundStarted() {
    SettingsRecord& settings = global_.Settings;
    if (settings.PlrTrn == 2) Raise(settings.Round, 1);
    ShowDuelStatus();
    SayStatus();
}

void Duel::GuessChecked() {
    if (!IsOn()) return;
    Raise(global_.Settings.PlrPos[PlayerOnTurn(global_.Settings)], 1);
    ShowDuelStatus();
}

void Duel::LetCountBeRead() {
    if (IsOn()) Pause(clock_, 500, true);
}

void Duel::GivenUp() {
    if (!IsOn()) return;
    SettingsRecord& settings = global_.Settings;
    const int unused = global_.CurrentMode().rows - (global_.ActiveRow - 1);
    Raise(settings.PlrPos[settings.PlrTrn], unused);
}

void Duel::RoundEnded() {
    if (!IsOn()) return;
    SettingsRecord& settings = global_.Settings;
    settings.PlrTrn = settings.PlrTrn == 1 ? 2 : 1;
    if (settings.Round < settings.BestOf) return;

    const Raised busy(global_.GameBusy);
    panel_.DisplayText(Message{});
    Pause(clock_, 350, true);
    ShowVerdict();
    inputBar_.Place(Answer::kOk);
    panel_.Say("Ok");
    inputBar_.WaitFor({Answer::kOk});
    inputBar_.PutAway(Answer::kOk);
    inputBar_.Clear();
    StartMatch();
}

void Duel::ShowVerdict() {
    const SettingsRecord& settings = global_.Settings;
    if (settings.PlrPos[1] == settings.PlrPos[2]) {
        panel_.DisplayText(Yellow("- It's a tie -"), Grey("You are boath wery good."));
        return;
    }
    const int winner = settings.PlrPos[1] < settings.PlrPos[2] ? 1 : 2;
    panel_.DisplayText(Grey("Well done " + settings.PlayerNames[winner]),
                       Grey("you won the Mind Duel."));
}

void Duel::StartMatch() {
    SettingsRecord& settings = global_.Settings;
    settings.PlrPos.Fill(0);
    settings.PlrTrn = 1;
    settings.Round = 0;
}

void Duel::ResetDialogue() {
    const Raised asking(asking_);
    const Raised busy(global_.GameBusy);
    saved_.PutAside();
    if (AskForReset() == Answer::kYes) StartMatch();
    saved_.PutBack();
    panel_.Say();
}

Answer Duel::AskForReset() {
    const bool during = global_.Settings.GameInProgress;
    panel_.DisplayText(Yellow("- Reset Mind Duel -"),
                       Grey(during ? "Sorry, not during play !" : "Are you sure ?"));
    if (during) {
        inputBar_.Place(Answer::kOk);
    } else {
        inputBar_.Place(Answer::kYes);
        inputBar_.Place(Answer::kNo);
    }
    panel_.Say(during ? "Ok" : "Yes or No");
    const Answer answer = inputBar_.WaitFor({Answer::kYes, Answer::kNo, Answer::kOk});
    if (during) {
        inputBar_.PutAway(Answer::kOk);
    } else {
        inputBar_.PutAway(Answer::kYes);
        inputBar_.PutAway(Answer::kNo);
    }
    return answer;
}

}  // namespace quendrel
