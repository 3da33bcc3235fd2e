// The invoice page printed to PDF through the print dialog's path and read back with the poppler
// tools: its words must stand where the layout's twips put them.
#include "FakePlatform.h"
#include "PdfText.h"
#include "TestDataRoot.h"
#include "invoicing/InvoicePage.h"
#include "platform/QtPageSurface.h"
#include "platform/QtPrintDialogs.h"
#include "printing/ConfirmedPrint.h"
#include "printing/PrinterRoutines.h"
#include "setup/SetupSettings.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;
using namespace ostrel::test;
using ostrel::test::FakePlatform;
using ostrel::test::TestDataRoot;

namespace {

struct InvoicePdf : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    SetupSettings settings;
    QTemporaryDir out;
    QString pdf = out.filePath(QStringLiteral("invoice.pdf"));
    QtPrintDialogs printDialogs{QtPrintDialogs::PdfFileChooser(pdf)};
    PrinterRoutines printer{printDialogs, fake.dialogs, t.disk(), settings, fake.clock};
    InvoicePageContents invoice;

    void SetUp() override {
        if (!havePoppler()) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
        settings.business.txtBusiness = {"Prairie Comfort Heating", "1207 Wabash Ave", "Suite B",
                                         "Springfield",             "IL",              "62704",
                                         "217-555-0142",            "Fax 217-555-0143", ""};
        settings.colors.ckColor = 1;
        invoice.invoiceNo = "20260007";
        invoice.account = "2175550199";
        invoice.date = "11/22/2026";
        invoice.reference = "Prepared 11/22/2026";
        invoice.billTo = {"Dana Whitfield", "88 Elm St", "", "Decatur", "IL", "62521"};
        invoice.subTotal = "$1,245.00";
        invoice.tax = "$102.71";
        invoice.tax2 = "$0.00";
        invoice.total = "$1,347.71";
        invoice.handling = "$0.00";
        invoice.taxHeading1 = "Sales Tax";
        invoice.taxHeading2 = "City Tax";
        t.makeDir("/OstrelInvoicer");
        t.makeDir("/OstrelInvoicer/Narratives");
    }

    double lineHeight(double size, bool bold) {
        QPrinter& p = printDialogs.printer();
        return QFontMetricsF(QtPageSurface::toQFont({settings.colors.lblFont, size, bold, false}), &p)
                   .lineSpacing() *
               1440.0 / p.resolution();
    }
    double width(const QString& text, double size, bool bold) {
        QPrinter& p = printDialogs.printer();
        return QFontMetricsF(QtPageSurface::toQFont({settings.colors.lblFont, size, bold, false}), &p)
                   .horizontalAdvance(text) *
               1440.0 / p.resolution();
    }

    PdfText print(const QString& name) {
        ConfirmedPrint doc;
        doc.question = QStringLiteral("Was the Invoice Printed Correctly");
        doc.retry = QStringLiteral("Would you like to Retry Printing this Invoice");
        doc.draw = [this] { PrintInvoicePage(printer, invoice); };
        fake.dialogs.expect("Printing Confirmation", doc.question, vbYes);
        EXPECT_EQ(PrintAndConfirm(printer, doc), PrintResult::Printed);
        fake.dialogs.verify();
        savePages(pdf, name);
        return readPdf(pdf);
    }

    void addLines(int n) {
        for (int i = 1; i <= n; ++i)
            invoice.lines.push_back({QString::number(i % 4 + 1), QStringLiteral("Part%1 replaced").arg(i), "",
                                     "$10.00", QStringLiteral("$%1.00").arg((i % 4 + 1) * 10), "True"});
    }
};

} // namespace

