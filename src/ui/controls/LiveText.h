// The text that is drawn live over the pictures, one line at a time.
#pragma once

#include <QFont>
#include <QRect>
#include <QString>

class QPainter;

namespace quendrel {

/// The pictures' own family at a size in pixels.
QFont LiveFont(int pixels);

/// `place` with what a line of this size needs above and below it. The font states a height that
/// the accents of its capitals do not keep to: plain text stands in the middle of `place`, the
/// accents reach over its edge.
QRect WholeLine(const QRect& place, int pixels);

/// Draws the text whole in height, where it would be taller (letters of other fonts may be) in a
/// smaller size. Too long, it is cut with an ellipsis, which spares the last `kept` characters.
void DrawLine(QPainter& painter, const QRect& line, Qt::Alignment side, int pixels,
              const QString& text, qsizetype kept = 0);

/// Whether DrawLine must cut the text.
bool IsCut(const QRect& line, int pixels, const QString& text);

/// Where DrawLine has the letters stand in a line of this height, in pixels from its top.
int Baseline(int height, int pixels);

/// The font in which DrawLine draws the text in a line of this height.
QFont FittingFont(int height, int pixels, const QString& text);

}  // namespace quendrel
