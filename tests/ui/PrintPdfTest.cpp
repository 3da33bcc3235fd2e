// Real print jobs to PDF through the path the print dialog's choice takes, read back with the
// poppler tools: the words must stand where the twips say, 1 point being 20 twips.
#include "FakePlatform.h"
#include "PdfText.h"
#include "TestDataRoot.h"
#include "controls/Controls.h"
#include "platform/QtPageSurface.h"
#include "platform/QtPrintDialogs.h"
#include "printing/ConfirmedPrint.h"
#include "printing/GridReport.h"
#include "printing/LetterheadRoutines.h"
#include "printing/PrinterRoutines.h"
#include "setup/SetupSettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontInfo>
#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextDocumentFragment>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;
using ostrel::test::FakePlatform;
using ostrel::test::TestDataRoot;
using namespace ostrel::test;

namespace {

struct PdfPrinting : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    SetupSettings settings;
    QTemporaryDir out;
    QString pdf = out.filePath(QStringLiteral("job.pdf"));
    QtPrintDialogs printDialogs{QtPrintDialogs::PdfFileChooser(pdf)};
    PrinterRoutines printer{printDialogs, fake.dialogs, t.disk(), settings, fake.clock};

    void SetUp() override {
        if (!havePoppler()) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
        settings.business.txtBusiness = {"Prairie Comfort Heating",
                                         "1207 Wabash Ave",
                                         "Suite B",
                                         "Springfield",
                                         "IL",
                                         "62704",
                                         "217-555-0142",
                                         "Fax 217-555-0143",
                                         "FEIN 37-1234567"};
        settings.colors.ckColor = 1;
        fake.clock.set(QDate(2026, 3, 4), QTime(10, 0));
    }

    // The height of a line of the named size, as the printer measures it.
    double lineHeight(double size, bool bold) {
        QPrinter& p = printDialogs.printer();
        return QFontMetricsF(QtPageSurface::toQFont({settings.colors.lblFont, size, bold, false}), &p)
                   .lineSpacing() *
               1440.0 / p.resolution();
    }

    PrintResult confirmedPrint(const std::function<void()>& draw, const QString& orientation = "Portrait") {
        ConfirmedPrint doc;
        doc.orientation = orientation;
        doc.question = QStringLiteral("Was the Invoice Printed Correctly");
        doc.retry = QStringLiteral("Would you like to Retry Printing this Invoice");
        doc.draw = draw;
        fake.dialogs.expect("Printing Confirmation", doc.question, vbYes);
        const PrintResult r = PrintAndConfirm(printer, doc);
        fake.dialogs.verify();
        return r;
    }

    Grid invoiceGrid(int rows) {
        Grid g;
        g.SetCols(5);
        g.SetRows(rows + 1);
        const QStringList heads = {"Invoice", "Account", "Name", "Date", "Amount"};
        for (int c = 0; c < 5; ++c)
            g.SetTextMatrix(0, c, heads[c]);
        for (int r = 1; r <= rows; ++r) {
            g.SetTextMatrix(r, 0, QStringLiteral("110-%1").arg(r));
            g.SetTextMatrix(r, 1, QStringLiteral("R%1").arg(r));
            g.SetTextMatrix(r, 2, QStringLiteral("Customer%1").arg(r));
            g.SetTextMatrix(r, 3, QStringLiteral("3/%1/2026").arg(r % 28 + 1));
            g.SetTextMatrix(r, 4, QStringLiteral("$%1.50").arg(r * 37));
        }
        return g;
    }
};

} // namespace

TEST(PdfFonts, ArialResolvesToLiberationSansWithTheSameMetrics) {
    const QFont f = QtPageSurface::toQFont({"Arial", 10, false, false});
    EXPECT_EQ(QFontInfo(f).family(), "Liberation Sans");
    EXPECT_EQ(QFontInfo(QtPageSurface::toQFont({"Arial", 10, true, false})).bold(), true);
}

TEST_F(PdfPrinting, TheChosenPrinterIsLetterAtFourteenFortyDotsOverTheWholeSheet) {
    printer.ShowPrinterDialog();
    QPrinter& p = printDialogs.printer();
    EXPECT_EQ(p.resolution(), 1440);
    EXPECT_TRUE(p.fullPage());
    EXPECT_EQ(p.pageLayout().pageSize().id(), QPageSize::Letter);
    EXPECT_EQ(p.outputFormat(), QPrinter::PdfFormat);
    EXPECT_EQ(p.outputFileName(), pdf);
    PageSurface& s = printer.Printer();
    const QFontMetricsF fm(QtPageSurface::toQFont({"Arial", 10, false, false}), &p);
    EXPECT_DOUBLE_EQ(s.TextWidth("Telephone: 217-555-0142"), fm.horizontalAdvance("Telephone: 217-555-0142"));
    EXPECT_DOUBLE_EQ(s.TextHeight("x"), fm.lineSpacing());
    // 10 point Arial: a line of 11.5 points.
    EXPECT_NEAR(s.TextHeight("x"), 230, 1);
}

