#include "accounts/CycleInfoRecord.h"
#include "store/StoreError.h"

#include <gtest/gtest.h>

using namespace ostrel;

TEST(CycleInfoRecord, DefaultsAreWrittenAtTheirOffsetsByteForByte) {
    CycleInfoRecord c;
    c.ResetToDefaults();
    const QByteArray expected = QByteArray("None") + QByteArray(31, ' ') + QByteArray(8, '\0') +
                                QByteArray(2, '\0') + QByteArray(20, ' ') + QByteArray(2, '\0') +
                                QByteArray("\xff\xff", 2);
    ASSERT_EQ(expected.size(), 69);
    EXPECT_EQ(c.bytes(), expected);
}

TEST(CycleInfoRecord, DefaultsReplaceWhateverWasRead) {
    CycleInfoRecord c{Record(QByteArray(69, '\x55'))};
    c.ResetToDefaults();
    CycleInfoRecord fresh;
    fresh.ResetToDefaults();
    EXPECT_EQ(c, fresh);
}

TEST(CycleInfoRecord, LayoutCoversTheRecordWithoutGapOrOverlap) {
    int next = 0;
    for (const ReservedField& f : CycleInfoRecord::kLayout) {
        EXPECT_EQ(f.offset, next);
        next = f.offset + f.width;
    }
    EXPECT_EQ(next, CycleInfoRecord::kLength);
}

TEST(CycleInfoRecord, ARecordOfTheWrongLengthIsRefused) {
    EXPECT_THROW(CycleInfoRecord{Record(70)}, StoreError);
}
