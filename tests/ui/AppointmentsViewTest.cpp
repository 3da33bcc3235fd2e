#include "views/AppointmentsView.h"
#include "FakePlatform.h"
#include "Screenshot.h"
#include "TestDataRoot.h"
#include "UiEvents.h"
#include "scheduling/AppointmentSlip.h"
#include "scheduling/DayScheduleStore.h"
#include "scheduling/frmAppointments.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"

#include <QDateEdit>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;
using namespace ostrel::test;

namespace {

struct AppointmentsViewFixture : ::testing::Test {
    AppointmentsViewFixture() {
        session.endProcess = [] {};
        session.RegisterScreen(ScreenId::frmStartup, session.startup());
        for (const char* dir : {"/Appointments", "/Services", "/SoldItems"})
            t.makeDir(QString::fromLatin1(dir));
        t.writeBytes("/ServiceAreas.txt", "\"North Crew\"\r\n\"South Crew\"\r\n");
        session.LoadServiceAreas();
        frm.Load();
        slip("1 - 320-1", "Unscheduled", QDate(2026, 11, 16), 4, 0, "Ann Lee", "1001");
        WriteServicesFile(t.disk(), "1 - 320-1", {{QStringLiteral("Tune Up"), Money{}, 4}});
        slip("2 - 320-2", "Scheduled", QDate(2026, 11, 22), 2, 20, "Bob Ray", "2002");
        WriteServicesFile(t.disk(), "2 - 320-2", {{QStringLiteral("Mow"), Money{}, 2}});
        slip("1 - 321-1", "Scheduled", QDate(2026, 12, 2), 2, 12, "Cal Doe", "3003");
        slip("2 - 318-4", "Invoiced", QDate(2026, 11, 14), 3, 9, "Dee Fox", "4004");
    }

    void slip(const QString& name, const QString& status, const QDate& date, int slots, int row,
              const QString& customer, const QString& account) {
        AppointmentSlip s;
        s.Status = status;
        s.SlipDate = date;
        s.SlipName = name;
        s.SlipPointOfService = static_cast<qint16>(name.left(1).toInt());
        s.Slots = static_cast<qint16>(slots);
        s.SlipStartRow = static_cast<qint16>(row);
        s.Customer = {account, customer, "12 Elm St", "", "Springfield", "IL", "62701", "217-555-0100"};
        WriteSlip(t.disk(), s);
    }
    template <typename W> W* find(const QString& name) {
        W* w = view.findChild<W*>(name);
        EXPECT_NE(w, nullptr) << name.toStdString();
        return w;
    }
    void open() {
        frm.Show();
        Binder::syncAll();
        settle();
    }
    void chooseRoutine(int i) {
        click(find<QRadioButton>(QStringLiteral("optRoutine(%1)").arg(i)));
        settle();
    }
    QStringList listed() {
        QStringList out;
        auto* g = find<QTableWidget>("fgAppointments");
        for (int r = 0; r < g->rowCount(); ++r)
            out << (g->item(r, 2) ? g->item(r, 2)->text() : QString());
        return out;
    }
    void clickCell(QTableWidget* table, int row, int col) {
        table->setCurrentCell(row, col);
        Q_EMIT table->cellClicked(row, col);
        settle();
    }

    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmAppointments& frm = session.AddScreen(ScreenId::frmAppointments, std::make_unique<frmAppointments>(session));
    AppointmentsView view{session, frm};
};

} // namespace

TEST_F(AppointmentsViewFixture, EveryControlHasItsWidget) {
    EXPECT_TRUE(view.binder().unboundControls().isEmpty()) << view.binder().unboundControls().join(", ").toStdString();
}

TEST_F(AppointmentsViewFixture, OpensResetWithTheRoutinesAndTheirToolTips) {
    open();
    EXPECT_EQ(view.windowTitle(), "Appointments");
    EXPECT_EQ(find<QRadioButton>("optRoutine(3)")->text(), "Delete an Appointment");
    EXPECT_EQ(find<QRadioButton>("optRoutine(3)")->toolTip(), "DELETE AN APPOINTMENT");
    EXPECT_EQ(find<QPushButton>("cmdAppointments(2)")->text(), "&Create Invoice");
    EXPECT_EQ(find<QPushButton>("cmdAppointments(2)")->accessibleName(), "Create Invoice");
    EXPECT_FALSE(find<QPushButton>("cmdAppointments(0)")->isEnabled());
    EXPECT_FALSE(find<QGroupBox>("fraCalendar")->isVisible());
    EXPECT_EQ(find<QTableWidget>("fgAppointments")->horizontalHeaderItem(2)->text(), "Appt No.");
    EXPECT_EQ(find<QTableWidget>("fgDaySchedule")->verticalHeaderItem(24)->text(), "1:00");
    EXPECT_EQ(find<QListWidget>("lstAssignments")->accessibleName(), "Point of Service");
    saveShot(view, QStringLiteral("appointments-open"));
}

