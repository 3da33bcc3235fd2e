#include "AddressStyle.h"

#include "BusinessData.h"
#include "NumericText.h"

namespace ostrel {

QString AddressCaptionByTests(const BusinessData& data, const QString& current) {
    QString caption = current;
    const QString& name = data.companyName();
    const QString& postal = data.postalCode();
    if (name.isEmpty() && postal.isEmpty()) caption = kInternationalStyleAddress;
    if (IsNumericText(postal)) caption = kInternationalStyleAddress;
    if (!name.isEmpty()) caption = postal.isEmpty() ? kUsaStyleAddress : kInternationalStyleAddress;
    return caption;
}

QString ToggledAddressCaption(const QString& caption) {
    return caption == kUsaStyleAddress ? kInternationalStyleAddress : kUsaStyleAddress;
}

QString DecideAddressStyle(const BusinessData& data, const QString& current) {
    return ToggledAddressCaption(AddressCaptionByTests(data, current));
}

} // namespace ostrel
