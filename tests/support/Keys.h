// What keys do in a window.
#pragma once

#include <string>

#include <QTest>
#include <QWidget>

#include "Log.h"

namespace quendrel::test {

/// The names of the controls that the tabulator goes through, from `first` on.
inline QStringList TabOrder(const QWidget& window, const QString& first) {
    QStringList names;
    for (const QWidget* control = window.nextInFocusChain(); control != &window;
         control = control->nextInFocusChain()) {
        if ((control->focusPolicy() & Qt::TabFocus) != 0) names.append(control->objectName());
    }
    return names.mid(names.indexOf(first)) + names.mid(0, names.indexOf(first));
}

/// What is heard when a control that has the focus is pressed by a key.
inline std::string SoundsOfKey(Log& log, QWidget* control, Qt::Key key) {
    control->window()->show();
    control->setEnabled(true);
    control->setFocus();
    log.Clear();
    QTest::keyClick(control, key);
    return log.LinesFrom("sound ");
}

}  // namespace quendrel::test
