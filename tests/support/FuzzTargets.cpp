#include "FuzzTargets.h"

#include "accounts/AuxData.h"
#include "accounts/CustomerStore.h"
#include "accounts/StatesList.h"
#include "catalogue/CatalogueGrids.h"
#include "catalogue/CatalogueLists.h"
#include "catalogue/CatalogueStore.h"
#include "catalogue/LaborRates.h"
#include "invoicing/AssociateJournal.h"
#include "invoicing/InvoiceImage.h"
#include "invoicing/InvoiceNumber.h"
#include "invoicing/PostingRecords.h"
#include "scheduling/AppointmentSlip.h"
#include "scheduling/DaySchedule.h"
#include "scheduling/DaySchedulePurge.h"
#include "setup/BusinessData.h"
#include "setup/CompanyLogo.h"
#include "setup/LogoSettings.h"
#include "setup/PhoneSettings.h"
#include "setup/PointOfServiceNames.h"
#include "setup/PrintColors.h"
#include "setup/ProgramSettings.h"
#include "setup/ReturnPartsInstructions.h"
#include "setup/TaxSettings.h"
#include "shell/DataFolderReport.h"
#include "shell/RecordFormats.h"
#include "store/DataRoot.h"
#include "store/DiskRoutines.h"
#include "store/StoreError.h"
#include "store/TextStatements.h"
#include "telephony/SpeedNumbers.h"
#include "workorders/TermsFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace ostrel::fuzz {

