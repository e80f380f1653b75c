// The real windows, and what must hold in them at every moment at which the player can do
// something.
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include <QAbstractButton>
#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QPixmap>
#include <QPointer>
#include <QRegularExpression>
#include <QScreen>
#include <QTest>
#include <QWidget>
#include <QWindow>

#include "MainWindow.h"
#include "ui/controls/ClickTarget.h"
#include "ui/controls/ImageButton.h"
#include "ui/layout/Control.h"

namespace quendrel::test {

inline QString Named(const QObject& object) {
    return QString("%1 (%2)").arg(object.objectName(), object.metaObject()->className());
}

class WatchedWindows : public MainWindowFixture {
protected:
    using MainWindowFixture::MainWindowFixture;

    /// Those on the screen, but for balloons.
    static std::vector<QWidget*> Windows() {
        std::vector<QWidget*> shown;
        for (QWidget* const widget : QApplication::topLevelWidgets()) {
            const bool isBalloon = widget->windowType() == Qt::ToolTip;
            if (widget->isVisible() && !isBalloon && !widget->isMinimized()) {
                shown.push_back(widget);
            }
        }
        return shown;
    }

    /// What a window shows, or what of it takes presses.
    static std::vector<QWidget*> Controls(const QWidget& on, bool usable) {
        std::vector<QWidget*> controls;
        for (auto* const child : on.findChildren<QWidget*>()) {
            if (child->window() != &on || !child->isVisible()) continue;
            if (!usable || IsUsable(child)) controls.push_back(child);
        }
        return controls;
    }

    static bool IsUsable(QWidget* widget) {
        const auto* const button = dynamic_cast<QAbstractButton*>(widget);
        const bool takesPresses =
            button != nullptr || dynamic_cast<ClickTarget*>(widget) != nullptr;
        return takesPresses && widget->isEnabled() && widget->objectName() != "cmdTmrBtn";
    }

    /// What does not hold: the name of the rule before a colon, and the facts after it. Empty where
    /// everything does.
    QString Fault() { return FocusFault() + WayFault() + NameFault() + HidingFault(); }

    /// What the screen shows of a window is, soon, what the window would paint now: the toolkit
    /// paints some of it a little later. To be asked before a deed: one that has ended a game
    /// leaves the idle board to be swept onto the screen.
    static QString PictureFault() {
        constexpr int kSoonMs = 500;
        for (const QPointer<QWidget> shown : Windows()) {
            // It may close meanwhile.
            const auto isPainted = [shown] {
                return shown == nullptr || !shown->isVisible() ||
                       LookAlike(AsShown(shown->screen()->grabWindow(shown->winId())),
                                 AsShown(shown->grab()));
            };
            if (!QTest::qWaitFor(isPainted, kSoonMs)) {
                return "picture: another of " + Named(*shown);
            }
        }
        return {};
    }

private:
    /// Within this time the game does something by itself where it takes no press.
    static constexpr std::int64_t kLongestShow = 15'000;

    /// In a window that is shown, the keyboard goes to something that is seen and can be used. From
    /// a window that has closed the desktop takes it later.
    static QString FocusFault() {
        const QWidget* const at = QApplication::focusWidget();
        if (at == nullptr || !at->window()->isVisible()) return {};
        if (at->isVisible() && at->isEnabled()) return {};
        return "focus: on " + Named(*at) + ", which is " + (at->isVisible() ? "off" : "hidden");
    }

    /// Of the main window's controls only commands, answers and rows do, and holes while the code
    /// is set; anything of another window does.
    bool LeadsOn(const QWidget& top) const {
        const std::vector<QWidget*> controls = Controls(top, true);
        if (&top != &window) return !controls.empty();
        static const QRegularExpression kAlways("^(cmdMnuBtn|cmdInput|lblCloneRow)");
        return std::any_of(controls.begin(), controls.end(), [this](const QWidget* control) {
            const QString name = control->objectName();
            return name.contains(kAlways) || (global.CodeEntry && name.startsWith("lblActiveRow"));
        });
    }

    /// Something that leads on can be pressed, or comes by itself.
    QString WayFault() {
        const std::vector<QWidget*> shown = Windows();
        QWidget* const modal = QApplication::activeModalWidget();
        const QWidget* const top = modal != nullptr ? modal : &window;
        if (!window.isVisible() || window.isMinimized() || LeadsOn(*top)) stuckSince_ = clock.Now();
        return clock.Now() - stuckSince_ > kLongestShow ? "way on: none in " + Named(*top) : "";
    }

    /// Every button is named for a screen reader.
    static QString NameFault() {
        for (const QWidget* const top : Windows()) {
            for (QWidget* const control : Controls(*top, true)) {
                if (dynamic_cast<ImageButton*>(control) == nullptr) continue;
                if (control->accessibleName().isEmpty()) {
                    return "names: none for " + Named(*control);
                }
            }
        }
        return {};
    }

    /// Of a hidden game nothing is left on the screen, but for boxes, which say what went wrong; of
    /// a hidden window no balloon.
    QString HidingFault() const {
        for (const QWidget* const widget : QApplication::topLevelWidgets()) {
            const bool isBalloon = widget->objectName() == "popHelp" && widget->isVisible();
            if (isBalloon && !widget->parentWidget()->isVisible())
                return "hiding: not of a balloon";
        }
        if (window.isVisible() && !window.isMinimized()) return {};
        for (const QWidget* const shown : Windows()) {
            const QString name = shown->objectName();
            if (name.startsWith("frm") && name != "frmSplash") return "hiding: not of " + name;
        }
        return {};
    }

    static QImage AsShown(const QPixmap& grabbed) {
        return grabbed.toImage().convertToFormat(QImage::Format_RGB32);
    }

    /// The rim of a letter may depend on how much is painted at once.
    static bool LookAlike(const QImage& one, const QImage& other) {
        constexpr int kMostPixels = 4;
        if (one == other || one.size() != other.size()) return one == other;
        int differ = 0;
        for (int y = 0; y < one.height(); ++y) {
            for (int x = 0; x < one.width(); ++x) {
                if (one.pixel(x, y) != other.pixel(x, y)) ++differ;
            }
        }
        return differ <= kMostPixels;
    }

    std::int64_t stuckSince_ = 0;
};

}  // namespace quendrel::test
