#include "ui/controls/Accessibility.h"

#include <utility>

#include <QAbstractButton>
#include <QAccessibleObject>
#include <QAccessibleWidget>
#include <QApplication>

#include "platform/Doors.h"
#include "ui/controls/Announcer.h"
#include "ui/controls/ClickTarget.h"
#include "ui/controls/ImageButton.h"
#include "ui/controls/MessageLabel.h"
#include "ui/controls/SpokenText.h"
#include "ui/controls/ZoomedWindow.h"

namespace quendrel {

namespace {

using Action = QAccessibleActionInterface;

/// A control that only holds others has no name, and is left out between them and the window.
bool IsLeftOut(const QWidget* control) {
    return dynamic_cast<const QLabel*>(control) == nullptr && control->accessibleName().isEmpty();
}

/// What a control is in for a screen reader.
QWidget* HolderOf(const QWidget* control) {
    QWidget* holder = control->parentWidget();
    while (!holder->isWindow() && IsLeftOut(holder)) holder = holder->parentWidget();
    return holder;
}

/// Whether it lies in a window of ours. What lies in a box keeps the toolkit's ways.
bool IsOurs(const QWidget* control) {
    return control != nullptr && dynamic_cast<const ZoomedWindow*>(control->window()) != nullptr;
}

/// Behind a modal window nothing can be done, as by pointer and keys.
bool IsBlocked(const QWidget* control) {
    const QWidget* const modal = QApplication::activeModalWidget();
    return modal != nullptr && modal != control->window();
}

QAccessible::State VisibleIn(const QWidget* window) {
    QAccessible::State state;
    state.invisible = !window->isVisible();
    return state;
}

class WindowInterface : public QAccessibleWidget {
public:
    explicit WindowInterface(ZoomedWindow* window) : QAccessibleWidget(window) {}

