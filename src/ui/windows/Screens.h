// The screens, which change while the program runs.
#pragma once

#include <functional>

class QObject;
class QPoint;
class QRect;
class QScreen;
class QSize;
class QWidget;

namespace quendrel {

/// The screen that shows most of a place, the primary one where none shows any of it.
QScreen* ScreenOf(const QRect& place);

/// The corner of a window of this size that is centred over a place as far as all of it can be on
/// the screen.
QPoint CornerOver(const QRect& place, QSize size, const QScreen& screen);

/// Calls `onChange` whenever a screen has changed its size or its place, or has gone; as long as
/// `receiver` lives.
void WatchScreens(QObject* receiver, const std::function<void()>& onChange);

/// Brings a window with a frame back onto a screen whenever one leaves it outside.
void KeepOnScreens(QWidget& window);

}  // namespace quendrel
