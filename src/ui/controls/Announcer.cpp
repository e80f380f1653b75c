#include "ui/controls/Announcer.h"

#include <QAccessible>
#include <QWidget>

#include "ui/controls/SpokenText.h"

namespace quendrel {

namespace {

/// A screen reader asks for a text some time after it was told of it.
constexpr int kTextsKept = 10;

}  // namespace

Announcer::Announcer(QWidget* window) : QObject(window) {}

void Announcer::Say(const QString& text) {
    if (!static_cast<QWidget*>(parent())->isVisible()) return;
    while (children().size() >= kTextsKept) delete children().front();
    QAccessibleEvent event(new Announcement(this, text), QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&event);
}

Announcement::Announcement(Announcer* announcer, const QString& text) : QObject(announcer) {
    new SpokenText(this, {}, text);
}

}  // namespace quendrel
