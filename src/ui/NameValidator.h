// What makes a name of the text in a name box.
#pragma once

#include <functional>
#include <utility>

#include <QValidator>

namespace quendrel {

/// Changes whatever comes into a text box, typed, pasted, dropped or brought by an input method,
/// at once to what a name can hold. The cursor stays behind what it stood behind.
class NameValidator : public QValidator {
public:
    using Clean = std::function<QString(const QString&)>;

    NameValidator(QObject* box, Clean clean) : QValidator(box), clean_(std::move(clean)) {}

    State validate(QString& text, int& cursor) const override;

private:
    Clean clean_;
};

/// For a name of any characters.
QString AsOneLine(const QString& text);

}  // namespace quendrel
