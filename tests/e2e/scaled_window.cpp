// scaled_window DENSITY [SCALE]: a window whose picture, with so many pixels a unit, is changed
// piece by piece, each piece shown alone. Ends with 0 when the screen then has what a repaint of
// the whole window puts there. The toolkit reads the scale of the desktop once, from
// QT_SCALE_FACTOR, so each takes a run of its own; SCALE is what the player chose instead.
#include <iostream>
#include <random>

#include <QApplication>
#include <QScreen>
#include <QTest>

#include "Global.h"
#include "ui/controls/QtValues.h"
#include "ui/layout/BoardGeometry.h"
#include "ui/skin/WindowShape.h"
#include "ui/windows/SkinnedWindow.h"

namespace quendrel::test {
namespace {

class Window : public SkinnedWindow {
public:
    Window(ViewScale& scale, int density)
        : SkinnedWindow("scaled", scale),
          face_(kBoardSize.width * density, kBoardSize.height * density) {
        face_.SetDensity(density);
        Fill({0, 0, kBoardSize.width, kBoardSize.height});
        Picture mask(kBoardSize.width, kBoardSize.height);
        for (int x = 0; x < 40; ++x) mask.Row(0)[x] = kCutWhite;
        ShapeFrom({mask, {}});
        SetFace(face_);
    }

    /// Gives every pixel of the rectangle a colour of its own.
    void Fill(const Rect& rect) {
        const int pixels = face_.density();
        const int end = std::min((rect.top + rect.height) * pixels, face_.height());
        for (int y = rect.top * pixels; y < end; ++y) {
            Pixel* const row = face_.Row(y);
            const int right = std::min((rect.left + rect.width) * pixels, face_.width());
            for (int x = rect.left * pixels; x < right; ++x) row[x] = random_() & 0xFFFFFF;
        }
    }

    void Show(const Rect& rect) { RepaintNow(ToQRect(rect)); }

    /// A new picture in five passes of single lines, as the game shows a new board: the window has
    /// it already, and the screen gets it line by line.
    void Sweep() {
        const int width = kBoardSize.width - kBoardLeft;
        // The pieces of a skin's boards begin a unit beside the edge.
        constexpr int left = kBoardLeft + 1;
        Fill({left, 0, width, kBoardSize.height});
        for (int pass = 0; pass < 5; ++pass) {
            for (int y = 0; y <= kBoardSize.height; y += 5) {
                RepaintLineNow({kBoardLeft, y + pass, width, 1});
            }
        }
    }

    QImage OnScreen() const { return screen()->grabWindow(winId()).toImage(); }

private:
    Picture face_;
    std::mt19937 random_{7};
};

/// Whether the screen has changed since `before` and now shows what a full repaint shows.
bool IsWhole(Window& window, const QImage& before, const char* what) {
    const QImage alone = window.OnScreen();
    window.repaint();
    const QImage whole = window.OnScreen();
    if (alone != before && alone == whole) return true;
    std::cerr << what
              << (alone == before ? " did not change the screen\n" : " left something old\n");
    for (int y = 0; y < whole.height(); ++y) {
        int wrong = 0;
        for (int x = 0; x < whole.width(); ++x) {
            if (whole.pixel(x, y) != alone.pixel(x, y)) ++wrong;
        }
        if (wrong > 0) std::cerr << "line " << y << ": " << wrong << " wrong pixels\n";
    }
    return false;
}

bool SweepShowsTheWholeBoard(Window& window) {
    const QImage before = window.OnScreen();
    window.Sweep();
    return IsWhole(window, before, "the sweep");
}

bool EveryCellIsShownWhole(Window& window) {
    const QImage before = window.OnScreen();
    for (int row = 1; row <= kMaxRows; ++row) {
        for (int i = 1; i <= kMaxColumns; ++i) {
            for (const Rect& cell :
                 {Rect{PegAt(i, row).x, PegAt(i, row).y, kPegSize.width, kPegSize.height},
                  Rect{MarkAt(i, row).x, MarkAt(i, row).y, kMarkSize.width, kMarkSize.height}}) {
                window.Fill(cell);
                window.Show(cell);
            }
        }
    }
    return IsWhole(window, before, "cells");
}

}  // namespace
}  // namespace quendrel::test

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    quendrel::ViewScale scale;
    if (arguments.size() > 2) scale.ofRun = arguments.at(2).toDouble();
    quendrel::test::Window window(scale, arguments.at(1).toInt());
    window.move(0, 0);
    window.show();
    if (!QTest::qWaitForWindowExposed(&window)) return 2;
    QTest::qWait(50);
    std::cout << window.devicePixelRatioF() * window.Zoom() << "\n";
    const bool sweep = SweepShowsTheWholeBoard(window);
    const bool cells = EveryCellIsShownWhole(window);
    return sweep && cells ? 0 : 1;
}
