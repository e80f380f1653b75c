// The real windows, in which everything that a player, the desktop and time can do may be done at
// any moment.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <map>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include <QAbstractEventDispatcher>
#include <QAccessible>
#include <QClipboard>
#include <QKeySequence>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QMimeData>
#include <QTimerEvent>

#include "GiftDrag.h"
#include "SkinCopy.h"
#include "WatchedWindows.h"
#include "platform/Doors.h"

namespace quendrel::test {

enum class Act : std::uint8_t {
    kClick,
    kRightClick,
    kDoubleClick,
    kLetGoBeside,
    kTune,
    kDrag,
    kKey,
    kType,
    kAction,
    kLateAction,
    kTuneAction,
    kDictate,
    kClose,
    kMinimise,
    kHide,
    kFront,
    kDrop,
    kDropSpoilt,
    kPaste,
    kScreen,
    kTime,
    kEnd,
};

/// What an act is done to.
enum class Of : std::uint8_t {
    kControls,
    /// Those of the windows behind too.
    kAllControls,
    kActWhenLetGo,
    kTunes,
    kBoxes,
    kWindows,
    kTop,
    kKeys,
};

struct ActDesign {
    Act act;
    std::string_view name;
    Of of;
    /// Its details count from 0.
    int count = 1;
};

// clang-format off
inline constexpr std::array kActs{
    ActDesign{Act::kClick,       "click",                     Of::kControls},
    ActDesign{Act::kRightClick,  "right click",               Of::kControls},
    ActDesign{Act::kDoubleClick, "double click",              Of::kControls},
    ActDesign{Act::kLetGoBeside, "press, let go beside",      Of::kControls},
    ActDesign{Act::kTune,        "click a tune",              Of::kTunes},
    ActDesign{Act::kDrag,        "drag",                      Of::kTop},
    ActDesign{Act::kKey,         "key",                       Of::kKeys},
    ActDesign{Act::kAction,      "action",                    Of::kAllControls},
    ActDesign{Act::kLateAction,  "action, let go later",      Of::kActWhenLetGo},
    ActDesign{Act::kTuneAction,  "action on a tune",          Of::kTunes},
    ActDesign{Act::kDictate,     "dictate",                   Of::kBoxes},
    ActDesign{Act::kClose,       "close",                     Of::kTop},
    ActDesign{Act::kMinimise,    "minimise and come back",    Of::kTop},
    ActDesign{Act::kHide,        "hide and come back",        Of::kTop, 3},
    ActDesign{Act::kFront,       "second start",              Of::kTop},
    ActDesign{Act::kDrop,        "drop a skin",               Of::kWindows},
    ActDesign{Act::kDropSpoilt,  "drop what is no skin",      Of::kWindows},
    ActDesign{Act::kPaste,       "paste a skin",              Of::kTop},
    ActDesign{Act::kScreen,      "screen",                    Of::kTop, 3},
    ActDesign{Act::kTime,        "time",                      Of::kTop, 2},
    ActDesign{Act::kEnd,         "end of the session",        Of::kTop},
};
// clang-format on

/// Something that is done at one moment to a control of a window, by its name.
struct WindowDeed {
    Act act = Act::kClick;
    QString window;
    QString control = {};
    /// The tune, or the key and what is held with it.
    int detail = 0;
    /// What is typed, or the name of the action.
    QString text = {};
};

inline std::ostream& operator<<(std::ostream& out, const WindowDeed& deed) {
    for (const ActDesign& design : kActs) {
        if (design.act == deed.act) out << design.name;
    }
    if (deed.act == Act::kType) out << "type";
    out << ' ' << deed.window.toStdString() << ' ' << deed.control.toStdString();
    if (deed.act == Act::kKey) return out << QKeySequence(deed.detail).toString().toStdString();
    return out << ' ' << deed.detail << ' ' << deed.text.toStdString();
}

// What flows are made of.

inline const QString kMain = "frmMain";
inline const QString kConfig = "frmConfig";
inline const QString kHigh = "frmHigh";
inline const QString kBox = "box";

inline WindowDeed InMain(const char* control) { return {Act::kClick, kMain, control}; }
inline WindowDeed Strike(const QString& window, int keys) { return {Act::kKey, window, {}, keys}; }

/// The player types into a box, or goes on to type.
inline WindowDeed Type(const QString& window, const char* box, const char* text) {
    return {Act::kType, window, box, 0, text};
}

inline std::vector<WindowDeed> After(std::vector<WindowDeed> first,
                                     const std::vector<WindowDeed>& then) {
    first.insert(first.end(), then.begin(), then.end());
    return first;
}

class AnyWindowGame : public WatchedWindows {
public:
    /// What did not hold, and when; empty where everything held.
    std::string fault;

