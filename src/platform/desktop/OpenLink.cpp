#include "platform/desktop/OpenLink.h"

#include <QDesktopServices>
#include <QUrl>

namespace quendrel {

std::int32_t OpenLink(const std::string& address) {
    return QDesktopServices::openUrl(QUrl(QString::fromStdString(address))) ? 1 : 0;
}

std::string AddressOfFile(const std::string& path) {
    constexpr const char* kPlain = "/!$&'()*+,;=:@";
    return "file://" + QByteArray::fromStdString(path).toPercentEncoding(kPlain).toStdString();
}

}  // namespace quendrel
