#include "ui/picture/PictureFile.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>

#include "platform/Errors.h"
#include "platform/Files.h"
#include "ui/picture/BitmapHeader.h"
#include "ui/picture/PictureImage.h"

namespace quendrel {

Picture ReadPictureFile(const std::string& path) {
    const std::string bytes = ReadFile(path);
    // The decoder fills the missing part of a file that was cut short with black.
    const Size size = SizeInBitmap(path, bytes, bytes.size());
    QBuffer buffer;
    buffer.setData(QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size())));
    QImageReader reader(&buffer, "bmp");
    QImage image = Whole({size.width, size.height, QImage::Format_RGB32});
    if (!reader.read(&image)) throw FileError(path, reader.errorString().toStdString());
    // It also guesses at headers of a length that it does not know.
    if (image.width() != size.width || image.height() != size.height) {
        throw FileError(path, "is no usual Windows bitmap; save it as one, with 24 bits a pixel");
    }
    return PictureOf(image);
}

}  // namespace quendrel
