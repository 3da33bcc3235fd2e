#include "FakePlatform.h"
#include "RecordingPageSurface.h"
#include "TestDataRoot.h"
#include "printing/LetterheadRoutines.h"
#include "printing/PrinterRoutines.h"
#include "setup/SetupSettings.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::FakePlatform;
using ostrel::test::PageOp;
using ostrel::test::RecordingPageSurface;
using ostrel::test::RecordingPrintDialogs;
using ostrel::test::TestDataRoot;

namespace {

struct Letterhead : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    SetupSettings settings;
    RecordingPrintDialogs printDialogs;
    PrinterRoutines printer{printDialogs, fake.dialogs, t.disk(), settings, fake.clock};

    Letterhead() {
        settings.business.txtBusiness = {
            "Prairie Comfort", "1207 Wabash Ave", "Suite B",          "Springfield",    "IL",
            "62704",           "217-555-0142",    "Fax 217-555-0143", "FEIN 37-1234567"};
    }
    RecordingPageSurface& startJob() {
        printer.ShowPrinterDialog();
        printer.InitPrinter("Portrait", settings.colors.ckColor);
        return printDialogs.lastJob();
    }
    QStringList letterhead(double x = 0.75, double y = 0.4, double size = 12) {
        RecordingPageSurface& p = startJob();
        PrintLetterhead(printer, x, y, size);
        return p.printedTexts();
    }
};

} // namespace

TEST_F(Letterhead, PrintsTheBusinessLinesInOrderEachStartingAtXOneLineBelowTheOther) {
    RecordingPageSurface& p = startJob();
    PrintLetterhead(printer, 0.75, 0.4, 12);
    const QStringList expected = {"Prairie Comfort",        "1207 Wabash Ave",         "Suite B",
                                  "Springfield, IL. 62704", "Telephone: 217-555-0142", "Fax 217-555-0143",
                                  "FEIN 37-1234567"};
    ASSERT_EQ(p.printedTexts(), expected);
    const auto texts = p.texts();
    EXPECT_EQ(texts[0].x, 1080);
    EXPECT_DOUBLE_EQ(texts[0].y, 576);
    EXPECT_EQ(texts[0].font.size, 12);
    EXPECT_TRUE(texts[0].font.bold);
    EXPECT_FALSE(texts[0].font.underline);
    // The name's line is 12 points high (276 twips), the others 10 points (230 twips).
    for (qsizetype i = 1; i < texts.size(); ++i) {
        EXPECT_EQ(texts[i].x, 1080) << texts[i].text.toStdString();
        EXPECT_DOUBLE_EQ(texts[i].y, 576 + 276 + 230 * (i - 1)) << texts[i].text.toStdString();
        EXPECT_EQ(texts[i].font.size, 10);
        EXPECT_FALSE(texts[i].font.bold);
    }
    EXPECT_DOUBLE_EQ(p.CurrentY, 576 + 276 + 230 * 6);
}

TEST_F(Letterhead, ACompanyNameOfTwentySixCharactersPrintsAtSizeTen) {
    settings.business.txtBusiness[0] = "Prairie Comfort Heating Co"; // 26
    RecordingPageSurface& p = startJob();
    PrintLetterhead(printer, 0.75, 0.4, 12);
    EXPECT_EQ(p.text("Prairie Comfort Heating Co").font.size, 10);
    EXPECT_TRUE(p.text("Prairie Comfort Heating Co").font.bold);
    EXPECT_DOUBLE_EQ(p.text("1207 Wabash Ave").y, 576 + 230);
}

TEST_F(Letterhead, ACompanyNameOfTwentyFiveCharactersPrintsAtTheLetterheadsSize) {
    settings.business.txtBusiness[0] = "Prairie Comfort Heating C"; // 25
    RecordingPageSurface& p = startJob();
    PrintLetterhead(printer, 0.75, 0.4, 12);
    EXPECT_EQ(p.text("Prairie Comfort Heating C").font.size, 12);
}

TEST_F(Letterhead, AnEmptySecondAddressLineIsSkippedButAnEmptyFirstStillTakesItsLine) {
    settings.business.txtBusiness[1] = "";
    settings.business.txtBusiness[2] = "";
    RecordingPageSurface& p = startJob();
    PrintLetterhead(printer, 0.75, 0.4, 12);
    EXPECT_EQ(p.texts().size(), 5);
    EXPECT_DOUBLE_EQ(p.text("Springfield, IL. 62704").y, 576 + 276 + 230);
}

TEST_F(Letterhead, TheUsaStyleLineLeavesOutTheCityOrTheStatePartWhenEmpty) {
    settings.business.txtBusiness[3] = "";
    EXPECT_TRUE(letterhead().contains("IL. 62704"));
    settings.business.txtBusiness[3] = "Springfield";
    settings.business.txtBusiness[4] = "";
    EXPECT_TRUE(letterhead().contains("Springfield, "));
    settings.business.txtBusiness[3] = "";
    EXPECT_EQ(letterhead(), (QStringList{"Prairie Comfort", "1207 Wabash Ave", "Suite B",
                                         "Telephone: 217-555-0142", "Fax 217-555-0143", "FEIN 37-1234567"}));
}

