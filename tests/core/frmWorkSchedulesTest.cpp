#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "scheduling/AppointmentSlip.h"
#include "scheduling/DayScheduleStore.h"
#include "scheduling/frmWorkSchedules.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"
#include "store/TextStatements.h"

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::test;

namespace {

struct WorkSchedulesScreen : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmWorkSchedules& frm = session.AddScreen(ScreenId::frmWorkSchedules, std::make_unique<frmWorkSchedules>(session));
    QStringList dialed;

    WorkSchedulesScreen() {
        session.RegisterScreen(ScreenId::frmStartup, session.startup());
        fake.clock.set(QDate(2026, 11, 23), QTime(9, 0)); // a Monday
        TextWriter w;
        for (const char* n : {"Front Desk", "Service Van", "Bay 3"})
            w.writeString(QString::fromLatin1(n));
        t.writeBytes("/ServiceAreas.txt", w.bytes());
        session.LoadServiceAreas();
        session.dial = [this](const QString& a, const QString& b) { dialed << a << b; };
        for (const char* folder : {"/Appointments", "/Services", "/SoldItems"})
            t.makeDir(QString::fromLatin1(folder));
    }

    AppointmentSlip slip(int point, const QString& id, const QDate& date, int start, int slots, const QString& name,
                         const QString& status = slipstatus::Scheduled) {
        AppointmentSlip s;
        s.Status = status;
        s.SlipDate = date;
        s.SlipName = SlipName(point, id);
        s.SlipPointOfService = static_cast<qint16>(point);
        s.Slots = static_cast<qint16>(slots);
        s.SlipStartRow = static_cast<qint16>(start);
        s.Customer = {"A-" + id, name, "12 Elm St", "", "Springfield", "IL", "62701", "217-555-0100"};
        s.SlipComment = "Gate code 4411";
        return s;
    }
    void save(const AppointmentSlip& s, const std::vector<SlipService>& services = {}, bool soldItems = false) {
        WriteSlip(t.disk(), s);
        if (!services.empty()) WriteServicesFile(t.disk(), s.SlipName, services);
        if (soldItems) WriteSoldItemsFile(t.disk(), s.SlipName, {{"2", "Filter 16x25", "$12.00"}});
    }
    static SlipService service(const QString& name, int slots) {
        return {name, Money::fromWhole(45), static_cast<qint16>(slots)};
    }
    void writeDay(int point, const QDate& date, const std::map<int, QString>& rows) {
        DaySchedule d;
        for (const auto& [r, text] : rows)
            d.setSlot(r, text);
        writeDaySchedule(t.disk(), date.year(), point, date.dayOfYear(), d);
    }
    void open() {
        frm.Show();
        fake.dialogs.verify();
    }
    void loadDay(int pointIndex, const QDate& date) {
        frm.lstAssociates.SetListIndex(pointIndex);
        frm.lstAssociates_Click();
        frm.DTPicker1.value = date;
        frm.DTPicker1_Change();
        frm.cmdWorkSchedules_Click(frmWorkSchedules::kLoadDay);
    }
    QString cell(int r, int c) { return frm.fgSchedule.TextMatrix(r, c); }
};

const QDate kMonday(2026, 11, 23);
const QDate kTuesday(2026, 11, 24);

} // namespace

TEST_F(WorkSchedulesScreen, ComesUpOnTheWorkDayWithAWeekOfOverview) {
    fake.clock.set(QDate(2026, 11, 21), QTime(9, 0)); // a Saturday
    open();
    EXPECT_EQ("Print Work Schedules", frm.caption);
    EXPECT_EQ(QDate(2026, 11, 23), frm.DTPicker1.value);
    EXPECT_EQ(QDate(2026, 11, 23), frm.DTStart.value);
    EXPECT_EQ(QDate(2026, 11, 29), frm.DTEnd.value);
    EXPECT_EQ(QDate(2026, 11, 21), frm.DTPicker1.minDate);
    EXPECT_EQ(QDate(2026, 11, 21), frm.DTStart.minDate);
    EXPECT_EQ(QDate(2026, 11, 21), frm.DTEnd.minDate);
    EXPECT_EQ(QStringList({"Front Desk", "Service Van", "Bay 3"}), frm.lstAssociates.items);
    EXPECT_EQ("Select Work Area", frm.Label1[0].caption);
    EXPECT_FALSE(frm.cmdWorkSchedules[frmWorkSchedules::kLoadDay].enabled);
    EXPECT_FALSE(frm.cmdWorkSchedules[frmWorkSchedules::kPrint].enabled);
    EXPECT_EQ("Menu", frm.cmdWorkSchedules[0].caption);
    EXPECT_EQ("Load", frm.cmdWorkSchedules[1].caption);
    EXPECT_EQ("Print", frm.cmdWorkSchedules[2].caption);
    EXPECT_EQ("Load", frm.cmdWorkSchedules[3].caption);
    EXPECT_EQ("Toggle Grids", frm.mnuToggle.caption);
}

