#include "ServiceRecord.h"

namespace ostrel {

const QString ServiceRecord::kFileName = QStringLiteral("/Services.txt");

ServiceRecord ServiceRecord::fromRecord(const Record& r) {
    ServiceRecord s;
    s.Description = r.text(kDescriptionOffset, kDescriptionWidth);
    s.Charge = r.text(kChargeOffset, kChargeWidth);
    s.TimeIndex = r.int16(kTimeIndexOffset);
    return s;
}

Record ServiceRecord::toRecord() const {
    Record r(kLength);
    r.setText(kDescriptionOffset, kDescriptionWidth, Description);
    r.setText(kChargeOffset, kChargeWidth, Charge);
    r.setInt16(kTimeIndexOffset, TimeIndex);
    return r;
}

} // namespace ostrel
