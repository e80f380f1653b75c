// A list box of tunes.
#pragma once

#include <functional>

#include <QListWidget>

#include "ui/controls/BalloonHelp.h"

namespace quendrel {

struct TuneList;

/// Shows a TuneList in the colours of the well that it lies in. Its font is to be a LiveFont. Calls
/// onPress for every item that the player chooses by mouse, keyboard or assistive technology, and
/// for presses beside the items. It keeps no selection itself: the next ShowTunes says what is
/// selected.
class TuneListBox : public QListWidget {
public:
    explicit TuneListBox(QWidget* parent);

    /// The index of the pressed item, or TuneList::kNone.
    std::function<void(int)> onPress = [](int) {};

    void ShowTunes(const TuneList& tunes);

    void SetColors(const QColor& ground, const QColor& ink);

    /// The tune under a point of the viewport, if its name is too long for the box.
    std::optional<CutText> CutTuneAt(QPoint at) const;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void DressUp();
    void FollowSelection();

    QColor ground_;
    QColor ink_;
    /// What ShowTunes has said.
    int chosen_ = -1;
};

}  // namespace quendrel
