#include "DataFolderReport.h"

#include "RecordFormats.h"
#include "setup/PointOfServiceNames.h"
#include "store/DataRoot.h"
#include "store/StoreError.h"

#include <QFile>
#include <QRegularExpression>

namespace ostrel {

namespace {

constexpr int kMostRecords = 32767;
constexpr int kDayFileLines = 48;

int countLines(const QString& path) {
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) return -1;
    const QByteArray b = f.readAll();
    int lines = static_cast<int>(b.count('\n'));
    if (!b.isEmpty() && !b.endsWith('\n')) ++lines;
    return lines;
}

} // namespace

DataFolderReport InspectDataFolder(const DataRoot& root) {
    DataFolderReport r;
    for (const RecordFormat& k : KnownRecordFormats()) {
        DataFolderReport::RecordFile f;
        f.name = k.name;
        f.recordLength = k.length;
        const DataRoot::Entry e = root.resolve(f.name);
        f.present = e.isFile();
        if (f.present) {
            f.bytes = e.size;
            QFile file(e.path);
            if (!file.open(QIODevice::ReadOnly)) {
                r.problems << QStringLiteral("%1: the file cannot be read: %2").arg(f.name, file.errorString());
            } else {
                const RecordFileVerdict v = JudgeRecordFile(k, file.readAll());
                f.records = v.wholeRecords;
                f.partialBytes = v.partialBytes;
                for (const QString& p : v.problems) r.problems << f.name + QStringLiteral(": ") + p + u'.';
                for (const QString& n : v.notes) r.notes << f.name + QStringLiteral(": ") + n + u'.';
            }
            if (f.records > kMostRecords)
                r.problems << QStringLiteral("%1: %2 records, more than the %3 the program can number.")
                                  .arg(f.name)
                                  .arg(f.records)
                                  .arg(kMostRecords);
        }
        r.recordFiles.append(f);
    }
    const DataRoot::Entry areas = root.resolve(kServiceAreasFile);
    if (areas.isFile()) {
        QFile file(areas.path);
        if (file.open(QIODevice::ReadOnly)) {
            const QString damage = JudgeServiceAreas(file.readAll());
            if (!damage.isEmpty()) r.problems << kServiceAreasFile + QStringLiteral(": ") + damage;
        }
    }

    static const QRegularExpression year(QStringLiteral("^\\d{4}$"));
    static const QRegularExpression pos(QStringLiteral("^DaySchedules\\d+$"), QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression day(QStringLiteral("^\\d{1,3}\\.txt$"), QRegularExpression::CaseInsensitiveOption);
    for (const QString& y : root.list(QStringLiteral("/"))) {
        if (!year.match(y).hasMatch() || !root.resolve(u'/' + y).isDirectory()) continue;
        for (const QString& p : root.list(u'/' + y)) {
            if (!pos.match(p).hasMatch()) continue;
            ++r.pointsOfServiceFolders;
            for (const QString& d : root.list(u'/' + y + u'/' + p)) {
                if (!day.match(d).hasMatch()) continue;
                ++r.dayFiles;
                const QString name = u'/' + y + u'/' + p + u'/' + d;
                const int lines = countLines(root.path(name));
                if (lines != kDayFileLines)
                    r.problems << QStringLiteral("%1: a day file holds %2 lines, not %3.").arg(name).arg(lines).arg(kDayFileLines);
            }
        }
    }
    r.slips = static_cast<int>(root.list(QStringLiteral("/Appointments")).size());
    r.invoices = static_cast<int>(root.list(QStringLiteral("/CompletedInvoices")).size());
    r.auxFolders = static_cast<int>(root.list(QStringLiteral("/AuxFiles")).size());
    return r;
}

QString DataFolderReport::toText() const {
    QString out;
    for (const RecordFile& f : recordFiles) {
        if (!f.present) {
            out += QStringLiteral("%1  absent\n").arg(f.name, -24);
            continue;
        }
        out += QStringLiteral("%1  %2 records of %3 bytes%4\n")
                   .arg(f.name, -24)
                   .arg(f.records, 6)
                   .arg(f.recordLength)
                   .arg(f.partialBytes ? QStringLiteral(" + %1 bytes").arg(f.partialBytes) : QString());
    }
    out += QStringLiteral("Day schedule folders      %1\n").arg(pointsOfServiceFolders);
    out += QStringLiteral("Day files                 %1\n").arg(dayFiles);
    out += QStringLiteral("Appointment slips         %1\n").arg(slips);
    out += QStringLiteral("Completed invoices        %1\n").arg(invoices);
    out += QStringLiteral("Customer aux folders      %1\n").arg(auxFolders);
    for (const QString& n : notes) out += QStringLiteral("Note: ") + n + u'\n';
    if (problems.isEmpty()) {
        out += QStringLiteral("No problems found.\n");
    } else {
        out += QStringLiteral("%1 problem(s):\n").arg(problems.size());
        for (const QString& p : problems) out += QStringLiteral("  ") + p + u'\n';
    }
    return out;
}

} // namespace ostrel
