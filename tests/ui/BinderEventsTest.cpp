#include "ScriptedDialogs.h"
#include "UiEvents.h"
#include "binder/Binder.h"
#include "binder/ClickableImage.h"
#include "platform/ControlRegistry.h"
#include "store/StoreError.h"

#include <QAccessible>
#include <QAction>
#include <QElapsedTimer>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;

namespace {

class BinderEvents : public ::testing::Test {
protected:
    void TearDown() override { Binder::setAlarmSwitch(nullptr); }

    test::ScriptedDialogs dialogs;
    QWidget window;
    Binder binder{dialogs, &window};

    template <typename W> W* make(const QString& name) {
        auto* w = new W(&window);
        w->setObjectName(name);
        return w;
    }
};

// A screen as the core writes one: models, a registry, events as methods.
struct frmSample {
    CommandButton cmdSave;
    ControlArray<TextBox> txtCustomer;
    Label lblStatus;
    ControlRegistry controls;
    frmSample() {
        txtCustomer[0];
        txtCustomer[6];
        controls.add("cmdSave", cmdSave);
        controls.add("txtCustomer", txtCustomer);
        controls.add("lblStatus", lblStatus);
    }
};

} // namespace

TEST_F(BinderEvents, ClickRunsTheHandlerThenPushesEveryModel) {
    CommandButton cmd;
    Label lbl;
    auto* b = make<QPushButton>("cmdGoto");
    auto* l = make<QLabel>("lblStatus");
    binder.bind(b, cmd);
    binder.bind(l, lbl);
    int clicks = 0;
    binder.onClick(cmd, [&] {
        ++clicks;
        lbl.caption = "Saved";
        cmd.enabled = false;
    });
    b->click();
    EXPECT_EQ(1, clicks);
    EXPECT_EQ(QStringLiteral("Saved"), l->text());
    EXPECT_FALSE(b->isEnabled());
}

TEST_F(BinderEvents, HandlerSeesTheTextTypedBeforeItRuns) {
    TextBox txt;
    CommandButton cmd;
    auto* e = make<QLineEdit>("txtCustomer(6)");
    auto* b = make<QPushButton>("cmdNav(2)");
    binder.bind(e, txt);
    binder.bind(b, cmd);
    QString seen;
    binder.onClick(cmd, [&] { seen = txt.text; });
    test::typeText(e, "555-123-4567");
    b->click();
    EXPECT_EQ(QStringLiteral("555-123-4567"), seen);
}

TEST_F(BinderEvents, ChangeFollowsEachUserEditButNotTheProgramsOwn) {
    TextBox txt;
    auto* e = make<QLineEdit>("txtAdditional");
    binder.bind(e, txt);
    QStringList changes;
    binder.onChange(txt, [&] { changes << txt.text; });
    test::typeText(e, "ab");
    EXPECT_EQ((QStringList{"a", "ab"}), changes);
    txt.text = "reset";
    binder.sync();
    EXPECT_EQ(2, changes.size());
}

TEST_F(BinderEvents, StoreErrorInAHandlerBecomesABoxAndTheEventStillPushes) {
    CommandButton cmd;
    Label lbl;
    auto* b = make<QPushButton>("cmdSave");
    auto* l = make<QLabel>("lblStatus");
    binder.bind(b, cmd);
    binder.bind(l, lbl);
    const StoreError error("/Services.txt", "The file ends in the middle of a record.");
    binder.onClick(cmd, [&] {
        lbl.caption = "Saving";
        throw error;
    });
    dialogs.expect("Data File Problem", error.userMessage(), vbOKOnly + vbCritical, vbOK);
    b->click();
    dialogs.verify();
    EXPECT_EQ(QStringLiteral("Saving"), l->text());
    EXPECT_EQ(0, dialogs.beeps());
}

