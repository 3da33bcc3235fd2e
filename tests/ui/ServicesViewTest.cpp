#include "views/ServicesView.h"
#include "Screenshot.h"
#include "CatalogueSamples.h"
#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "UiEvents.h"
#include "binder/ClickableImage.h"
#include "catalogue/CustomItemRecord.h"
#include "catalogue/InventoriedItemRecord.h"
#include "catalogue/LaborRates.h"
#include "catalogue/ServiceRecord.h"
#include "catalogue/frmServices.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;
using ostrel::test::custom;
using ostrel::test::FakePlatform;
using ostrel::test::item;
using ostrel::test::TestDataRoot;

using ostrel::test::saveShot;

namespace {

struct ServicesViewTest : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmServices& frm = session.AddScreen(ScreenId::frmServices,
                                         std::make_unique<frmServices>(session, session.catalogueLists));
    std::unique_ptr<ServicesView> view;
    int ended = 0;

    void SetUp() override {
        session.RegisterScreen(ScreenId::frmStartup, session.startup());
        session.endProcess = [this] { ++ended; };
    }

    void open(bool withCatalogue = true) {
        if (withCatalogue) {
            t.writeBytes("/Services.txt", ServiceRecord{"Tune Up", "$45.00", 4}.toRecord().bytes() +
                                              ServiceRecord{"Full Service", "$120.00", 8}.toRecord().bytes());
            t.writeBytes("/OIInventoriedItems.txt", item("Air Filter", "Parts").toRecord().bytes() +
                                                        item("Belt", "Belts").toRecord().bytes());
            t.writeBytes("/CustomItems.txt",
                         custom("Mounting Bracket").toRecord().bytes() + custom("Frame").toRecord().bytes());
            TextWriter labor;
            labor.write({QStringLiteral("General Labor"), QStringLiteral("$85.00")});
            labor.write({QStringLiteral("Apprentice"), QStringLiteral("$45.00")});
            labor.write({QString(), QString()});
            t.disk().ReplaceTextFile(kLaborFileName, labor);
        }
        view = std::make_unique<ServicesView>(session, frm);
        frm.Load();
        frm.Show(); // as the menu's button would, whose event ends with the push
        Binder::syncAll();
        view->resize(1000, 620);
        test::settle();
    }

    template <typename W> W* find(const QString& name) {
        W* w = view->findChild<W*>(name);
        EXPECT_NE(w, nullptr) << name.toStdString();
        return w;
    }
    QPushButton* cmd(int i) { return find<QPushButton>(QStringLiteral("cmdServices(%1)").arg(i)); }
    QLineEdit* box(const QString& name) { return find<QLineEdit>(name); }

    void press(int i) {
        QPushButton* b = cmd(i);
        ASSERT_TRUE(b->isEnabled()) << i;
        b->click();
        test::settle();
    }
    // Types into a box as a person does: into it, the keys, out of it.
    void type(const QString& name, const QString& text, bool clearFirst = true) {
        QLineEdit* e = box(name);
        test::focusIn(e);
        test::settle();
        if (clearFirst) {
            while (!e->text().isEmpty())
                test::typeKey(e, Qt::Key_Backspace, QString(QChar(8)));
        }
        test::typeText(e, text);
        test::focusOut(e);
        test::settle();
    }
    void clickRow(const char* gridName, int tableRow) {
        auto* g = find<QTableWidget>(QLatin1String(gridName));
        QTableWidgetItem* cell = g->item(tableRow, 0);
        ASSERT_NE(cell, nullptr);
        g->scrollToItem(cell);
        test::click(g->viewport(), g->visualItemRect(cell).center());
        test::settle();
    }
    void pickTab(int tab) {
        view->tabs()->setCurrentIndex(tab);
        test::settle();
    }
    QString cell(const char* gridName, int tableRow, int col) {
        QTableWidgetItem* i = find<QTableWidget>(QLatin1String(gridName))->item(tableRow, col);
        return i ? i->text() : QString();
    }
    int pageOf(QWidget* w) {
        for (int i = 0; i < view->tabs()->count(); ++i)
            if (view->tabs()->widget(i)->isAncestorOf(w)) return i;
        return -1;
    }
};

} // namespace

