#pragma once

#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "CatalogueSamples.h"
#include "catalogue/LaborRates.h"
#include "catalogue/ServiceRecord.h"
#include "catalogue/frmServices.h"
#include "invoicing/frmInvoice.h"
#include "setup/frmSetup.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"

#include <gtest/gtest.h>

namespace ostrel::test {

// The invoice screen with the screens it reads: Setup for its options, the catalogue for its lists
// and labor rates. Today is 22 November 2026.
struct InvoiceScreen : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmSetup& setup = session.AddScreen(ScreenId::frmSetup, std::make_unique<frmSetup>(session));
    frmServices& services =
        session.AddScreen(ScreenId::frmServices, std::make_unique<frmServices>(session, session.catalogueLists));
    frmInvoice& frm =
        session.AddScreen(ScreenId::frmInvoice, std::make_unique<frmInvoice>(session, session.catalogueLists));
    ScriptedDialogs& dialogs = fake.dialogs;
    CatalogueLists::InvoiceLists& lists = session.catalogueLists.frmInvoice;

    InvoiceScreen() { session.RegisterScreen(ScreenId::frmStartup, session.startup()); }

    static QByteArray records(std::initializer_list<Record> rs) {
        QByteArray out;
        for (const Record& r : rs)
            out += r.bytes();
        return out;
    }

    // Two services, two stocked items (Filter: $12.50, $10.00 each from 10), one custom item
    // (Bracket: $7.50, $6.00 each from 3), and two labor rates.
    void writeCatalogue() {
        t.writeBytes("/Services.txt", records({ServiceRecord{"Tune Up", "$45.00", 4}.toRecord(),
                                               ServiceRecord{"Full Service", "$120.00", 8}.toRecord()}));
        InventoriedItemRecord belt = item("Belt", "Parts");
        belt.SellPrice = 200000;
        belt.DiscountQuantity = 0;
        t.writeBytes("/OIInventoriedItems.txt",
                     records({item("Filter", "Parts").toRecord(), belt.toRecord()}));
        t.writeBytes("/CustomItems.txt", records({custom("Bracket").toRecord()}));
        TextWriter labor;
        labor.write({QStringLiteral("General Labor"), QStringLiteral("$85.00")});
        labor.write({QStringLiteral("Apprentice"), QStringLiteral("$45.50")});
        labor.write({QString(), QString()});
        t.disk().ReplaceTextFile(kLaborFileName, labor);
    }

    // The catalogue loaded as start-up loads it, then the invoice screen brought up.
    void open() {
        services.Load();
        frm.Show();
    }

    // A body line as the grid holds it.
    void line(const QString& quantity, const QString& description, const QString& price, const QString& extension,
              const QString& taxed = QStringLiteral("True")) {
        const int row = frm.LineCount + 1;
        frm.fgInvoice.SetTextMatrix(row, 0, quantity);
        frm.fgInvoice.SetTextMatrix(row, 1, description);
        frm.fgInvoice.SetTextMatrix(row, 3, price);
        frm.fgInvoice.SetTextMatrix(row, 4, extension);
        frm.fgInvoice.SetTextMatrix(row, 5, taxed);
        ++frm.LineCount;
    }

    QString cell(int row, int col) const { return frm.fgInvoice.TextMatrix(row, col); }

    void finalize() { frm.cmdInvoice_Click(9); }
};

} // namespace ostrel::test
