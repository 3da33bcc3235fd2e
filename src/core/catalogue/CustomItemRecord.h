#pragma once

#include "store/Record.h"

#include <QString>

namespace ostrel {

// One record of /CustomItems.txt: an item that is sold but not counted, such as a sub-assembly.
struct CustomItemRecord {
    static constexpr int kLength = 70;
    static constexpr int kDescriptionOffset = 0, kDescriptionWidth = 50;
    static constexpr int kSellPriceOffset = 50;
    static constexpr int kDiscountPriceOffset = 58;
    static constexpr int kDiscountQuantityOffset = 66;
    static const QString kFileName;

    QString Description;
    qint64 SellPrice = 0;
    qint64 DiscountPrice = 0;
    qint32 DiscountQuantity = 0; // 0: no discount

    static CustomItemRecord fromRecord(const Record& r);
    Record toRecord() const;
};

} // namespace ostrel
