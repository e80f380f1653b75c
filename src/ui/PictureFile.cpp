// Picture files.
#include "ui/PictureFile.h"

#include <algorithm>

#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QtEndian>

#include "platform/Errors.h"

namespace quendrel {

namespace {

/// The size that a bitmap file declares in its header, or 0 where it is too short to say. The
/// decoder takes a file that was cut short for a picture with a black rest.
qint64 DeclaredSize(QFile& file) {
    constexpr qint64 headerSize = 6;
    constexpr qint64 sizeAt = 2;
    const QByteArray header = file.peek(headerSize);
    return header.size() < headerSize ? 0 : qFromLittleEndian<quint32>(header.data() + sizeAt);
}

}  // namespace

Picture PictureFileReader::Read(const std::string& path) {
    QFile file(QFile::decodeName(path.c_str()));
    if (!file.open(QIODevice::ReadOnly)) {
        throw FileError(path, file.errorString().toStdString());
    }
    if (file.size() < DeclaredSize(file)) throw FileError(path, "is cut short");
    QImageReader reader(&file, "bmp");
    const QImage image = reader.read().convertToFormat(QImage::Format_RGB32);
    if (image.isNull()) throw FileError(path, reader.errorString().toStdString());

    constexpr Pixel colorBits = 0x00FFFFFF;
    Picture picture(image.width(), image.height());
    for (int y = 0; y < image.height(); ++y) {
        const auto* const line = reinterpret_cast<const Pixel*>(image.constScanLine(y));
        std::transform(line, line + image.width(), picture.Row(y),
                       [](Pixel pixel) { return pixel & colorBits; });
    }
    return picture;
}

}  // namespace quendrel
