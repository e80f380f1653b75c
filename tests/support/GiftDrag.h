// A file that is dragged onto a widget, as the toolkit tells of it.
#pragma once

#include <string>

#include <QCoreApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace quendrel::test {

class GiftDrag {
public:
    /// As text too, as file managers have it.
    explicit GiftDrag(const QList<QUrl>& urls) {
        data_.setUrls(urls);
        data_.setText("a name");
    }
    explicit GiftDrag(const std::string& path)
        : GiftDrag({QUrl::fromLocalFile(QString::fromStdString(path))}) {}

    /// Shift asks the giver for a move.
    Qt::KeyboardModifiers keys = Qt::NoModifier;

    /// Whether it is welcome there.
    bool Enter(QWidget* widget, Qt::DropActions offered = Qt::CopyAction) {
        QDragEnterEvent enter(kAt, offered, &data_, Qt::LeftButton, Qt::NoModifier);
        return IsAccepted(widget, enter);
    }

    bool Move(QWidget* widget) {
        QDragMoveEvent move(kAt, Qt::CopyAction, &data_, Qt::LeftButton, Qt::NoModifier);
        return IsAccepted(widget, move);
    }

    /// What the giver is told has been done with it.
    Qt::DropAction Drop(QWidget* widget, Qt::DropActions offered = Qt::CopyAction) {
        QDropEvent drop(kAt, offered, &data_, Qt::LeftButton, keys);
        return IsAccepted(widget, drop) ? drop.dropAction() : Qt::IgnoreAction;
    }

private:
    static constexpr QPoint kAt{5, 5};

    static bool IsAccepted(QWidget* widget, QEvent& event) {
        event.setAccepted(false);
        QCoreApplication::sendEvent(widget, &event);
        return event.isAccepted();
    }

    QMimeData data_;
};

}  // namespace quendrel::test
