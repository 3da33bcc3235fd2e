#include "views/SetupView.h"
#include "Screenshot.h"
#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "UiEvents.h"
#include "app/Application.h"
#include "setup/frmSetup.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"
#include "views/StartupView.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;
using ostrel::test::FakePlatform;
using ostrel::test::TestDataRoot;

using ostrel::test::saveShot;

namespace {

struct SetupViews : ::testing::Test {
    SetupViews() { InitResources(); }
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmSetup& setup = session.AddScreen(ScreenId::frmSetup, std::make_unique<frmSetup>(session));
    std::unique_ptr<SetupView> view;
    std::unique_ptr<StartupView> menu;

    void start() {
        ASSERT_EQ(session.Main(), Session::StartResult::Running);
        view = std::make_unique<SetupView>(session, setup);
        menu = std::make_unique<StartupView>(session, session.startup());
        setup.Show();
        Binder::syncAll();
        test::settle();
    }
    template <typename W> W* find(const QString& name) {
        W* w = view->findChild<W*>(name);
        EXPECT_NE(w, nullptr) << name.toStdString();
        return w;
    }
    // After a call straight into the screen, as the binder does after an event.
    void refresh() {
        view->pushExtras();
        Binder::syncAll();
        test::settle();
    }
    QTabWidget* strip(const char* name) { return find<QTabWidget>(QString::fromLatin1(name)); }
    void writeLogoPicture() {
        QImage picture(120, 60, QImage::Format_RGB32);
        picture.fill(QColor(30, 90, 160));
        ASSERT_TRUE(picture.save(t.full("/logo.png")));
        t.writeBytes("/CompanyLogo.txt", "\"" + t.full("/logo.png").toUtf8() + "\"\r\n");
        t.writeBytes("/LogoSettings.txt", "1440,720\r\n");
    }
};

} // namespace

TEST_F(SetupViews, EveryControlHasItsWidgetAndTheStripsCarryTheirCaptions) {
    start();
    EXPECT_TRUE(view->binder().unboundControls().isEmpty())
        << view->binder().unboundControls().join(", ").toStdString();
    EXPECT_EQ(view->windowTitle(), "Appointment Scheduker Setup");
    QTabWidget* info = strip("tabInfo");
    ASSERT_EQ(info->count(), 6);
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(info->tabText(i), setup.tabInfo.TabCaption[i]);
    ASSERT_EQ(strip("SSTab2")->count(), 3);
    EXPECT_EQ(strip("SSTab2")->tabText(2), "Work DayScheduling");
    ASSERT_EQ(strip("SSTab1")->count(), 4);
    EXPECT_EQ(strip("SSTab1")->tabText(2), "Phone and Modem");
    EXPECT_NE(find<QWidget>("UpDown1"), nullptr);
    EXPECT_NE(find<QWidget>("UpDown2"), nullptr);
    EXPECT_EQ(find<QPushButton>("cmdQuit")->text(), "&Save Settings / Return to Menu");
}

TEST_F(SetupViews, WithoutAModemThePhonePageCannotBeChosen) {
    start();
    EXPECT_FALSE(strip("SSTab1")->isTabEnabled(2));
    EXPECT_TRUE(strip("SSTab1")->isTabEnabled(3));
}

TEST_F(SetupViews, ChoosingThePointsOfServicePageResetsItsButtons) {
    start();
    strip("tabInfo")->setCurrentIndex(frmSetup::kPointsOfService);
    test::settle();
    EXPECT_EQ(setup.tabInfo.Tab, frmSetup::kPointsOfService);
    EXPECT_TRUE(find<QPushButton>("cmdSave")->isEnabled());
    EXPECT_FALSE(find<QPushButton>("cmdChange(3)")->isEnabled());
    EXPECT_FALSE(find<QPushButton>("cmdDelete")->isEnabled());
}

TEST_F(SetupViews, TypingANameAndClickingAddPutsItInTheList) {
    start();
    strip("tabInfo")->setCurrentIndex(frmSetup::kPointsOfService);
    test::settle();
    auto* list = find<QComboBox>("cboAssignments");
    list->setFocus();
    test::typeText(list->lineEdit(), "Crew One");
    test::click(find<QPushButton>("cmdSave"));
    test::settle();
    EXPECT_EQ(list->count(), 1);
    EXPECT_EQ(list->itemText(0), "Crew One");
    EXPECT_EQ(list->currentText(), "");
    EXPECT_EQ(t.readBytes("/ServiceAreas.txt"), "\"Crew One\"\r\n");
}

TEST_F(SetupViews, TheAddressButtonResizesTheStateBox) {
    start();
    auto* state = find<QLineEdit>("txtBusiness(4)");
    const int usaWidth = state->width();
    EXPECT_EQ(state->maxLength(), 2);
    test::click(find<QPushButton>("cmdAddress"));
    test::settle();
    EXPECT_EQ(find<QPushButton>("cmdAddress")->text(), "International Style Address");
    EXPECT_EQ(state->maxLength(), 55);
    EXPECT_GT(state->width(), usaWidth * 5);
    EXPECT_FALSE(find<QLineEdit>("txtBusiness(5)")->isEnabled());
    EXPECT_EQ(find<QLabel>("lblAddress(3)")->text(), "Address 3");
}

