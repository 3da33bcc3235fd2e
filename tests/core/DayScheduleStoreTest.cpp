#include "scheduling/DayScheduleStore.h"
#include "TestDataRoot.h"
#include "scheduling/SlotFit.h"
#include "scheduling/TimeGrid.h"
#include "store/StoreError.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {

QByteArray emptyDayBytes() {
    QByteArray bytes;
    for (int i = 0; i < 48; ++i)
        bytes += "\"\"\r\n";
    return bytes;
}

QByteArray legacyBytes(const QString& relative) {
    QFile f(QDir(ostrel::test::legacyFixture()).filePath(relative.mid(1)));
    if (!f.open(QIODevice::ReadOnly)) ADD_FAILURE() << "cannot read fixture " << relative.toStdString();
    return f.readAll();
}

Grid labelledGrid() {
    Grid g;
    FillTimeLabels(g);
    return g;
}

} // namespace

TEST(DaySchedulePath, JoinsYearPointOfServiceAndDayWithoutPadding) {
    EXPECT_EQ(daySchedulePath(2026, 3, 40), "/2026/DaySchedules3/40.txt");
    EXPECT_EQ(daySchedulePath(2027, 1, 5), "/2027/DaySchedules1/5.txt");
    EXPECT_EQ(daySchedulePath(2028, 8, 366), "/2028/DaySchedules8/366.txt");
    EXPECT_EQ(dayScheduleDirectory(2026, 2), "/2026/DaySchedules2");
    EXPECT_EQ(QDate(2026, 2, 9).dayOfYear(), 40);
}

TEST(DaySchedulePath, AYearFolderHasAtLeastFourDigits) {
    EXPECT_EQ(yearDirectory(999), "/0999");
    EXPECT_EQ(yearDirectory(7), "/0007");
    EXPECT_EQ(yearDirectory(12345), "/12345");
    EXPECT_EQ(daySchedulePath(999, 10, 1), "/0999/DaySchedules10/1.txt");
}

TEST(EnsureDayScheduleDirectories, MakesOneFolderPerPointOfServiceForTheDatesYear) {
    TestDataRoot t;
    t.makeDir("/2026");
    t.makeDir("/2026/DaySchedules1");
    t.writeBytes("/2026/DaySchedules1/40.txt", emptyDayBytes());
    EnsureDayScheduleDirectories(t.disk(), QDate(2026, 2, 9), 3);
    EXPECT_TRUE(t.isDir("/2026/DaySchedules1"));
    EXPECT_TRUE(t.isDir("/2026/DaySchedules2"));
    EXPECT_TRUE(t.isDir("/2026/DaySchedules3"));
    EXPECT_FALSE(t.isDir("/2026/DaySchedules4"));
    EXPECT_TRUE(t.isFile("/2026/DaySchedules1/40.txt"));
}

TEST(EnsureDayScheduleDirectories, MakesTheYearFolderWhenItIsMissing) {
    TestDataRoot t;
    EnsureDayScheduleDirectories(t.disk(), QDate(2027, 1, 4), 1);
    EXPECT_TRUE(t.isDir("/2027/DaySchedules1"));
}

TEST(EnsureDayScheduleDirectories, WithNoPointsOfServiceMakesNothing) {
    TestDataRoot t;
    EnsureDayScheduleDirectories(t.disk(), QDate(2026, 2, 9), 0);
    EXPECT_TRUE(t.root().list("/").isEmpty());
}

TEST(DayScheduleFile, EmptyDayIsFortyEightLinesOfTwoQuotes) {
    TestDataRoot t;
    t.makeDir("/2026/DaySchedules1");
    writeDaySchedule(t.disk(), 2026, 1, 40, DaySchedule());
    EXPECT_EQ(t.readBytes("/2026/DaySchedules1/40.txt"), emptyDayBytes());
}

