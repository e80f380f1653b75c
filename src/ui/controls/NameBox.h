// A box in which a name is typed.
#pragma once

#include <functional>

#include <QColor>
#include <QFont>
#include <QLineEdit>

class QTextLayout;

namespace quendrel {

/// Fills its place, has no frame, and shows its text as DrawLine does: accents and descenders are
/// whole, selected or not, and every letter stands where a label would show it.
class NameBox : public QLineEdit {
public:
    /// Turns the text into an allowed name, at once and however it came into the box: typed,
    /// pasted, dropped or from an input method. The cursor stays after the same characters.
    using Clean = std::function<QString(const QString&)>;

    /// The size of the letters is in units. Letters that are too tall for the box are drawn
    /// smaller.
    NameBox(QWidget* parent, const QFont& letters, Clean clean);

    /// The name that is shown, also what an input method has not yet put into the box.
    QString Name() const { return clean_(ShownText()); }

    void SetLetters(const QFont& letters);

    /// What is selected is shown in `onInk`, on `ink`. The ground may be transparent.
    void SetColors(const QColor& ink, const QColor& onInk, const QColor& ground);

protected:
    void paintEvent(QPaintEvent* event) override;
    /// Enter goes no further: it would press whatever has the focus by then. One that is held says
    /// nothing: it is still that of the window before.
    void keyPressEvent(QKeyEvent* event) override;
    /// A skin is for the window.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// The text with what an input method is about to put into it.
    QString ShownText() const;
    int ShownCursor() const { return cursorPosition() + composedCursor_; }
    /// The letters as large as the window is shown.
    QFont ShownLetters() const;
    void Fit();
    void LayOut(QTextLayout& text) const;
    void DrawText(QPainter& painter, const QTextLayout& text, QPointF corner) const;

    QFont letters_;
    Clean clean_;
    QColor ink_;
    QColor onInk_;
    QString composed_;
    int composedCursor_ = 0;
};

/// A Clean that allows every character and makes the name one line.
QString AsOneLine(const QString& text);

}  // namespace quendrel
