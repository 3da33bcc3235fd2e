#pragma once

// A data root with two Points of Service, a catalogue and a customer, all written by the program's
// own writers; a session with the account, catalogue and appointment screens, loaded as start-up
// loads them; the customer selected as the account screen's Select leaves it.
#include "CatalogueSamples.h"
#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "accounts/frmNewCustomer.h"
#include "catalogue/ServiceRecord.h"
#include "catalogue/frmServices.h"
#include "scheduling/AppointmentSlip.h"
#include "scheduling/DayScheduleStore.h"
#include "scheduling/frmCreate.h"
#include "setup/PointOfServiceNames.h"
#include "shell/DataDirectories.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"

#include <gtest/gtest.h>

namespace ostrel::test {

// A screen that stands in for one this test does not build, and counts its activations.
class CountingScreen : public Screen {
public:
    using Screen::Screen;
    void Form_Activate() override { ++activations; }
    int activations = 0;
};

inline QByteArray recordBytes(std::initializer_list<Record> rs) {
    QByteArray out;
    for (const Record& r : rs)
        out += r.bytes();
    return out;
}

struct CreateScreenFixture : ::testing::Test {
    // A Wednesday, the 322nd day of 2026.
    static inline const QDate kToday = QDate(2026, 11, 18);
    static constexpr int kTodayNumber = 322;

    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmNewCustomer& account =
        session.AddScreen(ScreenId::frmNewCustomer, std::make_unique<frmNewCustomer>(session, session.customer));
    frmServices& catalogue =
        session.AddScreen(ScreenId::frmServices, std::make_unique<frmServices>(session, session.catalogueLists));
    frmCreate& frm = session.AddScreen(ScreenId::frmCreate, std::make_unique<frmCreate>(session));

    CreateScreenFixture() {
        fake.clock.set(kToday, QTime(9, 0));
        session.RegisterScreen(ScreenId::frmStartup, session.startup());
        PrepareDataDirectories(t.disk(), kToday, session.programName());
        PointOfServiceNames names;
        SaveAssociates(t.disk(), {QStringLiteral("Crew One"), QStringLiteral("Crew Two")}, names);
        session.LoadServiceAreas();
        writeCatalogue();
        catalogue.Load();
        t.disk().CloseAllFiles();
        session.customer.customer = customer();
        account.cboAssignments.SetListIndex(0);
    }

    // Tune Up 1:00 at $45.00, Oil Change 0:30 at $30.00, Inspection 0:15 at $20.00; the items
    // Filter and Belt in Parts at $12.50, Wax in Supplies; the custom item Bracket at $7.50.
    void writeCatalogue() {
        t.writeBytes("/Services.txt", recordBytes({ServiceRecord{"Tune Up", "$45.00", 4}.toRecord(),
                                                   ServiceRecord{"Oil Change", "$30.00", 2}.toRecord(),
                                                   ServiceRecord{"Inspection", "$20.00", 1}.toRecord()}));
        t.writeBytes("/OIInventoriedItems.txt",
                     recordBytes({item("Filter", "Parts").toRecord(), item("Wax", "Supplies").toRecord(),
                                  item("Belt", "Parts").toRecord()}));
        t.writeBytes("/CustomItems.txt", recordBytes({custom("Bracket").toRecord()}));
    }

    static CustomerRecord customer() {
        CustomerRecord c;
        using C = CustomerRecord;
        for (C::Field f : {C::kAccountNumber, C::kBusinessName, C::kAddress1, C::kAddress2, C::kCity,
                           C::kServiceCity, C::kState, C::kPostalCode, C::kAddress4, C::kTelephone, C::kCellPhone,
                           C::kEmail, C::kTitle, C::kFirstName, C::kMiddleInitial, C::kLastName, C::kAccountType})
            c.record().setText(f.offset, f.width, u"");
        c.SetAccountNumber(u"1001");
        c.SetAccountType(u"Individual");
        c.SetBusinessName(u"Ann Archer");
        c.SetFirstName(u"Ann");
        c.SetLastName(u"Archer");
        c.SetAddress1(u"12 Elm St");
        c.SetAddress2(u"Apt 4");
        c.SetCity(u"Springfield");
        c.SetServiceCity(u"Springfield");
        c.SetState(u"IL");
        c.SetPostalCode(u"62701");
        c.SetTelephone(u"217-555-0101");
        return c;
    }

    void open() { frm.Show(); }

    // Checks the service at `index` and presses "Add Service to Appointment", as a user does.
    void addService(int index) {
        frm.lstServices.SetListIndex(index);
        frm.SetServiceChecked(index, true);
        frm.lstServices_Click();
        frm.cmdService_Click(frmCreate::kAddService);
    }

    void addItem(const QString& category, int itemIndex, const QString& quantity) {
        frm.lstCategories.SetListIndex(static_cast<int>(frm.lstCategories.items.indexOf(category)));
        frm.lstCategories_Click();
        frm.cboItems.SetListIndex(itemIndex);
        frm.cboItems_Click();
        frm.txtQuantity.text = quantity;
        frm.cmdService_Click(frmCreate::kCalculate);
        frm.cmdService_Click(frmCreate::kAddItem);
    }

    // The additional service typed into the Add To frame, closed with its button.
    void addAdditional(const QString& name, const QString& cost, int timeIndex, const QString& comments = {}) {
        frm.mnuAddto_Click();
        frm.txtAdditional.text = name;
        frm.txtAdditional_Change();
        frm.txtCost.text = cost;
        frm.txtComments.text = comments;
        if (timeIndex >= 0) frm.lstTime.SetListIndex(timeIndex);
        frm.cmdService_Click(frmCreate::kCloseAddTo);
    }

    void clickRow(int row) {
        frm.fgDaySchedule.row = row;
        frm.fgDaySchedule.col = 1;
        frm.fgDaySchedule_Click();
    }

    QString slipName(int pointOfService = 1, int number = 1) const {
        return QStringLiteral("%1 - %2-%3").arg(pointOfService).arg(kTodayNumber).arg(number);
    }

    // Every row of a day file, as written.
    static QByteArray dayFileBytes(const std::map<int, QString>& rows) {
        QByteArray out;
        for (int r = 1; r <= 48; ++r) {
            const auto it = rows.find(r);
            out += '"' + (it == rows.end() ? QByteArray() : it->second.toLatin1()) + "\"\r\n";
        }
        return out;
    }
};

} // namespace ostrel::test
