// The work order screen's find on a folder of 255 slips (the most one listing takes), against a
// bare read of the same slip files.
#include "BenchPlatform.h"
#include "BenchUtil.h"
#include "scheduling/AppointmentSlip.h"
#include "shell/Session.h"
#include "workorders/frmTerms.h"
#include "workorders/frmWorkOrders.h"

#include <QDir>
#include <QTemporaryDir>

using namespace ostrel;

namespace {

constexpr int kSlips = frmWorkOrders::kMostSlips;
constexpr int kRuns = 15;

} // namespace

int main() {
    QTemporaryDir dir;
    for (const char* d : {"/Appointments", "/Services", "/SoldItems"})
        QDir().mkpath(dir.path() + QLatin1String(d));
    bench::BenchPlatform platform(dir.path());
    Session session(dir.path(), platform.platform);
    auto& terms = session.AddScreen(ScreenId::frmTerms, std::make_unique<frmTerms>(session));
    auto& frm = session.AddScreen(ScreenId::frmWorkOrders,
                                  std::make_unique<frmWorkOrders>(session, terms,
                                                                  session.catalogueLists.frmWorkOrders.fgAddServices));
    const QDate today = session.today();
    for (int i = 1; i <= kSlips; ++i) {
        AppointmentSlip s;
        s.Status = slipstatus::Scheduled;
        s.SlipDate = today.addDays(i % 20 - 5);
        s.SlipPointOfService = static_cast<qint16>(i % 8 + 1);
        s.SlipName = SlipName(s.SlipPointOfService, QStringLiteral("%1-%2").arg(today.dayOfYear()).arg(i));
        s.Slots = 8;
        s.SlipStartRow = static_cast<qint16>(i % 40 + 1);
        s.Customer = {QStringLiteral("217555%1").arg(i, 4, 10, QLatin1Char('0')), QStringLiteral("Customer %1").arg(i),
                      "88 Orchard Ln", "", "Chatham", "IL", "62629", "217-555-0199"};
        s.SlipComment = "Side gate, dog in the yard";
        WriteSlip(session.disk, s);
    }

    const double bare = bench::medianMs(kRuns, [&] {
        for (const QString& file : session.root.list(QStringLiteral("/Appointments")))
            ReadSlipHeader(session.disk, file.left(file.size() - 4));
    });
    const double load = bench::medianMs(
        kRuns, [&] { frm.LoadWorkorders(); },
        [&] {
            frm.OverviewBuilt = false;
            frm.fgOverview.SetRows(2);
        });
    const double activate = bench::medianMs(kRuns, [&] { frm.Form_Activate(); });
    bench::report("bare read of 255 slip headers (median)", bare);
    bench::report("LoadWorkorders of 255 slips, overview built (median)", load);
    bench::report("activation of the work order screen, 255 slips (median)", activate);
    std::printf("%-58s %10.2f x\n", "LoadWorkorders / bare read", load / bare);
    std::printf("%-58s %10s\n", "target", "3 x bare read and 50 ms");
    return 0;
}