TEST_F(SetupViews, TheUpDownArrowsResizeThePrintedSample) {
    writeLogoPicture();
    start();
    auto* sample = find<QLabel>("Image3");
    EXPECT_EQ(sample->width(), 96);
    EXPECT_EQ(sample->height(), 48);
    test::click(find<QToolButton>("UpDown2Up"));
    test::click(find<QToolButton>("UpDown1Down"));
    test::settle();
    EXPECT_EQ(setup.Image3.Width, 1490);
    EXPECT_EQ(setup.Image3.Height, 670);
    EXPECT_EQ(sample->width(), 99);
    EXPECT_EQ(sample->height(), 45);
}

TEST_F(SetupViews, TheStepImageMovesTheOuterStrip) {
    start();
    test::click(find<QLabel>("Image1(0)"));
    test::settle();
    EXPECT_EQ(strip("tabInfo")->currentIndex(), frmSetup::kSetupHelp);
}

TEST_F(SetupViews, SavingFromTheWindowShowsTheMenu) {
    start();
    test::typeText(find<QLineEdit>("txtBusiness(0)"), "Prairie Comfort");
    test::typeText(find<QLineEdit>("txtBusiness(6)"), "217-555-0142");
    test::click(find<QPushButton>("cmdQuit"));
    test::settle();
    EXPECT_FALSE(view->isVisible());
    EXPECT_TRUE(menu->isVisible());
    EXPECT_TRUE(t.isFile("/MyBusinessData.txt"));
}

TEST_F(SetupViews, EveryPageOfEveryStripCanBeLookedAt) {
    writeLogoPicture();
    t.writeBytes("/MyBusinessData.txt",
                 "\"Prairie Comfort Heating & Air\",\"1207 Wabash Ave\",\"Suite B\","
                 "\"Springfield\",\"IL\",\"62704\",\"217-555-0142\",\"www.example.com\",\"\"\r\n");
    t.writeBytes("/ServiceAreas.txt", "\"Crew One\"\r\n\"Crew Two\"\r\n");
    fake.serialMachine.attach(3, ostrel::test::ScriptedDevice::modem());
    start();
    view->resize(960, 660);
    const QStringList info = {"BusinessInfo", "SetupHelp",       "Options",
                              "Logo",         "PointsOfService", "Operations"};
    for (int i = 0; i < info.size(); ++i) {
        setup.tabInfo_Click(i);
        refresh();
        EXPECT_EQ(strip("tabInfo")->currentIndex(), i);
        if (i == frmSetup::kLogo) {
            EXPECT_EQ(find<QLabel>("Label2(2)")->text(), "Prairie Comfort Heating & Air");
        }
        saveShot(*view, QStringLiteral("setup-%1-%2").arg(i).arg(info[i]));
    }
    setup.tabInfo_Click(frmSetup::kOptions);
    const QStringList options = {"WorkOrders", "InvoiceOptions", "WorkDayScheduling"};
    for (int i = 0; i < options.size(); ++i) {
        setup.SSTab2_Click(i);
        refresh();
        EXPECT_EQ(strip("SSTab2")->currentIndex(), i);
        saveShot(*view, QStringLiteral("setup-2-%1-%2").arg(i).arg(options[i]));
    }
    setup.tabInfo_Click(frmSetup::kOperations);
    const QStringList operations = {"Printing", "Taxation", "PhoneAndModem", "Assistance"};
    for (int i = 0; i < operations.size(); ++i) {
        setup.SSTab1_Click(i);
        refresh();
        EXPECT_EQ(strip("SSTab1")->currentIndex(), i);
        saveShot(*view, QStringLiteral("setup-5-%1-%2").arg(i).arg(operations[i]));
    }
    setup.SSTab1_Click(frmSetup::kTaxation);
    test::click(find<QPushButton>("cmdGraduatedTax(0)"));
    test::settle();
    EXPECT_TRUE(find<QGroupBox>("fraGraduated")->isVisible());
    saveShot(*view, QStringLiteral("setup-5-1-TaxationGraduated"));

    setup.tabInfo_Click(frmSetup::kOptions);
    setup.SSTab2_Click(frmSetup::kWorkOrders);
    setup.tabInfo_Click(frmSetup::kBusinessInfo);
    refresh();
    test::click(find<QRadioButton>("optBusinessType(1)"));
    setup.tabInfo_Click(frmSetup::kOptions);
    refresh();
    EXPECT_FALSE(find<QGroupBox>("fraWorkOrders")->isVisible());
    EXPECT_TRUE(find<QLabel>("Label3(1)")->isVisible());
    saveShot(*view, QStringLiteral("setup-2-0-WorkOrdersAssociateStyle"));
}
