#include "views/InvoiceView.h"
#include "CatalogueSamples.h"
#include "FakePlatform.h"
#include "Screenshot.h"
#include "TestDataRoot.h"
#include "UiEvents.h"
#include "catalogue/LaborRates.h"
#include "catalogue/ServiceRecord.h"
#include "catalogue/frmServices.h"
#include "invoicing/frmInvoice.h"
#include "setup/frmSetup.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;
using ostrel::test::FakePlatform;
using ostrel::test::saveShot;
using ostrel::test::TestDataRoot;

namespace {

struct InvoiceViewTest : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmSetup& setup = session.AddScreen(ScreenId::frmSetup, std::make_unique<frmSetup>(session));
    frmServices& services =
        session.AddScreen(ScreenId::frmServices, std::make_unique<frmServices>(session, session.catalogueLists));
    frmInvoice& frm =
        session.AddScreen(ScreenId::frmInvoice, std::make_unique<frmInvoice>(session, session.catalogueLists));
    std::unique_ptr<InvoiceView> view;

    void SetUp() override {
        session.RegisterScreen(ScreenId::frmStartup, session.startup());
        session.endProcess = [] {};
    }

    void open() {
        t.writeBytes("/Services.txt", ServiceRecord{"Tune Up", "$45.00", 4}.toRecord().bytes() +
                                          ServiceRecord{"Full Service", "$120.00", 8}.toRecord().bytes());
        t.writeBytes("/OIInventoriedItems.txt", test::item("Air Filter", "Parts").toRecord().bytes() +
                                                    test::item("Belt", "Belts").toRecord().bytes());
        t.writeBytes("/CustomItems.txt", test::custom("Mounting Bracket").toRecord().bytes());
        TextWriter labor;
        labor.write({QStringLiteral("General Labor"), QStringLiteral("$85.00")});
        labor.write({QStringLiteral("Apprentice"), QStringLiteral("$45.00")});
        labor.write({QString(), QString()});
        t.disk().ReplaceTextFile(kLaborFileName, labor);
        view = std::make_unique<InvoiceView>(session, frm);
        services.Load();
        frm.Show();
        Binder::syncAll();
        view->resize(1100, 780);
        test::settle();
    }

    template <typename W> W* find(const QString& name) {
        W* w = view->findChild<W*>(name);
        EXPECT_NE(w, nullptr) << name.toStdString();
        return w;
    }
    void press(const QString& name) {
        auto* b = find<QPushButton>(name);
        ASSERT_TRUE(b->isEnabled()) << name.toStdString();
        ASSERT_TRUE(b->isVisible()) << name.toStdString();
        b->click();
        test::settle();
    }
    void menu(const char* name) {
        find<QAction>(QLatin1String(name))->trigger();
        test::settle();
    }
    void type(const QString& name, const QString& text) {
        auto* e = find<QLineEdit>(name);
        test::focusIn(e);
        test::settle();
        test::typeText(e, text);
        test::focusOut(e);
        test::settle();
    }
    QString cell(int row, int col) {
        QTableWidgetItem* i = find<QTableWidget>("fgInvoice")->item(row - 1, col);
        return i ? i->text() : QString();
    }
};

} // namespace

TEST_F(InvoiceViewTest, EveryControlHasAWidgetWithItsCaptionAndAName) {
    open();
    EXPECT_TRUE(view->binder().unboundControls().isEmpty())
        << view->binder().unboundControls().join(", ").toStdString();
    EXPECT_EQ(view->windowTitle(), "Invoice Creation");
    EXPECT_EQ(find<QGroupBox>("fraSetup")->title(), "Invoice Setup");
    EXPECT_TRUE(find<QGroupBox>("fraSetup")->isVisible());
    EXPECT_EQ(find<QLineEdit>("txtInvoiceNo")->text(), "20260001");
    EXPECT_EQ(find<QPushButton>("cmdInvoice(9)")->text(), "&Finalize Invoice");
    EXPECT_EQ(find<QCheckBox>("ckExempt")->text(), "Account is Tax Exempt");
    EXPECT_EQ(find<QLineEdit>("txtReference")->accessibleName(), "Reference");
    EXPECT_EQ(find<QLineEdit>("txtHours(0)")->accessibleName(), "General Labor at $85.00 per Hour");
    EXPECT_EQ(find<QTableWidget>("fgInvoice")->rowCount(), 100);
    EXPECT_EQ(find<QTableWidget>("fgInvoice")->columnCount(), 6);
    saveShot(*view, "invoice-setup");
}

