#pragma once

#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "invoicing/InvoiceImage.h"
#include "invoicing/frmReprint.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"

#include <gtest/gtest.h>

namespace ostrel::test {

// The records screen over a data root whose images the posting's writer made.
struct ReprintScreen : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmReprint& frm = session.AddScreen(ScreenId::frmReprint, std::make_unique<frmReprint>(session));

    ReprintScreen() {
        session.RegisterScreen(ScreenId::frmStartup, session.startup());
        t.makeDir("/CompletedInvoices");
        t.makeDir("/Backup");
        t.makeDir("/OstrelInvoicer");
        t.makeDir("/OstrelInvoicer/Narratives");
        t.makeDir("/Backup/OstrelInvoicer");
        t.makeDir("/Backup/OstrelInvoicer/Narratives");
        fake.clock.set(QDate(2026, 11, 22), QTime(9, 0));
    }

    static PostedInvoice invoice(const QString& number, const QString& date, const QString& name = "Ann Lee") {
        PostedInvoice in;
        in.invoiceNo = number;
        in.accountNo = "A-" + number.right(3);
        in.customer = {name, "12 Elm St", "Suite 4", "Springfield", "IL", "62701"};
        in.dateText = date;
        in.reference = "Ref " + number;
        in.attention = "Front desk";
        in.lines = {{"1", "Gas Leak Test", date, "$55.00", "$55.00", "False"},
                    {"2", "Duct Tape Roll", "", "$16.96", "$33.92", "True"}};
        in.total = "$88.92";
        in.tax = "$2.12";
        in.tax2 = "";
        in.grandTotal = "$91.04";
        return in;
    }

    void post(const PostedInvoice& in) { WriteInvoiceImage(t.disk(), MakeInvoiceImage(in)); }

    int rowOf(const QString& number) const {
        for (int r = 1; r < frm.fgReceivables.Rows(); ++r)
            if (frm.fgReceivables.TextMatrix(r, frmReprint::kInvoiceNumber) == number) return r;
        return -1;
    }
    QStringList column(int c) const {
        QStringList out;
        for (int r = 1; r < frm.fgReceivables.Rows(); ++r) out.append(frm.fgReceivables.TextMatrix(r, c));
        return out;
    }
    void open() { session.ShowScreen(ScreenId::frmReprint); }
    void clickRow(const QString& number) {
        frm.fgReceivables.row = rowOf(number);
        ASSERT_GE(frm.fgReceivables.row, 1) << number.toStdString();
        frm.fgReceivables_Click();
    }
};

} // namespace ostrel::test