    QAccessible::Role role() const override {
        return widget()->isModal() ? QAccessible::Dialog : QAccessible::Window;
    }
    int childCount() const override { return static_cast<int>(Children().size()); }
    QAccessibleInterface* child(int index) const override {
        return QAccessible::queryAccessibleInterface(Children().value(index));
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return static_cast<int>(Children().indexOf(child->object()));
    }

private:
    /// The controls, and then what is only said.
    QObjectList Children() const {
        QObjectList children;
        for (QWidget* const control : widget()->findChildren<QWidget*>()) {
            if (control->isWindow() || IsLeftOut(control)) continue;
            if (HolderOf(control) == widget()) children.append(control);
        }
        for (QObject* const child : widget()->children()) {
            const auto* const text = dynamic_cast<SpokenText*>(child);
            const bool said = text != nullptr && !text->Text().isEmpty();
            if (said || dynamic_cast<Announcer*>(child) != nullptr) children.append(child);
        }
        return children;
    }
};

/// What lies in a window, with actions of its own beside the toolkit's.
class ControlInterface : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(HolderOf(widget()));
    }
    QStringList actionNames() const override {
        if (IsBlocked(widget())) return {};
        return OwnActions() + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override {
        if (IsBlocked(widget())) return;
        if (OwnActions().contains(name)) {
            Do(name);
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

protected:
    virtual QStringList OwnActions() const = 0;
    virtual void Do(const QString& name) = 0;
};

class ButtonInterface : public ControlInterface {
public:
    explicit ButtonInterface(ImageButton* button) : ControlInterface(button), button_(button) {}

    QAccessible::Role role() const override { return button_->Role(); }
    QAccessible::State state() const override {
        QAccessible::State state = ControlInterface::state();
        state.pressed = button_->isDown();
        state.checkable = button_->IsChoice() || button_->isCheckable();
        state.checked = button_->IsChoice() ? button_->IsHeld() : button_->isChecked();
        return state;
    }

protected:
    QStringList OwnActions() const override {
        QStringList names;
        if (button_->isHidden()) return names;
        if (button_->isEnabled() && role() != QAccessible::Graphic) {
            names += button_->isCheckable() ? Action::toggleAction() : Action::pressAction();
        }
        const QString other = button_->otherAction.name();
        if (!other.isEmpty()) names += other;
        return names;
    }
    /// A press has an end, like one with the mouse, and what it leads to, which may take long,
    /// happens after the answer. A choice is made at once.
    void Do(const QString& name) override {
        if (name == Action::pressAction() && button_->IsChoice()) {
            button_->click();
        } else if (name == Action::pressAction()) {
            button_->PressAWhile();
        } else if (name == Action::toggleAction()) {
            button_->toggle();
        } else {
            AtDoor(button_->otherAction.act);
        }
    }

private:
    ImageButton* button_;
};

class TargetInterface : public ControlInterface {
public:
    explicit TargetInterface(ClickTarget* target) : ControlInterface(target), target_(target) {}

    QAccessible::Role role() const override { return QAccessible::Button; }

protected:
    QStringList OwnActions() const override {
        if (!target_->isEnabled() || !target_->isVisible()) return {};
        return {Action::pressAction()};
    }
    void Do(const QString& /*name*/) override { target_->Press(); }

private:
    ClickTarget* target_;
};

/// A button of the toolkit's, as links are.
class LinkInterface : public ControlInterface {
public:
    explicit LinkInterface(QAbstractButton* link) : ControlInterface(link), link_(link) {}

    QAccessible::Role role() const override { return QAccessible::Button; }

protected:
    QStringList OwnActions() const override { return {Action::pressAction()}; }
    /// What it leads to happens after the answer.
    void Do(const QString& /*name*/) override { link_->animateClick(); }

private:
    QAbstractButton* link_;
};

/// A label with a name says what its text is: "Clock: 01:15".
class LabelInterface : public QAccessibleWidget {
public:
    explicit LabelInterface(MessageLabel* label)
        : QAccessibleWidget(label, QAccessible::StaticText), label_(label) {}

    QString text(QAccessible::Text what) const override {
        if (what != QAccessible::Name) return QAccessibleWidget::text(what);
        const QString name = label_->accessibleName();
        return name.isEmpty() ? label_->text() : name + ": " + label_->text();
    }

private:
    MessageLabel* label_;
};

/// What no control shows.
class SaidInterface : public QAccessibleObject {
public:
    SaidInterface(QObject* said, QAccessible::Role role) : QAccessibleObject(said), role_(role) {}

    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(object()->parent());
    }
    /// Announcements are told of, but not kept for reading.
    int childCount() const override { return role_ == QAccessible::Notification ? 1 : 0; }
    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount()) return nullptr;
        return QAccessible::queryAccessibleInterface(object()->children().value(index));
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return childCount() > 0 && child->object() == object()->children().value(0) ? 0 : -1;
    }
    QRect rect() const override {
        const auto* const said = dynamic_cast<SpokenText*>(object());
        const ZoomedWindow* const window = Window();
        return said == nullptr ? QRect() : window->OnScreen(said->Place());
    }
    QString text(QAccessible::Text what) const override {
        if (what != QAccessible::Name) return {};
        if (role_ == QAccessible::StatusBar) return "Announcements";
        const auto* const said = dynamic_cast<SpokenText*>(object());
        return said == nullptr ? QString() : said->Text();
    }
    QAccessible::Role role() const override { return role_; }
    QAccessible::State state() const override { return VisibleIn(Window()); }

private:
    const ZoomedWindow* Window() const {
        QObject* above = object();
        while (!above->isWidgetType()) above = above->parent();
        return static_cast<const ZoomedWindow*>(above);
    }

    QAccessible::Role role_;
};

QAccessibleInterface* InterfaceOf(const QString& /*className*/, QObject* object) {
    if (auto* const window = dynamic_cast<ZoomedWindow*>(object))
        return new WindowInterface(window);
    if (auto* const button = dynamic_cast<ImageButton*>(object)) return new ButtonInterface(button);
    if (auto* const target = dynamic_cast<ClickTarget*>(object)) return new TargetInterface(target);
    if (auto* const label = dynamic_cast<MessageLabel*>(object)) return new LabelInterface(label);
    if (auto* const link = dynamic_cast<QAbstractButton*>(object); IsOurs(link))
        return new LinkInterface(link);
    using enum QAccessible::Role;
    if (dynamic_cast<SpokenText*>(object)) return new SaidInterface(object, StaticText);
    if (dynamic_cast<Announcer*>(object)) return new SaidInterface(object, StatusBar);
    if (dynamic_cast<Announcement*>(object)) return new SaidInterface(object, Notification);
    return nullptr;
}

}  // namespace

void TeachAccessibility() {
    static const bool taught = [] {
        QAccessible::installFactory(InterfaceOf);
        return true;
    }();
    Q_UNUSED(taught);
}

}  // namespace quendrel
