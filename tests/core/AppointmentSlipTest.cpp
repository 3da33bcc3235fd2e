#include "scheduling/AppointmentSlip.h"
#include "TestDataRoot.h"
#include "store/StoreError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {

void makeSlipFolders(const TestDataRoot& t) {
    t.makeDir("/Appointments");
    t.makeDir("/Services");
    t.makeDir("/SoldItems");
}

AppointmentSlip sampleSlip() {
    AppointmentSlip s;
    s.Status = slipstatus::Scheduled;
    s.SlipDate = QDate(2026, 11, 27);
    s.SlipName = "2 - 324-4";
    s.SlipPointOfService = 2;
    s.Slots = 3;
    s.SlipStartRow = 5;
    s.Customer = {"10003", "Miss Barbara Brown", "1076 Sunset Way", "", "Riverton", "IL", "62561", "217-555-8974"};
    s.SlipComment = "Gate code 4411, dog in yard";
    return s;
}

const QByteArray kSampleSlipBytes = "\"Scheduled\"\r\n#2026-11-27#\r\n\"2 - 324-4\"\r\n2\r\n3\r\n5\r\n"
                                    "\"10003\"\r\n\"Miss Barbara Brown\"\r\n\"1076 Sunset Way\"\r\n\"\"\r\n"
                                    "\"Riverton\"\r\n\"IL\"\r\n\"62561\"\r\n\"217-555-8974\"\r\n"
                                    "Gate code 4411, dog in yard\r\n";

} // namespace

TEST(SlipName, JoinsThePointOfServiceAndTheSlipId) {
    EXPECT_EQ(SlipName(2, "319-4"), "2 - 319-4");
}

TEST(SlipName, APointOfServiceOfTenKeepsBothDigitsAndItsFirstCharacterIsOne) {
    const QString name = SlipName(10, "319-4");
    EXPECT_EQ(name, "10 - 319-4");
    EXPECT_EQ(name.at(0), u'1');
}

TEST(SlipFile, IsWrittenInItsFifteenStatementsByteForByte) {
    TestDataRoot t;
    makeSlipFolders(t);
    WriteSlip(t.disk(), sampleSlip());
    EXPECT_EQ(t.readBytes("/Appointments/2 - 324-4.txt"), kSampleSlipBytes);
}

TEST(SlipFile, AnEmptyCommentIsStoredAsNoCustomerInstructions) {
    TestDataRoot t;
    makeSlipFolders(t);
    AppointmentSlip s = sampleSlip();
    s.SlipComment.clear();
    WriteSlip(t.disk(), s);
    EXPECT_TRUE(t.readBytes("/Appointments/2 - 324-4.txt").endsWith("\"217-555-8974\"\r\nNo Customer Instructions\r\n"));
    EXPECT_EQ(ReadSlip(t.disk(), s.SlipName).SlipComment, kNoCustomerInstructions);
}

TEST(SlipFile, TheListReaderStopsTheCommentAtItsFirstCommaAndTheSingleReaderTakesTheWholeLine) {
    TestDataRoot t;
    makeSlipFolders(t);
    WriteSlip(t.disk(), sampleSlip());
    EXPECT_EQ(ReadSlipHeader(t.disk(), "2 - 324-4").SlipComment, "Gate code 4411");
    const AppointmentSlip whole = ReadSlip(t.disk(), "2 - 324-4");
    EXPECT_EQ(whole, sampleSlip());
}

TEST(SlipFile, ACommentOfSeveralLinesIsPrintedWithFileLineEndsAndReadBackToItsFirstLine) {
    TestDataRoot t;
    makeSlipFolders(t);
    AppointmentSlip s = sampleSlip();
    s.SlipComment = "Side door\nBring ladder";
    WriteSlip(t.disk(), s);
    EXPECT_TRUE(t.readBytes("/Appointments/2 - 324-4.txt").endsWith("\"217-555-8974\"\r\nSide door\r\nBring ladder\r\n"));
    EXPECT_EQ(ReadSlip(t.disk(), s.SlipName).SlipComment, "Side door");
}

TEST(SlipFile, ASlipWithTooFewStatementsIsReportedByNameAndNothingIsWritten) {
    TestDataRoot t;
    makeSlipFolders(t);
    const QByteArray cut = kSampleSlipBytes.left(kSampleSlipBytes.indexOf("\"Riverton\""));
    t.writeBytes("/Appointments/2 - 324-4.txt", cut);
    try {
        ReadSlipHeader(t.disk(), "2 - 324-4");
        FAIL() << "a cut slip was read";
    } catch (const StoreError& e) {
        EXPECT_EQ(e.file(), "/Appointments/2 - 324-4.txt");
        EXPECT_TRUE(e.problem().contains("cut short")) << e.problem().toStdString();
    }
    EXPECT_EQ(t.readBytes("/Appointments/2 - 324-4.txt"), cut);
}

