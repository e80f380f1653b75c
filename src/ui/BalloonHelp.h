// Balloon help: a balloon with a tail that says what the control under the resting pointer does.
#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>

namespace quendrel {

class Balloon;

/// One for each window (popHelp). The text is the control's accessible description.
class BalloonHelp : public QObject {
public:
    explicit BalloonHelp(QWidget* window);
    ~BalloonHelp() override;
    BalloonHelp(const BalloonHelp&) = delete;
    BalloonHelp& operator=(const BalloonHelp&) = delete;

    /// The balloon comes after a short rest of the pointer on the control and goes when the
    /// control is pressed, left or hidden.
    void Watch(QWidget* control);

    void SwitchOn(bool on);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ShowBalloon();
    void Away();

    bool on_ = false;
    QPointer<QWidget> control_;
    QTimer rest_;
    Balloon* balloon_;
};

}  // namespace quendrel
