// What a screen reader is told of the controls, and what it can do with them.
#include "ui/controls/Accessibility.h"

#include <functional>
#include <initializer_list>
#include <utility>
#include <vector>

#include <QAccessible>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

#include "Log.h"
#include "ui/controls/Announcer.h"
#include "ui/controls/ClickTarget.h"
#include "ui/controls/ImageButton.h"
#include "ui/controls/MessageLabel.h"
#include "ui/controls/SpokenText.h"
#include "ui/controls/ZoomedWindow.h"

namespace quendrel::test {
namespace {

QString SpokenNameOf(const QAccessibleInterface* thing) { return thing->text(QAccessible::Name); }

class AccessibilityTest : public ::testing::Test {
protected:
    AccessibilityTest() {
        TeachAccessibility();
        window.setAccessibleName("Window");
        window.show();
    }

    static QAccessibleInterface* Of(QObject& object) {
        return QAccessible::queryAccessibleInterface(&object);
    }

    /// The names of what the window has.
    QStringList Names() {
        QStringList names;
        const QAccessibleInterface* const tree = Of(window);
        for (int i = 0; i < tree->childCount(); ++i) {
            EXPECT_EQ(tree->indexOfChild(tree->child(i)), i);
            EXPECT_EQ(tree->child(i)->parent(), tree);
            names.append(SpokenNameOf(tree->child(i)));
        }
        return names;
    }

    /// Its actions but the toolkit's own.
    static QStringList Actions(QObject& object) {
        QStringList names = Of(object)->actionInterface()->actionNames();
        names.removeAll(QAccessibleActionInterface::setFocusAction());
        return names;
    }

    static void Do(QObject& object, const QString& action) {
        Of(object)->actionInterface()->doAction(action);
    }