TEST(SlipFile, ARewriteReplacesTheWholeFile) {
    TestDataRoot t;
    makeSlipFolders(t);
    WriteSlip(t.disk(), sampleSlip());
    AppointmentSlip s = sampleSlip();
    s.Status = slipstatus::Invoiced;
    s.SlipComment = "Done";
    WriteSlip(t.disk(), s);
    EXPECT_EQ(ReadSlip(t.disk(), s.SlipName), s);
}

TEST(ServicesFile, HoldsNameCostAndSlotsOfEachServiceByteForByte) {
    TestDataRoot t;
    makeSlipFolders(t);
    const std::vector<SlipService> services{{"Thermostat Install", Money::fromWhole(120), 3},
                                            {"Filter Change", Money::fromTenThousandths(455000), 1},
                                            {"Check-up", Money::fromTenThousandths(2500), 2}};
    WriteServicesFile(t.disk(), "1 - 324-1", services);
    EXPECT_EQ(t.readBytes("/Services/1 - 324-1.txt"),
              "\"Thermostat Install\"\r\n120\r\n3\r\n\"Filter Change\"\r\n45.5\r\n1\r\n\"Check-up\"\r\n.25\r\n2\r\n");
    EXPECT_EQ(ReadServicesFile(t.disk(), "1 - 324-1"), services);
}

TEST(ServicesFile, AnAbsentFileIsNoServices) {
    TestDataRoot t;
    makeSlipFolders(t);
    EXPECT_TRUE(ReadServicesFile(t.disk(), "1 - 324-1").empty());
}

TEST(ServicesFile, AFileCutShortIsReportedByName) {
    TestDataRoot t;
    makeSlipFolders(t);
    t.writeBytes("/Services/1 - 324-1.txt", "\"Thermostat Install\"\r\n120\r\n3\r\n\"Filter Change\"\r\n");
    try {
        ReadServicesFile(t.disk(), "1 - 324-1");
        FAIL() << "a cut Services file was read";
    } catch (const StoreError& e) {
        EXPECT_EQ(e.file(), "/Services/1 - 324-1.txt");
        EXPECT_TRUE(e.problem().contains("Filter Change")) << e.problem().toStdString();
    }
}

TEST(SoldItemsFile, HoldsThreePrintedLinesPerItem) {
    TestDataRoot t;
    makeSlipFolders(t);
    const std::vector<SlipSoldItem> items{{"2", "Pleated Filter 20x25x1", "$128.96"}, {"1", "Capacitor 45/5", "$17.84"}};
    WriteSoldItemsFile(t.disk(), "1 - 324-1", items);
    EXPECT_EQ(t.readBytes("/SoldItems/1 - 324-1.txt"),
              "2\r\nPleated Filter 20x25x1\r\n$128.96\r\n1\r\nCapacitor 45/5\r\n$17.84\r\n");
    EXPECT_TRUE(SoldItemsFileExists(t.disk(), "1 - 324-1"));
    EXPECT_EQ(ReadSoldItemsFile(t.disk(), "1 - 324-1"), items);
}

TEST(SoldItemsFile, AFileCutShortIsReportedByName) {
    TestDataRoot t;
    makeSlipFolders(t);
    t.writeBytes("/SoldItems/1 - 324-1.txt", "2\r\nPleated Filter 20x25x1\r\n");
    EXPECT_THROW(ReadSoldItemsFile(t.disk(), "1 - 324-1"), StoreError);
}

TEST(FileToPrint, HoldsTheSlipNameAsOneQuotedString) {
    TestDataRoot t;
    t.writeBytes("/FileToPrint.txt", "\"1 - 300-1\"\r\n");
    WriteFileToPrint(t.disk(), "2 - 324-4");
    EXPECT_EQ(t.readBytes("/FileToPrint.txt"), "\"2 - 324-4\"\r\n");
    EXPECT_EQ(ReadFileToPrint(t.disk()), QString("2 - 324-4"));
}

TEST(FileToPrint, NoFileIsNothingToInvoice) {
    TestDataRoot t;
    EXPECT_FALSE(ReadFileToPrint(t.disk()).has_value());
}

