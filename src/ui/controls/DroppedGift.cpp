#include "ui/controls/DroppedGift.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace quendrel {

std::string GiftIn(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1) return {};
    const QFileInfo file(urls.front().toLocalFile());
    const bool isZip = file.isFile() && file.suffix().toLower() == "zip";
    return file.isDir() || isZip ? file.absoluteFilePath().toStdString() : std::string();
}

}  // namespace quendrel
