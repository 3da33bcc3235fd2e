#include "FakePlatform.h"
#include "controls/Controls.h"
#include "shell/KeyFilters.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::ScriptedDialogs;

namespace {

struct KeyFilters : ::testing::Test {
    ScriptedDialogs dialogs;
    KeyFilterEnv env{dialogs, true};
    KeyFilterEnv quiet{dialogs, false};

    int currency(QChar key, const QString& text) { return CurrencyKeyFilter(key.unicode(), text, env); }
};

} // namespace

TEST_F(KeyFilters, CurrencyAnEmptyBoxRefusesZeroSilentlyAndAcceptsThePoint) {
    EXPECT_EQ(currency(u'0', ""), 0);
    EXPECT_EQ(currency(u'.', ""), '.');
    EXPECT_EQ(dialogs.beeps(), 0);
    EXPECT_TRUE(dialogs.boxes().isEmpty());
}

TEST_F(KeyFilters, CurrencyOneDecimalAcceptsASecond) {
    EXPECT_EQ(currency(u'2', "1.5"), '2');
}

TEST_F(KeyFilters, CurrencyTwoDecimalsRefuseAnyFurtherKeySilently) {
    EXPECT_EQ(currency(u'3', "1.52"), 0);
    EXPECT_EQ(currency(u'.', "1.52"), 0);
    EXPECT_EQ(currency(u'9', "100.00"), 0);
    EXPECT_EQ(dialogs.beeps(), 0);
}

TEST_F(KeyFilters, CurrencyASecondPointBeeps) {
    EXPECT_EQ(currency(u'.', "12.3"), 0);
    EXPECT_EQ(dialogs.beeps(), 1);
    EXPECT_TRUE(dialogs.boxes().isEmpty());
}

TEST_F(KeyFilters, CurrencyASecondPointIsSilentWithTheAlarmOff) {
    EXPECT_EQ(CurrencyKeyFilter('.', "12.3", quiet), 0);
    EXPECT_EQ(dialogs.beeps(), 0);
}

TEST_F(KeyFilters, CurrencyAZeroAfterADigitIsKept) {
    EXPECT_EQ(currency(u'0', "10"), '0');
}

TEST_F(KeyFilters, CurrencySignsLettersAndBackspaceAreRefusedSilently) {
    for (QChar c : QStringLiteral("-$a,+ "))
        EXPECT_EQ(currency(c, "12"), 0) << QString(c).toStdString();
    EXPECT_EQ(CurrencyKeyFilter(kKeyBackspace, "12", env), 0);
    EXPECT_EQ(dialogs.beeps(), 0);
}

TEST_F(KeyFilters, CurrencyTheDecimalRuleLooksOnlyAtTheTail) {
    // Two decimals anywhere but at the end are not seen: "1.5" then "2" then caret moved back.
    EXPECT_EQ(currency(u'7', "1.5"), '7');
    // Third from the end is not the point: the box takes more digits.
    EXPECT_EQ(currency(u'7', "1.523"), '7');
}

TEST_F(KeyFilters, DigitsPassBackspaceAndDigitsAndBeepOnAnythingElse) {
    for (QChar c : QStringLiteral("0123456789"))
        EXPECT_EQ(DigitsKeyFilter(c.unicode(), env), c.unicode());
    EXPECT_EQ(DigitsKeyFilter(kKeyBackspace, env), kKeyBackspace);
    EXPECT_EQ(dialogs.beeps(), 0);
    EXPECT_EQ(DigitsKeyFilter('.', env), 0);
    EXPECT_EQ(DigitsKeyFilter('x', env), 0);
    EXPECT_EQ(dialogs.beeps(), 2);
    EXPECT_EQ(DigitsKeyFilter('-', quiet), 0);
    EXPECT_EQ(dialogs.beeps(), 2);
    EXPECT_TRUE(dialogs.boxes().isEmpty());
}

TEST_F(KeyFilters, FileNameRefusesASlashAfterTextThatIsNotANumberWithTheMessage) {
    TextBox box;
    dialogs.expect("Invalid Key entry", "This character, (/) is invalid for this field", vbOKOnly, vbOK);
    EXPECT_EQ(FileNameKeyFilter('/', "555-12", env, &box), 0);
    dialogs.verify();
    EXPECT_EQ(dialogs.beeps(), 1);
    EXPECT_TRUE(box.focusRequested);
}

TEST_F(KeyFilters, FileNameLetsASlashThroughAfterANumber) {
    EXPECT_EQ(FileNameKeyFilter('/', "555", env), '/');
    EXPECT_TRUE(dialogs.boxes().isEmpty());
    // Once the slash stands the text is no number, and the next one is refused.
    EXPECT_EQ(FileNameKeyFilter('/', "555/", env), 0);
    EXPECT_BOX(dialogs, "Invalid Key entry", "This character, (/) is invalid for this field");
}

TEST_F(KeyFilters, FileNameRefusesEachOfTheSevenCharactersOnAnEmptyBox) {
    for (QChar c : QStringLiteral(",&.\\*/?")) {
        EXPECT_EQ(FileNameKeyFilter(c.unicode(), "", env), 0);
        EXPECT_BOX(dialogs, "Invalid Key entry",
                   QStringLiteral("This character, (%1) is invalid for this field").arg(c));
    }
    EXPECT_EQ(dialogs.beeps(), 7);
}

TEST_F(KeyFilters, FileNameTakesOtherKeysAndBackspace) {
    EXPECT_EQ(FileNameKeyFilter('-', "ABC", env), '-');
    EXPECT_EQ(FileNameKeyFilter('"', "ABC", env), '"'); // the quote is the other filter's
    EXPECT_EQ(FileNameKeyFilter(kKeyBackspace, "ABC", env), kKeyBackspace);
    EXPECT_TRUE(dialogs.boxes().isEmpty());
}

TEST_F(KeyFilters, FileNameRefusalIsSilentButStillShownWithTheAlarmOff) {
    EXPECT_EQ(FileNameKeyFilter('?', "A", quiet), 0);
    EXPECT_EQ(dialogs.beeps(), 0);
    EXPECT_BOX(dialogs, "Invalid Key entry", "This character, (?) is invalid for this field");
}

TEST_F(KeyFilters, QuoteRefusesTheDoubleQuoteWithBeepBoxAndFocus) {
    TextBox box;
    EXPECT_EQ(QuoteKeyFilter('"', env, &box), 0);
    EXPECT_BOX(dialogs, "Invalid Key entry", "This character, (\") is invalid for this field");
    EXPECT_EQ(dialogs.beeps(), 1);
    EXPECT_TRUE(box.focusRequested);
}

TEST_F(KeyFilters, QuoteLetsEverythingElseThrough) {
    for (QChar c : QStringLiteral("a'/,.&?*\\ 9"))
        EXPECT_EQ(QuoteKeyFilter(c.unicode(), env), c.unicode());
    EXPECT_EQ(QuoteKeyFilter(kKeyBackspace, env), kKeyBackspace);
    EXPECT_TRUE(dialogs.boxes().isEmpty());
    EXPECT_EQ(dialogs.beeps(), 0);
}

TEST_F(KeyFilters, CalendarInvalidIsAnOkBoxWithTheProgramTitle) {
    dialogs.expect("", "Your Calendar Selection is Invalid", vbOKOnly, vbOK);
    ShowCalendarInvalid(dialogs);
    dialogs.verify();
}