TEST_F(WorkSchedulesScreen, ListLabelNamesAssociatesInTheSalesStyle) {
    session.settings.program.optBusinessType0 = false;
    open();
    EXPECT_EQ("Select Associate", frm.Label1[0].caption);
}

TEST_F(WorkSchedulesScreen, OverviewListsASlipOfEveryStatusWithinTheRange) {
    save(slip(1, "320-1", kMonday, 0, 4, "Unscheduled Ann", slipstatus::Unscheduled));
    save(slip(2, "320-2", kTuesday, 5, 4, "Scheduled Bob"));
    save(slip(3, "320-3", QDate(2026, 11, 29), 9, 4, "Invoiced Cy", slipstatus::Invoiced));
    save(slip(1, "320-4", QDate(2026, 11, 30), 9, 4, "Outside Di"));
    open();
    ASSERT_EQ(4, frm.fgOverview.Rows()); // the heading and three slips, no empty row at the end
    QStringList names;
    for (int r = 1; r < frm.fgOverview.Rows(); ++r)
        names << frm.fgOverview.TextMatrix(r, frmWorkSchedules::kCustomer);
    names.sort();
    EXPECT_EQ(QStringList({"Invoiced Cy", "Scheduled Bob", "Unscheduled Ann"}), names);
    for (int r = 1; r < frm.fgOverview.Rows(); ++r) {
        if (frm.fgOverview.TextMatrix(r, frmWorkSchedules::kCustomer) != "Scheduled Bob") continue;
        EXPECT_EQ("11/24/2026", frm.fgOverview.TextMatrix(r, frmWorkSchedules::kScheduled));
        EXPECT_EQ("A-320-2", frm.fgOverview.TextMatrix(r, frmWorkSchedules::kAccountNo));
        EXPECT_EQ("Service Van", frm.fgOverview.TextMatrix(r, frmWorkSchedules::kServicePoint));
    }
    // A wider range and Load take in the later slip too.
    frm.DTEnd.value = QDate(2026, 12, 4);
    frm.DTEnd_Change();
    frm.cmdWorkSchedules_Click(frmWorkSchedules::kLoadOverview);
    EXPECT_EQ(5, frm.fgOverview.Rows());
}

TEST_F(WorkSchedulesScreen, StartDateSkipsHolidaysAndWeekendsAndTheEndFollowsAWeekOn) {
    t.writeBytes("/Holidays.txt", "#2026-11-26#\r\n");
    open();
    frm.DTStart.value = QDate(2026, 11, 26);
    frm.DTStart_Change();
    EXPECT_EQ(QDate(2026, 11, 27), frm.DTStart.value);
    EXPECT_EQ(QDate(2026, 12, 4), frm.DTEnd.value);
    frm.DTStart.value = QDate(2026, 11, 28); // a Saturday
    frm.DTStart_Change();
    EXPECT_EQ(QDate(2026, 11, 30), frm.DTStart.value);
    EXPECT_EQ(QDate(2026, 12, 7), frm.DTEnd.value);
}

TEST_F(WorkSchedulesScreen, EndBeforeStartBeepsAndBecomesAWeekAfterTheStart) {
    open();
    frm.DTStart.value = QDate(2026, 12, 1);
    frm.DTStart_Change();
    const int beeps = fake.dialogs.beeps();
    frm.DTEnd.value = QDate(2026, 11, 25);
    frm.DTEnd_Change();
    EXPECT_EQ(beeps + 1, fake.dialogs.beeps());
    EXPECT_EQ(QDate(2026, 12, 8), frm.DTEnd.value);
}

