#include "InventoriedItemRecord.h"

namespace ostrel {

const QString InventoriedItemRecord::kFileName = QStringLiteral("/OIInventoriedItems.txt");

InventoriedItemRecord InventoriedItemRecord::fromRecord(const Record& r) {
    InventoriedItemRecord i;
    i.Description = r.text(kDescriptionOffset, kDescriptionWidth);
    i.Category = r.text(kCategoryOffset, kCategoryWidth);
    i.UnitCost = r.currency(kUnitCostOffset);
    i.SellPrice = r.currency(kSellPriceOffset);
    i.OnHand = r.int16(kOnHandOffset);
    i.DiscountPrice = r.currency(kDiscountPriceOffset);
    i.DiscountQuantity = r.int32(kDiscountQuantityOffset);
    i.ReorderAmount = r.int16(kReorderAmountOffset);
    i.ReorderAt = r.int16(kReorderAtOffset);
    return i;
}

Record InventoriedItemRecord::toRecord() const {
    Record r(kLength);
    r.setText(kDescriptionOffset, kDescriptionWidth, Description);
    r.setText(kCategoryOffset, kCategoryWidth, Category);
    r.setCurrency(kUnitCostOffset, UnitCost);
    r.setCurrency(kSellPriceOffset, SellPrice);
    r.setInt16(kOnHandOffset, OnHand);
    r.setCurrency(kDiscountPriceOffset, DiscountPrice);
    r.setInt32(kDiscountQuantityOffset, DiscountQuantity);
    r.setInt16(kReorderAmountOffset, ReorderAmount);
    r.setInt16(kReorderAtOffset, ReorderAt);
    return r;
}

} // namespace ostrel
