#pragma once

#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "scheduling/AppointmentSlip.h"
#include "scheduling/DaySchedule.h"
#include "scheduling/DayScheduleStore.h"
#include "scheduling/frmAppointments.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"

#include <gtest/gtest.h>

namespace ostrel::test {

// The appointment routines over a folder with two Points of Service, on Sunday 22 November 2026
// at nine in the morning; the slips are written by the program's own slip writer.
struct AppointmentsScreen : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmAppointments& frm = session.AddScreen(ScreenId::frmAppointments, std::make_unique<frmAppointments>(session));
    const QDate today{2026, 11, 22};
    const QDate yesterday{2026, 11, 21};

    AppointmentsScreen() {
        session.RegisterScreen(ScreenId::frmStartup, session.startup());
        for (const char* dir : {"/Appointments", "/Services", "/SoldItems"})
            t.makeDir(QString::fromLatin1(dir));
        t.writeBytes("/ServiceAreas.txt", "\"North Crew\"\r\n\"South Crew\"\r\n");
        session.settings.program.ckPrompts = 1;
        session.settings.program.ckAlarms = 0;
        session.LoadServiceAreas();
        frm.Load();
        frm.Show();
    }

    static std::array<QString, 8> customer(const QString& account, const QString& name, const QString& phone) {
        return {account, name, QStringLiteral("12 Elm St"), QString(), QStringLiteral("Springfield"),
                QStringLiteral("IL"), QStringLiteral("62701"), phone};
    }
    AppointmentSlip slip(const QString& slipName, const QString& status, const QDate& date, int slots, int startRow,
                         const std::array<QString, 8>& fields, const QString& comment = QString()) {
        AppointmentSlip s;
        s.Status = status;
        s.SlipDate = date;
        s.SlipName = slipName;
        s.SlipPointOfService = static_cast<qint16>(slipName.section(u' ', 0, 0).toInt());
        s.Slots = static_cast<qint16>(slots);
        s.SlipStartRow = static_cast<qint16>(startRow);
        s.Customer = fields;
        s.SlipComment = comment;
        WriteSlip(t.disk(), s);
        return s;
    }
    AppointmentSlip annLee(const QString& slipName, const QString& status, const QDate& date, int slots = 4,
                           int startRow = 0) {
        return slip(slipName, status, date, slots, startRow,
                    customer(QStringLiteral("1001"), QStringLiteral("Ann Lee"), QStringLiteral("217-555-0100")),
                    QStringLiteral("Back gate"));
    }
    void services(const QString& slipName, std::initializer_list<std::pair<const char*, int>> list) {
        std::vector<SlipService> out;
        for (const auto& [name, slots] : list)
            out.push_back({QString::fromLatin1(name), Money{}, static_cast<qint16>(slots)});
        WriteServicesFile(t.disk(), slipName, out);
    }
    AppointmentSlip readBack(const QString& slipName) { return ReadSlip(t.disk(), slipName); }

    // The row of fgAppointments that lists the slip, or -1.
    int rowOf(const QString& slipName) const {
        for (int r = 1; r < frm.fgAppointments.Rows(); ++r)
            if (frm.fgAppointments.TextMatrix(r, frmAppointments::kSlipNameColumn) == slipName) return r;
        return -1;
    }
    QStringList listed() const {
        QStringList out;
        for (int r = 1; r < frm.fgAppointments.Rows(); ++r)
            out << frm.fgAppointments.TextMatrix(r, frmAppointments::kSlipNameColumn);
        return out;
    }
    void selectSlip(const QString& slipName) {
        frm.fgAppointments.row = rowOf(slipName);
        ASSERT_GT(frm.fgAppointments.row, 0) << slipName.toStdString();
        frm.fgAppointments_Click();
    }
    void pickDate(const QDate& d) {
        frm.DTPicker1.value = d;
        frm.DTPicker1_Change();
    }
    void clickDayRow(int row) {
        frm.fgDaySchedule.row = row;
        frm.fgDaySchedule.col = 1;
        frm.fgDaySchedule_Click();
    }
    DaySchedule day(const QDate& d, int pointOfService) {
        return readDaySchedule(t.disk(), d.year(), pointOfService, d.dayOfYear());
    }
};

} // namespace ostrel::test