TEST(DayScheduleFile, GridIsWrittenAsOneQuotedStringPerRow) {
    TestDataRoot t;
    t.makeDir("/2026/DaySchedules2");
    Grid g = labelledGrid();
    g.SetTextMatrix(0, 1, "Scheduled Appointments");
    g.SetTextMatrix(1, 1, "Linda Miller");
    g.SetTextMatrix(2, 1, "Water Heater Flush");
    g.SetTextMatrix(48, 1, QString::fromUtf8("Zo\u00eb"));
    saveDaySchedule(t.disk(), 2026, 2, 328, g);
    QByteArray expected = "\"Linda Miller\"\r\n\"Water Heater Flush\"\r\n";
    for (int i = 3; i <= 47; ++i)
        expected += "\"\"\r\n";
    expected += "\"Zo\xeb\"\r\n";
    EXPECT_EQ(t.readBytes("/2026/DaySchedules2/328.txt"), expected);
}

TEST(DayScheduleFile, SavingReplacesTheWholeFile) {
    TestDataRoot t;
    QByteArray old;
    for (int i = 0; i < 48; ++i)
        old += "\"Holiday\"\r\n";
    old += "trailing junk\r\n";
    t.writeBytes("/2026/DaySchedules1/358.txt", old);
    DaySchedule day;
    day.setSlot(1, "Prairie Bakery");
    writeDaySchedule(t.disk(), 2026, 1, 358, day);
    EXPECT_EQ(t.readBytes("/2026/DaySchedules1/358.txt"), "\"Prairie Bakery\"\r\n" + emptyDayBytes().mid(4));
}

TEST(DayScheduleFile, WritingADayOfAYearWithoutFoldersMakesThem) {
    TestDataRoot t;
    t.makeDir("/2026/DaySchedules1");
    DaySchedule day;
    day.setSlot(5, "Mr. Chen Gonzalez");
    writeDaySchedule(t.disk(), 2027, 1, 4, day);
    ASSERT_TRUE(t.isFile("/2027/DaySchedules1/4.txt"));
    EXPECT_EQ(readDaySchedule(t.disk(), 2027, 1, 4).slot(5), "Mr. Chen Gonzalez");
}

TEST(DayScheduleFile, FindsAFolderSpelledInAnotherCase) {
    TestDataRoot t;
    t.writeBytes("/2026/dayschedules1/40.txt", "\"A\"\r\n" + emptyDayBytes().mid(4));
    EXPECT_EQ(readDaySchedule(t.disk(), 2026, 1, 40).slot(1), "A");
    writeDaySchedule(t.disk(), 2026, 1, 40, DaySchedule());
    EXPECT_EQ(t.readBytes("/2026/dayschedules1/40.txt"), emptyDayBytes());
    EXPECT_FALSE(t.isDir("/2026/DaySchedules1"));
}

TEST(DayScheduleFile, ADayWithoutAFileIsAnEmptyDay) {
    TestDataRoot t;
    Grid g = labelledGrid();
    for (int row = 1; row <= 48; ++row)
        g.SetTextMatrix(row, 1, "stale");
    loadDaySchedule(t.disk(), 2026, 1, 40, g);
    for (int row = 1; row <= 48; ++row)
        EXPECT_EQ(g.TextMatrix(row, 1), "") << "row " << row;
    EXPECT_TRUE(readDaySchedule(t.disk(), 2026, 1, 40).isEmpty());
    EXPECT_FALSE(dayScheduleExists(t.disk(), 2026, 1, 40));
    EXPECT_FALSE(t.isDir("/2026"));
}

TEST(DayScheduleFile, ReadsRowsOneToFortyEightIntoColumnOne) {
    TestDataRoot t;
    QByteArray bytes;
    for (int i = 1; i <= 48; ++i)
        bytes += "\"Row " + QByteArray::number(i) + "\"\r\n";
    t.writeBytes("/2026/DaySchedules1/40.txt", bytes);
    Grid g = labelledGrid();
    g.SetTextMatrix(0, 1, "Scheduled Appointments");
    loadDaySchedule(t.disk(), 2026, 1, 40, g);
    for (int row = 1; row <= 48; ++row)
        EXPECT_EQ(g.TextMatrix(row, 1), "Row " + QString::number(row));
    EXPECT_EQ(g.TextMatrix(0, 1), "Scheduled Appointments");
    EXPECT_EQ(g.TextMatrix(25, 0), "1:00");
    EXPECT_EQ(t.disk().OpenChannelCount(), 0);
}

