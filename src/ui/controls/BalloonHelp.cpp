#include "ui/controls/BalloonHelp.h"

#include <algorithm>

#include <QEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <QtMath>

#include "ui/controls/MessageLabel.h"
#include "ui/controls/ZoomedWindow.h"

namespace quendrel {

namespace {

constexpr int kRestMs = 700;
constexpr int kTextWidth = 230;
constexpr int kPadding = 10;
constexpr int kTail = 12;
constexpr int kCorner = 9;
/// The tail's tip keeps this far from the balloon's sides.
constexpr int kTailInset = 22;
constexpr int kGap = 2;

const QColor kPaper(255, 250, 226);
const QColor kInk(44, 34, 20);
const QColor kEdge(120, 96, 52);

}  // namespace

/// The balloon itself: a window that takes no focus and no mouse.
class Balloon : public QWidget {
public:
    explicit Balloon(QWidget* parent) : QWidget(parent, kFlags) {
        setObjectName("popHelp");
        setWindowTitle("popHelp");
        setAttribute(Qt::WA_ShowWithoutActivating);
        // Some desktops do not cut windows, but show what lies beside the mask.
        setAttribute(Qt::WA_TranslucentBackground);
        setFont(QGuiApplication::font());
    }

    std::function<bool(WId, const QRegion&)> cut = [](WId, const QRegion&) { return false; };

    /// Shows `text` beside `control` (global pixels), above it where there is room, never on it.
    /// Everything is as many times as large as `zoom` says.
    void ShowBeside(const QRect& control, const QString& text, qreal zoom) {
        text_ = text;
        zoom_ = zoom;
        const QRect screen = ScreenAround(control.center());
        const QRect room(0, 0, kTextWidth, qRound(screen.height() / zoom));
        units_ = fontMetrics().boundingRect(room, Wrap(), text_).size() +
                 QSize(2 * kPadding, 2 * kPadding + kTail);
        const QSize size(qCeil(units_.width() * zoom), qCeil(units_.height() * zoom));
        tailDown_ = control.top() - size.height() - kGap >= screen.top();
        const int top =
            tailDown_ ? control.top() - size.height() - kGap + 1 : control.bottom() + kGap;
        const int left = std::clamp(control.center().x() - qRound(kTailInset * zoom), screen.left(),
                                    std::max(screen.left(), screen.right() - size.width()));
        tailX_ = std::clamp(qRound((control.center().x() - left) / zoom), kTailInset / 2,
                            units_.width() - kTailInset / 2);
        setGeometry(QRect(QPoint(left, top), size));
        // Once it is there the window has the scale of its screen. Were it made by asking for its
        // id, it would not go from the screen again on Wayland.
        create();
        if (!cut(effectiveWinId(), Covered(zoom_ * devicePixelRatioF()))) setMask(Covered(zoom_));
        setAccessibleName(text_);
        show();
        LetMouseThrough();
        raise();
        update();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.fillRect(rect(), kEdge);
        painter.scale(zoom_, zoom_);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(kEdge, 2));
        painter.setBrush(kPaper);
        painter.drawPath(Outline());
        painter.setPen(kInk);
        painter.drawText(Body().adjusted(kPadding, kPadding, -kPadding, -kPadding), Wrap(), text_);
    }

private:
    /// The toolkit ignores the flag if the window already has it when it is shown, and acts only on
    /// a change of it.
    void LetMouseThrough() {
        windowHandle()->setFlag(Qt::WindowTransparentForInput, false);
        windowHandle()->setFlag(Qt::WindowTransparentForInput, true);
    }

    /// Lines are broken between words, or anywhere if a word is wider than a line, as a file name
    /// may be.
    int Wrap() const {
        const QStringList words = text_.split(' ');
        const bool fit = std::all_of(words.begin(), words.end(), [this](const QString& word) {
            return fontMetrics().horizontalAdvance(word) <= kTextWidth;
        });
        return fit ? Qt::TextWordWrap : Qt::TextWrapAnywhere;
    }