TEST_F(BinderEvents, StoreErrorBoxBeepsFirstWhenTheAlarmOptionIsOn) {
    CommandButton cmd;
    binder.bind(make<QPushButton>("cmdSave"), cmd);
    binder.onClick(cmd, [] { throw StoreError("/Labor.txt", "Cannot be read."); });
    Binder::setAlarmSwitch([] { return true; });
    qobject_cast<QPushButton*>(binder.widgetFor(cmd))->click();
    EXPECT_EQ(1, dialogs.beeps());
    EXPECT_BOX(dialogs, "Data File Problem", StoreError("/Labor.txt", "Cannot be read.").userMessage());
}

TEST_F(BinderEvents, OtherFailureOfAHandlerIsReportedAndTheProgramGoesOn) {
    CommandButton cmd;
    binder.bind(make<QPushButton>("cmdSave"), cmd);
    binder.onClick(cmd, [] { throw std::out_of_range("grid cell outside the grid"); });
    qobject_cast<QPushButton*>(binder.widgetFor(cmd))->click();
    EXPECT_BOX(dialogs, "Program Error", "grid cell outside the grid");
}

TEST_F(BinderEvents, HandlerOnOneScreenUpdatesTheWidgetsOfAnother) {
    QWidget otherWindow;
    Binder other(dialogs, &otherWindow);
    ListBox lst;
    auto* list = new QListWidget(&otherWindow);
    list->setObjectName("lstServices");
    other.bind(list, lst);
    CommandButton cmd;
    binder.bind(make<QPushButton>("cmdAdd"), cmd);
    binder.onClick(cmd, [&] { lst.AddItem("Tune-up"); });
    qobject_cast<QPushButton*>(binder.widgetFor(cmd))->click();
    ASSERT_EQ(1, list->count());
    EXPECT_EQ(QStringLiteral("Tune-up"), list->item(0)->text());
}

TEST_F(BinderEvents, KeyPressHandlerCanSwallowOrReplaceTheKey) {
    TextBox txt;
    auto* e = make<QLineEdit>("txtCustomer(0)");
    binder.bind(e, txt);
    QString seenText;
    binder.onKeyPress(txt, [&](int& key) {
        seenText = txt.text;
        if (key == '"') key = 0;
        if (key == 'x') key = 'X';
    });
    test::typeText(e, "a\"bx");
    EXPECT_EQ(QStringLiteral("abX"), e->text());
    EXPECT_EQ(QStringLiteral("abX"), txt.text);
    EXPECT_EQ(QStringLiteral("ab"), seenText); // the text so far, before the key
}

TEST_F(BinderEvents, RefusedKeyReturnsTheFocusAndShowsTheBox) {
    TextBox txt;
    auto* e = make<QLineEdit>("txtCustomer(0)");
    binder.bind(e, txt);
    binder.onKeyPress(txt, [&](int& key) {
        if (key == '/') {
            dialogs.MsgBox("This character, (/) is invalid for this field", vbOKOnly, "Invalid Key entry");
            txt.SetFocus();
            key = 0;
        }
    });
    window.show();
    test::settle();
    dialogs.expect("Invalid Key entry", "This character, (/) is invalid for this field");
    test::typeText(e, "12/");
    dialogs.verify();
    EXPECT_EQ(QStringLiteral("12"), txt.text);
    EXPECT_FALSE(txt.focusRequested);
    EXPECT_EQ(e, QApplication::focusWidget());
}

TEST_F(BinderEvents, PastedTextIsJudgedKeyByKeyAndStopsAtTheFirstRefusal) {
    TextBox txt;
    auto* e = make<QLineEdit>("txtCustomer(0)");
    binder.bind(e, txt);
    QString judged;
    binder.onKeyPress(txt, [&](int& key) {
        judged += QChar(key);
        if (key == ',') key = 0;
        if (key == 'q') key = 'Q';
    });
    int changes = 0;
    binder.onChange(txt, [&] { ++changes; });
    test::typeText(e, "ab");
    judged.clear();
    QApplication::clipboard()->setText("1q2,3");
    e->paste();
    EXPECT_EQ(QStringLiteral("1q2,"), judged);
    EXPECT_EQ(QStringLiteral("ab1Q2"), txt.text);
    EXPECT_EQ(QStringLiteral("ab1Q2"), e->text());
    EXPECT_EQ(5, e->cursorPosition());
    EXPECT_EQ(3, changes); // two keys and one paste
}

