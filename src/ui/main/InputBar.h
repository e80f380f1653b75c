// The three buttons "Yes", "No" and "Ok" with which the player answers the game's questions.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>

#include "EnumArray.h"
#include "Modes.h"
#include "ui/layout/Control.h"

namespace quendrel {

class Clock;
class MainView;

/// In the order of AnswerNames.
enum class Answer : std::uint8_t { kYes, kNo, kOk };

inline constexpr std::size_t kAnswers = 3;
static_assert(AnswerNames.size() == kAnswers);

constexpr Control ButtonOf(Answer answer) { return {Controls::cmdInput, static_cast<int>(answer)}; }

class InputBar {
public:
    InputBar(MainView& window, Clock& clock) : window_(window), clock_(clock) {}

    /// Moves the answer's button to the client position (`left`, `top`) and sets its visibility
    /// and enabled state.
    void PlaceInputButton(Answer answer, int left, int top, bool visible, bool enabled);

    /// Puts an answer in its place on the bar, or away, hidden and disabled.
    void Place(Answer answer, bool enabled = true);
    void PutAway(Answer answer);
    void Enable(Answer answer, bool enabled);

    /// A click on a button of the bar. Only the first one answers the question.
    void Click(Answer answer);

    /// Whether the present question has been answered, even if WaitFor has not returned yet.
    bool IsAnswered() const;

    /// Whether an answer is on the bar, enabled or not.
    bool Offers(Answer answer) const { return buttons_[answer].visible; }

    /// Whether an answer is on the bar and enabled.
    bool Takes(Answer answer) const { return Offers(answer) && buttons_[answer].enabled; }

    /// Handles events until one of the answers has been given; returns that one. The last of them
    /// that is enabled takes the place where keys act.
    Answer WaitFor(std::initializer_list<Answer> answers);

    /// Forgets the answers: the question is over.
    void Clear() { inputAnswer_ = {}; }

    /// A button of the bar: its left and top on the window, and its state.
    struct Button {
        int left = 0;
        int top = 0;
        bool visible = false;
        bool enabled = false;
    };
    using Buttons = EnumArray<Answer, Button, kAnswers>;

    /// For a question in the middle of another: Interrupt clears the bar and returns what was on
    /// it, GoOn puts it back.
    Buttons Interrupt();
    void GoOn(const Buttons& buttons);

private:
    MainView& window_;
    Clock& clock_;
    Buttons buttons_;
    EnumArray<Answer, bool, kAnswers> inputAnswer_;
};

}  // namespace quendrel
