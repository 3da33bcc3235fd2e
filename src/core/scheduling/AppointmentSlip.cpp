#include "AppointmentSlip.h"

#include "store/DiskRoutines.h"
#include "store/StoreError.h"
#include "util/VbText.h"

#include <algorithm>

namespace ostrel {

namespace {

const QString kFileToPrint = QStringLiteral("/FileToPrint.txt");
const QString kSlipCounter = QStringLiteral("/SlipCounter.txt");
const QString kBackupSlipCounter = QStringLiteral("/Backup/SlipCounter.txt");

// Reads one of a file's statements; a file that ends first is reported as cut short, by name.
template <typename Read> auto readStatement(TextReader& in, const QString& what, Read read) {
    if (in.atEnd())
        throw StoreError(in.fileName(), QStringLiteral("The file is cut short: it ends before its %1.").arg(what));
    return read();
}

// An Integer statement; one no Integer holds makes the file a bad file.
qint16 readInt16(TextReader& in) { return static_cast<qint16>(in.readInteger(-32768, 32767)); }

// The comment box's line breaks as the print statement puts them in a file.
QString withFileLineEnds(const QString& text) {
    QString out;
    out.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'\n' && (i == 0 || text[i - 1] != u'\r')) out += u'\r';
        out += text[i];
    }
    return out;
}

enum class CommentRead { Field, WholeLine };

TextWriter slipCounterWriter(const SlipCounter& counter) {
    TextWriter out;
    out.write({counter.day, counter.number});
    return out;
}

TextWriter slipWriter(const AppointmentSlip& slip, bool commentAsItStands = false) {
    TextWriter out;
    out.writeString(slip.Status);
    out.write({slip.SlipDate});
    out.writeString(slip.SlipName);
    out.writeNumber(slip.SlipPointOfService);
    out.writeNumber(slip.Slots);
    out.writeNumber(slip.SlipStartRow);
    for (const QString& field : slip.Customer)
        out.writeString(field);
    out.print(slip.SlipComment.isEmpty() && !commentAsItStands ? kNoCustomerInstructions
                                                                : withFileLineEnds(slip.SlipComment));
    return out;
}

AppointmentSlip readSlipFile(DiskRoutines& disk, const QString& slipName, CommentRead commentRead) {
    TextReader in = disk.ReadTextFile(appointmentFileName(slipName));
    AppointmentSlip s;
    s.Status = readStatement(in, QStringLiteral("status"), [&] { return in.readString(); });
    s.SlipDate = readStatement(in, QStringLiteral("date"), [&] { return in.readDate(); });
    s.SlipName = readStatement(in, QStringLiteral("appointment number"), [&] { return in.readString(); });
    s.SlipPointOfService =
        readStatement(in, QStringLiteral("Point of Service"), [&] { return readInt16(in); });
    s.Slots = readStatement(in, QStringLiteral("time slots"), [&] { return readInt16(in); });
    s.SlipStartRow = readStatement(in, QStringLiteral("start row"), [&] { return readInt16(in); });
    for (QString& field : s.Customer)
        field = readStatement(in, QStringLiteral("customer fields"), [&] { return in.readString(); });
    s.SlipComment = readStatement(in, QStringLiteral("comments"), [&] {
        return commentRead == CommentRead::Field ? in.readString() : in.readLine();
    });
    return s;
}

} // namespace

QString SlipName(int pointOfService, const QString& slipId) {
    return QString::number(pointOfService) + QStringLiteral(" - ") + slipId;
}

QString appointmentFileName(const QString& slipName) {
    return QStringLiteral("/Appointments/") + slipName + QStringLiteral(".txt");
}

QString servicesFileName(const QString& slipName) {
    return QStringLiteral("/Services/") + slipName + QStringLiteral(".txt");
}

QString soldItemsFileName(const QString& slipName) {
    return QStringLiteral("/SoldItems/") + slipName + QStringLiteral(".txt");
}

QStringList ListSlipFiles(DiskRoutines& disk) {
    QStringList names;
    const auto entries = disk.root().entries(QStringLiteral("/Appointments"));
    for (const DataRoot::Listed& e : entries) {
        if (e.kind != DataRoot::Kind::File) continue;
        if (!e.name.endsWith(QLatin1String(".txt"), Qt::CaseInsensitive)) continue;
        names << e.name.chopped(4);
    }
    SortIgnoringCase(names);
    return names;
}

AppointmentSlip ReadSlipHeader(DiskRoutines& disk, const QString& slipName) {
    return readSlipFile(disk, slipName, CommentRead::Field);
}

AppointmentSlip ReadSlip(DiskRoutines& disk, const QString& slipName) {
    return readSlipFile(disk, slipName, CommentRead::WholeLine);
}

QByteArray SlipFileBytes(const AppointmentSlip& slip) {
    return slipWriter(slip).bytes();
}

void WriteSlip(DiskRoutines& disk, const AppointmentSlip& slip) {
    disk.ReplaceTextFile(appointmentFileName(slip.SlipName), slipWriter(slip));
}

void RewriteInvoicedSlip(DiskRoutines& disk, const QString& slipName, const AppointmentSlip& slip) {
    disk.ReplaceTextFile(appointmentFileName(slipName), slipWriter(slip, true));
}

void WriteServicesFile(DiskRoutines& disk, const QString& slipName, const std::vector<SlipService>& services) {
    TextWriter out;
    for (const SlipService& s : services) {
        out.writeString(s.name);
        out.print(QString::fromLatin1(s.cost.statementText())); // a Currency is written bare
        out.writeNumber(s.slots);
    }
    disk.ReplaceTextFile(servicesFileName(slipName), out);
}