TEST_F(BinderEvents, CtrlShortcutsDoNotReachTheKeyPressHandler) {
    TextBox txt;
    auto* e = make<QLineEdit>("txtCharge");
    binder.bind(e, txt);
    QList<int> keys;
    binder.onKeyPress(txt, [&](int& key) { keys << key; });
    test::typeKey(e, Qt::Key_C, QString(QChar(3)), Qt::ControlModifier);
    test::typeKey(e, Qt::Key_Backspace, QString(QChar(8)));
    EXPECT_EQ((QList<int>{8}), keys);
}

TEST_F(BinderEvents, EnterIgnoredByATextBoxTravelsOnToItsWindow) {
    TextBox txt;
    auto* e = make<QLineEdit>("txtFind");
    binder.bind(e, txt);
    QList<int> keys;
    binder.onKeyPress(txt, [&](int& key) { keys << key; });
    struct Catcher : QObject {
        int enters = 0;
        bool eventFilter(QObject*, QEvent* ev) override {
            if (ev->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(ev)->key() == Qt::Key_Return)
                ++enters;
            return false;
        }
    } catcher;
    window.installEventFilter(&catcher);
    test::typeKey(e, Qt::Key_Return, QStringLiteral("\r"));
    EXPECT_EQ((QList<int>{13}), keys);
    EXPECT_EQ(1, catcher.enters);
}

TEST_F(BinderEvents, KeyDownHandlerGetsLegacyCodesAndShiftState) {
    TextBox txt;
    auto* e = make<QLineEdit>("txtHours(1)");
    binder.bind(e, txt);
    QList<QPair<int, int>> seen;
    binder.onKeyDown(txt, [&](int& code, int shift) {
        seen << qMakePair(code, shift);
        if (code == 46) code = 0; // Delete swallowed
    });
    e->setText("0");
    e->setCursorPosition(0);
    test::typeKey(e, Qt::Key_Delete, QString());
    test::typeKey(e, Qt::Key_A, "A", Qt::ShiftModifier);
    EXPECT_EQ((QList<QPair<int, int>>{{46, 0}, {65, 1}}), seen);
    EXPECT_EQ(QStringLiteral("A0"), e->text());
}

TEST_F(BinderEvents, LostFocusPullsTheTextAndMayPutTheFocusBack) {
    TextBox hours, units;
    auto* a = make<QLineEdit>("txtHours(0)");
    auto* b = make<QLineEdit>("txtUnits");
    binder.bind(a, hours);
    binder.bind(b, units);
    binder.onLostFocus(hours, [&] {
        bool ok = false;
        hours.text.toDouble(&ok);
        if (!ok) {
            hours.text = "0";
            hours.SetFocus();
        }
    });
    window.show();
    test::settle();
    a->setFocus(Qt::TabFocusReason);
    test::typeText(a, "x");
    b->setFocus(Qt::TabFocusReason);
    test::settle();
    EXPECT_EQ(QStringLiteral("0"), hours.text);
    EXPECT_EQ(QStringLiteral("0"), a->text());
    EXPECT_EQ(a, QApplication::focusWidget());
}

TEST_F(BinderEvents, FocusLostToAnotherWindowIsNoLostFocus) {
    TextBox txt;
    auto* e = make<QLineEdit>("txtCustomer(1)");
    binder.bind(e, txt);
    int lost = 0, got = 0;
    binder.onLostFocus(txt, [&] { ++lost; });
    binder.onGotFocus(txt, [&] { ++got; });
    test::focusOut(e, Qt::ActiveWindowFocusReason);
    test::focusIn(e, Qt::ActiveWindowFocusReason);
    EXPECT_EQ(0, lost);
    EXPECT_EQ(0, got);
    test::focusIn(e, Qt::MouseFocusReason);
    test::focusOut(e, Qt::TabFocusReason);
    EXPECT_EQ(1, lost);
    EXPECT_EQ(1, got);
}

