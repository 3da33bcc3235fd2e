#pragma once

#include "catalogue/CustomItemRecord.h"
#include "catalogue/InventoriedItemRecord.h"

namespace ostrel::test {

// A stocked item with every field filled: $4.00 cost, $12.50 price, 12 on hand, $10.00 each from 10.
inline InventoriedItemRecord item(const QString& description, const QString& category) {
    InventoriedItemRecord i;
    i.Description = description;
    i.Category = category;
    i.UnitCost = 40000;
    i.SellPrice = 125000;
    i.OnHand = 12;
    i.DiscountPrice = 100000;
    i.DiscountQuantity = 10;
    i.ReorderAmount = 6;
    i.ReorderAt = 2;
    return i;
}

// A custom item at $7.50, $6.00 each from 3.
inline CustomItemRecord custom(const QString& description) {
    CustomItemRecord c;
    c.Description = description;
    c.SellPrice = 75000;
    c.DiscountPrice = 60000;
    c.DiscountQuantity = 3;
    return c;
}

} // namespace ostrel::test
