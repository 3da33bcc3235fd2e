#pragma once

#include "FakePlatform.h"
#include "RecordingPageSurface.h"
#include "TestDataRoot.h"
#include "scheduling/AppointmentSlip.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"
#include "workorders/frmTerms.h"
#include "workorders/frmWorkOrders.h"

#include <gtest/gtest.h>

namespace ostrel::test {

// Sunday 22 November 2026 is the fake clock's today; the screen moves it to Monday the 23rd.
inline const QDate kToday(2026, 11, 22);
inline const QDate kMonday(2026, 11, 23);

struct WorkOrdersScreen : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmTerms& terms = session.AddScreen(ScreenId::frmTerms, std::make_unique<frmTerms>(session));
    frmWorkOrders& frm = session.AddScreen(
        ScreenId::frmWorkOrders,
        std::make_unique<frmWorkOrders>(session, terms, session.catalogueLists.frmWorkOrders.fgAddServices));

    WorkOrdersScreen() {
        session.RegisterScreen(ScreenId::frmStartup, session.startup());
        for (const char* d : {"/Appointments", "/Services", "/SoldItems", "/2026"})
            t.makeDir(d);
        t.writeBytes("/ServiceAreas.txt", "\"North Crew\"\r\n\"South Crew\"\r\n");
        session.LoadServiceAreas();
        terms.Load();
        session.settings.program.ckPrompts = 0;
    }

    AppointmentSlip slip(const QString& id, int place, const QDate& date) {
        AppointmentSlip s;
        s.Status = slipstatus::Scheduled;
        s.SlipDate = date;
        s.SlipName = SlipName(place, id);
        s.SlipPointOfService = static_cast<qint16>(place);
        s.Slots = 6;
        s.SlipStartRow = 13;
        s.Customer = {"2175550199", "Mr. Dale Hensley", "88 Orchard Ln", "", "Chatham", "IL", "62629",
                      "217-555-0199"};
        s.SlipComment = "Dog in the yard, use the side gate";
        return s;
    }
    QString save(const AppointmentSlip& s, bool withItems = true) {
        WriteSlip(t.disk(), s);
        WriteServicesFile(t.disk(), s.SlipName,
                          {{"Tune Up", Money::fromWhole(45), 4}, {"Filter Change", Money::fromDouble(12.5), 2}});
        if (withItems)
            WriteSoldItemsFile(t.disk(), s.SlipName, {{"2", "Furnace filter 16x25", "12.50"}, {"0", "Thermocouple", "9"}});
        return s.SlipName;
    }
    void catalogue() {
        Grid& g = frm.fgAddServices;
        g.SetRows(4);
        const QStringList rows[] = {{"Tune Up", "1:00", "$45.00"}, {"Duct Cleaning", "2:30", "$120.50"},
                                    {"Attic Survey", "10:00", "$80.00"}};
        for (int r = 1; r <= 3; ++r)
            for (int c = 0; c < 3; ++c)
                g.SetTextMatrix(r, c, rows[r - 1][c]);
    }
    void openOn(const QString& name) {
        frm.Show();
        for (int i = 0; i < frm.lstWorkorders.ListCount(); ++i)
            if (frm.lstWorkorders.List(i) == name) frm.lstWorkorders.SetListIndex(i);
        frm.lstWorkorders_Click();
    }
    void addService(int row) {
        frm.fgAddServices.row = row;
        frm.fgAddServices_Click();
        frm.fgAddServices_RightClick();
    }
};

} // namespace ostrel::test
