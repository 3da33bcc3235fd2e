#include "CrashSaveKindsBooks.h"

#include "CatalogueSamples.h"
#include "FakePlatform.h"
#include "catalogue/LaborRates.h"
#include "catalogue/ServiceRecord.h"
#include "catalogue/frmServices.h"
#include "contracts/frmContract.h"
#include "invoicing/AssociateJournal.h"
#include "invoicing/InvoiceNumber.h"
#include "invoicing/InvoicePage.h"
#include "invoicing/PostingRecords.h"
#include "invoicing/frmInvoice.h"
#include "platform/MsgBoxStyle.h"
#include "printing/ConfirmedPrint.h"
#include "scheduling/AppointmentSlip.h"
#include "scheduling/DayScheduleStore.h"
#include "scheduling/TimeGrid.h"
#include "scheduling/frmBlock.h"
#include "setup/frmSetup.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"
#include "store/StoreError.h"
#include "workorders/TermsFiles.h"

namespace ostrel::crash {

namespace {

const QString kSlip = QStringLiteral("1 - 326-3");
const QString kAccount = QStringLiteral("2175550199");

QByteArray records(std::initializer_list<Record> rs) {
    QByteArray out;
    for (const Record& r : rs)
        out += r.bytes();
    return out;
}

void makeSlipFolders(DiskRoutines& disk) {
    for (const char* f : {"/Appointments", "/Services", "/SoldItems"})
        disk.MakeDirectoryIfAbsent(QString::fromLatin1(f));
}

AppointmentSlip handedOverSlip() {
    AppointmentSlip slip;
    slip.Status = slipstatus::Scheduled;
    slip.SlipDate = QDate(2026, 11, 20);
    slip.SlipName = kSlip;
    slip.SlipPointOfService = 1;
    slip.Slots = 4;
    slip.SlipStartRow = 12;
    slip.Customer = {kAccount,
                     QStringLiteral("Dana Whitfield"),
                     QStringLiteral("88 Elm St"),
                     QString(),
                     QStringLiteral("Springfield"),
                     QStringLiteral("IL"),
                     QStringLiteral("62701"),
                     QStringLiteral("217-555-0199")};
    slip.SlipComment = QStringLiteral("Side door, dog in yard");
    return slip;
}

// The catalogue, a slip handed over for invoicing as the appointment routines leave it, and the
// bookkeeping of an earlier invoice that the posting adds to.
void prepareInvoice(DiskRoutines& disk) {
    disk.ReplaceRecordFile(ServiceRecord::kFileName, records({ServiceRecord{"Tune Up", "$45.00", 4}.toRecord(),
                                                              ServiceRecord{"Full Service", "$120.00", 8}.toRecord()}));
    QByteArray stock;
    for (int i = 1; i <= 40; ++i)
        stock += test::item(QStringLiteral("Part %1").arg(i), QStringLiteral("Parts")).toRecord().bytes();
    stock += test::item(QStringLiteral("Filter"), QStringLiteral("Parts")).toRecord().bytes();
    disk.ReplaceRecordFile(InventoriedItemRecord::kFileName, stock);
    disk.ReplaceRecordFile(CustomItemRecord::kFileName, records({test::custom("Bracket").toRecord()}));
    TextWriter labor;
    labor.write({QStringLiteral("General Labor"), QStringLiteral("$85.00")});
    labor.write({QStringLiteral("Apprentice"), QStringLiteral("$45.50")});
    labor.write({QString(), QString()});
    disk.ReplaceTextFile(kLaborFileName, labor);
    makeSlipFolders(disk);
    disk.MakeDirectoryIfAbsent(QStringLiteral("/CompletedInvoices"));
    disk.MakeDirectoryIfAbsent(kLedgerFolder);

    WriteSlip(disk, handedOverSlip());
    WriteServicesFile(disk, kSlip, {{QStringLiteral("Tune Up"), Money::fromTenThousandths(450000), 4}});
    WriteSoldItemsFile(disk, kSlip, {{QStringLiteral("2"), QStringLiteral("Filter"), QStringLiteral("$12.50")}});
    WriteFileToPrint(disk, kSlip);

    const QDate earlier(2026, 11, 2);
    AddLedgerEntry(disk, kAccount, QStringLiteral("Dana Whitfield"), QStringLiteral("$30.00"),
                   QStringLiteral("20260001"), earlier, earlier);
    AddPaymentRecord(disk, kAccount, QStringLiteral("Dana Whitfield"), QStringLiteral("$30.00"),
                     QStringLiteral("Cash"), earlier);
    AddTaxRecord(disk, QStringLiteral("Sales Tax"), QStringLiteral("20260001"), earlier, Money::fromTenThousandths(24750));
    AddSoldItems(disk, {{QStringLiteral("Filter"), earlier, QStringLiteral("20260001"), 1}});
    AssociateJournalRecord entry;
    entry.Transaction = QStringLiteral("Dana Whitfield");
    entry.Account = QStringLiteral("20260001");
    entry.JournalDate = earlier;
    entry.Associate = QStringLiteral("Crew One");
    entry.SubTotal = Money::fromWhole(30);
    entry.Gross = Money::fromWhole(30);
    AddJournalRecord(disk, entry);
    SaveInvoiceNumber(disk, 20260002);
}

// What stops the routine when it reports a failure: the harness takes the state at that moment.
struct RoutineStopped {
    QString said;
};

// The boxes of the invoice routine answered as the owner answers them: the invoice printed, the
// slip's files kept. Any other box is a failed save reported, and the routine stops there, as if
// the owner had closed the program on it.
class RoutineDialogs : public Dialogs {
public:
    QString programTitle() const override { return QStringLiteral("OstrelAppointmentScheduler"); }

protected:
    MsgBoxResult showMsgBox(const MsgBoxRequest& r) override {
        if (r.title == kPrintConfirmationTitle) return vbYes;
        if (r.title == QLatin1String("Delete Appointment Records")) return vbNo;
        throw RoutineStopped{r.title + QStringLiteral(": ") + r.prompt};
    }
    void beep() override {}
    std::optional<QString> openFileName(const OpenFileRequest&) override { return std::nullopt; }
    std::optional<Colour> chooseColour(Colour, const QString&) override { return std::nullopt; }
    std::optional<FontChoice> chooseFont(const FontChoice&, const QString&) override { return std::nullopt; }
    std::optional<QString> inputBox(const QString&, const QString&, const QString&) override { return std::nullopt; }
};

// The invoice screen with the screens it reads, on the data folder of `disk`, on 22 November 2026.
struct InvoiceRoutine {
    test::FakePlatform fake;
    RoutineDialogs dialogs;
    Platform platform{dialogs, fake.clock, fake.instance, fake.browser, fake.app, fake.serial, fake.printDialogs};
    Session session;
    frmSetup& setup;
    frmServices& services;
    frmInvoice& frm;