TEST_F(Letterhead, TheInternationalStylePrintsCityAndStateOnLinesOfTheirOwnWithoutThePostalCode) {
    settings.cmdAddressCaption = kInternationalStyleAddress;
    settings.business.txtBusiness[3] = "Unit 4, 12 Harbour Rd";
    settings.business.txtBusiness[4] = "Fremantle WA 6160";
    settings.business.txtBusiness[5] = "";
    EXPECT_EQ(letterhead(), (QStringList{"Prairie Comfort", "1207 Wabash Ave", "Suite B",
                                         "Unit 4, 12 Harbour Rd", "Fremantle WA 6160",
                                         "Telephone: 217-555-0142", "Fax 217-555-0143", "FEIN 37-1234567"}));
    settings.business.txtBusiness[3] = "";
    RecordingPageSurface& p = startJob();
    PrintLetterhead(printer, 0.75, 0.4, 12);
    // No city: the state's line moves up into its place.
    EXPECT_DOUBLE_EQ(p.text("Fremantle WA 6160").y, 576 + 276 + 230 * 2);
}

TEST_F(Letterhead, EmptyTelephoneFreeLineAndTaxNumberPrintNothing) {
    settings.business.txtBusiness[6] = "";
    settings.business.txtBusiness[7] = "";
    settings.business.txtBusiness[8] = "";
    EXPECT_EQ(letterhead(),
              (QStringList{"Prairie Comfort", "1207 Wabash Ave", "Suite B", "Springfield, IL. 62704"}));
}

TEST_F(Letterhead, TheWebAddressFromMyWebSiteIsTheLastLine) {
    t.writeBytes("/MyWebSite.txt", "\"www.prairiecomfort.example\"\r\n");
    RecordingPageSurface& p = startJob();
    PrintLetterhead(printer, 0.75, 0.4, 12);
    EXPECT_EQ(p.printedTexts().last(), "www.prairiecomfort.example");
    EXPECT_EQ(p.text("www.prairiecomfort.example").x, 1080);
    EXPECT_DOUBLE_EQ(p.text("www.prairiecomfort.example").y, 576 + 276 + 230 * 6);
}

TEST_F(Letterhead, WithoutMyWebSiteNoWebLineIsPrinted) {
    EXPECT_EQ(letterhead().size(), 7);
}

TEST_F(Letterhead, TheLetterheadKeepsTheColourItFinds) {
    settings.colors.ckColor = 1;
    RecordingPageSurface& p = startJob();
    printer.SetPrintColor(true);
    PrintLetterhead(printer, 0.75, 0.4, 12);
    for (const PageOp& op : p.texts())
        EXPECT_EQ(op.colour, 16711680u) << op.text.toStdString();
}

TEST_F(Letterhead, TheLegacyBusinessDataPrintsItsLongNameAtSizeTen) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    for (const char* name : {"MyBusinessData.txt", "PrintColors.txt", "LogoSettings.txt"}) {
        QFile f(ostrel::test::legacyFixture() + "/" + name);
        ASSERT_TRUE(f.open(QIODevice::ReadOnly)) << name;
        t.writeBytes(QStringLiteral("/") + name, f.readAll());
    }
    LoadSetupSettings(t.disk(), "OstrelAppointmentScheduler", settings);
    RecordingPageSurface& p = startJob();
    PrintLetterhead(printer, 0.75, 0.4, 12);
    const QStringList texts = p.printedTexts();
    ASSERT_FALSE(texts.isEmpty());
    EXPECT_EQ(texts[0], settings.business.companyName());
    EXPECT_GT(settings.business.companyName().size(), 25);
    EXPECT_EQ(p.texts()[0].font.size, 10);
    EXPECT_EQ(p.texts()[0].font.name, "Arial");
    EXPECT_TRUE(texts.contains("Telephone: " + settings.business.telephone()));
    EXPECT_TRUE(texts.contains(settings.business.taxRegistration()));
}

TEST_F(Letterhead, TheTitleStandsAtFiveInchesBoldInTheHighlightColourAndLeavesSizeTenBold) {
    settings.colors.ckColor = 1;
    RecordingPageSurface& p = startJob();
    PrintTitle(printer, "INVOICE", 0.5, 20);
    const PageOp title = p.text("INVOICE");
    EXPECT_EQ(title.x, 7200);
    EXPECT_EQ(title.y, 720);
    EXPECT_EQ(title.font.size, 20);
    EXPECT_TRUE(title.font.bold);
    EXPECT_EQ(title.colour, 16711680u);
    EXPECT_EQ(p.FontSize, 10);
    EXPECT_TRUE(p.FontBold);
    EXPECT_EQ(p.ForeColor, 16711680u);
}