TEST_F(BinderEvents, DoubleClickOnAnOptionButtonGivesClickThenDblClick) {
    ControlArray<OptionButton> opt;
    opt[5].caption = "Create an &Appointment ";
    opt[6].caption = "Create / Modify &Services Offered and Products Sold";
    binder.bind(make<QRadioButton>("optMainMenuSub(5)"), opt[5]);
    binder.bind(make<QRadioButton>("optMainMenuSub(6)"), opt[6]);
    binder.widgetFor(opt[6])->adjustSize();
    QStringList events;
    binder.onClick(opt, [&](int i) { events << QStringLiteral("Click %1").arg(i); });
    binder.onDoubleClick(opt,
                         [&](int i) { events << QStringLiteral("DblClick %1 %2").arg(i).arg(opt[i].value); });
    window.show();
    test::settle();
    test::doubleClick(binder.widgetFor(opt[6]));
    EXPECT_EQ((QStringList{"Click 6", "DblClick 6 1"}), events);
    EXPECT_TRUE(opt[6].value);
}

TEST_F(BinderEvents, LabelAndImageReportClicksFromTheMouse) {
    Label lbl;
    Image img;
    auto* l = make<QLabel>("lblLink");
    auto* i = make<ClickableImage>("Image1(1)");
    l->resize(50, 20);
    i->resize(50, 50);
    binder.bind(l, lbl);
    binder.bind(i, img);
    QStringList events;
    binder.onClick(lbl, [&] { events << "label"; });
    binder.onClick(img, [&] { events << "image"; });
    binder.onDoubleClick(img, [&] { events << "image twice"; });
    test::click(l);
    test::doubleClick(i);
    test::click(l, QPoint(500, 500)); // released outside: no click
    EXPECT_EQ((QStringList{"label", "image", "image twice"}), events);
}

TEST_F(BinderEvents, ListChoiceAndDoubleClickArePulledFirst) {
    ListBox lst;
    lst.AddItem("Oil change");
    lst.AddItem("Tune-up");
    auto* w = make<QListWidget>("lstServices");
    binder.bind(w, lst);
    QStringList events;
    binder.onClick(lst, [&] { events << "Click " + lst.text; });
    binder.onDoubleClick(lst, [&] { events << "DblClick " + lst.text; });
    w->setCurrentRow(1);
    Q_EMIT w->itemDoubleClicked(w->item(1));
    EXPECT_EQ((QStringList{"Click Tune-up", "DblClick Tune-up"}), events);
    lst.SetListIndex(0);
    binder.sync(); // the program's choice is no Click
    EXPECT_EQ(2, events.size());
}

TEST_F(BinderEvents, GridClickAndDoubleClickSeeTheClickedCell) {
    Grid fg;
    fg.SetRows(4);
    fg.SetCols(3);
    auto* t = make<QTableWidget>("fgDaySchedule");
    binder.bind(t, fg);
    QStringList events;
    binder.onClick(fg, [&] { events << QStringLiteral("Click %1,%2").arg(fg.row).arg(fg.col); });
    binder.onDoubleClick(fg, [&] { events << QStringLiteral("DblClick %1,%2").arg(fg.row).arg(fg.col); });
    t->setCurrentCell(2, 1);
    Q_EMIT t->cellClicked(2, 1);
    Q_EMIT t->cellDoubleClicked(2, 1);
    EXPECT_EQ((QStringList{"Click 3,2", "DblClick 3,2"}), events);
}

