#include "AppointmentRoad.h"
#include "Screenshot.h"
#include "scheduling/WorkDays.h"

using namespace ostrel;
using ostrel::test::ProgramWindows;
using ostrel::test::saveShot;

TEST_F(ProgramWindows, TheRoadOfOneAppointmentFromAFirstRunToItsFilesOnDisk) {
    test::WriteRoadCatalogue(t);
    start();
    ASSERT_NO_FATAL_FAILURE(test::FirstRunThroughSetup(*this, "Prairie Comfort", "217-555-0142",
                                                       {"Crew One", "Crew Two"}));
    EXPECT_EQ(t.readBytes("/ServiceAreas.txt"), "\"Crew One\"\r\n\"Crew Two\"\r\n");

    ASSERT_NO_FATAL_FAILURE(test::OpenCreateAnAppointment(*this));
    ASSERT_NO_FATAL_FAILURE(test::TypeCustomer({"1001", "Ann", "Archer", "12 Elm St", "217-555-0101"}));
    saveShot(*window("frmNewCustomer"), "road-1-customer");
    ASSERT_NO_FATAL_FAILURE(test::SelectCustomer(*this));
    EXPECT_EQ(window("frmCreate")->windowTitle(), "Appointment Creation");
    saveShot(*window("frmCreate"), "road-2-create-shown");

    ASSERT_NO_FATAL_FAILURE(test::AddService("Tune Up"));
    ASSERT_NO_FATAL_FAILURE(test::AddService("Inspection"));
    saveShot(*window("frmCreate"), "road-3-services");
    ASSERT_NO_FATAL_FAILURE(test::AddSalesItem("Parts", "Filter", "2"));
    saveShot(*window("frmCreate"), "road-4-item");
    ASSERT_NO_FATAL_FAILURE(test::CreateAndOpenTheDay());
    saveShot(*window("frmCreate"), "road-5-day");
    ASSERT_NO_FATAL_FAILURE(test::ClickDayRow(10));
    saveShot(*window("frmCreate"), "road-6-placed");
    ASSERT_NO_FATAL_FAILURE(test::SaveDaySchedule());
    EXPECT_TRUE(shown("frmStartup"));
    EXPECT_FALSE(shown("frmCreate"));

    // The files of the appointment, byte for byte. The first slip of today on the first Point of
    // Service, on the first work day from today.
    const QDate today = QDate::currentDate();
    const QDate day = SkipToWorkDay(today, 5);
    const QByteArray name = "1 - " + QByteArray::number(today.dayOfYear()) + "-1";
    EXPECT_EQ(t.readBytes("/Appointments/" + QString::fromLatin1(name) + ".txt"),
              "\"Scheduled\"\r\n#" + day.toString(Qt::ISODate).toLatin1() + "#\r\n\"" + name +
                  "\"\r\n1\r\n5\r\n10\r\n\"1001\"\r\n\"Ann Archer\"\r\n\"12 Elm St\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n"
                  "\"217-555-0101\"\r\nNo Customer Instructions\r\n");
    EXPECT_EQ(t.readBytes("/Services/" + QString::fromLatin1(name) + ".txt"),
              "\"Tune Up\"\r\n45\r\n4\r\n\"Inspection\"\r\n20\r\n1\r\n");
    EXPECT_EQ(t.readBytes("/SoldItems/" + QString::fromLatin1(name) + ".txt"), "2\r\nFilter\r\n$12.50\r\n");
    QByteArray dayFile;
    for (int r = 1; r <= 48; ++r) {
        QByteArray text;
        if (r == 10) text = "Ann Archer";
        if (r >= 11 && r <= 13) text = "Tune Up";
        if (r == 14) text = "Ann Archer Inspection";
        dayFile += '"' + text + "\"\r\n";
    }
    EXPECT_EQ(t.readBytes(QStringLiteral("/%1/DaySchedules1/%2.txt").arg(today.year()).arg(day.dayOfYear())),
              dayFile);
    EXPECT_EQ(t.readBytes("/SlipCounter.txt"), "\"" + QByteArray::number(today.dayOfYear()) + "\",2\r\n");
    // The customer file's one box said so on the way.
    EXPECT_TRUE(boxes.said.contains(QStringLiteral("Your Customer File is Empty\nCreate your First Customer Now")))
        << boxes.said.join(u'|').toStdString();
    EXPECT_EQ(boxes.said.size(), 1) << boxes.said.join(u'|').toStdString();
}
