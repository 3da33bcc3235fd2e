#pragma once

// A data root with customers written by the store's own writers, a session on it, and the account
// screen loaded into the session as start-up loads it.
#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "accounts/CustomerStore.h"
#include "accounts/frmNewCustomer.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace ostrel::test {

// Every text field blank, as the screen's save leaves a record.
inline CustomerRecord Blank() {
    CustomerRecord c;
    using C = CustomerRecord;
    for (C::Field f : {C::kAccountNumber, C::kBusinessName, C::kAddress1, C::kAddress2, C::kCity,
                       C::kServiceCity, C::kState, C::kPostalCode, C::kAddress4, C::kTelephone, C::kCellPhone,
                       C::kEmail, C::kTitle, C::kFirstName, C::kMiddleInitial, C::kLastName, C::kAccountType})
        c.record().setText(f.offset, f.width, u"");
    return c;
}

inline CustomerRecord Person(const QString& account, const QString& first, const QString& last,
                             const QString& telephone = QString()) {
    CustomerRecord c = Blank();
    c.SetAccountNumber(account);
    c.SetAccountType(u"Individual");
    c.SetTitle(u"Mr.");
    c.SetFirstName(first);
    c.SetLastName(last);
    c.SetMiddleInitial(u"");
    c.SetTelephone(telephone);
    c.SetAddress1(u"12 Elm St");
    c.SetCity(u"Springfield");
    c.SetServiceCity(u"Springfield");
    c.SetState(u"IL");
    c.SetPostalCode(u"62701");
    c.SetAddress4(u"62701");
    return c;
}

inline CustomerRecord Business(const QString& account, const QString& name, const QString& city = "Decatur") {
    CustomerRecord c = Blank();
    c.SetAccountNumber(account);
    c.SetAccountType(u"Business");
    c.SetBusinessName(name);
    c.SetCity(city);
    c.SetServiceCity(city);
    c.SetState(u"IL");
    c.SetPostalCode(u"62521");
    c.SetAddress4(u"62521");
    c.SetTelephone(u"217-555-0100");
    return c;
}

struct AccountScreenFixture : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmNewCustomer& frm = session.AddScreen(ScreenId::frmNewCustomer,
                                            std::make_unique<frmNewCustomer>(session, session.customer));

    AccountScreenFixture() { session.RegisterScreen(ScreenId::frmStartup, session.startup()); }

    // The customers in file order, with their companion files, as the program writes them.
    void writeCustomers(const std::vector<CustomerRecord>& customers) {
        CustomerBuffers b;
        CustomerStore store(t.disk(), b);
        store.OpenCustomerFile();
        int r = 0;
        for (const CustomerRecord& c : customers) {
            b.customer = c;
            store.WriteCustomer(++r);
        }
        t.disk().CloseAllFiles();
        store.ResetCompanionBuffers(fake.clock.today());
        store.RebuildContractFile(r, {});
        store.RebuildCycleFile(r, {});
    }

    CustomerRecord recordOnDisk(int r) {
        const QByteArray all = t.readBytes("/CustomerData.txt");
        return CustomerRecord(Record(all.mid((r - 1) * CustomerRecord::kLength, CustomerRecord::kLength)));
    }
    int countOnDisk() { return int(t.readBytes("/CustomerData.txt").size() / CustomerRecord::kLength); }

    void open(qint16 routine = 7) {
        session.SelectedRoutine = routine;
        frm.Load();
        frm.Show();
    }

    // Seven people, in file order: the quarter moves and the wrap-around need a few.
    void writeSeven() {
        writeCustomers({Person("1001", "Ann", "Archer"), Person("1002", "Bob", "Baker"),
                        Person("1003", "Cy", "Carter"), Person("1004", "Di", "Dunn"),
                        Person("1005", "Ed", "Evans"), Person("1006", "Flo", "Fisher"),
                        Person("1007", "Gus", "Grant")});
    }
};

} // namespace ostrel::test