TEST_F(PdfPrinting, TheLetterheadTitleLogoAndAddressLandAtTheirTwips) {
    const QString logo = out.filePath("logo.png");
    QImage image(96, 96, QImage::Format_RGB32);
    image.fill(Qt::white);
    {
        QPainter paint(&image);
        paint.setRenderHint(QPainter::Antialiasing);
        paint.setBrush(QColor(0, 90, 160));
        paint.setPen(Qt::NoPen);
        paint.drawEllipse(QRectF(4, 4, 88, 88));
        paint.setBrush(QColor(240, 140, 0));
        paint.drawRect(QRectF(30, 30, 36, 36));
    }
    ASSERT_TRUE(image.save(logo));
    settings.logo.path = logo;
    settings.logo.pictureLoaded = true;
    settings.logoSize.width = 1440;
    settings.logoSize.height = 1440;
    ASSERT_EQ(confirmedPrint([this] {
                  PrintTitle(printer, "INVOICE", 0.5, 20);
                  PrintLogo(printer, 720);
                  PrintLetterhead(printer, 0.75, 0.4, 12);
                  PrintAddressBlock(printer, "Mr. John Q Public", "12 Elm St", "", "Decatur", "IL", "62521",
                                    2.3, true);
              }),
              PrintResult::Printed);
    savePages(pdf, "letterhead");
    const PdfText text = readPdf(pdf);
    ASSERT_EQ(text.pages.size(), 1);
    EXPECT_NEAR(text.pages[0].width, 612, 0.5);
    EXPECT_NEAR(text.pages[0].height, 792, 0.5);

    EXPECT_AT(text.word("INVOICE"), 7200, 720);
    EXPECT_AT(text.word("Prairie"), 1080, 576);
    const double name = 576 + lineHeight(12, true);
    const double line = lineHeight(10, false);
    EXPECT_AT(text.word("1207"), 1080, name);
    EXPECT_AT(text.word("Suite"), 1080, name + line);
    EXPECT_AT(text.word("Springfield,"), 1080, name + 2 * line);
    EXPECT_AT(text.word("Telephone:"), 1080, name + 3 * line);
    EXPECT_AT(text.word("Fax"), 1080, name + 4 * line);
    EXPECT_AT(text.word("FEIN"), 1080, name + 5 * line);
    EXPECT_AT(text.word("Mr."), 1440, 3312);
    EXPECT_AT(text.word("12"), 1440, 3312 + line);
    EXPECT_AT(text.word("Decatur,"), 1440, 3312 + 2 * line);
}

TEST_F(PdfPrinting, AContinuedPrintGoesOnWhereTheMeasuredTextEnds) {
    ASSERT_EQ(confirmedPrint([this] {
                  PageSurface& p = printer.Printer();
                  printer.SetPosition(1.0, 3.0);
                  p.PrintContinue("Amount Enclosed ");
                  p.Print("Due");
              }),
              PrintResult::Printed);
    const PdfText text = readPdf(pdf);
    const PdfWord amount = text.word("Amount");
    const PdfWord due = text.word("Due");
    EXPECT_AT(amount, 1440, 4320);
    PrintFont f{"Arial", 10, false, false};
    const double width = QFontMetricsF(QtPageSurface::toQFont(f), &printDialogs.printer())
                             .horizontalAdvance("Amount Enclosed ");
    EXPECT_AT(due, 1440 + width, 4320);
}

TEST_F(PdfPrinting, WrappedLinesStayInsideTheWidthWithRealMetrics) {
    const QString text =
        "Parts removed from your equipment will be returned to you on request, unless they are "
        "exchanged under warranty or are needed for a core charge credit with the supplier.";
    ASSERT_EQ(confirmedPrint([&] { printer.PrintWrapped(1872, 12384, 5904, 720, text); }),
              PrintResult::Printed);
    const PdfText words = readPdf(pdf);
    ASSERT_FALSE(words.words.isEmpty());
    QSet<int> lines;
    for (const PdfWord& w : words.words) {
        EXPECT_LE(w.xMax, (1872 + 5904 - 20) / 20.0 + kTolerancePoints) << w.text.toStdString();
        lines.insert(qRound(w.yMin * 20));
    }
    EXPECT_GE(lines.size(), 3);
    EXPECT_AT(words.word("Parts"), 1872, 12384);
}

