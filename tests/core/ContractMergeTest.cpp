#include "ShippedData.h"
#include "contracts/ContractMerge.h"
#include "contracts/RtfText.h"
#include "store/Cp1252.h"

#include <gtest/gtest.h>

using namespace ostrel;

namespace {

// A small template in the shape of the shipped one: every marker one unbroken run.
const QString kTemplate = QStringLiteral(
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fswiss Arial;}}\n"
    "\\pard\\qc\\b\\fs32 Agreement\\b0\\fs20\\par\n"
    "\\pard Made on CREATIONDATE by \\b CONTRACTORNAME\\b0 , CONTRACTORADDRESS\\par\n"
    "for \\b UNDERSIGNEDCUSTOMER\\b0 , CUSTOMERADDRESS\\par\n"
    "(Insert Services and Prices Here)\\par\n"
    "For TERMS from COMMENCING to TERMINATIONS, COST billed FREQUENCY; it RENEWS.\\par\n"
    "}");

ContractValues values(const QString& customer = QStringLiteral("Ann Lee")) {
    ContractValues v;
    v.serviceLine = QStringLiteral("Furnace Tune-up - $89.00");
    v.fields = {
        {ContractField::ContractorName, "Prairie Comfort Heating"},
        {ContractField::UndersignedCustomer, customer},
        {ContractField::CreationDate, "11/23/2026"},
        {ContractField::Terms, "1 Year"},
        {ContractField::Commencing, "12/1/2026"},
        {ContractField::Terminations, "12/1/2027"},
        {ContractField::Frequency, "Monthly"},
        {ContractField::Cost, "$89.00"},
        {ContractField::Renews, "automatically Renew"},
        {ContractField::ContractorAddress, "1207 Wabash Ave\nSpringfield, IL  62704"},
        {ContractField::CustomerAddress, "12 Elm St\nSpringfield, IL  62701"},
    };
    return v;
}

const QStringList kWords = {"CONTRACTORNAME", "UNDERSIGNEDCUSTOMER", "CREATIONDATE", "TERMS", "COMMENCING",
                            "TERMINATIONS", "FREQUENCY", "COST", "RENEWS", "CONTRACTORADDRESS",
                            "CUSTOMERADDRESS"};

} // namespace

TEST(ContractMerge, EveryPlaceholderTakesItsValueAndTheFormattingStays) {
    const MergeResult r = MergeContract(kTemplate, values());
    ASSERT_TRUE(r.ok);
    EXPECT_TRUE(r.serviceLinePlaced);
    const QString text = rtf::toPlainText(r.source);
    for (const QString& w : kWords)
        EXPECT_FALSE(text.contains(w)) << w.toStdString();
    EXPECT_TRUE(text.contains("Made on 11/23/2026 by Prairie Comfort Heating, 1207 Wabash Ave\n"
                              "Springfield, IL  62704\n"));
    EXPECT_TRUE(text.contains("Furnace Tune-up - $89.00\n"));
    EXPECT_TRUE(text.contains("For 1 Year from 12/1/2026 to 12/1/2027, $89.00 billed Monthly; it automatically "
                              "Renew."));
    // The customer's name sits in the bold run the template gave its placeholder.
    bool boldName = false;
    for (const rtf::Paragraph& p : rtf::parse(r.source))
        for (const rtf::Run& run : p.runs)
            boldName |= run.text == "Ann Lee" && run.bold;
    EXPECT_TRUE(boldName);
    EXPECT_TRUE(r.source.contains("\\b CONTRACTORNAME") == false);
    EXPECT_TRUE(r.source.contains("\\b Prairie Comfort Heating\\b0"));
}

TEST(ContractMerge, ValueHoldingItsOwnPlaceholderStopsAndNamesItInsteadOfLoopingForEver) {
    const MergeResult r = MergeContract(kTemplate, values(QStringLiteral("The UNDERSIGNEDCUSTOMER Trust")));
    EXPECT_FALSE(r.ok);
    ASSERT_TRUE(r.unplaced.has_value());
    EXPECT_EQ(ContractField::UndersignedCustomer, *r.unplaced);
    EXPECT_EQ("The UNDERSIGNEDCUSTOMER Trust", r.unplacedValue);
    EXPECT_TRUE(r.source.isEmpty()); // nothing half-merged to store
}

TEST(ContractMerge, CustomerNamedCostIsSafeOnlyUntilTheCostStepReplacesIt) {
    const MergeResult r = MergeContract(kTemplate, values(QStringLiteral("COST")));
    ASSERT_TRUE(r.ok);
    const QString text = rtf::toPlainText(r.source);
    // Step 2 put "COST" where the customer goes, and step 8 then replaced it with the amount.
    EXPECT_TRUE(text.contains("for $89.00, 12 Elm St")) << text.toStdString();
    EXPECT_FALSE(text.contains("COST"));
}

TEST(ContractMerge, CustomerNamedAfterAnEarlierPlaceholderStaysAsTyped) {
    const MergeResult r = MergeContract(kTemplate, values(QStringLiteral("CONTRACTORNAME")));
    ASSERT_TRUE(r.ok);
    EXPECT_TRUE(rtf::toPlainText(r.source).contains("for CONTRACTORNAME, 12 Elm St"));
}

