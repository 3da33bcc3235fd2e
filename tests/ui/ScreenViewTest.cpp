#include "binder/ScreenView.h"
#include "ScriptedDialogs.h"
#include "UiEvents.h"
#include "store/StoreError.h"

#include <QCloseEvent>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;

namespace {

class ScreenViewTest : public ::testing::Test {
protected:
    test::ScriptedDialogs dialogs;
    ScreenView view{dialogs};
    Frame form;
    int exits = 0;

    void SetUp() override {
        view.setObjectName("frmWorkOrders");
        form.caption = "Work Orders";
        view.bindForm(form);
        view.setExitHandler([this] { ++exits; });
    }

    // The window manager's close: the user pressed the frame's close button.
    void closeByFrame() {
        QCloseEvent e;
        QSpontaneKeyEvent::setSpontaneous(&e);
        // notify() directly: sendEvent would mark the event as the program's own.
        QCoreApplication::instance()->notify(&view, &e);
        test::settle();
    }
};

} // namespace

TEST_F(ScreenViewTest, ScreenIsLoadedHiddenAndShownByItsForm) {
    EXPECT_FALSE(form.visible);
    EXPECT_TRUE(view.isHidden());
    EXPECT_EQ(QStringLiteral("Work Orders"), view.windowTitle());
    form.visible = true;
    view.binder().sync();
    EXPECT_TRUE(view.isVisible());
    form.visible = false;
    view.binder().sync();
    EXPECT_TRUE(view.isHidden());
}

TEST_F(ScreenViewTest, ClosingARoutinesWindowByItsFrameEndsTheProgram) {
    form.visible = true;
    view.binder().sync();
    closeByFrame();
    EXPECT_EQ(1, exits);
    EXPECT_FALSE(form.visible);
}

TEST_F(ScreenViewTest, ProgramHideOrCloseDoesNotEndTheProgram) {
    form.visible = true;
    view.binder().sync();
    view.hide();
    view.show();
    view.close();
    test::settle();
    EXPECT_EQ(0, exits);
    EXPECT_TRUE(view.isHidden());
    EXPECT_FALSE(form.visible);
}

TEST_F(ScreenViewTest, ActivateRunsEachTimeTheProgramShowsTheScreen) {
    int activations = 0;
    view.setActivateHandler([&] { ++activations; });
    for (int i = 0; i < 2; ++i) {
        form.visible = true;
        view.binder().sync();
        test::settle();
        form.visible = false;
        view.binder().sync();
    }
    EXPECT_EQ(2, activations);
}

TEST_F(ScreenViewTest, ShowingOneScreenAndHidingAnotherHidesFirst) {
    ScreenView menu(dialogs);
    Frame menuForm;
    menu.bindForm(menuForm);
    QStringList order;
    struct Watch : QObject {
        QStringList* order;
        QString name;
        bool eventFilter(QObject*, QEvent* e) override {
            if (e->type() == QEvent::Show) *order << name + " shown";
            if (e->type() == QEvent::Hide) *order << name + " hidden";
            return false;
        }
    } watchMenu, watchRoutine;
    watchMenu.order = watchRoutine.order = &order;
    watchMenu.name = "menu";
    watchRoutine.name = "routine";
    menuForm.visible = true;
    Binder::syncAll();
    ASSERT_TRUE(menu.isVisible());
    menu.installEventFilter(&watchMenu);
    view.installEventFilter(&watchRoutine);
    // The menu's binder was made after the routine's: a naive push would show before it hides.
    form.visible = true;
    menuForm.visible = false;
    Binder::syncAll();
    EXPECT_EQ((QStringList{"menu hidden", "routine shown"}), order);
}

TEST_F(ScreenViewTest, EnterPressesTheDefaultButtonAndEscapeTheCancelButton) {
    CommandButton ok, quit;
    ok.caption = "Select";
    ok.isDefault = true;
    quit.caption = "Menu";
    quit.isCancel = true;
    auto* b1 = new QPushButton(&view);
    b1->setObjectName("cmdSelect");
    auto* b2 = new QPushButton(&view);
    b2->setObjectName("cmdMenu");
    view.binder().bind(b1, ok);
    view.binder().bind(b2, quit);
    QStringList events;
    view.binder().onClick(ok, [&] { events << "select"; });
    view.binder().onClick(quit, [&] { events << "menu"; });
    test::typeKey(&view, Qt::Key_Return, "\r");
    test::typeKey(&view, Qt::Key_Escape, QString(QChar(27)));
    ok.enabled = false;
    view.binder().sync();
    test::typeKey(&view, Qt::Key_Return, "\r");
    EXPECT_EQ((QStringList{"select", "menu"}), events);
}

TEST_F(ScreenViewTest, EnterInATextBoxReachesTheDefaultButton) {
    CommandButton ok;
    ok.isDefault = true;
    TextBox find;
    auto* b = new QPushButton(&view);
    b->setObjectName("cmdFind");
    auto* e = new QLineEdit(&view);
    e->setObjectName("txtFind");
    view.binder().bind(b, ok);
    view.binder().bind(e, find);
    int finds = 0;
    view.binder().onClick(ok, [&] { ++finds; });
    view.binder().onKeyPress(find, [](int&) {});
    test::typeKey(e, Qt::Key_Return, "\r");
    EXPECT_EQ(1, finds);
}

TEST_F(ScreenViewTest, ViewsOwnDefaultButtonAnswersEnterToo) {
    CommandButton go;
    auto* b = new QPushButton(&view);
    b->setObjectName("cmdGoto");
    view.binder().bind(b, go);
    b->setDefault(true);
    view.binder().sync();
    EXPECT_TRUE(b->isDefault());
    int clicks = 0;
    view.binder().onClick(go, [&] { ++clicks; });
    test::typeKey(&view, Qt::Key_Return, "\r");
    EXPECT_EQ(1, clicks);
}

TEST_F(ScreenViewTest, StoreErrorInTheExitHandlerIsShown) {
    view.setExitHandler([] { throw StoreError("/Services.txt", "Cannot be written."); });
    closeByFrame();
    EXPECT_BOX(dialogs, "Data File Problem", StoreError("/Services.txt", "Cannot be written.").userMessage());
}