    static QRect ScreenAround(QPoint at) {
        const QScreen* const screen = QGuiApplication::screenAt(at);
        return (screen != nullptr ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    }

    // In units.
    QRect Whole() const { return {QPoint(0, 0), units_}; }
    QRect Body() const {
        return tailDown_ ? Whole().adjusted(0, 0, 0, -kTail) : Whole().adjusted(0, kTail, 0, 0);
    }

    QPainterPath Outline() const {
        QPainterPath body;
        body.addRoundedRect(QRectF(Body()), kCorner, kCorner);
        const qreal base = tailDown_ ? Body().bottom() : Body().top() + 1;
        const qreal tip = tailDown_ ? Whole().bottom() + 1 : Whole().top();
        QPainterPath tail;
        tail.addPolygon(QPolygonF({QPointF(tailX_ - kTail * 0.2, base), QPointF(tailX_, tip),
                                   QPointF(tailX_ + kTail * 0.9, base)}));
        tail.closeSubpath();
        return body.united(tail);
    }

    /// The pixels in the outline, of which a unit has so many.
    QRegion Covered(qreal scale) const {
        const QPainterPath scaled = QTransform::fromScale(scale, scale).map(Outline());
        return {scaled.toFillPolygon().toPolygon()};
    }

    /// The toolkit gives such a window the hint in any case, but where it finds it missing it makes
    /// another window for each showing, which would be whole again.
    static constexpr Qt::WindowFlags kFlags = Qt::ToolTip | Qt::FramelessWindowHint |
                                              Qt::WindowTransparentForInput |
                                              Qt::WindowStaysOnTopHint;

    QString text_;
    QSize units_;
    qreal zoom_ = 1;
    bool tailDown_ = true;
    int tailX_ = 0;
};

BalloonHelp::BalloonHelp(QWidget* window) : QObject(window), balloon_(new Balloon(window)) {
    rest_.setSingleShot(true);
    rest_.setInterval(kRestMs);
    connect(&rest_, &QTimer::timeout, this, [this] { ShowBalloon(); });
}

BalloonHelp::~BalloonHelp() = default;

void BalloonHelp::Watch(QWidget* control) {
    if (control->accessibleDescription().isEmpty()) return;
    control->setMouseTracking(true);
    control->installEventFilter(this);
}

void BalloonHelp::WatchText(QWidget* widget, const CutTextAt& cutTextAt) {
    texts_.insert(widget, cutTextAt);
    widget->setMouseTracking(true);
    widget->installEventFilter(this);
}

void BalloonHelp::WatchLine(MessageLabel* label) {
    WatchText(label, [label](QPoint) -> std::optional<CutText> {
        if (!label->IsTextCut()) return std::nullopt;
        return CutText{label->rect(), label->text()};
    });
}

void BalloonHelp::SwitchOn(bool on) {
    on_ = on;
    if (!on) Away();
}

void BalloonHelp::CutBy(const std::function<bool(WId, const QRegion&)>& cut) {
    balloon_->cut = cut;
}

bool BalloonHelp::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::Enter:
            PointAt(static_cast<QWidget*>(watched),
                    static_cast<QEnterEvent*>(event)->position().toPoint());
            break;
        case QEvent::MouseMove:
            if (texts_.contains(watched)) {
                PointAt(static_cast<QWidget*>(watched),
                        static_cast<QMouseEvent*>(event)->position().toPoint());
            }
            if (watched == control_ && on_ && !balloon_->isVisible() && !rest_.isActive()) {
                rest_.start();
            }
            break;
        case QEvent::Leave:
        case QEvent::Hide:
        case QEvent::WindowDeactivate:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
            if (watched == control_) Away();
            break;
        case QEvent::Paint:
            // Queued, since a window must not be shown or hidden while another one is painted.
            if (watched == control_ && balloon_->isVisible()) {
                QMetaObject::invokeMethod(
                    this, [this] { FollowText(); }, Qt::QueuedConnection);
            }
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

/// The balloon stays while the pointer moves within the place that it explains. It waits for a
/// first move there: a control is entered too when a window goes from above it, and XWayland says
/// so where the pointer has long left all windows.
void BalloonHelp::PointAt(QWidget* control, QPoint at) {
    if (balloon_->isVisible() && control == control_ && told_.place.contains(at)) return;
    Away();
    control_ = control;
    at_ = at;
}

std::optional<CutText> BalloonHelp::Words() const {
    const auto text = texts_.constFind(control_.data());
    if (text != texts_.constEnd()) return (*text)(at_);
    return CutText{control_->rect(), control_->accessibleDescription()};
}

/// The toolkit does not always say that the pointer has left.
void BalloonHelp::ShowBalloon() {
    if (!control_ || !control_->isVisible()) return;
    if (!control_->rect().contains(control_->mapFromGlobal(QCursor::pos()))) return;
    if (const std::optional<CutText> words = Words()) Tell(*words);
}

void BalloonHelp::Tell(const CutText& words) {
    told_ = words;
    const QRect& place = words.place;
    balloon_->ShowBeside(QRect(control_->mapToGlobal(place.topLeft()), place.size()), words.text,
                         ZoomOf(control_));
}

/// Called when the widget has been painted again: its text may have changed.
void BalloonHelp::FollowText() {
    if (!control_ || !balloon_->isVisible()) return;
    const std::optional<CutText> words = Words();
    if (!words) {
        Away();
    } else if (*words != told_) {
        Tell(*words);
    }
}

void BalloonHelp::Away() {
    rest_.stop();
    balloon_->hide();
    control_.clear();
}

}  // namespace quendrel
