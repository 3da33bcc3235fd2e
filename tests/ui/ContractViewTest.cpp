#include "views/ContractView.h"
#include "Screenshot.h"
#include "FakePlatform.h"
#include "ShippedData.h"
#include "TestDataRoot.h"
#include "UiEvents.h"
#include "accounts/frmNewCustomer.h"
#include "contracts/frmContract.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"

#include <QCalendarWidget>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTextBrowser>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;
using namespace ostrel::test;

namespace {

struct ContractViewTest : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmNewCustomer& account =
        session.AddScreen(ScreenId::frmNewCustomer, std::make_unique<frmNewCustomer>(session, session.customer));
    frmContract& frm = session.AddScreen(ScreenId::frmContract, std::make_unique<frmContract>(session));
    std::unique_ptr<ContractView> view;

    void SetUp() override {
        session.RegisterScreen(ScreenId::frmStartup, session.startup());
        session.endProcess = [] {};
        fake.clock.set(QDate(2026, 11, 23), QTime(10, 0));
        session.settings.business.txtBusiness = {"Prairie Comfort Heating", "1207 Wabash Ave", "", "Springfield",
                                                 "IL", "62704", "217-555-0142", "", ""};
        t.writeBytes("/GenericContract.rtf", shippedDataFile("GenericContract.rtf"));
        t.makeDir("/Templates/Contracts");
        account.txtCustomer[0].text = "A-77";
        account.txtCustomer[1].text = "Lakeview Dental";
        account.txtCustomer[2].text = "400 Lake Shore Dr";
        account.txtCustomer[5].text = "62521";
        account.txtCustomer[6].text = "217-555-0100";
        account.cboCity.text = "Decatur";
        account.cboStates.text = "IL";
        view = std::make_unique<ContractView>(session, frm);
        frm.Show();
        Binder::syncAll();
        view->resize(1180, 760);
        settle();
    }

    template <typename W> W* find(const QString& name) {
        W* w = view->findChild<W*>(name);
        EXPECT_NE(w, nullptr) << name.toStdString();
        return w;
    }
};

} // namespace

TEST_F(ContractViewTest, EveryControlHasItsWidgetWithCaptionAndAccessibleName) {
    EXPECT_TRUE(view->binder().unboundControls().isEmpty()) << view->binder().unboundControls().join(", ").toStdString();
    EXPECT_EQ("Contract Creation Form", view->windowTitle());
    EXPECT_EQ("Build a New Contract", find<QPushButton>("cmdGeneric")->text());
    EXPECT_EQ("Create Contract", find<QPushButton>("cmdAddServicetoBody")->text());
    EXPECT_FALSE(find<QPushButton>("cmdAddServicetoBody")->isEnabled());
    EXPECT_EQ("&Redo", find<QPushButton>("Command2")->text());
    EXPECT_EQ("Return to the &Menu", find<QPushButton>("cmdMenu")->text());
    EXPECT_EQ("Create Manually", find<QGroupBox>("fraManual")->title());
    EXPECT_EQ("Select Billing Frequency", find<QListWidget>("lstFrequency")->accessibleName());
    EXPECT_EQ("Select the Contract Duration", find<QComboBox>("cboDuration")->accessibleName());
    EXPECT_EQ("Enter the Price", find<QLineEdit>("txtPrice")->accessibleName());
    EXPECT_EQ("Lakeview Dental", find<QLabel>("lblCustomerName")->text());
    EXPECT_EQ(QDate(2026, 11, 23), find<QCalendarWidget>("Calendar1")->selectedDate());
    for (QWidget* w : view->findChildren<QWidget*>()) {
        if (!w->isVisibleTo(view.get()) || w->objectName().isEmpty()) continue;
        if (!qobject_cast<QPushButton*>(w) && !qobject_cast<QLineEdit*>(w) && !qobject_cast<QComboBox*>(w) &&
            !qobject_cast<QListWidget*>(w))
            continue;
        EXPECT_FALSE(w->accessibleName().isEmpty()) << w->objectName().toStdString();
    }
    saveShot(*view, "contract-entry");
}

TEST_F(ContractViewTest, BuildShowsTheTemplateAsFormattedTextAndCreateStoresTheContract) {
    click(find<QPushButton>("cmdGeneric"));
    settle();
    QTextBrowser* body = find<QTextBrowser>("txtBody");
    EXPECT_TRUE(body->toPlainText().contains("Service Agreement"));
    EXPECT_TRUE(body->toPlainText().contains("UNDERSIGNEDCUSTOMER"));
    EXPECT_FALSE(body->toPlainText().contains("\\par"));
    EXPECT_TRUE(find<QPushButton>("cmdAddServicetoBody")->isEnabled());
    saveShot(*view, "contract-template");

    auto* service = find<QLineEdit>("txtService");
    focusIn(service);
    typeText(service, "Furnace Tune-up");
    auto* price = find<QLineEdit>("txtPrice");
    focusIn(price);
    settle();
    EXPECT_EQ("", price->text());
    typeText(price, "89");
    focusOut(price);
    settle();
    EXPECT_EQ("$89.00", price->text());
    find<QListWidget>("lstFrequency")->setCurrentRow(0);
    click(find<QListWidget>("lstFrequency")->viewport(),
          find<QListWidget>("lstFrequency")->visualItemRect(find<QListWidget>("lstFrequency")->item(0)).center());
    fake.dialogs.expect("Contract Created",
                        "The Contract has been Created\nYou can modify and Print it Using MicroSoft Word or WordPad\n"
                        "It is named Contract - A-77.rtf and is Located in \nDirectory {Hard Drive}/Norlavex/"
                        "Templates/Contracts\nDo not create another Contract for this Customer\nuntil you have "
                        "printed this Contract");
    click(find<QPushButton>("cmdAddServicetoBody"));
    settle();
    EXPECT_TRUE(t.isFile("/Templates/Contracts/Contract - A-77.rtf"));
    EXPECT_TRUE(body->toPlainText().contains("Lakeview Dental"));
    EXPECT_TRUE(body->toPlainText().contains("Furnace Tune-up - $89.00"));
    EXPECT_TRUE(body->toPlainText().contains("billed Monthly"));
    EXPECT_FALSE(body->toPlainText().contains("UNDERSIGNEDCUSTOMER"));
    EXPECT_FALSE(find<QPushButton>("cmdAddServicetoBody")->isEnabled());
    fake.dialogs.verify();
    saveShot(*view, "contract-merged");
}
