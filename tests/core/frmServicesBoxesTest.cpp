#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "catalogue/LaborRates.h"
#include "catalogue/frmServices.h"
#include "shell/Session.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::FakePlatform;
using ostrel::test::TestDataRoot;

namespace {

struct ServicesBoxes : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmServices& frm = session.AddScreen(ScreenId::frmServices,
                                         std::make_unique<frmServices>(session, session.catalogueLists));

    void SetUp() override {
        frm.Load();
        frm.Show();
    }

    // Types one key into a money box as the key filter lets it: the text it leaves.
    QString typeCharge(int index, const QString& keys) {
        for (QChar c : keys) {
            int key = c.unicode();
            frm.txtCharge_KeyPress(index, key);
            if (key == 8)
                frm.txtCharge[index].text.chop(1);
            else if (key != 0)
                frm.txtCharge[index].text += QChar(key);
        }
        return frm.txtCharge[index].text;
    }

    void writeLabor(const QString& heading, const QString& rate) {
        TextWriter labor;
        labor.write({heading, rate});
        labor.write({QString(), QString()});
        labor.write({QString(), QString()});
        t.disk().ReplaceTextFile(kLaborFileName, labor);
    }
};

} // namespace

TEST_F(ServicesBoxes, AMoneyBoxHoldingZeroIsEmptiedOnEntry) {
    for (int i = 0; i <= 4; ++i) {
        frm.txtCharge[i].text = "$0.00";
        frm.txtCharge_GotFocus(i);
        EXPECT_EQ(frm.txtCharge[i].text, "") << i;
    }
    frm.txtCost.text = "$0.00";
    frm.txtCost_GotFocus();
    EXPECT_EQ(frm.txtCost.text, "");
    frm.txtLaborRate[1].text = "$0.00";
    frm.txtLaborRate_GotFocus(1);
    EXPECT_EQ(frm.txtLaborRate[1].text, "");

    frm.txtCharge[0].text = "$0.50";
    frm.txtCharge_GotFocus(0);
    EXPECT_EQ(frm.txtCharge[0].text, "$0.50");
}

TEST_F(ServicesBoxes, LeavingTheServiceChargeOrSellPriceEmptyOrNoNumberBeepsAndPutsZero) {
    for (int i : {0, 1}) {
        const int beeps = fake.dialogs.beeps();
        frm.txtCharge[i].text.clear();
        frm.txtCharge_LostFocus(i);
        EXPECT_EQ(frm.txtCharge[i].text, "$0.00") << i;
        EXPECT_EQ(fake.dialogs.beeps(), beeps + 1) << i;
        frm.txtCharge[i].text = ".";
        frm.txtCharge_LostFocus(i);
        EXPECT_EQ(frm.txtCharge[i].text, "$0.00") << i;
        EXPECT_EQ(fake.dialogs.beeps(), beeps + 2) << i;
        frm.txtCharge[i].text = "1234.5";
        frm.txtCharge_LostFocus(i);
        EXPECT_EQ(frm.txtCharge[i].text, "$1,234.50") << i;
        EXPECT_EQ(fake.dialogs.beeps(), beeps + 2) << i;
    }
}

TEST_F(ServicesBoxes, ABlankDiscountPriceTakesTheSellPriceOnLeaving) {
    frm.txtCharge[1].text = "$12.50";
    frm.txtCharge[2].text.clear();
    frm.txtCharge_LostFocus(2);
    EXPECT_EQ(frm.txtCharge[2].text, "$12.50");
    EXPECT_EQ(fake.dialogs.beeps(), 1);

    frm.txtCharge[2].text = "9.9";
    frm.txtCharge_LostFocus(2);
    EXPECT_EQ(frm.txtCharge[2].text, "$9.90");
    EXPECT_EQ(fake.dialogs.beeps(), 1);
}

TEST_F(ServicesBoxes, TheCustomPriceBoxesAreLeftAsTypedOnLeaving) {
    frm.txtCharge[3].text = "5";
    frm.txtCharge_LostFocus(3);
    frm.txtCharge[4].text.clear();
    frm.txtCharge_LostFocus(4);
    EXPECT_EQ(frm.txtCharge[3].text, "5");
    EXPECT_EQ(frm.txtCharge[4].text, "");
    EXPECT_EQ(fake.dialogs.beeps(), 0);
}