TEST_F(BinderEvents, CheckBoxAndMenuClicks) {
    CheckBox ck;
    MenuItem mnu;
    auto* c = make<QCheckBox>("ckPrompts");
    auto* a = new QAction(&window);
    a->setObjectName("mnuExit");
    binder.bind(c, ck);
    binder.bind(a, mnu);
    QStringList events;
    binder.onClick(ck, [&] { events << QStringLiteral("ck %1").arg(ck.value); });
    binder.onClick(mnu, [&] { events << "exit"; });
    c->click();
    a->trigger();
    EXPECT_EQ((QStringList{"ck 1", "exit"}), events);
}

TEST_F(BinderEvents, MenuCheckMarkIsTheProgramsToSet) {
    MenuItem mnu;
    mnu.checked = true;
    auto* a = new QAction(&window);
    a->setObjectName("mnuAddto");
    binder.bind(a, mnu);
    binder.onClick(mnu, [] {});
    a->trigger();
    EXPECT_TRUE(a->isChecked());
    EXPECT_TRUE(mnu.checked);
}

TEST_F(BinderEvents, EventsDuringAPushWaitForTheEventLoop) {
    TextBox a, b;
    auto* wa = make<QLineEdit>("txtA");
    auto* wb = make<QLineEdit>("txtB");
    binder.bind(wa, a);
    binder.bind(wb, b);
    QStringList events;
    binder.onGotFocus(b, [&] { events << "GotFocus B"; });
    CommandButton cmd;
    binder.bind(make<QPushButton>("cmdNext"), cmd);
    binder.onClick(cmd, [&] {
        b.SetFocus();
        events << "Click";
    });
    window.show();
    test::settle();
    wa->setFocus(Qt::TabFocusReason);
    test::settle();
    qobject_cast<QPushButton*>(binder.widgetFor(cmd))->click();
    EXPECT_EQ((QStringList{"Click"}), events);
    test::settle();
    EXPECT_EQ((QStringList{"Click", "GotFocus B"}), events);
    EXPECT_EQ(wb, QApplication::focusWidget());
}

TEST_F(BinderEvents, ScreenBindsByNameAndReportsControlsWithoutWidgets) {
    frmSample frm;
    make<QPushButton>("cmdSave");
    make<QLineEdit>("txtCustomer(0)");
    make<QPushButton>("lblStatus"); // wrong kind for a label
    binder.bindAll(frm.controls);
    EXPECT_EQ((QStringList{"txtCustomer(6)", "lblStatus"}), binder.unboundControls());
    EXPECT_NE(nullptr, binder.widgetFor(frm.cmdSave));
    EXPECT_EQ(QStringLiteral("txtCustomer(0)"), binder.widgetFor(frm.txtCustomer[0])->objectName());
}

TEST_F(BinderEvents, MenuTitleBindsToItsMenu) {
    MenuItem mnuFiles;
    mnuFiles.name = "mnuFiles";
    mnuFiles.caption = " Files";
    auto* menu = new QMenu(&window);
    menu->setObjectName("mnuFiles");
    EXPECT_TRUE(binder.bind(mnuFiles));
    EXPECT_EQ(QStringLiteral(" Files"), menu->title());
    mnuFiles.enabled = false;
    binder.sync();
    EXPECT_FALSE(menu->menuAction()->isEnabled());
}

TEST_F(BinderEvents, HandlerForAControlNeverBoundIsReported) {
    CommandButton cmd;
    cmd.name = "cmdLost";
    binder.onClick(cmd, [] {});
    EXPECT_EQ(QStringList{"cmdLost"}, binder.unboundControls());
}

TEST_F(BinderEvents, ScreenWithEveryWidgetHasNothingUnbound) {
    frmSample frm;
    make<QPushButton>("cmdSave");
    make<QLineEdit>("txtCustomer(0)");
    make<QLineEdit>("txtCustomer(6)");
    make<QLabel>("lblStatus");
    binder.bindAll(frm.controls);
    EXPECT_TRUE(binder.unboundControls().isEmpty()) << binder.unboundControls().join(", ").toStdString();
    frm.lblStatus.caption = "Ready";
    frm.txtCustomer[6].text = "555-123-4567";
    binder.sync();
    EXPECT_EQ(QStringLiteral("Ready"), qobject_cast<QLabel*>(binder.widgetFor(frm.lblStatus))->text());
    EXPECT_EQ(QStringLiteral("555-123-4567"),
              qobject_cast<QLineEdit*>(binder.widgetFor(frm.txtCustomer[6]))->text());
}

