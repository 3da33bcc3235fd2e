#include "platform/ControlRegistry.h"

#include <gtest/gtest.h>

using namespace ostrel;

namespace {
struct Screen {
    CommandButton cmdGoto;
    ControlArray<OptionButton> optMainMenuSub;
    Grid fgDaySchedule;
    ControlRegistry controls;
    Screen() {
        for (int i : {0, 5, 12})
            optMainMenuSub[i];
        controls.add(QStringLiteral("cmdGoto"), cmdGoto);
        controls.add(QStringLiteral("optMainMenuSub"), optMainMenuSub);
        controls.add(QStringLiteral("fgDaySchedule"), fgDaySchedule);
    }
};
} // namespace

TEST(ControlRegistry, RegisteringNamesTheControlsWithArrayIndexInParentheses) {
    Screen s;
    EXPECT_EQ(QStringLiteral("cmdGoto"), s.cmdGoto.name);
    EXPECT_EQ(QStringLiteral("optMainMenuSub(12)"), s.optMainMenuSub[12].name);
    EXPECT_EQ((QStringList{QStringLiteral("cmdGoto"), QStringLiteral("optMainMenuSub(0)"),
                           QStringLiteral("optMainMenuSub(5)"), QStringLiteral("optMainMenuSub(12)"),
                           QStringLiteral("fgDaySchedule")}),
              s.controls.names());
}

TEST(ControlRegistry, FindsAControlByName) {
    Screen s;
    EXPECT_EQ(&s.optMainMenuSub[5], s.controls.find(QStringLiteral("optMainMenuSub(5)")));
    EXPECT_EQ(&s.fgDaySchedule, s.controls.find(QStringLiteral("fgDaySchedule")));
    EXPECT_EQ(nullptr, s.controls.find(QStringLiteral("optMainMenuSub(6)")));
}

TEST(ControlRegistry, EntriesKeepTheControlKind) {
    Screen s;
    ASSERT_EQ(5u, s.controls.entries().size());
    EXPECT_TRUE(std::holds_alternative<CommandButton*>(s.controls.entries()[0]));
    EXPECT_TRUE(std::holds_alternative<OptionButton*>(s.controls.entries()[1]));
    EXPECT_TRUE(std::holds_alternative<Grid*>(s.controls.entries()[4]));
}
