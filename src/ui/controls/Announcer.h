// Lets a screen reader say something at once.
#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace quendrel {

/// For screen readers a status bar, in which notifications come up: those they read without being
/// asked, and without saying what they are.
class Announcer : public QObject {
public:
    explicit Announcer(QWidget* window);

    /// Says the text, unless the window is hidden.
    void Say(const QString& text);
};

/// What was said; its only child is the SpokenText.
class Announcement : public QObject {
public:
    Announcement(Announcer* announcer, const QString& text);
};

}  // namespace quendrel
