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

    /// A click on a button of the bar. The first answers the question; what comes after it, even
    /// in the same moment, does not.
    void Click(Answer answer);

    /// Whether the question that stands has been answered, though its wait may not have seen it.
    bool IsAnswered() const;

    /// Whether an answer is on the bar, enabled or not.
    bool Offers(Answer answer) const { return buttons_.at(answer).visible; }

    /// Handles events until one of the answers has been given; returns that one.
    Answer WaitFor(std::initializer_list<Answer> answers);

    /// Forgets the answers: the question is over.
    void Clear() { inputAnswer_.fill(false); }

    /// A button of the bar: its left and top on the window, and its state.
    struct Button {
        int left = 0;
        int top = 0;
        bool visible = false;
        bool enabled = false;
    };
    using Buttons = std::array<Button, 3>;

    /// A question interrupts another: the bar is cleared for it, and afterwards stands as it was.
    Buttons Interrupt();
    void GoOn(const Buttons& buttons);

private:
    MainWindow& window_;
    Clock& clock_;
    Buttons buttons_;
    std::array<bool, 3> inputAnswer_{};
};

}  // namespace quendrel
