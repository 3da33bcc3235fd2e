// The start-up sequence on the largest data folder the formats allow: 32,767 customers with their
// aux folders, 8 Points of Service with a day file for every day of this year and of last year.
// Compared with a bare loop that checks the same folders and files one by one.
#include "BenchUtil.h"
#include "scheduling/DaySchedulePurge.h"
#include "scheduling/DayScheduleStore.h"
#include "setup/PointOfServiceNames.h"
#include "shell/DataDirectories.h"
#include "store/DiskRoutines.h"
#include "store/Record.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>

using namespace ostrel;

namespace {

constexpr int kCustomers = 32767;
constexpr int kPointsOfService = 8;
const QDate kToday(2026, 12, 31);

QString account(int i) { return QStringLiteral("A%1").arg(100000 + i); }

void writeFile(const QString& path, const QByteArray& bytes) {
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly)) qFatal("cannot write %s", qPrintable(path));
    f.write(bytes);
}

void generate(const QString& root) {
    QByteArray customers;
    customers.reserve(qsizetype(kCustomers) * 328);
    for (int i = 0; i < kCustomers; ++i) {
        Record r(328);
        r.setText(0, 20, account(i));
        r.setText(20, 45, QStringLiteral("Customer %1").arg(i));
        customers += r.bytes();
        const QString aux = root + QStringLiteral("/AuxFiles/") + account(i);
        for (int k = 0; k < 6; ++k) QDir().mkpath(aux + QStringLiteral("/AuxFile%1").arg(k));
    }
    writeFile(root + "/CustomerData.txt", customers);
    QByteArray areas;
    for (int n = 1; n <= kPointsOfService; ++n) areas += QStringLiteral("\"Crew %1\"\r\n").arg(n).toLatin1();
    writeFile(root + "/ServiceAreas.txt", areas);
}

QByteArray emptyDay() {
    QByteArray day;
    for (int i = 0; i < 48; ++i) day += "\"\"\r\n";
    return day;
}

// Every day file of this year and last year, as before the first start of the day.
void layDayFiles(const QString& root) {
    static const QByteArray day = emptyDay();
    for (int year : {kToday.year() - 1, kToday.year()}) {
        for (int n = 1; n <= kPointsOfService; ++n) {
            const QString dir = root + QStringLiteral("/%1/DaySchedules%2").arg(year).arg(n);
            QDir().mkpath(dir);
            for (int d = 1; d <= 366; ++d) {
                const QString f = dir + QStringLiteral("/%1.txt").arg(d);
                if (!QFile::exists(f)) writeFile(f, day);
            }
        }
    }
    QFile::remove(root + "/LastPurged.txt");
}

void startUp(const QString& root) {
    DataRoot dataRoot(root);
    DiskRoutines disk(dataRoot);
    PrepareDataDirectories(disk, kToday, QStringLiteral("OstrelAppointmentScheduler"));
    const PointOfServiceNames names = LoadPointOfServiceNames(disk);
    EnsureDayScheduleDirectories(disk, kToday, names.UpperBound());
    PurgeLastYear(disk, kToday, names.UpperBound());
    PurgePastDays(disk, kToday, kToday.dayOfYear(), names.UpperBound());
}

bool isDir(const QString& p) {
    struct stat st {};
    return ::stat(QFile::encodeName(p).constData(), &st) == 0 && S_ISDIR(st.st_mode);
}
bool isFile(const QString& p) {
    struct stat st {};
    return ::stat(QFile::encodeName(p).constData(), &st) == 0 && S_ISREG(st.st_mode);
}

// The same guarantee checked the plainest way: one test per folder and per day file.
long bareLoop(const QString& root) {
    long found = 0;
    for (const char* d : {"/2026", "/OstrelAppointmentScheduler", "/Templates", "/OIActiveAccounts", "/Backup",
                          "/Backup/OIActiveAccounts", "/Backup/Assignments", "/AuxFiles", "/Appointments",
                          "/SoldItems", "/Services"})
        found += isDir(root + QLatin1String(d));
    for (int i = 0; i < kCustomers; ++i) {
        const QString aux = root + QStringLiteral("/AuxFiles/") + account(i);
        found += isDir(aux);
        for (int k = 0; k < 6; ++k) found += isDir(aux + QStringLiteral("/AuxFile%1").arg(k));
    }
    for (int year : {kToday.year() - 1, kToday.year()})
        for (int n = 1; n <= kPointsOfService; ++n) {
            const QString dir = root + QStringLiteral("/%1/DaySchedules%2").arg(year).arg(n);
            found += isDir(dir);
            for (int d = 1; d <= 366; ++d) found += isFile(dir + QStringLiteral("/%1.txt").arg(d));
        }
    return found;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    // Making 229,000 folders takes minutes, so the tree is kept between runs (pass a folder to choose
    // where; it is made when absent).
    const QString root = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::tempPath() + "/ostrel-startup-bench";
    if (!QFile::exists(root + "/generated")) {
        std::printf("Generating %d customers with aux folders in %s...\n", kCustomers, qPrintable(root));
        QDir().mkpath(root);
        generate(root);
        writeFile(root + "/generated", "");
    }
    layDayFiles(root);
    startUp(root); // the first start makes the remaining fixed folders

    const int runs = 7;
    long checks = 0;
    const double bare = bench::medianMs(runs, [&] { checks = bareLoop(root); }, [&] { layDayFiles(root); });
    const double first = bench::medianMs(runs, [&] { startUp(root); }, [&] { layDayFiles(root); });
    const double steady = bench::medianMs(runs, [&] { startUp(root); });
    std::printf("bare loop made %ld successful checks\n", checks);
    bench::report("bare loop: each folder and day file checked one by one", bare);
    bench::report("start-up deleting 5,840 past day files", first);
    bench::report("start-up with the past days already purged", steady);
    std::printf("ratio steady start-up / bare loop: %.2f (target at most 1.5)\n", steady / bare);
    return 0;
}
