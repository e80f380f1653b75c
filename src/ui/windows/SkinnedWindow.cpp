#include "ui/windows/SkinnedWindow.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include <QAbstractButton>
#include <QApplication>
#include <QBackingStore>
#include <QClipboard>
#include <QCloseEvent>
#include <QDropEvent>
#include <QEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QScreen>
#include <QWindow>

#include "Global.h"
#include "platform/Clock.h"
#include "platform/Doors.h"
#include "platform/Errors.h"
#include "ui/controls/Accessibility.h"
#include "ui/controls/BalloonHelp.h"
#include "ui/controls/DroppedGift.h"
#include "ui/controls/PlaceMarker.h"
#include "ui/controls/QtValues.h"
#include "ui/picture/PaintImage.h"
#include "ui/picture/PictureImage.h"
#include "ui/windows/Screens.h"

namespace quendrel {

namespace {

/// How many pixels the pointer moves before a press becomes a drag.
constexpr int kFirstMove = 3;

/// Of a pixel that is copied.
constexpr int kPixelBits = 32;

std::vector<SkinnedWindow*> AllWindows() {
    std::vector<SkinnedWindow*> windows;
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (auto* const window = dynamic_cast<SkinnedWindow*>(widget)) windows.push_back(window);
    }
    return windows;
}

QRect Times(const QRect& rect, int factor) {
    return {rect.topLeft() * factor, rect.size() * factor};
}

struct Span {
    int from;
    int length;
};

/// Grows a span, in a window of `size` pixels, as little as it takes for a repaint to reach every
/// device pixel in it. At a scale like 1.25 the toolkit would leave some out: it rounds the
/// beginning of a repaint and its length or end to whole device pixels separately.
/// The screen's own scale differs from the window's by up to 0.00001, hence the slack.
Span CoveringAllPixels(Span span, int size, qreal scale) {
    constexpr qreal slack = 0.01;
    int from = std::max(0, span.from);
    int end = std::min(size, span.from + span.length);
    const qreal first = std::floor(from * scale);
    const qreal last = std::min<qreal>(std::ceil(end * scale), qRound(size * scale));
    while (from > 0 && qRound(from * scale + slack) > first) --from;
    const auto roundedEnd = [&] {
        return std::min(qRound(from * scale - slack) + qRound((end - from) * scale - slack),
                        qRound(end * scale - slack));
    };
    while (roundedEnd() < last && (end < size || from > 0)) {
        if (end < size) {
            ++end;
        } else {
            --from;
        }
    }
    return {from, end - from};
}

}  // namespace

SkinnedWindow::SkinnedWindow(const QString& name, ViewScale& wanted, Qt::WindowType kind)
    : ZoomedWindow(nullptr, kind | Qt::FramelessWindowHint),
      wanted_(wanted),
      place_(new PlaceMarker(this)) {
    TeachAccessibility();
    setObjectName(name);
    setWindowTitle(Text(kGameName));
    setAttribute(Qt::WA_OpaquePaintEvent);
    WindowOutline::PrepareEdges(*this);
    scale_ = ShownScale(wanted_, Room());
    MakeScaleKeys();
    Bind({Qt::Key_F1}, [this] { onHelp(); })->setAutoRepeat(false);
    WatchScreens(this, [this] { ComeBack(); });
}

/// A screen has become smaller or has gone: what was on it comes back onto one that is there. A
/// hidden window does once it is shown.
void SkinnedWindow::ComeBack() {
    comesBack_ = !isVisible();
    if (comesBack_) return;
    FollowScale();
    const QScreen* const nearest = ScreenOf(geometry());
    if (!nearest->geometry().contains(geometry())) MoveOverOn(geometry(), *nearest);
}

void SkinnedWindow::ShapeFrom(const OutlineMasks& masks) {
    outline_.Take(masks);
    if (isVisible()) outline_.Cut(*this, scale_);
}

void SkinnedWindow::SetEdges(const WindowEdges& edges) {
    outline_.SetEdges(edges);
    if (isVisible()) outline_.Cut(*this, scale_);
    for (QObject* const child : children()) {
        if (auto* const help = dynamic_cast<BalloonHelp*>(child)) help->CutBy(edges.cut);
    }
}