    explicit InvoiceRoutine(DiskRoutines& disk)
        : fake(disk.root().root()), session(disk.root().root(), platform),
          setup(session.AddScreen(ScreenId::frmSetup, std::make_unique<frmSetup>(session))),
          services(session.AddScreen(ScreenId::frmServices,
                                     std::make_unique<frmServices>(session, session.catalogueLists))),
          frm(session.AddScreen(ScreenId::frmInvoice,
                                std::make_unique<frmInvoice>(session, session.catalogueLists))) {
        session.RegisterScreen(ScreenId::frmStartup, session.startup());
        session.settings.tax.cboRate1 = QStringLiteral("8.25");
        // The Associate Sales style, which keeps the associate journal.
        session.settings.program.optBusinessType0 = false;
    }
};

// The blocking screen on the data folder of `disk`: both questions answered Yes; any other box is a
// failed save reported, and the routine stops there.
class BlockDialogs : public RoutineDialogs {
protected:
    MsgBoxResult showMsgBox(const MsgBoxRequest& r) override {
        if (r.title == QLatin1String("Action Selection") || r.title == QLatin1String("Verify Change")) return vbYes;
        return RoutineDialogs::showMsgBox(r);
    }
};

struct BlockRoutine {
    test::FakePlatform fake;
    BlockDialogs dialogs;
    Platform platform{dialogs, fake.clock, fake.instance, fake.browser, fake.app, fake.serial, fake.printDialogs};
    Session session;
    frmBlock& frm;

