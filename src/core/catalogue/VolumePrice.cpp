#include "VolumePrice.h"

namespace ostrel {

bool VolumePriceApplies(const QVector<qint32>& discountQuantity, int listIndex, double units) {
    const int n = listIndex + 1;
    if (n < 1 || n >= discountQuantity.size()) return false;
    const qint32 quantity = discountQuantity[n];
    return quantity != 0 && units >= quantity;
}

qint64 VolumePrice(const QVector<qint64>& discountPrice, const QVector<qint32>& discountQuantity,
                   int listIndex, double units, qint64 listPrice) {
    const int n = listIndex + 1;
    if (n >= discountPrice.size() || !VolumePriceApplies(discountQuantity, listIndex, units)) return listPrice;
    return discountPrice[n];
}

} // namespace ostrel
