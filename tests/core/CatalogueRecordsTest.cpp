#include "catalogue/CustomItemRecord.h"
#include "catalogue/InventoriedItemRecord.h"
#include "catalogue/ServiceRecord.h"

#include <gtest/gtest.h>

#include <initializer_list>

using namespace ostrel;

namespace {
QByteArray raw(std::initializer_list<int> values) {
    QByteArray b;
    for (int v : values)
        b.append(static_cast<char>(v));
    return b;
}
QByteArray padded(const char* text, int width) {
    QByteArray b(text);
    return b + QByteArray(width - b.size(), ' ');
}
} // namespace

TEST(ServiceRecord, WritesDescriptionChargeAndTimeIndexAtTheirOffsets) {
    const ServiceRecord s{QStringLiteral("Diagnostic Check"), QStringLiteral("$65.00"), 4};
    const QByteArray expected =
        QByteArray("Diagnostic Check") + QByteArray(44, ' ') + QByteArray("$65.00    ") + raw({0x04, 0x00});
    ASSERT_EQ(expected.size(), 72);
    EXPECT_EQ(s.toRecord().bytes(), expected);
}

TEST(ServiceRecord, ReadsItsFieldsBackFromTheStoredBytes) {
    const QByteArray bytes = padded("Full System Install", 60) + padded("$1,850.00", 10) + raw({0x20, 0x00});
    const ServiceRecord s = ServiceRecord::fromRecord(Record(bytes));
    EXPECT_EQ(s.Description, QString::fromLatin1(padded("Full System Install", 60)));
    EXPECT_EQ(s.Charge, QStringLiteral("$1,850.00 "));
    EXPECT_EQ(s.TimeIndex, 32);
}

TEST(ServiceRecord, CutsTextLongerThanItsFieldWhenStoring) {
    const ServiceRecord s{QString(70, u'D'), QStringLiteral("($12,345.00)"), 1};
    const Record r = s.toRecord();
    EXPECT_EQ(r.length(), 72);
    EXPECT_EQ(r.bytes().left(60), QByteArray(60, 'D'));
    EXPECT_EQ(r.bytes().mid(60, 10), QByteArray("($12,345.0"));
    EXPECT_EQ(r.int16(70), 1);
}

TEST(InventoriedItemRecord, WritesEveryFieldAtItsOffsetLittleEndian) {
    InventoriedItemRecord item;
    item.Description = QStringLiteral("Washable Filter 16x20");
    item.Category = QStringLiteral("Filters");
    item.UnitCost = 1646300;
    item.SellPrice = 3292600;
    item.OnHand = 3;
    item.DiscountPrice = 2963300;
    item.DiscountQuantity = 70000;
    item.ReorderAmount = 12;
    item.ReorderAt = -2;
    const QByteArray expected =
        padded("Washable Filter 16x20", 50) + padded("Filters", 20) + raw({0xDC, 0x1E, 0x19, 0, 0, 0, 0, 0}) +
        raw({0xB8, 0x3D, 0x32, 0, 0, 0, 0, 0}) + raw({0x03, 0x00}) + raw({0x64, 0x37, 0x2D, 0, 0, 0, 0, 0}) +
        raw({0x70, 0x11, 0x01, 0x00}) + raw({0x0C, 0x00}) + raw({0xFE, 0xFF});
    ASSERT_EQ(expected.size(), 104);
    EXPECT_EQ(item.toRecord().bytes(), expected);

    const InventoriedItemRecord back = InventoriedItemRecord::fromRecord(Record(expected));
    EXPECT_EQ(back.Category, QString::fromLatin1(padded("Filters", 20)));
    EXPECT_EQ(back.UnitCost, 1646300);
    EXPECT_EQ(back.SellPrice, 3292600);
    EXPECT_EQ(back.OnHand, 3);
    EXPECT_EQ(back.DiscountPrice, 2963300);
    EXPECT_EQ(back.DiscountQuantity, 70000);
    EXPECT_EQ(back.ReorderAmount, 12);
    EXPECT_EQ(back.ReorderAt, -2);
}

TEST(CustomItemRecord, WritesEveryFieldAtItsOffsetLittleEndian) {
    CustomItemRecord item;
    item.Description = QStringLiteral("Custom Duct Transition");
    item.SellPrice = 1450000;
    item.DiscountPrice = -1;
    item.DiscountQuantity = 3;
    const QByteArray expected = padded("Custom Duct Transition", 50) +
                                raw({0x10, 0x20, 0x16, 0, 0, 0, 0, 0}) + QByteArray(8, '\xFF') +
                                raw({0x03, 0, 0, 0});
    ASSERT_EQ(expected.size(), 70);
    EXPECT_EQ(item.toRecord().bytes(), expected);

    const CustomItemRecord back = CustomItemRecord::fromRecord(Record(expected));
    EXPECT_EQ(back.SellPrice, 1450000);
    EXPECT_EQ(back.DiscountPrice, -1);
    EXPECT_EQ(back.DiscountQuantity, 3);
}

TEST(CatalogueRecords, KeepWindows1252TextByteForByte) {
    const ServiceRecord s{QStringLiteral("Caf\u00E9 \u2013 Service"), QStringLiteral("\u20AC5.00"), 2};
    const Record r = s.toRecord();
    EXPECT_EQ(r.bytes().left(14), QByteArray("Caf\xE9 \x96 Service"));
    EXPECT_EQ(r.bytes().mid(60, 5), QByteArray("\x80"
                                               "5.00"));
    EXPECT_EQ(ServiceRecord::fromRecord(r).Description.left(14), s.Description);
}