void SkinnedWindow::CutAllOutlines() {
    for (SkinnedWindow* const window : AllWindows()) {
        if (window->isVisible()) window->outline_.Cut(*window, window->scale_);
    }
}

void SkinnedWindow::SetFace(const Picture& face) {
    face_ = &face;
    SetZoom(scale_ / devicePixelRatioF(), ToQSize(face.extent()));
}

void SkinnedWindow::DressPlace(const TextStyles& styles) {
    place_->SetThread(styles[TextKind::kClock].color);
}

ScreenRoom SkinnedWindow::Room() const {
    const qreal scale = devicePixelRatioF();
    const QSize room = screen()->availableSize() * scale;
    return {scale, {room.width(), room.height()}};
}

int SkinnedWindow::DensityWanted() const { return scale_ > 1 ? 2 : 1; }

void SkinnedWindow::FollowScale() {
    const ScreenRoom room = Room();
    const double shown = ShownScale(wanted_, room);
    const double zoom = shown / room.scale;
    if (shown == scale_ && zoom == Zoom()) return;
    const int density = DensityWanted();
    scale_ = shown;
    if (face_ == nullptr) return;
    const QRect before = geometry();
    SetZoom(zoom, ToQSize(face_->extent()));
    if (isVisible()) {
        outline_.Cut(*this, scale_);
        MoveOverOn(before, *screen());
    }
    if (DensityWanted() == density) return;
    try {
        FollowDensity();
    } catch (const FileError& error) {
        // The window keeps the pictures that it has.
        ReportTrouble(error.what());
    }
}

QAction* SkinnedWindow::Bind(const QList<QKeySequence>& keys, const std::function<void()>& deed) {
    auto* const action = new QAction(this);
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, this, [deed] { AtDoor(deed); });
    addAction(action);
    return action;
}

void SkinnedWindow::MakeScaleKeys() {
    Bind({Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal},
         [this] { ChangeScale([this] { ChooseLarger(wanted_, Room()); }); });
    Bind({Qt::CTRL | Qt::Key_Minus},
         [this] { ChangeScale([this] { ChooseSmaller(wanted_, Room()); }); });
    Bind({Qt::CTRL | Qt::Key_0}, [this] { ChangeScale([this] { ChooseNone(wanted_); }); });
}

/// All windows follow.
void SkinnedWindow::ChangeScale(const std::function<void()>& choose) {
    choose();
    for (SkinnedWindow* const window : AllWindows()) window->FollowScale();
}

/// The window may have come to another screen.
bool SkinnedWindow::event(QEvent* event) {
    const bool handled = ZoomedWindow::event(event);
    if (event->type() == QEvent::ScreenChangeInternal) AtDoor([this] { FollowScale(); });
    return handled;
}

void SkinnedWindow::showEvent(QShowEvent* event) {
    ZoomedWindow::showEvent(event);
    if (owner_ != nullptr) windowHandle()->setTransientParent(owner_->windowHandle());
    // Over the controls, which are all there now.
    place_->raise();
    AtDoor([this] {
        FollowScale();
        if (comesBack_) ComeBack();
        outline_.Cut(*this, scale_);
    });
    corner_ = geometry().topLeft();
    shown_.start();
}

void SkinnedWindow::hideEvent(QHideEvent* event) {
    ZoomedWindow::hideEvent(event);
    if (event->spontaneous() || owner_ == nullptr) return;
    if (owner_->isVisible() && !owner_->isMinimized()) owner_->activateWindow();
}

/// Some window managers leave room for a frame when they show a window, and then draw none.
void SkinnedWindow::moveEvent(QMoveEvent* event) {
    constexpr int kComesWithinMs = 1000;
    constexpr int kThickestFrame = 64;
    ZoomedWindow::moveEvent(event);
    if (!corner_ || event->pos() == *corner_) return;
    const QPoint wanted = *std::exchange(corner_, std::nullopt);
    const bool comes = shown_.elapsed() < kComesWithinMs && drag_ == Drag::kNone;
    if (!comes || (event->pos() - wanted).manhattanLength() > kThickestFrame) return;
    QMetaObject::invokeMethod(
        this, [this, wanted] { MoveTo(wanted); }, Qt::QueuedConnection);
}

