// The three buttons "Yes", "No" and "Ok" with which the player answers the game's questions.
#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>

namespace quendrel {

class Clock;
class MainWindow;

/// The indexes of the answers, in the order of AnswerNames.
enum Answer : std::uint8_t { kYes, kNo, kOk };

class InputBar {
public:
    InputBar(MainWindow& window, Clock& clock) : window_(window), clock_(clock) {}

    /// Moves cmdInput(`index`) to the client position (`left`, `top`) and sets its visibility
    /// and enabled state.
    void PlaceInputButton(int index, int left, int top, bool visible, bool enabled);

    /// Puts an answer in its place on the bar, or away, hidden and disabled.
    void Place(Answer answer, bool enabled = true);
    void PutAway(Answer answer);
    void Enable(Answer answer, bool enabled);

    /// A click on a button of the bar.
    void Click(Answer answer) { inputAnswer_.at(answer) = true; }

    /// Handles events until one of the answers has been given; returns that one.
    Answer WaitFor(std::initializer_list<Answer> answers);

    /// Forgets the answers: the question is over.
    void Clear() { inputAnswer_.fill(false); }

private:
    MainWindow& window_;
    Clock& clock_;
    std::array<bool, 3> inputAnswer_{};
};

}  // namespace quendrel
