#pragma once

#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "scheduling/DaySchedule.h"
#include "scheduling/DayScheduleStore.h"
#include "scheduling/frmBlock.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"
#include "util/VbText.h"

#include <gtest/gtest.h>

namespace ostrel::test {

// The blocked-days screen over a folder with three Points of Service, on Sunday 22 November 2026
// at nine in the morning, Monday to Friday being the work week.
struct BlockScreen : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmBlock& frm = session.AddScreen(ScreenId::frmBlock, std::make_unique<frmBlock>(session));

    BlockScreen() {
        session.RegisterScreen(ScreenId::frmStartup, session.startup());
        t.writeBytes("/ServiceAreas.txt", "\"North Crew\"\r\n\"South Crew\"\r\n\"Shop Bench\"\r\n");
        session.settings.program.WorkWeekCode = 5;
        session.LoadServiceAreas();
        frm.Show();
    }

    static QByteArray reservedBytes(const char* reason) {
        QByteArray out;
        for (int i = 0; i < 48; ++i)
            out += QByteArray("\"") + reason + "\"\r\n";
        return out;
    }
    QString dayFile(const QDate& d, int pointOfService) const {
        return daySchedulePath(d.year(), pointOfService, d.dayOfYear());
    }
    bool hasDay(const QDate& d, int pointOfService) const { return t.isFile(dayFile(d, pointOfService)); }
    void writeDay(const QDate& d, int pointOfService, const DaySchedule& day) {
        writeDaySchedule(t.disk(), d.year(), pointOfService, d.dayOfYear(), day);
    }
    static DaySchedule appointmentDay() {
        DaySchedule day;
        day.setSlot(9, QStringLiteral("Ann Lee-Tune Up"));
        day.setSlot(10, QStringLiteral("   ------Scheduled------"));
        return day;
    }
    // The question cmdAccept asks, word for word.
    QString acceptQuestion(const QString& action, int days, const QDate& start, const QString& who) const {
        return QStringLiteral("You have Selected to\n") + action + QStringLiteral("\nof ") + QString::number(days) +
               QStringLiteral(" Consecutive WORKDAYS\nStarting on ") + vbDate(start) + QStringLiteral("\nfor ") + who;
    }
    static QString conflictQuestion(const QDate& d) {
        return QStringLiteral("Events are Scheduled for ") + vbDate(d) +
               QStringLiteral("\nDo you want to DELETE these Events)");
    }
    // Chooses the run on the screen as a user does.
    void choose(const QDate& first, int pointOfServiceIndex, int days) {
        frm.Calender.value = first;
        frm.Calender_DateClick();
        frm.lstAssignto.SetListIndex(pointOfServiceIndex);
        frm.sldTimeReq.SetValue(days);
        frm.sldTimeReq_Change();
    }

    static constexpr const char* kReserve = "Prevent Work Scheduling";
    static constexpr const char* kRestore = "Clear Previous Blocked Days";
    const QDate friday{2026, 11, 27};
};

} // namespace ostrel::test
