#pragma once

#include <QVector>

namespace ostrel {

// Quantity pricing of a catalogue item. listIndex is the item's position in its price list (-1 for
// a price typed by hand); the tables are indexed from 1, so entry listIndex + 1 belongs to it. The
// discount price applies from the discount quantity up, and a quantity of 0 never applies it.
bool VolumePriceApplies(const QVector<qint32>& discountQuantity, int listIndex, double units);
qint64 VolumePrice(const QVector<qint64>& discountPrice, const QVector<qint32>& discountQuantity,
                   int listIndex, double units, qint64 listPrice);

} // namespace ostrel
