#include "views/NewCustomerView.h"
#include "Screenshot.h"
#include "../core/frmNewCustomerTestFixture.h"
#include "UiEvents.h"
#include "app/Application.h"
#include "binder/ClickableImage.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QWheelEvent>

#include <cstdio>

using namespace ostrel;
using namespace ostrel::ui;
using ostrel::test::Business;
using ostrel::test::Person;

using ostrel::test::saveShot;

namespace {

struct NewCustomerViews : ostrel::test::AccountScreenFixture {
    NewCustomerViews() { InitResources(); }
    NewCustomerView view{session, frm};

    template <typename W> W* find(const QString& name) {
        W* w = view.findChild<W*>(name);
        EXPECT_NE(w, nullptr) << name.toStdString();
        return w;
    }
    QLineEdit* box(int i) { return find<QLineEdit>(QStringLiteral("txtCustomer(%1)").arg(i)); }
    QPushButton* button(const QString& name) { return find<QPushButton>(name); }
    void show(qint16 routine = 7) {
        open(routine);
        test::settle();
    }
    void writeShop() {
        CustomerRecord smithson = Person("1001", "Ann", "SMITHSON", "217-555-0001");
        smithson.SetTitle(u"Ms");
        writeCustomers({smithson, Person("1002", "Bob", "Jones", "217-555-0002"),
                        Business("1003", "Smith Plumbing"),
                        Person("1004", "Cy", "Goldsmith", "217-555-0004")});
    }
};

} // namespace

TEST_F(NewCustomerViews, EveryControlHasItsWidgetAndCaption) {
    EXPECT_TRUE(view.binder().unboundControls().isEmpty())
        << view.binder().unboundControls().join(", ").toStdString();
    writeShop();
    show();
    EXPECT_TRUE(view.isVisible());
    EXPECT_EQ(view.windowTitle(), "Managing Accounts");
    EXPECT_EQ(button("cmdCustomer(1)")->text(), "Select this &Account and Start  Routine");
    EXPECT_EQ(button("cmdNav(4)")->toolTip(), "Goes  1/4 into Customer Records");
    EXPECT_EQ(find<QLabel>("lbLType")->text(), "Individual");
    EXPECT_EQ(box(6)->toolTip(), "Enter telephone Number with Area Code FIRST (as AAA-EEE-NNNN)");
    EXPECT_EQ(box(6)->accessibleName(), "Telephone");
    EXPECT_EQ(find<QAction>("mnuPrint")->text(), "View Customer List");
    EXPECT_FALSE(find<QGroupBox>("fraAux")->isVisible());
    EXPECT_FALSE(button("cmdCustomer(13)")->isVisible());
}

TEST_F(NewCustomerViews, AddingACustomerThroughTheWidgets) {
    writeShop();
    show();
    button("cmdNew")->click();
    test::settle();
    EXPECT_EQ(view.windowTitle(), "Account Information for Customer No 5");
    EXPECT_TRUE(button("cmdCustomer(13)")->isVisible());
    EXPECT_FALSE(find<QAction>("mnuAdd")->isEnabled());
    EXPECT_TRUE(box(0)->text().isEmpty());
    test::typeText(box(0), "2001");
    test::typeText(box(8), "Dee");
    test::typeText(box(10), "Dale");
    test::typeText(box(6), "217-555-0123");
    button("cmdNav(0)")->click();
    test::settle();
    ASSERT_EQ(countOnDisk(), 5);
    EXPECT_EQ(recordOnDisk(5).AccountNumber().trimmed(), "2001");
    EXPECT_EQ(recordOnDisk(5).Telephone().trimmed(), "217-555-0123");
    EXPECT_EQ(box(0)->text(), "1001");
    fake.dialogs.verify();
}

