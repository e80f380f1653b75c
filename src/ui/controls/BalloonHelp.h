// Balloon help: a balloon with a tail that says what the control under the resting pointer does, or
// shows whole a text that is too long for its place.
#pragma once

#include <functional>
#include <optional>

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QRegion>
#include <QTimer>
#include <QWidget>

namespace quendrel {

class Balloon;
class MessageLabel;

/// A text that is too long, and the part of its widget that it stands in.
struct CutText {
    QRect place;
    QString text;

    bool operator==(const CutText&) const = default;
};
using CutTextAt = std::function<std::optional<CutText>(QPoint)>;

/// One for each window (popHelp). The text is the control's accessible description.
class BalloonHelp : public QObject {
public:
    explicit BalloonHelp(QWidget* window);
    ~BalloonHelp() override;
    BalloonHelp(const BalloonHelp&) = delete;
    BalloonHelp& operator=(const BalloonHelp&) = delete;

    /// The balloon comes after a short rest of the pointer that has moved on the control, disabled
    /// or not, and goes when the control is pressed, left or hidden, or its window is no longer
    /// the active one.
    void Watch(QWidget* control);

    /// The same balloon for the text that is cut where the pointer rests on the widget. It follows
    /// a text that changes, and goes when the text is no longer cut.
    void WatchText(QWidget* widget, const CutTextAt& cutTextAt);
    void WatchLine(MessageLabel* label);

    void SwitchOn(bool on);

    /// Has the balloon cut by `cut`, which is given a region of device pixels, instead of by the
    /// toolkit. Where it says false the toolkit cuts nevertheless.
    void CutBy(const std::function<bool(WId, const QRegion&)>& cut);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ShowBalloon();
    void Tell(const CutText& words);
    void FollowText();
    /// What the balloon says of the control under the pointer.
    std::optional<CutText> Words() const;
    void PointAt(QWidget* control, QPoint at);
    void Away();

    bool on_ = false;
    QPointer<QWidget> control_;
    QPoint at_;
    CutText told_;
    QHash<const QObject*, CutTextAt> texts_;
    QTimer rest_;
    Balloon* balloon_;
};

}  // namespace quendrel
