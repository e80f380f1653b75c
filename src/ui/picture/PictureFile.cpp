#include "ui/picture/PictureFile.h"

#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QtEndian>

#include "platform/Errors.h"
#include "ui/picture/PictureImage.h"

namespace quendrel {

namespace {

/// Whether the file begins as a bitmap does. A file too short to say passes; the decoder reports
/// it.
bool MayBeBitmap(QFile& file) {
    const QByteArray letters = file.peek(2);
    return letters.size() < 2 || letters == "BM";
}

/// The size that a bitmap file declares in its header, or 0 where it is too short to say. Checked
/// because the decoder fills the missing part of a file that was cut short with black.
qint64 DeclaredSize(QFile& file) {
    constexpr qint64 headerSize = 6;
    constexpr qint64 sizeAt = 2;
    const QByteArray header = file.peek(headerSize);
    return header.size() < headerSize ? 0 : qFromLittleEndian<quint32>(header.data() + sizeAt);
}

}  // namespace

Picture ReadPictureFile(const std::string& path) {
    QFile file(QFile::decodeName(path.c_str()));
    if (!file.open(QIODevice::ReadOnly)) {
        throw FileError(path, file.errorString().toStdString());
    }
    if (!MayBeBitmap(file)) {
        throw FileError(path, "is no Windows bitmap; save it as one, with 24 bits a pixel");
    }
    if (file.size() < DeclaredSize(file)) throw FileError(path, "is cut short");
    QImageReader reader(&file, "bmp");
    const QImage image = reader.read();
    if (image.isNull()) throw FileError(path, reader.errorString().toStdString());

    return PictureOf(image);
}

}  // namespace quendrel