TEST_F(NewCustomerViews, FindingANameInTheListByTypingAndLeavingIt) {
    writeShop();
    show();
    button("Command1(1)")->click();
    test::settle();
    auto* list = find<QComboBox>("cboAccounts");
    ASSERT_TRUE(list->isVisible());
    EXPECT_FALSE(box(8)->isVisible());
    EXPECT_EQ(list->count(), 4);
    test::typeText(list, "jo");
    test::settle();
    EXPECT_EQ(list->currentText(), "jones, Bob  ");
    EXPECT_EQ(list->lineEdit()->selectedText(), "nes, Bob  ");
    saveShot(view, "account-name-list");
    // A Backspace removes the completed tail and is not completed again.
    test::typeKey(list, Qt::Key_Backspace, QStringLiteral("\b"));
    test::settle();
    EXPECT_EQ(list->currentText(), "jo");
    test::typeText(list, "n");
    test::settle();
    EXPECT_EQ(list->currentText(), "jon" + QStringLiteral("es, Bob  "));
    test::focusOut(list);
    test::settle();
    EXPECT_FALSE(list->isVisible());
    EXPECT_EQ(frm.CurrentRecord, 2);
    EXPECT_EQ(box(8)->text(), "Bob");
    EXPECT_TRUE(box(8)->isVisible());
}

TEST_F(NewCustomerViews, ChoosingANameFromTheOpenList) {
    writeShop();
    show();
    button("Command1(1)")->click();
    test::settle();
    auto* list = find<QComboBox>("cboAccounts");
    const int i = list->findText("Smith Plumbing");
    ASSERT_GE(i, 0);
    list->setCurrentIndex(i);
    Q_EMIT list->activated(i);
    test::settle();
    EXPECT_EQ(frm.CurrentRecord, 3);
    EXPECT_EQ(box(1)->text(), "Smith Plumbing");
    EXPECT_TRUE(box(1)->isVisible());
    EXPECT_EQ(find<QLabel>("lbLType")->text(), "Business");
}

TEST_F(NewCustomerViews, ACriteriaSearchWithSeveralHitsListsThemAndLoadsTheOneChosen) {
    writeShop();
    show();
    button("Command1(0)")->click();
    test::settle();
    ASSERT_TRUE(find<QGroupBox>("fraSearch")->isVisible());
    find<QRadioButton>("optSearch(7)")->click();
    test::settle();
    test::typeText(find<QLineEdit>("txtSearchfor"), "smith");
    saveShot(view, "account-search-criteria");
    button("cmdStartSearch")->click();
    test::settle();
    auto* found = find<QGroupBox>("fraCustomersFound");
    ASSERT_TRUE(found->isVisible());
    EXPECT_EQ(found->title(), "Customers Search by Name Results");
    EXPECT_FALSE(find<QGroupBox>("fraSearch")->isVisible());
    auto* grid = find<QTableWidget>("fgCustomersFound");
    ASSERT_EQ(grid->rowCount(), 2);
    EXPECT_EQ(grid->horizontalHeaderItem(0)->text(), "Name");
    EXPECT_EQ(grid->item(0, 0)->text(), "Ms Ann SMITHSON");
    EXPECT_EQ(grid->item(1, 0)->text(), "Mr. Cy Goldsmith");
    EXPECT_EQ(grid->item(1, 2)->text(), "4");
    saveShot(view, "account-search-results");

    grid->setCurrentCell(1, 0);
    Q_EMIT grid->cellClicked(1, 0);
    test::settle();
    EXPECT_TRUE(view.popupMenu()->isVisible());
    find<QAction>("mnuSelect")->trigger();
    view.popupMenu()->hide();
    test::settle();
    EXPECT_EQ(frm.CurrentRecord, 4);
    EXPECT_EQ(box(10)->text(), "Goldsmith");
    EXPECT_FALSE(found->isVisible());
}

TEST_F(NewCustomerViews, DeletingTheCustomerShown) {
    writeShop();
    t.writeBytes("/OIActiveAccounts/1002.txt", "balance\r\n");
    show();
    button("cmdNav(2)")->click();
    test::settle();
    ASSERT_EQ(box(0)->text(), "1002");
    fake.dialogs.expect("", "Delete this Customer", vbYesNo, vbYes);
    find<QAction>("mnuDelete")->trigger();
    test::settle();
    fake.dialogs.verify();
    EXPECT_EQ(countOnDisk(), 3);
    EXPECT_FALSE(t.isFile("/OIActiveAccounts/1002.txt"));
    EXPECT_EQ(box(0)->text(), "1001");
    auto* list = find<QComboBox>("cboAccounts");
    EXPECT_EQ(list->findText("Jones, Bob  "), -1);
    EXPECT_EQ(list->count(), 3);
}

