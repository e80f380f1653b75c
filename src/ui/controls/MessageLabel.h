// One line of live text: a line of the message panel, the clock, an entry of the highscores.
#pragma once

#include <QLabel>

namespace quendrel {

/// Shows its text, which is never markup, on one line, cut with an ellipsis where it is too long;
/// the whole text is what a screen reader reads. Its font is to be a LiveFont.
class MessageLabel : public QLabel {
public:
    explicit MessageLabel(QWidget* parent);

    void SetColor(const QColor& color);

    /// The last `kept` characters are shown even of a text that is too long.
    void ShowText(const QString& text, qsizetype kept);

    bool IsTextCut() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor color_;
    qsizetype kept_ = 0;
};

}  // namespace quendrel