TEST_F(PdfPrinting, TheGridReportLandsInLandscapeWithItsHeadsRowsAndRightAlignedAmounts) {
    const Grid grid = invoiceGrid(3);
    ASSERT_EQ(PrintGridReport(printer, "Invoices Report", grid, 0), PrintResult::Printed);
    savePages(pdf, "grid-report");
    const PdfText text = readPdf(pdf);
    ASSERT_EQ(text.pages.size(), 1);
    EXPECT_NEAR(text.pages[0].width, 792, 0.5);
    EXPECT_NEAR(text.pages[0].height, 612, 0.5);

    const PdfWord invoices = text.word("Invoices");
    const PdfWord report = text.word("Report");
    EXPECT_NEAR((invoices.xMin + report.xMax) / 2, 792 / 2.0, kTolerancePoints);
    EXPECT_NEAR(invoices.yMin, 0, kTolerancePoints);
    EXPECT_AT(text.word("3/4/2026"), 10080, 720);
    EXPECT_AT(text.word("Invoice"), 1440, 2520);
    EXPECT_AT(text.word("Account"), 5040, 2520);
    EXPECT_NEAR(text.word("Amount").xMax, 540, kTolerancePoints);
    EXPECT_AT(text.word("Comment/Action"), 11520, 2520);

    const double line = lineHeight(10, false);
    for (int r = 1; r <= 3; ++r) {
        const double y = 2880 + (r - 1) * line;
        EXPECT_AT(text.word(QStringLiteral("R%1").arg(r)), 1440, y);
        EXPECT_AT(text.word(QStringLiteral("Customer%1").arg(r)), 5040, y);
        const PdfWord amount = text.word(QStringLiteral("$%1.50").arg(r * 37));
        EXPECT_NEAR(amount.xMax, 540, kTolerancePoints);
        EXPECT_NEAR(amount.yMin, y / 20, kTolerancePoints);
    }
    EXPECT_EQ(text.count("110-1"), 0);
    EXPECT_EQ(text.count("_________________________________"), 3);
}

TEST_F(PdfPrinting, ALongGridReportGoesOnToANewPageUnderTheSameHeading) {
    const Grid grid = invoiceGrid(45);
    ASSERT_EQ(PrintGridReport(printer, "Invoices Report", grid, 0), PrintResult::Printed);
    const PdfText text = readPdf(pdf);
    ASSERT_EQ(text.pages.size(), 2);
    EXPECT_EQ(text.count("Invoices"), 2);
    // The rows run from 2 inches down while a whole line still fits above 12240.
    const double line = lineHeight(10, false);
    const int firstPageRows = int(std::ceil((12240 - line - 2880) / line));
    const PdfWord firstOnPage2 = text.word(QStringLiteral("R%1").arg(firstPageRows + 1));
    EXPECT_EQ(firstOnPage2.page, 2);
    EXPECT_AT(firstOnPage2, 1440, 2880);
    EXPECT_EQ(text.word(QStringLiteral("R%1").arg(firstPageRows)).page, 1);
}

TEST_F(PdfPrinting, TheLogoIsPaintedCentredAtTheStoredSize) {
    const QString logo = out.filePath("logo.png");
    QImage image(96, 64, QImage::Format_RGB32); // at 15 twips a pixel: 1440 by 960 twips
    image.fill(QColor(200, 0, 0));
    ASSERT_TRUE(image.save(logo));
    settings.logo.path = logo;
    settings.logo.pictureLoaded = true;
    settings.logoSize.width = 1440;
    settings.logoSize.height = 960;
    ASSERT_EQ(confirmedPrint([this] { PrintLogo(printer, 720); }), PrintResult::Printed);
    const QImage page = renderPage(pdf);
    ASSERT_FALSE(page.isNull());
    // The picture spans 270 to 342 points across and 36 to 84 down.
    EXPECT_EQ(QColor(page.pixel(306, 60)).red(), 200);
    EXPECT_EQ(QColor(page.pixel(306, 60)).green(), 0);
    EXPECT_EQ(QColor(page.pixel(266, 60)), QColor(Qt::white));
    EXPECT_EQ(QColor(page.pixel(346, 60)), QColor(Qt::white));
    EXPECT_EQ(QColor(page.pixel(306, 32)), QColor(Qt::white));
    EXPECT_EQ(QColor(page.pixel(306, 88)), QColor(Qt::white));
}

TEST_F(PdfPrinting, AMonochromeJobPrintsItsColoursInGrey) {
    const auto drawThickLine = [this] {
        PageSurface& p = printer.Printer();
        p.ForeColor = 16711680; // blue
        p.DrawWidth = 200;
        p.Line(1440, 1440, 4320, 1440);
    };
    settings.colors.ckColor = 1;
    ASSERT_EQ(confirmedPrint(drawThickLine), PrintResult::Printed);
    QColor c = QColor(renderPage(pdf).pixel(144, 72));
    EXPECT_GT(c.blue(), 200);
    EXPECT_LT(c.red(), 50);

    settings.colors.ckColor = 0;
    ASSERT_EQ(confirmedPrint(drawThickLine), PrintResult::Printed);
    c = QColor(renderPage(pdf).pixel(144, 72));
    EXPECT_EQ(c.red(), c.blue());
    EXPECT_EQ(c.green(), c.blue());
    EXPECT_LT(c.blue(), 200);
}

TEST_F(PdfPrinting, APdfThatCannotBeWrittenIsAPrintError) {
    QtPrintDialogs broken{QtPrintDialogs::PdfFileChooser(out.filePath("missing/folder/job.pdf"))};
    PrinterRoutines brokenPrinter{broken, fake.dialogs, t.disk(), settings, fake.clock};
    fake.dialogs.expect("Print Error", "A Print Error has occurred", vbOK);
    EXPECT_EQ(PrintGridReport(brokenPrinter, "Invoices Report", invoiceGrid(1), 0), PrintResult::Failed);
    fake.dialogs.verify();
}