TEST_F(NewCustomerViews, PastedTextBringsNoQuoteAndNoFileNameCharacterIntoTheAccountNumber) {
    writeShop();
    show();
    QLineEdit* account = box(0);
    account->setFocus();
    account->clear();
    test::settle();
    QApplication::clipboard()->setText(QStringLiteral("AB\"CD"));
    account->paste();
    test::settle();
    EXPECT_BOX(fake.dialogs, "Invalid Key entry", "This character, (\") is invalid for this field");
    EXPECT_EQ(account->text(), "AB");
    QApplication::clipboard()->setText(QStringLiteral("X/Y?Z"));
    account->paste();
    test::settle();
    EXPECT_BOX(fake.dialogs, "Invalid Key entry", "This character, (/) is invalid for this field");
    EXPECT_EQ(account->text(), "ABX");
    EXPECT_EQ(frm.txtCustomer[0].text, "ABX");
    // A number so far takes a slash, as typing would.
    account->clear();
    QApplication::clipboard()->setText(QStringLiteral("123/4"));
    account->paste();
    test::settle();
    EXPECT_EQ(account->text(), "123/4");
    fake.dialogs.verify();
}

TEST_F(NewCustomerViews, TheResultsGridPagesByTheWheel) {
    std::vector<CustomerRecord> many;
    for (int i = 1; i <= 120; ++i)
        many.push_back(Person(QString::number(5000 + i), "Pat", "Lee", "217-555-0000"));
    writeCustomers(many);
    show();
    find<QAction>("mnuPrint")->trigger();
    test::settle();
    auto* grid = find<QTableWidget>("fgCustomersFound");
    ASSERT_EQ(grid->rowCount(), 120);
    QScrollBar* bar = grid->verticalScrollBar();
    ASSERT_EQ(bar->value(), 0);
    const QPointF at = grid->viewport()->rect().center();
    QWheelEvent down(at, grid->viewport()->mapToGlobal(at), QPoint(), QPoint(0, -120), Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(grid->viewport(), &down);
    const int page = std::max(grid->height() / grid->horizontalHeader()->height(), 10);
    EXPECT_EQ(bar->value(), std::min(page, bar->maximum()));
    EXPECT_GE(bar->value(), std::min(10, bar->maximum()));
    test::settle();
    EXPECT_EQ(frm.fgCustomersFound.topRow, bar->value() + 1);
    QWheelEvent up(at, grid->viewport()->mapToGlobal(at), QPoint(), QPoint(0, 120), Qt::NoButton,
                   Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(grid->viewport(), &up);
    EXPECT_EQ(bar->value(), 0);
}

TEST_F(NewCustomerViews, TheAuxDataScreenAndItsBigEditor) {
    writeShop();
    t.writeBytes("/AuxHeadings.txt", "Gate code\r\nDog\r\nPool\r\nAlarm\r\nNotes\r\nOther\r\n");
    t.writeBytes("/AuxFiles/1001/AuxFile0/Data.txt", "\"4411\"\r\n");
    show();
    find<QAction>("mnuAux")->trigger();
    test::settle();
    ASSERT_TRUE(find<QGroupBox>("fraAux")->isVisible());
    EXPECT_EQ(find<QLabel>("lblAccount")->text(), "Ms Ann SMITHSON");
    EXPECT_EQ(find<QLineEdit>("txtHeading(0)")->text(), "Gate code");
    saveShot(view, "account-aux-data");
    test::doubleClick(find<QPlainTextEdit>("txtAux(0)")->viewport());
    test::settle();
    ASSERT_TRUE(find<QGroupBox>("fraBig")->isVisible());
    EXPECT_EQ(find<QLabel>("lblEditing")->text(), "Editing Data Box # 1 - Gate code - for Ms Ann SMITHSON");
    saveShot(view, "account-aux-big-editor");
    button("cmdSaveAux(4)")->click();
    test::settle();
    EXPECT_FALSE(find<QGroupBox>("fraBig")->isVisible());
}

TEST_F(NewCustomerViews, PicturesOfBothLayoutsInBothAddressStyles) {
    t.writeBytes("/ServiceAreas.txt", "\"Crew One\"\r\n\"Crew Two\"\r\n");
    session.LoadServiceAreas();
    CustomerRecord person = Person("1001", "Ann", "Archer", "217-555-0001");
    person.SetTitle(u"Ms");
    person.SetMiddleInitial(u"R");
    person.SetCellPhone(u"217-555-0991");
    person.SetEmail(u"ann@example.com");
    person.SetAddress2(u"Apt 4");
    CustomerRecord firm = Business("1002", "Smith Plumbing and Heating");
    firm.SetAddress1(u"400 Industrial Pkwy");
    firm.SetTitle(u"");
    writeCustomers({person, firm});
    for (const QString& style : {kUsaStyleAddress, kInternationalStyleAddress}) {
        session.settings.cmdAddressCaption = style;
        show();
        const QString tag = style == kUsaStyleAddress ? "usa" : "international";
        EXPECT_EQ(find<QGroupBox>("fraUSAddress")->isVisible(), style == kUsaStyleAddress);
        EXPECT_EQ(find<QGroupBox>("fraIntAddress")->isVisible(), style != kUsaStyleAddress);
        EXPECT_TRUE(box(8)->isVisible());
        saveShot(view, "account-individual-" + tag);
        button("cmdNav(2)")->click();
        test::settle();
        EXPECT_TRUE(box(1)->isVisible());
        EXPECT_FALSE(box(8)->isVisible());
        saveShot(view, "account-business-" + tag);
        button("cmdNav(0)")->click();
        button("cmdCustomer(0)")->click(); // back to the menu; the next style shows it anew
        test::settle();
        EXPECT_FALSE(view.isVisible());
    }
}

TEST_F(NewCustomerViews, ActivationOnAFullCustomerFileFillsBothListsAndIsTimed) {
    // The most customers the file holds, written in one go.
    QByteArray all;
    all.reserve(qsizetype(CustomerStore::kMostCustomers) * CustomerRecord::kLength);
    for (int r = 1; r <= CustomerStore::kMostCustomers; ++r) {
        CustomerRecord c = Person(QString::number(100000 + r), "First" + QString::number(r % 97),
                                  "Last" + QString::number(r), "217-555-0000");
        c.SetCity(QStringLiteral("Town %1").arg(r % 50));
        all += c.bytes();
    }
    t.writeBytes("/CustomerData.txt", all);
    session.SelectedRoutine = 7;
    frm.Load();
    QElapsedTimer core;
    core.start();
    frm.Show();
    const double coreMs = core.nsecsElapsed() / 1e6;
    QElapsedTimer widgets;
    widgets.start();
    test::settle();
    const double viewMs = widgets.nsecsElapsed() / 1e6;
    std::printf("account screen activation on %d customers: core %.1f ms, widgets %.1f ms more\n",
                CustomerStore::kMostCustomers, coreMs, viewMs);
    RecordProperty("core_ms", QString::number(coreMs, 'f', 1).toStdString());
    RecordProperty("widgets_ms", QString::number(viewMs, 'f', 1).toStdString());
    EXPECT_EQ(frm.cboAccounts.ListCount(), CustomerStore::kMostCustomers);
    EXPECT_EQ(find<QComboBox>("cboAccounts")->count(), CustomerStore::kMostCustomers);
    EXPECT_EQ(find<QComboBox>("cboCity")->count(), 50);
    EXPECT_EQ(t.readBytes("/CycleInfo.txt").size(), qsizetype(CustomerStore::kMostCustomers) * 69);
    // The companions were missing; each rebuild is told.
    for (const char* file : {"ContractInfo.txt", "CycleInfo.txt"})
        EXPECT_BOX(fake.dialogs, "Customer Files",
                   QStringLiteral("The file %1 was missing, so it was made anew with the default entries for each "
                                  "of the 32767 customers.")
                       .arg(QLatin1String(file)));
}