TEST_F(ServicesBoxes, LeavingTheCostFormatsItUnlessEmpty) {
    frm.txtCost.text = "3.5";
    frm.txtCost_LostFocus();
    EXPECT_EQ(frm.txtCost.text, "$3.50");
    frm.txtCost.text.clear();
    frm.txtCost_LostFocus();
    EXPECT_EQ(frm.txtCost.text, "");
    EXPECT_EQ(fake.dialogs.beeps(), 0);
}

TEST_F(ServicesBoxes, LeavingAnEmptyLaborRateSaysItMustBeGreaterThanZeroAndKeepsTheFocus) {
    fake.dialogs.expect("", "Labor Rate must be greater than Zero", vbOKOnly, vbOK);
    frm.txtLaborRate[1].text.clear();
    frm.txtLaborRate_LostFocus(1);
    fake.dialogs.verify();
    EXPECT_TRUE(frm.txtLaborRate[1].focusRequested);
    EXPECT_EQ(frm.txtLaborRate[1].text, "");

    frm.txtLaborRate[1].focusRequested = false;
    frm.txtLaborRate[1].text = "42";
    frm.txtLaborRate_LostFocus(1);
    EXPECT_EQ(frm.txtLaborRate[1].text, "$42.00");
    EXPECT_FALSE(frm.txtLaborRate[1].focusRequested);
}

TEST_F(ServicesBoxes, MoneyKeysPassTheCurrencyKeyFilter) {
    EXPECT_EQ(typeCharge(0, "0"), "");
    EXPECT_EQ(typeCharge(0, ".5"), ".5");
    frm.txtCharge[0].text = "1.5";
    EXPECT_EQ(typeCharge(0, "2"), "1.52");
    EXPECT_EQ(typeCharge(0, "3"), "1.52");
    frm.txtCharge[0].text = "12.3";
    EXPECT_EQ(fake.dialogs.beeps(), 0);
    EXPECT_EQ(typeCharge(0, "."), "12.3");
    EXPECT_EQ(fake.dialogs.beeps(), 1);
    frm.txtCharge[0].text = "10";
    EXPECT_EQ(typeCharge(0, "0$-a"), "100");
    // Backspace is not the filter's to judge.
    frm.txtCharge[0].text = "1.52";
    EXPECT_EQ(typeCharge(0, QString(QChar(8))), "1.5");

    int key = '0';
    frm.txtCost.text.clear();
    frm.txtCost_KeyPress(key);
    EXPECT_EQ(key, 0);
    key = '7';
    frm.txtLaborRate[2].text = "7.25";
    frm.txtLaborRate_KeyPress(2, key);
    EXPECT_EQ(key, 0);
    key = '7';
    frm.txtLaborRate[2].text = "7.2";
    frm.txtLaborRate_KeyPress(2, key);
    EXPECT_EQ(key, '7');
}

TEST_F(ServicesBoxes, ASecondPointIsSilentWhenTheAlarmOptionIsOff) {
    session.settings.program.ckAlarms = 0;
    frm.txtCharge[1].text = "1.";
    EXPECT_EQ(typeCharge(1, "."), "1.");
    EXPECT_EQ(fake.dialogs.beeps(), 0);
}

TEST_F(ServicesBoxes, AQuantityBoxHoldingZeroIsEmptiedOnEntry) {
    frm.txtOnHand.text = "0";
    frm.txtOnHand_GotFocus();
    frm.txtDiscountQty.text = "0";
    frm.txtDiscountQty_GotFocus();
    frm.txtReorderAmount.text = "0";
    frm.txtReorderAmount_GotFocus();
    frm.txtReorderAt.text = "0";
    frm.txtReorderAt_GotFocus();
    EXPECT_EQ(frm.txtOnHand.text, "");
    EXPECT_EQ(frm.txtDiscountQty.text, "");
    EXPECT_EQ(frm.txtReorderAmount.text, "");
    EXPECT_EQ(frm.txtReorderAt.text, "");
    frm.txtOnHand.text = "10";
    frm.txtOnHand_GotFocus();
    EXPECT_EQ(frm.txtOnHand.text, "10");
}

