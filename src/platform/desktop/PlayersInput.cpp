#include "platform/desktop/PlayersInput.h"

#include <utility>

#include <QCoreApplication>
#include <QEvent>

#include "platform/Doors.h"

namespace quendrel {

namespace {

bool IsInput(QEvent::Type type) {
    return type == QEvent::MouseMove || type == QEvent::MouseButtonPress ||
           type == QEvent::KeyPress || type == QEvent::TouchBegin;
}

}  // namespace

PlayersInput::PlayersInput(QCoreApplication& application, std::function<void()> onInput)
    : onInput_(std::move(onInput)) {
    application.installEventFilter(this);
}

bool PlayersInput::eventFilter(QObject* watched, QEvent* event) {
    if (IsInput(event->type())) AtDoor(onInput_);
    return QObject::eventFilter(watched, event);
}

}  // namespace quendrel
