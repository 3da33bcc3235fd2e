// The saves the crash harness exercises, one function each. Add a new writer here: a function
// returning its SaveKind and one line in AllSaveKinds().
#include "CatalogueSamples.h"
#include "CrashHarness.h"
#include "CrashSaveKindsBooks.h"
#include "accounts/CustomerStore.h"
#include "catalogue/CatalogueFile.h"
#include "catalogue/CatalogueStore.h"
#include "catalogue/ServiceRecord.h"
#include "invoicing/AssociateJournal.h"
#include "invoicing/InvoiceImage.h"
#include "scheduling/AppointmentSlip.h"
#include "scheduling/DayScheduleStore.h"
#include "setup/SetupSettings.h"

namespace ostrel::crash {

namespace {

const QDate kToday(2026, 11, 20);
constexpr int kCustomers = 240;

const std::map<QString, int> kCustomerRecords = {{QStringLiteral("/CustomerData.txt"), CustomerRecord::kLength},
                                                 {QStringLiteral("/CycleInfo.txt"), CycleInfoRecord::kLength},
                                                 {QStringLiteral("/ContractInfo.txt"), ContractInfoRecord::kLength}};

// 240 customers with their companions, each record recognisable by its number.
void writeCustomers(DiskRoutines& disk) {
    CustomerBuffers buffers;
    CustomerStore store(disk, buffers);
    store.ResetCompanionBuffers(kToday);
    store.OpenCustomerFile();
    for (int i = 1; i <= kCustomers; ++i) {
        buffers.customer.SetAccountNumber(QStringLiteral("C%1").arg(i));
        buffers.customer.SetBusinessName(QStringLiteral("Customer number %1").arg(i));
        store.WriteCustomer(i);
    }
    disk.CloseAllFiles();
    for (int i = 1; i <= kCustomers; ++i) {
        buffers.contract.record().setText(0, 35, QStringLiteral("K%1").arg(i));
        buffers.cycle.record().setText(0, 35, QStringLiteral("Y%1").arg(i));
        store.WriteContract(i);
        store.WriteCycle(i);
    }
}

SaveKind customerWrite() {
    SaveKind k;
    k.name = QStringLiteral("customer write with companions");
    k.prepare = writeCustomers;
    k.save = [](DiskRoutines& disk) {
        CustomerBuffers buffers;
        CustomerStore store(disk, buffers);
        store.LoadCustomerAt(120);
        buffers.customer.SetBusinessName(u"Changed name");
        buffers.contract.record().setText(0, 35, u"K-changed");
        buffers.cycle.record().setText(0, 35, u"Y-changed");
        store.SaveCustomerAt(120, kToday);
    };
    k.recordLengths = kCustomerRecords;
    return k;
}

SaveKind customerDelete() {
    SaveKind k;
    k.name = QStringLiteral("customer deletion with compaction");
    k.prepare = writeCustomers;
    k.save = [](DiskRoutines& disk) {
        CustomerBuffers buffers;
        CustomerStore store(disk, buffers);
        store.DeleteCustomer(17, QStringLiteral("C17"), kCustomers);
    };
    k.recordLengths = kCustomerRecords;
    return k;
}

QVector<Record> services(int count, const QString& word) {
    QVector<Record> out;
    for (int i = 1; i <= count; ++i)
        out << ServiceRecord{QStringLiteral("%1 service %2").arg(word).arg(i), QStringLiteral("$%1.00").arg(i), 4}.toRecord();
    return out;
}

SaveKind catalogueSave() {
    SaveKind k;
    k.name = QStringLiteral("catalogue save");
    k.prepare = [](DiskRoutines& disk) {
        WriteCatalogueRecords(disk, ServiceRecord::kFileName, ServiceRecord::kLength, services(120, QStringLiteral("Old")));
        QVector<Record> items, custom;
        for (int i = 1; i <= 120; ++i) {
            items << test::item(QStringLiteral("Item %1").arg(i), QStringLiteral("Parts")).toRecord();
            custom << test::custom(QStringLiteral("Custom %1").arg(i)).toRecord();
        }
        WriteCatalogueRecords(disk, InventoriedItemRecord::kFileName, InventoriedItemRecord::kLength, items);
        WriteCatalogueRecords(disk, CustomItemRecord::kFileName, CustomItemRecord::kLength, custom);
    };
    k.save = [](DiskRoutines& disk) {
        CatalogueGrids grids;
        CatalogueLists lists;
        CatalogueStore store(disk, grids, lists);
        store.LoadCatalogue();
        for (int row = 1; row < grids.fgServices.Rows(); ++row)
            grids.fgServices.SetTextMatrix(row, 0, QStringLiteral("New service %1").arg(row));
        for (int row = 1; row < grids.fgItems.Rows(); ++row)
            grids.fgItems.SetTextMatrix(row, 0, QStringLiteral("New item %1").arg(row));
        for (int row = 1; row < grids.fgCustom.Rows(); ++row)
            grids.fgCustom.SetTextMatrix(row, 0, QStringLiteral("New custom %1").arg(row));
        store.SaveCatalogue();
    };
    k.recordLengths = {{ServiceRecord::kFileName, ServiceRecord::kLength},
                       {InventoriedItemRecord::kFileName, InventoriedItemRecord::kLength},
                       {CustomItemRecord::kFileName, CustomItemRecord::kLength}};
    return k;
}

const QString kProgram = QStringLiteral("OstrelAppointmentScheduler");

SaveKind settingsSave() {
    SaveKind k;
    k.name = QStringLiteral("settings save");
    k.prepare = [](DiskRoutines& disk) {
        SetupSettings settings;
        LoadSetupSettings(disk, kProgram, settings);
        BusinessBoxes boxes;
        boxes[0] = QStringLiteral("Old Company");
        boxes[5] = QStringLiteral("555-123-4567");
        SaveSetupSettings(disk, kProgram, settings, boxes, false);
    };
    k.save = [](DiskRoutines& disk) {
        SetupSettings settings;
        LoadSetupSettings(disk, kProgram, settings);
        BusinessBoxes boxes;
        FillBusinessBoxes(settings.business, boxes);
        boxes[0] = QStringLiteral("New Company Name");
        boxes[1] = QStringLiteral("12 New Street");
        settings.tax.cboRate1 = QStringLiteral("7.25");
        SaveSetupSettings(disk, kProgram, settings, boxes, true);
    };
    return k;
}

SaveKind dayFileSave() {
    SaveKind k;
    k.name = QStringLiteral("day file save");
    k.prepare = [](DiskRoutines& disk) {
        DaySchedule day;
        for (int row = 1; row <= 48; row += 4) day.setSlot(row, QStringLiteral("Old appointment %1").arg(row));
        writeDaySchedule(disk, 2026, 1, 324, day);
    };
    k.save = [](DiskRoutines& disk) {
        DaySchedule day = readDaySchedule(disk, 2026, 1, 324);
        for (int row = 2; row <= 48; row += 3) day.setSlot(row, QStringLiteral("New appointment %1").arg(row));
        writeDaySchedule(disk, 2026, 1, 324, day);
    };
    return k;
}

AppointmentSlip slip(const QString& status, const QString& comment) {
    AppointmentSlip a;
    a.Status = status;
    a.SlipDate = kToday;
    a.SlipName = SlipName(1, QStringLiteral("324-7"));
    a.SlipPointOfService = 1;
    a.Slots = 4;
    a.SlipStartRow = 12;
    a.Customer = {QStringLiteral("A1"), QStringLiteral("Ann Lee"), QStringLiteral("12 Elm St"), QString(),
                  QStringLiteral("Springfield"), QStringLiteral("IL"), QStringLiteral("62701"),
                  QStringLiteral("217-555-0100")};
    a.SlipComment = comment;
    return a;
}

void makeSlipFolders(DiskRoutines& disk) {
    for (const char* f : {"/Appointments", "/Services", "/SoldItems"}) disk.MakeDirectoryIfAbsent(QString::fromLatin1(f));
}

SaveKind appointmentSlipSave() {
    SaveKind k;
    k.name = QStringLiteral("appointment slip with its files");
    k.prepare = [](DiskRoutines& disk) {
        makeSlipFolders(disk);
        const AppointmentSlip a = slip(slipstatus::Scheduled, QStringLiteral("Side door"));
        WriteSlip(disk, a);
        WriteServicesFile(disk, a.SlipName, {{QStringLiteral("Diagnostic Check"), Money::fromTenThousandths(650000), 4}});
        WriteSoldItemsFile(disk, a.SlipName, {{QStringLiteral("1"), QStringLiteral("Igniter"), QStringLiteral("$24.80")}});
        WriteFileToPrint(disk, QStringLiteral("1 - 324-6"));
        SlipCounter counter{QStringLiteral("324"), 7, QStringLiteral("324-7")};
        SaveSlipCounter(disk, counter);
    };
    k.save = [](DiskRoutines& disk) {
        const AppointmentSlip a = slip(slipstatus::Invoiced, QStringLiteral("Rang twice, left a card"));
        WriteSlip(disk, a);
        WriteServicesFile(disk, a.SlipName,
                          {{QStringLiteral("Diagnostic Check"), Money::fromTenThousandths(650000), 4},
                           {QStringLiteral("Furnace Tune-up"), Money::fromTenThousandths(1150000), 6}});
        WriteSoldItemsFile(disk, a.SlipName,
                           {{QStringLiteral("2"), QStringLiteral("Igniter"), QStringLiteral("$24.80")},
                            {QStringLiteral("1"), QStringLiteral("Filter"), QStringLiteral("$9.95")}});
        WriteFileToPrint(disk, a.SlipName);
        SlipCounter counter{QStringLiteral("324"), 7, QStringLiteral("324-7")};
        UpcountSlipCounter(disk, counter);
    };
    return k;
}

SaveKind journalPosting() {
    SaveKind k;
    k.name = QStringLiteral("associate journal posting");
    const auto record = [](int i) {
        AssociateJournalRecord r;
        r.Transaction = QStringLiteral("Customer %1").arg(i);
        r.Account = QStringLiteral("2026%1").arg(i, 4, 10, QLatin1Char('0'));
        r.JournalDate = kToday;
        r.Associate = QStringLiteral("Crew One");
        r.SubTotal = Money::fromTenThousandths(1000000 + i);
        r.Gross = Money::fromTenThousandths(1072500 + i);
        return r;
    };
    k.prepare = [record](DiskRoutines& disk) {
        for (int i = 1; i <= 50; ++i) AddJournalRecord(disk, record(i));
    };
    k.save = [record](DiskRoutines& disk) { AddJournalRecord(disk, record(51)); };
    k.recordLengths = {{AssociateJournalRecord::kFileName, AssociateJournalRecord::kLength}};
    return k;
}

SaveKind invoiceImageSave() {
    SaveKind k;
    k.name = QStringLiteral("completed invoice image");
    const auto image = [](const QString& total) {
        PostedInvoice p;
        p.invoiceNo = QStringLiteral("20260042");
        p.accountNo = QStringLiteral("A1");
        p.customer = {QStringLiteral("Ann Lee"), QStringLiteral("12 Elm St"), QString(), QStringLiteral("Springfield"),
                      QStringLiteral("IL"), QStringLiteral("62701")};
        p.dateText = QStringLiteral("11/20/2026");
        for (int i = 0; i < 12; ++i)
            p.lines.append({QStringLiteral("1"), QStringLiteral("Line %1").arg(i), QStringLiteral("11/20/2026"),
                            QStringLiteral("$10.00"), QStringLiteral("$10.00"), QStringLiteral("Y")});
        p.total = total;
        p.grandTotal = total;
        return MakeInvoiceImage(p);
    };
    k.prepare = [image](DiskRoutines& disk) {
        disk.MakeDirectoryIfAbsent(QStringLiteral("/CompletedInvoices"));
        WriteInvoiceImage(disk, image(QStringLiteral("$120.00")));
    };
    k.save = [image](DiskRoutines& disk) { WriteInvoiceImage(disk, image(QStringLiteral("$130.00"))); };
    return k;
}

} // namespace

std::vector<SaveKind> AllSaveKinds() {
    return {
        customerWrite(),
        customerDelete(),
        catalogueSave(),
        settingsSave(),
        dayFileSave(),
        appointmentSlipSave(),
        journalPosting(),
        invoiceImageSave(),
        InvoicePostingKind(),
        ServicesAddedKind(),
        ContractAndTermsKind(),
        BlockedDaysKind(),
    };
}

} // namespace ostrel::crash
