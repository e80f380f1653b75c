#include "ui/main/InputBar.h"

#include <algorithm>
#include <iterator>

#include "platform/Clock.h"
#include "ui/layout/MainLayout.h"
#include "ui/main/MainView.h"

namespace quendrel {

namespace {

/// Where the buttons lie while they are put away.
constexpr EnumArray<Answer, Point, kAnswers> kAwayAt{{{{79, 10}, {106, 10}, {127, 10}}}};

}  // namespace

void InputBar::PlaceInputButton(Answer answer, int left, int top, bool visible, bool enabled) {
    buttons_[answer] = {left, top, visible, enabled};
    const Control button = ButtonOf(answer);
    window_.SetLeft(button, left);
    window_.SetTop(button, top);
    window_.SetVisible(button, visible);
    window_.SetEnabled(button, enabled);
}

void InputBar::Place(Answer answer, bool enabled) {
    const Point at = layout::kInputShownAt.at(static_cast<std::size_t>(answer));
    PlaceInputButton(answer, at.x, at.y, true, enabled);
}

void InputBar::PutAway(Answer answer) {
    const Point at = kAwayAt[answer];
    PlaceInputButton(answer, at.x, at.y, false, false);
}

void InputBar::Enable(Answer answer, bool enabled) {
    buttons_[answer].enabled = enabled;
    window_.SetEnabled(ButtonOf(answer), enabled);
}

void InputBar::Click(Answer answer) {
    if (!IsAnswered()) inputAnswer_[answer] = true;
}

bool InputBar::IsAnswered() const {
    return std::any_of(inputAnswer_.begin(), inputAnswer_.end(), [](bool given) { return given; });
}

InputBar::Buttons InputBar::Interrupt() {
    const Buttons interrupted = buttons_;
    for (const Answer answer : {Answer::kYes, Answer::kNo, Answer::kOk}) {
        if (Offers(answer)) PutAway(answer);
    }
    return interrupted;
}

void InputBar::GoOn(const Buttons& buttons) {
    for (const Answer answer : {Answer::kYes, Answer::kNo, Answer::kOk}) {
        const Button& button = buttons[answer];
        if (button.visible) PlaceInputButton(answer, button.left, button.top, true, button.enabled);
    }
}

Answer InputBar::WaitFor(std::initializer_list<Answer> answers) {
    const auto last = std::find_if(std::rbegin(answers), std::rend(answers),
                                   [this](Answer answer) { return Takes(answer); });
    if (last != std::rend(answers)) window_.SetPlace(ButtonOf(*last));
    for (;;) {
        const auto* const given = std::find_if(
            answers.begin(), answers.end(), [this](Answer answer) { return inputAnswer_[answer]; });
        if (given != answers.end()) return *given;
        Clear();  // what answered another question does not bar this one
        clock_.PumpEvents(kLongestSleep);
    }
}

}  // namespace quendrel