    void TestBody() override {}

protected:
    AnyWindowGame() : WatchedWindows(ReadOnce) {
        for (const char* const name : {"Atelier", "Daylight"}) LinkSkin(name);
        std::filesystem::create_directories(folder.path() + "/Skin/Worn out");
        global.SkinFolder = folder.path() + "\\Skin\\";
        global.AppFolder = folder.path() + "\\";
        global.HighFolder = folder.path() + "\\High\\";
        global.MusicFolder = folder.path() + "\\Music\\";
        std::filesystem::create_directories(folder.path() + "/Music");
        std::filesystem::create_directories(folder.path() + "/Rules");
        folder.Write("Rules/Rules.html", "");
        for (const char* const tune : {"Air", "Bourree", "Canon"}) {
            folder.Write("Music/" + std::string(tune) + ".mid", "x");
        }
        folder.Write("none.zip", "no archive");
        QGuiApplication::clipboard()->clear();
    }

    /// The window that takes input.
    QWidget* Top() {
        QWidget* const modal = QApplication::activeModalWidget();
        return modal != nullptr ? modal : &window;
    }
    static QString NameOfWindow(const QWidget& shown) {
        return qobject_cast<const QMessageBox*>(&shown) != nullptr ? "box" : shown.objectName();
    }
    static QString NameOfControl(const QWidget& control) {
        const auto* const button = qobject_cast<const QAbstractButton*>(&control);
        if (control.objectName().isEmpty() && button != nullptr) return button->text();
        return control.objectName().startsWith("qt_") ? QString() : control.objectName();
    }
    static QWidget* WindowCalled(const QString& name) {
        for (QWidget* const shown : Windows()) {
            if (NameOfWindow(*shown) == name) return shown;
        }
        return nullptr;
    }
    static QWidget* ControlCalled(const QWidget& on, const QString& name) {
        auto* const found = on.findChild<QWidget*>(name);
        if (found != nullptr) return found->isVisible() ? found : nullptr;
        for (auto* const button : on.findChildren<QAbstractButton*>()) {
            if (NameOfControl(*button) == name) return button;
        }
        return nullptr;
    }

    static bool HasModal() { return QApplication::activeModalWidget() != nullptr; }

    /// Every act on everything that is there now.
    std::vector<WindowDeed> AllDeeds() {
        std::vector<WindowDeed> all;
        for (const ActDesign& design : kActs) {
            for (int detail = 0; detail < design.count; ++detail) AddDeeds(design, detail, all);
        }
        return all;
    }

    /// Does it where it can be done, and lets happen what follows at once.
    void Do(const WindowDeed& deed) {
        QWidget* const on = WindowCalled(deed.window);
        if (on == nullptr) return;
        QWidget* const control = deed.control.isEmpty() ? on : ControlCalled(*on, deed.control);
        if (control == nullptr) return;
        DoByMouse(deed, *on, *control);
        DoByKeys(deed, *on, *control);
        DoByScreenReader(deed, *control);
        DoByDesktop(deed, *on);
        QCoreApplication::processEvents();
        PutAwayMenu();
    }

    /// The end of a press by a screen reader, which the toolkit has some time later.
    void LetGo() {
        const QPointer<QAbstractButton> button = std::exchange(pressed_, nullptr);
        if (button == nullptr) return;
        button->removeEventFilter(&held_);
        for (const auto& timer :
             QAbstractEventDispatcher::instance()->registeredTimers(button.data())) {
            QTimerEvent end(timer.timerId);
            if (button != nullptr) QCoreApplication::sendEvent(button.data(), &end);
        }
        QCoreApplication::processEvents();
    }

    /// When it is that something does not hold.
    virtual std::string CaseSaid() const = 0;

    /// The first fault counts.
    void Note(const std::string& what) {
        if (fault.empty()) fault = CaseSaid() + "\n" + what;
    }

    void Compare(const std::string& what, const std::string& is, const std::string& expected) {
        if (is != expected) Note(what + ": " + is + "\nand not: " + expected);
    }

