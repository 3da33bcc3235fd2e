#include "InvoiceTestFixture.h"

using namespace ostrel;
using ostrel::test::InvoiceScreen;

namespace {

struct InvoiceTotals : InvoiceScreen {
    InvoiceTotals() {
        session.settings.tax.cboRate1 = QStringLiteral("8.25");
        session.settings.tax.cboRate2 = QStringLiteral("10.0 %");
        open();
    }
};

Money money(qint64 tenThousandths) { return Money::fromTenThousandths(tenThousandths); }

} // namespace

TEST_F(InvoiceTotals, TaxFreeLinesPayNoTaxAndTheTotalBoxShowsTheSubTotal) {
    line("1", "Tune Up", "$45.00", "$45.00", "False");
    line("2", "Filter", "$12.50", "$25.00", "False");
    finalize();
    EXPECT_EQ(frm.Tax1, Money());
    EXPECT_EQ(frm.Tax2, Money());
    EXPECT_EQ(frm.SubTotal, money(700000));
    EXPECT_EQ(frm.txtTotal.text, "$70.00");
    EXPECT_EQ(frm.txtTax.text, "$0.00");
    EXPECT_EQ(frm.txtGrandTotal.text, "$70.00");
}

TEST_F(InvoiceTotals, AnExemptAccountPaysNoTaxWhateverTheFlagsAndSettings) {
    session.settings.program.ckApply2ndTax = 1;
    frm.ck2ndTax.value = 1;
    frm.ckExempt.value = 1;
    line("1", "Tune Up", "$45.00", "$45.00", "True");
    finalize();
    EXPECT_EQ(frm.TaxableTotal, Money());
    EXPECT_EQ(frm.Tax1, Money());
    EXPECT_EQ(frm.Tax2, Money());
    EXPECT_EQ(frm.txtGrandTotal.text, "$45.00");

    session.settings.program.ckApplyGraduated = 1;
    finalize();
    EXPECT_EQ(frm.Tax1, Money());
    EXPECT_EQ(frm.Tax2, Money());
}

TEST_F(InvoiceTotals, ASubTotalOfNothingLeavesTheTotalBoxAndStillComputesTheGrandTotal) {
    line("1", "Tune Up", "$45.00", "$45.00", "False");
    finalize();
    ASSERT_EQ(frm.txtTotal.text, "$45.00");

    // The line is credited away: the total box keeps what it showed.
    frm.fgInvoice.SetTextMatrix(1, 4, "($45.00)");
    frm.AdditionalCharge = money(25000);
    finalize();
    EXPECT_EQ(frm.SubTotal, money(-450000));
    EXPECT_EQ(frm.txtTotal.text, "$45.00");
    EXPECT_EQ(frm.Tax1, Money());
    EXPECT_EQ(frm.GrandTotal, money(-425000));
    EXPECT_EQ(frm.txtGrandTotal.text, "($42.50)");
}

TEST_F(InvoiceTotals, TwoServicesOfAThirdOfAHalfCentAddUpAsTheirRoundedCells) {
    lists.cboDescription[0].text = QStringLiteral("Wash");
    lists.cboPrice[0].text = QStringLiteral("0.335");
    frm.cmdPost_Click(frmInvoice::kPostService);
    lists.cboDescription[0].text = QStringLiteral("Wash");
    lists.cboPrice[0].text = QStringLiteral("0.335");
    frm.cmdPost_Click(frmInvoice::kPostService);
    ASSERT_EQ(cell(1, 4), "$0.34");
    ASSERT_EQ(cell(2, 4), "$0.34");
    finalize();
    EXPECT_EQ(frm.SubTotal, money(6800));
    EXPECT_EQ(frm.txtTotal.text, "$0.68");
}

TEST_F(InvoiceTotals, EightAndAQuarterPercentOn19_99KeepsFourDecimalsAndPrintsTheCents) {
    line("1", "Tune Up", "$19.99", "$19.99", "True");
    finalize();
    EXPECT_EQ(frm.TaxableTotal, money(199900));
    EXPECT_EQ(frm.Tax1, money(16492));
    EXPECT_EQ(frm.txtTax.text, "$1.65");
    EXPECT_EQ(frm.GrandTotal, money(216392));
    EXPECT_EQ(frm.txtGrandTotal.text, "$21.64");
    EXPECT_TRUE(frm.cmdInvoiceContinue.enabled);
}

TEST_F(InvoiceTotals, TheRateBoxIsReadByItsLeadingNumber) {
    session.settings.program.ckApply2ndTax = 1;
    frm.ck2ndTax.value = 1;
    line("1", "Tune Up", "$100.00", "$100.00", "True");
    finalize();
    EXPECT_EQ(frm.Tax2, money(100000)); // "10.0 %"
    EXPECT_EQ(frm.txtTax2.text, "$10.00");
}

