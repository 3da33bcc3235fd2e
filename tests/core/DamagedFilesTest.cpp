// The program started on damaged copies of the files that start-up, the account screen and the
// catalogue screen read: it never stops, it names each file whose damage its format does not
// allow, and it never writes over such a file unless the owner agrees.
#include "CatalogueSamples.h"
#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "accounts/CustomerStore.h"
#include "accounts/frmNewCustomer.h"
#include "catalogue/CatalogueFile.h"
#include "catalogue/CatalogueStore.h"
#include "catalogue/ServiceRecord.h"
#include "catalogue/frmServices.h"
#include "setup/PointOfServiceNames.h"
#include "setup/SetupSettings.h"
#include "shell/DataFolderReport.h"
#include "shell/ProgramScreens.h"
#include "shell/RecordFormats.h"
#include "shell/Session.h"
#include "shell/ShellRoutines.h"
#include "shell/frmSplash.h"
#include "shell/frmStartup.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <optional>
#include <random>
#include <unistd.h>

using namespace ostrel;
using ostrel::test::FakePlatform;
using ostrel::test::TestDataRoot;

namespace {

const QString kProgram = QStringLiteral("OstrelAppointmentScheduler");
const QDate kToday(2026, 11, 20);

// A sound shop, written by the program's own writers.
void writeShop(DiskRoutines& disk) {
    SetupSettings settings;
    LoadSetupSettings(disk, kProgram, settings);
    BusinessBoxes boxes;
    boxes[0] = QStringLiteral("Shop");
    boxes[5] = QStringLiteral("555-1234");
    SaveSetupSettings(disk, kProgram, settings, boxes, false);
    PointOfServiceNames names;
    SaveAssociates(disk, {QStringLiteral("Crew One"), QStringLiteral("Crew Two")}, names);
    QVector<Record> services, items, custom;
    for (int i = 1; i <= 5; ++i) {
        services << ServiceRecord{QStringLiteral("Service %1").arg(i), QStringLiteral("$%1.00").arg(i * 10), 4}.toRecord();
        items << test::item(QStringLiteral("Item %1").arg(i), QStringLiteral("Parts")).toRecord();
        custom << test::custom(QStringLiteral("Custom %1").arg(i)).toRecord();
    }
    WriteCatalogueRecords(disk, ServiceRecord::kFileName, ServiceRecord::kLength, services);
    WriteCatalogueRecords(disk, InventoriedItemRecord::kFileName, InventoriedItemRecord::kLength, items);
    WriteCatalogueRecords(disk, CustomItemRecord::kFileName, CustomItemRecord::kLength, custom);
    CustomerBuffers buffers;
    CustomerStore store(disk, buffers);
    store.ResetCompanionBuffers(kToday);
    for (int i = 1; i <= 5; ++i) {
        buffers.customer.SetAccountNumber(QStringLiteral("A%1").arg(i));
        buffers.customer.SetBusinessName(QStringLiteral("Customer %1").arg(i));
        buffers.customer.SetAccountType(u"Business");
        store.SaveCustomerAt(i, kToday);
    }
    disk.CloseAllFiles();
}

enum class Damage { Half, OneByte, Empty, RandomBytes, SevenExtra, Folder, Unreadable, Missing };
const char* damageName(Damage d) {
    switch (d) {
    case Damage::Half: return "cut to half";
    case Damage::OneByte: return "cut to one byte";
    case Damage::Empty: return "empty";
    case Damage::RandomBytes: return "random bytes";
    case Damage::SevenExtra: return "seven extra bytes";
    case Damage::Folder: return "a folder in its place";
    case Damage::Unreadable: return "unreadable";
    case Damage::Missing: return "missing";
    }
    return "";
}

// Whether the format's own rules allow the damaged bytes (stated here from the rules, not from the
// program's judge): a record file's length must be whole records, or leave a last record that the
// rounded count includes; a text field never holds a control character; a Points of Service file
// is quoted names, each ending its line.
bool legalRecordLength(qint64 size, int length) {
    const qint64 whole = size / length;
    return size % length == 0 || std::nearbyint(static_cast<double>(size) / length) > static_cast<double>(whole);
}

bool legal(const QString& file, Damage d, const QByteArray& bytes) {
    switch (d) {
    case Damage::Empty:
    case Damage::Missing:
        return true;
    case Damage::Folder:
    case Damage::Unreadable:
    case Damage::RandomBytes: // every record has text fields, and a cut name ends no line
        return false;
    default:
        break;
    }
    if (file == kServiceAreasFile) return bytes.endsWith('\n') && bytes.count('"') % 2 == 0;
    return legalRecordLength(bytes.size(), RecordFormatFor(file)->length);
}

struct Outcome {
    bool messaged = false;   // a box named the file
    bool kept = true;        // the damaged bytes are still there, unchanged
    QStringList boxes;
};

Outcome runProgramOn(const QString& file, Damage damage, QByteArray& damaged, bool& skipped) {
    TestDataRoot t;
    {
        DataRoot root(t.path());
        DiskRoutines disk(root);
        writeShop(disk);
    }
    const QString path = t.full(file);
    const QByteArray sound = t.readBytes(file);
    std::mt19937 random(static_cast<unsigned>(qHash(file)) + static_cast<unsigned>(damage));
    skipped = false;
    switch (damage) {
    case Damage::Half: damaged = sound.left(sound.size() / 2); break;
    case Damage::OneByte: damaged = sound.left(1); break;
    case Damage::Empty: damaged.clear(); break;
    case Damage::RandomBytes:
        damaged.resize(sound.size());
        for (char& c : damaged) c = static_cast<char>(random() & 0xFF);
        break;
    case Damage::SevenExtra: damaged = sound + QByteArray("\x01junk\x02!", 7); break;
    case Damage::Folder:
    case Damage::Missing:
    case Damage::Unreadable:
        damaged = sound;
        break;
    }
    QFile::remove(path);
    if (damage == Damage::Folder) {
        QDir().mkpath(path);
    } else if (damage != Damage::Missing) {
        t.writeBytes(file, damaged);
        if (damage == Damage::Unreadable) {
            if (::geteuid() == 0) skipped = true; // nothing is unreadable to root
            QFile::setPermissions(path, QFileDevice::Permissions());
        }
    }
    Outcome out;
    if (skipped) return out;

    FakePlatform fake{t.path()};
    try {
        Session session(t.path(), fake);
        ProgramScreens screens = AddProgramScreens(session);
        session.Main();
        // Each event as the views run one: a routine that stops reports its StoreError in a box.
        const auto event = [&](const std::function<void()>& f) { session.Guarded(f); };
        event([&] { session.splash().cmdContinue_Click(); });
        event([&] { session.startup().optMainMenuSub_DblClick(7); }); // the account screen
        event([&] { screens.account.cmdCustomer_Click(0); });          // back to the menu, saving
        event([&] { session.startup().optMainMenuSub_DblClick(6); }); // the catalogue
        event([&] { screens.services.cmdServices_Click(0); });         // back to the menu, saving
        event([&] { session.ExitProgram(); });
    } catch (const std::exception& e) {
        ADD_FAILURE() << file.toStdString() << ", " << damageName(damage) << ": the program stopped: " << e.what();
    }
    const QString bare = file.mid(1);
    for (const auto& box : fake.dialogs.takeAllBoxes()) {
        out.boxes << box.title + QStringLiteral(": ") + box.prompt;
        if (box.prompt.contains(bare)) out.messaged = true;
    }
    if (damage == Damage::Folder) out.kept = QFileInfo(path).isDir();
    else if (damage != Damage::Missing) {
        QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        out.kept = QFileInfo(path).isFile() && t.readBytes(file) == damaged;
    }
    return out;
}

} // namespace

