#pragma once

#include "store/Record.h"

#include <QString>

namespace ostrel {

// One record of /OIInventoriedItems.txt: an item whose stock is counted. Amounts are
// ten-thousandths.
struct InventoriedItemRecord {
    static constexpr int kLength = 104;
    static constexpr int kDescriptionOffset = 0, kDescriptionWidth = 50;
    static constexpr int kCategoryOffset = 50, kCategoryWidth = 20;
    static constexpr int kUnitCostOffset = 70;
    static constexpr int kSellPriceOffset = 78;
    static constexpr int kOnHandOffset = 86;
    static constexpr int kDiscountPriceOffset = 88;
    static constexpr int kDiscountQuantityOffset = 96;
    static constexpr int kReorderAmountOffset = 100;
    static constexpr int kReorderAtOffset = 102;
    static const QString kFileName;

    QString Description;
    QString Category;
    qint64 UnitCost = 0;
    qint64 SellPrice = 0;
    qint16 OnHand = 0;
    qint64 DiscountPrice = 0;
    qint32 DiscountQuantity = 0; // 0: no discount
    qint16 ReorderAmount = 0;
    qint16 ReorderAt = 0;

    static InventoriedItemRecord fromRecord(const Record& r);
    Record toRecord() const;
};

} // namespace ostrel
