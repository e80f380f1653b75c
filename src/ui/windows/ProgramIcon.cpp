#include "ui/windows/ProgramIcon.h"

#include <QPixmap>
#include <QString>

namespace quendrel {

/// The format is named, so that the toolkit looks for no other.
QIcon ProgramIcon() {
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
        icon.addPixmap(QPixmap(QString(":/builtin/icon-%1.png").arg(size), "PNG"));
    }
    return icon;
}

}  // namespace quendrel
