// The toolkit edits and scrolls the text, but this draws it, since the toolkit cuts it at the
// height that the font states.
#include "ui/controls/NameBox.h"

#include <algorithm>
#include <utility>

#include <QDragEnterEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QTextLayout>
#include <QValidator>

#include "platform/Text.h"
#include "ui/controls/DroppedGift.h"
#include "ui/controls/LiveText.h"
#include "ui/controls/ZoomedWindow.h"

namespace quendrel {

namespace {

class Cleaner : public QValidator {
public:
    Cleaner(QObject* box, NameBox::Clean clean) : QValidator(box), clean_(std::move(clean)) {}

    State validate(QString& text, int& cursor) const override {
        cursor = static_cast<int>(clean_(text.left(cursor)).size());
        text = clean_(text);
        return Acceptable;
    }

private:
    NameBox::Clean clean_;
};

/// The characters from `begin` to before `end`, over the whole height; text that runs in both
/// directions may have them in several places.
QRegion Columns(const QTextLine& line, int begin, int end, qreal left, int height) {
    QRegion columns;
    for (int i = begin; i < end; ++i) {
        const int one = qRound(left + line.cursorToX(i));
        const int other = qRound(left + line.cursorToX(i + 1));
        columns |= QRect(std::min(one, other), 0, std::abs(other - one), height);
    }
    return columns;
}

}  // namespace

NameBox::NameBox(QWidget* parent, const QFont& letters, Clean clean)
    : QLineEdit(parent), letters_(letters), clean_(std::move(clean)) {
    setFrame(false);
    setValidator(new Cleaner(this, clean_));
    connect(this, &QLineEdit::textChanged, this, &NameBox::Fit);
    connect(this, &QLineEdit::cursorPositionChanged, this, [this] { update(); });
    connect(this, &QLineEdit::selectionChanged, this, [this] { update(); });
    Fit();
}

void NameBox::SetLetters(const QFont& letters) {
    letters_ = letters;
    Fit();
}

void NameBox::SetColors(const QColor& ink, const QColor& onInk, const QColor& ground) {
    ink_ = ink;
    onInk_ = onInk;
    QPalette unseen = palette();
    unseen.setColor(QPalette::Base, ground);
    for (const auto role : {QPalette::Text, QPalette::Highlight, QPalette::HighlightedText}) {
        unseen.setColor(role, Qt::transparent);
    }
    setPalette(unseen);
}

QString NameBox::ShownText() const { return text().insert(cursorPosition(), composed_); }

QFont NameBox::ShownLetters() const {
    QFont shown = letters_;
    shown.setPixelSize(qRound(letters_.pixelSize() * ZoomOf(this)));
    return shown;
}

void NameBox::Fit() { setFont(FittingFont(height(), ShownLetters(), ShownText())); }

void NameBox::resizeEvent(QResizeEvent* event) {
    QLineEdit::resizeEvent(event);
    Fit();
}

void NameBox::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter || !event->isAutoRepeat()) QLineEdit::keyPressEvent(event);
    if (isEnter) event->accept();
}

void NameBox::dragEnterEvent(QDragEnterEvent* event) {
    if (GiftIn(*event->mimeData()).empty()) {
        QLineEdit::dragEnterEvent(event);
    } else {
        event->ignore();
    }
}

void NameBox::inputMethodEvent(QInputMethodEvent* event) {
    composed_ = event->preeditString();
    composedCursor_ = static_cast<int>(composed_.size());
    for (const QInputMethodEvent::Attribute& attribute : event->attributes()) {
        if (attribute.type == QInputMethodEvent::Cursor) composedCursor_ = attribute.start;
    }
    QLineEdit::inputMethodEvent(event);
    Fit();
}

void NameBox::LayOut(QTextLayout& text) const {
    QTextLayout::FormatRange composed;
    composed.start = cursorPosition();
    composed.length = static_cast<int>(composed_.size());
    composed.format.setFontUnderline(true);
    text.setFormats({composed});
    text.beginLayout();
    text.createLine();
    text.endLayout();
}

/// The toolkit scrolls the text and draws the cursor, inverting what is beneath it. Where the text
/// begins follows from the cursor's place, the middle of cursorRect().
void NameBox::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    QTextLayout text(ShownText(), font());
    LayOut(text);
    const QTextLine line = text.lineAt(0);
    const QRect cursor = cursorRect();
    const int left = cursor.x() + cursor.width() / 2 - qRound(line.cursorToX(ShownCursor()));
    const QPointF corner(left, Baseline(height(), ShownLetters()) - line.ascent());
    QPainter painter(this);
    DrawText(painter, text, corner);
}

void NameBox::DrawText(QPainter& painter, const QTextLayout& text, QPointF corner) const {
    QRegion selected;
    if (hasSelectedText()) {
        selected = Columns(text.lineAt(0), selectionStart(), selectionEnd(), corner.x(), height());
        painter.setClipRegion(selected);
        painter.fillRect(rect(), ink_);
        painter.setPen(onInk_);
        text.draw(&painter, corner);
    }
    painter.setClipRegion(QRegion(rect()) - selected);
    painter.setPen(ink_);
    text.draw(&painter, corner);
}

QString AsOneLine(const QString& text) {
    return QString::fromStdString(OneLine(text.toStdString()));
}

}  // namespace quendrel
