// A red window that is cut to a region of device pixels while the test looks on: the numbers of its
// rectangles come on the command line. It says which window it is, how it was cut, and from then on
// whether a compositor runs, a line a time.
#include <iostream>
#include <vector>

#include <QApplication>
#include <QRegion>
#include <QWidget>

#include "platform/desktop/WindowEdges.h"

namespace quendrel::test {
namespace {

QRegion RegionOf(const QStringList& numbers) {
    QRegion region;
    for (qsizetype i = 0; i + 4 <= numbers.size(); i += 4) {
        region += QRect(numbers[i].toInt(), numbers[i + 1].toInt(), numbers[i + 2].toInt(),
                        numbers[i + 3].toInt());
    }
    return region;
}

void SayWhetherACompositorRuns() {
    std::cout << (CompositorRuns() ? "compositor" : "no compositor") << std::endl;
}

int Show(const QRegion& region) {
    QWidget window(nullptr, Qt::Window | Qt::FramelessWindowHint);
    window.setPalette(Qt::red);
    window.setFixedSize(200, 100);
    window.move(0, 0);
    const bool cut =
        CutWindow(window.winId(), QRegion(0, 0, 1, 1)) && CutWindow(window.winId(), region);
    window.show();
    std::cout << window.winId() << '\n' << (cut ? "cut" : "not cut") << std::endl;
    const CompositorWatch watch(SayWhetherACompositorRuns);
    SayWhetherACompositorRuns();
    return QApplication::exec();
}

}  // namespace
}  // namespace quendrel::test

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    return quendrel::test::Show(quendrel::test::RegionOf(QApplication::arguments().mid(1)));
}
