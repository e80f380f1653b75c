#include "ui/controls/SpokenText.h"

#include <QAccessible>

namespace quendrel {

void SpokenText::SetText(const QString& text) {
    if (text == text_) return;
    const bool was = !text_.isEmpty();
    const bool is = !text.isEmpty();
    const auto tell = [this](QAccessible::Event what) {
        QAccessibleEvent event(this, what);
        QAccessible::updateAccessibility(&event);
    };
    if (!is) tell(QAccessible::ObjectDestroyed);  // while it is still found
    text_ = text;
    if (is) tell(was ? QAccessible::NameChanged : QAccessible::ObjectCreated);
}

}  // namespace quendrel