    explicit BlockRoutine(DiskRoutines& disk)
        : fake(disk.root().root()), session(disk.root().root(), platform),
          frm(session.AddScreen(ScreenId::frmBlock, std::make_unique<frmBlock>(session))) {
        session.RegisterScreen(ScreenId::frmStartup, session.startup());
        session.LoadServiceAreas();
    }
};

} // namespace

SaveKind InvoicePostingKind() {
    SaveKind k;
    k.name = QStringLiteral("invoice posting");
    k.prepare = prepareInvoice;
    k.save = [](DiskRoutines& disk) {
        // The slip handed over, finalized, prepaid by cheque, printed, and kept as invoiced.
        InvoiceRoutine r(disk);
        try {
            r.services.Load();
            r.frm.cboAssignments.Clear();
            r.frm.cboAssignments.AddItem(QStringLiteral("Crew One "));
            r.frm.Show();
            r.frm.ckPrepaid.value = 1;
            r.frm.cmdInvoice_Click(9);
            r.frm.txtPrepaid.text = QStringLiteral("$40.00");
            r.frm.cboPrepaid.text = QStringLiteral("Check # 1123");
            r.frm.cmdPrepaid_Click(0);
        } catch (const RoutineStopped& stopped) {
            throw StoreError(QStringLiteral("invoice posting"), stopped.said);
        }
    };
    k.recordLengths = {{SoldItemRecord::kFileName, SoldItemRecord::kLength},
                       {AssociateJournalRecord::kFileName, AssociateJournalRecord::kLength},
                       {LedgerFileName(kAccount), LedgerRecord::kLength},
                       {LedgerRecord::kPaymentFileName, LedgerRecord::kLength},
                       {TaxRecord::kFileName, TaxRecord::kLength},
                       {InventoriedItemRecord::kFileName, InventoriedItemRecord::kLength}};
    return k;
}

SaveKind ServicesAddedKind() {
    SaveKind k;
    k.name = QStringLiteral("services added to a slip");
    k.prepare = [](DiskRoutines& disk) {
        makeSlipFolders(disk);
        std::vector<SlipService> services;
        for (int i = 1; i <= 30; ++i)
            services.push_back({QStringLiteral("Service %1").arg(i), Money::fromWhole(10 + i), 2});
        WriteServicesFile(disk, kSlip, services);
    };
    k.save = [](DiskRoutines& disk) {
        AppendServicesFile(disk, kSlip,
                           {{QStringLiteral("Furnace Tune-up"), Money::fromWhole(115), 6},
                            {QStringLiteral("Duct Cleaning"), Money::fromWhole(240), 8}});
    };
    return k;
}

SaveKind ContractAndTermsKind() {
    SaveKind k;
    k.name = QStringLiteral("contract and terms texts");
    const auto contract = [](const QString& words) {
        TextWriter out;
        for (int i = 1; i <= 40; ++i)
            out.print(QStringLiteral("%1 clause %2: the service is performed as agreed.").arg(words).arg(i));
        return out;
    };
    const auto terms = [](const QString& words) {
        return QStringLiteral("%1 terms.\r\nPayment is due in 30 days.\r\nA late charge applies.").arg(words);
    };
    // The contract as the contract screen writes it, both texts as the terms screen saves them and
    // the statement terms the invoice screen keeps.
    const auto saveTexts = [contract, terms](DiskRoutines& disk, const QString& age, const QString& disclaimer,
                                             const QString& statementTerms) {
        disk.ReplaceTextFile(contractFileName(kAccount), contract(age));
        SaveCustomText(disk, kCustomTermsFile, terms(age));
        SaveCustomText(disk, kCustomDisclaimerFile, disclaimer);
        TextWriter statement;
        statement.print(statementTerms);
        disk.ReplaceTextFile(invoicepage::kTermsFile, statement);
    };
    k.prepare = [saveTexts](DiskRoutines& disk) {
        disk.MakeDirectoryIfAbsent(QStringLiteral("\\Templates"));
        disk.MakeDirectoryIfAbsent(kContractsFolder);
        saveTexts(disk, QStringLiteral("Old"), QStringLiteral("Old disclaimer."), QStringLiteral("Net 10 Days"));
    };
    k.save = [saveTexts](DiskRoutines& disk) {
        saveTexts(disk, QStringLiteral("New"), QStringLiteral("New disclaimer, longer than the old one."),
                  QStringLiteral("Net 30 Days"));
    };
    return k;
}

SaveKind BlockedDaysKind() {
    SaveKind k;
    k.name = QStringLiteral("blocked days");
    k.prepare = [](DiskRoutines& disk) {
        TextWriter areas;
        areas.write({QStringLiteral("Crew One")});
        areas.write({QStringLiteral("Crew Two")});
        disk.ReplaceTextFile(QStringLiteral("/ServiceAreas.txt"), areas);
        EnsureDayScheduleDirectories(disk, QDate(2026, 11, 20), 2);
        for (int day = 330; day <= 338; ++day) {
            DaySchedule d;
            for (int row = 1; row <= 48; row += 6)
                d.setSlot(row, QStringLiteral("Booked %1 on %2").arg(row).arg(day));
            writeDaySchedule(disk, 2026, 1, day, d);
            if (day % 2 == 0 && day < 338) writeDaySchedule(disk, 2026, 2, day, d);
        }
    };
    k.save = [](DiskRoutines& disk) {
        // Six work days from Thursday 26 November (to Thursday 3 December) reserved for all Points
        // of Service through the blocking screen (its batch of day files, each booked day asked
        // about and cleared), then the Friday after given back.
        BlockRoutine r(disk);
        try {
            r.frm.Show();
            r.frm.Calender.value = QDate(2026, 11, 26);
            r.frm.Calender_DateClick();
            r.frm.lstAssignto.SetListIndex(2);
            r.frm.sldTimeReq.SetValue(6);
            r.frm.sldTimeReq_Change();
            r.frm.cmdAccept_Click();
        } catch (const RoutineStopped& stopped) {
            throw StoreError(QStringLiteral("blocked days"), stopped.said);
        }
        disk.DeleteDataFile(daySchedulePath(2026, 1, 338));
    };
    return k;
}

} // namespace ostrel::crash