TEST_F(InvoiceTotals, AtTheGraduatedLimitTheLowerRateAppliesAndACentAboveItTheHigherRateAndTheSurcharge) {
    session.settings.program.ckApplyGraduated = 1;
    session.settings.program.txtGradulated = {QStringLiteral("$100.00"), QStringLiteral("$2.50")};
    session.settings.tax.cboRate1 = QStringLiteral("4.0");
    session.settings.tax.cboRate2 = QStringLiteral("6.0");
    line("1", "Tune Up", "$100.00", "$100.00", "True");
    finalize();
    EXPECT_EQ(frm.Tax1, money(40000));
    EXPECT_EQ(frm.Tax2, Money());
    EXPECT_EQ(frm.txtGrandTotal.text, "$104.00");

    frm.fgInvoice.SetTextMatrix(1, 4, "$100.01");
    finalize();
    EXPECT_EQ(frm.Tax1, money(60006)); // 6 % of the whole 100.01
    EXPECT_EQ(frm.Tax2, money(25000));
    EXPECT_EQ(frm.txtTax.text, "$6.00");
    EXPECT_EQ(frm.txtTax2.text, "$2.50");
    EXPECT_EQ(frm.GrandTotal, money(1000100 + 60006 + 25000));
    EXPECT_EQ(frm.txtGrandTotal.text, "$108.51");
}

TEST_F(InvoiceTotals, TheGraduatedPathDoesNotAskTheSecondTaxBox) {
    session.settings.program.ckApplyGraduated = 1;
    session.settings.program.txtGradulated = {QStringLiteral("$500.00"), QStringLiteral("$2.50")};
    frm.ck2ndTax.value = 1;
    line("1", "Tune Up", "$100.00", "$100.00", "True");
    finalize();
    EXPECT_EQ(frm.Tax2, Money());
}

TEST_F(InvoiceTotals, TheAdditionalChargeIsAddedUntaxedAndACreditIsTakenAsItStands) {
    line("1", "Tune Up", "$19.99", "$19.99", "True");
    frm.txtMisc_GotFocus();
    EXPECT_EQ(frm.txtMisc.text, "$0.00");
    frm.txtMisc_KeyDown();
    EXPECT_EQ(frm.txtMisc.text, "");
    frm.txtMisc.text = QStringLiteral("-5");
    frm.cmdInvoiceContinue.enabled = true;
    frm.txtMisc_LostFocus();
    EXPECT_EQ(frm.AdditionalCharge, money(-50000));
    EXPECT_EQ(frm.txtMisc.text, "($5.00)");
    EXPECT_FALSE(frm.cmdInvoiceContinue.enabled);
    EXPECT_TRUE(frm.cmdInvoice[9].focusRequested);
    finalize();
    EXPECT_EQ(frm.Tax1, money(16492));
    EXPECT_EQ(frm.GrandTotal, money(199900 + 16492 - 50000));
}

TEST_F(InvoiceTotals, ResetAdditionalChargeClearsItAndAsksForTheTotalsAgain) {
    frm.AdditionalCharge = money(10000);
    frm.txtMisc.text = "$1.00";
    frm.cmdInvoiceContinue.enabled = true;
    frm.cmdInvoice_Click(4);
    EXPECT_EQ(frm.AdditionalCharge, Money());
    EXPECT_EQ(frm.txtMisc.text, "$0.00");
    EXPECT_FALSE(frm.cmdInvoiceContinue.enabled);
}

TEST(InvoiceMoneyText, DisplayFormsOfAmounts) {
    EXPECT_EQ(FormatMoney(Money::fromTenThousandths(12345000)), "$1,234.50");
    EXPECT_EQ(FormatMoney(Money::fromTenThousandths(-12345000)), "($1,234.50)");
    EXPECT_EQ(FormatMoney(Money::fromTenThousandths(3350)), "$0.34");
    EXPECT_EQ(Money::fromDisplayText(u"$1,234.50"), Money::fromTenThousandths(12345000));
    EXPECT_EQ(Money::fromDisplayText(u"($1,234.50)"), Money::fromTenThousandths(-12345000));
    EXPECT_EQ(Money::fromDisplayText(u"-$3.5"), Money::fromTenThousandths(-35000));
    EXPECT_FALSE(Money::fromDisplayText(u"12 Hrs").has_value());
    EXPECT_EQ(FormatMoneyText("1234.5"), "$1,234.50");
    EXPECT_EQ(FormatMoneyText("none"), "none");
    EXPECT_EQ(Money::fromTenThousandths(16492).plainText(), "1.6492");
    EXPECT_EQ(Money::fromTenThousandths(25000).plainText(), "2.5");
    EXPECT_EQ(Money::fromTenThousandths(5000).plainText(), "0.5");
    EXPECT_EQ(Money::fromTenThousandths(-32500).plainText(), "-3.25");
    EXPECT_EQ(Money().plainText(), "0");
    EXPECT_EQ(Money::fromDouble(1.649175), Money::fromTenThousandths(16492));
}