TEST(DayScheduleFile, ADoubleQuoteInsideARowEndsThatRowsTextOnReadBack) {
    TestDataRoot t;
    DaySchedule day;
    day.setSlot(3, "Bob \"Ace\" Smith");
    day.setSlot(4, "Gas Leak Test");
    writeDaySchedule(t.disk(), 2026, 1, 40, day);
    const QByteArray bytes = t.readBytes("/2026/DaySchedules1/40.txt");
    EXPECT_TRUE(bytes.contains("\r\n\"Bob \"Ace\" Smith\"\r\n\"Gas Leak Test\"\r\n"));
    const DaySchedule back = readDaySchedule(t.disk(), 2026, 1, 40);
    EXPECT_EQ(back.slot(3), "Bob ");
    EXPECT_EQ(back.slot(4), "Gas Leak Test");
    EXPECT_EQ(back.slot(48), "");
}

TEST(DayScheduleFile, AFileCutShortStopsWithAMessageAndLeavesTheGridAlone) {
    TestDataRoot t;
    t.writeBytes("/2026/DaySchedules1/40.txt", emptyDayBytes().left(47 * 4));
    Grid g = labelledGrid();
    g.SetTextMatrix(7, 1, "kept");
    try {
        loadDaySchedule(t.disk(), 2026, 1, 40, g);
        FAIL() << "expected a StoreError";
    } catch (const StoreError& e) {
        EXPECT_EQ(e.file(), "/2026/DaySchedules1/40.txt");
    }
    EXPECT_EQ(g.TextMatrix(7, 1), "kept");
    EXPECT_EQ(t.readBytes("/2026/DaySchedules1/40.txt").size(), 47 * 4);
}

TEST(DayScheduleFile, ADayFileKeptOnlyInBackupIsRestoredAndRead) {
    TestDataRoot t;
    t.makeDir("/2026/DaySchedules1");
    t.writeBytes("/Backup/2026/DaySchedules1/40.txt", "\"Estimate Visit\"\r\n" + emptyDayBytes().mid(4));
    EXPECT_TRUE(dayScheduleExists(t.disk(), 2026, 1, 40));
    EXPECT_EQ(readDaySchedule(t.disk(), 2026, 1, 40).slot(1), "Estimate Visit");
}

TEST(DayScheduleYears, DecemberBookingForJanuaryGoesIntoThisYearsFileOfThatDayNumber) {
    // The booking screen takes the year from today and the day number from the chosen date.
    TestDataRoot t;
    const QDate today(2026, 12, 10);
    const QDate chosen(2027, 1, 5);
    DaySchedule thisJanuary;
    thisJanuary.setSlot(1, "Miss Robert Smith");
    writeDaySchedule(t.disk(), 2026, 1, 5, thisJanuary);

    DaySchedule day = readDaySchedule(t.disk(), today.year(), 1, chosen.dayOfYear());
    day.setSlot(10, "James Williams");
    writeDaySchedule(t.disk(), today.year(), 1, chosen.dayOfYear(), day);

    const DaySchedule onDisk = readDaySchedule(t.disk(), 2026, 1, 5);
    EXPECT_EQ(onDisk.slot(1), "Miss Robert Smith");
    EXPECT_EQ(onDisk.slot(10), "James Williams");
    EXPECT_FALSE(t.isFile("/2027/DaySchedules1/5.txt"));
}

TEST(DayScheduleYears, NextYearsDayFileIsNotSeenThroughTheYearTheViewWasOpenedIn) {
    TestDataRoot t;
    DaySchedule nextYear;
    nextYear.setSlot(1, "Route 66 Diner");
    writeDaySchedule(t.disk(), 2027, 1, 5, nextYear);
    const int openedInYear = QDate(2026, 12, 30).year();
    const QDate shown(2027, 1, 5);
    Grid g = labelledGrid();
    loadDaySchedule(t.disk(), openedInYear, 1, shown.dayOfYear(), g);
    EXPECT_EQ(g.TextMatrix(1, 1), "");
    loadDaySchedule(t.disk(), shown.year(), 1, shown.dayOfYear(), g);
    EXPECT_EQ(g.TextMatrix(1, 1), "Route 66 Diner");
}

