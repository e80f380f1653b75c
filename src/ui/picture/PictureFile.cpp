#include "ui/picture/PictureFile.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QtEndian>

#include "platform/Errors.h"
#include "platform/Files.h"
#include "ui/picture/PictureImage.h"

namespace quendrel {

namespace {

/// Whether the file begins as a bitmap does. A file too short to say passes; the decoder reports
/// it.
bool MayBeBitmap(const std::string& bytes) { return bytes.size() < 2 || bytes.starts_with("BM"); }

/// The size that a bitmap file declares in its header, or 0 where it is too short to say. Checked
/// because the decoder fills the missing part of a file that was cut short with black.
std::size_t DeclaredSize(const std::string& bytes) {
    constexpr std::size_t headerSize = 6;
    constexpr std::size_t sizeAt = 2;
    return bytes.size() < headerSize ? 0 : qFromLittleEndian<quint32>(bytes.data() + sizeAt);
}

}  // namespace

Picture ReadPictureFile(const std::string& path) {
    const std::string bytes = ReadFile(path);
    if (!MayBeBitmap(bytes)) {
        throw FileError(path, "is no Windows bitmap; save it as one, with 24 bits a pixel");
    }
    if (bytes.size() < DeclaredSize(bytes)) throw FileError(path, "is cut short");
    QBuffer buffer;
    buffer.setData(QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size())));
    QImageReader reader(&buffer, "bmp");
    const QImage image = reader.read();
    if (image.isNull()) throw FileError(path, reader.errorString().toStdString());

    return PictureOf(image);
}

}  // namespace quendrel