TEST_F(WorkSchedulesScreen, PickerBeforeTodayReturnsToTodayWithABeep) {
    open();
    frm.lstAssociates.SetListIndex(0);
    frm.lstAssociates_Click();
    const int beeps = fake.dialogs.beeps();
    frm.DTPicker1.value = QDate(2026, 11, 20);
    frm.DTPicker1_Change();
    EXPECT_EQ(kMonday, frm.DTPicker1.value);
    EXPECT_EQ(beeps + 1, fake.dialogs.beeps());
    EXPECT_TRUE(frm.cmdWorkSchedules[frmWorkSchedules::kLoadDay].enabled);
}

TEST_F(WorkSchedulesScreen, EmptyDayGivesNoFoundMarkAtAll) {
    save(slip(1, "320-1", kMonday, 5, 4, "Ann Archer"), {service("Furnace Tune-up", 4)});
    open();
    loadDay(0, kMonday); // no day file: the first row is empty
    EXPECT_FALSE(frm.lblFound.visible);
    EXPECT_FALSE(frm.shpFound.visible);
    EXPECT_FALSE(frm.fraOverview.visible);
    EXPECT_TRUE(frm.fgSchedule.visible);
    EXPECT_FALSE(frm.cmdWorkSchedules[frmWorkSchedules::kPrint].enabled);
    writeDay(1, kMonday, {});
    loadDay(0, kMonday); // a file of empty lines: the same
    EXPECT_FALSE(frm.lblFound.visible);
    EXPECT_FALSE(frm.shpFound.visible);
    EXPECT_EQ(0, frm.lstWorkorders.ListCount());
}

TEST_F(WorkSchedulesScreen, FirstRowFreeAndALaterRowBookedShowsTheRawDayFile) {
    save(slip(1, "320-1", kMonday, 5, 4, "Ann Archer"), {service("Furnace Tune-up", 4)});
    writeDay(1, kMonday, {{5, "Ann Archer"}, {6, "Furnace Tune-up"}, {7, "Furnace Tune-up"}});
    open();
    loadDay(0, kMonday);
    EXPECT_EQ("Ann Archer", cell(5, 2));
    EXPECT_EQ("Furnace Tune-up", cell(6, 2));
    EXPECT_EQ("", cell(5, 1)); // nothing painted: the slip was never looked for
    EXPECT_FALSE(frm.lblFound.visible);
    EXPECT_EQ(0, frm.lstWorkorders.ListCount());
}

TEST_F(WorkSchedulesScreen, BookedFirstRowPaintsTheDaysSlipsAndShowsTheGreenMark) {
    save(slip(1, "320-1", kMonday, 1, 6, "Ann Archer"), {service("Furnace Tune-up", 4), service("Filter Change", 2)},
         true);
    save(slip(1, "320-2", kMonday, 9, 1, "Bob Baker"), {service("Thermostat Check", 1)});
    save(slip(2, "320-3", kMonday, 1, 4, "Other Point"), {service("Duct Cleaning", 4)});
    save(slip(1, "320-4", kTuesday, 1, 4, "Other Day"), {service("Duct Cleaning", 4)});
    writeDay(1, kMonday, {{1, "Ann Archer"}, {2, "Furnace Tune-up"}});
    open();
    loadDay(0, kMonday);
    EXPECT_EQ(2, frm.lstWorkorders.ListCount());
    EXPECT_TRUE(frm.lblFound.visible);
    EXPECT_TRUE(frm.shpFound.visible);
    EXPECT_EQ("Appiontments Found", frm.lblFound.caption);
    EXPECT_EQ(frmWorkSchedules::kFoundGreen, frm.FoundColour);
    EXPECT_TRUE(frm.cmdWorkSchedules[frmWorkSchedules::kPrint].enabled);

    // Ann: start row 1, six slots; the first service of four slots, then one of two.
    EXPECT_EQ("Ann Archer", cell(1, 1));
    EXPECT_EQ("Furnace Tune-up", cell(1, 2));
    EXPECT_EQ("Tel.  217-555-0100", cell(2, 1));
    EXPECT_EQ("See Items Required List", cell(2, 2));
    for (int r = 3; r <= 4; ++r)
        EXPECT_EQ("   ------Scheduled------", cell(r, 2)) << r;
    // The second service starts four rows on, over the marker the first one's loop left there (the
    // loop runs to the slip's slot count); being two slots long it stops after its Tel row.
    EXPECT_EQ("Filter Change", cell(5, 2));
    EXPECT_EQ("Tel.  217-555-0100", cell(6, 1));
    EXPECT_EQ("See Items Required List", cell(6, 2));
    // Bob: one slot, his name and the service only.
    EXPECT_EQ("Bob Baker", cell(9, 1));
    EXPECT_EQ("Thermostat Check", cell(9, 2));
    EXPECT_EQ("", cell(10, 1));
    EXPECT_EQ("", cell(10, 2));
}