TEST_F(AppointmentsViewFixture, ScheduleRoutineByClicksPaintsAndSavesTheDay) {
    open();
    chooseRoutine(0);
    EXPECT_EQ(listed(), QStringList{"1 - 320-1"});
    EXPECT_TRUE(find<QGroupBox>("fraCalendar")->isVisible());
    EXPECT_TRUE(find<QLabel>("lblRoutine(0)")->isVisible());
    EXPECT_EQ(find<QTableWidget>("fgAppointments")->horizontalHeaderItem(0)->text(), "Created On");
    clickCell(find<QTableWidget>("fgAppointments"), 0, 1);
    EXPECT_TRUE(find<QPushButton>("cmdAppointments(0)")->isEnabled());
    find<QDateEdit>("DTPicker1")->setDate(QDate(2026, 11, 30));
    settle();
    EXPECT_EQ(find<QTableWidget>("fgDaySchedule")->horizontalHeaderItem(0)->text(),
              "Scheduled Appointments for 11/30/2026");
    clickCell(find<QTableWidget>("fgDaySchedule"), 8, 0); // row 9, 8:00
    click(find<QPushButton>("cmdAppointments(0)"));
    settle();
    auto* day = find<QTableWidget>("fgDaySchedule");
    EXPECT_EQ(day->item(8, 0)->text(), "Ann Lee-Tune Up");
    EXPECT_EQ(day->item(9, 0)->text(), "   ------Scheduled------");
    EXPECT_TRUE(find<QPushButton>("cmdService")->isEnabled());
    saveShot(view, QStringLiteral("appointments-schedule-painted"));
    click(find<QPushButton>("cmdService"));
    settle();
    EXPECT_EQ(readDaySchedule(t.disk(), 2026, 1, 334).slot(9), "Ann Lee-Tune Up");
    EXPECT_EQ(ReadSlip(t.disk(), "1 - 320-1").Status, "Scheduled");
    EXPECT_EQ(find<QTableWidget>("fgAppointments")->rowCount(), 0);
}

TEST_F(AppointmentsViewFixture, RescheduleRoutineAsksThenMarksTheNewPlace) {
    open();
    chooseRoutine(1);
    EXPECT_EQ(listed(), (QStringList{"1 - 321-1", "2 - 320-2"}));
    fake.dialogs.expect("Remove Appointment Slip",
                        "This will Delete Appointment 1 - 321-1\nfrom 12/2/2026\nThen Select a new Date", vbYes);
    clickCell(find<QTableWidget>("fgAppointments"), 0, 2);
    fake.dialogs.verify();
    find<QDateEdit>("DTPicker1")->setDate(QDate(2026, 12, 9));
    settle();
    clickCell(find<QTableWidget>("fgDaySchedule"), 16, 0); // row 17
    EXPECT_EQ(find<QTableWidget>("fgDaySchedule")->item(16, 0)->text(), "Schedule Here - Click Re-Schedule");
    EXPECT_TRUE(find<QPushButton>("cmdAppointments(1)")->isEnabled());
    saveShot(view, QStringLiteral("appointments-reschedule"));
}

TEST_F(AppointmentsViewFixture, InvoiceRoutineListsCompletedSlipsAndHandsOneOver) {
    open();
    chooseRoutine(2);
    EXPECT_EQ(listed(), (QStringList{"2 - 318-4", "2 - 320-2"}));
    EXPECT_FALSE(find<QGroupBox>("fraCalendar")->isVisible());
    clickCell(find<QTableWidget>("fgAppointments"), 1, 2);
    saveShot(view, QStringLiteral("appointments-invoice"));
    click(find<QPushButton>("cmdAppointments(2)"));
    settle();
    EXPECT_EQ(t.readBytes("/FileToPrint.txt"), QByteArray("\"2 - 320-2\"\r\n"));
    ASSERT_EQ(fake.dialogs.boxes().size(), 1);
    EXPECT_TRUE(fake.dialogs.takeBox("Not Available", fake.dialogs.boxes()[0].prompt));
}

TEST_F(AppointmentsViewFixture, DeleteRoutineListsEverySlipAndDeletesOne) {
    open();
    chooseRoutine(3);
    EXPECT_EQ(listed().size(), 4);
    clickCell(find<QTableWidget>("fgAppointments"), 0, 2); // the unscheduled one
    saveShot(view, QStringLiteral("appointments-delete"));
    fake.dialogs.expect("Confirm Deletion", "Delete the Appointment Slip?", vbYes);
    click(find<QPushButton>("cmdAppointments(3)"));
    settle();
    fake.dialogs.verify();
    EXPECT_FALSE(t.isFile("/Appointments/1 - 320-1.txt"));
    EXPECT_EQ(listed().size(), 3);
    EXPECT_FALSE(find<QPushButton>("cmdAppointments(3)")->isEnabled());
}