TEST(DeleteAppointment, DeletesTheSlipsThreeFiles) {
    TestDataRoot t;
    makeSlipFolders(t);
    for (const char* dir : {"/Appointments/", "/Services/", "/SoldItems/"})
        t.writeBytes(QString(dir) + "2 - 324-4.txt", "x\r\n");
    t.writeBytes("/Appointments/2 - 324-5.txt", "y\r\n");
    DeleteAppointment(t.disk(), "2 - 324-4.txt");
    for (const char* dir : {"/Appointments/", "/Services/", "/SoldItems/"})
        EXPECT_FALSE(t.isFile(QString(dir) + "2 - 324-4.txt")) << dir;
    EXPECT_TRUE(t.isFile("/Appointments/2 - 324-5.txt"));
}

TEST(DeleteSlipFilesByNumber, DeletesTheBareNumberAndLeavesEverySlipAlone) {
    TestDataRoot t;
    makeSlipFolders(t);
    t.makeDir("/Appointmemts");
    for (const char* dir : {"/Appointmemts/", "/Appointments/", "/Services/", "/SoldItems/"})
        t.writeBytes(QString(dir) + "1.txt", "x\r\n");
    t.writeBytes("/Appointments/1 - 324-1.txt", "slip\r\n");
    DeleteSlipFilesByNumber(t.disk(), 1);
    EXPECT_FALSE(t.isFile("/Appointmemts/1.txt"));
    EXPECT_FALSE(t.isFile("/Services/1.txt"));
    EXPECT_FALSE(t.isFile("/SoldItems/1.txt"));
    EXPECT_TRUE(t.isFile("/Appointments/1.txt"));
    EXPECT_TRUE(t.isFile("/Appointments/1 - 324-1.txt"));
}

TEST(LoadWorkSlipCounter, TheFirstSlipOfADayAfterACounterFromAnotherDayIsTodaysDayDashOne) {
    TestDataRoot t;
    makeSlipFolders(t);
    t.writeBytes("/SlipCounter.txt", "\"318\",7\r\n");
    SlipCounter c;
    LoadWorkSlipCounter(t.disk(), QDate(2026, 11, 15), 2, c); // day 319
    EXPECT_EQ(c.SlipId, "319-1");
    EXPECT_EQ(t.readBytes("/SlipCounter.txt"), "\"319\",1\r\n");
}

TEST(LoadWorkSlipCounter, TheSameDayGoesOnWithTheStoredNumber) {
    TestDataRoot t;
    makeSlipFolders(t);
    t.writeBytes("/SlipCounter.txt", "\"319\",5\r\n");
    SlipCounter c;
    LoadWorkSlipCounter(t.disk(), QDate(2026, 11, 15), 2, c);
    EXPECT_EQ(c.SlipId, "319-5");
}

TEST(LoadWorkSlipCounter, NoCounterAndNoBackupStartsAtOneOfToday) {
    TestDataRoot t;
    makeSlipFolders(t);
    SlipCounter c;
    LoadWorkSlipCounter(t.disk(), QDate(2026, 1, 3), 1, c);
    EXPECT_EQ(c.SlipId, "3-1");
    EXPECT_EQ(t.readBytes("/SlipCounter.txt"), "\"3\",1\r\n");
}

TEST(LoadWorkSlipCounter, AnAbsentCounterIsRestoredFromTheBackupAndTheBackupIsDroppedAtTheSave) {
    TestDataRoot t;
    makeSlipFolders(t);
    t.makeDir("/Backup");
    t.writeBytes("/Backup/SlipCounter.txt", "\"319\",9\r\n");
    SlipCounter c;
    LoadWorkSlipCounter(t.disk(), QDate(2026, 11, 15), 1, c);
    EXPECT_EQ(c.SlipId, "319-9");
    EXPECT_EQ(t.readBytes("/SlipCounter.txt"), "\"319\",9\r\n");
    EXPECT_FALSE(t.isFile("/Backup/SlipCounter.txt"));
}

TEST(LoadWorkSlipCounter, ACounterThatAlreadyHoldsTheSameBytesIsNotWrittenAgain) {
    TestDataRoot t;
    makeSlipFolders(t);
    t.writeBytes("/SlipCounter.txt", "\"319\",5\r\n");
    const auto inode = [&] {
        struct stat st {};
        EXPECT_EQ(::stat(QFile::encodeName(t.full("/SlipCounter.txt")).constData(), &st), 0);
        return st.st_ino;
    };
    const auto before = inode();
    SlipCounter c;
    LoadWorkSlipCounter(t.disk(), QDate(2026, 11, 15), 2, c);
    EXPECT_EQ(c.SlipId, "319-5");
    EXPECT_EQ(t.readBytes("/SlipCounter.txt"), "\"319\",5\r\n");
    // A safe replace would have put a new file in its place.
    EXPECT_EQ(inode(), before);
}

