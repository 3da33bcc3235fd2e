// The appointment routines and the blocked days at their largest: 254 slips listed, a year of day
// files of 8 Points of Service searched, 30 work days reserved for all of them. Prints each median
// beside a bare loop over the same files; each should stay within 3 times its loop and under 100 ms.
#include "BenchPlatform.h"
#include "BenchUtil.h"
#include "scheduling/AppointmentSlip.h"
#include "scheduling/DaySchedule.h"
#include "scheduling/DayScheduleStore.h"
#include "scheduling/frmAppointments.h"
#include "scheduling/frmBlock.h"
#include "shell/Session.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

using namespace ostrel;

namespace {

constexpr int kRuns = 15;
constexpr int kSlips = 254;
constexpr int kPointsOfService = 8;

void writeServiceAreas(const QString& root) {
    QFile f(root + "/ServiceAreas.txt");
    if (!f.open(QIODevice::WriteOnly)) qFatal("cannot write ServiceAreas.txt");
    for (int i = 1; i <= kPointsOfService; ++i)
        f.write(QStringLiteral("\"Crew %1\"\r\n").arg(i).toLatin1());
}

void writeSlips(DiskRoutines& disk, const QDate& today) {
    disk.MakeDirectoryIfAbsent(QStringLiteral("/Appointments"));
    for (int i = 0; i < kSlips; ++i) {
        AppointmentSlip s;
        s.Status = i % 3 == 0 ? slipstatus::Unscheduled : slipstatus::Scheduled;
        s.SlipDate = today.addDays(i % 40 - 20);
        s.SlipName = SlipName(i % kPointsOfService + 1, QStringLiteral("%1-%2").arg(100 + i / 9).arg(i % 9 + 1));
        s.SlipPointOfService = static_cast<qint16>(i % kPointsOfService + 1);
        s.Slots = 4;
        s.SlipStartRow = static_cast<qint16>(i % 40 + 1);
        s.Customer = {QString::number(1000 + i), QStringLiteral("Customer %1").arg(i), "12 Elm St", "", "Springfield",
                      "IL", "62701", "217-555-0100"};
        s.SlipComment = QStringLiteral("Gate code %1, dog in the yard").arg(i);
        WriteSlip(disk, s);
    }
}

void writeYear(DiskRoutines& disk, int year) {
    DaySchedule reserved;
    DaySchedule booked;
    for (int r = 1; r <= 48; ++r)
        reserved.setSlot(r, QStringLiteral("Vacation"));
    booked.setSlot(9, QStringLiteral("Customer-Tune Up"));
    const int days = QDate(year, 12, 31).dayOfYear();
    for (int n = 1; n <= kPointsOfService; ++n)
        for (int d = 1; d <= days; ++d)
            writeDaySchedule(disk, year, n, d, d % 5 == 0 ? reserved : booked);
}

// What any reader must do at least: open each file and read it.
int bareRead(const QStringList& paths) {
    int bytes = 0;
    for (const QString& p : paths) {
        QFile f(p);
        if (f.open(QIODevice::ReadOnly)) bytes += int(f.readAll().size());
    }
    return bytes;
}

} // namespace

int main() {
    QTemporaryDir dir;
    if (!dir.isValid()) qFatal("no temporary folder");
    writeServiceAreas(dir.path());
    bench::BenchPlatform platform(dir.path());
    Session session(dir.path(), platform.platform);
    auto& appointments = session.AddScreen(ScreenId::frmAppointments, std::make_unique<frmAppointments>(session));
    auto& block = session.AddScreen(ScreenId::frmBlock, std::make_unique<frmBlock>(session));
    session.settings.program.ckPrompts = 0;
    session.LoadServiceAreas();
    const QDate today = session.today();
    writeSlips(session.disk, today);
    appointments.Load();

    // 1. LoadAppointments over 254 slips.
    QStringList slipPaths;
    for (const QString& name : QDir(dir.path() + "/Appointments").entryList(QDir::Files))
        slipPaths << dir.path() + "/Appointments/" + name;
    const double list = bench::medianMs(kRuns, [&] { appointments.LoadAppointments(frmAppointments::kDelete); });
    const double listLoop = bench::medianMs(kRuns, [&] { bareRead(slipPaths); });
    if (appointments.fgAppointments.Rows() != kSlips + 1) qFatal("LoadAppointments listed %d rows", appointments.fgAppointments.Rows());

    // 2. cmdSearch over a full year of day files of 8 Points of Service.
    const int year = today.year() + 1;
    writeYear(session.disk, year);
    block.Form_Activate();
    block.DTStart.value = QDate(year, 1, 1);
    block.DTEnd.value = QDate(year, 12, 31);
    QStringList dayPaths;
    for (int n = 1; n <= kPointsOfService; ++n)
        for (int d = 1; d <= QDate(year, 12, 31).dayOfYear(); ++d)
            dayPaths << dir.path() + daySchedulePath(year, n, d);
    const double search = bench::medianMs(kRuns, [&] { block.cmdSearch_Click(); });
    const double searchLoop = bench::medianMs(kRuns, [&] {
        for (const QString& p : dayPaths) {
            QFile f(p);
            if (f.exists() && f.open(QIODevice::ReadOnly)) f.readLine();
        }
    });

    // 3. Reserving 30 work days for "All Assignments", on days that hold nothing.
    const QDate first(year + 1, 2, 2);
    QStringList written;
    const auto clearRun = [&] {
        for (const QString& p : written)
            QFile::remove(p);
        block.Calender.value = first;
        block.Calender_DateClick();
        block.lstAssignto.SetListIndex(kPointsOfService);
        block.sldTimeReq.SetValue(30);
        block.sldTimeReq_Change();
    };
    clearRun();
    block.cmdAccept_Click();
    for (const QFileInfo& info : QDir(dir.path() + QStringLiteral("/%1").arg(year + 1)).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot))
        for (const QString& f : QDir(info.filePath()).entryList(QDir::Files))
            written << info.filePath() + u'/' + f;
    if (written.size() != 30 * kPointsOfService) qFatal("reserve wrote %d files", int(written.size()));
    const double reserve = bench::medianMs(kRuns, [&] { block.cmdAccept_Click(); }, clearRun);
    QByteArray bytes;
    for (int r = 0; r < 48; ++r)
        bytes += "\"Vacation\"\r\n";
    const double reserveLoop = bench::medianMs(kRuns, [&] {
        for (const QString& p : written) {
            QFile f(p);
            if (f.open(QIODevice::WriteOnly | QIODevice::Truncate)) f.write(bytes);
        }
    }, [&] { for (const QString& p : written) QFile::remove(p); });

    bench::report("LoadAppointments, 254 slips", list);
    bench::report("  bare loop reading the 254 slip files", listLoop);
    bench::report("cmdSearch, 8 Points of Service x a full year", search);
    bench::report("  bare loop reading line 1 of the same files", searchLoop);
    bench::report("Reserve 30 work days for All Assignments", reserve);
    bench::report("  bare loop writing the same 240 files", reserveLoop);
    std::printf("ratios: list %.2f, search %.2f, reserve %.2f (boxes answered: %d)\n", list / listLoop,
                search / searchLoop, reserve / reserveLoop, platform.dialogs.boxes);
    return 0;
}
