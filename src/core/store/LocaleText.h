#pragma once

#include <QDate>
#include <QString>

namespace ostrel {

// The locale's short date, en-US: "11/22/2026", "2/5/2026". The amounts' display form is the
// other half of the locale's rules and lives with Money.
QString ShortDateText(const QDate& date);

} // namespace ostrel
