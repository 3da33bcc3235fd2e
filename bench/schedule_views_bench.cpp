// Times the two schedule screens on full data: frmDisplay showing a group of four Points of Service
// whose days are full, and the overview of frmWorkSchedules over 254 slips. Each is timed in turn
// with a bare read of the same files, the floor any screen stands on, and their medians compared.
#include "BenchPlatform.h"
#include "BenchUtil.h"
#include "scheduling/AppointmentSlip.h"
#include "scheduling/DayScheduleStore.h"
#include "scheduling/frmDisplay.h"
#include "scheduling/frmWorkSchedules.h"
#include "shell/Session.h"
#include "store/TextStatements.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

using namespace ostrel;

namespace {

constexpr int kRuns = 15;
constexpr int kSlips = 254;
// The group of four takes some tens of microseconds: many more runs keep its median steady.
constexpr int kQuickRuns = 301;

// Every byte of the files, read as a reader must: open, read whole, close.
qint64 bareRead(const QStringList& paths) {
    qint64 bytes = 0;
    for (const QString& p : paths) {
        QFile f(p);
        if (f.open(QIODevice::ReadOnly)) bytes += f.readAll().size();
    }
    return bytes;
}

} // namespace

int main() {
    QTemporaryDir dir;
    if (!dir.isValid()) return 1;
    bench::BenchPlatform world(dir.path());
    Session session(dir.path(), world.platform);
    auto& display = session.AddScreen(ScreenId::frmDisplay, std::make_unique<frmDisplay>(session));
    auto& schedules = session.AddScreen(ScreenId::frmWorkSchedules, std::make_unique<frmWorkSchedules>(session));

    const QDate today = world.clock.today();
    TextWriter names;
    for (int n = 1; n <= 8; ++n)
        names.writeString(QStringLiteral("Crew %1").arg(n));
    session.disk.ReplaceTextFile(QStringLiteral("/ServiceAreas.txt"), names);
    session.LoadServiceAreas();

    QStringList dayFiles;
    for (int n = 1; n <= 4; ++n) {
        DaySchedule d;
        for (int r = 1; r <= 48; ++r)
            d.setSlot(r, QStringLiteral("Customer %1 - Furnace Tune-up and Duct Cleaning").arg(r));
        writeDaySchedule(session.disk, today.year(), n, today.dayOfYear(), d);
        dayFiles << session.root.path(daySchedulePath(today.year(), n, today.dayOfYear()));
    }
    session.disk.MakeDirectoryIfAbsent(QStringLiteral("/Appointments"));
    QStringList slipFiles;
    for (int i = 1; i <= kSlips; ++i) {
        AppointmentSlip s;
        s.Status = slipstatus::Scheduled;
        s.SlipDate = today.addDays(i % 10);
        s.SlipName = SlipName(i % 8 + 1, QStringLiteral("%1-%2").arg(today.dayOfYear()).arg(i));
        s.SlipPointOfService = static_cast<qint16>(i % 8 + 1);
        s.Slots = 4;
        s.SlipStartRow = static_cast<qint16>(i % 44 + 1);
        s.Customer = {QString::number(10000 + i), QStringLiteral("Customer Number %1").arg(i), "12 Elm St", "",
                      "Springfield", "IL", "62701", "217-555-0100"};
        s.SlipComment = QStringLiteral("Gate code 4411, dog in yard");
        WriteSlip(session.disk, s);
        slipFiles << session.root.path(appointmentFileName(s.SlipName));
    }

    display.Show();
    const auto [group, dayRead] = bench::pairedMediansMs(
        kQuickRuns,
        [&] {
            display.lstTeams.SetListIndex(0);
            display.lstTeams_Click();
        },
        [&] { bareRead(dayFiles); });

    schedules.Show();
    schedules.DTEnd.value = today.addDays(30);
    const auto [overview, slipRead] = bench::pairedMediansMs(
        kRuns, [&] { schedules.cmdWorkSchedules_Click(frmWorkSchedules::kLoadOverview); },
        [&] { bareRead(slipFiles); });

    std::printf("group shown: %s .. %s; overview rows: %d of %d slips; boxes: %d\n",
                qPrintable(display.lblTeam[1].caption), qPrintable(display.lblTeam[4].caption),
                schedules.fgOverview.Rows() - 1, int(schedules.SlipFiles.size()), world.dialogs.boxes);
    bench::report("frmDisplay: a group of four on full days", group);
    bench::report("  bare read of the four day files", dayRead);
    bench::report("frmWorkSchedules: overview of 254 slips", overview);
    bench::report("  bare read of the 254 slip files", slipRead);
    std::printf("group of four %.1f us against its read %.1f us\n", group * 1000, dayRead * 1000);
    std::printf("ratios (targets under 3): group of four %.2f, overview %.2f\n", group / dayRead, overview / slipRead);
    return 0;
}