    ZoomedWindow window;
};

TEST_F(AccessibilityTest, AnAnnouncementIsANotificationOfTheStatusBar) {
    auto* const announcer = new Announcer(&window);
    announcer->Say("Row 1");
    ASSERT_EQ(announcer->children().size(), 1);
    const QAccessibleInterface* const notification = Of(*announcer->children().front());
    EXPECT_EQ(notification->role(), QAccessible::Notification);
    EXPECT_FALSE(notification->state().invisible);
    EXPECT_EQ(SpokenNameOf(notification), "");
    ASSERT_EQ(notification->childCount(), 1);
    EXPECT_EQ(SpokenNameOf(notification->child(0)), "Row 1");
    EXPECT_EQ(notification->child(0)->role(), QAccessible::StaticText);
    EXPECT_FALSE(notification->child(0)->state().invisible);
    EXPECT_EQ(notification->parent()->role(), QAccessible::StatusBar);
    EXPECT_EQ(notification->parent()->childCount(), 0);
    EXPECT_EQ(Names(), QStringList{"Announcements"});
}

TEST_F(AccessibilityTest, TheLastTenAnnouncementsAreKeptTheSameOneTooAsOftenAsItIsSaid) {
    auto* const announcer = new Announcer(&window);
    for (int i = 1; i < 10; ++i) announcer->Say("Row 1");
    EXPECT_EQ(announcer->children().size(), 9);
    for (int i = 1; i < 10; ++i) announcer->Say("Row 2");
    ASSERT_EQ(announcer->children().size(), 10);
    EXPECT_EQ(SpokenNameOf(Of(*announcer->children().front())->child(0)), "Row 1");
    EXPECT_EQ(SpokenNameOf(Of(*announcer->children().back())->child(0)), "Row 2");
}

TEST_F(AccessibilityTest, AHiddenWindowAnnouncesNothing) {
    auto* const announcer = new Announcer(&window);
    window.hide();
    announcer->Say("Row 1");
    EXPECT_EQ(announcer->children().size(), 0);
}

TEST_F(AccessibilityTest, ASpokenTextIsThereWhileItSaysSomething) {
    auto* const text = new SpokenText(&window, {10, 20, 30, 40});
    EXPECT_EQ(Names(), QStringList());
    text->SetText("Code: hidden");
    EXPECT_EQ(Names(), QStringList{"Code: hidden"});
    EXPECT_EQ(Of(*text)->rect(), QRect(window.mapToGlobal(QPoint(10, 20)), QSize(30, 40)));
    text->SetText("");
    EXPECT_EQ(Names(), QStringList());
}

TEST_F(AccessibilityTest, AChoiceIsARadioButtonThatIsCheckedWhileItIsHeld) {
    auto* const choice = new ImageButton(&window);
    choice->MakeChoice();
    EXPECT_EQ(Of(*choice)->role(), QAccessible::RadioButton);
    EXPECT_TRUE(Of(*choice)->state().checkable);
    EXPECT_FALSE(Of(*choice)->state().checked);
    choice->SetHeld(true);
    EXPECT_TRUE(Of(*choice)->state().checked);
}

TEST_F(AccessibilityTest, ASwitchIsACheckBoxThatTogglesAndAPictureDoesNothing) {
    auto* const button = new ImageButton(&window);
    button->show();
    EXPECT_EQ(Of(*button)->role(), QAccessible::Button);
    EXPECT_FALSE(Of(*button)->state().checkable);
    EXPECT_EQ(Actions(*button), QStringList{"Press"});
    button->setCheckable(true);
    EXPECT_EQ(Of(*button)->role(), QAccessible::CheckBox);
    Do(*button, "Toggle");
    EXPECT_TRUE(Of(*button)->state().checked);
    button->MakePicture();
    EXPECT_EQ(Of(*button)->role(), QAccessible::Graphic);
    EXPECT_EQ(Actions(*button), QStringList());
    EXPECT_FALSE(Of(*button)->state().focusable);
}

TEST_F(AccessibilityTest, AButtonIsPressedAndClickedAfterTheAnswerAndNotWhileItIsDisabled) {
    Log log;
    auto* const button = new ImageButton(&window);
    button->show();
    button->onPress = [&log](MouseButton) { log.Add("press"); };
    button->onClick = [&log] { log.Add("click"); };
    Do(*button, "Press");
    EXPECT_EQ(log.Text(), "press\n");
    EXPECT_TRUE(QTest::qWaitFor([&log] { return log.Text() == "press\nclick\n"; }, 2000));
    button->setEnabled(false);
    EXPECT_EQ(Actions(*button), QStringList());
    Do(*button, "Press");
    EXPECT_FALSE(button->isDown());
    button->setEnabled(true);
    button->hide();
    EXPECT_EQ(Actions(*button), QStringList());
}

TEST_F(AccessibilityTest, APressIsForgottenWhereItsButtonCannotBePressedBeforeItsEnd) {
    Log log;
    auto* const button = new ImageButton(&window);
    button->show();
    button->onClick = [&log] { log.Add("click"); };
    QWidget modal;
    modal.setWindowModality(Qt::ApplicationModal);
    const std::vector<std::pair<std::function<void()>, std::function<void()>>> ways{
        {[&modal] { modal.show(); }, [&modal] { modal.hide(); }},
        {[button] { button->hide(); }, [button] { button->show(); }},
        {[button] { button->setEnabled(false); }, [button] { button->setEnabled(true); }},
    };
    for (const auto& [begin, end] : ways) {
        Do(*button, "Press");
        begin();
        QTest::qWait(200);
        EXPECT_EQ(log.Text(), "");
        EXPECT_FALSE(button->isDown());
        end();
    }
    Do(*button, "Press");
    button->clearFocus();
    EXPECT_TRUE(QTest::qWaitFor([&log] { return log.Text() == "click\n"; }, 2000));
}

TEST_F(AccessibilityTest, AChoiceIsMadeAtOnceAsOftenAsItIsPressed) {
    Log log;
    auto* const choice = new ImageButton(&window);
    choice->MakeChoice();
    choice->show();
    choice->onPress = [&log](MouseButton) { log.Add("press"); };
    choice->onClick = [&log] { log.Add("click"); };
    Do(*choice, "Press");
    Do(*choice, "Press");
    EXPECT_EQ(log.Text(), "press\nclick\npress\nclick\n");
}

TEST_F(AccessibilityTest, ADisabledButtonKeepsItsOtherAction) {
    Log log;
    auto* const button = new ImageButton(&window);
    button->show();
    button->otherAction = {[button] { return button->isEnabled() ? "Switch off" : "Switch on"; },
                           [&log] { log.Add("switch"); }};
    EXPECT_EQ(Actions(*button), QStringList({"Press", "Switch off"}));
    button->setEnabled(false);
    EXPECT_EQ(Actions(*button), QStringList{"Switch on"});
    EXPECT_TRUE(Of(*button)->state().disabled);
    Do(*button, "Switch on");
    EXPECT_EQ(log.Text(), "switch\n");
}

TEST_F(AccessibilityTest, ATargetIsAButtonThatIsPressedLikeWithTheLeftMouseButton) {
    Log log;
    auto* const target = new ClickTarget(&window, ClickTarget::Look::kInvisible);
    target->show();
    target->onPress = [&log](MouseButton button) {
        log.Add(button == MouseButton::kLeft ? "left" : "other");
    };
    target->onClick = [&log] { log.Add("click"); };
    EXPECT_EQ(Of(*target)->role(), QAccessible::Button);
    Do(*target, "Press");
    EXPECT_EQ(log.Text(), "left\nclick\n");
    target->setEnabled(false);
    EXPECT_EQ(Actions(*target), QStringList());
    Do(*target, "Press");
    EXPECT_EQ(log.Text(), "left\nclick\n");
}

TEST_F(AccessibilityTest, BehindAModalWindowNothingIsOfferedOrDone) {
    Log log;
    auto* const button = new ImageButton(&window);
    button->otherAction = {[] { return "Switch off"; }, [&log] { log.Add("switch"); }};
    button->onPress = [&log](MouseButton) { log.Add("press"); };
    button->show();
    auto* const target = new ClickTarget(&window, ClickTarget::Look::kInvisible);
    target->onClick = [&log] { log.Add("click"); };
    target->show();
    auto* const link = new QPushButton(&window);
    QObject::connect(link, &QPushButton::pressed, [&log] { log.Add("pressed"); });
    link->show();
    QWidget modal;
    modal.setWindowModality(Qt::ApplicationModal);
    modal.show();
    for (QObject* const control : std::initializer_list<QObject*>{button, target, link}) {
        EXPECT_EQ(Of(*control)->actionInterface()->actionNames(), QStringList());
        for (const char* const deed : {"Press", "Switch off", "SetFocus"}) Do(*control, deed);
        EXPECT_FALSE(static_cast<QWidget*>(control)->hasFocus());
    }
    EXPECT_EQ(log.Text(), "");
    modal.hide();
    EXPECT_EQ(Actions(*button), QStringList({"Press", "Switch off"}));
    EXPECT_EQ(Actions(*target), QStringList{"Press"});
    EXPECT_EQ(Actions(*link), QStringList{"Press"});
    Do(*link, "Press");
    EXPECT_EQ(log.Text(), "pressed\n");
}

TEST_F(AccessibilityTest, WhatOnlyHoldsAControlIsLeftOut) {
    auto* const holder = new ClickTarget(&window, ClickTarget::Look::kInvisible);
    auto* const button = new ImageButton(holder);
    button->setAccessibleName("Red");
    auto* const picture = new QWidget(&window);
    picture->show();
    EXPECT_EQ(Names(), QStringList{"Red"});
}

TEST_F(AccessibilityTest, ANamedLabelIsReadWithItsName) {
    auto* const label = new MessageLabel(&window);
    label->setText("Welcome");
    EXPECT_EQ(Names(), QStringList{"Welcome"});
    label->setAccessibleName("Clock");
    label->setText("01:15");
    EXPECT_EQ(Names(), QStringList{"Clock: 01:15"});
}

TEST_F(AccessibilityTest, AModalWindowIsADialogAndAnotherOneAFrame) {
    EXPECT_EQ(Of(window)->role(), QAccessible::Window);
    window.hide();
    window.setWindowModality(Qt::ApplicationModal);
    EXPECT_EQ(Of(window)->role(), QAccessible::Dialog);
}

}  // namespace
}  // namespace quendrel::test
