// A whole game on the recording window, under the virtual clock.
#pragma once

#include <functional>
#include <initializer_list>

#include <gtest/gtest.h>

#include "Devices.h"
#include "Log.h"
#include "RecordingWindow.h"
#include "TestSkin.h"
#include "VirtualClock.h"
#include "game/Game.h"

namespace quendrel::test {

class GameFixture : public ::testing::Test {
protected:
    GameFixture() {
        global.Settings.GameMode = 0;
        global.LastMode = 0;
        global.SoundAvailable = true;
        game.table.board.SetSkin(TestSkin());
        game.table.buttons.SetButtonStates(kIdle);
        EnableModes();
        game.table.ShowWelcome();
        log.Clear();
    }

    virtual RoundHooks Hooks() {
        RoundHooks hooks;
        hooks.loadHighscores = [this] { log.Add("load highscores " + global.HighscoreFile); };
        hooks.timeQualifies = [this] {
            log.Add("does " + std::to_string(global.ElapsedSeconds) + " qualify?");
            return qualifies;
        };
        hooks.enterHighscore = [this] {
            log.Add(global.NewScorePending ? "enter highscore" : "nothing to enter");
        };
        hooks.showConfig = [this] {
            log.Add("configure");
            configure();
        };
        hooks.changeSkin = [this](std::int16_t oldSkin) {
            log.Add("change the skin from " + std::to_string(oldSkin));
        };
        hooks.saveOnLeaving = [this] { log.Add("save"); };
        return hooks;
    }

    /// The code of the next game, as the draws that give it with six colours.
    void NextCode(std::initializer_list<int> colors) {
        for (const int color : colors) random.script.push_back((color - 0.5) / 6);
    }

    /// "Start", with its half second of closing covers, forgotten by the log.
    void StartWithCode(std::initializer_list<int> colors) {
        NextCode(colors);
        game.round.Click(kStart);
        log.Clear();
    }

    void Place(std::initializer_list<int> colors) {
        int column = 0;
        for (const int color : colors) {
            game.pegs.PressColorButton(color, MouseButton::kLeft);
            game.pegs.PressHole(++column, MouseButton::kLeft);
        }
    }

    /// Fills the active row and checks it; the log keeps nothing of it.
    void Guess(std::initializer_list<int> colors) {
        Place(colors);
        game.round.Click(kCheck);
        log.Clear();
    }

    /// The player answers `milliseconds` from now; the button must be there by then.
    void AnswerIn(int milliseconds, Answer answer) {
        clock.In(milliseconds, [this, answer] {
            const Control button{Controls::cmdInput, answer};
            ASSERT_TRUE(window.Of(button).visible && window.Of(button).enabled);
            log.Add("player: " + std::string(AnswerNames.at(answer)));
            game.table.inputBar.Click(answer);
        });
    }

    Log log;
    VirtualClock clock{log};
    ScriptedRandom random{log};
    RecordingSoundPlayer soundPlayer{log};
    RecordingMidiDevice mmcMidi{log};
    RecordingTray tray{log};
    RecordingLinkOpener links{log};
    RecordingWindow window{log};
    Global global;
    bool qualifies = false;
    /// What the player does in the configuration window.
    std::function<void()> configure = [] {};
    Game game{global, {clock, clock, random, soundPlayer, mmcMidi, tray, links}, window, Hooks()};

private:
    void EnableModes() {
        for (int mode = 0; mode < 3; ++mode) window.SetEnabled({Controls::cmdModeBtn, mode}, true);
    }
};

}  // namespace quendrel::test
