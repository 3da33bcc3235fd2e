#include "TestDataRoot.h"
#include "invoicing/InvoiceImage.h"
#include "store/StoreError.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {

PostedInvoice sampleInvoice() {
    PostedInvoice in;
    in.invoiceNo = "20260001 ";
    in.accountNo = " 10102";
    in.customer = {"Ms Zoë Miller ", "4378 Main St", "", "Springfield", "IL", "62701"};
    in.dateText = "2/15/2026";
    in.reference = "Prepared 2/15/2026";
    in.attention = "";
    in.lines = {{"1", "Gas Leak Test", "2/15/2026", "$55.00", "$55.00", "False"},
                {"2", "Duct Tape Roll", "", "$16.96", "$33.92", "True"}};
    in.total = "$88.92";
    in.tax = "$2.12";
    in.tax2 = "";
    in.grandTotal = "$91.04";
    in.misc = "";
    return in;
}

const QByteArray kSampleBytes = "20260001\r\n"
                                "10102\r\n"
                                "Ms Zo\xeb Miller\r\n"
                                "2/15/2026\r\n"
                                "$91.04\r\n"
                                "\"Ms Zo\xeb Miller\"\r\n\"4378 Main St\"\r\n\"\"\r\n\"Springfield\"\r\n\"IL\"\r\n\"62701\"\r\n"
                                "\"Ms Zo\xeb Miller\"\r\n\"4378 Main St\"\r\n\"\"\r\n\"Springfield\"\r\n\"IL\"\r\n\"62701\"\r\n"
                                "None\r\n"
                                "2/15/2026\r\n"
                                "20260001\r\n"
                                "10102\r\n"
                                "Prepared 2/15/2026\r\n"
                                "\r\n"
                                "2\r\n"
                                "1\r\nGas Leak Test\r\n2/15/2026\r\n$55.00\r\n$55.00\r\nFalse\r\n"
                                "2\r\nDuct Tape Roll\r\n\r\n$16.96\r\n$33.92\r\nTrue\r\n"
                                "\"$88.92\",\"$2.12\",\"$0.00\",\"$91.04\",\"$0.00\",\"$0.00\",\"$0.00\"\r\n";

} // namespace

TEST(InvoiceImage, PostingWritesTheStatementsByteForByte) {
    EXPECT_EQ(FormatInvoiceImage(MakeInvoiceImage(sampleInvoice())), kSampleBytes);
}

TEST(InvoiceImage, EmptyAmountsBecomeZeroMoneyInTheLastStatementOnly) {
    PostedInvoice in = sampleInvoice();
    in.total = in.tax = in.tax2 = in.grandTotal = in.misc = "";
    const InvoiceImage image = MakeInvoiceImage(in);
    EXPECT_EQ(image.grandTotalText, ""); // line 5 keeps the box as it stood
    for (const QString& t : image.totals) EXPECT_EQ(t, "$0.00");
    EXPECT_TRUE(FormatInvoiceImage(image).endsWith(
        "\r\n\"$0.00\",\"$0.00\",\"$0.00\",\"$0.00\",\"$0.00\",\"$0.00\",\"$0.00\"\r\n"));
}

TEST(InvoiceImage, MiscAmountStandsSixthAndShippingAndDiscountAreZero) {
    PostedInvoice in = sampleInvoice();
    in.misc = "$4.00";
    const InvoiceImage image = MakeInvoiceImage(in);
    EXPECT_EQ(image.totals[4], "$0.00");
    EXPECT_EQ(image.totals[5], "$4.00");
    EXPECT_EQ(image.totals[6], "$0.00");
}

TEST(InvoiceImage, WhatPostingWritesTheReaderReadsBackWhole) {
    TestDataRoot t;
    t.makeDir("/CompletedInvoices");
    const InvoiceImage written = MakeInvoiceImage(sampleInvoice());
    WriteInvoiceImage(t.disk(), written);
    EXPECT_EQ(t.readBytes("/CompletedInvoices/20260001.txt"), kSampleBytes);

    const InvoiceImage read = ReadInvoiceImage(t.disk(), "20260001");
    EXPECT_EQ(read.invoiceNo, "20260001");
    EXPECT_EQ(read.accountNo, "10102");
    EXPECT_EQ(read.customerName, "Ms Zoë Miller");
    EXPECT_EQ(read.dateText, "2/15/2026");
    EXPECT_EQ(read.grandTotalText, "$91.04");
    EXPECT_EQ(read.billTo, written.billTo);
    EXPECT_EQ(read.shipTo, written.shipTo);
    EXPECT_EQ(read.shipVia, "None");
    EXPECT_EQ(read.shipDate, "2/15/2026");
    EXPECT_EQ(read.invoiceNoAgain, "20260001");
    EXPECT_EQ(read.accountNoAgain, "10102");
    EXPECT_EQ(read.reference, "Prepared 2/15/2026");
    EXPECT_EQ(read.attention, "");
    EXPECT_EQ(read.lineCount, 2);
    EXPECT_EQ(read.lines, written.lines);
    EXPECT_EQ(read.totals, written.totals);
}

