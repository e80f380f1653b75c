// A window whose picture is changed piece by piece, each piece shown alone: ends with 0 when the
// screen then has what a repaint of the whole window puts there. The toolkit reads the scale of
// the desktop once, from QT_SCALE_FACTOR, so each scale takes a run of its own.
#include <iostream>
#include <random>

#include <QApplication>
#include <QScreen>
#include <QTest>

#include "Global.h"
#include "ui/layout/BoardGeometry.h"
#include "ui/skin/WindowShape.h"
#include "ui/windows/SkinnedWindow.h"

namespace quendrel::test {
namespace {

class Window : public SkinnedWindow {
public:
    Window() : SkinnedWindow("scaled") {
        Fill({0, 0, kBoardSize.width, kBoardSize.height});
        Picture mask(kBoardSize.width, kBoardSize.height);
        for (int x = 0; x < 40; ++x) mask.Row(0)[x] = kCutWhite;
        ShapeFrom(mask, kCutWhite);
        SetFace(face_);
    }

    /// Gives every pixel of the rectangle a colour of its own.
    void Fill(const Rect& rect) {
        for (int y = rect.top; y < std::min(rect.top + rect.height, face_.height()); ++y) {
            Pixel* const row = face_.Row(y);
            for (int x = rect.left; x < std::min(rect.left + rect.width, face_.width()); ++x) {
                row[x] = random_() & 0xFFFFFF;
            }
        }
    }

    void Show(const Rect& rect) { RepaintNow(QRect(rect.left, rect.top, rect.width, rect.height)); }

    /// As five passes of single lines, every fifth line a pass.
    void Sweep() {
        for (int pass = 0; pass < 5; ++pass) {
            for (int y = pass; y < kBoardSize.height + 1; y += 5) {
                Show({kBoardLeft, y, kBoardSize.width, 1});
            }
        }
    }

    QImage OnScreen() const { return screen()->grabWindow(winId()).toImage(); }

private:
    Picture face_{kBoardSize.width, kBoardSize.height};
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
    window.Fill({kBoardLeft, 0, kBoardSize.width - kBoardLeft, kBoardSize.height});
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
    quendrel::test::Window window;
    window.move(0, 0);
    window.show();
    if (!QTest::qWaitForWindowExposed(&window)) return 2;
    QTest::qWait(50);
    std::cout << window.devicePixelRatioF() << "\n";
    const bool sweep = SweepShowsTheWholeBoard(window);
    const bool cells = EveryCellIsShownWhole(window);
    return sweep && cells ? 0 : 1;
}