TEST_F(ServicesBoxes, LeavingTheDiscountQuantityEmptyPutsZeroBack) {
    frm.txtDiscountQty.text.clear();
    frm.txtDiscountQty_LostFocus();
    EXPECT_EQ(frm.txtDiscountQty.text, "0");
    frm.txtDiscountQty.text = "25";
    frm.txtDiscountQty_LostFocus();
    EXPECT_EQ(frm.txtDiscountQty.text, "25");
}

TEST_F(ServicesBoxes, CreateGeneralLaborClearsTheRowsAndStartsTheFirstRate) {
    frm.txtLabor[1].text = "Apprentice";
    frm.txtLaborRate[1].text = "$45.00";
    frm.cmdServices_Click(12);
    EXPECT_EQ(frm.txtLabor[0].text, "General Labor");
    EXPECT_EQ(frm.txtLaborRate[0].text, "");
    EXPECT_EQ(frm.txtLabor[1].text, "");
    EXPECT_EQ(frm.txtLaborRate[1].text, "");
    EXPECT_TRUE(frm.txtLaborRate[0].focusRequested);
}

TEST_F(ServicesBoxes, ClearAllEmptiesEveryLaborRowAndFocusesTheFirstHeading) {
    frm.cmdServices_Click(15);
    for (int i = 0; i <= 2; ++i) {
        EXPECT_EQ(frm.txtLabor[i].text, "") << i;
        EXPECT_EQ(frm.txtLaborRate[i].text, "") << i;
    }
    EXPECT_TRUE(frm.txtLabor[0].focusRequested);
}

TEST_F(ServicesBoxes, ReloadFromFileBringsBackTheSavedRates) {
    writeLabor("Shop Rate", "$70.00");
    frm.cmdServices_Click(15);
    frm.cmdServices_Click(16);
    EXPECT_EQ(frm.txtLabor[0].text, "Shop Rate");
    EXPECT_EQ(frm.txtLaborRate[0].text, "$70.00");
    EXPECT_TRUE(frm.cmdServices[16].visible);
}

TEST_F(ServicesBoxes, SaveLaborRatesWritesTheFileAndGoesToTheServicesTab) {
    frm.SelectTab(frm.kLaborTab);
    frm.txtLabor[0].text = "Shop Rate";
    frm.txtLaborRate[0].text = "$70.00";
    frm.txtLabor[1].text = "Helper";
    frm.txtLaborRate[1].text = "$30.00";
    frm.cmdServices[1].focusRequested = false;
    frm.cmdServices_Click(17);
    EXPECT_EQ(t.readBytes("/Labor.txt"), QByteArray("\"Shop Rate\",\"$70.00\"\r\n"
                                                    "\"Helper\",\"$30.00\"\r\n"
                                                    "\"\",\"$0.00\"\r\n"));
    EXPECT_EQ(frm.tabServices.Tab, frm.kServicesTab);
    EXPECT_TRUE(frm.cmdServices[1].focusRequested);
}

TEST_F(ServicesBoxes, ALaborFileCutShortIsNotWrittenOverAtCloseButSaveLaborRatesStillWrites) {
    t.writeBytes("/Labor.txt", "\"Shop Rate\"\r\n");
    frm.Load();
    const auto box = fake.dialogs.boxes().back();
    EXPECT_TRUE(box.prompt.contains("Labor.txt"));
    EXPECT_BOX(fake.dialogs, box.title, box.prompt);
    frm.Form_Unload();
    EXPECT_EQ(t.readBytes("/Labor.txt"), QByteArray("\"Shop Rate\"\r\n"));

    frm.txtLaborRate[0].text = "$70.00";
    frm.cmdServices_Click(17);
    EXPECT_TRUE(t.readBytes("/Labor.txt").startsWith("\"General Labor\",\"$70.00\"\r\n"));
}