TEST(InvoiceImage, ACommaInTheReferenceShiftsEveryFieldBehindIt) {
    PostedInvoice in = sampleInvoice();
    in.reference = "PO 12, line 3";
    in.attention = "Bob";
    const QByteArray bytes = FormatInvoiceImage(MakeInvoiceImage(in));
    // The writer keeps the comma: the line stands as typed.
    EXPECT_TRUE(bytes.contains("\r\nPO 12, line 3\r\nBob\r\n2\r\n"));

    TextReader reader(bytes, "/CompletedInvoices/20260001.txt");
    const InvoiceImage read = ReadInvoiceImage(reader);
    EXPECT_EQ(read.reference, "PO 12");
    EXPECT_EQ(read.attention, "line 3"); // the part behind the comma
    EXPECT_EQ(read.lineCount, 0);        // "Bob" taken as the line count
    EXPECT_TRUE(read.lines.isEmpty());
    // The seven amounts start at the real line count and run into the first body line.
    EXPECT_EQ(read.totals[0], "2");
    EXPECT_EQ(read.totals[1], "1");
    EXPECT_EQ(read.totals[2], "Gas Leak Test");
    EXPECT_EQ(read.totals[6], "False");
}

TEST(InvoiceImage, ACommaInAQuotedAddressLineStaysInItsField) {
    PostedInvoice in = sampleInvoice();
    in.customer[1] = "4378 Main St, Apt 2";
    TextReader reader(FormatInvoiceImage(MakeInvoiceImage(in)), "x");
    const InvoiceImage read = ReadInvoiceImage(reader);
    EXPECT_EQ(read.billTo[1], "4378 Main St, Apt 2");
    EXPECT_EQ(read.shipTo[1], "4378 Main St, Apt 2");
    EXPECT_EQ(read.reference, "Prepared 2/15/2026");
    EXPECT_EQ(read.totals[0], "$88.92");
}

TEST(InvoiceImage, ACommaInTheFirstFiveLinesIsReadWhole) {
    PostedInvoice in = sampleInvoice();
    in.customer[0] = "Miller, Zoe";
    TextReader reader(FormatInvoiceImage(MakeInvoiceImage(in)), "x");
    const InvoiceImage read = ReadInvoiceImage(reader);
    EXPECT_EQ(read.customerName, "Miller, Zoe");
    EXPECT_EQ(read.billTo[0], "Miller, Zoe");
    EXPECT_EQ(read.totals[3], "$91.04");
}

TEST(InvoiceImage, AnImageCutShortIsReportedWithItsName) {
    const QByteArray bytes = FormatInvoiceImage(MakeInvoiceImage(sampleInvoice()));
    TextReader reader(bytes.left(bytes.indexOf("None")), "/CompletedInvoices/20260001.txt");
    try {
        ReadInvoiceImage(reader);
        FAIL() << "a cut image was read";
    } catch (const StoreError& e) {
        EXPECT_EQ(e.file(), "/CompletedInvoices/20260001.txt");
    }
}

TEST(InvoiceImage, TheHeadReadStopsAfterFiveLines) {
    TextReader reader(kSampleBytes.left(kSampleBytes.indexOf("\"Ms")), "x");
    const InvoiceImage head = ReadInvoiceImageHead(reader);
    EXPECT_EQ(head.invoiceNo, "20260001");
    EXPECT_EQ(head.grandTotalText, "$91.04");
    EXPECT_TRUE(reader.atEnd());
}

TEST(InvoiceImage, ASecondImageOfTheSameNumberReplacesTheFirst) {
    TestDataRoot t;
    t.makeDir("/CompletedInvoices");
    WriteInvoiceImage(t.disk(), MakeInvoiceImage(sampleInvoice()));
    PostedInvoice again = sampleInvoice();
    again.grandTotal = "$5.00";
    WriteInvoiceImage(t.disk(), MakeInvoiceImage(again));
    EXPECT_EQ(ReadInvoiceImage(t.disk(), "20260001").grandTotalText, "$5.00");
    EXPECT_EQ(QDir(t.full("/CompletedInvoices")).entryList(QDir::Files).size(), 1);
}

TEST(InvoiceImage, AnInvoiceNumberWithASeparatorIsRefused) {
    TestDataRoot t;
    t.makeDir("/CompletedInvoices");
    PostedInvoice in = sampleInvoice();
    in.invoiceNo = "../Settings";
    EXPECT_THROW(WriteInvoiceImage(t.disk(), MakeInvoiceImage(in)), StoreError);
}

TEST(InvoiceImage, TheLegacyImageIsWrittenAgainByteForByte) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    QFile f(ostrel::test::legacyFixture() + "/CompletedInvoices/20260001.txt");
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QByteArray legacy = f.readAll();
    TextReader reader(legacy, "20260001.txt");
    const InvoiceImage read = ReadInvoiceImage(reader);
    EXPECT_TRUE(reader.atEnd());
    EXPECT_EQ(read.lineCount, read.lines.size());
    EXPECT_EQ(FormatInvoiceImage(read), legacy);
}

TEST(InvoiceImage, TheDateLineIsReadAsAShortDate) {
    EXPECT_EQ(InvoiceImage::parseDate("2/3/2026"), QDate(2026, 2, 3));
    EXPECT_EQ(InvoiceImage::parseDate("12/31/2025"), QDate(2025, 12, 31));
    EXPECT_EQ(InvoiceImage::parseDate("2026-02-03"), QDate(2026, 2, 3));
    EXPECT_FALSE(InvoiceImage::parseDate("$91.04").isValid());
    EXPECT_FALSE(InvoiceImage::parseDate("").isValid());
}