    /// How the game stands, the clock apart.
    std::string MainStanding() {
        QStringList windows;
        for (const QWidget* const shown : Windows()) windows += NameOfWindow(*shown);
        windows.removeAll(kBox);
        windows.sort();
        std::string text = windows.join(' ').toStdString() + ": ";
        for (const QWidget* const control : Controls(window, true)) {
            text += NameOfControl(*control).toStdString() + ' ';
        }
        for (const auto* const label : window.findChildren<QLabel*>()) {
            if (label->objectName() != "lblGTimer") text += label->text().toStdString() + '/';
        }
        text += " row " + std::to_string(global.ActiveRow) + " color " +
                std::to_string(global.SelectedColor) + " mode " +
                std::to_string(global.Settings.GameMode);
        for (int column = 1; column <= kMaxColumns; ++column) {
            text += ' ' + std::to_string(global.ActiveRowColors[column]);
            text += ' ' + std::to_string(global.SecretCode[column]);
        }
        const SettingsRecord& now = global.Settings;
        text += " skin " + global.SkinNames.at(static_cast<std::size_t>(now.SkinPtr - 1));
        text += " round " + std::to_string(now.Round) + " turn " + std::to_string(now.PlrTrn);
        text += " guesses " + std::to_string(now.PlrPos[1]) + ' ' + std::to_string(now.PlrPos[2]);
        return text;
    }

    static void DropWhatIsKept() {
        try {
            ThrowKept();
        } catch (const ProgramEnded&) {
            return;
        }
    }

    static QPoint MiddleOf(const QWidget& on, const QWidget& control) {
        return control.mapTo(&on, control.rect().center());
    }

private:
    /// Keeps the toolkit's own time away from a button.
    class Held : public QObject {
    public:
        bool eventFilter(QObject* /*watched*/, QEvent* event) override {
            return event->type() == QEvent::Timer;
        }
    };

    /// The same skins are read by every game.
    static Picture ReadOnce(const std::string& path) {
        static std::map<std::string, Picture> read;
        const std::string file = path.substr(path.find("/Skin/"));
        const auto known = read.find(file);
        return known != read.end() ? known->second
                                   : read.emplace(file, ReadPictureFile(path)).first->second;
    }

    /// Without its second tree, which takes long to look at.
    void LinkSkin(const std::string& name) const {
        const std::string skin = folder.path() + "/Skin/" + name;
        std::filesystem::create_directories(skin);
        for (const auto& entry :
             std::filesystem::directory_iterator(QUENDREL_SKIN_FOLDER "/" + name)) {
            if (entry.path().filename() == "2x") continue;
            std::filesystem::create_symlink(std::filesystem::canonical(entry.path()),
                                            skin / entry.path().filename());
        }
    }

    static std::vector<WindowDeed> Keys(const QString& top) {
        // clang-format off
        static constexpr std::array kKeys{
            Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End,
            Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Delete,
            Qt::Key_Backspace, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_0, Qt::Key_1, Qt::Key_9,
            Qt::Key_A, Qt::Key_C, Qt::Key_E, Qt::Key_H, Qt::Key_I, Qt::Key_S, Qt::Key_V, Qt::Key_X,
            Qt::Key_Z, Qt::Key_F1, Qt::Key_F4, Qt::Key_F10, Qt::Key_Plus, Qt::Key_Minus,
            Qt::Key_Menu,
        };
        static constexpr std::array kHeld{Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier,
                                          Qt::AltModifier};
        // clang-format on
        std::vector<WindowDeed> keys;
        for (const auto held : kHeld) {
            for (const auto key : kKeys) {
                const bool presses = key == Qt::Key_Space || key == Qt::Key_Return ||
                                     key == Qt::Key_Enter || key == Qt::Key_Escape;
                if (presses && held != Qt::NoModifier) continue;
                keys.push_back({Act::kKey, top, {}, QKeyCombination(held, key).toCombined()});
            }
        }
        return keys;
    }

    void AddDeeds(const ActDesign& design, int detail, std::vector<WindowDeed>& all) {
        const QString top = NameOfWindow(*Top());
        const Act act = design.act;
        if (design.of == Of::kTop) all.push_back({act, top, {}, detail});
        if (design.of == Of::kKeys) {
            for (const WindowDeed& key : Keys(top)) all.push_back(key);
        }
        for (QWidget* const shown : Windows()) {
            const QString on = NameOfWindow(*shown);
            if (design.of == Of::kWindows) all.push_back({act, on});
            for (QWidget* const control : Controls(*shown, false)) {
                const QString name = NameOfControl(*control);
                if (name.isEmpty()) continue;
                if (design.of == Of::kAllControls) AddActions(on, *control, all);
                if (shown == Top()) AddDeed(design, {act, on, name}, *control, all);
            }
        }
    }

