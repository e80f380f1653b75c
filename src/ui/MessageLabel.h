// One line of live text on the console: a line of the message panel, or the clock.
#pragma once

#include <QLabel>

namespace quendrel {

/// Shows its text on one line, cut with an ellipsis where it is too long; the whole text is what
/// a screen reader reads.
class MessageLabel : public QLabel {
public:
    using QLabel::QLabel;

    void SetColor(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor color_;
};

}  // namespace quendrel