TEST_F(WorkSchedulesScreen, BookedDayWithoutSlipsShowsTheRedMark) {
    writeDay(2, kMonday, {{1, "Vacation"}, {2, "Vacation"}});
    open();
    loadDay(1, kMonday);
    EXPECT_TRUE(frm.lblFound.visible);
    EXPECT_EQ(" No Appiontments Found", frm.lblFound.caption);
    EXPECT_EQ(frmWorkSchedules::kNotFoundRed, frm.FoundColour);
    EXPECT_EQ("Vacation", cell(1, 2)); // the day file stays on show
    frm.DTPicker1.value = kTuesday;
    frm.DTPicker1_Change();
    EXPECT_FALSE(frm.lblFound.visible);
    EXPECT_FALSE(frm.shpFound.visible);
}

TEST_F(WorkSchedulesScreen, ServicesRunningPastTheLastRowStopWithAMessageNamingTheSlip) {
    save(slip(1, "320-1", kMonday, 46, 6, "Late Larry"), {service("Overhaul", 6)});
    writeDay(1, kMonday, {{1, "Early"}});
    open();
    fake.dialogs.expect("Appointment Too Long",
                        "The services of the appointment 1 - 320-1 (\\Appointments\\1 - 320-1.txt) run past the "
                        "last row of the day. The day is shown only as far as it goes.");
    loadDay(0, kMonday);
    fake.dialogs.verify();
    EXPECT_EQ("Late Larry", cell(46, 1));
    EXPECT_EQ("   ------Scheduled------", cell(48, 2));
}

TEST_F(WorkSchedulesScreen, ClickOnAnOverviewRowLoadsThatDayAndPoint) {
    save(slip(2, "320-3", kTuesday, 1, 4, "Cy Carter"), {service("Duct Cleaning", 4)});
    writeDay(2, kTuesday, {{1, "Cy Carter"}});
    open();
    ASSERT_EQ(2, frm.fgOverview.Rows());
    frm.fgOverview.row = 1;
    frm.fgOverview_Click();
    EXPECT_EQ(kTuesday, frm.DTPicker1.value);
    EXPECT_EQ(1, frm.lstAssociates.listIndex);
    EXPECT_FALSE(frm.fraOverview.visible);
    EXPECT_EQ("Cy Carter", cell(1, 1));
    EXPECT_EQ("Appiontments Found", frm.lblFound.caption);
}

TEST_F(WorkSchedulesScreen, RightClickOnATelRowHandsItsColumnsToTheDialer) {
    save(slip(1, "320-1", kMonday, 1, 4, "Ann Archer"), {service("Furnace Tune-up", 4)});
    writeDay(1, kMonday, {{1, "Ann Archer"}});
    open();
    loadDay(0, kMonday);
    frm.fgSchedule.row = 1;
    frm.fgSchedule_RightClick();
    EXPECT_TRUE(dialed.isEmpty()); // the name row is no telephone row
    frm.fgSchedule.row = 2;
    frm.fgSchedule_RightClick();
    EXPECT_EQ(QStringList({"   ------Scheduled------", "6:15"}), dialed);
}

