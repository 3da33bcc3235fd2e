#include "VolumePrice.h"

namespace ostrel {

qint64 VolumePrice(const QVector<qint64>& discountPrice, const QVector<qint32>& discountQuantity,
                   int listIndex, double units, qint64 listPrice) {
    const int n = listIndex + 1;
    if (n < 1 || n >= discountQuantity.size() || n >= discountPrice.size()) return listPrice;
    const qint32 quantity = discountQuantity[n];
    if (quantity == 0 || units < quantity) return listPrice;
    return discountPrice[n];
}

} // namespace ostrel
