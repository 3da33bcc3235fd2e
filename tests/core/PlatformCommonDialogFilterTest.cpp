#include "platform/CommonDialogFilter.h"

#include <gtest/gtest.h>

using namespace ostrel;

TEST(CommonDialogFilter, LogoFilterBecomesPictureAndAllFileFilters) {
    const QStringList f = NameFiltersFromCommonDialog(
        QStringLiteral("Pictures |(*.bmp;*.BMP;*.ico;*.ICO; *.cur; *.CUR;*jpg;*JPG; *.EMF)|All|*.*"));
    ASSERT_EQ(2, f.size());
    EXPECT_EQ(QStringLiteral("Pictures (*.bmp *.BMP *.ico *.ICO *.cur *.CUR *jpg *JPG *.EMF)"), f[0]);
    EXPECT_EQ(QStringLiteral("All (*)"), f[1]);
}

TEST(CommonDialogFilter, EmptyFilterOffersEverything) {
    EXPECT_TRUE(NameFiltersFromCommonDialog(QString()).isEmpty());
}

TEST(CommonDialogFilter, DescriptionWithoutPatternsIsDropped) {
    EXPECT_EQ(QStringList{QStringLiteral("Text (*.txt)")},
              NameFiltersFromCommonDialog(QStringLiteral("Text|*.txt|Orphan")));
}

TEST(CommonDialogFilter, MissingDescriptionShowsThePatterns) {
    EXPECT_EQ(QStringList{QStringLiteral("*.rtf (*.rtf)")},
              NameFiltersFromCommonDialog(QStringLiteral("|*.rtf")));
}