namespace {

// One scratch data folder for the process; each run puts its bytes in the file it reads.
DiskRoutines& scratch(const QString& name, const QByteArray& bytes) {
    static QTemporaryDir dir;
    static DataRoot root(dir.path());
    static DiskRoutines disk(root);
    disk.CloseAllFiles();
    QDir().mkpath(QFileInfo(dir.path() + name).path());
    QFile f(dir.path() + name);
    if (f.open(QIODevice::WriteOnly | QIODevice::Truncate)) f.write(bytes);
    return disk;
}

template <typename F> void guarded(F&& f) {
    try {
        f();
    } catch (const StoreError&) {
        // A bad file: the one way a reader may refuse its input.
    }
}

void statements(const QByteArray& b) {
    guarded([&] {
        TextReader r(b, QStringLiteral("/Fuzz.txt"));
        while (!r.atEnd()) {
            const TextField f = r.readField();
            f.toNumber();
            f.toBoolean();
            f.toDate();
            f.toString();
            f.toIntegerIn(-32768, 32767);
        }
    });
    guarded([&] {
        TextReader r(b, QStringLiteral("/Fuzz.txt"));
        while (!r.atEnd()) r.readInteger();
    });
    guarded([&] {
        TextReader r(b, QStringLiteral("/Fuzz.txt"));
        while (!r.atEnd()) r.readLine();
    });
}

void settings(const QByteArray& b) {
    ProgramSettings s;
    guarded([&] { LoadSettings(scratch(QStringLiteral("/FuzzSettings.txt"), b), QStringLiteral("Fuzz"), s); });
}
void tax(const QByteArray& b) {
    TaxSettings t;
    ProgramSettings p;
    guarded([&] { LoadTaxSettings(scratch(kTaxSettingsFile, b), t, p); });
}
void colours(const QByteArray& b) {
    PrintColors c;
    guarded([&] { LoadPrintColors(scratch(kPrintColorsFile, b), c); });
}
void logo(const QByteArray& b) {
    LogoSettings l;
    CompanyLogo c;
    guarded([&] { LoadLogoSettings(scratch(kLogoSettingsFile, b), l, true); });
    guarded([&] { LoadCompanyLogo(scratch(kCompanyLogoFile, b), c); });
}
void business(const QByteArray& b) {
    BusinessData d;
    guarded([&] { LoadBusinessData(scratch(QStringLiteral("/MyBusinessData.txt"), b), d); });
    guarded([&] { LoadReturnPartsInstructions(scratch(kReturnPartsFile, b)); });
}
void phone(const QByteArray& b) {
    PhoneSettings p;
    scratch(kCallIdFile, b);
    guarded([&] { LoadPhoneFiles(scratch(kPhoneFile, b), p); });
    SpeedNumbers n;
    guarded([&] { LoadSpeedNumbers(scratch(kSpeedNumbersFile, b), n); });
}
void serviceAreas(const QByteArray& b) {
    JudgeServiceAreas(b);
    guarded([&] { LoadPointOfServiceNames(scratch(kServiceAreasFile, b)); });
}
void daySchedule(const QByteArray& b) {
    guarded([&] {
        TextReader r(b, QStringLiteral("/2026/DaySchedules1/1.txt"));
        DaySchedule::fromStatements(r);
    });
}
void lastPurged(const QByteArray& b) {
    guarded([&] { PurgePastDays(scratch(QStringLiteral("/LastPurged.txt"), b), QDate(2026, 11, 20), 324, 0); });
}
void catalogue(const QByteArray& b) {
    CatalogueGrids grids;
    CatalogueLists lists;
    for (const char* name : {"/Services.txt", "/OIInventoriedItems.txt", "/CustomItems.txt"}) {
        DiskRoutines& disk = scratch(QString::fromLatin1(name), b);
        CatalogueStore store(disk, grids, lists);
        guarded([&] { CheckRecordFileOnRead(disk, QString::fromLatin1(name)); });
        guarded([&] { store.LoadCatalogue(); });
    }
    guarded([&] { LoadLabor(scratch(kLaborFileName, b), grids); });
}
void customers(const QByteArray& b) {
    for (const char* name : {"/CustomerData.txt", "/ContractInfo.txt", "/CycleInfo.txt"}) {
        DiskRoutines& disk = scratch(QString::fromLatin1(name), b);
        guarded([&] { CheckRecordFileOnRead(disk, QString::fromLatin1(name)); });
    }
    DiskRoutines& disk = scratch(QStringLiteral("/CustomerData.txt"), b);
    CustomerBuffers buffers;
    CustomerStore store(disk, buffers);
    guarded([&] {
        const int count = store.CustomerCount();
        if (count > 0) store.LoadCustomerAt(count);
        store.ReadAccountList();
    });
    guarded([&] { ReadStatesList(scratch(QStringLiteral("/StatesList.txt"), b)); });
    guarded([&] { AuxData::ReadAuxHeadings(scratch(AuxData::kHeadingsFile, b)); });
}

void slip(const QByteArray& b) {
    const QString slipName = QStringLiteral("1 - 326-3");
    guarded([&] { ReadSlip(scratch(appointmentFileName(slipName), b), slipName); });
    guarded([&] { ReadServicesFile(scratch(servicesFileName(slipName), b), slipName); });
    guarded([&] { ReadSoldItemsFile(scratch(QStringLiteral("/SoldItems/") + slipName + QStringLiteral(".txt"), b), slipName); });
    guarded([&] { ReadFileToPrint(scratch(QStringLiteral("/FileToPrint.txt"), b)); });
    SlipCounter counter;
    guarded([&] { LoadWorkSlipCounter(scratch(QStringLiteral("/SlipCounter.txt"), b), QDate(2026, 11, 22), 2, counter); });
}
void invoices(const QByteArray& b) {
    guarded([&] { LoadInvoiceNumber(scratch(kInvoiceNumberFile, b), QDate(2026, 11, 22)); });
    guarded([&] {
        TextReader r(b, QStringLiteral("/CompletedInvoices/20260001.txt"));
        ReadInvoiceImage(r);
    });
    guarded([&] { ReadCustomText(scratch(kCustomTermsFile, b), kCustomTermsFile); });
    guarded([&] { ReadAssociateJournal(scratch(AssociateJournalRecord::kFileName, b)); });
    guarded([&] {
        for (const Record& r : ReadAllRecords(scratch(LedgerRecord::kPaymentFileName, b), LedgerRecord::kPaymentFileName,
                                              LedgerRecord::kLength))
            LedgerRecord::fromRecord(r);
    });
}

const std::vector<Target> kTargets = {
    {"statements", statements}, {"settings", settings},         {"tax", tax},
    {"colours", colours},       {"logo", logo},                 {"business", business},
    {"phone", phone},           {"service_areas", serviceAreas}, {"day_schedule", daySchedule},
    {"last_purged", lastPurged}, {"catalogue", catalogue},      {"customers", customers},
    {"slip", slip},             {"invoices", invoices},
};

} // namespace

const std::vector<Target>& Targets() { return kTargets; }

bool Run(const char* name, const QByteArray& bytes) {
    for (const Target& t : kTargets)
        if (qstrcmp(t.name, name) == 0) {
            t.run(bytes);
            return true;
        }
    return false;
}

} // namespace ostrel::fuzz