namespace {

QAccessibleInterface* accessible(QWidget* w) {
    QAccessibleInterface* a = QAccessible::queryAccessibleInterface(w);
    EXPECT_NE(a, nullptr);
    return a;
}

} // namespace

TEST_F(BinderEvents, ACheckBoxTickedThroughAccessibilityReachesTheLogicAndStays) {
    CheckBox ck;
    ck.caption = "Alarms";
    auto* box = make<QCheckBox>("ckAlarms");
    binder.bind(box, ck);
    int clicks = 0;
    binder.onClick(ck, [&] {
        ++clicks;
        EXPECT_EQ(ck.value, 1); // the logic sees the new state
    });
    window.show();
    test::settle();
    accessible(box)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    test::settle();
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(ck.value, 1);
    binder.sync(); // a refresh keeps the owner's tick
    EXPECT_TRUE(box->isChecked());
    // The program's own change is not taken for the owner's.
    ck.value = 0;
    binder.sync();
    test::settle();
    EXPECT_FALSE(box->isChecked());
    EXPECT_EQ(clicks, 1);
    // A mouse click still gives one Click.
    test::click(box);
    test::settle();
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(ck.value, 1);
}

TEST_F(BinderEvents, AnOptionChosenThroughAccessibilityReachesTheLogic) {
    ControlArray<OptionButton> opt;
    opt[0].caption = "One";
    opt[1].caption = "Two";
    opt[0].value = true;
    binder.bind(make<QRadioButton>("optPick(0)"), opt[0]);
    binder.bind(make<QRadioButton>("optPick(1)"), opt[1]);
    QStringList clicks;
    binder.onClick(opt, [&](int i) { clicks << QString::number(i); });
    window.show();
    binder.sync();
    test::settle();
    accessible(binder.widgetFor(opt[1]))->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    test::settle();
    EXPECT_EQ(clicks, QStringList{"1"});
    EXPECT_TRUE(opt[1].value);
    EXPECT_FALSE(opt[0].value);
    opt[0].value = true;
    opt[1].value = false;
    binder.sync();
    test::settle();
    EXPECT_EQ(clicks, QStringList{"1"}); // the program's choice is no Click
}

TEST_F(BinderEvents, TextSetThroughAccessibilityReachesTheLogicAndItsKeyFilter) {
    TextBox txt;
    auto* edit = make<QLineEdit>("txtPhone");
    binder.bind(edit, txt);
    int changes = 0;
    binder.onChange(txt, [&] { ++changes; });
    // The key filter turns letters away, as the phone boxes do.
    binder.onKeyPress(txt, [](int& key) {
        if (QChar(key).isLetter()) key = 0;
    });
    window.show();
    test::settle();
    accessible(edit)->setText(QAccessible::Value, QStringLiteral("555-0100"));
    test::settle();
    EXPECT_EQ(txt.text, "555-0100");
    EXPECT_GE(changes, 1);
    const int before = changes;
    txt.text = "217";
    binder.sync();
    test::settle();
    EXPECT_EQ(edit->text(), "217");
    EXPECT_EQ(changes, before); // the program's own text is not the owner's edit
}

TEST_F(BinderEvents, AButtonPressedThroughAccessibilityClicks) {
    CommandButton cmd;
    cmd.caption = "Goto";
    auto* b = make<QPushButton>("cmdGoto");
    binder.bind(b, cmd);
    int clicks = 0;
    binder.onClick(cmd, [&] { ++clicks; });
    window.show();
    test::settle();
    accessible(b)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QElapsedTimer wait;
    wait.start();
    while (clicks == 0 && wait.elapsed() < 2000) test::settle(); // the press animates for a moment
    EXPECT_EQ(clicks, 1);
}
