// The day sheet printed to a real PDF and read back: the words must stand at the inches and twips
// the sheet's layout gives, in the face the printing layer chose for "Ariel".
#include "FakePlatform.h"
#include "PdfText.h"
#include "TestDataRoot.h"
#include "platform/QtPageSurface.h"
#include "platform/QtPrintDialogs.h"
#include "printing/PrinterRoutines.h"
#include "scheduling/DaySheet.h"
#include "scheduling/TimeGrid.h"
#include "setup/SetupSettings.h"

#include <QFontInfo>
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;
using namespace ostrel::test;

namespace {

struct DaySheetPdf : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    SetupSettings settings;
    QTemporaryDir out;
    QString pdf = out.filePath(QStringLiteral("daysheet.pdf"));
    QtPrintDialogs printDialogs{QtPrintDialogs::PdfFileChooser(pdf)};
    PrinterRoutines printer{printDialogs, fake.dialogs, t.disk(), settings, fake.clock};
    Grid day;
    DaySheetContent content;

    void SetUp() override {
        if (!havePoppler()) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
        settings.business.txtBusiness = {"Prairie Comfort Heating", "1207 Wabash Ave", "Suite B", "Springfield",
                                         "IL", "62704", "217-555-0142", "", ""};
        day.SetCols(3);
        FillTimeLabels(day);
        content.date = "11/23/2026";
        content.pointOfService = "Service Van";
        content.schedule = &day;
    }

    // A full day: an appointment on every block of four rows.
    void fillDay() {
        for (int start = 1; start <= 45; start += 4) {
            const int n = (start - 1) / 4 + 1;
            day.SetTextMatrix(start, 1, QStringLiteral("Customer%1").arg(n));
            day.SetTextMatrix(start, 2, QStringLiteral("Service%1").arg(n));
            day.SetTextMatrix(start + 1, 1, QStringLiteral("Tel.  217-555-01%1").arg(n, 2, 10, QLatin1Char('0')));
            day.SetTextMatrix(start + 1, 2, "   ------Scheduled------");
            day.SetTextMatrix(start + 2, 2, "   ------Scheduled------");
        }
    }

    double lineHeight(double size) {
        QPrinter& p = printDialogs.printer();
        return QFontMetricsF(QtPageSurface::toQFont({kDaySheetFont, size, true, false}), &p).lineSpacing() * 1440.0 /
               p.resolution();
    }
    double width(const QString& text, double size) {
        QPrinter& p = printDialogs.printer();
        return QFontMetricsF(QtPageSurface::toQFont({kDaySheetFont, size, true, false}), &p).horizontalAdvance(text) *
               1440.0 / p.resolution();
    }
    PdfText print() {
        fake.dialogs.expect("Confirm Print", "Did the Schedule Print Correctly?", vbYes);
        EXPECT_EQ(PrintResult::Printed, PrintDaySheet(printer, content, settings));
        fake.dialogs.verify();
        return readPdf(pdf);
    }
};

} // namespace

TEST(PdfFonts, ArielResolvesToTheSameFaceAsArial) {
    for (bool bold : {false, true}) {
        const QFontInfo ariel(QtPageSurface::toQFont({"Ariel", 15, bold, false}));
        const QFontInfo arial(QtPageSurface::toQFont({"Arial", 15, bold, false}));
        EXPECT_EQ(arial.family(), ariel.family());
        EXPECT_EQ("Liberation Sans", ariel.family());
        EXPECT_EQ(bold, ariel.bold());
    }
}

TEST_F(DaySheetPdf, HeadingAndBodyStandAtTheirInchesOnOnePage) {
    fillDay();
    const PdfText text = print();
    savePages(pdf, "daysheet-full-day");
    ASSERT_EQ(1, text.pages.size());
    const double l15 = lineHeight(15);
    const double l10 = lineHeight(10);

    double y = l15;
    EXPECT_AT(text.word("APPOINTMENTS"), 1440, y);
    y += l15;
    EXPECT_AT(text.word("11/23/2026"), 1440, y);
    EXPECT_AT(text.word("Prairie"), 7200, y);
    y += l15;
    EXPECT_AT(text.word("Service"), 1440, y);
    EXPECT_AT(text.word("1207"), 7200, y);
    y += l10;
    EXPECT_AT(text.word("Suite"), 7200, y);
    y += l10;
    EXPECT_AT(text.word("Springfield,"), 7200, y);
    y += l10;
    EXPECT_AT(text.word("Tel"), 7200, y);
    y += 2 * l10;
    EXPECT_AT(text.word("START"), 1440, y);
    EXPECT_AT(text.word("ACCOUNT"), 2880, y);
    EXPECT_AT(text.word("SERVICE"), 6840, y);
    EXPECT_AT(text.word("REMARKS"), 9360, y);
    y += l10 + 50;

    // Row by row: the label ends at 1.4 inches, the account at 2 inches, the service at 4.75.
    for (int r = 1; r <= 48; ++r) {
        const QString label = timeLabel(r);
        const int page = 1;
        PdfWord found;
        for (const PdfWord& w : text.words)
            if (w.text == label && w.page == page && std::abs(w.yMin - y / 20.0) < 1.0) found = w;
        EXPECT_EQ(label, found.text) << "row " << r;
        EXPECT_NEAR(found.xMax, 2016 / 20.0, 0.5) << label.toStdString();
        if ((r - 1) % 4 == 0) {
            const int n = (r - 1) / 4 + 1;
            EXPECT_AT(text.word(QStringLiteral("Service%1").arg(n)), 6840, y);
            if (r >= 2) EXPECT_AT(text.word(QStringLiteral("Customer%1").arg(n)), 2880, y);
        }
        y += l10;
        if (r % 4 == 0) y += 100;
        if (r == 24) y += 100;
    }
    // Row 1's account is never printed, the second appointment's is.
    EXPECT_EQ(0, text.count("Customer1"));
    EXPECT_EQ(1, text.count("Customer2"));
    EXPECT_LT(y, 15840);
}

TEST_F(DaySheetPdf, TheSheetIsSetInLiberationSansBold) {
    print();
    QProcess fonts;
    fonts.start("pdffonts", {pdf});
    fonts.waitForFinished(10000);
    const QString list = QString::fromLocal8Bit(fonts.readAllStandardOutput());
    EXPECT_TRUE(list.contains("LiberationSans-Bold")) << list.toStdString();
    EXPECT_FALSE(list.contains("DejaVu")) << list.toStdString();
}
