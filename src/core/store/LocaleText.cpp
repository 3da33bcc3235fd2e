#include "LocaleText.h"

#include "util/VbText.h"

namespace ostrel {

QString ShortDateText(const QDate& date) { return vbDate(date); }

QDate ParseShortDate(QStringView text) { return QDate::fromString(text.toString(), kShortDateFormat); }

} // namespace ostrel
