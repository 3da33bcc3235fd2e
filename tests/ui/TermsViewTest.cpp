#include "views/TermsView.h"
#include "FakePlatform.h"
#include "Screenshot.h"
#include "TestDataRoot.h"
#include "UiEvents.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"
#include "workorders/frmTerms.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;
using ostrel::test::FakePlatform;
using ostrel::test::TestDataRoot;

namespace {

struct TermsViewTest : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmTerms& frm = session.AddScreen(ScreenId::frmTerms, std::make_unique<frmTerms>(session));
    std::unique_ptr<TermsView> view;

    void SetUp() override {
        session.RegisterScreen(ScreenId::frmStartup, session.startup());
        t.writeBytes("/CustomTerms.txt", "\"Net 30 days.\r\nA late fee applies.\"\r\n");
        frm.Load();
        view = std::make_unique<TermsView>(session, frm);
        frm.Show();
        ostrel::test::settle();
    }
    template <typename W> W* find(const QString& name) { return view->findChild<W*>(name); }
};

} // namespace

TEST_F(TermsViewTest, EveryControlHasItsWidgetCaptionAndAccessibleName) {
    EXPECT_TRUE(view->binder().unboundControls().isEmpty()) << view->binder().unboundControls().join(", ").toStdString();
    EXPECT_EQ(view->windowTitle(), "Custom Terms and Disclaimer Creation Screen");
    const QStringList captions = {"Menu", "Save Terms", "Save Disclaimer", "Clear Custom Terms", "Clear Custom Disclaimer",
                                  "Load Custom Terms", "Load Custom Disclaimer", "Delete Custom Terms",
                                  "Delete Custom Disclaimer"};
    for (int i = 0; i < captions.size(); ++i) {
        auto* b = find<QPushButton>(QStringLiteral("Command1(%1)").arg(i));
        ASSERT_NE(b, nullptr) << i;
        EXPECT_EQ(b->text(), captions[i]);
        EXPECT_TRUE(b->isVisible());
    }
    EXPECT_EQ(find<QLabel>("Label1(1)")->text(), kGenericTerms);
    EXPECT_EQ(find<QLabel>("Label1(0)")->text(), kGenericDisclaimer);
    EXPECT_EQ(find<QPlainTextEdit>("Text1(0)")->toPlainText(), "Net 30 days.\nA late fee applies.");
    EXPECT_EQ(find<QPlainTextEdit>("Text1(0)")->accessibleName(), "Custom Terms");
    EXPECT_EQ(find<QPlainTextEdit>("Text1(1)")->accessibleName(), "Custom Disclaimer");
    EXPECT_TRUE(find<QCheckBox>("ckTerms")->isChecked());
    EXPECT_FALSE(find<QCheckBox>("ckDisclaimer")->isChecked());
    ostrel::test::saveShot(*view, "frmTerms");
}

TEST_F(TermsViewTest, TypingAndSavingTheDisclaimerWritesItsFile) {
    auto* box = find<QPlainTextEdit>("Text1(1)");
    box->setFocus();
    box->setPlainText("Owner supplies parts.\nNo refunds.");
    ostrel::test::click(find<QPushButton>("Command1(2)"));
    ostrel::test::settle();
    EXPECT_EQ(t.readBytes("/CustomDisclaimer.txt"), "\"Owner supplies parts.\r\nNo refunds.\"\r\n");
}

TEST_F(TermsViewTest, ClearEmptiesTheBoxOnScreenAndMenuLeaves) {
    find<QPushButton>("Command1(3)")->click();
    ostrel::test::settle();
    EXPECT_BOX(fake.dialogs, "Input Box Cleared",
               "The Custom Terms input box has been Cleared\nThe file Custom Terms has not been Deleted");
    EXPECT_TRUE(find<QPlainTextEdit>("Text1(0)")->toPlainText().isEmpty());
    find<QPushButton>("Command1(0)")->click();
    ostrel::test::settle();
    EXPECT_FALSE(view->isVisible());
    EXPECT_TRUE(session.startup().isVisible());
}
