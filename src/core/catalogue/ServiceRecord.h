#pragma once

#include "store/Record.h"

#include <QString>

namespace ostrel {

// One record of /Services.txt: a service that takes time on the schedule.
struct ServiceRecord {
    static constexpr int kLength = 72;
    static constexpr int kDescriptionOffset = 0, kDescriptionWidth = 60;
    static constexpr int kChargeOffset = 60, kChargeWidth = 10;
    static constexpr int kTimeIndexOffset = 70;
    static const QString kFileName;

    QString Description;  // blank-padded as stored
    QString Charge;       // the price as shown, such as "$45.00"
    qint16 TimeIndex = 0; // 15-minute slots, a position in the time list

    static ServiceRecord fromRecord(const Record& r);
    // Text longer than its field is cut.
    Record toRecord() const;
};

} // namespace ostrel
