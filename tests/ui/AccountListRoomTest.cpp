// The account screen's list of customers found takes the room below the fields: no empty band
// between them, as many rows as the frame holds, and the name column the widest.
#include "views/NewCustomerView.h"
#include "Screenshot.h"
#include "../core/frmNewCustomerTestFixture.h"
#include "UiEvents.h"
#include "app/Application.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>

using namespace ostrel;
using namespace ostrel::ui;
using ostrel::test::Person;

namespace {

struct AccountListRoom : ostrel::test::AccountScreenFixture {
    AccountListRoom() { InitResources(); }
    NewCustomerView view{session, frm};

    template <typename W> W* find(const QString& name) {
        W* w = view.findChild<W*>(name);
        EXPECT_NE(w, nullptr) << name.toStdString();
        return w;
    }
};

} // namespace

TEST_F(AccountListRoom, TheCustomersFoundUseTheRoomBelowTheFieldsWithTheNameColumnWidest) {
    std::vector<CustomerRecord> customers;
    for (int i = 1; i <= 30; ++i)
        customers.push_back(Person(QStringLiteral("%1").arg(1000 + i), QStringLiteral("Ann%1").arg(i),
                                   QStringLiteral("Smithson"), QStringLiteral("217-555-%1").arg(1000 + i)));
    writeCustomers(customers);
    open(7);
    test::settle();
    find<QPushButton>("Command1(0)")->click();
    test::settle();
    find<QRadioButton>("optSearch(7)")->click();
    test::settle();
    test::typeText(find<QLineEdit>("txtSearchfor"), "smithson");
    find<QPushButton>("cmdStartSearch")->click();
    test::settle();
    auto* found = find<QGroupBox>("fraCustomersFound");
    ASSERT_TRUE(found->isVisible());
    auto* grid = find<QTableWidget>("fgCustomersFound");
    ASSERT_EQ(grid->rowCount(), 30);
    test::saveShot(view, "account-customers-found-room");

    // No band of empty space between the last field and the list.
    auto* pointOfService = find<QComboBox>("cboAssignments");
    const int fieldsEnd = pointOfService->mapTo(&view, QPoint(0, pointOfService->height())).y();
    const int listTop = found->mapTo(&view, QPoint(0, 0)).y();
    EXPECT_LE(listTop - fieldsEnd, 30) << "fields end at " << fieldsEnd << ", list starts at " << listTop;
    // As many rows as a screen of this height holds, not seven.
    const int rowsShown = grid->viewport()->height() / grid->rowHeight(0);
    EXPECT_GE(rowsShown, 10) << grid->viewport()->height() << " / " << grid->rowHeight(0);
    // The name is the widest column; the record number takes only what it needs.
    const QHeaderView* header = grid->horizontalHeader();
    EXPECT_GT(header->sectionSize(0), header->sectionSize(1));
    EXPECT_GT(header->sectionSize(0), 2 * header->sectionSize(2));
    EXPECT_GE(header->sectionSize(0) + header->sectionSize(1) + header->sectionSize(2), grid->viewport()->width() - 2);
}
