// A picture on the screen, at every scale of the desktop.
#pragma once

#include <QImage>
#include <QRegion>

#include "ui/picture/Picture.h"

class QPainter;

namespace quendrel {

/// Paints the part of an image of 32-bit pixels that `region` covers; the region is in the pixels
/// of the painter's widget, and the image's corner is the painter's origin. A unit of the painter
/// has as many of the image's pixels as its devicePixelRatio says. Each device pixel shows the
/// same, whatever the part: the image's pixel under its centre where the image has one pixel a unit
/// or fits the device exactly, and otherwise a mixture of those around it. The toolkit itself would
/// scale each part a little differently. The image must not be empty: Whole() makes sure of it
/// where one is made.
void PaintImage(QPainter& painter, const QImage& image, const QRegion& region);

/// Copies a rectangle of a picture's pixels to the same place of an image of 32-bit pixels, opaque.
void CopyPixels(const Picture& picture, const QRect& pixels, QImage& image);

}  // namespace quendrel
