// The text that is drawn live over the pictures, one line at a time.
#pragma once

#include <QFont>
#include <QRect>
#include <QString>

class QPainter;

namespace quendrel {

/// The font of all live text, which the skins' captions share, at a size in pixels.
QFont LiveFont(int pixels);

/// `place`, made higher where a line of this size needs it. Accents on capitals are taller than the
/// height that the font states: plain text stays in the middle of `place`, and the accents may
/// reach beyond it.
QRect WholeLine(const QRect& place, int pixels);

/// Draws the text, in a smaller size where it would be too high, as letters of other fonts may be.
/// A text that is too long is cut with an ellipsis before its last `kept` characters.
void DrawLine(QPainter& painter, const QRect& line, Qt::Alignment side, int pixels,
              const QString& text, qsizetype kept = 0);

/// Whether DrawLine must cut the text.
bool IsCut(const QRect& line, int pixels, const QString& text);

/// The baseline that DrawLine uses in a line of this height, in pixels from its top.
int Baseline(int height, int pixels);

/// The font in which DrawLine draws the text in a line of this height.
QFont FittingFont(int height, int pixels, const QString& text);

}  // namespace quendrel