TEST_F(InvoicePdf, AShortInvoiceWithALogoPutsEachWordAtItsTwips) {
    const QString logo = out.filePath("logo.png");
    QImage image(96, 96, QImage::Format_RGB32);
    image.fill(Qt::white);
    {
        QPainter paint(&image);
        paint.setBrush(QColor(0, 90, 160));
        paint.setPen(Qt::NoPen);
        paint.drawEllipse(QRectF(4, 4, 88, 88));
    }
    ASSERT_TRUE(image.save(logo));
    settings.logo.path = logo;
    settings.logo.pictureLoaded = true;
    settings.logoSize.width = 1080;
    settings.logoSize.height = 1080;
    t.writeBytes("/StatementTerms.txt", "Payment due in Full within 30 Days\r\n");
    invoice.lines.push_back({"1", "Furnace tune-up and safety inspection", "11/20/2026", "$95.00", "$95.00", "True"});
    invoice.lines.push_back({"2", "Pleated filter", "", "$12.50", "$25.00", "True"});
    invoice.lines.push_back({"1.5 Hrs", "General Labor", "", "$85.00", "$127.50", "False"});

    const PdfText text = print("invoice-short");
    ASSERT_EQ(text.pages.size(), 1);
    EXPECT_AT(text.word("INVOICE"), 7200, 720);
    EXPECT_AT(text.word("Prairie"), 1080, 576);
    EXPECT_AT(text.word("Date"), 7200, 1296);
    const double line = lineHeight(10, true);
    EXPECT_AT(text.word("NO:"), 7200 + width("INVOICE ", 10, true), 1296 + line);
    EXPECT_AT(text.word("Acct:"), 7200, 1296 + 2 * line);
    EXPECT_AT(text.word("Page"), 7200, 1296 + 3 * line);
    EXPECT_AT(text.word("Reference"), 1296, 5832);
    EXPECT_AT(text.word("Prepared"), 1872 - width("Prepared 11/22/2026", 10, true) / 2, 6264);
    EXPECT_AT(text.word("QTY"), 864, 6552);
    EXPECT_AT(text.word("DESCRIPTION"), 4464, 6552);
    EXPECT_AT(text.word("Dana"), 1440, 3312);
    EXPECT_AT(text.word("Furnace"), 3312, 7056);
    EXPECT_AT(text.word("Pleated"), 3312, 7056 + line);
    EXPECT_AT(text.word("$127.50"), 11520 - width("$127.50", 10, true), 7056 + 2 * line);
    EXPECT_AT(text.word("Hrs"), 1224 - width("Hrs", 10, true), 7056 + 2 * line);
    EXPECT_AT(text.word("11/20/2026"), 2520 - width("11/20/2026", 10, true) / 2, 7056);
    EXPECT_AT(text.word("Sub-Total"), 8064, 12312);
    EXPECT_AT(text.word("City"), 8064, 12312 + 720);
    EXPECT_AT(text.word("Handling"), 8064, 12312 + 1440);
    EXPECT_AT(text.word("$1,347.71"), 11520 - width("$1,347.71", 12, true), 14112);
    EXPECT_AT(text.word("Payment"), 1872, 14112 + lineHeight(12, true));
    EXPECT_EQ(text.count("Detach"), 0);
}

TEST_F(InvoicePdf, SixtyLinesGoOnToFurtherPagesWithTheRemittanceSlip) {
    invoice.remittance = true;
    addLines(60);
    const PdfText text = print("invoice-long");
    ASSERT_GE(text.pages.size(), 3);
    EXPECT_AT(text.word("Detach"), 4320, 5184);
    EXPECT_EQ(text.count("Detach"), 1);
    EXPECT_EQ(text.count("Enclosed"), static_cast<int>(text.pages.size()));
    EXPECT_AT(text.word("Part1"), 3312, 7056);
    // Each page starts its body at 4.9 in, and the last holds the totals.
    for (int page = 2; page <= text.pages.size(); ++page)
        EXPECT_EQ(text.word("Page", page).page, page);
    const PdfWord total = text.word("$1,347.71");
    EXPECT_EQ(total.page, static_cast<int>(text.pages.size()));
    EXPECT_EQ(text.count("Sub-Total"), 1);
    EXPECT_EQ(text.word("Part60").page >= 3, true);
}

TEST_F(InvoicePdf, ANarrativeMovesTheRulesAndTheContinuationBodyAnInchLower) {
    t.writeBytes("/OstrelInvoicer/Narratives/20260007.txt", "Work as agreed\r\n");
    addLines(30);
    const PdfText text = print("invoice-narrative");
    ASSERT_EQ(text.pages.size(), 2);
    EXPECT_AT(text.word("Reference"), 1296, 7272);
    EXPECT_AT(text.word("QTY"), 864, 7992);
    EXPECT_AT(text.word("Part1"), 3312, 7056);
    // The first line of the second page stands at 5.9 in.
    for (const PdfWord& w : text.words)
        if (w.page == 2 && w.text.startsWith("Part")) {
            EXPECT_NEAR(w.yMin, 8496 / 20.0, kTolerancePoints) << w.text.toStdString();
            break;
        }
    EXPECT_EQ(text.count("agreed"), 0);
}