void AppendServicesFile(DiskRoutines& disk, const QString& slipName, const std::vector<SlipService>& added) {
    TextWriter& out = disk.OpenForAppend(servicesFileName(slipName));
    for (const SlipService& s : added) {
        out.writeString(s.name);
        out.writeNumber(s.cost.tenThousandths() / 10000);
        out.print(QString::fromLatin1(Money::fromWhole(s.slots).statementText())); // a Currency is written bare
    }
    disk.CloseAllFiles();
}

std::vector<SlipService> ReadServicesFile(DiskRoutines& disk, const QString& slipName) {
    const QString name = servicesFileName(slipName);
    if (!disk.FileExists(name)) return {};
    TextReader in = disk.ReadTextFile(name);
    std::vector<SlipService> services;
    while (!in.atEnd()) {
        SlipService s;
        s.name = in.readString();
        const QByteArray cost = readStatement(in, QStringLiteral("cost of ") + s.name, [&] { return in.readField().raw; });
        const auto money = Money::fromStatementText(cost);
        if (!money)
            throw StoreError(name, QStringLiteral("The cost of %1 is no amount: %2").arg(s.name, QString::fromLatin1(cost)));
        s.cost = *money;
        s.slots = readStatement(in, QStringLiteral("time of ") + s.name, [&] { return readInt16(in); });
        services.push_back(std::move(s));
    }
    return services;
}

void WriteSoldItemsFile(DiskRoutines& disk, const QString& slipName, const std::vector<SlipSoldItem>& items) {
    TextWriter out;
    for (const SlipSoldItem& item : items) {
        out.print(item.quantity);
        out.print(item.description);
        out.print(item.unitCost);
    }
    disk.ReplaceTextFile(soldItemsFileName(slipName), out);
}

std::vector<SlipSoldItem> ReadSoldItemsFile(DiskRoutines& disk, const QString& slipName) {
    const QString name = soldItemsFileName(slipName);
    if (!disk.FileExists(name)) return {};
    TextReader in = disk.ReadTextFile(name);
    std::vector<SlipSoldItem> items;
    while (!in.atEnd()) {
        SlipSoldItem item;
        item.quantity = in.readLine();
        item.description = readStatement(in, QStringLiteral("item description"), [&] { return in.readLine(); });
        item.unitCost = readStatement(in, QStringLiteral("cost of ") + item.description, [&] { return in.readLine(); });
        items.push_back(std::move(item));
    }
    return items;
}

bool SoldItemsFileExists(DiskRoutines& disk, const QString& slipName) {
    return disk.FileExists(soldItemsFileName(slipName));
}

void WriteFileToPrint(DiskRoutines& disk, const QString& slipName) {
    // The new hand-over takes the old one's place in one step: a crash never leaves none.
    TextWriter out;
    out.writeString(slipName);
    disk.ReplaceTextFile(kFileToPrint, out);
}

std::optional<QString> ReadFileToPrint(DiskRoutines& disk) {
    if (!disk.FileExists(kFileToPrint)) return std::nullopt;
    TextReader in = disk.ReadTextFile(kFileToPrint);
    return readStatement(in, QStringLiteral("appointment number"), [&] { return in.readString(); });
}

void DeleteAppointment(DiskRoutines& disk, const QString& fileName) {
    disk.DeleteDataFile(QStringLiteral("/Appointments/") + fileName);
    disk.DeleteDataFile(QStringLiteral("/Services/") + fileName);
    disk.DeleteDataFile(QStringLiteral("/SoldItems/") + fileName);
}

void DeleteSlipFilesByNumber(DiskRoutines& disk, int number) {
    DeleteSlipFilesByNumber(disk, QString::number(number));
}

void DeleteSlipFilesByNumber(DiskRoutines& disk, const QString& slipName) {
    const QString file = slipName + QStringLiteral(".txt");
    disk.DeleteDataFile(QStringLiteral("/Appointmemts/") + file);
    disk.DeleteDataFile(QStringLiteral("/SoldItems/") + file);
    disk.DeleteDataFile(QStringLiteral("/Services/") + file);
}

void LoadWorkSlipCounter(DiskRoutines& disk, const QDate& today, int assignmentCount, SlipCounter& counter) {
    const QString todayText = QString::number(today.dayOfYear());
    counter.day = todayText;
    counter.number = 1;
    std::optional<QByteArray> stored;
    // An absent counter with a copy in /Backup is restored by the existence test.
    if (disk.FileExists(kSlipCounter)) {
        TextReader in = disk.ReadTextFile(kSlipCounter);
        stored = in.bytes();
        const QString day = readStatement(in, QStringLiteral("day"), [&] { return in.readString(); });
        const qint64 number = readStatement(in, QStringLiteral("running number"), [&] { return in.readInteger(); });
        if (day == todayText) counter.number = number;
    }
    counter.SlipId = counter.day + u'-' + QString::number(counter.number);
    // Every showing of the creation screen comes here; a counter that already holds these very bytes
    // is not written again (a safe replace costs a flush to disk), but its backup is dropped as a save
    // would drop it.
    const TextWriter out = slipCounterWriter(counter);
    if (stored && *stored == out.bytes())
        disk.DeleteDataFile(kBackupSlipCounter);
    else
        disk.ReplaceTextFile(kSlipCounter, out);
    for (int i = 1; i <= assignmentCount; ++i) {
        if (disk.FileExists(appointmentFileName(SlipName(i, counter.SlipId)))) DeleteSlipFilesByNumber(disk, i);
    }
}

void SaveSlipCounter(DiskRoutines& disk, const SlipCounter& counter) {
    disk.ReplaceTextFile(kSlipCounter, slipCounterWriter(counter));
}

void UpcountSlipCounter(DiskRoutines& disk, SlipCounter& counter) {
    ++counter.number;
    SaveSlipCounter(disk, counter);
}

} // namespace ostrel
