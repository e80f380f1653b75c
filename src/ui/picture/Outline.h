// The outline of a window, from its mask picture, in the pixels of the device that shows it.
#pragma once

#include <QImage>
#include <QRegion>
#include <QSize>

#include "ui/picture/Picture.h"

class QPainter;

namespace quendrel {

struct Outline {
    /// The device pixels that belong to the window, in whole or in part.
    QRegion kept;
    /// Those that belong to it in part; none where the outline is hard.
    QRegion edge;
    /// How much of each device pixel belongs to the window, as opacity; null where the outline is
    /// hard.
    QImage coverage;
};

/// The outline of a window of `device` pixels, of which each is kept or cut away as a whole: as the
/// pixel of the mask says that lies under its centre. A mask cuts away what is exactly `cut` in it.
Outline HardOutline(const Picture& mask, Pixel cut, QSize device);

/// The same with an edge that is evened out. A straight side that runs between device pixels stays
/// sharp, and the sides of the mask go on beyond its border.
Outline SmoothOutline(const Picture& mask, Pixel cut, QSize device);

/// Takes away what lies outside an outline from what was painted at the painter's origin, within
/// the part `region`, which is in the pixels of the painter's widget. What was painted must be able
/// to have opacity.
void ClearOutside(QPainter& painter, const Outline& outline, const QRegion& region);

}  // namespace quendrel