TEST(DayScheduleValue, CopiesToAndFromAGridAndRefusesRowsOutsideTheDay) {
    DaySchedule day;
    day.setSlot(1, "first");
    day.setSlot(48, "last");
    Grid g;
    day.toGrid(g);
    EXPECT_EQ(g.Rows(), 49);
    EXPECT_EQ(g.TextMatrix(48, 1), "last");
    EXPECT_EQ(DaySchedule::fromGrid(g), day);
    EXPECT_FALSE(day.isFree(1));
    EXPECT_TRUE(day.isFree(2));
    EXPECT_FALSE(day.isFree(0));
    EXPECT_FALSE(day.isFree(49));
    EXPECT_THROW(day.setSlot(49, "x"), StoreError);
    EXPECT_THROW(day.setSlot(0, "x"), StoreError);
}

TEST(LegacyDaySchedules, EveryFixtureDayReadsAndWritesBackByteForByte) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    const QString fixture = ostrel::test::legacyFixture();
    TestDataRoot t;
    int files = 0;
    for (int n = 1; n <= 3; ++n) {
        const QDir dir(fixture + "/2026/DaySchedules" + QString::number(n));
        for (const QString& name : dir.entryList({"*.txt"}, QDir::Files)) {
            const int dayOfYear = name.chopped(4).toInt();
            const QString rel = daySchedulePath(2026, n, dayOfYear);
            const QByteArray original = legacyBytes(rel);
            t.writeBytes(rel, original);
            Grid g = labelledGrid();
            loadDaySchedule(t.disk(), 2026, n, dayOfYear, g);
            t.writeBytes(rel, "overwritten");
            saveDaySchedule(t.disk(), 2026, n, dayOfYear, g);
            EXPECT_EQ(t.readBytes(rel), original) << rel.toStdString();
            ++files;
        }
    }
    EXPECT_EQ(files, 18);
}

TEST(LegacyDaySchedules, FixtureRowsReadAsTheScreensShowThem) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    TestDataRoot t;
    for (const QString& rel :
         {QStringLiteral("/2026/DaySchedules1/331.txt"), QStringLiteral("/2026/DaySchedules1/358.txt"),
          QStringLiteral("/2026/DaySchedules3/330.txt")})
        t.writeBytes(rel, legacyBytes(rel));
    const DaySchedule busy = readDaySchedule(t.disk(), 2026, 1, 331);
    EXPECT_EQ(busy.slot(1), "Miss Barbara Brown");
    EXPECT_EQ(busy.slot(4), "Route 66 Diner");
    EXPECT_EQ(busy.slot(10), "Route 66 Diner Filter Change");
    EXPECT_TRUE(busy.isFree(11));
    const DaySchedule reserved = readDaySchedule(t.disk(), 2026, 1, 358);
    for (int row = 1; row <= 48; ++row)
        EXPECT_EQ(reserved.slot(row), "Holiday");
    EXPECT_EQ(checkSlotFit(reserved, 1, 1, FreeRowScan::BlockOnly).refusal, kNotContiguousText);
    EXPECT_EQ(readDaySchedule(t.disk(), 2026, 3, 330).slot(1), QString::fromUtf8("Miss Zo\u00eb O'Brien"));
}

TEST(DaySchedule, ATakenSlotGivesItsTextOnceAndIsLeftFree) {
    DaySchedule day;
    day.setSlot(5, QStringLiteral("Smith"));
    EXPECT_EQ(day.takeSlot(5), "Smith");
    EXPECT_TRUE(day.isFree(5));
    EXPECT_EQ(day.takeSlot(5), QString());
    EXPECT_EQ(day.takeSlot(0), QString());
    EXPECT_EQ(day.takeSlot(49), QString());
}

TEST(DaySchedule, TextsHandedToAGridAreTheGridsAndTheDayIsLeftEmpty) {
    DaySchedule day;
    for (int r = kFirstTimeSlot; r <= kLastTimeSlot; ++r) day.setSlot(r, QStringLiteral("row %1").arg(r));
    Grid g;
    g.SetRows(kDayGridRows);
    g.SetCols(2);
    for (int r = kFirstTimeSlot; r <= kLastTimeSlot; ++r) g.SetTextMatrix(r, kSlotTextColumn, day.takeSlot(r));
    EXPECT_EQ(g.TextMatrix(1, kSlotTextColumn), "row 1");
    EXPECT_EQ(g.TextMatrix(48, kSlotTextColumn), "row 48");
    EXPECT_TRUE(day.isEmpty());
}