    static void AddDeed(const ActDesign& design, WindowDeed deed, QWidget& control,
                        std::vector<WindowDeed>& all) {
        const auto* const list = dynamic_cast<QListWidget*>(&control);
        const bool isBox = dynamic_cast<QLineEdit*>(&control) != nullptr;
        static const QStringList kActWhenLetGo{"cmdOk", "cmdCancel", "cmdDefault", "cmdListen"};
        if (design.of == Of::kControls && list == nullptr) all.push_back(deed);
        if (design.of == Of::kActWhenLetGo && kActWhenLetGo.contains(deed.control)) {
            deed.text = QAccessibleActionInterface::pressAction();
            all.push_back(deed);
        }
        if (design.of == Of::kBoxes && isBox) all.push_back(deed);
        if (design.of != Of::kTunes || list == nullptr) return;
        for (deed.detail = -1; deed.detail < list->count(); ++deed.detail) all.push_back(deed);
    }

    /// A press is tried also where it is not offered.
    static void AddActions(const QString& on, QWidget& control, std::vector<WindowDeed>& all) {
        auto* const actions = QAccessible::queryAccessibleInterface(&control)->actionInterface();
        if (actions == nullptr) return;
        const QString press = QAccessibleActionInterface::pressAction();
        QStringList names = actions->actionNames();
        if (!names.contains(press)) names += press;
        for (const QString& name : names) {
            all.push_back({Act::kAction, on, NameOfControl(control), 0, name});
        }
    }

    static void DoByMouse(const WindowDeed& deed, QWidget& on, QWidget& control) {
        constexpr QPoint kBackground(2, 2);
        QWindow* const target = on.windowHandle();
        const QPoint at = MiddleOf(on, control);
        if (deed.act == Act::kClick) QTest::mouseClick(target, Qt::LeftButton, {}, at);
        if (deed.act == Act::kRightClick) QTest::mouseClick(target, Qt::RightButton, {}, at);
        if (deed.act == Act::kDoubleClick) QTest::mouseDClick(target, Qt::LeftButton, {}, at);
        if (deed.act == Act::kLetGoBeside) {
            QTest::mousePress(target, Qt::LeftButton, {}, at);
            QTest::mouseRelease(target, Qt::LeftButton, {}, kBackground);
        }
        if (deed.act == Act::kTune && HasTune(control, deed.detail)) {
            QTest::mouseClick(target, Qt::LeftButton, {}, PlaceOfTune(on, control, deed.detail));
        }
        if (deed.act == Act::kDrag) {
            QTest::mousePress(target, Qt::LeftButton, {}, kBackground);
            QTest::mouseMove(target, kBackground + QPoint(30, 20));
            QTest::mouseRelease(target, Qt::LeftButton, {}, kBackground);
        }
    }

    static bool HasTune(QWidget& control, int tune) {
        return tune < dynamic_cast<QListWidget&>(control).count();
    }

    static QPoint PlaceOfTune(const QWidget& on, QWidget& control, int tune) {
        auto* const list = dynamic_cast<QListWidget*>(&control);
        const QWidget* const rows = list->viewport();
        if (tune < 0) return rows->mapTo(&on, rows->rect().bottomLeft() + QPoint(2, -2));
        return rows->mapTo(&on, list->visualItemRect(list->item(tune)).center());
    }

    static void DoByKeys(const WindowDeed& deed, QWidget& on, QWidget& control) {
        QWindow* const target = on.windowHandle();
        if (deed.act == Act::kKey) {
            const auto keys = QKeyCombination::fromCombined(deed.detail);
            QTest::keyClick(target, keys.key(), keys.keyboardModifiers());
        }
        if (deed.act != Act::kType) return;
        if (&control != &on) {
            QTest::mouseClick(target, Qt::LeftButton, {}, MiddleOf(on, control));
            QCoreApplication::processEvents();
            QTest::keyClick(target, Qt::Key_A, Qt::ControlModifier);
        }
        for (const QChar letter : deed.text) QTest::keyClick(target, letter.toLatin1());
    }