TEST(ContractMerge, TemplateWithoutServiceMarkerLosesNoOtherPlaceholderAndShowsNoServiceLine) {
    QString noMarker = kTemplate;
    noMarker.replace("(Insert Services and Prices Here)", "Services as agreed");
    const MergeResult r = MergeContract(noMarker, values());
    ASSERT_TRUE(r.ok);
    EXPECT_FALSE(r.serviceLinePlaced);
    const QString text = rtf::toPlainText(r.source);
    EXPECT_FALSE(text.contains("Furnace Tune-up"));
    for (const QString& w : kWords)
        EXPECT_FALSE(text.contains(w)) << w.toStdString();
    EXPECT_TRUE(text.contains("Services as agreed"));
    EXPECT_TRUE(text.contains("Ann Lee"));
}

TEST(ContractMerge, OnlyTheFirstServiceMarkerIsReplaced) {
    const QString two = QStringLiteral("{\\rtf1 (Insert Services and Prices Here)\\par (Insert Services and Prices "
                                       "Here)\\par}");
    const MergeResult r = MergeContract(two, values());
    EXPECT_EQ("Furnace Tune-up - $89.00\n(Insert Services and Prices Here)\n", rtf::toPlainText(r.source));
}

TEST(ContractMerge, ValuesAreEscapedSoBracesBackslashesAndAccentsReadBack) {
    ContractValues v = values(QStringLiteral("Zoë {North} \\ Sons"));
    const MergeResult r = MergeContract(kTemplate, v);
    ASSERT_TRUE(r.ok);
    EXPECT_TRUE(r.source.contains("Zo\\'eb \\{North\\} \\\\ Sons"));
    EXPECT_TRUE(rtf::toPlainText(r.source).contains("for Zoë {North} \\ Sons, "));
}

TEST(ContractTermination, ThirtyFirstOfJanuaryPlusOneMonthIsTheLastDayOfFebruary) {
    EXPECT_EQ(QDate(2027, 2, 28), TerminationDate(QDate(2027, 1, 31), 0));
    EXPECT_EQ(QDate(2028, 2, 29), TerminationDate(QDate(2028, 1, 31), 0));
}

TEST(ContractTermination, QuartersAndTheYearFollowTheDurationIndex) {
    EXPECT_EQ(QDate(2027, 3, 1), TerminationDate(QDate(2026, 12, 1), 1));
    EXPECT_EQ(QDate(2027, 6, 1), TerminationDate(QDate(2026, 12, 1), 2));
    EXPECT_EQ(QDate(2027, 12, 1), TerminationDate(QDate(2026, 12, 1), 3));
    EXPECT_EQ(QDate(2026, 11, 30), TerminationDate(QDate(2026, 8, 31), 1));
    EXPECT_EQ(QDate(2029, 2, 28), TerminationDate(QDate(2028, 2, 29), 3));
}

TEST(ContractTermination, TypedDurationHasNoDate) {
    EXPECT_FALSE(TerminationDate(QDate(2026, 12, 1), -1).has_value());
}

TEST(RtfText, MarginsGoOnEveryParagraphAndReplaceTheirOwn) {
    const QString src = QStringLiteral("{\\rtf1\\pard\\li720\\qc Title\\par\\pard\\ri300 Body\\par}");
    const QString out = rtf::setParagraphMargins(src, 1440, 1080);
    const QVector<rtf::Paragraph> ps = rtf::parse(out);
    ASSERT_EQ(2, ps.size());
    for (const rtf::Paragraph& p : ps) {
        EXPECT_EQ(1440, p.leftIndent);
        EXPECT_EQ(1080, p.rightIndent);
    }
    EXPECT_EQ(rtf::Paragraph::Align::Center, ps[0].align);
    EXPECT_EQ("Title\nBody\n", rtf::toPlainText(out));
}

TEST(RtfText, ReaderSkipsTablesAndDecodesEscapes) {
    const QString src = QStringLiteral(
        "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}{\\colortbl;\\red0\\green0\\blue0;}{\\*\\generator X;}"
        "\\pard caf\\'e9 \\u8364? \\{x\\}\\line next\\par}");
    EXPECT_EQ(QStringLiteral("café € {x}\nnext\n"), rtf::toPlainText(src));
}

TEST(RtfText, HtmlKeepsBoldSizesAndCentring) {
    const QString html = rtf::toHtml(QStringLiteral("{\\rtf1\\pard\\qc\\b\\fs32 Head\\b0\\par}"));
    EXPECT_TRUE(html.contains("text-align:center"));
    EXPECT_TRUE(html.contains("font-size:16pt; font-weight:bold;\">Head</span>"));
}

TEST(ContractTemplate, TheShippedTemplateHoldsTheServiceMarkerAndEveryPlaceholderAsPlainText) {
    const QString text = rtf::toPlainText(cp1252::decode(test::shippedDataFile("GenericContract.rtf")));
    EXPECT_TRUE(text.contains("(Insert Services and Prices Here)"));
    for (const QString& w : kWords)
        EXPECT_TRUE(text.contains(w)) << w.toStdString();
}