void SkinnedWindow::RepaintNow(const QRect& units) {
    // A pixel of the screen is mixed of the picture's up to this many units around it.
    constexpr int kMixed = 2;
    const bool mixed = face_->density() > 1 && scale_ != face_->density();
    const int beside = mixed ? kMixed : 0;
    if (!CopyNow(units)) RepaintLineNow(units.adjusted(-beside, -beside, beside, beside));
}

void SkinnedWindow::RepaintLineNow(const QRect& units) {
    const qreal zoom = Zoom();
    const QRect pixels =
        QRectF(units.left() * zoom, units.top() * zoom, units.width() * zoom, units.height() * zoom)
            .toAlignedRect();
    const qreal scale = devicePixelRatioF();
    const Span x = CoveringAllPixels({pixels.left(), pixels.width()}, width(), scale);
    const Span y = CoveringAllPixels({pixels.top(), pixels.height()}, height(), scale);
    if (x.length > 0 && y.length > 0) repaint(x.from, y.from, x.length, y.length);
}

/// Where the face lies pixel on pixel on the screen, with nothing over it, its pixels are copied
/// there, which spares the toolkit's way through all the controls.
bool SkinnedWindow::CopyNow(const QRect& units) {
    if (!FitsScreen()) return false;
    const QRect shown = Times(units, static_cast<int>(Zoom())) & rect();
    const QRect pixels = Times(units, face_->density()) & QRect({0, 0}, ToQSize(face_->size()));
    if (HasControlIn(shown) || !outline_.HasWithin(pixels)) return false;

    QBackingStore* const store = backingStore();
    store->beginPaint(shown);
    auto* const image = dynamic_cast<QImage*>(store->paintDevice());
    const bool copies =
        image != nullptr && image->size() == ToQSize(face_->size()) && image->depth() == kPixelBits;
    if (copies) CopyPixels(*face_, pixels, *image);
    store->endPaint();
    if (copies) store->flush(shown);
    return copies;
}

/// Whether the face's pixels are those of the screen, which shows the window.
bool SkinnedWindow::FitsScreen() const {
    const QBackingStore* const store = backingStore();
    return scale_ == face_->density() && Zoom() == std::floor(Zoom()) && store != nullptr &&
           store->size() == size() && windowHandle()->isExposed();
}

bool SkinnedWindow::HasControlIn(const QRect& pixels) const {
    return std::any_of(children().begin(), children().end(), [&pixels](const QObject* child) {
        if (!child->isWidgetType()) return false;
        const auto* const control = static_cast<const QWidget*>(child);
        return control->isVisible() && !control->isWindow() &&
               control->geometry().intersects(pixels);
    });
}

void SkinnedWindow::OrderTabs(std::initializer_list<QWidget*> order) {
    QWidget* before = this;
    for (QWidget* const control : order) {
        setTabOrder(before, control);
        before = control;
    }
}

bool SkinnedWindow::PressedByEnter(const QKeyEvent& event) const {
    const bool isEnter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    auto* const button = dynamic_cast<QAbstractButton*>(focusWidget());
    if (!isEnter || event.isAutoRepeat() || button == nullptr) return false;
    button->click();
    return true;
}

void SkinnedWindow::ShowModal(Clock& clock) {
    setWindowModality(Qt::ApplicationModal);
    show();
    activateWindow();
    while (isVisible()) clock.PumpEvents(kLongestSleep);
}

/// As `move` would, but for a frame: a window manager may add one that is never seen.
void SkinnedWindow::MoveTo(QPoint corner) {
    if (corner_) corner_ = corner;
    setGeometry({corner, size()});
}

void SkinnedWindow::MoveOver(const QRect& place) {
    QScreen* const on = ScreenOf(owner_ != nullptr ? owner_->geometry() : place);
    setScreen(on);
    FollowScale();
    MoveOverOn(place, *on);
}

void SkinnedWindow::MoveOverOn(const QRect& place, const QScreen& screen) {
    MoveTo(CornerOver(place, size(), screen));
}

void SkinnedWindow::MoveToMiddle() {
    MoveOver(ScreenOf({QCursor::pos(), QSize(1, 1)})->availableGeometry());
}

void SkinnedWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    AtDoor(onCloseRequest);
}

void SkinnedWindow::TakeGifts(GiftTaker taker) {
    taker_ = std::move(taker);
    setAcceptDrops(true);
    Bind(QKeySequence::keyBindings(QKeySequence::Paste), [this] {
        const QMimeData* const copied = QApplication::clipboard()->mimeData();
        const std::string gift = copied != nullptr ? GiftIn(*copied) : "";
        if (!gift.empty()) TakeGift(gift);
    })->setAutoRepeat(false);
}

/// Not while another window or a box waits for an answer.
bool SkinnedWindow::IsReadyForGift() const {
    const QWidget* const asking = QApplication::activeModalWidget();
    return (asking == nullptr || asking == this) && taker_.isReady();
}

void SkinnedWindow::TakeGift(const std::string& path) {
    AtDoor([&] {
        if (IsReadyForGift()) taker_.take(path);
    });
}

/// Never moved, or the giver would lose it.
void SkinnedWindow::AnswerGift(QDropEvent& event) const {
    bool isReady = false;
    AtDoor([&] { isReady = IsReadyForGift(); });
    event.setDropAction(Qt::CopyAction);
    event.setAccepted(isReady && !gift_.empty() &&
                      event.possibleActions().testFlag(Qt::CopyAction));
}

void SkinnedWindow::dragEnterEvent(QDragEnterEvent* event) {
    gift_ = GiftIn(*event->mimeData());
    AnswerGift(*event);
}

void SkinnedWindow::dragMoveEvent(QDragMoveEvent* event) { AnswerGift(*event); }

/// Whoever gives the skin waits until this returns, so it is taken afterwards.
void SkinnedWindow::dropEvent(QDropEvent* event) {
    AnswerGift(*event);
    if (!event->isAccepted()) return;
    QMetaObject::invokeMethod(
        this, [this, gift = gift_] { TakeGift(gift); }, Qt::QueuedConnection);
}

/// Whether the window is dragged from here. A button that ignores a press is still no background.
bool SkinnedWindow::IsBackground(QPoint at) const {
    const auto buttons = findChildren<QAbstractButton*>(Qt::FindDirectChildrenOnly);
    return std::none_of(buttons.begin(), buttons.end(), [at](const QAbstractButton* button) {
        return button->isVisible() && button->geometry().contains(at);
    });
}

/// A further button that goes down in a drag does not change where the window is held: the window
/// may be behind the pointer, which is then anywhere in it or outside.
void SkinnedWindow::mousePressEvent(QMouseEvent* event) {
    if (drag_ == Drag::kUnderWay && event->buttons() != event->button()) return;
    hold_ = event->position().toPoint();
    drag_ = IsBackground(hold_) ? Drag::kMayBegin : Drag::kNone;
}

/// The drag begins with the first real move. If the window manager were asked on a mere click, the
/// button could be up again by then, and the window would stick to the pointer.
/// With the left button the window manager moves the window from then on, and is not interfered
/// with: late moves of the pointer would put the window elsewhere. With any other button, whose
/// release most would not notice, or without a window manager, the window is moved here.
void SkinnedWindow::mouseMoveEvent(QMouseEvent* event) {
    if (drag_ == Drag::kNone || event->buttons() == Qt::NoButton) return;
    const QPoint moved = event->position().toPoint() - hold_;
    if (drag_ == Drag::kMayBegin && moved.manhattanLength() < kFirstMove) return;
    const bool byDesktop = event->buttons() == Qt::LeftButton || outline_.Edges().movesAlone();
    if (drag_ == Drag::kMayBegin && byDesktop && windowHandle()->startSystemMove()) {
        drag_ = Drag::kNone;
        return;
    }
    drag_ = Drag::kUnderWay;
    MoveTo(event->globalPosition().toPoint() - hold_);
}

void SkinnedWindow::paintEvent(QPaintEvent* event) {
    if (face_ == nullptr) return;
    UnitPainter painter(this);
    PaintImage(painter, ImageOf(*face_), event->region());
    outline_.ClearOutside(painter, event->region());
}

}  // namespace quendrel
