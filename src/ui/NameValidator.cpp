// What makes a name of the text in a name box.
#include "ui/NameValidator.h"

#include "platform/Text.h"

namespace quendrel {

QValidator::State NameValidator::validate(QString& text, int& cursor) const {
    cursor = static_cast<int>(clean_(text.left(cursor)).size());
    text = clean_(text);
    return Acceptable;
}

QString AsOneLine(const QString& text) {
    return QString::fromStdString(OneLine(text.toStdString()));
}

}  // namespace quendrel