TEST_F(InvoiceViewTest, AnInvoiceIsComposedThroughTheWindowsAndFinalized) {
    session.settings.tax.cboRate1 = QStringLiteral("8.25");
    open();
    press("cmdInvoice(0)");
    EXPECT_FALSE(find<QGroupBox>("fraSetup")->isVisible());
    EXPECT_TRUE(find<QGroupBox>("fraInstructions(1)")->isVisible());

    menu("mnuItems");
    EXPECT_TRUE(find<QGroupBox>("fraItems")->isVisible());
    auto* items = find<QComboBox>("cboDescription(1)");
    items->setCurrentIndex(0);
    Q_EMIT items->activated(0);
    test::settle();
    EXPECT_EQ(find<QComboBox>("cboPrice(1)")->currentText(), "$12.50");
    type("txtUnits", "2");
    saveShot(*view, "invoice-items");
    press("cmdPost(1)");
    EXPECT_EQ(cell(1, 0), "2");
    EXPECT_EQ(cell(1, 1), "Air Filter");
    EXPECT_EQ(cell(1, 4), "$25.00");

    menu("mnuLabor");
    EXPECT_TRUE(find<QGroupBox>("fraLabor")->isVisible());
    type("txtHours(0)", "1.5");
    EXPECT_EQ(find<QLabel>("lblLaborCharge(0)")->text(), "$127.50");
    press("cmdLabor(0)");
    saveShot(*view, "invoice-labor");
    press("cmdLabor(1)");
    EXPECT_EQ(cell(2, 0), "1.5 Hrs");
    EXPECT_TRUE(find<QGroupBox>("fraServices")->isVisible());
    saveShot(*view, "invoice-services");

    press("cmdPrint");
    EXPECT_TRUE(find<QGroupBox>("fraPrintReady")->isVisible());
    EXPECT_EQ(find<QGroupBox>("fraPrintReady")->title(), "Insert Standard Paper");
    press("cmdInvoice(9)");
    EXPECT_EQ(find<QLineEdit>("txtTotal")->text(), "$152.50");
    EXPECT_EQ(find<QLineEdit>("txtTax")->text(), "$2.06");
    EXPECT_EQ(find<QLineEdit>("txtGrandTotal")->text(), "$154.56");
    EXPECT_TRUE(find<QPushButton>("cmdInvoiceContinue")->isEnabled());
    saveShot(*view, "invoice-print");
}

TEST_F(InvoiceViewTest, ARightClickOnALineOffersItsDeletion) {
    open();
    press("cmdInvoice(0)");
    menu("mnuServices");
    auto* serviceList = find<QComboBox>("cboDescription(0)");
    serviceList->setCurrentIndex(1);
    Q_EMIT serviceList->activated(1);
    test::settle();
    press("cmdPost(0)");
    ASSERT_EQ(cell(1, 1), "Full Service");
    auto* grid = find<QTableWidget>("fgInvoice");
    grid->setCurrentCell(0, 1);
    test::settle();
    fake.dialogs.expect("Item Deletion", "Delete item Full Service from Invoice?", vbYes);
    Q_EMIT grid->customContextMenuRequested(grid->visualItemRect(grid->item(0, 1)).center());
    test::settle();
    find<QAction>("mnuDeleteItem")->trigger();
    test::settle();
    fake.dialogs.verify();
    EXPECT_EQ(frm.LineCount, 0);
    EXPECT_EQ(cell(1, 1), "");
}
