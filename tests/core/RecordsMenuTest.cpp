#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "invoicing/frmReprint.h"
#include "printing/frmSales.h"
#include "shell/ProgramScreens.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::FakePlatform;
using ostrel::test::TestDataRoot;

TEST(RecordsMenu, TheProgramHasBothScreensAndTheSalesListTakesThePointsOfService) {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session(t.path(), fake);
    AddProgramScreens(session);
    ASSERT_NE(session.ScreenAs<frmReprint>(ScreenId::frmReprint), nullptr);
    auto* sales = session.ScreenAs<frmSales>(ScreenId::frmSales);
    ASSERT_NE(sales, nullptr);
    t.writeBytes("/ServiceAreas.txt", "\"Crew One\"\r\n\"Crew Two\"\r\n");
    session.LoadServiceAreas();
    EXPECT_EQ(sales->cboAssociates.items, (QStringList{"Crew One", "Crew Two"}));
}

TEST(RecordsMenu, TheMenuEntriesOpenTheReprintAndTheSalesReport) {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session(t.path(), fake);
    AddProgramScreens(session);
    session.RegisterScreen(ScreenId::frmStartup, session.startup());
    session.settings.program.optBusinessType0 = false;
    // "Generate Sales &Report" is entry 4, "Re&print Completed Invoices" entry 12.
    frmStartup& menu = session.startup();
    menu.Show();
    EXPECT_TRUE(menu.optMainMenuSub[4].visible);
    menu.optMainMenuSub_DblClick(4);
    EXPECT_TRUE(session.FindScreen(ScreenId::frmSales)->isVisible());
    EXPECT_FALSE(menu.isVisible());

    session.HideScreen(ScreenId::frmSales);
    menu.Show();
    menu.optMainMenuSub_DblClick(12);
    // No images yet: the screen says so and the menu comes back.
    EXPECT_BOX(fake.dialogs, "", "No Completed Invoices Exist");
    EXPECT_FALSE(session.FindScreen(ScreenId::frmReprint)->isVisible());
    EXPECT_TRUE(menu.isVisible());
}