TEST_F(ServicesViewTest, EveryControlHasItsWidgetAndEveryButtonStandsOnItsTab) {
    open();
    EXPECT_TRUE(view->binder().unboundControls().isEmpty())
        << view->binder().unboundControls().join(", ").toStdString();
    EXPECT_EQ(view->windowTitle(), "Services & Products Creation Screen");
    const QStringList tabs = {"Services", "Inventoried Items", "Labor Rates", "Custom Items", "Instructions"};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(view->tabs()->tabText(i), tabs[i]);
    const std::map<int, int> tabOf = {{1, 0},  {2, 0},  {3, 0},   {4, 0},  {5, 0},  {7, 0},  {8, 1},
                                      {9, 1},  {10, 1}, {11, 1},  {13, 1}, {14, 1}, {12, 2}, {15, 2},
                                      {16, 2}, {17, 2}, {18, 3},  {19, 3}, {20, 3}, {21, 3}, {22, 3},
                                      {23, 3}, {0, -1}, {24, -1}, {25, -1}};
    for (const auto& [i, tab] : tabOf) {
        EXPECT_EQ(pageOf(cmd(i)), tab) << i;
        EXPECT_EQ(cmd(i)->text(), frm.cmdServices[i].caption) << i;
    }
    EXPECT_EQ(find<QCheckBox>("ckClearItem")->text(), "Do not clear Category when Saving");
    EXPECT_EQ(find<ClickableImage>("Image1")->toolTip(), "Toggles Tab  >");
    EXPECT_EQ(box("txtCost")->accessibleName(), "Cost per Unit (what you pay)");
    EXPECT_EQ(box("txtLaborRate(2)")->accessibleName(), "Hourly Rate 3");
}

TEST_F(ServicesViewTest, EachTabLooksUsable) {
    open();
    for (int tab = 0; tab < 5; ++tab) {
        pickTab(tab);
        EXPECT_EQ(frm.tabServices.Tab, tab);
        EXPECT_EQ(cmd(24)->isVisible(), tab == 1 || tab == 3);
        EXPECT_EQ(cmd(16)->isVisible(), tab == 2);
        saveShot(*view, QStringLiteral("services-tab-%1").arg(tab));
    }
}

TEST_F(ServicesViewTest, AddingAServiceByTypingPuttingItInTheGridAndOnDiskAtMenu) {
    open();
    session.startup().Hide();
    EXPECT_FALSE(box("txtDescription(0)")->isEnabled());
    press(1);
    EXPECT_TRUE(box("txtDescription(0)")->isEnabled());
    type("txtDescription(0)", "Inspection");
    type("txtCharge(0)", "0.5"); // a leading zero is refused: ".5"
    EXPECT_EQ(box("txtCharge(0)")->text(), "$0.50");
    type("txtCharge(0)", "30");
    EXPECT_EQ(box("txtCharge(0)")->text(), "$30.00");
    find<QListWidget>("lstTime")->setCurrentRow(6);
    test::settle();
    saveShot(*view, "services-adding");
    press(4);
    EXPECT_EQ(cell("fgServices", 2, 0), "Inspection");
    EXPECT_EQ(cell("fgServices", 2, 1), "$30.00");
    EXPECT_EQ(cell("fgServices", 2, 2), "1:30");
    EXPECT_FALSE(box("txtDescription(0)")->isEnabled());
    EXPECT_TRUE(cmd(3)->isEnabled());

    press(0);
    EXPECT_FALSE(view->isVisible());
    EXPECT_TRUE(session.startup().isVisible());
    EXPECT_EQ(t.readBytes("/Services.txt").size(), 3 * ServiceRecord::kLength);
    EXPECT_EQ(session.catalogueLists.frmCreate.lstServices.items.last(), "Inspection");
}

TEST_F(ServicesViewTest, ModifyingAServiceChangesItsRow) {
    open();
    clickRow("fgServices", 0);
    EXPECT_TRUE(cmd(2)->isEnabled());
    EXPECT_FALSE(cmd(3)->isEnabled()); // on this tab Modify waits for a save
    frm.cmdServices[3].enabled = true; // as after an earlier save
    view->binder().sync();
    press(3);
    EXPECT_FALSE(find<QTableWidget>("fgServices")->isEnabled());
    EXPECT_EQ(box("txtDescription(0)")->text(), "Tune Up");
    type("txtCharge(0)", "49.95");
    press(4);
    EXPECT_TRUE(find<QTableWidget>("fgServices")->isEnabled());
    EXPECT_EQ(cell("fgServices", 0, 1), "$49.95");
    EXPECT_EQ(cell("fgServices", 0, 2), "1:00");
}

TEST_F(ServicesViewTest, DeletingAServiceAsksAndRewritesTheFile) {
    open();
    clickRow("fgServices", 1);
    fake.dialogs.expect("Delete Service Item", "This will DELETE the Selected Service", vbYes);
    press(2);
    fake.dialogs.verify();
    EXPECT_EQ(find<QTableWidget>("fgServices")->rowCount(), 1);
    EXPECT_EQ(t.readBytes("/Services.txt"), (ServiceRecord{"Tune Up", "$45.00", 4}.toRecord().bytes()));
    EXPECT_FALSE(cmd(2)->isEnabled());
}

