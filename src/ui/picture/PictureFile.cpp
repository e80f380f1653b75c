#include "ui/picture/PictureFile.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>

#include "platform/Errors.h"
#include "platform/Files.h"
#include "ui/picture/BitmapHeader.h"
#include "ui/picture/PictureImage.h"

namespace quendrel {

namespace {

/// Throws std::bad_alloc where there is no memory for a picture, which the decoder does not tell
/// from bad bytes. What it would decode for no machine is not asked for.
void RequireMemoryFor(Size size) {
    constexpr qint64 kPixelsAMegabyte = (1 << 20) / 4;
    // Two sides of 32 bits each have a product of 64, which a further factor would not fit into.
    const qint64 pixels = qint64{size.width} * size.height;
    if (pixels > QImageReader::allocationLimit() * kPixelsAMegabyte) return;
    Whole({size.width, size.height, QImage::Format_RGB32});
}

}  // namespace

Picture ReadPictureFile(const std::string& path) {
    const std::string bytes = ReadFile(path);
    // The decoder fills the missing part of a file that was cut short with black.
    const Size size = SizeInBitmap(path, bytes, bytes.size());
    QBuffer buffer;
    buffer.setData(QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size())));
    QImageReader reader(&buffer, "bmp");
    const QImage image = reader.read();
    if (image.isNull()) {
        RequireMemoryFor(size);
        throw FileError(path, reader.errorString().toStdString());
    }
    // It also guesses at headers of a length that it does not know.
    if (image.width() != size.width || image.height() != size.height) {
        throw FileError(path, "is no usual Windows bitmap; save it as one, with 24 bits a pixel");
    }
    return PictureOf(image);
}

}  // namespace quendrel
