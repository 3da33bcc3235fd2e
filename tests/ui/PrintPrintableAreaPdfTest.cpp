// A PDF prints the whole sheet, so its positions are the sheet's even when the printer it was
// chosen through carried another page size and wide margins.
#include "PdfText.h"
#include "platform/QtPageSurface.h"
#include "platform/QtPrintDialogs.h"

#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPrinter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;
using namespace ostrel::test;

TEST(PrintPrintableAreaPdf, APdfChosenWithA4AndWideMarginsKeepsTheLetterSheetsPositions) {
    if (!havePoppler()) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
    QTemporaryDir out;
    const QString pdf = out.filePath(QStringLiteral("margins.pdf"));
    QtPrintDialogs dialogs([pdf](QPrinter& printer) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(pdf);
        printer.setFullPage(false);
        printer.setPageSize(QPageSize(QPageSize::A4));
        printer.setPageMargins(QMarginsF(25, 30, 20, 35), QPageLayout::Millimeter);
        return true;
    });
    PageSurface& p = dialogs.ShowPrinterDialog();
    EXPECT_EQ(p.PrintableArea(), QRectF(0, 0, 12240, 15840));
    EXPECT_EQ(p.ScaleWidth(), 12240);
    p.CurrentX = 0;
    p.CurrentY = 0;
    p.Print(QStringLiteral("Corner"));
    p.CurrentX = 1440;
    p.CurrentY = 1440;
    p.Print(QStringLiteral("Inch"));
    p.SetScaleWidth(12240);
    p.CurrentX = 10800;
    p.CurrentY = 2880;
    p.Print(QStringLiteral("Right"));
    p.EndDoc();

    savePages(pdf, QStringLiteral("printable-area-pdf"));
    const PdfText text = readPdf(pdf);
    ASSERT_EQ(text.pages.size(), 1);
    EXPECT_NEAR(text.pages[0].width, 612, 0.5);
    EXPECT_NEAR(text.pages[0].height, 792, 0.5);
    EXPECT_NEAR(text.word(QStringLiteral("Corner")).xMin, 0, kTolerancePoints);
    EXPECT_NEAR(text.word(QStringLiteral("Corner")).yMin, 0, kTolerancePoints);
    EXPECT_AT(text.word(QStringLiteral("Inch")), 1440, 1440);
    EXPECT_AT(text.word(QStringLiteral("Right")), 10800, 2880);
}