TEST_F(ServicesViewTest, AddingModifyingAndDeletingInventoriedItems) {
    open();
    pickTab(1);
    press(8);
    type("txtDescription(1)", "Hose");
    test::typeText(find<QComboBox>("cboCategory")->lineEdit(), "Plumbing");
    type("txtCost", "2");
    type("txtCharge(1)", "5");
    type("txtCharge(2)", ""); // left blank: takes the sell price
    EXPECT_EQ(box("txtCharge(2)")->text(), "$5.00");
    type("txtOnHand", "9");
    saveShot(*view, "items-adding");
    press(13);
    EXPECT_EQ(cell("fgItems", 2, 0), "Hose");
    EXPECT_EQ(cell("fgItems", 2, 1), "Plumbing");
    EXPECT_EQ(cell("fgItems", 2, 2), "$2.00");
    EXPECT_EQ(cell("fgItems", 2, 5), "$5.00");
    EXPECT_EQ(cell("fgItems", 2, 7), "0");
    EXPECT_EQ(find<QComboBox>("cboCategory")->count(), 3);

    clickRow("fgItems", 1);
    press(9);
    EXPECT_EQ(box("txtDescription(1)")->text(), "Belt");
    type("txtOnHand", "30");
    press(13);
    EXPECT_EQ(cell("fgItems", 1, 4), "30");

    clickRow("fgItems", 0);
    fake.dialogs.expect("Delete Sales Item", "This will DELETE the Selected Sales Item", vbYes);
    press(10);
    fake.dialogs.verify();
    EXPECT_EQ(find<QTableWidget>("fgItems")->rowCount(), 2);
    EXPECT_EQ(cell("fgItems", 0, 0), "Belt");
    EXPECT_EQ(t.readBytes("/OIInventoriedItems.txt").size(), 2 * InventoriedItemRecord::kLength);
    EXPECT_EQ(session.catalogueLists.frmCreate.cboItems.items.mid(0, 2), (QStringList{"Belt", "Hose"}));
}

TEST_F(ServicesViewTest, AddingModifyingAndDeletingCustomItems) {
    open();
    pickTab(3);
    press(18);
    type("txtDescription(2)", "Shelf");
    type("txtCharge(3)", "80");
    type("txtCharge(4)", "70");
    type("txtCustomDiscItems", "5");
    press(22);
    EXPECT_EQ(cell("fgCustom", 2, 0), "Shelf");
    EXPECT_EQ(cell("fgCustom", 2, 1), "$80.00");
    EXPECT_EQ(cell("fgCustom", 2, 3), "5");

    clickRow("fgCustom", 0);
    press(19);
    press(25);
    EXPECT_EQ(box("txtCustomDiscItems")->text(), "0");
    press(22);
    EXPECT_EQ(cell("fgCustom", 0, 3), "0");
    EXPECT_EQ(cell("fgCustom", 0, 2), "$0.00");

    clickRow("fgCustom", 1);
    fake.dialogs.expect("Delete Sales Item", "This will DELETE the Selected Custom Item", vbYes);
    press(20);
    fake.dialogs.verify();
    EXPECT_EQ(find<QTableWidget>("fgCustom")->rowCount(), 2);
    EXPECT_EQ(t.readBytes("/CustomItems.txt").size(), 2 * CustomItemRecord::kLength);
}

TEST_F(ServicesViewTest, LaborRatesAreTypedAndSavedAndTheServicesTabComesBack) {
    open(false);
    test::click(find<ClickableImage>("Image1"));
    test::click(find<ClickableImage>("Image1"));
    test::settle();
    ASSERT_EQ(view->tabs()->currentIndex(), 2);
    press(12);
    EXPECT_EQ(box("txtLabor(0)")->text(), "General Labor");
    type("txtLaborRate(0)", "65");
    EXPECT_EQ(box("txtLaborRate(0)")->text(), "$65.00");
    type("txtLabor(1)", "Helper");
    fake.dialogs.expect("", "Labor Rate must be greater than Zero");
    type("txtLaborRate(1)", "");
    fake.dialogs.verify();
    type("txtLaborRate(1)", "30");
    saveShot(*view, "labor-typed");
    press(17);
    EXPECT_EQ(t.readBytes("/Labor.txt"), QByteArray("\"General Labor\",\"$65.00\"\r\n"
                                                    "\"Helper\",\"$30.00\"\r\n"
                                                    "\"\",\"\"\r\n"));
    EXPECT_EQ(view->tabs()->currentIndex(), 0);
}

TEST_F(ServicesViewTest, ClosingByTheFrameSavesTheCatalogueAndRatesThenEndsTheProgram) {
    open(false);
    press(1);
    type("txtDescription(0)", "Tune Up");
    type("txtCharge(0)", "45");
    find<QListWidget>("lstTime")->setCurrentRow(4);
    test::settle();
    press(4);
    QCloseEvent e;
    QSpontaneKeyEvent::setSpontaneous(&e);
    QCoreApplication::instance()->notify(view.get(), &e);
    test::settle();
    EXPECT_EQ(ended, 1);
    EXPECT_TRUE(session.hasEnded());
    EXPECT_EQ(t.readBytes("/Services.txt"), (ServiceRecord{"Tune Up", "$45.00", 4}.toRecord().bytes()));
    EXPECT_EQ(t.readBytes("/Labor.txt"), QByteArray("\"General Labor\",\"$0.00\"\r\n"
                                                    "\"\",\"$0.00\"\r\n"
                                                    "\"\",\"$0.00\"\r\n"));
}
