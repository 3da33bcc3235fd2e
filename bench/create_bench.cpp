// Times the appointment screen on a full shop: 254 slips in /Appointments, a catalogue of 255
// services and 255 items. Showing the screen lists the slips, forms a new slip number and resets
// the screen; one click on the day grid writes the Services file and paints the rows. Each median
// is printed beside a bare loop that opens and reads the same files once. Targets: showing under
// 50 ms and within three times its loop; the click under 10 ms.
#include "BenchPlatform.h"
#include "BenchUtil.h"
#include "accounts/frmNewCustomer.h"
#include "catalogue/InventoriedItemRecord.h"
#include "catalogue/ServiceRecord.h"
#include "catalogue/ServiceTimes.h"
#include "catalogue/frmServices.h"
#include "scheduling/AppointmentSlip.h"
#include "scheduling/frmCreate.h"
#include "setup/PointOfServiceNames.h"
#include "shell/DataDirectories.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <memory>

using namespace ostrel;

namespace {

constexpr int kSlips = 254;
constexpr int kCatalogue = 255;
constexpr int kRuns = 31;

void writeCatalogue(const QString& root) {
    QFile services(root + QStringLiteral("/Services.txt"));
    QFile items(root + QStringLiteral("/OIInventoriedItems.txt"));
    if (!services.open(QIODevice::WriteOnly) || !items.open(QIODevice::WriteOnly)) qFatal("cannot write the catalogue");
    for (int i = 0; i < kCatalogue; ++i) {
        services.write(ServiceRecord{QStringLiteral("Service number %1").arg(i), QStringLiteral("$%1.00").arg(20 + i),
                                     static_cast<qint16>(1 + i % 4)}
                           .toRecord()
                           .bytes());
        InventoriedItemRecord r;
        r.Description = QStringLiteral("Item %1").arg(i);
        r.Category = QStringLiteral("Category %1").arg(i % 17);
        r.UnitCost = 10000LL * (i + 1);
        r.SellPrice = 15000LL * (i + 1);
        r.OnHand = static_cast<qint16>(i);
        items.write(r.toRecord().bytes());
    }
}

void writeSlips(DiskRoutines& disk, const QDate& today) {
    for (int i = 1; i <= kSlips; ++i) {
        AppointmentSlip slip;
        slip.Status = slipstatus::Scheduled;
        slip.SlipDate = today;
        slip.SlipName = SlipName(1 + i % 2, QStringLiteral("%1-%2").arg(1 + i % 300).arg(i));
        slip.SlipPointOfService = static_cast<qint16>(1 + i % 2);
        slip.Slots = 4;
        slip.SlipStartRow = static_cast<qint16>(1 + i % 40);
        slip.Customer = {QString::number(1000 + i), QStringLiteral("Customer %1").arg(i), QStringLiteral("12 Elm St"),
                         QString(), QStringLiteral("Springfield"), QStringLiteral("IL"), QStringLiteral("62701"),
                         QStringLiteral("217-555-0101")};
        slip.SlipComment = QStringLiteral("Ring twice");
        WriteSlip(disk, slip);
    }
    disk.CloseAllFiles();
}

// What showing the screen reaches on disk, done bare: the slip folder listed and each slip and the
// counter opened and read once.
void bareShowLoop(const QString& root) {
    QDir folder(root + QStringLiteral("/Appointments"));
    qint64 bytes = 0;
    for (const QString& name : folder.entryList({QStringLiteral("*.txt")}, QDir::Files)) {
        QFile f(folder.filePath(name));
        if (f.open(QIODevice::ReadOnly)) bytes += f.readAll().size();
    }
    QFile counter(root + QStringLiteral("/SlipCounter.txt"));
    if (counter.open(QIODevice::ReadOnly)) bytes += counter.readAll().size();
    if (bytes < 0) std::puts("");
}

// What a click reaches on disk, done bare: the Services file written and read back once.
void bareClickLoop(const QString& root, const QByteArray& servicesFile) {
    QFile out(root + QStringLiteral("/Services/bare.txt"));
    if (out.open(QIODevice::WriteOnly | QIODevice::Truncate)) out.write(servicesFile);
    out.close();
    QFile in(out.fileName());
    if (in.open(QIODevice::ReadOnly) && in.readAll().size() < 0) std::puts("");
}

} // namespace

int main() {
    QTemporaryDir dir;
    if (!dir.isValid()) {
        std::fprintf(stderr, "no temporary folder\n");
        return 1;
    }
    const QString root = dir.path();
    bench::BenchPlatform world(root);
    Session session(root, world.platform);
    auto& account =
        session.AddScreen(ScreenId::frmNewCustomer, std::make_unique<frmNewCustomer>(session, session.customer));
    auto& catalogue =
        session.AddScreen(ScreenId::frmServices, std::make_unique<frmServices>(session, session.catalogueLists));
    auto& frm = session.AddScreen(ScreenId::frmCreate, std::make_unique<frmCreate>(session));
    session.RegisterScreen(ScreenId::frmStartup, session.startup());

    const QDate today = session.today();
    PrepareDataDirectories(session.disk, today, session.programName());
    PointOfServiceNames names;
    SaveAssociates(session.disk, {QStringLiteral("Crew One"), QStringLiteral("Crew Two")}, names);
    session.LoadServiceAreas();
    writeCatalogue(root);
    catalogue.Load();
    writeSlips(session.disk, today);
    account.cboAssignments.SetListIndex(0);

    using bench::medianMs;
    frm.Show();
    frm.Hide();
    const double show = medianMs(kRuns, [&] { frm.Show(); }, [&] { frm.Hide(); });
    const double showLoop = medianMs(kRuns, [&] { bareShowLoop(root); });

    // An appointment of two services, placed at row 10 of an empty day.
    for (int i : {0, 3}) {
        frm.lstServices.SetListIndex(i);
        frm.SetServiceChecked(i, true);
        frm.lstServices_Click();
        frm.cmdService_Click(frmCreate::kAddService);
    }
    frm.cmdService_Click(frmCreate::kCreateAppointment);
    const double click = medianMs(
        kRuns,
        [&] {
            frm.fgDaySchedule.row = 10;
            frm.fgDaySchedule_Click();
        },
        [&] {
            frm.cmdService_Click(frmCreate::kDifferentDate);
            frm.cmdService_Click(frmCreate::kScheduleForDate);
        });
    const QByteArray servicesFile =
        QByteArray("\"Service number 0\"\r\n20\r\n2\r\n\"Service number 3\"\r\n23\r\n1\r\n");
    const double clickLoop = medianMs(kRuns, [&] { bareClickLoop(root, servicesFile); });

    std::printf("slips listed: %d, services: %d, items: %d, boxes shown: %d, slots: %d\n",
                frm.lstWorkorders.ListCount(), frm.lstServices.ListCount(), catalogue.fgItems.Rows() - 1,
                world.dialogs.boxes, frm.Slots);
    bench::report("frmCreate shown (254 slips, 255 services, 255 items)", show);
    bench::report("  bare loop: list and read the slips and the counter", showLoop);
    bench::report("one click on the day grid with its Services file", click);
    bench::report("  bare loop: write and read the Services file", clickLoop);
    return 0;
}