TEST_F(WorkSchedulesScreen, MoreThanTwoHundredFiftyFiveSlipsAreCutWithAMessageNamingTheFolder) {
    for (int i = 1; i <= 256; ++i)
        save(slip(1, QStringLiteral("320-%1").arg(i), kMonday, 1, 1, QStringLiteral("C%1").arg(i)));
    fake.dialogs.expect("Too Many Appointments", "The folder \\Appointments holds 256 appointments. This screen "
                                                 "lists 255 of them; the others are not shown here.");
    frm.Show();
    fake.dialogs.verify();
    EXPECT_EQ(255, frm.SlipFiles.size());
    EXPECT_EQ(256, frm.fgOverview.Rows());
}

TEST_F(WorkSchedulesScreen, SlipCutShortIsNamedAndTheOthersStillList) {
    save(slip(1, "320-1", kMonday, 1, 4, "Ann Archer"));
    t.writeBytes("/Appointments/1 - 320-2.txt", "\"Scheduled\"\r\n");
    fake.dialogs.expect("Appointment Files Not Read",
                        "These appointment files in \\Appointments could not be read and were left out:\n1 - 320-2");
    frm.Show();
    fake.dialogs.verify();
    EXPECT_EQ(2, frm.fgOverview.Rows());
}

TEST_F(WorkSchedulesScreen, ToggleSwapsTheOverviewAndTheDayGrid) {
    open();
    EXPECT_TRUE(frm.fraOverview.visible);
    frm.mnuToggle_Click();
    EXPECT_FALSE(frm.fraOverview.visible);
    EXPECT_TRUE(frm.fgSchedule.visible);
    frm.mnuToggle_Click();
    EXPECT_TRUE(frm.fraOverview.visible);
}

TEST_F(WorkSchedulesScreen, PrintingAskUntilYesThenClearsTheGrid) {
    save(slip(1, "320-1", kMonday, 1, 4, "Ann Archer"), {service("Furnace Tune-up", 4)});
    writeDay(1, kMonday, {{1, "Ann Archer"}});
    open();
    loadDay(0, kMonday);
    fake.dialogs.expect("Confirm Print", "Did the Schedule Print Correctly?", vbNo);
    fake.dialogs.expect("Confirm Print", "Did the Schedule Print Correctly?", vbYes);
    frm.cmdWorkSchedules_Click(frmWorkSchedules::kPrint);
    fake.dialogs.verify();
    EXPECT_EQ(1, fake.printDialogs.shown()); // one dialog, two sheets
    EXPECT_EQ(2, fake.printDialogs.lastJob().documentsEnded());
    EXPECT_TRUE(fake.printDialogs.lastJob().printed("Ann Archer") == false); // row 1's account never prints
    EXPECT_TRUE(fake.printDialogs.lastJob().printed("Furnace Tune-up"));
    EXPECT_EQ("", cell(1, 1));
    EXPECT_EQ("", cell(1, 2));
    EXPECT_FALSE(frm.cmdWorkSchedules[frmWorkSchedules::kLoadDay].enabled);
    EXPECT_FALSE(frm.cmdWorkSchedules[frmWorkSchedules::kPrint].enabled);
}

TEST_F(WorkSchedulesScreen, CancelledPrintSaysTheReportWillNotBePrintedAndKeepsTheGrid) {
    save(slip(1, "320-1", kMonday, 1, 4, "Ann Archer"), {service("Furnace Tune-up", 4)});
    writeDay(1, kMonday, {{1, "Ann Archer"}});
    open();
    loadDay(0, kMonday);
    fake.printDialogs.answer(RecordingPrintDialogs::Answer::Cancel);
    fake.dialogs.expect("", "The Report will not be Printed");
    frm.cmdWorkSchedules_Click(frmWorkSchedules::kPrint);
    fake.dialogs.verify();
    EXPECT_EQ("Ann Archer", cell(1, 1));
}

TEST_F(WorkSchedulesScreen, MenuReturnsToTheMainMenu) {
    open();
    frm.cmdWorkSchedules_Click(frmWorkSchedules::kMenu);
    EXPECT_FALSE(frm.isVisible());
    EXPECT_TRUE(session.startup().isVisible());
}
