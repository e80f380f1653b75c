// A whole game on the recording window, under the virtual clock.
#pragma once

#include <array>
#include <cstdint>
#include <functional>

#include <gtest/gtest.h>

#include "PlayedModes.h"
#include "RecordingMachine.h"
#include "RecordingWindow.h"
#include "SkinFolder.h"
#include "TestSkin.h"
#include "game/FollowSettings.h"
#include "game/Game.h"
#include "ui/controls/MouseButton.h"
#include "ui/layout/Control.h"

namespace quendrel::test {

class GameFixture : public RecordingMachine {
protected:
    GameFixture() {
        Play(played);
        global.SoundAvailable = true;
        game.table.board.SetSkin(TestSkin());
        game.table.buttons.SetButtonStates(kIdle);
        EnableModes();
        game.table.ShowWelcome();
        window.showHighscores = [this] {
            log.Add(global.NewScorePending ? "enter highscore" : "highscores");
        };
        log.Clear();
    }

    /// A click on a command button of the main window.
    void Click(CommandButton button) {
        static const EnumArray<CommandButton, void (GameFixture::*)(), kCommandButtons> commands{
            {&GameFixture::Exit, &GameFixture::About, &GameFixture::Config, &GameFixture::High,
             &GameFixture::Show, &GameFixture::Clone, &GameFixture::Start, &GameFixture::Check}};
        game.round.Obey(button, [this, button] { (this->*commands[button])(); });
    }

    static RowOfPegs Row(const Colors& colors) {
        RowOfPegs row;
        int column = 0;
        for (const int color : colors) row[++column] = static_cast<std::int16_t>(color);
        return row;
    }

    /// Puts another mode in force.
    void Play(const PlayedMode& mode) {
        played = mode;
        global.Settings.GameMode = static_cast<std::uint8_t>(mode.number);
        global.LastMode = global.Settings.GameMode;
    }

    /// Makes the generator draw this code for the next game.
    void NextCode(const Colors& colors) {
        for (const int color : colors) random.script.push_back((color - 0.5) / played.colors);
    }

    /// "Start" and the half second in which the covers close; the log keeps nothing of it.
    void StartWithCode(const Colors& colors) {
        NextCode(colors);
        Click(CommandButton::kStart);
        log.Clear();
    }

    void Place(const Colors& colors) {
        int column = 0;
        for (const int color : colors) {
            game.pegs.PressColorButton(color, MouseButton::kLeft);
            game.pegs.PressHole(++column, MouseButton::kLeft);
        }
    }

    /// Fills the active row and checks it; the log keeps nothing of it.
    void Guess(const Colors& colors) {
        Place(colors);
        Click(CommandButton::kCheck);
        log.Clear();
    }

    /// A question put by `ask` waits for its own answer, which comes after seven seconds;
    /// `longer` is what `ask` takes after that.
    void WaitsFor(Answer answer, const std::function<void()>& ask, int longer = 0) {
        const std::int64_t begin = clock.Now();
        AnswerIn(7000, answer);
        ask();
        EXPECT_EQ(clock.Now() - begin, 7000 + longer);
    }

    /// Makes the tenth highscore so slow that any time qualifies.
    void LetAnyTimeQualify() { global.HighscoreList[kHighscores].Time = 32767; }

    /// Wins with the row that equals the code.
    void WinWith(const Colors& code) {
        Place(code);
        AnswerIn(5000, Answer::kOk);
        Click(CommandButton::kCheck);
    }

    /// "Show", to its end.
    void GiveUp() {
        AnswerIn(100, Answer::kYes);
        AnswerIn(6000, Answer::kOk);
        Click(CommandButton::kShow);
    }

    /// Checks `count` rows in which nothing is right.
    void Miss(int count) {
        for (int i = 0; i < count; ++i) Guess(played.miss);
    }

    /// Checks a wrong guess in the last row.
    void Lose() {
        Place(played.miss);
        AnswerIn(9000, Answer::kOk);
        log.Clear();
        Click(CommandButton::kCheck);
    }

    /// The player sets the code and confirms it 300 ms after "Start".
    void SetCodeByHand(const Colors& colors) {
        clock.In(200, [this, colors] { Place(colors); });
        AnswerIn(300, Answer::kOk);
    }

    /// The player answers `milliseconds` from now; the button must be there by then.
    void AnswerIn(int milliseconds, Answer answer) {
        clock.In(milliseconds, [this, answer] {
            const Control button = ButtonOf(answer);
            ASSERT_TRUE(window.Of(button).visible && window.Of(button).enabled);
            log.Add("player: " + std::string(AnswerNames.at(static_cast<std::size_t>(answer))));
            game.table.inputBar.Click(answer);
        });
    }

    RecordingWindow window{log};
    RecordingPictureReader reader{log};
    Global global;
    PlayedMode played = PlayedModes().front();
    /// What the player does in the configuration window.
    std::function<void()> configure = [] {};
    Game game{global, machine, window, window};

private:
    void Exit() { game.round.ExitGame(); }
    void About() { log.Add("about"); }
    void Config() {
        const std::int16_t oldSkin = global.Settings.SkinPtr;
        log.Add("configure");
        configure();
        FollowSettings(game, reader, oldSkin);
    }
    void High() { window.ShowHighscores(); }
    void Show() { game.round.ShowCode(); }
    void Clone() { game.round.BeginClone(); }
    void Start() { game.round.StartRound(); }
    void Check() { game.round.CheckGuess(); }

    void EnableModes() {
        for (int mode = 0; mode < 3; ++mode) window.SetEnabled({Controls::cmdModeBtn, mode}, true);
    }
};

}  // namespace quendrel::test
