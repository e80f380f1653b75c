// A picture on the screen, at every scale of the desktop.
#pragma once

#include <QImage>
#include <QRegion>

class QPainter;

namespace quendrel {

/// Paints the part `region` of an image of 32-bit pixels whose corner is the painter's origin.
/// Each device pixel shows the image's pixel that lies under its centre, whatever the part: the
/// toolkit itself would scale each part a little differently.
void PaintImage(QPainter& painter, const QImage& image, const QRegion& region);

}  // namespace quendrel
