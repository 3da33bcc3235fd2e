#include "CustomItemRecord.h"

namespace ostrel {

const QString CustomItemRecord::kFileName = QStringLiteral("/CustomItems.txt");

CustomItemRecord CustomItemRecord::fromRecord(const Record& r) {
    CustomItemRecord c;
    c.Description = r.text(kDescriptionOffset, kDescriptionWidth);
    c.SellPrice = r.currency(kSellPriceOffset);
    c.DiscountPrice = r.currency(kDiscountPriceOffset);
    c.DiscountQuantity = r.int32(kDiscountQuantityOffset);
    return c;
}

Record CustomItemRecord::toRecord() const {
    Record r(kLength);
    r.setText(kDescriptionOffset, kDescriptionWidth, Description);
    r.setCurrency(kSellPriceOffset, SellPrice);
    r.setCurrency(kDiscountPriceOffset, DiscountPrice);
    r.setInt32(kDiscountQuantityOffset, DiscountQuantity);
    return r;
}

} // namespace ostrel
