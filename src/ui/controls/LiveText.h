// The text that is drawn live over the pictures, one line at a time.
#pragma once

#include <string>

#include <QFont>
#include <QRect>
#include <QString>

#include "ui/skin/SkinFonts.h"

class QPainter;

namespace quendrel {

/// What the skin in the folder `root` says of its live text, as far as this machine has the faces.
SkinFonts FontsOfSkin(const std::string& root);

/// The font of a live text whose usual size is `pixels`.
QFont LiveFont(const TextStyle& style, int pixels);

/// `place`, made higher where a line in this font needs it. Accents on capitals are taller than the
/// height that the font states: plain text stays in the middle of `place`, and the accents may
/// reach beyond it.
QRect WholeLine(const QRect& place, const QFont& font);

/// Draws the text, in a smaller size where it would be too high, as letters of other fonts may be.
/// A text that is too long is cut with an ellipsis before its last `kept` characters.
void DrawLine(QPainter& painter, const QRect& line, Qt::Alignment side, const QFont& font,
              const QString& text, qsizetype kept = 0);

/// Whether DrawLine must cut the text.
bool IsCut(const QRect& line, const QFont& font, const QString& text);

/// The baseline that DrawLine uses in a line of this height, in pixels from its top.
int Baseline(int height, const QFont& font);

/// The font, or a smaller size of it, in which DrawLine draws the text in a line of this height.
QFont FittingFont(int height, const QFont& font, const QString& text);

}  // namespace quendrel
