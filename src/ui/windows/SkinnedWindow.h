// A borderless window, shaped by a mask picture, that shows one picture and is dragged by it.
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>

#include <QAction>
#include <QElapsedTimer>

#include "ui/controls/ZoomedWindow.h"
#include "ui/picture/Picture.h"
#include "ui/skin/SkinFonts.h"
#include "ui/windows/ShownScale.h"
#include "ui/windows/WindowOutline.h"

namespace quendrel {

class Clock;
class PlaceMarker;

class SkinnedWindow : public ZoomedWindow {
public:
    /// `name` is the window's object name; its title is the game's until it sets another. The
    /// window is as large as `wanted` says, which the player changes by keys and all windows share.
    /// The desktop is told the kind of window.
    SkinnedWindow(const QString& name, ViewScale& wanted, Qt::WindowType kind = Qt::Window);

    /// Keeps the window, a Qt::Dialog, above `owner` and out of the desktop's lists of windows,
    /// opens it on the owner's screen, and gives the keyboard back to the owner when it closes. To
    /// be called before it is placed and shown.
    void BelongTo(QWidget& owner) { owner_ = &owner; }

    /// Lets the desktop cut the window, with smooth edges where it blends.
    void SetEdges(const WindowEdges& edges);

    /// Cuts all windows again: the desktop has begun to blend, or ceased.
    static void CutAllOutlines();

    /// Called when the window manager or the desktop asks to close the window, which stays open.
    std::function<void()> onCloseRequest = [] {};

    /// Called when the player asks for the rules.
    std::function<void()> onHelp = [] {};

    /// What becomes of a skin that the player gives, a folder or a .zip file.
    struct GiftTaker {
        /// Whether one may be given now.
        std::function<bool()> isReady = [] { return false; };
        std::function<void(const std::string& path)> take = [](const std::string&) {};
    };

    /// Shows the window and handles events until it is hidden again. The other windows take no
    /// input meanwhile. Throws what Clock::PumpEvents throws.
    void ShowModal(Clock& clock);

    /// Centres the window over a place (global pixels), all of it on the screen that shows most of
    /// its owner, or of the place.
    void MoveOver(const QRect& place);

    /// Puts the window in the middle of the screen that the pointer is on.
    void MoveToMiddle();

protected:
    /// Lets the player drop skins on the window, or paste one that he has copied.
    void TakeGifts(GiftTaker taker);

    /// Gives the window its outline, once.
    void ShapeFrom(const OutlineMasks& masks);

    /// Sets the picture that the window shows; the window takes its size. It must live as long as
    /// it is shown.
    void SetFace(const Picture& face);

    /// Marks the place of the keyboard in the colour of the skin's clock.
    void DressPlace(const TextStyles& styles);

    /// The pixels of a unit that pictures should have: 2 where the screen shows a unit larger than
    /// a pixel.
    int DensityWanted() const;

    /// Called when DensityWanted has changed. A FileError is said, and the window goes on with
    /// what it shows.
    virtual void FollowDensity() {}

    /// Paints a rectangle (in units) of the window at once, every device pixel that it touches, and
    /// those beside it whose mixture it changes.
    void RepaintNow(const QRect& units);

    /// The same, but for the pixels beside it.
    void RepaintLineNow(const QRect& units);

    /// Has keys of this window do something, again and again while they are held.
    QAction* Bind(const QList<QKeySequence>& keys, const std::function<void()>& deed);

    /// The tabulator goes through these controls in this order.
    void OrderTabs(std::initializer_list<QWidget*> order);

    /// Whether the key is Enter and has pressed the button that has the focus.
    bool PressedByEnter(const QKeyEvent& event) const;

    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    enum class Drag : std::uint8_t { kNone, kMayBegin, kUnderWay };

    bool IsReadyForGift() const;
    void AnswerGift(QDropEvent& event) const;
    void TakeGift(const std::string& path);
    bool CopyNow(const QRect& units);
    bool FitsScreen() const;
    bool HasControlIn(const QRect& pixels) const;
    bool IsBackground(QPoint at) const;
    ScreenRoom Room() const;
    void MoveTo(QPoint corner);
    void MoveOverOn(const QRect& place, const QScreen& screen);
    void ComeBack();
    void MakeScaleKeys();
    void ChangeScale(const std::function<void()>& choose);
    void FollowScale();

    ViewScale& wanted_;
    QWidget* owner_ = nullptr;
    /// Where the window is to come when it is shown, until the desktop has been asked twice.
    std::optional<QPoint> corner_;
    QElapsedTimer shown_;
    /// A screen has changed while the window was hidden.
    bool comesBack_ = false;
    /// Belongs to the window.
    PlaceMarker* place_;
    const Picture* face_ = nullptr;
    WindowOutline outline_;
    /// The device's pixels for a unit.
    double scale_ = 1;
    /// Where in the window the pointer took hold of it.
    QPoint hold_;
    Drag drag_ = Drag::kNone;
    GiftTaker taker_;
    /// What is dragged over the window, if it may be a skin.
    std::string gift_;
};

}  // namespace quendrel