TEST(DamagedFiles, EveryDamagedCopyIsNamedAndNoneIsWrittenOver) {
    const QStringList files = {QStringLiteral("/Services.txt"),     QStringLiteral("/OIInventoriedItems.txt"),
                               QStringLiteral("/CustomItems.txt"),  QStringLiteral("/CustomerData.txt"),
                               QStringLiteral("/ContractInfo.txt"), QStringLiteral("/CycleInfo.txt"),
                               kServiceAreasFile};
    int copies = 0, messages = 0, legalCopies = 0, writtenOver = 0, skippedCopies = 0;
    for (const QString& file : files) {
        for (Damage d : {Damage::Half, Damage::OneByte, Damage::Empty, Damage::RandomBytes, Damage::SevenExtra,
                         Damage::Folder, Damage::Unreadable, Damage::Missing}) {
            QByteArray damaged;
            bool skipped = false;
            const Outcome o = runProgramOn(file, d, damaged, skipped);
            if (skipped) {
                ++skippedCopies;
                continue;
            }
            ++copies;
            const bool isLegal = legal(file, d, damaged);
            if (isLegal) ++legalCopies;
            if (o.messaged) ++messages;
            const std::string what = file.toStdString() + ", " + damageName(d);
            if (!isLegal) {
                EXPECT_TRUE(o.messaged) << what << ": no message named the file; boxes: "
                                        << o.boxes.join(QStringLiteral(" | ")).toStdString();
                EXPECT_TRUE(o.kept) << what << ": the damaged file was written over";
                if (!o.kept) ++writtenOver;
            }
        }
    }
    std::printf("damaged copies: %d run (%d skipped), %d named in a message, %d legal by the format, %d written over\n",
                copies, skippedCopies, messages, legalCopies, writtenOver);
    EXPECT_EQ(writtenOver, 0);
}

