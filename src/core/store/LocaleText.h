#pragma once

#include <QDate>
#include <QString>
#include <QStringView>

namespace ostrel {

// The locale's short date, en-US: "11/22/2026", "2/5/2026". The amounts' display form is the
// other half of the locale's rules and lives with Money.
inline const QString kShortDateFormat = QStringLiteral("M/d/yyyy");

QString ShortDateText(const QDate& date);
// A short date as the locale writes it; an invalid date for any other text.
QDate ParseShortDate(QStringView text);

} // namespace ostrel
