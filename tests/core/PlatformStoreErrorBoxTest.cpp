#include "ScriptedDialogs.h"
#include "platform/StoreErrorBox.h"
#include "store/StoreError.h"

#include <gtest/gtest.h>

using namespace ostrel;

TEST(StoreErrorBox, ShowsTheProblemAndTheFileInACriticalOkBox) {
    test::ScriptedDialogs dialogs;
    const StoreError error(QStringLiteral("/Services.txt"),
                           QStringLiteral("The file ends in the middle of a line."));
    dialogs.expect(kStoreErrorTitle, error.userMessage(), vbOKOnly + vbCritical, vbOK);
    ShowStoreError(dialogs, error, false);
    dialogs.verify();
    EXPECT_EQ(QStringLiteral("Data File Problem"), dialogs.boxes().value(0).title);
    EXPECT_TRUE(dialogs.boxes().value(0).prompt.contains(QStringLiteral("/Services.txt")));
    EXPECT_EQ(0, dialogs.beeps());
}

TEST(StoreErrorBox, BeepsFirstOnlyWhenAlarmsAreOn) {
    test::ScriptedDialogs dialogs;
    const StoreError error(QStringLiteral("/Labor.txt"), QStringLiteral("Cannot be read."));
    ShowStoreError(dialogs, error, true);
    EXPECT_EQ(1, dialogs.beeps());
    EXPECT_BOX(dialogs, "Data File Problem", error.userMessage());
}