TEST(LoadWorkSlipCounter, AnUnchangedCounterStillLosesItsBackupCopy) {
    TestDataRoot t;
    makeSlipFolders(t);
    t.makeDir("/Backup");
    t.writeBytes("/SlipCounter.txt", "\"319\",5\r\n");
    t.writeBytes("/Backup/SlipCounter.txt", "\"319\",4\r\n");
    SlipCounter c;
    LoadWorkSlipCounter(t.disk(), QDate(2026, 11, 15), 2, c);
    EXPECT_EQ(t.readBytes("/SlipCounter.txt"), "\"319\",5\r\n");
    EXPECT_FALSE(t.isFile("/Backup/SlipCounter.txt"));
}

TEST(LoadWorkSlipCounter, ACounterOfTheSameNumberInOtherBytesIsRewrittenInTheProgramsForm) {
    TestDataRoot t;
    makeSlipFolders(t);
    t.writeBytes("/SlipCounter.txt", "\"319\", 5\n");
    SlipCounter c;
    LoadWorkSlipCounter(t.disk(), QDate(2026, 11, 15), 2, c);
    EXPECT_EQ(c.SlipId, "319-5");
    EXPECT_EQ(t.readBytes("/SlipCounter.txt"), "\"319\",5\r\n");
}

TEST(LoadWorkSlipCounter, ACollidingSlipStaysWhereItIsBecauseTheSweepNamesTheBareNumber) {
    TestDataRoot t;
    makeSlipFolders(t);
    t.writeBytes("/SlipCounter.txt", "\"319\",2\r\n");
    t.writeBytes("/Appointments/1 - 319-2.txt", "slip\r\n");
    t.writeBytes("/Services/1 - 319-2.txt", "services\r\n");
    t.writeBytes("/Services/1.txt", "bare\r\n");
    SlipCounter c;
    LoadWorkSlipCounter(t.disk(), QDate(2026, 11, 15), 3, c);
    EXPECT_EQ(c.SlipId, "319-2");
    EXPECT_TRUE(t.isFile("/Appointments/1 - 319-2.txt"));
    EXPECT_TRUE(t.isFile("/Services/1 - 319-2.txt"));
    EXPECT_FALSE(t.isFile("/Services/1.txt"));
}

TEST(UpcountSlipCounter, SavesTheNextNumberAndKeepsTheSlipIdInForce) {
    TestDataRoot t;
    makeSlipFolders(t);
    SlipCounter c;
    LoadWorkSlipCounter(t.disk(), QDate(2026, 11, 15), 1, c);
    UpcountSlipCounter(t.disk(), c);
    EXPECT_EQ(c.SlipId, "319-1");
    EXPECT_EQ(t.readBytes("/SlipCounter.txt"), "\"319\",2\r\n");
    SlipCounter next;
    LoadWorkSlipCounter(t.disk(), QDate(2026, 11, 15), 1, next);
    EXPECT_EQ(next.SlipId, "319-2");
}

TEST(SlipLegacyFixture, EverySlipAndServicesFileReadsAndWritesBackUnchanged) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    TestDataRoot t;
    t.copyTree(ostrel::test::legacyFixture());
    const QStringList slips = QDir(t.full("/Appointments")).entryList({"*.txt"}, QDir::Files);
    ASSERT_FALSE(slips.isEmpty());
    for (const QString& file : slips) {
        const QString name = QFileInfo(file).completeBaseName();
        const QByteArray before = t.readBytes("/Appointments/" + file);
        const AppointmentSlip slip = ReadSlip(t.disk(), name);
        EXPECT_EQ(slip.SlipName, name);
        EXPECT_EQ(name.section(' ', 0, 0).toInt(), slip.SlipPointOfService);
        WriteSlip(t.disk(), slip);
        EXPECT_EQ(t.readBytes("/Appointments/" + file), before) << file.toStdString();
        if (t.isFile("/Services/" + file)) {
            const QByteArray servicesBefore = t.readBytes("/Services/" + file);
            WriteServicesFile(t.disk(), name, ReadServicesFile(t.disk(), name));
            EXPECT_EQ(t.readBytes("/Services/" + file), servicesBefore) << file.toStdString();
        }
        if (t.isFile("/SoldItems/" + file)) {
            const QByteArray itemsBefore = t.readBytes("/SoldItems/" + file);
            WriteSoldItemsFile(t.disk(), name, ReadSoldItemsFile(t.disk(), name));
            EXPECT_EQ(t.readBytes("/SoldItems/" + file), itemsBefore) << file.toStdString();
        }
    }
    const QByteArray counter = t.readBytes("/SlipCounter.txt");
    SlipCounter c;
    c.day = "324";
    c.number = 22;
    SaveSlipCounter(t.disk(), c);
    EXPECT_EQ(t.readBytes("/SlipCounter.txt"), counter);
}