    void DoByScreenReader(const WindowDeed& deed, QWidget& control) {
        QAccessibleInterface* const seen = QAccessible::queryAccessibleInterface(&control);
        if (deed.act == Act::kAction || deed.act == Act::kLateAction) {
            pressed_ = qobject_cast<QAbstractButton*>(&control);
            if (pressed_ != nullptr) pressed_->installEventFilter(&held_);
            if (auto* const actions = seen->actionInterface()) actions->doAction(deed.text);
            if (deed.act == Act::kAction) LetGo();
        }
        if (deed.act == Act::kTuneAction) ChooseTune(*seen, deed.detail);
        if (deed.act == Act::kDictate) seen->setText(QAccessible::Value, "Zoe");
    }

    static void ChooseTune(const QAccessibleInterface& list, int tune) {
        QAccessibleInterface* const row = list.child(tune);
        if (row == nullptr || row->actionInterface() == nullptr) return;
        for (const QString& name : row->actionInterface()->actionNames()) {
            row->actionInterface()->doAction(name);
        }
    }

    void DoByDesktop(const WindowDeed& deed, QWidget& on) {
        if (deed.act == Act::kClose) on.windowHandle()->close();
        if (deed.act == Act::kMinimise) {
            window.showMinimized();
            QCoreApplication::processEvents();
            window.showNormal();
        }
        if (deed.act == Act::kHide) HideAndComeBack(deed.detail);
        if (deed.act == Act::kFront) window.ComeToFront();
        if (deed.act == Act::kDrop) Drop(on, Gift());
        if (deed.act == Act::kDropSpoilt) Drop(on, folder.path() + "/none.zip");
        if (deed.act == Act::kPaste) Paste(on);
        if (deed.act == Act::kScreen) ChangeScreen(deed.detail);
        if (deed.act == Act::kTime) LetPass(deed.detail);
        if (deed.act == Act::kEnd) window.EndAtOnce();
    }

    /// To the tray and back by its icon, or since the tray ends, or to the task bar and back by a
    /// second start. Behind another window the button cannot be pressed.
    void HideAndComeBack(int how) {
        if (Top() != &window) return;
        tray.available = how < 2;
        window.Press({Controls::cmdHideBtn});
        QCoreApplication::processEvents();
        const bool hidden = !window.isVisible() || window.isMinimized();
        if (hidden && how == 0) tray.doubleClick();
        if (hidden && how == 1) tray.vanish();
        if (hidden && how == 2) window.ComeToFront();
    }

    static void Drop(QWidget& on, const std::string& path) {
        GiftDrag drag(path);
        if (drag.Enter(&on)) drag.Drop(&on);
    }

    /// A skin that is given to every game, and has come into its folder of skins otherwise
    /// meanwhile, so that it is not to be copied.
    std::string Gift() const {
        static const TemporaryFolder given;
        std::string gift = given.path() + "/A gift";
        if (!std::filesystem::exists(gift)) CopySkin(gift, QUENDREL_SKIN_FOLDER "/Carbon");
        const std::string taken = folder.path() + "/Skin/A gift";
        if (!std::filesystem::exists(taken)) std::filesystem::create_symlink(gift, taken);
        return gift;
    }

    void Paste(const QWidget& on) const {
        auto* const copied = new QMimeData;
        copied->setUrls({QUrl::fromLocalFile(QString::fromStdString(Gift()))});
        QGuiApplication::clipboard()->setMimeData(copied);
        QTest::keyClick(on.windowHandle(), Qt::Key_V, Qt::ControlModifier);
        QGuiApplication::clipboard()->clear();
    }

    /// All windows come to the other screen, or back, or the desktop says that one has changed.
    static void ChangeScreen(int how) {
        QScreen* const first = QApplication::primaryScreen();
        if (how == 2) {
            Q_EMIT first->geometryChanged(first->geometry());
        } else {
            const QScreen* const onto = how == 0 ? QApplication::screens().back() : first;
            for (QWidget* const shown : Windows()) {
                shown->move(onto->geometry().topLeft() + QPoint(40, 40));
            }
        }
        QCoreApplication::processEvents();
    }

    /// A second in which the clocks tick, or in which a tune ends.
    void LetPass(int how) {
        if (how == 1) mmcMidi.mode = MidiMode::kStopped;
        const std::int64_t end = clock.Now() + 1100;
        while (clock.Now() < end) clock.PumpEvents(static_cast<int>(end - clock.Now()));
    }

    /// A name box answers a right click with a menu.
    static void PutAwayMenu() {
        for (int i = 0; i < 3 && QApplication::activePopupWidget() != nullptr; ++i) {
            QApplication::activePopupWidget()->close();
            QCoreApplication::processEvents();
        }
    }

    QPointer<QAbstractButton> pressed_;
    Held held_;
};

}  // namespace quendrel::test