TEST_F(Letterhead, ALongTitleWrapsWithinTwoInches) {
    RecordingPageSurface& p = startJob();
    PrintTitle(printer, "WORK ORDER SUMMARY REPORT", 0.5, 20);
    EXPECT_EQ(p.printedTexts(), (QStringList{"WORK ORDER ", "SUMMARY REPORT"}));
    EXPECT_EQ(p.text("SUMMARY REPORT").x, 7200);
    EXPECT_EQ(p.text("SUMMARY REPORT").y, 720 + 460);
}

TEST_F(Letterhead, NoLogoLoadedDrawsNoPicture) {
    settings.logo.path = "/pictures/logo.bmp";
    settings.logo.pictureLoaded = false;
    RecordingPageSurface& p = startJob();
    p.pictures["/pictures/logo.bmp"] = QSizeF(1440, 1440);
    PrintLogo(printer, 720);
    EXPECT_TRUE(p.of(PageOp::Kind::Picture).isEmpty());
}

TEST_F(Letterhead, TheLogoIsCentredAndScaledToTheStoredSize) {
    settings.logo.path = "/pictures/logo.bmp";
    settings.logo.pictureLoaded = true;
    settings.logoSize.width = 1800;
    settings.logoSize.height = 900;
    RecordingPageSurface& p = startJob();
    p.pictures["/pictures/logo.bmp"] = QSizeF(1800, 1200);
    PrintLogo(printer, 720);
    const auto pictures = p.of(PageOp::Kind::Picture);
    ASSERT_EQ(pictures.size(), 1);
    EXPECT_EQ(pictures[0].text, "/pictures/logo.bmp");
    EXPECT_EQ(pictures[0].x, (12240 - 1800) / 2);
    EXPECT_EQ(pictures[0].y, 720);
    EXPECT_EQ(pictures[0].x2, 1800);
    EXPECT_EQ(pictures[0].y2, 900);
}

TEST_F(Letterhead, TheLogosLeftEdgeComesFromThePicturesOwnWidth) {
    settings.logo.path = "/pictures/logo.bmp";
    settings.logo.pictureLoaded = true;
    settings.logoSize.width = 1440;
    settings.logoSize.height = 1440;
    RecordingPageSurface& p = startJob();
    p.pictures["/pictures/logo.bmp"] = QSizeF(3000, 1500);
    PrintLogo(printer, 720);
    const auto pictures = p.of(PageOp::Kind::Picture);
    ASSERT_EQ(pictures.size(), 1);
    EXPECT_EQ(pictures[0].x, (12240 - 3000) / 2);
    EXPECT_EQ(pictures[0].x2, 1440);
}

TEST_F(Letterhead, AnAddressBlockInUsaStyleEndsWithOneCityStateZipLine) {
    settings.colors.ckColor = 1;
    RecordingPageSurface& p = startJob();
    printer.SetPrintColor(true);
    PrintAddressBlock(printer, "Mr. John Q Public", "12 Elm St", "Apt 3", "Decatur", "IL", "62521", 2.3,
                      true);
    EXPECT_EQ(p.printedTexts(),
              (QStringList{"Mr. John Q Public", "12 Elm St", "Apt 3", "Decatur, IL 62521"}));
    const auto texts = p.texts();
    for (qsizetype i = 0; i < texts.size(); ++i) {
        EXPECT_EQ(texts[i].x, 1440);
        EXPECT_DOUBLE_EQ(texts[i].y, 3312 + 230 * i);
        EXPECT_EQ(texts[i].colour, 0u);
    }
    EXPECT_EQ(p.ForeColor, 0u);
}

TEST_F(Letterhead, AnAddressBlockSkipsAnEmptyThirdLineButNotAnEmptySecond) {
    RecordingPageSurface& p = startJob();
    PrintAddressBlock(printer, "Ann Lee", "", "", "Decatur", "IL", "62521", 2.3, true);
    EXPECT_EQ(p.printedTexts(), (QStringList{"Ann Lee", "Decatur, IL 62521"}));
    EXPECT_DOUBLE_EQ(p.text("Decatur, IL 62521").y, 3312 + 460);
}

TEST_F(Letterhead, AnAddressBlockInInternationalStylePrintsCityAndPostalCodeWithoutTheState) {
    RecordingPageSurface& p = startJob();
    PrintAddressBlock(printer, "Ann Lee", "4 Harbour Rd", "", "Fremantle", "WA", "6160", 2.3, false);
    EXPECT_EQ(p.printedTexts(), (QStringList{"Ann Lee", "4 Harbour Rd", "Fremantle", "6160"}));
    EXPECT_DOUBLE_EQ(p.text("6160").y, 3312 + 690);
    EXPECT_FALSE(p.printed("WA"));
}
