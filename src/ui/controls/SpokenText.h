// A text in a window that is there for screen readers only.
#pragma once

#include <utility>

#include <QObject>
#include <QRect>
#include <QString>

namespace quendrel {

class SpokenText : public QObject {
public:
    /// In a place of the window in units.
    SpokenText(QObject* parent, const QRect& place, QString text = {})
        : QObject(parent), place_(place), text_(std::move(text)) {}

    /// An empty text is not there.
    void SetText(const QString& text);

    const QString& Text() const { return text_; }
    QRect Place() const { return place_; }

private:
    QRect place_;
    QString text_;
};

}  // namespace quendrel
