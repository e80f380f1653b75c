// A text in a window that is there for screen readers only.
#pragma once

#include <QObject>
#include <QRect>
#include <QString>

namespace quendrel {

class SpokenText : public QObject {
public:
    /// In a place of the window in units; empty, and not there.
    SpokenText(QObject* parent, const QRect& place) : QObject(parent), place_(place) {}

    /// An empty text takes it away.
    void SetText(const QString& text);

    const QString& Text() const { return text_; }
    QRect Place() const { return place_; }

private:
    QRect place_;
    QString text_;
};

}  // namespace quendrel