TEST(DamagedFiles, ItemsCutToTenAndAHalfRecordsAreReportedAndNotSavedBackAsTen) {
    TestDataRoot t;
    writeShop(t.disk());
    QVector<Record> items;
    for (int i = 1; i <= 11; ++i) items << test::item(QStringLiteral("Item %1").arg(i), QStringLiteral("Parts")).toRecord();
    WriteCatalogueRecords(t.disk(), InventoriedItemRecord::kFileName, InventoriedItemRecord::kLength, items);
    const QByteArray cut = t.readBytes("/OIInventoriedItems.txt").left(InventoriedItemRecord::kLength * 21 / 2);
    t.writeBytes("/OIInventoriedItems.txt", cut);
    FakePlatform fake{t.path()};
    Session session(t.path(), fake);
    ProgramScreens screens = AddProgramScreens(session);
    session.Main();
    ASSERT_EQ(fake.dialogs.boxes().size(), 1);
    EXPECT_EQ(fake.dialogs.boxes()[0].title, "Damaged File");
    EXPECT_TRUE(fake.dialogs.boxes()[0].prompt.startsWith("The file OIInventoriedItems.txt is damaged"));
    fake.dialogs.takeAllBoxes();
    EXPECT_EQ(screens.services.fgItems.Rows(), 11); // heading and the ten whole records
    // The save on the way back to the menu asks; the owner keeps the file.
    const QString problem =
        DescribeDamage(JudgeRecordFile(*RecordFormatFor(QStringLiteral("/OIInventoriedItems.txt")), cut));
    fake.dialogs.expect("Damaged File", DamagedFileQuestion(QStringLiteral("/OIInventoriedItems.txt"), problem), vbNo);
    session.splash().cmdContinue_Click();
    session.startup().optMainMenuSub_DblClick(6);
    screens.services.cmdServices_Click(0);
    fake.dialogs.verify();
    EXPECT_EQ(t.readBytes("/OIInventoriedItems.txt"), cut);
}
