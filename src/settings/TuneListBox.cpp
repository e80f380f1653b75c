#include "settings/TuneListBox.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include "platform/Doors.h"
#include "settings/PlaylistEditor.h"
#include "ui/controls/LiveText.h"
#include "ui/controls/ZoomedWindow.h"
#include "ui/layout/Control.h"

namespace quendrel {

namespace {

/// Six rows fill the box.
constexpr int kRowHeight = 23;
/// The names keep this far from the sides.
constexpr int kIndent = 6;

QString NameOf(const std::string& tune) { return QString::fromStdString(tune); }

/// Whether the box shows just these tunes already.
bool Shows(const QListWidget& box, const std::vector<std::string>& tunes) {
    if (box.count() != static_cast<int>(tunes.size())) return false;
    for (int i = 0; i < box.count(); ++i) {
        if (box.item(i)->text() != NameOf(tunes[static_cast<std::size_t>(i)])) return false;
    }
    return true;
}

/// In the toolkit's pixels.
int RowHeight(const QListWidget* box) { return qRound(kRowHeight * ZoomOf(box)); }

/// A colour between two, as style sheets write it.
QString Between(const QColor& a, const QColor& b, double share) {
    const auto mix = [share](int from, int to) {
        return static_cast<int>(from + (to - from) * share);
    };
    return QColor(mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())).name();
}

/// Where the name stands in a row of this many of the toolkit's pixels, in units from the row's
/// corner.
QRect NamePlace(QSize row, qreal zoom) {
    return QRect(0, 0, qRound(row.width() / zoom), kRowHeight).adjusted(kIndent, 0, -kIndent, 0);
}

/// Draws a row as the style does, but its name as live text.
class TuneRow : public QStyledItemDelegate {
public:
    explicit TuneRow(QListWidget* box) : QStyledItemDelegate(box), box_(box) {}

    void SetInk(const QColor& ink) { ink_ = ink; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem ground = option;
        initStyleOption(&ground, index);
        ground.text.clear();
        box_->style()->drawControl(QStyle::CE_ItemViewItem, &ground, painter, box_);
        const qreal zoom = ZoomOf(box_);
        painter->save();
        painter->translate(option.rect.topLeft());
        painter->scale(zoom, zoom);
        painter->setPen(ink_);
        DrawLine(*painter, NamePlace(option.rect.size(), zoom), Qt::AlignLeft, box_->font(),
                 index.data().toString());
        painter->restore();
    }

private:
    QListWidget* box_;
    QColor ink_;
};

}  // namespace

TuneListBox::TuneListBox(QWidget* parent) : QListWidget(parent) {
    setFrameShape(QFrame::NoFrame);
    setItemDelegate(new TuneRow(this));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setUniformItemSizes(true);
    // Queued, since assistive technology deselects one tune before it selects another.
    connect(
        this, &QListWidget::itemSelectionChanged, this, [this] { FollowSelection(); },
        Qt::QueuedConnection);
}

void TuneListBox::ShowTunes(const TuneList& tunes) {
    chosen_ = tunes.selected;
    if (!Shows(*this, tunes.items)) {
        const int scrolled = verticalScrollBar()->value();
        clear();
        for (const std::string& tune : tunes.items) {
            addItem(NameOf(tune));
            item(count() - 1)->setSizeHint({0, RowHeight(this)});
        }
        verticalScrollBar()->setValue(scrolled);
    }
    setCurrentRow(tunes.selected);
    if (!tunes.HasSelection()) clearSelection();
}

/// Assistive technology chooses without a press or a key. A tune that it would deselect is chosen
/// again.
void TuneListBox::FollowSelection() {
    const QList<QListWidgetItem*> selected = selectedItems();
    const int tune = selected.isEmpty() ? TuneList::kNone : row(selected.front());
    if (tune == chosen_) return;
    AtDoor([&] { onPress(tune == TuneList::kNone ? chosen_ : tune); });
}

std::optional<CutText> TuneListBox::CutTuneAt(QPoint at) const {
    const QListWidgetItem* const tune = itemAt(at);
    if (tune == nullptr) return std::nullopt;
    const QRect row = visualItemRect(tune);
    const QRect place = NamePlace(row.size(), ZoomOf(this));
    if (!IsCut(place, font(), tune->text())) return std::nullopt;
    return CutText{row, tune->text()};
}

void TuneListBox::SetColors(const QColor& ground, const QColor& ink) {
    ground_ = ground;
    ink_ = ink;
    static_cast<TuneRow*>(itemDelegate())->SetInk(ink);
    DressUp();
}

/// At the zoom of the window.
void TuneListBox::DressUp() {
    const qreal zoom = ZoomOf(this);
    const auto pixels = [zoom](int units) { return QString::number(qRound(units * zoom)); };
    const QString style = QString(
                              "QListWidget { background: %1; color: %2; outline: none; }"
                              "QListWidget::item { background: %1; border: none; padding: 0 3px; }"
                              "QListWidget::item:selected { background: %3; color: %2; }"
                              "QScrollBar:vertical { background: %1; width: %6px; margin: 0; }"
                              "QScrollBar::handle:vertical { background: %4; border-radius: %7px;"
                              "  margin: %8px; min-height: %9px; }"
                              "QScrollBar::handle:vertical:hover { background: %5; }"
                              "QScrollBar::add-line, QScrollBar::sub-line { height: 0; }"
                              "QScrollBar::add-page, QScrollBar::sub-page { background: none; }")
                              .arg(ground_.name(), ink_.name(), Between(ground_, ink_, 0.28),
                                   Between(ground_, ink_, 0.42), Between(ground_, ink_, 0.62),
                                   pixels(12), pixels(4), pixels(2), pixels(24));
    if (style != styleSheet()) setStyleSheet(style);
    for (int i = 0; i < count(); ++i) item(i)->setSizeHint({0, RowHeight(this)});
}

void TuneListBox::resizeEvent(QResizeEvent* event) {
    QListWidget::resizeEvent(event);
    DressUp();
}

/// The toolkit would go to the first tune without choosing it, and the next key on to the second.
void TuneListBox::focusInEvent(QFocusEvent* event) {
    QListWidget::focusInEvent(event);
    if (selectedItems().isEmpty()) setCurrentRow(TuneList::kNone);
}

void TuneListBox::mousePressEvent(QMouseEvent* event) {
    setFocus(Qt::MouseFocusReason);
    const QModelIndex pressed = indexAt(event->position().toPoint());
    AtDoor([&] { onPress(pressed.isValid() ? pressed.row() : TuneList::kNone); });
}

/// Moving the mouse with the button down does not select, where the toolkit's list would.
void TuneListBox::mouseMoveEvent(QMouseEvent* event) { event->accept(); }

/// Keys that would deselect a tune choose it again.
void TuneListBox::keyPressEvent(QKeyEvent* event) {
    const int before = currentRow();
    QListWidget::keyPressEvent(event);
    const QListWidgetItem* const tune = currentItem();
    if (tune == nullptr || (currentRow() == before && tune->isSelected())) return;
    AtDoor([this] { onPress(currentRow()); });
}

}  // namespace quendrel
